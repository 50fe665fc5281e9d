#include "editing/design.h"

#include "core/mainView.h"
#include "core/session.h"
#include "store/options.h"

#include <utility>

using namespace Qt::StringLiterals;

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
    const QString text = u"Abc"_s;
    return session.fieldType[f] == text ? text : u"123"_s;
}

bool readOnlyMayChange()
{
    session.options.roOptionStatus = read(option::readOnly);
    return session.options.roOptionStatus != "RO"_L1;
}

void acceptDesign()
{
    session.databaseStatus = session.design.ChkRD ? u"RO"_s : u"RW"_s;
    write(option::databaseStatus, session.databaseStatus);
    if (session.design.ChkRD && std::exchange(session.board.BigBin.visible, false))
        mainView.redrawBoard();
}

bool reminderWanted() { return read(option::remindOfAdding) == "1"_L1; }

void setReminderWanted(bool wanted) { write(option::remindOfAdding, wanted ? u"1"_s : u"0"_s); }
