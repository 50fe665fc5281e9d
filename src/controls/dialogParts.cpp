#include "controls/dialogParts.h"

#include "controls/balloon.h"
#include "platform/desktop.h"
#include "platform/errors.h"
#include "platform/picture.h"

#include <QApplication>
#include <QDateTime>
#include <QHBoxLayout>
#include <QIcon>

using namespace Qt::StringLiterals;

namespace {

constexpr int untilPlayerShows = 3; // seconds

} // namespace

QLabel* words(const QString& text, const char* role)
{
    auto* label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setProperty("role", QLatin1String(role));
    return label;
}

QLabel* pictureLabel(const QString& name, QSize size)
{
    auto* label = new QLabel;
    label->setPixmap(picture(name, size));
    return label;
}

QPushButton* iconButton(const QString& picture, const QString& meaning, const QString& hint)
{
    auto* button = new QPushButton(QIcon(picturePath(picture)), QString());
    button->setAccessibleName(meaning);
    if (!hint.isEmpty())
        giveHint(*button, hint);
    return button;
}

void keepPlaceWhenHidden(QWidget& widget)
{
    QSizePolicy policy = widget.sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    widget.setSizePolicy(policy);
}

void onClick(QAbstractButton* button, const std::function<void()>& handler)
{
    QObject::connect(button, &QAbstractButton::clicked, button, [handler] { guarded(handler); });
}

void onClickLater(QAbstractButton* button, const std::function<void()>& handler)
{
    const auto ifStillMeant = [button, handler] {
        const QWidget* dialog = QApplication::activeModalWidget();
        if (button->isVisible() && (!dialog || dialog == button->window()))
            guarded(handler);
    };
    QObject::connect(button, &QAbstractButton::clicked, button, ifStillMeant, Qt::QueuedConnection);
}

void onToggle(QAbstractButton* button, const std::function<void(bool)>& handler)
{
    QObject::connect(button, &QAbstractButton::toggled, button,
                     [handler](bool ticked) { guarded([&] { handler(ticked); }); });
}

void letTabFindTheChosen(std::initializer_list<QAbstractButton*> options)
{
    for (QAbstractButton* option : options)
        option->setFocusPolicy(option->isChecked() ? Qt::StrongFocus : Qt::ClickFocus);
}

void chainTabs(std::initializer_list<QWidget*> controls)
{
    QWidget* before = nullptr;
    for (QWidget* next : controls) {
        if (before)
            QWidget::setTabOrder(before, next);
        before = next;
    }
}

QLayout* answerRow(QWidget* answers, QWidget* help)
{
    auto* row = new QHBoxLayout;
    if (help)
        row->addWidget(help);
    row->addStretch(1);
    row->addWidget(answers);
    return row;
}

QPushButton* videoButton(const QString& tutorial)
{
    auto* button = named(new QPushButton(u"Watch a video"_s), "BtnVid");
    button->setIcon(QIcon(picturePath(u"welcomeVideo"_s)));
    button->setProperty("role", u"video"_s);
    onClick(button, [tutorial, pressed = QDateTime()]() mutable {
        if (pressed.isValid() && pressed.secsTo(desktop.now()) < untilPlayerShows)
            return; // a child clicks again while the player starts
        pressed = desktop.now();
        ignoringErrors({[&] { startTutorial(tutorial); }});
    });
    return button;
}

QString tutorialProgram(const QString& tutorial)
{
    return desktop.files.programFolder() + u"/Videos/"_s + tutorial + u".exe"_s;
}

void startTutorial(const QString& tutorial)
{
    desktop.programs.start(tutorialProgram(tutorial), {u"/shc"_s});
}
