#include "kern/bronzoeker.h"

#include "bronboom_test.h"

#include <wx/log.h>

namespace {

// The four switches from a text such as "1010" (C, C++, header, assembler).
kern::Families geefFamilies(const char* aan) { return {aan[0] == '1', aan[1] == '1', aan[2] == '1', aan[3] == '1'}; }

std::string toon(const kern::Aanwezig& v)
{
    return std::to_string(v.c) + std::to_string(v.cpp) + std::to_string(v.h) + std::to_string(v.s);
}

TEST(BronZoeker, PatternsComeInTheAddCommandsOrder)
{
    const char* gevallen[][2] = {
        {"0000", ""}, {"1000", "*.c"}, {"1010", "*.c *.h"}, {"0100", "*.cpp *.cxx"},
        {"0110", "*.cpp *.cxx *.hpp *.h"}, {"1110", "*.c *.h *.cpp *.cxx *.hpp"}, {"0010", "*.h *.hpp"},
        {"0001", "*.s *.S"}, {"1111", "*.c *.h *.cpp *.cxx *.hpp *.s *.S"},
    };
    for (const auto& g : gevallen) {
        std::vector<wxString> patronen = kern::geefPatronen(geefFamilies(g[0]));
        EXPECT_EQ(wxJoin(wxArrayString(patronen.size(), patronen.data()), ' ', 0), g[1]) << g[0];
    }
}

// Unlike the toolkit's walk, a recursive collection ends on link cycles
// and still follows the ordinary links.
TEST(BronVerzameling, LinkCyclesEndAndOrdinaryLinksAreStillFollowed)
{
    TijdelijkeBoom boom;
    boom.maakBestand("a/x.c");
    boom.maakBestand("b/y.c");
    boom.maakLink(boom.pad(""), "a/terug");
    boom.maakLink(".", "zelf");
    boom.maakLink("../b", "a/naarB"); // each entered once, from the other side
    boom.maakLink("../a", "b/naarA");
    wxArrayString gevonden;
    ASSERT_TRUE(kern::verzamelBestanden(boom.map(), 2, geefFamilies("1000"), gevonden));
    for (wxString& pad : gevonden)
        pad = pad.AfterLast('/');
    gevonden.Sort();
    EXPECT_EQ(wxJoin(gevonden, '|', 0), "x.c|y.c"); // each directory read once
}

// An unopenable directory and the modes without a walk leave the found
// paths and the found flags as they were; new paths are appended behind.
TEST(BronVerzameling, UnopenableDirectoriesAndOtherModesChangeNothing)
{
    TijdelijkeBoom boom;
    boom.maakBestand("x.c");
    const kern::Families c = geefFamilies("1000");
    wxArrayString gevonden(1, "oud");
    for (int modus : {0, 1, 2}) {
        if (modus != 0)
            EXPECT_FALSE(kern::verzamelBestanden(boom.map("ontbreekt"), modus, c, gevonden));
        kern::Aanwezig v{false, true, false, true};
        EXPECT_FALSE(kern::onderzoekMap(boom.map("ontbreekt"), modus, geefFamilies("1111"), v));
        EXPECT_EQ(toon(v), "0101");
    }
    for (int modus : {0, 3, -1, 1})
        EXPECT_TRUE(kern::verzamelBestanden(boom.map(), modus, modus == 1 ? kern::Families{} : c, gevonden));
    EXPECT_TRUE(kern::verzamelBestanden(boom.map(), 1, c, gevonden));
    EXPECT_EQ(wxJoin(gevonden, '|', 0), "oud|" + boom.map("x.c"));
}

// The probe as the Add command's owner describes it, step by step, on the
// toolkit's own first-match and has-files searches.
kern::Aanwezig onderzoekStapVoorStap(const wxString& map, int modus, const kern::Families& aan,
                                     kern::Aanwezig v)
{
    wxLogNull stil;
    wxDir dir(map);
    if (!dir.IsOpened() || modus < 0 || modus > 2)
        return v;
    // only regular files count, each directory read once
    const int vlaggen = modus == 0 ? wxDIR_FILES | wxDIR_HIDDEN : geefToolkitVlaggen(modus);
    const auto eerste = [&](const char* p) { return !verzamelPerPatroon(map, {p}, vlaggen).empty(); };
    if (modus == 0)
        return {eerste("*.c"), eerste("*.cpp") || eerste("*.cxx"), eerste("*.h") || eerste("*.hpp"),
                eerste("*.s") || eerste("*.S")};
    if (aan.c) {
        v.c = eerste("*.c");
        if (aan.h)
            v.h = eerste("*.h");
    }
    if (aan.cpp) {
        v.cpp = eerste("*.cpp") || eerste("*.cxx");
        if (aan.h) {
            v.h = eerste("*.hpp");
            if (!aan.c || !v.h)
                v.h = eerste("*.h");
        }
    }
    if (aan.h && !aan.c && !aan.cpp)
        v.h = eerste("*.h") || eerste("*.hpp");
    if (aan.s)
        v.s = eerste("*.s") || eerste("*.S");
    return v;
}

class BronOnderzoek : public ::testing::TestWithParam<unsigned> {};

TEST_P(BronOnderzoek, AnswersLikeTheStepByStepProbe)
{
    TijdelijkeBoom boom;
    maakWillekeurigeBoom(boom, GetParam());
    for (const auto& aan : geefAlleFamilies())
        for (int modus : {0, 1, 2, 3})
            for (bool b : {false, true}) {
                const kern::Aanwezig start{b, b, b, b};
                kern::Aanwezig v = start;
                ASSERT_TRUE(kern::onderzoekMap(boom.map(), modus, aan, v));
                EXPECT_EQ(toon(v), toon(onderzoekStapVoorStap(boom.map(), modus, aan, start)))
                    << "modus " << modus << " aan " << aan.c << aan.cpp << aan.h << aan.s;
            }
}

INSTANTIATE_TEST_SUITE_P(Zaden, BronOnderzoek, ::testing::Range(20u, 32u));

} // namespace
