// Files that are dragged in from other programs.
#pragma once

#include <QMimeData>
#include <QUrl>

/// The first file of what is dragged, empty when there is none.
inline QString firstFile(const QMimeData& dragged)
{
    const QList<QUrl> urls = dragged.urls();
    return urls.isEmpty() ? QString() : urls.first().toLocalFile();
}
