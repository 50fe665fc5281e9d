#include "core/ExitForm.h"

#include "core/session.h"
#include "core/shutDown.h"
#include "platform/dialogParts.h"
#include "platform/errors.h"
#include "platform/forms.h"

#include <QVBoxLayout>

ExitForm::ExitForm()
    : AnswerDialog(new AnswerButtons({"YesBut", QStringLiteral("Yes")}, {"NoBut", QStringLiteral("No")}))
{
    setWindowTitle(QStringLiteral("Exit"));
    auto* column = new QVBoxLayout(this);
    column->addWidget(words(QStringLiteral("Exit ?"), "heading"));
    column->addWidget(answers);
    onClick(answers->ok, [] {
        session.dialogResult = QStringLiteral("OK");
        ignoringErrors({shutDown});
    });
    onClick(answers->cancel, [] {
        session.dialogResult = QStringLiteral("Cancel");
        unload<ExitForm>();
    });
}
