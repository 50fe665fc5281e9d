#include "choices/toolDialog.h"

#include "controls/answerButtons.h"
#include "controls/dialogParts.h"

#include <QBoxLayout>
#include <QLabel>

using namespace Qt::StringLiterals;

void layOutTool(AnswerDialog& dialog, const ToolCaption& caption, QLayout* middle)
{
    auto* DiBoxCaption = named(words(caption.caption, "heading"), "DiBoxCaption");

    auto* top = new QHBoxLayout;
    top->addWidget(pictureLabel(caption.picture, {48, 48}));
    top->addWidget(DiBoxCaption, 1);
    auto* column = new QVBoxLayout(&dialog);
    column->setContentsMargins(20, 16, 20, 16);
    column->setSpacing(16);
    column->addLayout(top);
    column->addLayout(middle);
    auto* video = videoButton();
    column->addLayout(answerRow(dialog.answers, video));
    chainTabs({video, dialog.answers->ok, dialog.answers->cancel, video}); // the choices come first
    dialog.answerByButtons();
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
