#include "analysis/statsForm.h"

#include "analysis/analysisCommands.h"
#include "controls/forms.h"
#include "platform/desktop.h"
#include "platform/values.h"
#include "support/cards.h"
#include "support/dialogs.h"

#include <QComboBox>

using namespace Qt::StringLiterals;

namespace {

class StatisticsScreen : public Fresh {
protected:
    StatisticsScreen()
    {
        animals({u"cat"_s, u"duck"_s, u"cat"_s}, {u"4"_s, u"2"_s, u""_s});
        desktop.clipboard.copyText = [this](const QString& text) { copied = text; };
    }

    /// Shows the screen; `act` may use `screen`.
    void show(const std::function<void()>& act)
    {
        inDialog<statsForm>([this, act](statsForm& dialog) {
            screen = &dialog;
            act();
        });
        showStatistics();
    }

    void choose(int field, int function) const
    {
        screen->fieldCombo->setCurrentIndex(field);
        screen->functionCombo->setCurrentIndex(function);
    }

    QString roll() const { return screen->display->toPlainText(); }

    statsForm* screen = nullptr;
    QString copied;
};

} // namespace

TEST_F(StatisticsScreen, PilesUpResultsInViewAndCopiesWhatThePupilMadeOfThem)
{
    show([this] {
        EXPECT_FALSE(screen->copyBut->isEnabled());
        press(screen->equalsBut);
        EXPECT_EQ(roll(), u"\n"_s) << "no function gives a blank line";
        choose(1, 0);
        QTest::keyClick(screen, Qt::Key_Return);
        QCoreApplication::processEvents();
        EXPECT_EQ(roll(), u"\nLegs Mean = 2\n"_s);
        EXPECT_EQ(screen->equalsBut->accessibleDescription(), u"Legs Mean = 2"_s);
        for (int i = 0; i < 30; ++i)
            press(screen->equalsBut);
        EXPECT_TRUE(screen->display->viewport()->rect().contains(screen->display->cursorRect().center()));
        screen->display->setPlainText(u"my\u00a0own\nwords"_s);
        press(screen->copyBut);
        EXPECT_TRUE(copied.endsWith(u"]\r\n\r\nmy\u00a0own\r\nwords"_s));
        press(screen->ClearBut);
        EXPECT_EQ(roll(), QString());
        EXPECT_FALSE(screen->copyBut->isEnabled());
    });
}

TEST_F(StatisticsScreen, OffersTheFunctionsOfTheFieldAnewAlsoForTheSameField)
{
    show([this] {
        choose(1, 4);
        EXPECT_EQ(screen->functionCombo->currentText(), u"Total"_s);
        Q_EMIT screen->fieldCombo->activated(1);
        EXPECT_EQ(screen->functionCombo->currentIndex(), -1);
        EXPECT_EQ(screen->functionCombo->count(), 5);
        choose(0, 1);
        EXPECT_EQ(screen->functionCombo->currentText(), u"Percentages"_s);
        EXPECT_EQ(session.chosenField, 1);
    });
}

TEST_F(StatisticsScreen, RefusesMoreThanFortyCardsWhateverTheFunction)
{
    const QString refusal =
        u"Making Statistics|Sorry! You need to add a card or enter values before you can make Statistics."_s;
    session.numCards = 41;
    show([this] {
        choose(1, 4);
        press(screen->equalsBut);
        EXPECT_EQ(roll(), QString());
    });
    session.numCards = 40;
    show([this] {
        choose(1, 4);
        press(screen->equalsBut);
        EXPECT_EQ(roll(), u"Legs Total = 6\n"_s);
        session.cardValue[1][2] = session.cardValue[2][2] = u"1E308"_s;
        press(screen->equalsBut);
        EXPECT_EQ(roll(), u"Legs Total = 6\n"_s) << "an overflow leaves the roll";
    });
    session.numCards = 0;
    showStatistics();
    EXPECT_EQ(recorded.messages, QStringList({refusal, u"Error|Overflow"_s, refusal}));
}

TEST_F(StatisticsScreen, IsUnloadedByEveryWayOut)
{
    for (const char* button : {"YesBut", "BtnNo", ""}) {
        show([&] { *button ? press(*screen, button) : void(screen->close()); });
        EXPECT_EQ(session.dialogResult, button == "YesBut"_L1 ? u"OK"_s : u"Cancel"_s);
        EXPECT_FALSE(isLoaded<statsForm>());
    }
}
