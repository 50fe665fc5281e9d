#include "tools/moveForm.h"

#include "platform/dialogParts.h"
#include "platform/errors.h"
#include "platform/picture.h"
#include "tools/arranging.h"
#include "tools/toolDialog.h"

#include <QComboBox>
#include <QFrame>
#include <QHBoxLayout>
#include <QStyledItemDelegate>

namespace {

constexpr QSize boxSize(32, 20);
constexpr QPoint previewCorner(24, 60); // of the dialog's own pixels, in which the preview's places are told
constexpr QSize previewSize(280, 192);

} // namespace

moveForm::moveForm()
    : AnswerDialog(new AnswerButtons)
    , moveCombo(named(new QComboBox, "moveCombo"))
    , preview(named(new QFrame, "preview"))
{
    setObjectName(QStringLiteral("moveForm"));
    setWindowTitle(QStringLiteral("Arrange Cards"));
    moveCombo->setItemDelegate(new QStyledItemDelegate(moveCombo));
    moveCombo->setAccessibleName(QStringLiteral("Arrange"));
    moveCombo->setIconSize({32, 32});
    preview->setFixedSize(previewSize);
    for (int i = 0; i < 6; ++i) {
        auto* box = new QFrame(preview);
        box->setObjectName(QStringLiteral("smallBox%1").arg(i));
        box->setFixedSize(boxSize);
        smallBox.append(box);
    }
    connect(moveCombo, &QComboBox::currentIndexChanged, this, [this] { guarded([this] { showPreview(); }); });

    auto* middle = new QHBoxLayout;
    middle->addLayout(labelledChoice(QStringLiteral("&Arrange:"), moveCombo));
    middle->addWidget(preview);
    layOutTool(*this, *answers,
               {QStringLiteral("Arrange ?"), QStringLiteral("menuArrangeCards"), QStringLiteral("Arranging")},
               middle);
}

void moveForm::prepare()
{
    const QSignalBlocker quiet(moveCombo);
    moveCombo->clear();
    int number = 0;
    for (const QString& word : arrangements())
        moveCombo->addItem(QIcon(picturePath(QStringLiteral("layout%1").arg(++number))), word);
    moveCombo->setCurrentIndex(0);
    moveCombo->setFocus();
    showPreview();
}

QString moveForm::chosen() const { return moveCombo->currentText(); }

void moveForm::showPreview()
{
    const auto places = arrangementPreview(moveCombo->currentText());
    for (int i = 0; i < smallBox.size(); ++i)
        smallBox[i]->move(places[std::size_t(i)].toPoint() - previewCorner);
}
