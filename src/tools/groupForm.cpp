#include "tools/groupForm.h"

#include "choices/fieldChoice.h"
#include "choices/toolDialog.h"

#include <QComboBox>
#include <QLayout>

using namespace Qt::StringLiterals;

groupForm::groupForm()
    : AnswerDialog(new AnswerButtons)
    , groupCombo(fieldChoice("groupCombo"))
{
    setObjectName(u"groupForm"_s);
    setWindowTitle(u"Group Cards"_s);
    layOutTool(*this, {u"Group ?"_s, u"menuGroup"_s}, labelledChoice(u"&Group by:"_s, groupCombo));
}

void groupForm::prepare()
{
    fillFieldChoice(*groupCombo);
    groupCombo->setFocus();
}
