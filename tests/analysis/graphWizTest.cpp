#include "analysis/graphWiz.h"

#include "analysis/analysisCommands.h"
#include "controls/forms.h"
#include "support/cards.h"
#include "support/dialogs.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QTabBar>
#include <QTabWidget>

using namespace Qt::StringLiterals;

namespace {

class GraphWizard : public Fresh {
protected:
    GraphWizard() { animals({u"duck"_s, u"cat"_s, u"ant"_s}, {u"2"_s, u"4"_s, u"4"_s}); }

    void open(const std::function<void()>& act)
    {
        inDialog<graphWiz>([this, act](graphWiz& dialog) {
            wizard = &dialog;
            act();
        });
        makeGraph();
    }

    QString page() const { return wizard->property("Tag").toString(); }

    graphWiz* wizard = nullptr;
};

} // namespace

TEST_F(GraphWizard, SkipsTheGroupingPageOfATextFieldBothWaysAndCountsInGroups)
{
    open([this] {
        auto* ok = &part(*wizard, "OKbut");
        EXPECT_FALSE(wizard->prevBut->isEnabled() || ok->isEnabled());
        wizard->fieldCombo->setCurrentIndex(1);
        press(wizard->nextBut);
        press(wizard->nextBut);
        EXPECT_EQ(page(), u"2"_s);
        wizard->groupCount[1]->click();
        press(wizard->prevBut);
        press(wizard->prevBut);
        wizard->fieldCombo->setCurrentIndex(0);
        press(wizard->nextBut);
        press(wizard->nextBut);
        EXPECT_EQ(page(), u"3"_s);
        EXPECT_TRUE(ok->isEnabled() && !wizard->nextBut->isEnabled());
        EXPECT_FALSE(session.graph.showAllData);
        press(wizard->prevBut);
        EXPECT_EQ(page(), u"1"_s);
        wizard->reject();
    });
    EXPECT_FALSE(session.window.MSChart.visible || session.window.cmdCopyGraph.visible);
    EXPECT_FALSE(isLoaded<graphWiz>());
    EXPECT_EQ(session.dialogResult, QString());
}

TEST_F(GraphWizard, OffersThreeKindsUntilTheTabIsPressed)
{
    const auto kindsInView = [this] {
        QString kinds;
        for (std::size_t i = 0; i < 6; ++i) {
            EXPECT_EQ(wizard->graphOpt[i]->isVisible(), wizard->graphPic[i]->isVisible());
            if (wizard->graphOpt[i]->isVisible())
                kinds += QString::number(i);
        }
        return kinds;
    };
    QTabBar* tab = nullptr;
    const std::function<void()> presses[] = {
        [&] { QTest::mouseClick(tab, Qt::LeftButton, {}, tab->tabRect(0).center()); },
        [&] { QTest::keyClick(tab, Qt::Key_Space); },
        [&] { QTest::keyClick(tab, Qt::Key_Return); },
    };
    for (const auto& pressTab : presses) {
        session.graph.graphKind = 0;
        open([&] {
            tab = wizard->graphTab->tabBar();
            press(wizard->nextBut);
            EXPECT_EQ(kindsInView(), u"023"_s);
            press(wizard->prevBut);
            session.graph.graphKind = 5;
            pressTab();
            EXPECT_EQ(page(), u"0"_s);
            EXPECT_EQ(session.graph.graphKind, 3);
            press(wizard->nextBut);
            EXPECT_EQ(kindsInView(), u"0123"_s);
            press(wizard->graphPic[1]);
            EXPECT_EQ(session.graph.graphKind, 1);
            EXPECT_TRUE(wizard->graphOpt[1]->isChecked());
            Q_EMIT wizard->graphTab->tabBarClicked(1);
            EXPECT_EQ(kindsInView(), u"45"_s);
            EXPECT_EQ(session.graph.graphKind, 4);
            wizard->graphOpt[5]->click();
            EXPECT_EQ(session.graph.graphKind, 5);
            Q_EMIT wizard->graphTab->tabBarClicked(0);
            wizard->graphOpt[2]->click();
            wizard->reject();
        });
        open([&] {
            EXPECT_TRUE(wizard->graphOpt[2]->isChecked()) << "the kind of the last graph";
            wizard->reject();
        });
    }
}

TEST_F(GraphWizard, EmptiesATitleOnAClickOnlyAndBeginsAnewEachTime)
{
    open([this] {
        for (int pages = 0; pages < 2; ++pages)
            QTest::keyClick(wizard, Qt::Key_Return);
        EXPECT_EQ(wizard->graphTitle->selectedText(), u"Title"_s);
        QTest::keyClick(wizard->graphTitle, Qt::Key_Tab);
        EXPECT_EQ(wizard->graphTitle->text(), u"Title"_s);
        EXPECT_EQ(wizard->graphXTitle->selectedText(), u"Axis"_s);
        press(wizard->graphTitle);
        EXPECT_EQ(wizard->graphTitle->text(), QString());
        QTest::keyClicks(wizard->graphTitle, u"Pets"_s);
        press(wizard->graphTitle);
        EXPECT_EQ(wizard->graphTitle->text(), u"Pets"_s);
        press(wizard->graphYTitle);
        press(*wizard, "OKbut");
    });
    const Chart& chart = session.graph.chart;
    EXPECT_EQ(chart.titleText + u'|' + chart.axis[0].title + u'|' + chart.axis[1].title, u"Pets|Axis|"_s);
    open([this] {
        EXPECT_EQ(page(), u"0"_s);
        EXPECT_EQ(wizard->graphTitle->text(), u"Title"_s);
        EXPECT_EQ(wizard->graphYTitle->text(), u"Axis"_s);
        wizard->reject();
    });
}
