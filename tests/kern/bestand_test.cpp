// Writing a generated file whole or not at all.
#include "kern/bestand.h"
#include "kern/instellingenbestand.h"

#include "storing.h"

#include <gtest/gtest.h>
#include <wx/dir.h>
#include <wx/filename.h>

#include <clocale>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <sys/stat.h>
#include <sys/wait.h>

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
    void TearDown() override
    {
        ::chmod(map.c_str(), 0777);
        wxFileName::Rmdir(map, wxPATH_RMDIR_RECURSIVE);
    }

    std::string lees() const
    {
        std::ifstream in(doel.ToStdString(), std::ios::binary);
        return std::string(std::istreambuf_iterator<char>(in), {});
    }
    void zetOud() const { std::ofstream(doel.ToStdString()) << "oud"; }
    // The names in the directory: nothing may be left beside the target.
    wxArrayString inhoud() const
    {
        wxArrayString namen;
        wxDir::GetAllFiles(map, &namen, "", wxDIR_FILES | wxDIR_HIDDEN);
        return namen;
    }
    // Writes as the unprivileged user; "1" when it succeeded.
    std::string schrijfAlsNiemand(const wxString& tekst) const
    {
        return alsNiemand([&] { return std::string(kern::schrijfTekstBestand(doel, tekst) ? "1" : "0"); });
    }

    wxString map, doel;
};

TEST_F(Bestand, ReplacesTheOldFileWholeInUtf8)
{
    zetOud();
    ASSERT_TRUE(kern::schrijfTekstBestand(doel, wxString::FromUTF8("caf\xc3\xa9\n")));
    EXPECT_EQ(lees(), "caf\xc3\xa9\n");
    EXPECT_EQ(inhoud().size(), 1u);
}

TEST_F(Bestand, AFullDiskLeavesTheOldFileAndNoTemporaryFile)
{
    zetOud();
    bool geschreven = true;
    {
        VolleSchijf vol;
        geschreven = kern::schrijfTekstBestand(doel, wxString('x', 100000));
    }
    EXPECT_FALSE(geschreven);
    EXPECT_EQ(lees(), "oud");
    EXPECT_EQ(inhoud().size(), 1u);
}

TEST_F(Bestand, AnUnwritableDirectoryOrAReadOnlyFileIsRefused)
{
    ::chmod(map.c_str(), 0555);
    EXPECT_EQ(schrijfAlsNiemand("nieuw"), "0");
    EXPECT_FALSE(wxFileName::FileExists(doel));

    ::chmod(map.c_str(), 0777);
    zetOud();
    ::chmod(doel.c_str(), 0444);
    EXPECT_EQ(schrijfAlsNiemand("nieuw"), "0");
    EXPECT_EQ(lees(), "oud");
    EXPECT_EQ(inhoud().size(), 1u);
}

// Where the file cannot simply be renamed over, its content changes where it
// lies; a link is followed; owner, group and mode stay.
TEST_F(Bestand, TheUsersFileKeepsItsPlaceLinksOwnerAndMode)
{
    zetOud();
    const std::string d = doel.ToStdString(), m = map.ToStdString();
    ::symlink("CMakeLists.txt", (m + "/link").c_str());
    ::link(d.c_str(), (m + "/tweede").c_str());
    ::chown(d.c_str(), 65534, 65534);
    ::chmod(d.c_str(), 0646);
    ASSERT_TRUE(kern::schrijfTekstBestand(map + "/link", wxString("via de link")));
    struct stat st, link;
    ASSERT_EQ(::lstat((m + "/link").c_str(), &link), 0);
    EXPECT_TRUE(S_ISLNK(link.st_mode));
    std::ifstream tweede(m + "/tweede");
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(tweede), {}), "via de link") << "hard link broken";
    ASSERT_EQ(::stat(d.c_str(), &st), 0);
    EXPECT_EQ(st.st_mode & 07777, 0646u);
    if (::geteuid() == 0)
        EXPECT_EQ(st.st_uid * 100000 + st.st_gid, 65534u * 100000 + 65534u);
    {
        VolleSchijf vol; // in place too, a failed write leaves the old text
        EXPECT_FALSE(kern::schrijfTekstBestand(doel, wxString('x', 100000)));
    }
    EXPECT_EQ(lees(), "via de link");
    EXPECT_EQ(inhoud().size(), 3u);

    // a writable file in a directory that is not writable
    ::unlink((m + "/tweede").c_str());
    ::unlink((m + "/link").c_str());
    ::chmod(m.c_str(), 0555);
    EXPECT_EQ(schrijfAlsNiemand("in place"), "1");
    EXPECT_EQ(lees(), "in place");
    EXPECT_EQ(inhoud().size(), 1u);

    ::mkfifo((m + "/fifo").c_str(), 0666);
    wxString reden;
    EXPECT_FALSE(kern::schrijfTekstBestand(map + "/fifo", wxString("x"), &reden));
    EXPECT_EQ(reden, "not a regular file");
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
        if (kind == 0) {
            for (char teken = 'b';; teken = teken == 'z' ? 'b' : teken + 1) {
                ::write(buis[1], "x", 1);
                kern::schrijfTekstBestand(doel, std::string(groot.size(), teken));
            }
        }
        char gelezen;
        for (int n = 0; n <= ronde % 3; ++n)
            ASSERT_EQ(::read(buis[0], &gelezen, 1), 1);
        ::kill(kind, SIGKILL);
        ::waitpid(kind, nullptr, 0);
        ::close(buis[0]);
        ::close(buis[1]);
        const std::string nu = lees();
        ASSERT_EQ(nu.size(), groot.size()) << "round " << ronde;
        ASSERT_EQ(nu.find_first_not_of(nu[0]), std::string::npos) << "round " << ronde;
        const wxArrayString namen = inhoud();
        ASSERT_LE(namen.size(), 2u) << "round " << ronde;
        for (const wxString& naam : namen)
            if (naam != doel) {
                EXPECT_TRUE(naam.StartsWith(map + "/.CMakeLists.txt.klavermol-")) << naam;
                wxRemoveFile(naam);
            }
    }
}

// Instances that exit at the same moment each keep their own change.
TEST_F(Bestand, InstancesSavingTogetherKeepEachOthersChanges)
{
    const std::string pad = (map + "/.Klavermol").ToStdString();
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
        ::close(start[0]);
        ::close(start[1]);
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

// The settings file lives in HOME byte for byte, whatever the locale; a
// relative HOME is taken from the working directory.
TEST(InstellingenPad, HomeAsTheFileSystemSpellsIt)
{
    const char* oud = std::getenv("HOME");
    const std::string bewaard = oud ? oud : "";
    std::setlocale(LC_ALL, "C");
    ::setenv("HOME", "/tmp/\xc5\x82\xc3\xb3\x64\xc5\xba", 1);
    EXPECT_EQ(kern::geefInstellingenPad("Klavermol"), "/tmp/\xc5\x82\xc3\xb3\x64\xc5\xba/.Klavermol");
    ::setenv("HOME", "thuis/", 1);
    EXPECT_EQ(kern::geefInstellingenPad("Klavermol"), wxGetCwd().utf8_string() + "/thuis/.Klavermol");
    ::setenv("HOME", bewaard.c_str(), 1);
}

} // namespace
