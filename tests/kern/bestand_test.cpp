// Files the user owns, written whole or not at all, and the settings file.
#include "kern/bestand.h"
#include "kern/instellingenbestand.h"

#include "storing.h"

#include <gtest/gtest.h>
#include <wx/dir.h>
#include <wx/filename.h>

#include <clocale>
#include <cstdlib>
#include <fstream>
#include <sys/stat.h>
#include <vector>

namespace {

class Bestand : public ::testing::Test
{
protected:
    void SetUp() override
    {
        char sjabloon[] = "/tmp/klavermol-bestand-XXXXXX";
        ASSERT_NE(::mkdtemp(sjabloon), nullptr);
        map = sjabloon;
        ::chmod(sjabloon, 0777);
        doel = map + "/CMakeLists.txt";
    }
    void TearDown() override { ::chmod(map.c_str(), 0777), wxFileName::Rmdir(map, wxPATH_RMDIR_RECURSIVE); }

    std::string lees() const { return leesBestand(doel.ToStdString()); }
    size_t aantal(wxArrayString* namen = nullptr) const // nothing may be left beside the target
    {
        wxArrayString eigen;
        return wxDir::GetAllFiles(map, namen ? namen : &eigen, "", wxDIR_FILES | wxDIR_HIDDEN);
    }
    std::string staat() const { return lees() + "|" + std::to_string(aantal()); } // text and file count
    bool schrijfVol() const
    {
        VolleSchijf vol;
        return kern::schrijfTekstBestand(doel, wxString('x', 100000));
    }
    std::string schrijfAlsNiemand(const wxString& tekst) const // "1" when it succeeded
    {
        return alsNiemand([&] { return std::string(kern::schrijfTekstBestand(doel, tekst) ? "1" : "0"); });
    }

    wxString map, doel;
};

TEST_F(Bestand, ReplacesTheOldFileWholeInUtf8OrOnAFullDiskNotAtAll)
{
    ASSERT_TRUE(kern::schrijfTekstBestand(doel, wxString("oud"))); // a new file takes its mode from the umask
    struct stat st;
    const mode_t masker = ::umask(0);
    ::umask(masker);
    EXPECT_EQ(::stat(doel.c_str(), &st) == 0 ? st.st_mode & 07777 : 1, 0666 & ~masker);
    ASSERT_TRUE(kern::schrijfTekstBestand(doel, wxString::FromUTF8("caf\xc3\xa9\n")));
    EXPECT_FALSE(schrijfVol());
    ::chmod(doel.c_str(), 0444); // a read-only file is refused, even where it could be renamed over
    EXPECT_EQ(schrijfAlsNiemand("nieuw"), "0");
    EXPECT_EQ(staat(), "caf\xc3\xa9\n|1");
    ::unlink(doel.c_str()), ::chmod(map.c_str(), 0555);
    EXPECT_EQ(schrijfAlsNiemand("nieuw"), "0");
    EXPECT_EQ(aantal(), 0u);
}

// Where it cannot simply be renamed over, the file changes where it lies;
// links are followed; owner, group and mode stay.
TEST_F(Bestand, TheUsersFileKeepsItsPlaceLinksOwnerAndMode)
{
    const std::string d = doel.ToStdString(), m = map.ToStdString();
    std::ofstream(d) << "oud";
    ::symlink("CMakeLists.txt", (m + "/link").c_str());
    ::link(d.c_str(), (m + "/tweede").c_str());
    ::chown(d.c_str(), 65534, 65534);
    ::chmod(d.c_str(), 0646);
    ASSERT_TRUE(kern::schrijfTekstBestand(map + "/link", wxString("via de link")));
    struct stat st, link;
    ASSERT_EQ(::lstat((m + "/link").c_str(), &link) + ::stat(d.c_str(), &st), 0);
    EXPECT_TRUE(S_ISLNK(link.st_mode));
    EXPECT_EQ(leesBestand(m + "/tweede"), "via de link") << "hard link broken";
    EXPECT_EQ(st.st_mode & 07777, 0646u);
    if (::geteuid() == 0)
        EXPECT_EQ(st.st_uid * 100000 + st.st_gid, 65534u * 100000 + 65534u);
    EXPECT_FALSE(schrijfVol()); // in place too, a failed write leaves the old text
    EXPECT_EQ(staat(), "via de link|3");
    const std::string groot(5000, 'g'); // too big for the copy of the old text on a full disk
    ASSERT_TRUE(kern::schrijfTekstBestand(doel, groot));
    EXPECT_FALSE(schrijfVol());
    EXPECT_EQ(staat(), groot + "|3");

    // a writable file in a directory that is not writable
    ::unlink((m + "/tweede").c_str()), ::unlink((m + "/link").c_str()), ::chmod(m.c_str(), 0555);
    EXPECT_EQ(schrijfAlsNiemand("in place"), "1");
    EXPECT_EQ(staat(), "in place|1");

    ::mkfifo((m + "/fifo").c_str(), 0666);
    wxString reden = "geschreven";
    EXPECT_EQ(kern::schrijfTekstBestand(map + "/fifo", wxString("x"), &reden) ? "" : reden, "not a regular file");
}

// Killed at any moment of a save, the target holds the old text or the new
// one, and at most one temporary file with a recognisable name is left.
TEST_F(Bestand, AKillDuringASaveNeverLosesTheFile)
{
    const std::string groot(1200000, 'a');
    ASSERT_TRUE(kern::schrijfTekstBestand(doel, groot));
    for (int ronde = 0; ronde < 30; ++ronde) {
        int buis[2];
        ASSERT_EQ(::pipe(buis), 0);
        const pid_t kind = ::fork();
        for (char teken = 'b'; kind == 0; teken = teken == 'z' ? 'b' : teken + 1) {
            ::write(buis[1], "x", 1);
            kern::schrijfTekstBestand(doel, std::string(groot.size(), teken));
        }
        char gelezen;
        for (int n = 0; n <= ronde % 3; ++n)
            ASSERT_EQ(::read(buis[0], &gelezen, 1), 1);
        ::kill(kind, SIGKILL), ::waitpid(kind, nullptr, 0), ::close(buis[0]), ::close(buis[1]);
        const std::string nu = lees();
        ASSERT_EQ(nu.size(), groot.size()) << "round " << ronde;
        ASSERT_EQ(nu.find_first_not_of(nu[0]), std::string::npos) << "round " << ronde;
        wxArrayString namen;
        ASSERT_LE(aantal(&namen), 2u) << "round " << ronde;
        for (const wxString& naam : namen)
            if (naam != doel) {
                EXPECT_TRUE(naam.StartsWith(map + "/.CMakeLists.txt.klavermol-")) << naam;
                wxRemoveFile(naam);
            }
    }
}

// A key this instance did not change since it read or last wrote the file
// takes what another instance wrote meanwhile; its own changes win. Two
// instances that save at the same moment each keep their own change.
TEST_F(Bestand, ASaveKeepsWhatAnotherInstanceWrote)
{
    const std::string pad = (map + "/.Klavermol").ToStdString();
    std::ofstream(pad) << "[C]\nEigen=begin\nAnder=begin\n";
    kern::InstellingenBestand bestand(pad);
    const auto config = bestand.lees();
    config->Write("/C/Eigen", "eigen");
    std::ofstream(pad) << "[C]\nEigen=ander\nAnder=ander\n[N]\nNieuw=1\n";
    ASSERT_EQ(bestand.bewaar(*config), kern::InstellingenBestand::Geschreven);
    std::ofstream(pad) << "[C]\nEigen=derde\n";
    ASSERT_EQ(bestand.bewaar(*config), kern::InstellingenBestand::Geschreven);
    const auto na = kern::InstellingenBestand(pad).lees();
    for (const auto& [sleutel, waarde] : {std::pair{"/C/Eigen", "derde"}, {"/C/Ander", "ander"}, {"/N/Nieuw", "1"}})
        EXPECT_EQ(na->Read(sleutel), waarde) << sleutel;

    for (int ronde = 0; ronde < 30; ++ronde) {
        int start[2];
        ASSERT_EQ(::pipe(start), 0);
        pid_t kinderen[2];
        for (int k = 0; k < 2; ++k)
            if ((kinderen[k] = ::fork()) == 0) {
                char c;
                ::close(start[1]);
                ::read(start[0], &c, 1); // all go at once when the pipe closes
                kern::InstellingenBestand bestand(pad);
                const auto config = bestand.lees();
                config->Write(wxString::Format("/T/kind%d", k), static_cast<long>(ronde));
                ::_exit(bestand.bewaar(*config) == kern::InstellingenBestand::Geschreven ? 0 : 1);
            }
        ::close(start[0]), ::close(start[1]);
        for (const pid_t kind : kinderen) {
            int status = 0;
            ::waitpid(kind, &status, 0);
            ASSERT_EQ(status, 0) << "round " << ronde;
        }
        const auto config = kern::InstellingenBestand(pad).lees();
        for (const char* sleutel : {"/T/kind0", "/T/kind1"})
            ASSERT_EQ(config->ReadLong(sleutel, -1), ronde) << sleutel << " in round " << ronde;
    }
}

// What reading takes, and whether the file counts as damaged (-1: not asked);
// null where the value goes, so that its reader takes the default.
TEST_F(Bestand, ReadingTakesWhatItCanAndTellsWhetherTheFileWasDamaged)
{
    const std::string goed = "\xc2\xa0\xdf\xbf\xe0\xa0\x80\xed\x9f\xbf\xef\xbf\xbd\xf0\x90\x80\x80\xf4\x8f\xbf\xbf";
    struct Rij { std::string inhoud; const char *sleutel, *waarde; int beschadigd; };
    std::vector<Rij> rijen = {
        {"\xEF\xBB\xBF  [A]  \r\nx = 1\r\n#x=2\n;x=3\n", "/A/x", "1", 0},
        {"[A]\nx=" + goed + "\n", "/A/x", goed.c_str(), 0},
        {"[A]\ny=\x80\nx=jos\xc3\xa9\n", "/A/x", "jos\xc3\xa9", 1}, // one bad byte spoils no other line
        {"[A]\nx=jos\xc3\xa9\ny=\xe9\n", "/A/x", "jos\xc3\xa9", 1},
        {"[A]\nx=1\n[B]\ny=2\n[A]\nx=3\n", "/A/x", "3", 1},
        {"[A]\nx =1\n x=2\n", "/A/x", "2", 1},
        {"[A\n[A]\nrommel\nx=1\n", "/A/x", "1", 1},
        {"[Gebruikersinstellingen]\nEncoding=99999\n", "/Gebruikersinstellingen/Encoding", nullptr, -1},
        {"[Gebruikersinstellingen]\nEncoding=Nederlands\n", "/Gebruikersinstellingen/Encoding", nullptr, -1},
        {"[Gebruikersinstellingen]\nEncoding=57\n", "/Gebruikersinstellingen/Encoding", "57", 0},
        {"[Configuratie]\nVoegSBestandenToe=0\n", "/Configuratie/VoegSBestandenToe", "0", 0},
        {"[Configuratie]\nVoegSBestandenToe=1\n", "/Configuratie/VoegSBestandenToe", "1", 0},
        {"[Configuratie]\nVoegSBestandenToe=2\n", "/Configuratie/VoegSBestandenToe", nullptr, -1},
        {"[Configuratie]\nVoegCBestandenToe=-1\n", "/Configuratie/VoegCBestandenToe", nullptr, -1},
        {"[Configuratie]\nProjektsoort=99\n", "/Configuratie/Projektsoort", "99", 0}, // the window's to judge
    };
    for (const char* slecht : {"\xc1\xbf", "\xe0\x9f\xbf", "\xed\xa0\x80", "\xf0\x8f\xbf\xbf", "\xf4\x90\x80\x80",
                               "\xf5\x80\x80\x80", "\xe2\x82\xe2"}) // overlong, surrogate, too high, cut short
        rijen.push_back({"[A]\nx=" + std::string(slecht) + "\n", "/A/x", nullptr, 1});
    for (const auto& rij : rijen) {
        std::ofstream(doel.ToStdString(), std::ios::binary | std::ios::trunc) << rij.inhoud;
        kern::InstellingenBestand bestand(doel.ToStdString());
        wxString waarde;
        const bool gevonden = bestand.lees()->Read(rij.sleutel, &waarde);
        EXPECT_EQ(gevonden ? waarde.utf8_string() : "(none)", rij.waarde ? rij.waarde : "(none)") << rij.inhoud;
        if (rij.beschadigd >= 0)
            EXPECT_EQ(bestand.isBeschadigd(), rij.beschadigd == 1) << rij.inhoud;
    }
}

// The settings file lives in HOME byte for byte, whatever the locale; a
// relative HOME is taken from the working directory.
TEST(InstellingenPad, HomeAsTheFileSystemSpellsIt)
{
    const std::string bewaard = std::getenv("HOME") ? std::getenv("HOME") : "";
    std::setlocale(LC_ALL, "C");
    ::setenv("HOME", "/tmp/\xc5\x82\xc3\xb3\x64\xc5\xba", 1);
    EXPECT_EQ(kern::geefInstellingenPad("Klavermol"), "/tmp/\xc5\x82\xc3\xb3\x64\xc5\xba/.Klavermol");
    ::setenv("HOME", "thuis/", 1);
    EXPECT_EQ(kern::geefInstellingenPad("Klavermol"), wxGetCwd().utf8_string() + "/thuis/.Klavermol");
    ::setenv("HOME", bewaard.c_str(), 1);
}

} // namespace
