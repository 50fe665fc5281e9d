#include "controls/dialogParts.h"
#include "controls/answerButtons.h"
#include "controls/balloon.h"
#include "support/freshStart.h"

#include <QApplication>
#include <QLineEdit>
#include <QTest>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

struct Question : AnswerDialog {
    Question()
        : AnswerDialog(new AnswerButtons({"YesBut", u"Yes"_s}, {"NoBut", u"No"_s}))
        , buttons(*answers)
    {
        (new QVBoxLayout(this))->addWidget(answers);
        onClick(answers->ok, [this] { given.append(answers->ok->objectName()); });
        onClick(answers->cancel, [this] { given.append(answers->cancel->objectName()); });
    }

    AnswerButtons& buttons;
    QStringList given;
};

} // namespace

using DialogParts = Fresh;

TEST_F(DialogParts, ReturnInATextIsYesWhicheverButtonHadTheFocusBefore)
{
    Question question;
    QLineEdit text;
    question.layout()->addWidget(&text);
    question.show();
    QApplication::setActiveWindow(&question);
    for (QPushButton* passed : {question.buttons.ok, question.buttons.cancel}) {
        passed->setFocus();
        text.setFocus();
        QTest::keyClick(&text, Qt::Key_Return);
    }
    question.buttons.cancel->setFocus();
    QTest::keyClick(question.buttons.cancel, Qt::Key_Return);
    const QString yes = u"YesBut"_s;
    EXPECT_EQ(question.given, QStringList({yes, yes, u"NoBut"_s}));
}

TEST_F(DialogParts, TheIconsMoveOnlyWhileTheyAreInView)
{
    Question question;
    EXPECT_FALSE(question.buttons.Timer1->isActive());
    question.show();
    EXPECT_TRUE(question.buttons.Timer1->isActive());
    EXPECT_EQ(question.buttons.Timer1->interval(), 100);

    std::vector<qint64> shown; // one round of eight different pictures, then the first again
    question.buttons.Timer1->setInterval(1);
    const auto picture = [&] { return question.buttons.ok->icon().cacheKey(); };
    shown.push_back(picture());
    while (shown.size() < 9 && QTest::qWaitFor([&] { return picture() != shown.back(); }))
        shown.push_back(picture());
    ASSERT_EQ(shown.size(), 9U);
    EXPECT_EQ(shown[8], shown[0]);
    EXPECT_EQ(std::set<qint64>(shown.begin(), shown.end()).size(), 8U);

    question.hide();
    EXPECT_FALSE(question.buttons.Timer1->isActive());
}

TEST_F(DialogParts, AHintShowsWhenTheMouseComesAndGoesAgain)
{
    QWidget widget;
    giveHint(widget, u"Card Mode"_s);
    widget.show();
    EXPECT_EQ(hintInView(), QString());
    QTest::mouseMove(&widget, {10, 10});
    EXPECT_TRUE(QTest::qWaitFor([] { return hintInView() == "Card Mode"_L1; }));
    QCoreApplication::processEvents(); // pending mouse events would show the hint again
    endHint();
    EXPECT_TRUE(QTest::qWaitFor([] { return hintInView().isEmpty(); }));
}
