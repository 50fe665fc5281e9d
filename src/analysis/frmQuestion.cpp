#include "analysis/frmQuestion.h"

#include "controls/dialogParts.h"
#include "controls/forms.h"
#include "core/mainView.h"
#include "core/session.h"
#include "platform/owningWindow.h"

#include <QEvent>
#include <QPlainTextEdit>
#include <QWindow>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize firstSize(460, 400);
constexpr QSize leastSize(200, 170);
constexpr int fromEdges = 24; // of the main window, pixels

// In twips.
constexpr int besideBox = 400; // on both sides together
constexpr int aboveAndBelowBox = 1400;
constexpr int gap = 200; // around the box and above the button

} // namespace

frmQuestion::frmQuestion()
    : RTF1(named(new QPlainTextEdit(this), "RTF1"))
    , cmdOK(named(new QPushButton(u"OK"_s, this), "cmdOK"))
{
    setObjectName(u"frmQuestion"_s);
    setWindowTitle(u"Clues"_s);
    setWindowFlags(Qt::Dialog | Qt::WindowTitleHint | Qt::WindowCloseButtonHint | Qt::WindowStaysOnTopHint);
    RTF1->setReadOnly(true);
    RTF1->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    RTF1->setTabChangesFocus(true);
    RTF1->setAccessibleName(u"Clues"_s);
    cmdOK->setProperty("role", u"ok"_s);
    onClick(cmdOK, [] {
        unload<frmQuestion>();
        mainView.redrawBoard();
    });
    setMinimumSize(leastSize);
    resize(firstSize);
}

void frmQuestion::present(const QString& clues)
{
    RTF1->setPlainText(clues);
    if (const QWidget* owner = owningWindow(this); owner && !isVisible()) {
        winId(); // makes its window
        windowHandle()->setTransientParent(owner->windowHandle());
        // Beside the middle, where dialogs appear.
        move(owner->mapToGlobal(
            QPoint(std::max(0, owner->width() - width() - fromEdges), menuGreyLine + fromEdges)));
    }
    show();
    raise();
    activateWindow();
}

void frmQuestion::reject() { cmdOK->click(); }

void frmQuestion::resizeEvent(QResizeEvent*)
{
    const auto across = [](int twips) { return int(twips / session.twipsPerPixelX); };
    const auto down = [](int twips) { return int(twips / session.twipsPerPixelY); };
    RTF1->setGeometry(across(gap), down(gap), width() - across(besideBox), height() - down(aboveAndBelowBox));
    cmdOK->resize(cmdOK->sizeHint());
    cmdOK->move((width() - cmdOK->width()) / 2, RTF1->geometry().bottom() + 1 + down(gap));
}

/// A window that stays on top would lie over the dialogs that block it.
bool frmQuestion::event(QEvent* event)
{
    const bool unblocked = event->type() == QEvent::WindowUnblocked;
    if ((unblocked || event->type() == QEvent::WindowBlocked) && windowHandle())
        windowHandle()->setFlag(Qt::WindowStaysOnTopHint, unblocked);
    return QDialog::event(event);
}
