#include "platform/readOnlyChooser.h"

#include <QAbstractItemView>
#include <QAction>
#include <QFileDialog>
#include <QToolButton>

using namespace Qt::StringLiterals;

QString chosenIn(QFileDialog& dialog)
{
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setOption(QFileDialog::ReadOnly);
    for (auto* list : dialog.findChildren<QAbstractItemView*>()) {
        list->setContextMenuPolicy(Qt::NoContextMenu);
        list->setDragDropMode(QAbstractItemView::NoDragDrop);
    }
    if (auto* newFolder = dialog.findChild<QToolButton*>(u"newFolderButton"_s))
        newFolder->hide();
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}
