// Files the user owns, written whole or not at all, and the settings file.
#include "kern/bestand.h"
#include "kern/instellingenbestand.h"

#include "storing.h"

#include <gtest/gtest.h>
#include <wx/dir.h>
#include <wx/filename.h>

#include <clocale>
#include <fcntl.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <thread>

namespace {

using namespace std::string_literals;

// What `werk` gives on a thread where opening a file without a name (`nr` openat) or setting room
// aside (`nr` fallocate) fails with `fout`.
bool metStoring(long nr, int fout, const std::function<bool()>& werk)
{
    bool uit = false;
    std::thread([&] {
        const bool ruimte = nr == SYS_fallocate; // its mode, or openat's flags
        sock_filter filter[] = {
            BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
            BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, static_cast<unsigned>(nr), 0, 3),
            BPF_STMT(BPF_LD | BPF_W | BPF_ABS, static_cast<__u32>(offsetof(seccomp_data, args) + (ruimte ? 8 : 16))),
            BPF_JUMP(BPF_JMP | BPF_JSET | BPF_K, static_cast<__u32>(ruimte ? FALLOC_FL_KEEP_SIZE : O_TMPFILE & ~O_DIRECTORY), 0, 1),
            BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | static_cast<unsigned>(fout)),
            BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW)};
        const sock_fprog programma{sizeof filter / sizeof *filter, filter};
        ASSERT_EQ(::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0), 0);
        ASSERT_EQ(::prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &programma), 0);
        uit = werk();
    }).join();
    return uit;
}

class Bestand : public ::testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_EQ(::chmod(::mkdtemp(m.data()), 0777), 0);
        d = m + "/CMakeLists.txt", map = m, doel = d;
    }
    void TearDown() override { ::chmod(m.c_str(), 0777), wxFileName::Rmdir(map, wxPATH_RMDIR_RECURSIVE); }

    size_t aantal(wxArrayString* namen = nullptr) const // nothing may be left beside the target
    {
        wxArrayString eigen;
        return wxDir::GetAllFiles(map, namen ? namen : &eigen, "", wxDIR_FILES | wxDIR_HIDDEN);
    }
    std::string staat() const { return leesBestand(d) + "|" + std::to_string(aantal()); } // text and file count
    bool schrijfVol() const { VolleSchijf vol; return kern::schrijfTekstBestand(doel, wxString('x', 100000)); }
    std::string schrijfAlsNiemand() const // "1" when it succeeded, and the state after
    {
        const std::string gelukt = alsNiemand([&] { return kern::schrijfTekstBestand(doel, "nieuw"s) ? "1" : "0"; });
        return gelukt + staat();
    }

    std::string m = "/tmp/klavermol-bestand-XXXXXX", d;
    wxString map, doel;
};

// A new file takes its mode from the umask. Where the file cannot be renamed over, it changes where it
// lies; links are followed; owner, group and mode stay. A full disk leaves everything as it was.
TEST_F(Bestand, ReplacesTheFileWholeOrNotAtAllKeepingItsPlaceLinksOwnerAndMode)
{
    ASSERT_TRUE(kern::schrijfTekstBestand(doel, wxString::FromUTF8("caf\xc3\xa9\n")));
    struct stat st, link;
    const mode_t masker = ::umask(0);
    ::umask(masker);
    EXPECT_EQ(::stat(d.c_str(), &st) == 0 ? st.st_mode & 07777 : 1, 0666 & ~masker);
    EXPECT_FALSE(schrijfVol());
    EXPECT_EQ(staat(), "caf\xc3\xa9\n|1");
    ::symlink("CMakeLists.txt", (m + "/link").c_str()), ::link(d.c_str(), (m + "/tweede").c_str());
    ::chown(d.c_str(), 65534, 65534), ::chmod(d.c_str(), 0646);
    ASSERT_TRUE(kern::schrijfTekstBestand(map + "/link", wxString("via de link")));
    ASSERT_EQ(::lstat((m + "/link").c_str(), &link) + ::stat(d.c_str(), &st), 0);
    EXPECT_TRUE(S_ISLNK(link.st_mode));
    EXPECT_EQ(leesBestand(m + "/tweede"), "via de link") << "hard link broken";
    EXPECT_EQ(st.st_mode & 07777, 0646u);
    if (::geteuid() == 0)
        EXPECT_EQ(st.st_uid * 100000 + st.st_gid, 65534u * 100000 + 65534u);
    EXPECT_FALSE(schrijfVol()); // in place too
    EXPECT_EQ(staat(), "via de link|3");
    const std::string groot(5000, 'g'); // too big for the copy of the old text on a full disk
    ASSERT_TRUE(kern::schrijfTekstBestand(doel, groot));
    EXPECT_FALSE(schrijfVol());
    EXPECT_EQ(staat(), groot + "|3");
    ::unlink((m + "/tweede").c_str()), ::unlink((m + "/link").c_str()), ::chmod(m.c_str(), 0555);
    EXPECT_EQ(schrijfAlsNiemand(), "1nieuw|1"); // a writable file in a closed directory, then none there
    ::unlink(d.c_str());
    EXPECT_EQ(schrijfAlsNiemand(), "0|0");
    ::mkfifo((m + "/fifo").c_str(), 0666);
    wxString reden = "geschreven";
    EXPECT_EQ(kern::schrijfTekstBestand(map + "/fifo", wxString("x"), &reden) ? "" : reden, "not a regular file");
}

// Where the system refuses a file without a name the save takes a named one, unless the refusal says
// why no file can be written; where it cannot set room aside first it writes in place all the same.
TEST_F(Bestand, RefusalsOfTheSystemEndTheSaveOrTakeAnotherWay)
{
    const struct { long nr; int fout; const char* reden; } rijen[] = {
        {SYS_openat, EOPNOTSUPP, ""}, {SYS_openat, EACCES, "Permission denied"},
        {SYS_openat, EDQUOT, "Disk quota exceeded"}, {SYS_openat, ENOSPC, "No space left on device"},
        {SYS_openat, EROFS, "Read-only file system"},
        {SYS_fallocate, EOPNOTSUPP, ""}, {SYS_fallocate, ENOSYS, ""}, {SYS_fallocate, EINVAL, ""},
        {SYS_fallocate, EIO, "Input/output error"}};
    for (const auto& rij : rijen) {
        std::ofstream(d) << "oud";
        ::unlink((m + "/tweede").c_str());
        if (rij.nr == SYS_fallocate) // a second hard link: written in place
            ::link(d.c_str(), (m + "/tweede").c_str());
        wxString reden;
        const auto schrijf = [&] { return kern::schrijfTekstBestand(doel, "nieuw"s, &reden); };
        const bool gelukt = metStoring(rij.nr, rij.fout, schrijf);
        EXPECT_EQ((gelukt ? "" : reden.utf8_string()) + "|" + staat(),
                  rij.reden + std::string(*rij.reden ? "|oud|" : "|nieuw|") + (rij.nr == SYS_fallocate ? "2" : "1"))
            << rij.fout;
    }
}

// Killed at any moment of a save, the target holds the old text or the new one, and at most one
// temporary file with a recognisable name is left.
TEST_F(Bestand, AKillDuringASaveNeverLosesTheFile)
{
    ASSERT_TRUE(kern::schrijfTekstBestand(doel, std::string(1200000, 'a')));
    for (int ronde = 0; ronde < 30; ++ronde) {
        int buis[2];
        ASSERT_EQ(::pipe(buis), 0);
        const pid_t kind = ::fork();
        for (char teken = 'b'; kind == 0; teken = teken == 'z' ? 'b' : teken + 1)
            ::write(buis[1], "x", 1), kern::schrijfTekstBestand(doel, std::string(1200000, teken));
        char gelezen;
        for (int n = 0; n <= ronde % 3; ++n)
            ASSERT_EQ(::read(buis[0], &gelezen, 1), 1);
        ::kill(kind, SIGKILL), ::waitpid(kind, nullptr, 0), ::close(buis[0]), ::close(buis[1]);
        const std::string nu = leesBestand(d);
        ASSERT_TRUE(nu.size() == 1200000 && nu.find_first_not_of(nu[0]) == std::string::npos) << "round " << ronde;
        wxArrayString namen;
        ASSERT_LE(aantal(&namen), 2u) << "round " << ronde;
        for (const wxString& naam : namen)
            if (naam != doel)
                EXPECT_TRUE(naam.StartsWith(map + "/.CMakeLists.txt.klavermol-") && wxRemoveFile(naam)) << naam;
    }
}

// A key this instance did not change since it read or last wrote the file takes what another instance
// wrote meanwhile; its own changes win. Two instances that save at the same moment each keep their own.
TEST_F(Bestand, ASaveKeepsWhatAnotherInstanceWrote)
{
    std::ofstream(d) << "[C]\nEigen=begin\nAnder=begin\n";
    kern::InstellingenBestand bestand(d);
    const auto config = bestand.lees();
    config->Write("/C/Eigen", "eigen");
    for (const char* ander : {"[C]\nEigen=ander\nAnder=ander\n[N]\nNieuw=1\n", "[C]\nEigen=derde\n"}) {
        std::ofstream(d) << ander;
        ASSERT_EQ(bestand.bewaar(*config), kern::InstellingenBestand::Geschreven);
    }
    const auto na = kern::InstellingenBestand(d).lees();
    EXPECT_EQ(na->Read("/C/Eigen") + na->Read("/C/Ander") + na->Read("/N/Nieuw"), "derdeander1");
    for (int ronde = 0; ronde < 30; ++ronde) {
        int start[2];
        ASSERT_EQ(::pipe(start), 0);
        pid_t kinderen[2];
        for (int k = 0; k < 2; ++k)
            if ((kinderen[k] = ::fork()) == 0) {
                char c;
                ::close(start[1]), ::read(start[0], &c, 1); // all go at once when the pipe closes
                kern::InstellingenBestand bestand(d);
                const auto config = bestand.lees();
                config->Write(wxString::Format("/T/kind%d", k), static_cast<long>(ronde));
                ::_exit(bestand.bewaar(*config) == kern::InstellingenBestand::Geschreven ? 0 : 1);
            }
        int status[2] = {-1, -1};
        ::close(start[0]), ::close(start[1]), ::waitpid(kinderen[0], status, 0), ::waitpid(kinderen[1], status + 1, 0);
        const auto config = kern::InstellingenBestand(d).lees();
        ASSERT_EQ(wxString::Format("%d %d %ld %ld", status[0], status[1], config->ReadLong("/T/kind0", -1),
                                   config->ReadLong("/T/kind1", -1)), wxString::Format("0 0 %d %d", ronde, ronde));
    }
}

// What reading takes, and whether the file counts as damaged (-1: not asked); null where the value
// goes, so that its reader takes the default.
TEST_F(Bestand, ReadingTakesWhatItCanAndTellsWhetherTheFileWasDamaged)
{
    const std::string goed = "\xc2\xa0\xdf\xbf\xe0\xa0\x80\xed\x9f\xbf\xef\xbf\xbd\xf0\x90\x80\x80\xf4\x8f\xbf\xbf";
    struct Rij { std::string inhoud; const char *sleutel, *waarde; int beschadigd; };
    std::vector<Rij> rijen = {
        {"\xEF\xBB\xBF  [A]  \r\nx = 1\r\n#x=2\n;x=3\n", "/A/x", "1", 0},
        {"[A]\nx=" + goed + "\n", "/A/x", goed.c_str(), 0},
        {"[A]\ny=\x80\nx=jos\xc3\xa9\n", "/A/x", "jos\xc3\xa9", 1}, // one bad byte spoils no other line
        {"[A]\nx=jos\xc3\xa9\ny=\xe9\n", "/A/x", "jos\xc3\xa9", 1},
        {"[A]\nx=1\n[B]\ny=2\n[A]\nx=3\n", "/A/x", "3", 1}, {"[A]\nx =1\n x=2\n", "/A/x", "2", 1},
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
        std::ofstream(d, std::ios::binary | std::ios::trunc) << rij.inhoud;
        kern::InstellingenBestand bestand(d);
        wxString waarde;
        const bool gevonden = bestand.lees()->Read(rij.sleutel, &waarde);
        EXPECT_EQ(gevonden ? waarde.utf8_string() : "(none)", rij.waarde ? rij.waarde : "(none)") << rij.inhoud;
        EXPECT_TRUE(rij.beschadigd < 0 || bestand.isBeschadigd() == (rij.beschadigd == 1)) << rij.inhoud;
    }
}

// The settings file lives in HOME byte for byte, whatever the locale; a relative HOME is taken from the
// working directory; a trailing separator goes.
TEST(InstellingenPad, HomeAsTheFileSystemSpellsIt)
{
    const std::string bewaard = std::getenv("HOME") ? std::getenv("HOME") : "";
    std::setlocale(LC_ALL, "C");
    const std::string lodz = "/tmp/\xc5\x82\xc3\xb3\x64\xc5\xba";
    for (const auto& [thuis, pad] : {std::pair{lodz, lodz + "/.Klavermol"}, {"/", "/.Klavermol"}, {"//", "/.Klavermol"},
                                     {"thuis/", wxGetCwd().utf8_string() + "/thuis/.Klavermol"}}) {
        ::setenv("HOME", thuis.c_str(), 1);
        EXPECT_EQ(kern::geefInstellingenPad("Klavermol"), pad) << thuis;
    }
    ::setenv("HOME", bewaard.c_str(), 1);
}

} // namespace
