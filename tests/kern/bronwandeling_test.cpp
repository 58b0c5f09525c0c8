#include "kern/bronwandeling.h"
#include "kern/bronzoeker.h"

#include "bronboom_test.h"

#include <wx/filefn.h>

#include <cstring>
#include <random>

namespace {

class WillekeurigeBoom : public ::testing::TestWithParam<unsigned> {
protected:
    void SetUp() override { maakWillekeurigeBoom(boom, GetParam()); }
    TijdelijkeBoom boom;
};

TEST_P(WillekeurigeBoom, OneWalkGivesTheToolkitsPerPatternResults)
{
    std::vector<wxString> mappen{boom.map(), boom.map() + "/", boom.map() + "//"};
    wxArrayString onder;
    wxDir::GetAllFiles(boom.map(), &onder, wxEmptyString, wxDIR_DIRS | wxDIR_HIDDEN);
    for (const auto& f : geefAlleFamilies()) {
        for (int modus : {1, 2}) {
            for (const wxString& map : mappen) {
                wxArrayString gevonden;
                ASSERT_TRUE(kern::verzamelBestanden(map, modus, f, gevonden));
                EXPECT_EQ(gevonden, verzamelPerPatroon(map, kern::geefPatronen(f),
                                                       geefToolkitVlaggen(modus)))
                    << "map " << map << " modus " << modus << " c" << f.c << " cpp" << f.cpp
                    << " h" << f.h << " s" << f.s;
            }
        }
    }
}

TEST_P(WillekeurigeBoom, ArbitraryAndRepeatedPatternsMatchLikeTheToolkit)
{
    const std::vector<wxString> patronen{"*.c", "?.h", "*a*", "*.c", "*", "*\\*", "a?*.S", "*.[ch]"};
    for (int modus : {1, 2}) {
        std::vector<wxArrayString> emmers(patronen.size());
        kern::WandelWijze wijze;
        wijze.recursief = modus == 2;
        wijze.volgLinks = modus == 2;
        ASSERT_TRUE(kern::wandel(boom.map(), patronen, wijze, kern::Volgorde::SubmappenEerst,
            [&](const wxString& prefix, const std::vector<kern::Treffer>& treffers) {
                for (const auto& t : treffers)
                    for (size_t i = 0; i < patronen.size(); ++i)
                        if (t.patronen & (1u << i))
                            emmers[i].Add(prefix + t.naam);
                return true;
            }));
        wxArrayString alles;
        for (const auto& e : emmers)
            for (const auto& p : e)
                alles.Add(p);
        EXPECT_EQ(alles, verzamelPerPatroon(boom.map(), patronen, geefToolkitVlaggen(modus)))
            << "modus " << modus;
    }
}

INSTANTIATE_TEST_SUITE_P(Zaden, WillekeurigeBoom, ::testing::Range(1u, 13u));

TEST(BronWandeling, WildcardsFollowTheToolkitsRules)
{
    std::mt19937 rnd(7);
    const auto maak = [&rnd](const char* letters, size_t min, size_t max) {
        wxString s;
        for (size_t n = min + rnd() % (max - min + 1); n > 0; --n)
            s += letters[rnd() % std::strlen(letters)];
        return s;
    };
    for (int i = 0; i < 40000; ++i) {
        const wxString patroon = maak("ab.*?\\", 0, 6);
        const wxString naam = maak("ab.*?\\", 1, 6);
        const bool puntApart = i % 2 == 0;
        ASSERT_EQ(kern::pastPatroon(patroon, naam, puntApart), ::wxMatchWild(patroon, naam, puntApart))
            << "patroon '" << patroon << "' naam '" << naam << "' puntApart " << puntApart;
    }
}

TEST(BronWandeling, StopsWhenTheReceiverSaysSo)
{
    TijdelijkeBoom boom;
    for (const char* b : {"a/x.c", "b/y.c", "c/z.c", "w.c"})
        boom.maakBestand(b);
    kern::WandelWijze wijze;
    wijze.recursief = true;
    for (auto volgorde : {kern::Volgorde::SubmappenEerst, kern::Volgorde::EigenBestandenEerst}) {
        int keren = 0;
        ASSERT_TRUE(kern::wandel(boom.map(), {"*.c"}, wijze, volgorde,
                                 [&](const wxString&, const std::vector<kern::Treffer>&) {
                                     ++keren;
                                     return false;
                                 }));
        EXPECT_EQ(keren, 1);
    }
    int keren = 0;
    kern::wandel(boom.map(), {"*.c"}, wijze, kern::Volgorde::EigenBestandenEerst,
                 [&](const wxString& prefix, const std::vector<kern::Treffer>&) {
                     // the root's own file comes before the sub-directories
                     EXPECT_TRUE(keren > 0 || prefix == boom.map() + "/");
                     ++keren;
                     return true;
                 });
    EXPECT_EQ(keren, 4);
}

TEST(BronWandeling, UnopenableDirectoryGivesFalse)
{
    TijdelijkeBoom boom;
    boom.maakBestand("bestand.c");
    for (const wxString& map : {boom.map("ontbreekt"), boom.map("bestand.c"), wxString()}) {
        bool geroepen = false;
        EXPECT_FALSE(kern::wandel(map, {"*"}, kern::WandelWijze{}, kern::Volgorde::SubmappenEerst,
                                  [&](const wxString&, const std::vector<kern::Treffer>&) {
                                      return geroepen = true;
                                  }));
        EXPECT_FALSE(geroepen);
    }
}

} // namespace
