#include "tools/sortForm.h"

#include "choices/fieldChoice.h"
#include "choices/toolDialog.h"
#include "controls/dialogParts.h"
#include "core/session.h"
#include "platform/errors.h"
#include "platform/picture.h"

#include <QComboBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QRadioButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

QRadioButton* direction(const char* name, const QString& text, const QString& icon, const QString& word)
{
    auto* option = named(new QRadioButton(text), name);
    option->setIcon(QIcon(picturePath(icon)));
    option->setIconSize({40, 40});
    QObject::connect(option, &QRadioButton::toggled, option, [word](bool chosen) {
        if (chosen)
            session.sortDirection = word;
    });
    return option;
}

} // namespace

sortForm::sortForm()
    : AnswerDialog(new AnswerButtons)
    , sortCombo(fieldChoice("sortCombo"))
    , sortOptUp(direction("sortOpt0", u"Going &Up"_s, u"up"_s, u"ABC"_s))
    , sortOptDown(direction("sortOpt1", u"Going &Down"_s, u"down"_s, u"CBA"_s))
{
    setObjectName(u"sortForm"_s);
    setWindowTitle(u"Sort Cards"_s);

    auto* Frame1 = named(new QGroupBox, "Frame1");
    Frame1->setAccessibleName(u"Direction"_s);
    auto* directions = new QVBoxLayout(Frame1);
    directions->addWidget(sortOptUp);
    directions->addWidget(sortOptDown);

    auto* middle = new QHBoxLayout;
    middle->addLayout(labelledChoice(u"&Sort by:"_s, sortCombo));
    middle->addWidget(Frame1);

    layOutTool(*this, {u"Sort ?"_s, u"menuSort"_s}, middle);
}

void sortForm::prepare()
{
    fillFieldChoice(*sortCombo);
    sortCombo->setFocus();
    (session.sortDirection == "CBA"_L1 ? sortOptDown : sortOptUp)->setChecked(true);
    letTabFindTheChosen({sortOptUp, sortOptDown});
}
