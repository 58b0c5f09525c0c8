// The command-line front end, run as a separate program.
#include "kern/generator.h"

#include <gtest/gtest.h>
#include <wx/filename.h>

#include <cstdio>
#include <fstream>
#include <iterator>
#include <sys/wait.h>

namespace {

struct Uitslag
{
    int code;
    std::string uit;
    std::string fout;
};

class Cli : public ::testing::Test
{
protected:
    void SetUp() override
    {
        char sjabloon[] = "/tmp/klavermol-cli-XXXXXX";
        ASSERT_NE(mkdtemp(sjabloon), nullptr);
        map = sjabloon;
        for (const char* pad : {"p/main.c", "p/src/a.c", "p/src/b.cpp", "p/inc/a.h", "p/asm/start.S", "p/.verborgen.c",
                                "lib/CMakeLists.txt", "cmake/extra.cmake", "cmake/geen.txt"})
            maak(pad, "\n");
    }

    void TearDown() override { wxFileName::Rmdir(map, wxPATH_RMDIR_RECURSIVE); }

    void maak(const std::string& pad, const std::string& inhoud)
    {
        const wxString vol = map + "/" + pad;
        wxFileName::Mkdir(wxFileName(vol).GetPath(), wxS_DIR_DEFAULT, wxPATH_MKDIR_FULL);
        std::ofstream(vol.ToStdString()) << inhoud;
    }

    Uitslag voerUit(const std::string& argumenten, const std::string& omgeving = "")
    {
        const std::string foutBestand = (map + "/stderr.txt").ToStdString();
        const std::string opdracht = "cd " + map.ToStdString() + " && HOME=" + map.ToStdString() +
                                     " SOURCE_DATE_EPOCH=1599485122 " + omgeving + " " KLAVERMOL_BIN_DIR
                                     "/klavermol-cli " + argumenten + " 2>" + foutBestand;
        FILE* p = popen(opdracht.c_str(), "r");
        Uitslag u{};
        char blok[4096];
        size_t n;
        while ((n = fread(blok, 1, sizeof blok, p)) > 0)
            u.uit.append(blok, n);
        const int status = pclose(p);
        u.code = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
        std::ifstream f(foutBestand);
        u.fout.assign(std::istreambuf_iterator<char>(f), {});
        return u;
    }

    // What the generators give for the same state.
    std::string verwacht(kern::GeneratorInvoer invoer)
    {
        invoer.sjablonen = kern::geefStandaardSjablonen();
        invoer.datum = "2020-09-07 13:25:22";
        if (invoer.naam.empty())
            invoer.naam = "MyFirstProject";
        kern::Werklijsten werk;
        wxString tekst;
        kern::maakUitvoer(invoer, werk, tekst);
        return tekst.utf8_string();
    }

    wxString map;
};

} // namespace

TEST_F(Cli, PrintsWhatExecuteWouldShow)
{
    const Uitslag u = voerUit("-o p --c --h -m recursive p");
    ASSERT_EQ(u.code, 0) << u.fout;
    kern::GeneratorInvoer in;
    in.uitvoerDir = map + "/p";
    for (const char* b : {"/p/src/a.c", "/p/main.c", "/p/inc/a.h"})
        in.bronnen.Add(map + b);
    EXPECT_EQ(u.uit, verwacht(in));
    EXPECT_TRUE(u.fout.empty()) << u.fout;
}

TEST_F(Cli, OptionsChooseKindNameTypesAndLists)
{
    const Uitslag u = voerUit("-k library -n rekenen -l object -t crosscompile -o p --cpp --asm p/src p/asm "
                              "-f p/main.c --subdir lib=mylib --include cmake/extra.cmake -x p/asm/start.S");
    ASSERT_EQ(u.code, 0) << u.fout;
    kern::GeneratorInvoer in;
    in.soort = kern::SoortBieb;
    in.biebType = 2;
    in.projektType = 1;
    in.naam = "rekenen";
    in.uitvoerDir = map + "/p";
    in.bronnen.Add(map + "/p/src/b.cpp");
    in.bronnen.Add(map + "/p/main.c");
    in.biebs.push_back({map + "/lib", "mylib", true});
    in.includes.push_back({map + "/cmake/extra.cmake", true});
    EXPECT_EQ(u.uit, verwacht(in));
}

TEST_F(Cli, DuplicatesAreReportedAndTheRunGoesOn)
{
    const Uitslag u = voerUit("-o p --c p/src p/src -f p/src/a.c --subdir lib=x --subdir lib=y");
    ASSERT_EQ(u.code, 0);
    const std::string a = (map + "/p/src/a.c").ToStdString();
    EXPECT_EQ(u.fout, a + " won't be added since it is already in your selection list.\n" + a +
                          " won't be added since it is already in your selection list.\n"
                          "CMakeLists.txt won't be added since it is already in your selection list.\n");
    EXPECT_NE(u.uit.find("set(SRCS0 a.c )"), std::string::npos);
    EXPECT_NE(u.uit.find("target_link_libraries(${ProjectName} x )"), std::string::npos);
}

TEST_F(Cli, WriteSavesTheFileAndIncludeTakesTheNameDotCmake)
{
    Uitslag u = voerUit("-w -o p --c p");
    ASSERT_EQ(u.code, 0) << u.fout;
    EXPECT_TRUE(u.uit.empty());
    EXPECT_TRUE(wxFileName::FileExists(map + "/p/CMakeLists.txt"));
    u = voerUit("-w -k include -n Common -o p --h p/inc");
    ASSERT_EQ(u.code, 0) << u.fout;
    std::ifstream f((map + "/p/Common.cmake").ToStdString());
    const std::string inhoud((std::istreambuf_iterator<char>(f)), {});
    EXPECT_EQ(inhoud.rfind("## Klavermol generated Common include file\n", 0), 0u);
}

TEST_F(Cli, TemplatesComeFromTheStoreOrASettingsFile)
{
    maak(".Klavermol", "[Configuratie]\nProjektKommando=add_executable(${ProjectName} ${SRCS})\n");
    Uitslag u = voerUit("-o p");
    EXPECT_NE(u.uit.find("\nadd_executable(${ProjectName} ${SRCS})\ntarget_link_libraries"), std::string::npos);
    maak("andere.ini", "[Configuratie]\nProjektKommando=## from elsewhere\n");
    u = voerUit("-o p --settings andere.ini", "SRCS=omgeving");
    EXPECT_NE(u.uit.find("\n## from elsewhere\ntarget_link_libraries"), std::string::npos);
}

TEST_F(Cli, ErrorsGiveAMessageAndANonZeroExitAndNoFile)
{
    const struct
    {
        const char* argumenten;
        int code;
        const char* melding;
    } gevallen[] = {
        {"-o p --bogus", 2, "Unknown long option 'bogus'"},
        {"--c p", 2, "output-dir"},
        {"-o p --c nergens", 1, "no such directory: nergens"},
        {"-o p p", 1, "at least one of --c, --cpp, --h and --asm"},
        {"-o p --subdir cmake=x", 1, "The selected dir does not contain a CMakeLists.txt file."},
        {"-o p --subdir lib", 1, "--subdir takes DIR=LIBNAME"},
        {"-o p --include cmake/geen.txt", 1, "not a CMake include file (*.cmake): cmake/geen.txt"},
        {"-o p -k boek", 1, "--kind must be one of project|library|include"},
        {"-o p --settings ontbreekt.ini", 1, "cannot read the settings file ontbreekt.ini"},
        {"-w -o p/bestaat/niet --c p", 1, "no such output directory"},
    };
    for (const auto& geval : gevallen) {
        const Uitslag u = voerUit(geval.argumenten);
        EXPECT_EQ(u.code, geval.code) << geval.argumenten;
        EXPECT_NE(u.fout.find(geval.melding), std::string::npos) << geval.argumenten << ": " << u.fout;
        EXPECT_TRUE(u.uit.empty()) << geval.argumenten;
    }
    EXPECT_FALSE(wxFileName::FileExists(map + "/p/CMakeLists.txt"));
}

TEST_F(Cli, AnUnwritableTargetKeepsTheOldFile)
{
    wxFileName::Mkdir(map + "/p/CMakeLists.txt"); // a directory stands where the file should go
    const Uitslag u = voerUit("-w -o p --c p");
    EXPECT_EQ(u.code, 1);
    EXPECT_NE(u.fout.find("Failed to open output file " + (map + "/p/CMakeLists.txt").ToStdString() +
                          " for writing to."),
              std::string::npos);
    EXPECT_TRUE(wxFileName::DirExists(map + "/p/CMakeLists.txt"));
}
