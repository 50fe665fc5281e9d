#include "tools/conditions.h"

#include "core/session.h"
#include "platform/errors.h"
#include "support/freshStart.h"

using Conditions = Fresh;

TEST_F(Conditions, ReadTheFieldFromTheTagAndRefuseOneOutsideTheTable)
{
    session.fieldType[2] = QStringLiteral("123");
    session.cardValue[4][2] = QStringLiteral("7");
    session.findRow[2] = {QStringLiteral("2"), {}, QStringLiteral("="), QStringLiteral("7")};
    EXPECT_TRUE(testCondition(2, 4));
    EXPECT_THROW(testCondition(2, 101), RuntimeError);
    session.findRow[2].fieldTag = QStringLiteral("13");
    EXPECT_THROW(testCondition(2, 4), RuntimeError);
}

TEST_F(Conditions, OnlyTheCharactersOfNumbersMayBeTyped)
{
    EXPECT_EQ(filterNumeric(QStringLiteral("a+1,2.3-x")), QStringLiteral("+12.3-"));
}
