#include "player/playerPages.h"

#include "controls/dialogParts.h"
#include "platform/picture.h"
#include "player/film.h"
#include "player/stage.h"

#include <QGridLayout>
#include <QIcon>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize signSize(96, 96);

const struct {
    const char* key;
    const char* does;
} keys[] = {
    {"Space", "stop for a moment, and go on"},
    {"←", "one step back"},
    {"→", "one step on"},
    {"Home", "start again"},
    {"Esc", "close"},
};

QPushButton* largeButton(const char* name, const char* icon, const QString& text, const char* role,
                         const std::function<void()>& handler)
{
    auto* button = named(new QPushButton(QIcon(picturePath(QLatin1String(icon))), text), name);
    button->setProperty("role", QLatin1String(role));
    button->setAutoDefault(true); // Return presses it
    onClick(button, handler);
    return button;
}

QLayout* tableOfKeys()
{
    auto* table = new QGridLayout;
    table->setHorizontalSpacing(14);
    table->setVerticalSpacing(8);
    table->setColumnStretch(1, 1);
    for (const auto& [key, does] : keys) {
        const int row = table->rowCount();
        table->addWidget(words(QString::fromUtf8(key), "key"), row, 0, Qt::AlignRight);
        table->addWidget(words(QLatin1String(does)), row, 1);
    }
    return table;
}

} // namespace

QWidget* titlePage(const Lesson& lesson, const std::function<void()>& play,
                   const std::function<void()>& close)
{
    Film film(lesson);
    film.show({});
    auto* picture = new Stage;
    picture->showScreen(film.screen());

    auto* playButton = largeButton("play", "resume", u"Play"_s, "ok", play);
    auto* closeButton = largeButton("leave", "no0", u"Close"_s, "cancel", close);
    auto* side = new QVBoxLayout;
    side->setSpacing(12);
    side->addStretch(1);
    side->addWidget(named(words(lesson.title), "lessonTitle"));
    side->addWidget(playButton);
    side->addSpacing(8);
    side->addLayout(tableOfKeys());
    side->addStretch(1);
    side->addWidget(closeButton, 0, Qt::AlignRight);

    auto* page = new QWidget;
    auto* row = new QHBoxLayout(page);
    row->setContentsMargins(24, 20, 24, 20);
    row->setSpacing(24);
    row->addWidget(picture, 5);
    row->addLayout(side, 3);
    page->setFocusProxy(playButton);
    return page;
}

QWidget* faultPage(const QString& why, const std::function<void()>& close)
{
    auto* page = new QWidget;
    auto* closeButton = largeButton("leave", "no0", u"Close"_s, "cancel", close);
    const QString sorry = u"Sorry! This lesson can't be played."_s;
    closeButton->setAccessibleDescription(sorry + u' ' + why);
    auto* column = new QVBoxLayout(page);
    column->setContentsMargins(40, 24, 40, 24);
    column->setSpacing(14);
    column->addStretch(1);
    column->addWidget(pictureLabel(u"exclamation"_s, signSize), 0, Qt::AlignHCenter);
    for (QLabel* line : {words(sorry, "heading"), words(u"Please tell your teacher."_s, "subHeading"),
                         named(words(why, "explanation"), "why")}) {
        line->setAlignment(Qt::AlignHCenter);
        column->addWidget(line);
    }
    column->addSpacing(16);
    column->addWidget(closeButton, 0, Qt::AlignHCenter);
    column->addStretch(2);
    page->setFocusProxy(closeButton);
    return page;
}
