#include "kern/bronwandeling.h"
#include "kern/bronzoeker.h"

#include "bronboom_test.h"
#include "storing.h"

#include <wx/filefn.h>
#include <wx/filename.h>

#include <cstring>
#include <fcntl.h>
#include <unistd.h>

namespace {

class WillekeurigeBoom : public ::testing::TestWithParam<unsigned> {
protected:
    void SetUp() override { maakWillekeurigeBoom(boom, GetParam()); }
    TijdelijkeBoom boom;
};

// The collection of every family and mode, from the root however it is
// written, and a walk with arbitrary and repeated patterns, each give what
// the toolkit collects pattern by pattern.
TEST_P(WillekeurigeBoom, WalksGiveTheToolkitsPerPatternResults)
{
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
    const auto maak = [&rnd](const char* letters, size_t min, size_t max) {
        wxString s;
        for (size_t n = min + rnd() % (max - min + 1); n > 0; --n)
            s += letters[rnd() % std::strlen(letters)];
        return s;
    };
    for (int i = 0; i < 40000; ++i) {
        const wxString patroon = maak("ab.*?\\", 0, 6), naam = maak("ab.*?\\", 1, 6);
        const bool puntApart = i % 2 == 0;
        ASSERT_EQ(kern::pastPatroon(patroon, naam, puntApart), ::wxMatchWild(patroon, naam, puntApart))
            << "patroon '" << patroon << "' naam '" << naam << "' puntApart " << puntApart;
    }
}

// A walk ends when the receiver says so; the root's own files can come
// before its sub-directories. A path that is no directory gives false.
TEST(BronWandeling, StopsWhenTheReceiverSaysSoAndFailsOnNoDirectory)
{
    TijdelijkeBoom boom;
    for (const char* b : {"a/x.c", "b/y.c", "c/z.c", "w.c"})
        boom.maakBestand(b);
    kern::WandelWijze wijze;
    wijze.recursief = true;
    for (bool verder : {false, true})
        for (auto volgorde : {kern::Volgorde::SubmappenEerst, kern::Volgorde::EigenBestandenEerst}) {
            wxString prefixen;
            ASSERT_TRUE(kern::wandel(boom.map(), {"*.c"}, wijze, volgorde,
                                     [&](const wxString& prefix, const std::vector<kern::Treffer>&) {
                                         prefixen << prefix.Mid(boom.map().length()) << " ";
                                         return verder;
                                     }));
            if (volgorde == kern::Volgorde::EigenBestandenEerst)
                EXPECT_TRUE(prefixen.StartsWith("/ ")) << prefixen;
            EXPECT_EQ(prefixen.Freq(' '), verder ? 4 : 1) << prefixen;
        }
    for (const wxString& map : {boom.map("ontbreekt"), boom.map("w.c"), wxString()})
        EXPECT_FALSE(kern::wandel(map, {"*"}, wijze, kern::Volgorde::SubmappenEerst,
                                  [&](const wxString&, const std::vector<kern::Treffer>&) {
                                      ADD_FAILURE() << map;
                                      return true;
                                  }));
}

// The collected paths below `boom`, sorted, one per line.
std::string geefGevonden(const TijdelijkeBoom& boom, int modus, std::size_t* overgeslagen = nullptr)
{
    wxArrayString gevonden;
    if (!kern::verzamelBestanden(boom.map(), modus, kern::Families{true, false, false, false}, gevonden, overgeslagen))
        return "cannot open";
    std::set<std::string> namen;
    for (const wxString& pad : gevonden)
        namen.insert(pad.Mid(boom.map().length() + 1).utf8_string()
                     + (wxFileName::Exists(pad) ? "" : " (not on disk)"));
    std::string uit;
    for (const std::string& naam : namen)
        uit += naam + "\n";
    return uit;
}

TEST(BronWandeling, NamesThatAreNotUtf8AreLeftOutAndCountedWhenTheyMatter)
{
    TijdelijkeBoom boom;
    for (const char* b : {"goed.c", "caf\xc3\xa9.c", "caf\xe9.c", "oud\xe9.txt", "map\xe9/x.c", "map\xc3\xa9/y.c"})
        boom.maakBestand(b);
    // what is collected names a file on disk; the one directory counts only
    // for the walk that would have entered it
    std::size_t map = 0, recursief = 0;
    EXPECT_EQ(geefGevonden(boom, kern::ModusMap, &map), "caf\xc3\xa9.c\ngoed.c\n");
    EXPECT_EQ(geefGevonden(boom, kern::ModusRecursief, &recursief), "caf\xc3\xa9.c\ngoed.c\nmap\xc3\xa9/y.c\n");
    EXPECT_EQ(map * 10 + recursief, 12u);
}

// Each real directory is read once, however many links lead to it; only
// regular files count; a pseudo file system behind a link is not entered;
// depth and path length do not matter.
TEST(BronWandeling, EveryRealDirectoryOnceOnlyRegularFilesAnyDepth)
{
    TijdelijkeBoom boom;
    // 500 levels of 10 characters: longer than any path the system takes
    int fd = ::open(boom.pad("").c_str(), O_RDONLY | O_DIRECTORY);
    for (int i = 0; i < 500; ++i) {
        ::mkdirat(fd, "niveau1234", 0755);
        const int onder = ::openat(fd, "niveau1234", O_RDONLY | O_DIRECTORY);
        ::close(fd);
        fd = onder;
    }
    ::close(::openat(fd, "laatste.c", O_WRONLY | O_CREAT, 0644));
    ::close(fd);
    for (int i = 0; i <= 22; ++i) {
        const std::string map = "waaier/n" + std::to_string(i);
        boom.maakBestand(map + "/x" + std::to_string(i) + ".c");
        for (const char* link : {"/a", "/b"})
            boom.maakLink("../n" + std::to_string(i + 1), map + link);
    }
    boom.maakMap("vlak/map.c");
    boom.maakBestand("vlak/echt.c");
    boom.maakLink("map.c", "vlak/link.c");
    boom.maakLink("echt.c", "vlak/naar.c");
    boom.maakLink("nergens", "vlak/kapot.c");
    ::mkfifo(boom.pad("vlak/pijp.c").c_str(), 0600);
    boom.maakLink(boom.pad(""), "vlak/terug");
    boom.maakLink("/proc/self", "vlak/proc");
    // a source on the device file system, which a walk reaches only when picked
    boom.maakLink("/dev", "vlak/dev");
    const std::string apparaat = "/dev/shm/klavermol-" + std::to_string(::getpid()) + ".c";
    ::close(::open(apparaat.c_str(), O_WRONLY | O_CREAT, 0644));
    const auto geefAantal = [&](const wxString& map, int modus) {
        wxArrayString gevonden;
        kern::verzamelBestanden(map, modus, kern::Families{true, false, false, false}, gevonden);
        std::set<wxString> namen;
        for (const wxString& pad : gevonden)
            namen.insert(pad.AfterLast('/'));
        return namen.size() == gevonden.size() ? gevonden.size() : 0;
    };
    EXPECT_EQ(geefAantal(boom.map("waaier/n0"), kern::ModusRecursief), 23u);
    EXPECT_EQ(geefAantal(boom.map("vlak"), kern::ModusMap), 2u);
    EXPECT_EQ(geefAantal(boom.map(), kern::ModusRecursief), 23u + 1 + 2);
    ::unlink(apparaat.c_str());
}

TEST(BronWandeling, UnreadableEntriesArePassedByAndTheWalkEnds)
{
    TijdelijkeBoom boom;
    for (const char* b : {"a.c", "dicht.c", "geheim/g.c", "half/h.c", "diep/lus/d.c"})
        boom.maakBestand(b);
    boom.maakLink("..", "diep/lus/terug");
    ::chmod(boom.pad("").c_str(), 0755);
    ::chmod(boom.pad("dicht.c").c_str(), 0);
    ::chmod(boom.pad("geheim").c_str(), 0);
    ::chmod(boom.pad("half").c_str(), 0644); // listable, not searchable
    // An unreadable file is still a file of the tree; a directory that
    // cannot be listed gives nothing; in one that can be listed but not
    // searched the toolkit takes every name for a file.
    EXPECT_EQ(alsNiemand([&] { return geefGevonden(boom, kern::ModusRecursief); }),
              "a.c\ndicht.c\ndiep/lus/d.c\nhalf/h.c (not on disk)\n");
    ::chmod(boom.pad("geheim").c_str(), 0755);
    ::chmod(boom.pad("half").c_str(), 0755);
}

} // namespace
