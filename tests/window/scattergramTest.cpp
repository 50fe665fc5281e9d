// Scattergrams, which the wizard can draw and doesn't offer, on the main window. With TALLYMOOR_PICTURES set
// to a folder, the charts are kept there: the pictures in docs/pictures come from here.
#include "analysis/analysisCommands.h"
#include "analysis/graphWiz.h"
#include "controls/chartView.h"
#include "controls/forms.h"
#include "core/session.h"
#include "support/cards.h"
#include "support/freshStart.h"
#include "window/Form1.h"
#include "window/assembly.h"

#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QRadioButton>
#include <QTabWidget>

using namespace Qt::StringLiterals;

namespace {

constexpr QColor sky(0x4F, 0xB3, 0xE8);

/// Twelve children: from finger to finger with their arms spread, and their height, in centimetres.
constexpr std::pair<int, int> children[] = {{112, 115}, {122, 121}, {117, 119}, {124, 126},
                                            {126, 124}, {129, 131}, {135, 133}, {136, 138},
                                            {139, 137}, {142, 144}, {140, 141}, {149, 150}};

class Scattergrams : public Fresh {
protected:
    Scattergrams()
    {
        QFile sheet(u":/tallymoor.qss"_s);
        EXPECT_TRUE(sheet.open(QIODevice::ReadOnly));
        qApp->setStyleSheet(QString::fromUtf8(sheet.readAll()));
        window.resize(1024, 600);
        window.show();
        session.numFields = 2;
        session.fieldName[1] = u"Arms cm"_s;
        session.fieldName[2] = u"Height cm"_s;
        QStringList arms;
        for (const auto& child : children)
            arms.append(QString::number(child.first));
        cards(arms, u"123"_s);
        session.fieldType[2] = u"123"_s;
        for (int card = 1; card <= session.numCards; ++card)
            session.cardValue[card][2] = QString::number(children[card - 1].second);
    }
    ~Scattergrams() override { qApp->setStyleSheet({}); }

    /// Through the wizard, whose second tab is pressed in code: there is no such tab to click.
    static void draw(int kind)
    {
        recorded.dialogSteps.push_back([kind](QDialog& dialog) {
            auto& wizard = dynamic_cast<graphWiz&>(dialog);
            Q_EMIT wizard.graphTab->tabBarClicked(1);
            wizard.field1combo->setCurrentIndex(0);
            wizard.field2combo->setCurrentIndex(1);
            wizard.nextBut->click();
            wizard.graphOpt[std::size_t(kind)]->click();
            wizard.nextBut->click();
            wizard.groupCount[1]->click();
            wizard.nextBut->click();
            wizard.answers->ok->click();
        });
        makeGraph();
    }

    QImage pictureOf(const QString& name)
    {
        QImage picture = window.grab().toImage();
        if (const QString folder = qEnvironmentVariable("TALLYMOOR_PICTURES"); !folder.isEmpty()) {
            EXPECT_TRUE(picture.copy(window.MSChart->geometry()).save(folder + u'/' + name));
        }
        return picture;
    }

    Form1& window = (connectHooks(), form<Form1>());
};

} // namespace

TEST_F(Scattergrams, ShowEachCardAsAPointOnTheBoardsPlace)
{
    for (const auto& [kind, name] : {std::pair(5, u"graphScatterLine.png"_s), {4, u"graphScatter.png"_s}}) {
        draw(kind);
        const QImage picture = pictureOf(name);
        const ChartLayout& layout = window.MSChart->layout();
        ASSERT_EQ(layout.marks.size(), std::size(children));
        for (std::size_t i = 0; i < layout.marks.size(); ++i) {
            const QPointF middle = layout.marks[i].place().center();
            const QPoint onWindow = window.MSChart->mapTo(&window, middle.toPoint());
            EXPECT_EQ(picture.pixelColor(onWindow), sky) << layout.marks[i].words.toStdString();
            EXPECT_EQ(layout.marks[i].words, u"%1, %2"_s.arg(children[i].first).arg(children[i].second));
        }
    }
}
