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

TEST(GeschiedenisLijst, WhereANewLocationGoes)
{
    GeschiedenisLijst<wxFileName> lijst;
    lijst.voegToe(map("/A"));
    EXPECT_EQ(lijst.geefIndex(), 1u); // one past the end
    lijst.voegToe(map("/B"));
    lijst.voegToe(map("/C"));
    EXPECT_EQ(paden(lijst), (std::vector<wxString>{"/A/", "/B/", "/C/"}));
    EXPECT_EQ(lijst.geefIndex(), 3u);

    // a known location only becomes current
    lijst.voegToe(map("/B/"));
    EXPECT_EQ(lijst.geefAantal(), 3u);
    EXPECT_EQ(lijst.geefIndex(), 1u);

    // inside the list a new one lands before the previous entry, and the
    // unchanged index then designates that entry
    lijst.voegToe(map("/D"));
    EXPECT_EQ(paden(lijst), (std::vector<wxString>{"/D/", "/A/", "/B/", "/C/"}));
    EXPECT_EQ(lijst.geefIndex(), 1u);
    EXPECT_EQ(lijst.geefHuidigVoorwerp().GetFullPath(), "/A/");

    // at the last position, or at 0, it is appended
    lijst.zetIndex(3);
    lijst.voegToe(map("/E"));
    lijst.zetIndex(0);
    lijst.voegToe(map("/F"));
    EXPECT_EQ(paden(lijst), (std::vector<wxString>{"/D/", "/A/", "/B/", "/C/", "/E/", "/F/"}));
    EXPECT_EQ(lijst.geefIndex(), 1u);
}

TEST(GeschiedenisLijst, TheCurrentEntryIsBoundsChecked)
{
    GeschiedenisLijst<wxFileName> lijst;
    EXPECT_THROW(lijst.geefHuidigVoorwerp(), std::out_of_range);
    lijst.voegToe(map("/a"));
    EXPECT_THROW(lijst.geefHuidigVoorwerp(), std::out_of_range); // index 1 after the append
    lijst.zetIndex(0);
    EXPECT_EQ(lijst.geefHuidigVoorwerp().GetFullPath(), "/a/");
}
