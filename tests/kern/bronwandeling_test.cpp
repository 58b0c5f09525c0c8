#include "kern/bronwandeling.h"

#include "bronboom_test.h"
#include "storing.h"

#include <wx/filename.h>

#include <fcntl.h>
#include <numeric>

namespace {

class WillekeurigeBoom : public ::testing::TestWithParam<unsigned> {};

// Each family and mode from the root however written, and arbitrary repeated patterns, match the toolkit.
TEST_P(WillekeurigeBoom, WalksGiveTheToolkitsPerPatternResults)
{
    TijdelijkeBoom boom;
    maakWillekeurigeBoom(boom, GetParam());
    const std::vector<wxString> patronen{"*.c", "?.h", "*a*", "*.c", "*", "*\\*", "a?*.S", "*.[ch]"};
    for (int modus : {1, 2, 3}) {
        for (const auto& f : modus < 3 ? geefAlleFamilies() : std::vector<kern::Families>())
            for (const wxString& map : {boom.map(), boom.map() + "/", boom.map() + "//"}) {
                wxArrayString gevonden;
                ASSERT_TRUE(kern::verzamelBestanden(map, modus, f, gevonden));
                EXPECT_EQ(gevonden, verzamelPerPatroon(map, kern::geefPatronen(f), geefToolkitVlaggen(modus)))
                    << map << " modus " << modus << " " << f.c << f.cpp << f.h << f.s;
            }
        std::vector<wxArrayString> emmers(patronen.size());
        ASSERT_TRUE(kern::wandel(boom.map(), patronen, {modus >= 2, modus == 2}, kern::Volgorde(0), [&](auto& prefix, auto& treffers) {
            for (const auto& t : treffers)
                for (size_t i = 0; i < patronen.size(); ++i)
                    emmers[i].Add(prefix + t.naam, (t.patronen >> i) & 1u); // once where the pattern matched
            return true;
        }));
        for (size_t i = 0; i < patronen.size(); ++i)
            EXPECT_EQ(emmers[i], verzamelPerPatroon(boom.map(), {patronen[i]}, geefToolkitVlaggen(modus))) << i;
    }
}

INSTANTIATE_TEST_SUITE_P(Zaden, WillekeurigeBoom, ::testing::Range(1u, 13u));

TEST(BronWandeling, WildcardsFollowTheToolkitsRules)
{
    std::mt19937 rnd(7);
    const auto maak = [&rnd](size_t n) { wxString s; while (n-- > 0) s += "ab.*?\\"[rnd() % 6]; return s; };
    for (int i = 0; i < 40000; ++i) {
        const wxString patroon = maak(rnd() % 7), naam = maak(1 + rnd() % 7);
        ASSERT_EQ(kern::pastPatroon(patroon, naam, i % 2), ::wxMatchWild(patroon, naam, i % 2)) << patroon << " | " << naam;
    }
}

// The receiver can end a walk, in either order; a path that is no directory gives false and nothing.
TEST(BronWandeling, StopsWhenTheReceiverSaysSoAndFailsOnNoDirectory)
{
    TijdelijkeBoom boom;
    for (const char* b : {"a/x.c", "b/y.c", "c/z.c", "w.c"})
        boom.maakBestand(b);
    for (const wxString& map : {boom.map(), boom.map("ontbreekt"), boom.map("w.c"), wxString()})
        for (int stap = 0; stap < 4; ++stap) { // order times whether the receiver goes on
            wxString prefixen;
            const bool gelukt = kern::wandel(map, {"*.c"}, {true}, kern::Volgorde(stap / 2),
                [&](auto& prefix, auto&) { return (prefixen << prefix.Mid(boom.map().length()) << " ", stap % 2 == 1); });
            const char* verwacht[] = {"1 1 0", "1 4 0", "1 1 1", "1 4 1"}; // calls, root's own files ("/ ") first
            EXPECT_EQ(wxString::Format("%d %d %d", gelukt, prefixen.Freq(' '), prefixen.StartsWith("/ ")),
                      map == boom.map() ? verwacht[stap] : "0 0 0") << map << prefixen;
        }
}

// The names of the C files collected, sorted, marked where not on disk; then the number left out.
std::string geefGevonden(const wxString& map, int modus)
{
    wxArrayString gevonden;
    std::size_t overgeslagen = 0;
    EXPECT_TRUE(kern::verzamelBestanden(map, modus, kern::Families{true, false, false, false}, gevonden, &overgeslagen));
    std::multiset<std::string> namen;
    for (const wxString& pad : gevonden)
        namen.insert(pad.AfterLast('/').utf8_string() + (wxFileName::Exists(pad) ? "\n" : " (not on disk)\n"));
    return std::accumulate(namen.begin(), namen.end(), std::string()) + std::to_string(overgeslagen);
}

// Regular files with UTF-8 names count once, however reached; no pseudo file system is entered uninvited.
TEST(BronWandeling, OnlyRegularUtf8FilesTheWalkCanReachCountOnce)
{
    TijdelijkeBoom boom;
    for (const char* b : {"goed.c", "caf\xc3\xa9.c", "caf\xe9.c", "oud\xe9.txt", "map\xe9/x.c", "map\xc3\xa9/y.c",
                          "dicht.c", "geheim/g.c", "half/h.c", "diep/lus/d.c", "map.c/m.h"})
        boom.maakBestand(b);
    for (const auto& [naar, link] : {std::pair{"map.c", "link.c"}, {"goed.c", "naar.c"}, {"nergens", "kapot.c"}, {"/proc/self", "proc"},
                                     {"/dev", "dev"}, {"..", "diep/lus/terug"}, {".", "zelf"}, {"pijp.c", "naarpijp.c"}})
        boom.maakLink(naar, link);
    ::mkfifo(boom.pad("pijp.c").c_str(), 0600);
    std::string waaier, apparaat = "/dev/shm/klavermol-" + std::to_string(::getpid()) + ".c"; // reached only when picked
    for (int i = 10; i <= 32; ++i) { // a ring: two links in each directory to the next
        const std::string n = "waaier/n" + std::to_string(i), volgende = "../n" + std::to_string(i < 32 ? i + 1 : 10);
        boom.maakBestand(n + "/x.c"), boom.maakLink(volgende, n + "/a"), boom.maakLink(volgende, n + "/b"), waaier += "x.c\n";
    }
    int fd = ::open(boom.pad("").c_str(), O_RDONLY | O_DIRECTORY);
    for (int i = 0; i < 500; ++i) // 500 levels of 10 characters: longer than any path the system takes
        ::mkdirat(fd, "niveau1234", 0755), ::close(std::exchange(fd, ::openat(fd, "niveau1234", O_RDONLY)));
    ::close(::openat(fd, "laatste.c", O_WRONLY | O_CREAT, 0644)), ::close(fd);
    for (const auto& [pad, modus] : {std::pair{"", 0755}, {"dicht.c", 0}, {"geheim", 0}, {"half", 0644}})
        ::chmod(boom.pad(pad).c_str(), modus);
    ::close(::open(apparaat.c_str(), O_WRONLY | O_CREAT, 0644));
    const auto beide = [&] { return geefGevonden(boom.map(), kern::ModusMap) + "|" + geefGevonden(boom.map(), 2); };
    EXPECT_EQ(alsNiemand(beide), "caf\xc3\xa9.c\ndicht.c\ngoed.c\nnaar.c\n1|caf\xc3\xa9.c\nd.c\ndicht.c\ngoed.c\n"
                                 "h.c (not on disk)\nlaatste.c (not on disk)\nnaar.c\n" + waaier + "y.c\n2");
    EXPECT_NE(geefGevonden("/dev", kern::ModusRecursief).find(apparaat.substr(9) + "\n"), std::string::npos) << "picked";
    ::unlink(apparaat.c_str());
}

} // namespace
