#include "kern/bronzoeker.h"

#include "bronboom_test.h"

namespace {

// The four switches from a text such as "1010" (C, C++, header, assembler), and back.
kern::Families geefFamilies(const char* aan) { return {aan[0] == '1', aan[1] == '1', aan[2] == '1', aan[3] == '1'}; }
std::string toon(kern::Aanwezig v) { return {char('0' + v.c), char('0' + v.cpp), char('0' + v.h), char('0' + v.s)}; }

TEST(BronZoeker, PatternsComeInTheAddCommandsOrder)
{
    for (const auto& [aan, verwacht] : {std::pair{"1000", "*.c"}, {"1010", "*.c *.h"}, {"0100", "*.cpp *.cxx"}, {"0010", "*.h *.hpp"},
             {"0110", "*.cpp *.cxx *.hpp *.h"}, {"1110", "*.c *.h *.cpp *.cxx *.hpp"}, {"1111", "*.c *.h *.cpp *.cxx *.hpp *.s *.S"}}) {
        const std::vector<wxString> patronen = kern::geefPatronen(geefFamilies(aan));
        EXPECT_EQ(wxJoin(wxArrayString(patronen.size(), patronen.data()), ' ', 0), verwacht) << aan;
    }
}

// An unopenable directory and modes without a walk leave found paths and flags alone; new paths go behind.
TEST(BronVerzameling, UnopenableDirectoriesAndOtherModesChangeNothing)
{
    TijdelijkeBoom boom;
    boom.maakBestand("x.c");
    const kern::Families c = geefFamilies("1000");
    wxArrayString gevonden(1, "oud");
    for (int modus : {0, 1, 2}) {
        kern::Aanwezig v{false, true, false, true};
        const bool verzameld = modus > 0 && kern::verzamelBestanden("/nergens", modus, c, gevonden);
        EXPECT_EQ(kern::onderzoekMap("/nergens", modus, geefFamilies("1111"), v) || verzameld ? "opened" : toon(v), "0101") << modus;
    }
    kern::Voortgang voortgang; // the counts a progress dialog shows
    for (const auto& [modus, aan] : {std::pair{0, c}, {3, c}, {-1, c}, {1, kern::Families{}}, {1, c}})
        EXPECT_TRUE(kern::verzamelBestanden(boom.map(), modus, aan, gevonden, nullptr, &voortgang));
    EXPECT_EQ(wxJoin(gevonden, '|', 0) + wxString::Format(" %zu %zu", voortgang.mappen.load(), voortgang.bestanden.load()),
              "oud|" + boom.map("x.c") + " 1 1");
}

// The probe as the Add command's owner describes it, step by step, on the toolkit's own searches.
std::string onderzoekStapVoorStap(const wxString& map, int modus, const kern::Families& aan, kern::Aanwezig v)
{
    if (modus < 0 || modus > 2)
        return toon(v);
    const int vlaggen = modus == 0 ? wxDIR_FILES | wxDIR_HIDDEN : geefToolkitVlaggen(modus);
    const auto eerste = [&](const char* p) { return !verzamelPerPatroon(map, {p}, vlaggen).empty(); };
    if (modus == 0)
        return toon({eerste("*.c"), eerste("*.cpp") || eerste("*.cxx"), eerste("*.h") || eerste("*.hpp"),
                     eerste("*.s") || eerste("*.S")});
    if (aan.c)
        v.c = eerste("*.c"), v.h = aan.h ? eerste("*.h") : v.h;
    if (aan.cpp) // with C on too, a "*.hpp" keeps the header flag set; else "*.h" decides
        v.cpp = eerste("*.cpp") || eerste("*.cxx"), v.h = aan.h ? (aan.c && eerste("*.hpp")) || eerste("*.h") : v.h;
    v.h = aan.h && !aan.c && !aan.cpp ? eerste("*.h") || eerste("*.hpp") : v.h;
    v.s = aan.s ? eerste("*.s") || eerste("*.S") : v.s;
    return toon(v);
}

class BronOnderzoek : public ::testing::TestWithParam<unsigned> {};

TEST_P(BronOnderzoek, AnswersLikeTheStepByStepProbe)
{
    TijdelijkeBoom boom;
    maakWillekeurigeBoom(boom, GetParam());
    const auto onderzoek = [&](int m, auto& aan, kern::Aanwezig v) { return kern::onderzoekMap(boom.map(), m, aan, v) ? toon(v) : "?"; };
    for (const auto& aan : geefAlleFamilies())
        for (int modus : {0, 1, 2, 3})
            for (bool b : {false, true})
                EXPECT_EQ(onderzoek(modus, aan, {b, b, b, b}), onderzoekStapVoorStap(boom.map(), modus, aan, {b, b, b, b}))
                    << "modus " << modus << " aan " << aan.c << aan.cpp << aan.h << aan.s;
}

INSTANTIATE_TEST_SUITE_P(Zaden, BronOnderzoek, ::testing::Range(20u, 32u));

} // namespace
