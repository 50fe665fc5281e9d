#include "editing/FieldForm.h"

#include "controls/forms.h"
#include "support/dialogs.h"

#include <QCheckBox>
#include <QComboBox>
#include <QInputMethodEvent>
#include <QLabel>
#include <QLineEdit>

using namespace Qt::StringLiterals;

class FieldDetails : public Fresh {
protected:
    FieldDetails()
    {
        session.fieldName[2] = u"Legs"_s;
        session.fieldType[2] = u"123"_s;
    }

    /// Opens the dialog for field 2, runs these actions and presses Return.
    static void edit(const std::function<void(FieldForm&)>& step)
    {
        inDialog<FieldForm>([step](FieldForm& dialog) {
            step(dialog);
            QTest::keyClick(&dialog, Qt::Key_Return);
            EXPECT_FALSE(dialog.isVisible());
        });
        editField(2);
    }
};

TEST_F(FieldDetails, WithoutAListKeepTheOldAnswersOutOfSight)
{
    FieldDefinition pets{u"Pet"_s, u"Abc"_s, true, {}};
    pets.answers[12] = u"cat"_s;
    defineField(2, pets);
    EXPECT_EQ(fieldDefinition(2).answers[12], u"cat"_s);
    defineField(2, {u"Legs"_s, u"123"_s, false, {}});
    EXPECT_EQ(session.fieldListItem[2][12], u"cat"_s);
    EXPECT_TRUE(fieldDefinition(2).answers[12].isEmpty());
}

TEST_F(FieldDetails, ANumberListTakesDigitsSlashAndTheDeleteKey)
{
    edit([](FieldForm& dialog) {
        dialog.UseList->click();
        QLineEdit* box = dialog.possAnswer[1];
        QTest::keyClicks(box, u"-1.5 a1/2e,"_s);
        EXPECT_EQ(box->text(), u"151/2"_s);
        QTest::keyClick(box, Qt::Key_Backspace);
        EXPECT_EQ(box->text(), u"151/2"_s);
        QTest::keyClick(box, Qt::Key_Home);
        QTest::keyClick(box, Qt::Key_Delete);
        EXPECT_EQ(box->text(), u"51/2"_s);
        for (const auto& [composed, result] : {std::pair("é", "51/2"), std::pair("7", "751/2")}) {
            QInputMethodEvent event;
            event.setCommitString(QString::fromUtf8(composed));
            QCoreApplication::sendEvent(box, &event);
            EXPECT_EQ(box->text(), QString::fromUtf8(result));
        }
        dialog.fieldType->setCurrentIndex(0);
        QTest::keyClick(box, Qt::Key_Backspace);
        QTest::keyClicks(box, u"x.-"_s);
        EXPECT_EQ(box->text(), u"x.-51/2"_s);
    });
}

TEST_F(FieldDetails, TheNameIsSelectedWheneverItGetsTheFocus)
{
    edit([](FieldForm& dialog) {
        QLineEdit* name = dialog.fieldNameBox;
        EXPECT_EQ(name->selectedText(), u"Legs"_s) << "when the dialog opens";
        dialog.fieldType->setFocus();
        QTest::mouseClick(name, Qt::LeftButton);
        EXPECT_EQ(name->selectedText(), u"Legs"_s) << "by the mouse";
        QTest::mouseClick(name, Qt::LeftButton);
        EXPECT_TRUE(name->selectedText().isEmpty()) << "a second click puts the caret";
        dialog.fieldType->setFocus();
        QTest::keyClick(&dialog, Qt::Key_C, Qt::AltModifier);
        EXPECT_TRUE(QTest::qWaitFor([&] { return name->text().isEmpty(); }));
        EXPECT_TRUE(name->hasFocus());
    });
    EXPECT_TRUE(session.fieldName[2].isEmpty()) << "an empty name is accepted";
}

TEST_F(FieldDetails, EveryAnswerIsReachedByKeysAndScrolledIntoView)
{
    session.fieldUseList[2] = true;
    edit([](FieldForm& dialog) {
        dialog.possAnswer[1]->setFocus();
        for (int item = 1; item <= 12; ++item) {
            EXPECT_EQ(dialog.focusWidget(), dialog.possAnswer[item]);
            EXPECT_FALSE(dialog.possAnswer[item]->visibleRegion().isEmpty()) << item << " is out of sight";
            QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
        }
        dialog.possAnswer[11]->setFocus();
        for (int press = 1; press <= 2; ++press) // there is no line below the last one
            QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
        EXPECT_EQ(dialog.focusWidget(), dialog.possAnswer[12]);
        EXPECT_TRUE(dialog.isVisible());
    });
}
