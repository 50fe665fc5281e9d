#include "editing/frmRemind.h"

#include "editing/design.h"
#include "platform/dialogParts.h"
#include "platform/forms.h"

#include <QCheckBox>
#include <QGridLayout>

frmRemind::frmRemind()
    : AnswerDialog(new AnswerButtons)
    , ChkRemind(named(new QCheckBox(QStringLiteral("&Don't Show this message again")), "ChkRemind"))
{
    setObjectName(QStringLiteral("frmRemind"));
    setWindowTitle(QStringLiteral("Reminder"));
    answers->cancel->hide(); // Escape and the close box press it still: then the reminder stays as it is

    auto* grid = new QGridLayout(this);
    grid->setColumnStretch(1, 1);
    grid->setContentsMargins(20, 16, 20, 16);
    grid->setSpacing(16);
    auto* Label1 = named(words(QStringLiteral("You are now ready to start your database. "
                                              "Click on 'Add Card' from the menu."),
                               "subHeading"),
                         "Label1");
    grid->addWidget(pictureLabel(QStringLiteral("remind"), {96, 96}), 0, 0, 2, 1, Qt::AlignTop);
    grid->addWidget(Label1, 0, 1);
    grid->addWidget(ChkRemind, 1, 1);
    grid->addWidget(answers, 2, 0, 1, 2, Qt::AlignHCenter);

    onClick(answers->ok, [this] {
        setReminderWanted(!ChkRemind->isChecked());
        unload<frmRemind>();
    });
    onClick(answers->cancel, [] { unload<frmRemind>(); });
}
