#include "kern/bronwandeling.h"
#include "kern/bronzoeker.h"

#include "bronboom_test.h"
#include "storing.h"

#include <wx/filefn.h>
#include <wx/filename.h>

#include <numeric>
#include <fcntl.h>
#include <unistd.h>

namespace {

class WillekeurigeBoom : public ::testing::TestWithParam<unsigned> {};

// Every family and mode from the root however written, and a walk with arbitrary and repeated
// patterns, each give what the toolkit collects pattern by pattern.
TEST_P(WillekeurigeBoom, WalksGiveTheToolkitsPerPatternResults)
{
    TijdelijkeBoom boom;
    maakWillekeurigeBoom(boom, GetParam());
    for (int modus : {1, 2}) {
        for (const auto& f : geefAlleFamilies())
            for (const wxString& map : {boom.map(), boom.map() + "/", boom.map() + "//"}) {
                wxArrayString gevonden;
                ASSERT_TRUE(kern::verzamelBestanden(map, modus, f, gevonden));
                EXPECT_EQ(gevonden, verzamelPerPatroon(map, kern::geefPatronen(f), geefToolkitVlaggen(modus)))
                    << "map " << map << " modus " << modus << " " << f.c << f.cpp << f.h << f.s;
            }
        const std::vector<wxString> patronen{"*.c", "?.h", "*a*", "*.c", "*", "*\\*", "a?*.S", "*.[ch]"};
        std::vector<wxArrayString> emmers(patronen.size());
        kern::WandelWijze wijze;
        wijze.recursief = wijze.volgLinks = modus == 2;
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
            WX_APPEND_ARRAY(alles, e);
        EXPECT_EQ(alles, verzamelPerPatroon(boom.map(), patronen, geefToolkitVlaggen(modus))) << "modus " << modus;
    }
}

INSTANTIATE_TEST_SUITE_P(Zaden, WillekeurigeBoom, ::testing::Range(1u, 13u));

TEST(BronWandeling, WildcardsFollowTheToolkitsRules)
{
    std::mt19937 rnd(7);
    const auto maak = [&rnd](size_t min) {
        wxString s;
        for (size_t n = min + rnd() % (7 - min); n > 0; --n)
            s += "ab.*?\\"[rnd() % 6];
        return s;
    };
    for (int i = 0; i < 40000; ++i) {
        const wxString patroon = maak(0), naam = maak(1);
        ASSERT_EQ(kern::pastPatroon(patroon, naam, i % 2), ::wxMatchWild(patroon, naam, i % 2))
            << "patroon '" << patroon << "' naam '" << naam << "' puntApart " << i % 2;
    }
}

// A walk ends when the receiver says so; the root's own files can come before its
// sub-directories. A path that is no directory gives false.
TEST(BronWandeling, StopsWhenTheReceiverSaysSoAndFailsOnNoDirectory)
{
    TijdelijkeBoom boom;
    for (const char* b : {"a/x.c", "b/y.c", "c/z.c", "w.c"})
        boom.maakBestand(b);
    kern::WandelWijze wijze;
    wijze.recursief = true;
    for (const wxString& map : {boom.map(), boom.map("ontbreekt"), boom.map("w.c"), wxString()})
        for (bool verder : {false, true})
            for (auto volgorde : {kern::Volgorde::SubmappenEerst, kern::Volgorde::EigenBestandenEerst}) {
                wxString prefixen;
                const bool gelukt = kern::wandel(map, {"*.c"}, wijze, volgorde, [&](const wxString& prefix, const auto&) {
                    prefixen << prefix.Mid(boom.map().length()) << " ";
                    return verder;
                });
                EXPECT_EQ(wxString::Format("%d %d", gelukt, prefixen.Freq(' ')),
                          map != boom.map() ? "0 0" : verder ? "1 4" : "1 1") << map << prefixen;
                EXPECT_TRUE(volgorde == kern::Volgorde::SubmappenEerst || !gelukt || prefixen.StartsWith("/ "));
            }
}

std::string alsRegels(const std::multiset<std::string>& namen)
{
    return std::accumulate(namen.begin(), namen.end(), std::string(), [](auto a, auto& b) { return a + b + "\n"; });
}

// The collected C files below `map` (or only their names), sorted, one per line; "(not on disk)" marks
// a name that names nothing.
std::string geefGevonden(const wxString& map, int modus, std::size_t* overgeslagen = nullptr, bool naamAlleen = false)
{
    wxArrayString gevonden;
    if (!kern::verzamelBestanden(map, modus, kern::Families{true, false, false, false}, gevonden, overgeslagen))
        return "cannot open";
    std::multiset<std::string> namen;
    for (const wxString& pad : gevonden)
        namen.insert((naamAlleen ? pad.AfterLast('/') : pad.Mid(map.length() + 1)).utf8_string()
                     + (wxFileName::Exists(pad) ? "" : " (not on disk)"));
    return alsRegels(namen);
}

// Each real directory is read once, however many links lead to it; depth and path length do not matter.
TEST(BronWandeling, EveryRealDirectoryOnceAtAnyDepth)
{
    TijdelijkeBoom boom;
    int fd = ::open(boom.pad("").c_str(), O_RDONLY | O_DIRECTORY);
    for (int i = 0; i < 500; ++i) // 500 levels of 10 characters: longer than any path the system takes
        ::mkdirat(fd, "niveau1234", 0755), ::close(std::exchange(fd, ::openat(fd, "niveau1234", O_RDONLY)));
    ::close(::openat(fd, "laatste.c", O_WRONLY | O_CREAT, 0644)), ::close(fd);
    std::multiset<std::string> namen;
    for (int i = 0; i <= 22; ++i) {
        const std::string map = "waaier/n" + std::to_string(i);
        boom.maakBestand(map + "/" + *namen.insert("x" + std::to_string(i) + ".c"));
        for (const char* link : {"/a", "/b"})
            boom.maakLink("../n" + std::to_string(i + 1), map + link);
    }
    EXPECT_EQ(geefGevonden(boom.map("waaier/n0"), kern::ModusRecursief, nullptr, true), alsRegels(namen));
    namen.insert("laatste.c (not on disk)"); // too long a path to look at
    EXPECT_EQ(geefGevonden(boom.map(), kern::ModusRecursief, nullptr, true), alsRegels(namen));
}

// Only regular files whose names are UTF-8 count; the others are counted when the walk would have
// entered them. An unreadable file is still a file; a directory that cannot be listed gives nothing;
// in one that can be listed but not searched the toolkit takes every name for a file. Link cycles
// end; a pseudo file system behind a link is not entered.
TEST(BronWandeling, OnlyRegularUtf8FilesTheWalkCanReachCount)
{
    TijdelijkeBoom boom;
    for (const char* b : {"goed.c", "caf\xc3\xa9.c", "caf\xe9.c", "oud\xe9.txt", "map\xe9/x.c", "map\xc3\xa9/y.c",
                          "dicht.c", "geheim/g.c", "half/h.c", "diep/lus/d.c", "map.c/m.h"})
        boom.maakBestand(b);
    for (const auto& [naar, link] : {std::pair{"map.c", "link.c"}, {"goed.c", "naar.c"}, {"nergens", "kapot.c"},
                                     {"/proc/self", "proc"}, {"/dev", "dev"}, {"..", "diep/lus/terug"}})
        boom.maakLink(naar, link);
    ::mkfifo(boom.pad("pijp.c").c_str(), 0600);
    for (const auto& [pad, modus] : {std::pair{"", 0755}, {"dicht.c", 0}, {"geheim", 0}, {"half", 0644}})
        ::chmod(boom.pad(pad).c_str(), modus);
    // a source on the device file system, which a walk reaches only when picked
    const std::string apparaat = "/dev/shm/klavermol-" + std::to_string(::getpid()) + ".c";
    ::close(::open(apparaat.c_str(), O_WRONLY | O_CREAT, 0644));
    EXPECT_EQ(alsNiemand([&] {
                  std::size_t map = 0, recursief = 0;
                  const std::string uit = geefGevonden(boom.map(), kern::ModusMap, &map) + "|"
                                          + geefGevonden(boom.map(), kern::ModusRecursief, &recursief);
                  return uit + std::to_string(map * 10 + recursief);
              }),
              "caf\xc3\xa9.c\ndicht.c\ngoed.c\nnaar.c\n|caf\xc3\xa9.c\ndicht.c\ndiep/lus/d.c\ngoed.c\nhalf/h.c (not on "
              "disk)\nmap\xc3\xa9/y.c\nnaar.c\n12");
    ::unlink(apparaat.c_str());
}

} // namespace
