// Writing a generated file whole or not at all.
#include "kern/bestand.h"

#include "storing.h"

#include <gtest/gtest.h>
#include <wx/dir.h>
#include <wx/filename.h>

#include <fstream>
#include <iterator>
#include <sys/stat.h>

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

} // namespace
