#include "platform/motion.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int patience = 1000; // ms

/// A setting of a desktop, and its value when nothing is to move.
struct MotionSetting {
    QString group;
    QString key;
    QVariant still;
};

/// The value of a setting, invalid where the desktop has none.
QVariant settingOf(const MotionSetting& setting)
{
    QDBusMessage question = QDBusMessage::createMethodCall(u"org.freedesktop.portal.Desktop"_s,
                                                           u"/org/freedesktop/portal/desktop"_s,
                                                           u"org.freedesktop.portal.Settings"_s, u"Read"_s);
    question << setting.group << setting.key;
    const QDBusMessage answer = QDBusConnection::sessionBus().call(question, QDBus::Block, patience);
    QVariant value = answer.type() == QDBusMessage::ReplyMessage ? answer.arguments().value(0) : QVariant();
    while (value.canConvert<QDBusVariant>()) // one inside the other
        value = value.value<QDBusVariant>().variant();
    return value;
}

} // namespace

bool desktopWantsLessMotion()
{
    const MotionSetting settings[] = {
        {u"org.gnome.desktop.interface"_s, u"enable-animations"_s, false},
        {u"org.kde.kdeglobals.KDE"_s, u"AnimationDurationFactor"_s, u"0"_s},
    };
    return std::any_of(std::begin(settings), std::end(settings), [](const MotionSetting& setting) {
        const QVariant value = settingOf(setting);
        return value.isValid() && value == setting.still;
    });
}
