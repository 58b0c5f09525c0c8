// The command-line front end, run as a separate program.
#include "kern/generator.h"

#include "storing.h"

#include <gtest/gtest.h>
#include <wx/dir.h>
#include <wx/filename.h>

#include <cstdio>
#include <fstream>
#include <iterator>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

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

    std::string leesBestand(const std::string& pad) const
    {
        std::ifstream f((map + "/" + pad).ToStdString());
        return std::string(std::istreambuf_iterator<char>(f), {});
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

TEST_F(Cli, WriteReplacesAnOldFileWholeAndIncludeTakesTheNameDotCmake)
{
    maak("p/CMakeLists.txt", "oud\n");
    Uitslag u = voerUit("-w -o p --c p");
    ASSERT_EQ(u.code, 0) << u.fout;
    EXPECT_TRUE(u.uit.empty());
    kern::GeneratorInvoer in;
    in.uitvoerDir = map + "/p";
    in.bronnen.Add(map + "/p/main.c");
    EXPECT_EQ(leesBestand("p/CMakeLists.txt"), verwacht(in));
    wxArrayString bestanden;
    wxDir::GetAllFiles(map + "/p", &bestanden, "*", wxDIR_FILES | wxDIR_HIDDEN);
    EXPECT_EQ(bestanden.size(), 3u); // main.c, .verborgen.c and the new file

    u = voerUit("-w -k include -n Common -o p --h p/inc");
    ASSERT_EQ(u.code, 0) << u.fout;
    EXPECT_EQ(leesBestand("p/Common.cmake").rfind("## Klavermol generated Common include file\n", 0), 0u);
}

TEST_F(Cli, TemplatesComeFromTheStoreOrASettingsFileUnexpanded)
{
    maak(".Klavermol", "[Configuratie]\nProjektKommando=add_executable(${ProjectName} ${SRCS})\n"
                       "KopieerrechtMededeling=## $HOME ${SRCS} %PATH%\n");
    Uitslag u = voerUit("-o p", "SRCS=omgeving SOURCE_DATE_EPOCH=86399");
    EXPECT_NE(u.uit.find("\nadd_executable(${ProjectName} ${SRCS})\ntarget_link_libraries"), std::string::npos);
    EXPECT_EQ(u.uit.rfind("## Klavermol generated CMakelists Project file\n"
                          "## File generated on : 1970-01-01 23:59:59.\n"
                          "## $HOME ${SRCS} %PATH%\n",
                          0),
              0u)
        << u.uit;
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
        {"-o p -t cross", 1, "--project-type must be one of standard|crosscompile, not \"cross\""},
        {"-o p -l shared", 1, "--library-type must be one of static|dynamic|object, not \"shared\""},
        {"-o p -m deep --c p", 1, "--mode must be one of directory|recursive, not \"deep\""},
        {"-o p -f p/weg.c", 1, "no such file: p/weg.c"},
        {"-o p --include cmake/weg.cmake", 1, "no such file: cmake/weg.cmake"},
        {"-o p --include cmake/extra.CMAKE", 1, "not a CMake include file (*.cmake)"},
        {"-o p -f fifo", 1, "not a regular file: fifo"},
        {"-o p --settings fifo", 1, "not a regular file: fifo"},
        {"-o p >/dev/full", 1, "cannot write to standard output: No space left on device"},
        {"-o p >&-", 1, "cannot write to standard output: "},
        {"-o p -n 'My Project'", 2, "\"My Project\" cannot be used as a CMake name"},
        {"-o p -k library -n 'a)'", 2, "cannot be used as a CMake name"},
        {"-w -o p -k include -n a/b", 2, "\"a/b\" cannot be used as an include name"},
        {"-w -o p -k include -n ''", 2, "\"\" cannot be used as an include name"},
    };
    ::mkfifo((map + "/fifo").c_str(), 0666);
    for (const auto& geval : gevallen) {
        const Uitslag u = voerUit(geval.argumenten);
        EXPECT_EQ(u.code, geval.code) << geval.argumenten;
        EXPECT_NE(u.fout.find(geval.melding), std::string::npos) << geval.argumenten << ": " << u.fout;
        EXPECT_TRUE(u.uit.empty()) << geval.argumenten;
    }
    EXPECT_FALSE(wxFileName::FileExists(map + "/p/CMakeLists.txt"));
}

TEST_F(Cli, AnUnwritableTargetOrAFullDiskKeepsTheOldFile)
{
    const std::string fout = "Failed to open output file " + (map + "/p/CMakeLists.txt").ToStdString() + " for writing to.";
    wxFileName::Mkdir(map + "/p/CMakeLists.txt"); // a directory stands where the file should go
    Uitslag u = voerUit("-w -o p --c p");
    EXPECT_EQ(u.code, 1);
    EXPECT_NE(u.fout.find(fout), std::string::npos) << u.fout;
    EXPECT_TRUE(wxFileName::DirExists(map + "/p/CMakeLists.txt"));

    // the file-size limit makes the write fail as a full disk does
    wxFileName::Rmdir(map + "/p/CMakeLists.txt");
    maak("p/CMakeLists.txt", "oud");
    u = voerUit("-w -o p --c p", "sh -c 'trap \"\" XFSZ; ulimit -f 1; exec \"$0\" \"$@\"'");
    EXPECT_EQ(u.code, 1);
    EXPECT_NE(u.fout.find(fout + "\nFile too large\n"), std::string::npos) << u.fout;
    EXPECT_EQ(leesBestand("p/CMakeLists.txt"), "oud");
    wxArrayString bestanden;
    wxDir::GetAllFiles(map + "/p", &bestanden, "CMakeLists.txt*", wxDIR_FILES | wxDIR_HIDDEN);
    EXPECT_EQ(bestanden.size(), 1u);
}

TEST_F(Cli, HelpGoesToStdoutAndDashDashHIsTheHeaderSwitch)
{
    Uitslag u = voerUit("-h");
    EXPECT_EQ(u.code, 0);
    EXPECT_EQ(u.uit.rfind("klavermol-cli writes", 0), 0u) << u.uit;
    EXPECT_NE(u.uit.find("-o, --output-dir=<str>"), std::string::npos);
    EXPECT_TRUE(u.fout.empty()) << u.fout;
    u = voerUit("-o p --h p/inc");
    ASSERT_EQ(u.code, 0) << u.fout;
    EXPECT_NE(u.uit.find("set(AllIncludeDirs ${SrcPath0} )"), std::string::npos);
}

TEST_F(Cli, HandPickedFilesAndDirectoriesKeepTheCommandLineOrder)
{
    kern::GeneratorInvoer in;
    in.uitvoerDir = map + "/p";
    in.bronnen.Add(map + "/p/src/a.c");
    in.bronnen.Add(map + "/p/main.c"); // the directory mode takes p only, not p/src
    EXPECT_EQ(voerUit("-o p -f p/src/a.c --c p").uit, verwacht(in));
    EXPECT_NE(voerUit("-o p --c p -f p/src/a.c").uit.find("set(SrcPath0 ${PROJECT_SOURCE_DIR}/.)\n"
                                                          "set(SrcPath1 ${PROJECT_SOURCE_DIR}/src)\n"),
              std::string::npos);
}

// -x names an entry of any list by its text, however the path is spelled;
// an unchecked row keeps its number.
TEST_F(Cli, UncheckReachesAllThreeListsAndKeepsTheNumbers)
{
    maak("lib2/CMakeLists.txt", "\n");
    maak("cmake/tweede.cmake", "\n");
    const Uitslag u = voerUit("-o p --c p --subdir lib=een --subdir lib2=twee --include cmake/extra.cmake "
                              "--include cmake/tweede.cmake -x lib/ -x ./cmake/tweede.cmake -x p/../p/main.c");
    ASSERT_EQ(u.code, 0) << u.fout;
    kern::GeneratorInvoer in;
    in.uitvoerDir = map + "/p";
    in.biebs = {{map + "/lib", "een", false}, {map + "/lib2", "twee", true}};
    in.includes = {{map + "/cmake/extra.cmake", true}, {map + "/cmake/tweede.cmake", false}};
    EXPECT_EQ(u.uit, verwacht(in));
    EXPECT_NE(u.uit.find("set(Lib1Path ${PROJECT_SOURCE_DIR}/../lib2)\n"), std::string::npos);
    EXPECT_NE(u.uit.find("target_link_libraries(${ProjectName} twee )"), std::string::npos);
}

TEST_F(Cli, AnUnreadableDirectoryIsAnError)
{
    wxFileName::Mkdir(map + "/dicht");
    chmod(map.c_str(), 0777);
    chmod((map + "/dicht").c_str(), 0);
    const std::string uitslag = alsNiemand([&] {
        const Uitslag u = voerUit("-o p --c dicht");
        return std::to_string(u.code) + "|" + u.uit + "|" + u.fout;
    });
    chmod((map + "/dicht").c_str(), 0700);
    EXPECT_EQ(uitslag.rfind("1||", 0), 0u) << uitslag;
    EXPECT_NE(uitslag.find("cannot read the directory dicht"), std::string::npos) << uitslag;
}

TEST_F(Cli, NamesNoCMakeTextCanNameAreLeftOutWithOneMessage)
{
    for (const char* pad : {"n/goed.c", "n/a;b.c", "n/a\\b.c", "n/m;n/y.c"})
        maak(pad, "\n");
    // names that are not UTF-8, made byte for byte
    const std::string n = map.ToStdString() + "/n/";
    ::mkdir((n + "m\xe9").c_str(), 0755);
    for (const std::string& pad : {n + "caf\xe9.c", n + "m\xe9/x.c"})
        std::ofstream(pad) << "\n";
    const Uitslag u = voerUit("-m recursive -o n --c n -f 'n/a;b.c'");
    EXPECT_EQ(u.code, 0);
    EXPECT_EQ(u.fout, "klavermol-cli: 6 names were left out: a CMake file cannot name a path that is not valid UTF-8 "
                      "or that contains \";\", \"\\\" or \"${\".\n");
    kern::GeneratorInvoer in;
    in.uitvoerDir = map + "/n";
    in.bronnen.Add(map + "/n/goed.c");
    EXPECT_EQ(u.uit, verwacht(in));
}
