// Graphs and figures where a test of one form isn't enough: assistive technology, another form before.
#include "analysis/analysisCommands.h"
#include "analysis/graphWiz.h"
#include "analysis/statsForm.h"
#include "controls/forms.h"
#include "database/NewForm.h"
#include "editing/newCommand.h"
#include "support/cards.h"
#include "support/freshStart.h"

#include <QAccessible>
#include <QRadioButton>
#include <QTabBar>
#include <QTabWidget>

using namespace Qt::StringLiterals;

namespace {

class Graphing : public Fresh {
protected:
    Graphing()
    {
        session.numFields = 1;
        session.fieldName[1] = u"Kind"_s;
        cards({u"duck"_s, u"cat"_s, u"ant"_s});
    }

    template <class Form>
    static void nextDialog(const std::function<void(Form&)>& act)
    {
        recorded.dialogSteps.push_back([act](QDialog& dialog) { act(dynamic_cast<Form&>(dialog)); });
    }

    static void finish(graphWiz& wizard)
    {
        while (wizard.nextBut->isEnabled())
            wizard.nextBut->click();
        wizard.answers->ok->click();
    }
};

} // namespace

TEST_F(Graphing, TheTabAnswersAPressByAssistiveTechnology)
{
    nextDialog<graphWiz>([](graphWiz& wizard) {
        QAccessibleInterface* tab = QAccessible::queryAccessibleInterface(wizard.graphTab->tabBar());
        EXPECT_EQ(tab->role(), QAccessible::PageTab);
        EXPECT_EQ(tab->text(QAccessible::Name), u"Graph"_s);
        EXPECT_TRUE(wizard.graphOpt[1]->isHidden());
        tab->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        EXPECT_FALSE(wizard.graphOpt[1]->isHidden());
        wizard.reject();
    });
    makeGraph();
}

/// After a cancelled "New" the cards are gone, and their count isn't.
TEST_F(Graphing, CardsThatAreGoneCountAsOneEmptyGroup)
{
    nextDialog<NewForm>([](NewForm& wizard) { wizard.reject(); });
    newCommand();
    ASSERT_EQ(session.numCards, 3);
    nextDialog<graphWiz>(finish);
    makeGraph();
    const Chart& chart = session.graph.chart;
    ASSERT_EQ(chart.rowCount(), 1);
    EXPECT_EQ(chart.rowLabel(1), QString());
    EXPECT_EQ(chart.data(1, 1), 3);

    nextDialog<statsForm>([](statsForm& screen) {
        screen.equalsBut->click();
        QCoreApplication::processEvents();
        screen.reject();
    });
    showStatistics();
    EXPECT_TRUE(recorded.messages.isEmpty()) << recorded.messages.join(u'|').toStdString();
}

TEST_F(Graphing, AGraphThatCannotBeMadeCannotBeCopied)
{
    session.fieldType[1] = u"123"_s;
    session.cardValue[2][1] = u"1e300"_s; // beyond single precision
    nextDialog<graphWiz>([](graphWiz& wizard) {
        wizard.groupCount[1]->click();
        finish(wizard);
    });
    makeGraph();
    EXPECT_EQ(recorded.messages, QStringList(u"Error|Overflow"_s));
    EXPECT_FALSE(session.window.MSChart.visible || session.window.cmdCopyGraph.visible);
}
