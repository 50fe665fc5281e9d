#include "platform/dialogParts.h"

#include "platform/desktop.h"
#include "platform/errors.h"
#include "platform/picture.h"

#include <QApplication>
#include <QIcon>

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

QPushButton* videoButton(const QString& tutorial)
{
    auto* button = named(new QPushButton(QStringLiteral("Watch a video")), "BtnVid");
    button->setIcon(QIcon(picturePath(QStringLiteral("welcomeVideo"))));
    button->setProperty("role", QStringLiteral("video"));
    onClick(button, [tutorial] { ignoringErrors({[&] { startTutorial(tutorial); }}); });
    return button;
}

void startTutorial(const QString& tutorial)
{
    desktop.startProgram(desktop.programFolder() + QStringLiteral("/Videos/") + tutorial +
                             QStringLiteral(".exe"),
                         {QStringLiteral("/shc")});
}
