#include "support/standschakelaar.h"

#include <gtest/gtest.h>

TEST(StandSchakelaar, ExclusiveOrFlipAndLock)
{
    EXPECT_EQ(StandSchakelaar(false, false).stand(), 0);
    EXPECT_EQ(StandSchakelaar(true, false).stand(), 1);
    EXPECT_EQ(StandSchakelaar(false, true).stand(), 1);
    EXPECT_EQ(StandSchakelaar(true, true).stand(), 0);

    StandSchakelaar s;
    EXPECT_FALSE(s.isVergrendeld());
    EXPECT_EQ(s.om(), 1);
    EXPECT_TRUE(s.boolean());
    s.zetVergrendeld(true);
    s = false;
    EXPECT_EQ(s.om(), 1); // locked: neither assignment nor flip
    s.zetVergrendeld(false);
    s = false;
    EXPECT_EQ(s.stand(), 0);
    EXPECT_FALSE(s.boolean());
    EXPECT_EQ(s.om(), 1);
    EXPECT_EQ(s.om(), 0);
}
