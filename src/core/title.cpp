#include "core/title.h"

#include "core/screen.h"
#include "core/session.h"

QString releaseName()
{
    return QStringLiteral("Release %1.%2.%3")
        .arg(TALLYMOOR_MAJOR)
        .arg(TALLYMOOR_MINOR)
        .arg(TALLYMOOR_REVISION);
}

QString titleEnding()
{
    return QStringLiteral(" Release %1.%2 (Build %3)")
        .arg(TALLYMOOR_MAJOR)
        .arg(TALLYMOOR_MINOR)
        .arg(TALLYMOOR_REVISION);
}

QString titleWithoutDatabase() { return QStringLiteral("[No Database] - Tallymoor") + titleEnding(); }

void updateTitle()
{
    setTitle(QStringLiteral("[") + session.dbPath + QStringLiteral(" - ") +
             QString::number(session.numCards) + QStringLiteral(" Card(s)] - Tallymoor") + titleEnding());
}

void setTitle(const QString& text)
{
    session.title = text;
    screen.showTitle();
}
