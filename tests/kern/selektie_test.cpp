#include "kern/selektie.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

struct Verloop {
    wxArrayString nieuw;
    std::vector<wxString> dubbel;
};

Verloop voegToe(kern::BronSelektie& selektie, const std::vector<wxString>& paden)
{
    wxArrayString invoer;
    for (const wxString& p : paden)
        invoer.Add(p);
    Verloop v;
    v.nieuw = selektie.voegToe(invoer, [&v](const wxString& p) { v.dubbel.push_back(p); });
    return v;
}

std::vector<wxString> geefLijst(const kern::BronSelektie& s)
{
    std::vector<wxString> lijst;
    for (size_t i = 0; i < s.aantal(); ++i)
        lijst.push_back(s.geef(i));
    return lijst;
}

using Paden = std::vector<wxString>;

TEST(BronSelektie, DuplicatesAreExactWholeCaseSensitiveStrings)
{
    kern::BronSelektie s;
    const Verloop v = voegToe(s, {"/src/a.c", "/src/A.c", "/src/a.c ", "/src/a", "/src/a.cpp", "/SRC/a.c"});
    EXPECT_EQ(Paden(v.nieuw.begin(), v.nieuw.end()),
              (Paden{"/src/a.c", "/src/A.c", "/src/a.c ", "/src/a", "/src/a.cpp", "/SRC/a.c"}));
    EXPECT_TRUE(v.dubbel.empty());
    EXPECT_TRUE(s.bevat("/src/A.c"));
    EXPECT_FALSE(s.bevat("/src/a.C"));
}

TEST(BronSelektie, DuplicatesAreReportedInOrderAndOnlyNewPathsAppended)
{
    kern::BronSelektie s;
    voegToe(s, {"/p/b.c", "/p/a.c"});
    // a path repeated inside one batch is a duplicate from its second time on
    const Verloop v = voegToe(s, {"/p/c.c", "/p/a.c", "/p/c.c", "/p/d.h", "/p/b.c", "/p/c.c"});
    EXPECT_EQ(Paden(v.nieuw.begin(), v.nieuw.end()), (Paden{"/p/c.c", "/p/d.h"}));
    EXPECT_EQ(v.dubbel, (Paden{"/p/a.c", "/p/c.c", "/p/b.c", "/p/c.c"}));
    EXPECT_EQ(geefLijst(s), (Paden{"/p/b.c", "/p/a.c", "/p/c.c", "/p/d.h"}));
}

TEST(BronSelektie, TheSameBatchTwiceAddsNothingAndReportsEveryPath)
{
    kern::BronSelektie s;
    Paden batch;
    for (int i = 0; i < 3000; ++i)
        batch.push_back(wxString::Format("/usr/src/linux/f%d.c", i));
    EXPECT_EQ(voegToe(s, batch).nieuw.size(), 3000u);
    const Verloop tweede = voegToe(s, batch);
    EXPECT_EQ(tweede.nieuw.size(), 0u);
    EXPECT_EQ(tweede.dubbel, batch);
    EXPECT_EQ(s.aantal(), 3000u);
}

TEST(BronSelektie, ClearingEmptiesListAndDuplicateCheck)
{
    kern::BronSelektie s;
    voegToe(s, {"/p/a.c", "/p/b.c"});
    s.wis();
    EXPECT_EQ(s.aantal(), 0u);
    EXPECT_FALSE(s.bevat("/p/a.c"));
    const Verloop v = voegToe(s, {"/p/b.c", "/p/a.c"});
    EXPECT_EQ(Paden(v.nieuw.begin(), v.nieuw.end()), (Paden{"/p/b.c", "/p/a.c"}));
    EXPECT_TRUE(v.dubbel.empty());
    // no reporter given: duplicates are still left out
    EXPECT_EQ(s.voegToe(wxArrayString(1, "/p/a.c"), nullptr).size(), 0u);
    EXPECT_EQ(s.aantal(), 2u);
}

TEST(BronSelektie, OnlyPathsWithoutSemicolonOrBackslashCanBeNamedInCMake)
{
    for (const char* pad : {"/p/met spatie.c", "/p/haak(1).c", "/p/geld$.c", "/p/hek#.c", "/p/\"a\".c", "/p/caf\u00e9.c"})
        EXPECT_TRUE(kern::kanCMakeNoemen(wxString::FromUTF8(pad))) << pad;
    for (const char* pad : {"/p/a;b.c", "/p;q/a.c", "/p/a\\b.c"})
        EXPECT_FALSE(kern::kanCMakeNoemen(pad)) << pad;
    EXPECT_EQ(kern::geefOvergeslagenMelding(3),
              "3 names were left out: a CMake file cannot name a path that is not valid UTF-8 or that contains "
              "\";\" or \"\\\".");
}

} // namespace

