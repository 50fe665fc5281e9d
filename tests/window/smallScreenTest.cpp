// Every dialog on the smallest screen, 1024 by 600, with the longest content.
#include "analysis/DataMapForm.h"
#include "analysis/analysisCommands.h"
#include "analysis/printCommand.h"
#include "controls/forms.h"
#include "database/NewForm.h"
#include "database/chooseDatabase.h"
#include "editing/FieldForm.h"
#include "editing/designCommand.h"
#include "editing/editCard.h"
#include "editing/frmRemind.h"
#include "guidance/FrmHelp.h"
#include "guidance/frmVids.h"
#include "options/TeacherOps.h"
#include "paint/picEdit.h"
#include "store/settings.h"
#include "support/cards.h"
#include "support/dialogs.h"
#include "tools/FrmSpeed.h"
#include "tools/toolCommands.h"
#include "tools/warnForm.h"
#include "window/ExitForm.h"
#include "window/frmNewDoc.h"

#include <QApplication>
#include <QFile>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize room(980, 576); // without the window's frame

template <class Form>
void askIn()
{
    ask(form<Form>());
}

const struct {
    const char* name;
    void (*open)();
} dialogs[] = {
    {"welcome", askIn<frmNewDoc>},
    {"exit", askIn<ExitForm>},
    {"choosing a database", [] { chooseDatabase({}); }},
    {"a new database", askIn<NewForm>},
    {"design", designCommand},
    {"a field", [] { editField(2); }},
    {"reminder", askIn<frmRemind>},
    {"card editor", [] { openCardEditor(1); }},
    {"card editor of one field",
     [] {
         session.numFields = 1;
         openCardEditor(1);
     }},
    {"picture editor", openPictureEditor},
    {"find", findCommand},
    {"sort", sortCommand},
    {"group", groupCommand},
    {"arrange", arrangeCommand},
    {"speed", askIn<FrmSpeed>},
    {"bin", [] { confirmDelete(1); }},
    {"graph", makeGraph},
    {"statistics", showStatistics},
    {"report", makeReport},
    {"print", printCommand},
    {"data map", askIn<DataMapForm>},
    {"teacher options", openTeacherOptions},
    {"help", askIn<FrmHelp>},
    {"installing the tutorials", askIn<frmVids>},
};

/// Twelve fields with lists, long names, and all that settings can add.
void fillSession()
{
    const QString longText = u"A name that is far longer than its place "_s;
    desktop.screen.size = [] { return QSize(1024, 600); };
    session.dbPath = testFolder().chopped(1);
    session.numFields = 12;
    for (int f = 1; f <= 12; ++f) {
        session.fieldUseList[f] = true;
        session.fieldName[f] = longText + QString::number(f);
    }
    cards(QStringList(3, longText.repeated(3)));
    writeSetting(settingsFile(), u"Working Dir"_s, u"Path"_s, u"/a/very/long/way/down"_s.repeated(20));
    writeSetting(settingsFile(), u"Last DB"_s, u"Path"_s, u"/a/very/long/way/down"_s.repeated(20));
    writeSetting(settingsFile(), u"Sound"_s, u"Status"_s, u"1"_s);
}

void expectWhole(const QDialog& dialog, const char* name)
{
    const QSize size = dialog.size().expandedTo(dialog.minimumSizeHint());
    EXPECT_EQ(size.boundedTo(room), size) << name << ": " << size.width() << " x " << size.height();
    for (const QPushButton* button : dialog.findChildren<QPushButton*>()) {
        const QSize least = button->minimumSizeHint();
        const bool cutOff = !button->text().isEmpty() && button->width() < least.width();
        EXPECT_TRUE(!button->isVisible() || (!cutOff && button->height() >= least.height()))
            << button->objectName().toStdString() << " is squeezed in " << name;
    }
}

} // namespace

using SmallScreen = Fresh;

TEST_F(SmallScreen, HoldsEveryDialogWhole)
{
    QFile sheet(u":/tallymoor.qss"_s);
    ASSERT_TRUE(sheet.open(QIODevice::ReadOnly));
    qApp->setStyleSheet(QString::fromUtf8(sheet.readAll()));
    for (const auto& [name, open] : dialogs) {
        freshStart();
        fillSession();
        inDialog([name = name](QDialog& dialog) {
            expectWhole(dialog, name);
            for (QTabBar* tabs : dialog.findChildren<QTabBar*>()) {
                tabs->setCurrentIndex(tabs->count() - 1);
                QCoreApplication::processEvents();
                expectWhole(dialog, name);
            }
        });
        open();
        unloadAllForms();
    }
    qApp->setStyleSheet({});
}
