#include "desktopAlgemeen.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace {

// The entries and the index, as "/A/ /B/ @1".
wxString toon(const GeschiedenisLijst<wxFileName>& lijst)
{
    wxString uit;
    for (const wxFileName& f : lijst.geefVoorwerpen())
        uit << f.GetFullPath() << " ";
    return uit << "@" << lijst.geefIndex();
}

} // namespace

TEST(GeschiedenisLijst, WhereANewLocationGoes)
{
    const struct { int index; const char *map, *lijst; } stappen[] = { // index: set before adding, or -1
        {-1, "/A", "/A/ @1"}, // appended, the index one past the end
        {-1, "/B", "/A/ /B/ @2"},
        {-1, "/C", "/A/ /B/ /C/ @3"},
        {-1, "/B/", "/A/ /B/ /C/ @1"}, // a known location only becomes current
        // inside the list a new one lands before the previous entry, which the unchanged index then designates
        {-1, "/D", "/D/ /A/ /B/ /C/ @1"},
        {3, "/E", "/D/ /A/ /B/ /C/ /E/ @4"}, // at the last position it is appended
        {0, "/F", "/D/ /A/ /B/ /C/ /E/ /F/ @1"}, // and at 0
    };
    GeschiedenisLijst<wxFileName> lijst;
    EXPECT_THROW(lijst.geefHuidigVoorwerp(), std::out_of_range);
    for (const auto& stap : stappen) {
        if (stap.index >= 0)
            lijst.zetIndex(static_cast<std::size_t>(stap.index));
        lijst.voegToe(wxFileName::DirName(stap.map));
        EXPECT_EQ(toon(lijst), stap.lijst) << stap.map;
    }
    EXPECT_EQ(lijst.geefHuidigVoorwerp().GetFullPath(), "/A/");
    lijst.zetIndex(lijst.geefAantal());
    EXPECT_THROW(lijst.geefHuidigVoorwerp(), std::out_of_range);
}
