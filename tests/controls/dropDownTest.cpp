#include "controls/dropDown.h"

#include "support/freshStart.h"

#include <QAbstractItemView>
#include <QDialog>
#include <QFile>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

/// A drop-down above a dialog's OK, with the application's style sheet.
struct Asking : QDialog {
    explicit Asking(int entries)
    {
        QFile sheet(u":/tallymoor.qss"_s);
        EXPECT_TRUE(sheet.open(QIODevice::ReadOnly));
        setStyleSheet(QString::fromUtf8(sheet.readAll()));
        for (int entry = 1; entry <= entries; ++entry)
            list.addItem(u"gypsum %1"_s.arg(entry));
        auto* column = new QVBoxLayout(this);
        column->addWidget(&list);
        column->addWidget(&ok);
        ok.setDefault(true);
        connect(&ok, &QPushButton::clicked, this, [this] { ++pressed; });
        show();
        list.setFocus();
    }

    DropDown list;
    QPushButton ok;
    int pressed = 0;
};

} // namespace

using DropDowns = Fresh;

TEST_F(DropDowns, ShowEveryEntryWholeUntilTheScreenIsFull)
{
    for (const int entries : {1, 2, 6, 12, 60}) {
        Asking asking(entries);
        asking.list.setCurrentIndex(entries - 1);
        asking.list.showPopup();
        const QAbstractItemView& view = *asking.list.view();
        const QRect screen = asking.screen()->geometry();
        EXPECT_TRUE(screen.contains(view.window()->geometry())) << entries;
        EXPECT_TRUE(view.viewport()->rect().contains(view.visualRect(view.currentIndex()))) << entries;
        EXPECT_EQ(view.verticalScrollBar()->maximum() == 0, entries < 60) << entries;
        const int below = view.viewport()->rect().bottom() - view.visualRect(view.currentIndex()).bottom();
        EXPECT_TRUE(below == 0 || entries == 60) << entries; // a full screen ends where a line does
        asking.list.hidePopup();
    }
}

TEST_F(DropDowns, ReturnPicksAndPressesOkOnlyWhenTheListIsClosed)
{
    Asking asking(3);
    asking.list.showPopup();
    QTest::keyClick(asking.list.view(), Qt::Key_Down);
    QTest::keyClick(asking.list.view(), Qt::Key_Return);
    EXPECT_EQ(asking.list.currentIndex(), 1);
    EXPECT_FALSE(asking.list.view()->isVisible());
    QKeyEvent stillHeld(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, u"\r"_s, true);
    QCoreApplication::sendEvent(&asking.list, &stillHeld);
    EXPECT_EQ(asking.pressed, 0);
    QTest::keyClick(&asking.list, Qt::Key_Return);
    EXPECT_EQ(asking.pressed, 1);
}
