#include "window/ExitForm.h"

#include "controls/dialogParts.h"
#include "platform/errors.h"
#include "window/shutDown.h"

#include <QVBoxLayout>

using namespace Qt::StringLiterals;

ExitForm::ExitForm()
    : AnswerDialog(new AnswerButtons({"YesBut", u"Yes"_s}, {"NoBut", u"No"_s}))
{
    setWindowTitle(u"Exit"_s);
    auto* column = new QVBoxLayout(this);
    column->addWidget(words(u"Exit ?"_s, "heading"));
    column->addLayout(answerRow(answers));
    onClick(answers->ok, [this] {
        answer(u"OK"_s);
        ignoringErrors({shutDown});
    });
    onClick(answers->cancel, [] { answerAndUnload<ExitForm>(u"Cancel"_s); });
}
