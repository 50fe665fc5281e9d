#include "controls/dropDown.h"

#include "support/freshStart.h"

#include <QAbstractItemView>
#include <QDialog>
#include <QFile>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

/// A drop-down above a dialog's OK, with the application's style sheet.
struct Asking : QDialog {
    Asking()
    {
        QFile sheet(u":/tallymoor.qss"_s);
        EXPECT_TRUE(sheet.open(QIODevice::ReadOnly));
        setStyleSheet(QString::fromUtf8(sheet.readAll()));
        list.addItems({u"gypsum 1"_s, u"gypsum 2"_s, u"gypsum 3"_s});
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

TEST_F(DropDowns, ReturnPicksAndPressesOkOnlyWhenTheListIsClosed)
{
    Asking asking;
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
