#include "analysis/refusals.h"

#include "platform/errors.h"

using namespace Qt::StringLiterals;

void refuseReport()
{
    refuse(u"Making Reports"_s,
           u"Sorry! You need to add a card or enter values before you can make Reports."_s);
}

void refuseStatistics()
{
    refuse(u"Making Statistics"_s,
           u"Sorry! You need to add a card or enter values before you can make Statistics."_s);
}

void refuseGraph()
{
    refuse(u"Making Graphs"_s,
           u"Sorry! You need to add a card or enter values before you can make Graphs."_s);
}

void refuseGraphOfSoMany()
{
    refuse(u"Making Graphs"_s,
           u"Sorry! You can make graphs up to 40 cards. Delete some cards and try again."_s);
}
