#include "tools/moveForm.h"

#include "choices/toolDialog.h"
#include "controls/dialogParts.h"
#include "controls/dropDown.h"
#include "platform/errors.h"
#include "platform/picture.h"
#include "tools/arranging.h"

#include <QFrame>
#include <QHBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize boxSize(32, 20);
constexpr QPoint previewCorner(24, 60); // in dialog pixels, as are the places of preview()
constexpr QSize previewSize(280, 192);

} // namespace

moveForm::moveForm()
    : AnswerDialog(new AnswerButtons({"YesBut", u"OK"_s}, {"NoBut", u"Cancel"_s}))
    , moveCombo(named(new DropDown, "moveCombo"))
    , preview(named(new QFrame, "preview"))
{
    setObjectName(u"moveForm"_s);
    setWindowTitle(u"Arrange Cards"_s);
    moveCombo->setAccessibleName(u"Arrange"_s);
    moveCombo->setIconSize({32, 32});
    preview->setFixedSize(previewSize);
    for (int i = 0; i < 6; ++i) {
        auto* box = new QFrame(preview);
        box->setObjectName(u"smallBox%1"_s.arg(i));
        box->setFixedSize(boxSize);
        smallBox.append(box);
    }
    connect(moveCombo, &QComboBox::currentIndexChanged, this, [this] { guarded([this] { showPreview(); }); });

    auto* middle = new QHBoxLayout;
    middle->addLayout(labelledChoice(u"&Arrange:"_s, moveCombo));
    middle->addWidget(preview);
    layOutTool(*this, {u"Arrange ?"_s, u"menuArrangeCards"_s}, middle);
}

void moveForm::prepare()
{
    const QSignalBlocker quiet(moveCombo);
    moveCombo->clear();
    int number = 0;
    for (const QString& word : arrangements())
        moveCombo->addItem(QIcon(picturePath(u"layout%1"_s.arg(++number))), word);
    moveCombo->setCurrentIndex(0);
    moveCombo->setFocus();
    showPreview();
}

QString moveForm::chosen() const { return moveCombo->currentText(); }

void moveForm::showPreview()
{
    const auto places = arrangementPreview(moveCombo->currentText());
    for (int i = 0; i < smallBox.size(); ++i)
        smallBox[i]->move(places[i].toPoint() - previewCorner);
}
