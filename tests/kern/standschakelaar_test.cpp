#include "support/standschakelaar.h"

#include <gtest/gtest.h>

TEST(StandSchakelaar, ConstructorTakesTheExclusiveOr)
{
    EXPECT_EQ(StandSchakelaar(false, false).stand(), 0);
    EXPECT_EQ(StandSchakelaar(true, false).stand(), 1);
    EXPECT_EQ(StandSchakelaar(false, true).stand(), 1);
    EXPECT_EQ(StandSchakelaar(true, true).stand(), 0);
    EXPECT_FALSE(StandSchakelaar().isVergrendeld());
}

TEST(StandSchakelaar, OmFlipsAndReturnsTheNewState)
{
    StandSchakelaar s;
    EXPECT_EQ(s.om(), 1);
    EXPECT_TRUE(s.boolean());
    EXPECT_EQ(s.om(), 0);
    EXPECT_FALSE(s.boolean());
}

TEST(StandSchakelaar, LockStopsAssignmentAndFlip)
{
    StandSchakelaar s(true);
    s.zetVergrendeld(true);
    s = false;
    EXPECT_EQ(s.stand(), 1);
    EXPECT_EQ(s.om(), 1);
    s.zetVergrendeld(false);
    s = false;
    EXPECT_EQ(s.stand(), 0);
}
