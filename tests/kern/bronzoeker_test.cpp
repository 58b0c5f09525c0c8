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

class BronVerzameling : public ::testing::Test {
protected:
    wxArrayString verzamel(int modus, const kern::Families& aan, const wxString& map)
    {
        wxArrayString gevonden;
        EXPECT_TRUE(kern::verzamelBestanden(map, modus, aan, gevonden));
        return gevonden;
    }
    TijdelijkeBoom boom;
};

TEST_F(BronVerzameling, OneFilePerPatternShowsTheCollectionOrder)
{
    for (const char* b : {"e.hpp", "d.cxx", "c.cpp", "b.h", "a.c", "g.S", "f.s", "X.C", "y.CPP", "z.Hpp"})
        boom.maakBestand(b);
    const wxString map = boom.map();
    EXPECT_EQ(geefNamen(verzamel(1, {true, true, true, false}, map), map),
              (Namen{"a.c", "b.h", "c.cpp", "d.cxx", "e.hpp"}));
    EXPECT_EQ(geefNamen(verzamel(1, {false, true, true, false}, map), map),
              (Namen{"c.cpp", "d.cxx", "e.hpp", "b.h"}));
    EXPECT_EQ(geefNamen(verzamel(2, {false, false, true, true}, map), map),
              (Namen{"b.h", "e.hpp", "f.s", "g.S"}));
}

TEST_F(BronVerzameling, UpperCaseSIsFoundOnlyByItsOwnPattern)
{
    boom.maakBestand("foo.S");
    const wxArrayString gevonden = verzamel(1, {false, false, false, true}, boom.map());
    ASSERT_EQ(gevonden.size(), 1u);
    EXPECT_EQ(verzamelPerPatroon(boom.map(), {"*.s"}, geefToolkitVlaggen(1)).size(), 0u);
    EXPECT_EQ(gevonden, verzamelPerPatroon(boom.map(), {"*.S"}, geefToolkitVlaggen(1)));
}

TEST_F(BronVerzameling, HiddenFilesAndDirectoriesAreNeverCollected)
{
    for (const char* b : {".x.c", ".verborgen/y.c", "zicht/.w.c", "zicht/v.c", "z.c"})
        boom.maakBestand(b);
    boom.maakLink(boom.pad("zicht"), ".link");
    const kern::Families c{true, false, false, false};
    EXPECT_EQ(geefNamen(verzamel(1, c, boom.map()), boom.map()), (Namen{"z.c"}));
    EXPECT_EQ(gesorteerd(verzamel(2, c, boom.map())),
              (Namen{boom.map("z.c"), boom.map("zicht/v.c")}));
}

TEST_F(BronVerzameling, LinksInModeOneAreNotFollowedButModeTwoEntersLinkedDirectories)
{
    boom.maakBestand("echt/in.c");
    boom.maakBestand("x.c");
    boom.maakLink(boom.pad("x.c"), "lf.c");       // link to a file
    boom.maakLink(boom.pad("echt"), "ld.c");      // link to a directory
    boom.maakLink("nergens.c", "bl.c");           // broken link
    const kern::Families c{true, false, false, false};
    // mode 1 judges a link by itself: even the directory link is a file
    EXPECT_EQ(gesorteerd(verzamel(1, c, boom.map())),
              (Namen{boom.map("bl.c"), boom.map("ld.c"), boom.map("lf.c"), boom.map("x.c")}));
    EXPECT_EQ(gesorteerd(verzamel(2, c, boom.map())),
              (Namen{boom.map("bl.c"), boom.map("echt/in.c"), boom.map("ld.c/in.c"),
                     boom.map("lf.c"), boom.map("x.c")}));
}

TEST_F(BronVerzameling, LinkCyclesEndAndOrdinaryLinksAreStillFollowed)
{
    boom.maakBestand("a/x.c");
    boom.maakBestand("b/y.c");
    boom.maakLink(boom.pad(""), "a/terug");  // back to the root
    boom.maakLink(".", "zelf");
    const kern::Families c{true, false, false, false};
    EXPECT_EQ(gesorteerd(verzamel(2, c, boom.map())), (Namen{boom.map("a/x.c"), boom.map("b/y.c")}));

    // two links that point at each other's directory: each is entered
    // once, from the other side
    boom.maakLink("../b", "a/naarB");
    boom.maakLink("../a", "b/naarA");
    EXPECT_EQ(gesorteerd(verzamel(2, c, boom.map())),
              (Namen{boom.map("a/naarB/y.c"), boom.map("a/x.c"), boom.map("b/naarA/x.c"),
                     boom.map("b/y.c")}));
}

TEST_F(BronVerzameling, UnopenableDirectoryOtherModesAndNoSwitches)
{
    boom.maakBestand("x.c");
    const kern::Families c{true, false, false, false};
    wxArrayString gevonden;
    gevonden.Add("oud");
    EXPECT_FALSE(kern::verzamelBestanden(boom.map("ontbreekt"), 2, c, gevonden));
    EXPECT_FALSE(kern::verzamelBestanden(boom.map("ontbreekt"), 1, kern::Families{}, gevonden));
    for (int modus : {0, 3, -1})
        EXPECT_TRUE(kern::verzamelBestanden(boom.map(), modus, c, gevonden));
    EXPECT_TRUE(kern::verzamelBestanden(boom.map(), 1, kern::Families{}, gevonden));
    EXPECT_EQ(gevonden, wxArrayString(1, "oud"));
    // appends behind what is there
    EXPECT_TRUE(kern::verzamelBestanden(boom.map(), 1, c, gevonden));
    EXPECT_EQ(gevonden.size(), 2u);
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

std::string toon(const kern::Aanwezig& v)
{
    return std::to_string(v.c) + std::to_string(v.cpp) + std::to_string(v.h) + std::to_string(v.s);
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

TEST(BronOnderzoekGeval, ModeZeroLooksAtTheDirectoryItselfWhateverTheSwitches)
{
    TijdelijkeBoom boom;
    boom.maakBestand(".verborgen.c");
    boom.maakBestand("onder/x.cpp");
    boom.maakBestand("y.S");
    kern::Aanwezig v{false, true, true, false};
    ASSERT_TRUE(kern::onderzoekMap(boom.map(), 0, kern::Families{}, v));
    EXPECT_EQ(toon(v), "1001"); // hidden files count, no recursion
    v = kern::Aanwezig{true, true, true, true};
    ASSERT_TRUE(kern::onderzoekMap(boom.map(), 1, {true, true, false, false}, v));
    EXPECT_EQ(toon(v), "0011");
}

TEST(BronOnderzoekGeval, OtherModesAndUnopenableDirectoriesChangeNothing)
{
    TijdelijkeBoom boom;
    boom.maakBestand("x.c");
    const kern::Families alles{true, true, true, true};
    for (int modus : {3, -1, 7}) {
        kern::Aanwezig v{false, true, false, true};
        EXPECT_TRUE(kern::onderzoekMap(boom.map(), modus, alles, v));
        EXPECT_EQ(toon(v), "0101");
    }
    for (int modus : {0, 1, 2}) {
        kern::Aanwezig v{false, true, false, true};
        EXPECT_FALSE(kern::onderzoekMap(boom.map("ontbreekt"), modus, alles, v));
        EXPECT_EQ(toon(v), "0101");
    }
}

} // namespace
