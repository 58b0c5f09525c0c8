// Files the user owns, written whole or not at all, and the settings file.
#include "kern/bestand.h"
#include "kern/instellingenbestand.h"

#include "bronboom_test.h"
#include "storing.h"

#include <fcntl.h>
#include <future>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <sys/syscall.h>

namespace {

// What `werk` gives on a thread where a nameless file (`nr` openat) or setting room aside (fallocate) fails.
bool metStoring(long nr, int fout, const std::function<bool()>& werk)
{
    return std::async(std::launch::async, [&] {
        const bool ruimte = nr == SYS_fallocate; // its mode, or openat's flags
        sock_filter filter[] = {BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
            BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, static_cast<unsigned>(nr), 0, 3),
            BPF_STMT(BPF_LD | BPF_W | BPF_ABS, static_cast<__u32>(offsetof(seccomp_data, args) + (ruimte ? 8 : 16))),
            BPF_JUMP(BPF_JMP | BPF_JSET | BPF_K, static_cast<__u32>(ruimte ? FALLOC_FL_KEEP_SIZE : O_TMPFILE & ~O_DIRECTORY), 0, 1),
            BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | static_cast<unsigned>(fout)), BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW)};
        const sock_fprog programma{sizeof filter / sizeof *filter, filter};
        EXPECT_EQ(::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) + ::prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &programma), 0);
        return werk();
    }).get();
}

struct Bestand : ::testing::Test {
    TijdelijkeBoom boom;
    const std::string d = boom.pad("CMakeLists.txt");
    wxString reden = "geschreven";
    wxArrayString namen() const { wxArrayString n; wxDir::GetAllFiles(boom.map(), &n, "", wxDIR_FILES | wxDIR_HIDDEN); return n; }
    const std::string& zet(const std::string& inhoud) const { return std::ofstream(d) << inhoud, d; }
    std::string staat() const { return leesBestand(d) + "|" + std::to_string(namen().size()); } // text and file count
    std::string schrijfVol() const // a big text on a full disk: "1" when written, and the state after
    { return (VolleSchijf(), kern::schrijfTekstBestand(d, wxString('x', 100000))) ? "1" + staat() : "0" + staat(); }
};

// New files follow the umask; links, owner and mode stay; a full disk or a closed directory changes nothing.
TEST_F(Bestand, ReplacesTheFileWholeOrNotAtAllKeepingItsPlaceLinksOwnerAndMode)
{
    ASSERT_TRUE(kern::schrijfTekstBestand(d, wxString::FromUTF8("caf\xc3\xa9\n")));
    struct stat st, link;
    EXPECT_EQ(::stat(d.c_str(), &st) == 0 ? st.st_mode & 07777 : 1, 0666 & ~[] { const auto m = ::umask(0); return ::umask(m) | m; }());
    EXPECT_EQ(schrijfVol(), "0caf\xc3\xa9\n|1");
    ::symlink("CMakeLists.txt", boom.pad("link").c_str()), ::link(d.c_str(), boom.pad("tweede").c_str());
    ::chown(d.c_str(), 65534, 65534), ::chmod(d.c_str(), 0646);
    ASSERT_TRUE(kern::schrijfTekstBestand(boom.map("link"), wxString("via de link")));
    ASSERT_EQ(::lstat(boom.pad("link").c_str(), &link) + ::stat(d.c_str(), &st), 0);
    EXPECT_EQ(wxString::Format("%d %s %o %d", S_ISLNK(link.st_mode), leesBestand(boom.pad("tweede")), st.st_mode & 07777,
                               (st.st_uid == 65534 && st.st_gid == 65534) || ::geteuid() != 0), "1 via de link 646 1");
    EXPECT_EQ(schrijfVol(), "0via de link|3"); // in place too
    ASSERT_TRUE(kern::schrijfTekstBestand(d, std::string(5000, 'g'))); // too big for a copy of the old text
    EXPECT_EQ(schrijfVol(), std::string(5000, 'g').insert(0, "0") + "|3");
    ::unlink(boom.pad("tweede").c_str()), ::unlink(boom.pad("link").c_str()), ::chmod(boom.pad("").c_str(), 0555);
    for (const char* verwacht : {"1nieuw|1", "0|0"}) { // a writable file in a closed directory, then none there
        EXPECT_EQ(alsNiemand([&] { return kern::schrijfTekstBestand(d, wxString("nieuw")) ? "1" + staat() : "0" + staat(); }),
                  verwacht);
        ::unlink(d.c_str());
    }
    std::ofstream(d) << "oud";
    ::chmod(d.c_str(), 0444); // marked read-only: refused for root too
    EXPECT_EQ(kern::schrijfTekstBestand(d, wxString("x"), &reden) ? "" : reden + leesBestand(d), "Permission deniedoud");
    ::mkfifo(boom.pad("fifo").c_str(), 0666);
    EXPECT_EQ(kern::schrijfTekstBestand(boom.map("fifo"), wxString("x"), &reden) ? "" : reden, "not a regular file");
}

// A refused nameless file or room aside means another way, unless the refusal says why nothing can be written.
TEST_F(Bestand, RefusalsOfTheSystemEndTheSaveOrTakeAnotherWay)
{
    const struct { long nr; int fout; bool eindigt; } rijen[] = {{SYS_openat, EOPNOTSUPP, false}, {SYS_openat, EACCES, true},
        {SYS_openat, EDQUOT, true}, {SYS_openat, ENOSPC, true}, {SYS_openat, EROFS, true}, {SYS_fallocate, EOPNOTSUPP, false},
        {SYS_fallocate, ENOSYS, false}, {SYS_fallocate, EINVAL, false}, {SYS_fallocate, EIO, true}};
    for (const auto& rij : rijen) {
        zet("oud");
        ::unlink(boom.pad("tweede").c_str()), rij.nr == SYS_fallocate && ::link(d.c_str(), boom.pad("tweede").c_str()); // in place
        const bool gelukt = metStoring(rij.nr, rij.fout, [&] { return kern::schrijfTekstBestand(d, wxString("nieuw"), &reden); });
        EXPECT_EQ((gelukt ? "" : reden.utf8_string()) + "|" + staat(),
                  (rij.eindigt ? std::error_code(rij.fout, std::generic_category()).message() + "|oud|" : "|nieuw|") +
                      (rij.nr == SYS_fallocate ? "2" : "1")) << rij.fout;
    }
}

// Killed during a save: the old text or the new one, and at most one temporary file with a known name.
TEST_F(Bestand, AKillDuringASaveNeverLosesTheFile)
{
    ASSERT_TRUE(kern::schrijfTekstBestand(d, std::string(1200000, 'a')));
    for (int ronde = 0; ronde < 30; ++ronde) {
        int buis[2];
        const pid_t kind = ::pipe(buis) == 0 ? ::fork() : -1;
        for (char teken = 'b'; kind == 0; teken = teken == 'z' ? 'b' : teken + 1)
            ::write(buis[1], "x", 1), kern::schrijfTekstBestand(d, std::string(1200000, teken));
        for (char n = 0, c; n <= ronde % 3; ++n)
            ASSERT_EQ(::read(buis[0], &c, 1), 1);
        ::kill(kind, SIGKILL), ::waitpid(kind, nullptr, 0), ::close(buis[0]), ::close(buis[1]);
        ASSERT_TRUE(leesBestand(d) == std::string(1200000, leesBestand(d)[0]) && namen().size() <= 2) << "round " << ronde;
        for (const wxString& naam : namen())
            EXPECT_TRUE(naam.utf8_string() == d || (naam.StartsWith(boom.map(".CMakeLists.txt.klavermol-")) && wxRemoveFile(naam))) << naam;
    }
}

// Keys this instance left alone take another instance's values, also when both save at once.
TEST_F(Bestand, ASaveKeepsWhatAnotherInstanceWrote)
{
    kern::InstellingenBestand bestand(zet("[C]\nEigen=begin\nAnder=begin\n"));
    const auto config = bestand.lees();
    config->Write("/C/Eigen", "eigen");
    for (const char* ander : {"[C]\nEigen=ander\nAnder=ander\n[N]\nNieuw=1\n", "[C]\nEigen=derde\n"})
        ASSERT_EQ((zet(ander), bestand.bewaar(*config)), kern::InstellingenBestand::Geschreven);
    for (int ronde = 0; ronde < 30; ++ronde) {
        int start[2], status[2] = {-1, -1}, kinderen[2];
        ASSERT_EQ(::pipe(start), 0);
        for (int k = 0; k < 2; ++k)
            if (char c; (kinderen[k] = ::fork()) == 0) { // all go at once when the pipe closes
                const auto config = (::close(start[1]), ::read(start[0], &c, 1), bestand.lees());
                const bool gelukt = config->Write(wxString::Format("/T/kind%d", k), long{ronde});
                ::_exit(gelukt && bestand.bewaar(*config) == kern::InstellingenBestand::Geschreven ? 0 : 1);
            }
        ::close(start[0]), ::close(start[1]), ::waitpid(kinderen[0], status, 0), ::waitpid(kinderen[1], status + 1, 0);
        const auto config = kern::InstellingenBestand(d).lees();
        ASSERT_EQ(wxString::Format("%d %d %ld %ld ", status[0], status[1], config->ReadLong("/T/kind0", -1),
                                   config->ReadLong("/T/kind1", -1)) +
                      config->Read("/C/Eigen") + config->Read("/C/Ander") + config->Read("/N/Nieuw"),
                  wxString::Format("0 0 %d %d derdeander1", ronde, ronde)); // the first save's merge stays too
    }
}

// What reading takes of each key ("-": none, so that its reader takes the default), and whether it saw damage.
TEST_F(Bestand, ReadingTakesWhatItCanAndTellsWhetherTheFileWasDamaged)
{
    const std::string goed = "\xc2\xa0\xdf\xbf\xe0\xa0\x80\xed\x9f\xbf\xef\xbf\xbd\xf0\x90\x80\x80\xf4\x8f\xbf\xbf";
    const struct { std::string inhoud; const char* sleutels; std::string waarden; } rijen[] = {
        {"\xEF\xBB\xBF  [A]  \r\nx = 1\r\n#x=2\n;x=3\nz=" + goed + "\n[Gebruikersinstellingen]\nEncoding=57\n",
         "/A/x /A/z /Gebruikersinstellingen/Encoding", "1 " + goed + " 57 "},
        {"[A]\nz=\x80\nx=jos\xc3\xa9\ny=\xc1\xbf\ny=\xe0\x9f\xbf\ny=\xed\xa0\x80\ny=\xf0\x8f\xbf\xbf\ny=\xf4\x90\x80\x80\n"
         "y=\xf5\x80\x80\x80\ny=\xe2\x82\xe2\ny=\xe9\n", "/A/x /A/y /A/z", "jos\xc3\xa9 - - damaged"}, // one bad line spoils no other
        {"[A]\nx=1\n[B]\ny=2\n[A]\nx=3\n", "/A/x /B/y", "3 2 damaged"}, {"[A]\nx =1\n x=2\n", "/A/x", "2 damaged"},
        {"[A\n[A]\nrommel\nx=1\n", "/A/x", "1 damaged"},
        {"[Gebruikersinstellingen]\nEncoding=Nederlands\n", "/Gebruikersinstellingen/Encoding", "- "},
        {"[Gebruikersinstellingen]\nEncoding=99999\n[Configuratie]\nVoegSBestandenToe=2\nVoegCBestandenToe=-1\n"
         "VoegHBestandenToe=0\nVoegCPPBestandenToe=1\nProjektsoort=99\n", // the last the window's to judge
         "/Gebruikersinstellingen/Encoding /Configuratie/VoegSBestandenToe /Configuratie/VoegCBestandenToe "
         "/Configuratie/VoegHBestandenToe /Configuratie/VoegCPPBestandenToe /Configuratie/Projektsoort",
         "- - - 0 1 99 "},
    };
    for (const auto& rij : rijen) {
        kern::InstellingenBestand bestand(zet(rij.inhoud));
        const auto config = bestand.lees();
        std::string waarden;
        for (const wxString& sleutel : wxSplit(rij.sleutels, ' '))
            waarden += config->Read(sleutel, "-").utf8_string() + " ";
        EXPECT_EQ(waarden + (bestand.isBeschadigd() ? "damaged" : ""), rij.waarden) << rij.inhoud;
    }
}

// The settings file lives in HOME byte for byte, whatever the locale, relative or with trailing separators.
TEST(InstellingenPad, HomeAsTheFileSystemSpellsIt)
{
    const std::string bewaard = std::getenv("HOME") ? std::getenv("HOME") : "", lodz = "/tmp/\xc5\x82\xc3\xb3\x64\xc5\xba";
    std::setlocale(LC_ALL, "C");
    for (const auto& [thuis, pad] : {std::pair{lodz, lodz + "/.Klavermol"}, {"/", "/.Klavermol"}, {"//", "/.Klavermol"},
                                     {"thuis/", wxGetCwd().utf8_string() + "/thuis/.Klavermol"}}) {
        ::setenv("HOME", thuis.c_str(), 1);
        EXPECT_EQ(kern::geefInstellingenPad("Klavermol"), pad) << thuis;
    }
    ::setenv("HOME", bewaard.c_str(), 1);
}

} // namespace
