#include "tools/sortForm.h"

#include "core/session.h"
#include "platform/dialogParts.h"
#include "platform/errors.h"
#include "platform/picture.h"
#include "tools/fieldChoice.h"
#include "tools/toolDialog.h"

#include <QComboBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QRadioButton>
#include <QVBoxLayout>

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
    , sortOptUp(
          direction("sortOpt0", QStringLiteral("Going &Up"), QStringLiteral("up"), QStringLiteral("ABC")))
    , sortOptDown(
          direction("sortOpt1", QStringLiteral("Going &Down"), QStringLiteral("down"), QStringLiteral("CBA")))
{
    setObjectName(QStringLiteral("sortForm"));
    setWindowTitle(QStringLiteral("Sort Cards"));

    auto* Frame1 = named(new QGroupBox, "Frame1");
    Frame1->setAccessibleName(QStringLiteral("Direction"));
    auto* directions = new QVBoxLayout(Frame1);
    directions->addWidget(sortOptUp);
    directions->addWidget(sortOptDown);

    auto* middle = new QHBoxLayout;
    middle->addLayout(labelledChoice(QStringLiteral("&Sort by:"), sortCombo));
    middle->addWidget(Frame1);

    layOutTool(*this, *answers,
               {QStringLiteral("Sort ?"), QStringLiteral("menuSort"), QStringLiteral("Sorting")}, middle);
}

void sortForm::prepare()
{
    fillFieldChoice(*sortCombo);
    sortCombo->setFocus();
    (session.sortDirection == QLatin1String("CBA") ? sortOptDown : sortOptUp)->setChecked(true);
    letTabFindTheChosen({sortOptUp, sortOptDown});
}
