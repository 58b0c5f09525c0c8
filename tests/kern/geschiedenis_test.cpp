#include "desktopAlgemeen.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace {

wxFileName map(const char* pad)
{
    return wxFileName::DirName(pad);
}

std::vector<wxString> paden(const GeschiedenisLijst<wxFileName>& lijst)
{
    std::vector<wxString> uit;
    for (const wxFileName& f : lijst.geefVoorwerpen())
        uit.push_back(f.GetFullPath());
    return uit;
}

} // namespace

TEST(GeschiedenisLijst, AppendMovesTheIndexOnePastTheEnd)
{
    GeschiedenisLijst<wxFileName> lijst;
    lijst.voegToe(map("/a"));
    EXPECT_EQ(lijst.geefAantal(), 1u);
    EXPECT_EQ(lijst.geefIndex(), 1u);
    lijst.voegToe(map("/b"));
    lijst.voegToe(map("/c"));
    EXPECT_EQ(paden(lijst), (std::vector<wxString>{"/a/", "/b/", "/c/"}));
    EXPECT_EQ(lijst.geefIndex(), 3u);
}

TEST(GeschiedenisLijst, TheSameLocationOnlyBecomesCurrent)
{
    GeschiedenisLijst<wxFileName> lijst;
    lijst.voegToe(map("/a"));
    lijst.voegToe(map("/b"));
    lijst.voegToe(map("/a/"));
    EXPECT_EQ(lijst.geefAantal(), 2u);
    EXPECT_EQ(lijst.geefIndex(), 0u);
    EXPECT_EQ(lijst.geefHuidigVoorwerp().GetFullPath(), "/a/");
}

TEST(GeschiedenisLijst, InsideTheListANewLocationLandsBeforeThePreviousEntry)
{
    // A, B, C; back twice (index 1); then D goes to position 0 and the
    // index, still 1, designates A.
    GeschiedenisLijst<wxFileName> lijst;
    lijst.voegToe(map("/A"));
    lijst.voegToe(map("/B"));
    lijst.voegToe(map("/C"));
    lijst.zetIndex(1);
    lijst.voegToe(map("/D"));
    EXPECT_EQ(paden(lijst), (std::vector<wxString>{"/D/", "/A/", "/B/", "/C/"}));
    EXPECT_EQ(lijst.geefIndex(), 1u);
    EXPECT_EQ(lijst.geefHuidigVoorwerp().GetFullPath(), "/A/");
}

TEST(GeschiedenisLijst, AtTheLastPositionOrAtZeroItAppends)
{
    GeschiedenisLijst<wxFileName> lijst;
    lijst.voegToe(map("/A"));
    lijst.voegToe(map("/B"));
    lijst.zetIndex(1); // the last position: not below count - 1
    lijst.voegToe(map("/C"));
    EXPECT_EQ(paden(lijst), (std::vector<wxString>{"/A/", "/B/", "/C/"}));
    EXPECT_EQ(lijst.geefIndex(), 2u);

    lijst.zetIndex(0);
    lijst.voegToe(map("/D"));
    EXPECT_EQ(paden(lijst).back(), "/D/");
    EXPECT_EQ(lijst.geefIndex(), 1u);
}

TEST(GeschiedenisLijst, TheCurrentEntryIsBoundsChecked)
{
    GeschiedenisLijst<wxFileName> lijst;
    EXPECT_THROW(lijst.geefHuidigVoorwerp(), std::out_of_range);
    lijst.voegToe(map("/a"));
    EXPECT_THROW(lijst.geefHuidigVoorwerp(), std::out_of_range); // index 1 after the append
    lijst.zetIndex(0);
    EXPECT_NO_THROW(lijst.geefHuidigVoorwerp());
}

TEST(GeschiedenisLijst, WorksForPlainValuesToo)
{
    GeschiedenisLijst<int> lijst;
    lijst.voegToe(5);
    lijst.voegToe(7);
    lijst.voegToe(5);
    EXPECT_EQ(lijst.geefAantal(), 2u);
    EXPECT_EQ(lijst.geefHuidigVoorwerp(), 5);
}
