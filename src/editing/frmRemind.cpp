#include "editing/frmRemind.h"

#include "controls/dialogParts.h"
#include "controls/forms.h"
#include "editing/design.h"

#include <QCheckBox>
#include <QGridLayout>

using namespace Qt::StringLiterals;

frmRemind::frmRemind()
    : AnswerDialog(new AnswerButtons)
    , ChkRemind(named(new QCheckBox(u"&Don't Show this message again"_s), "ChkRemind"))
{
    setObjectName(u"frmRemind"_s);
    setWindowTitle(u"Reminder"_s);
    answers->cancel
        ->hide(); // Escape and the close button still press it; the reminder's setting is then unchanged

    auto* grid = new QGridLayout(this);
    grid->setColumnStretch(1, 1);
    grid->setContentsMargins(20, 16, 20, 16);
    grid->setSpacing(16);
    auto* Label1 = named(words(u"You are now ready to start your database. "
                               "Click on 'Add Card' from the menu."_s,
                               "subHeading"),
                         "Label1");
    grid->addWidget(pictureLabel(u"remind"_s, {96, 96}), 0, 0, 2, 1, Qt::AlignTop);
    grid->addWidget(Label1, 0, 1);
    grid->addWidget(ChkRemind, 1, 1);
    grid->addLayout(answerRow(answers), 2, 0, 1, 2);

    onClick(answers->ok, [this] {
        setReminderWanted(!ChkRemind->isChecked());
        unload<frmRemind>();
    });
    onClick(answers->cancel, [] { unload<frmRemind>(); });
}
