#include "tools/toolDialog.h"

#include "core/session.h"
#include "platform/answerButtons.h"
#include "platform/dialogParts.h"

#include <QBoxLayout>
#include <QDialog>

namespace {

void answerWith(QDialog& dialog, QPushButton* button, const QString& word)
{
    onClick(button, [&dialog, word] {
        session.dialogResult = word;
        dialog.hide();
    });
}

} // namespace

void layOutTool(QDialog& dialog, AnswerButtons& answers, const ToolCaption& caption, QLayout* middle)
{
    auto* DiBoxCaption = named(words(caption.caption), "heading");
    DiBoxCaption->setProperty("controlName", QStringLiteral("DiBoxCaption"));

    auto* top = new QHBoxLayout;
    top->addWidget(pictureLabel(caption.picture, {48, 48}));
    top->addWidget(DiBoxCaption, 1);
    auto* column = new QVBoxLayout(&dialog);
    column->setContentsMargins(20, 16, 20, 16);
    column->setSpacing(16);
    column->addLayout(top);
    column->addLayout(middle);
    auto* bottom = new QHBoxLayout;
    bottom->addWidget(&answers);
    bottom->addStretch(1);
    auto* video = videoButton(caption.tutorial);
    bottom->addWidget(video);
    column->addLayout(bottom);
    QWidget::setTabOrder(video, answers.ok); // the choices come first
    QWidget::setTabOrder(answers.ok, answers.cancel);
    QWidget::setTabOrder(answers.cancel, video);

    answerWith(dialog, answers.ok, QStringLiteral("OK"));
    answerWith(dialog, answers.cancel, QStringLiteral("Cancel"));
}

QLayout* labelledChoice(const QString& text, QWidget* control)
{
    auto* column = new QVBoxLayout;
    auto* label = named(new QLabel(text), "Label1");
    label->setBuddy(control);
    column->addWidget(label);
    column->addWidget(control);
    column->addStretch(1);
    return column;
}
