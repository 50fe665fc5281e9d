#include "editing/design.h"

#include "core/session.h"
#include "store/settings.h"

namespace {

QString statusOption(const QString& section, const QString& absent)
{
    return readSetting(settingsFile(), section, QStringLiteral("Status"), absent);
}

void setStatusOption(const QString& section, const QString& value)
{
    writeSetting(settingsFile(), section, QStringLiteral("Status"), value);
}

} // namespace

void addField()
{
    if (session.numFields < session.maxFields)
        ++session.numFields;
}

void removeField()
{
    if (session.numFields >= 2)
        --session.numFields;
}

QString fieldTypeWord(int f)
{
    const QString text = QStringLiteral("Abc");
    return session.fieldType[f] == text ? text : QStringLiteral("123");
}

bool readOnlyMayChange()
{
    return statusOption(QStringLiteral("RO"), QStringLiteral("RW")) != QLatin1String("RO");
}

void acceptDesign()
{
    session.databaseStatus = session.designReadOnly ? QStringLiteral("RO") : QStringLiteral("RW");
    setStatusOption(QStringLiteral("Database"), session.databaseStatus);
}

bool reminderWanted()
{
    return statusOption(QStringLiteral("Remind"), QStringLiteral("0")) == QLatin1String("1");
}

void setReminderWanted(bool wanted)
{
    setStatusOption(QStringLiteral("Remind"), wanted ? QStringLiteral("1") : QStringLiteral("0"));
}
