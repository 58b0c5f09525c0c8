#include "desktopAlgemeen.h"

#include <gtest/gtest.h>

// Where a new location goes; the list shown as its entries and "@" the index.
TEST(GeschiedenisLijst, WhereANewLocationGoes)
{
    const struct { int index; const char *map, *lijst; } stappen[] = { // index: set before adding, or -1
        {-1, "/A", "/A/ @1"}, {-1, "/B", "/A/ /B/ @2"}, {-1, "/C", "/A/ /B/ /C/ @3"}, // the index one past the end
        {-1, "/B/", "/A/ /B/ /C/ @1"}, {-1, "/D", "/D/ /A/ /B/ /C/ @1"}, // known: only current; inside: before the previous
        {3, "/E", "/D/ /A/ /B/ /C/ /E/ @4"}, {0, "/F", "/D/ /A/ /B/ /C/ /E/ /F/ @1"}, // at the end and at 0: appended
    };
    GeschiedenisLijst<wxFileName> lijst;
    EXPECT_THROW(lijst.geefHuidigVoorwerp(), std::out_of_range);
    for (const auto& stap : stappen) {
        lijst.zetIndex(stap.index >= 0 ? static_cast<std::size_t>(stap.index) : lijst.geefIndex());
        lijst.voegToe(wxFileName::DirName(stap.map));
        wxString uit;
        for (const wxFileName& f : lijst.geefVoorwerpen())
            uit << f.GetFullPath() << " ";
        EXPECT_EQ(uit << "@" << lijst.geefIndex(), stap.lijst) << stap.map;
    }
    EXPECT_EQ(lijst.geefHuidigVoorwerp().GetFullPath(), "/A/");
}
