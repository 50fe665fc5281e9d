#include "tools/groupForm.h"

#include "tools/fieldChoice.h"
#include "tools/toolDialog.h"

#include <QComboBox>
#include <QLayout>

groupForm::groupForm()
    : AnswerDialog(new AnswerButtons)
    , groupCombo(fieldChoice("groupCombo"))
{
    setObjectName(QStringLiteral("groupForm"));
    setWindowTitle(QStringLiteral("Group Cards"));
    layOutTool(*this, *answers,
               {QStringLiteral("Group ?"), QStringLiteral("menuGroup"), QStringLiteral("Grouping")},
               labelledChoice(QStringLiteral("&Group by:"), groupCombo));
}

void groupForm::prepare()
{
    fillFieldChoice(*groupCombo);
    groupCombo->setFocus();
}
