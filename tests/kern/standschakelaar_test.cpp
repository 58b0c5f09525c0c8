#include "support/standschakelaar.h"

#include <gtest/gtest.h>

TEST(StandSchakelaar, ExclusiveOrFlipAndLock)
{
    for (int a = 0; a < 4; ++a)
        EXPECT_EQ(StandSchakelaar(a & 1, a & 2).stand(), (a == 1 || a == 2) ? 1 : 0) << a;
    StandSchakelaar s;
    EXPECT_FALSE(s.isVergrendeld());
    EXPECT_EQ(s.om(), 1);
    EXPECT_TRUE(s.boolean());
    s.zetVergrendeld(true);
    s = false;
    EXPECT_EQ(s.om(), 1); // locked: neither assignment nor flip
    s.zetVergrendeld(false);
    s = false;
    EXPECT_FALSE(s.boolean());
    EXPECT_EQ(s.stand() * 100 + s.om() * 10 + s.om(), 10);
}
