#include "analysis/DataMapForm.h"

#include "controls/forms.h"
#include "support/cards.h"
#include "support/freshStart.h"

#include <QComboBox>
#include <QLineEdit>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

class DataMap : public Fresh {};

TEST_F(DataMap, AsksOnThreePages)
{
    cards({u"cat"_s});
    recorded.dialogSteps.push_back([](QDialog& dialog) {
        auto& wizard = static_cast<DataMapForm&>(dialog);
        wizard.fieldCombo->setCurrentIndex(1);
        for (int page = 0; page <= 2; ++page) {
            EXPECT_EQ(wizard.property("Tag").toString(), QString::number(page));
            EXPECT_EQ(wizard.prevBut->isEnabled(), page > 0);
            EXPECT_EQ(wizard.nextBut->isEnabled(), page < 2);
            EXPECT_EQ(wizard.answers->ok->isEnabled(), page == 2);
            QTest::mouseClick(wizard.nextBut, Qt::LeftButton); // does nothing on the last page
        }
        EXPECT_EQ(wizard.graphTitle->text(), u"Title"_s);
        QTest::mouseClick(wizard.graphTitle, Qt::LeftButton);
        EXPECT_EQ(wizard.graphTitle->text(), QString());
        QTest::mouseClick(wizard.answers->ok, Qt::LeftButton);
    });
    EXPECT_EQ(ask(form<DataMapForm>()), u"OK"_s);
    EXPECT_EQ(session.chosenField, 2);
}

} // namespace
