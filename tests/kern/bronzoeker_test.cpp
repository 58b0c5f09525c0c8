#include "kern/bronzoeker.h"

#include "bronboom_test.h"

#include <wx/log.h>

namespace {

std::vector<wxString> geefNamen(const wxArrayString& paden, const wxString& map)
{
    std::vector<wxString> namen;
    for (const wxString& p : paden)
        namen.push_back(p.Mid(map.length() + 1));
    return namen;
}

using Namen = std::vector<wxString>;

std::string toon(const kern::Aanwezig& v)
{
    return std::to_string(v.c) + std::to_string(v.cpp) + std::to_string(v.h) + std::to_string(v.s);
}

TEST(BronZoeker, PatternsComeInTheAddCommandsOrder)
{
    const struct {
        kern::Families aan;
        Namen patronen;
    } gevallen[] = {
        {{false, false, false, false}, {}},
        {{true, false, false, false}, {"*.c"}},
        {{true, false, true, false}, {"*.c", "*.h"}},
        {{false, true, false, false}, {"*.cpp", "*.cxx"}},
        {{false, true, true, false}, {"*.cpp", "*.cxx", "*.hpp", "*.h"}},
        {{true, true, true, false}, {"*.c", "*.h", "*.cpp", "*.cxx", "*.hpp"}},
        {{true, true, false, false}, {"*.c", "*.cpp", "*.cxx"}},
        {{false, false, true, false}, {"*.h", "*.hpp"}},
        {{false, false, false, true}, {"*.s", "*.S"}},
        {{true, true, true, true}, {"*.c", "*.h", "*.cpp", "*.cxx", "*.hpp", "*.s", "*.S"}},
        {{false, false, true, true}, {"*.h", "*.hpp", "*.s", "*.S"}},
        {{false, true, true, true}, {"*.cpp", "*.cxx", "*.hpp", "*.h", "*.s", "*.S"}},
    };
    for (const auto& g : gevallen)
        EXPECT_EQ(kern::geefPatronen(g.aan), g.patronen)
            << g.aan.c << g.aan.cpp << g.aan.h << g.aan.s;
}

// Unlike the toolkit's walk, a recursive collection ends on link cycles
// and still follows the ordinary links.
TEST(BronVerzameling, LinkCyclesEndAndOrdinaryLinksAreStillFollowed)
{
    TijdelijkeBoom boom;
    boom.maakBestand("a/x.c");
    boom.maakBestand("b/y.c");
    boom.maakLink(boom.pad(""), "a/terug"); // back to the root
    boom.maakLink(".", "zelf");
    boom.maakLink("../b", "a/naarB");       // each entered once, from the other side
    boom.maakLink("../a", "b/naarA");
    wxArrayString gevonden;
    ASSERT_TRUE(kern::verzamelBestanden(boom.map(), 2, {true, false, false, false}, gevonden));
    EXPECT_EQ(gesorteerd(gevonden), (Namen{boom.map("a/naarB/y.c"), boom.map("a/x.c"), boom.map("b/naarA/x.c"),
                                           boom.map("b/y.c")}));
}

// An unopenable directory and the modes without a walk leave the found
// paths and the found flags as they were; new paths are appended behind.
TEST(BronVerzameling, UnopenableDirectoriesAndOtherModesChangeNothing)
{
    TijdelijkeBoom boom;
    boom.maakBestand("x.c");
    const kern::Families c{true, false, false, false}, alles{true, true, true, true};
    wxArrayString gevonden;
    gevonden.Add("oud");
    for (int modus : {0, 1, 2}) {
        if (modus != 0)
            EXPECT_FALSE(kern::verzamelBestanden(boom.map("ontbreekt"), modus, c, gevonden));
        kern::Aanwezig v{false, true, false, true};
        EXPECT_FALSE(kern::onderzoekMap(boom.map("ontbreekt"), modus, alles, v));
        EXPECT_EQ(toon(v), "0101");
    }
    for (int modus : {0, 3, -1})
        EXPECT_TRUE(kern::verzamelBestanden(boom.map(), modus, c, gevonden));
    EXPECT_TRUE(kern::verzamelBestanden(boom.map(), 1, kern::Families{}, gevonden));
    EXPECT_EQ(gevonden, wxArrayString(1, "oud"));
    EXPECT_TRUE(kern::verzamelBestanden(boom.map(), 1, c, gevonden));
    ASSERT_EQ(gevonden.size(), 2u);
    EXPECT_EQ(gevonden[1], boom.map("x.c"));
}

// The probe as the Add command's owner describes it, step by step, on the
// toolkit's own first-match and has-files searches.
kern::Aanwezig onderzoekStapVoorStap(const wxString& map, int modus, const kern::Families& aan,
                                     kern::Aanwezig v)
{
    wxLogNull stil;
    wxDir dir(map);
    if (!dir.IsOpened())
        return v;
    const auto eerste = [&](const char* p) {
        return !wxDir::FindFirst(map, p, geefToolkitVlaggen(modus)).empty();
    };
    if (modus == 1 || modus == 2) {
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
    } else if (modus == 0) {
        v.c = dir.HasFiles("*.c");
        v.cpp = dir.HasFiles("*.cpp") || dir.HasFiles("*.cxx");
        v.h = dir.HasFiles("*.h") || dir.HasFiles("*.hpp");
        v.s = dir.HasFiles("*.s") || dir.HasFiles("*.S");
    }
    return v;
}

class BronOnderzoek : public ::testing::TestWithParam<unsigned> {};

TEST_P(BronOnderzoek, AnswersLikeTheStepByStepProbe)
{
    TijdelijkeBoom boom;
    maakWillekeurigeBoom(boom, GetParam());
    for (const auto& aan : geefAlleFamilies())
        for (int modus : {0, 1, 2, 3})
            for (bool begin : {false, true}) {
                const kern::Aanwezig start{begin, begin, begin, begin};
                kern::Aanwezig v = start;
                ASSERT_TRUE(kern::onderzoekMap(boom.map(), modus, aan, v));
                EXPECT_EQ(toon(v), toon(onderzoekStapVoorStap(boom.map(), modus, aan, start)))
                    << "modus " << modus << " aan " << aan.c << aan.cpp << aan.h << aan.s;
            }
}

INSTANTIATE_TEST_SUITE_P(Zaden, BronOnderzoek, ::testing::Range(20u, 32u));

TEST(BronOnderzoekGeval, HppAloneIsReplacedByTheHeaderSearchWhenCIsOff)
{
    TijdelijkeBoom boom;
    boom.maakBestand("a.cpp");
    boom.maakBestand("b.hpp");
    const kern::Families aan{false, true, true, false};
    for (int modus : {1, 2}) {
        kern::Aanwezig v{true, false, true, true};
        ASSERT_TRUE(kern::onderzoekMap(boom.map(), modus, aan, v));
        EXPECT_EQ(toon(v), "1101"); // C and assembler untouched, header false
        v = kern::Aanwezig{};
        ASSERT_TRUE(kern::onderzoekMap(boom.map(), modus, {true, true, true, false}, v));
        EXPECT_EQ(toon(v), "0110"); // with C on the "*.hpp" answer stays
        wxArrayString gevonden;
        ASSERT_TRUE(kern::verzamelBestanden(boom.map(), modus, aan, gevonden));
        EXPECT_EQ(geefNamen(gevonden, boom.map()), (Namen{"a.cpp", "b.hpp"}));
    }
}

} // namespace
