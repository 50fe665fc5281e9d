#include "options/aboutPage.h"

#include "controls/dialogParts.h"
#include "core/title.h"
#include "options/credits.h"
#include "platform/desktop.h"
#include "store/options.h"

#include <QBoxLayout>
#include <QKeyEvent>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int stepTime = 50; // ms
constexpr int keyStep = 20;  // pixels
constexpr int listWidth = 270;
constexpr QSize pictureSize(72, 72);

QPushButton* link(const char* name, const QString& address)
{
    auto* button = named(new QPushButton(address), name);
    button->setProperty("role", u"link"_s);
    button->setFlat(true);
    button->setCursor(Qt::PointingHandCursor);
    return button;
}

void openAddress(const QString& address)
{
    desktop.sound.beep();
    if (desktop.boxes.ask(u"Confirm"_s, u"Do you have internet connection on this machine?"_s))
        withErrorBox([&] { desktop.programs.openLink(address); });
}

} // namespace

ScrollingList::ScrollingList()
    : lblTeam(named(words(credits()), "lblTeam"))
    , Timer3(named(new QTimer(this), "Timer3"))
{
    setObjectName(u"Pic3"_s);
    setFixedWidth(listWidth);
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(u"Made with the help of"_s);
    setAccessibleDescription(lblTeam->text());
    lblTeam->setParent(this);
    lblTeam->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    Timer3->setInterval(stepTime);
    connect(Timer3, &QTimer::timeout, this, &ScrollingList::step);
}

void ScrollingList::begin()
{
    if (read(option::motion) == "0"_L1)
        return;
    errands.send([asked = desktop.screen.reducedMotion](const Errands::Forgotten&) { return asked(); },
                 [this](bool still) {
                     if (!still)
                         Timer3->start();
                 });
}

void ScrollingList::step()
{
    if (underMouse() || hasFocus())
        return;
    const int top = lblTeam->y() - 1;
    lblTeam->move(lblTeam->x(), top <= -lblTeam->height() ? height() : top);
}

void ScrollingList::moveBy(int pixels)
{
    const int lowest = std::min(0, height() - lblTeam->height());
    lblTeam->move(lblTeam->x(), std::clamp(lblTeam->y() + pixels, lowest, 0));
}

void ScrollingList::resizeEvent(QResizeEvent*)
{
    const int margin = frameWidth() + 4;
    const int inner = width() - 2 * margin;
    lblTeam->setGeometry(margin, std::min(lblTeam->y(), height()), inner, lblTeam->heightForWidth(inner));
}

void ScrollingList::wheelEvent(QWheelEvent* event)
{
    moveBy(event->angleDelta().y() / 3);
    event->accept();
}

void ScrollingList::keyPressEvent(QKeyEvent* event)
{
    const int key = event->key();
    if (key == Qt::Key_Up || key == Qt::Key_Down)
        moveBy(key == Qt::Key_Up ? keyStep : -keyStep);
    else if (key == Qt::Key_PageUp || key == Qt::Key_PageDown)
        moveBy((key == Qt::Key_PageUp ? 1 : -1) * (height() - keyStep));
    else
        QFrame::keyPressEvent(event);
}

AboutPage::AboutPage()
    : Pic3(new ScrollingList)
    , lblVer(named(words(releaseWithComment()), "lblVer"))
    , HP1(link("HP1", makersPage()))
    , HP2(link("HP2", makersMail()))
{
    auto* column = new QVBoxLayout;
    column->addStretch();
    column->addWidget(pictureLabel(u"tallymoor"_s, pictureSize), 0, Qt::AlignLeft);
    column->addWidget(named(words(u"Tallymoor"_s), "product"));
    column->addWidget(lblVer);
    column->addSpacing(12);
    column->addWidget(named(words(makersLine()), "maker"));
    column->addWidget(HP1, 0, Qt::AlignLeft);
    column->addWidget(HP2, 0, Qt::AlignLeft);
    column->addStretch();
    auto* row = new QHBoxLayout(this);
    row->addWidget(Pic3);
    row->addSpacing(12);
    row->addLayout(column, 1);
    onClickLater(HP1, [] { openAddress(makersPage()); });
    onClickLater(HP2, [] { openAddress(u"mailto:"_s + makersMail()); });
}
