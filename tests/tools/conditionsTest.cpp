#include "tools/conditions.h"

#include "core/session.h"
#include "platform/errors.h"
#include "support/freshStart.h"

using namespace Qt::StringLiterals;

using Conditions = Fresh;

TEST_F(Conditions, ReadTheFieldFromTheTagAndRefuseOneOutsideTheTable)
{
    session.fieldType[2] = u"123"_s;
    session.cardValue[4][2] = u"7"_s;
    session.findRow[2] = {u"2"_s, {}, u"="_s, u"7"_s};
    EXPECT_TRUE(testCondition(2, 4));
    EXPECT_THROW(testCondition(2, 101), RuntimeError);
    session.findRow[2].fieldTag = u"13"_s;
    EXPECT_THROW(testCondition(2, 4), RuntimeError);
}

TEST_F(Conditions, OnlyTheCharactersOfNumbersMayBeTyped)
{
    EXPECT_EQ(filterNumeric(u"a+1,2.3-x"_s), u"+12.3-"_s);
}
