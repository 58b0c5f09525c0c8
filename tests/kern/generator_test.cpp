// The exact texts of the CMake writers.
#include "kern/generator.h"

#include <gtest/gtest.h>
#include <wx/log.h>

namespace {

const wxString datum = "2020-09-07 13:25:22";

kern::GeneratorInvoer invoer(const wxString& uitvoerDir, std::initializer_list<const char*> bronnen)
{
    kern::GeneratorInvoer in;
    in.uitvoerDir = uitvoerDir;
    for (const char* b : bronnen)
        in.bronnen.Add(b);
    in.sjablonen = kern::geefStandaardSjablonen();
    in.sjablonen.kopieerrechtMededeling = "## kop\n";
    in.datum = datum;
    in.naam = "Demo";
    return in;
}

wxString lijst(const kern::GeneratorInvoer& in)
{
    kern::Werklijsten werk;
    wxString uit;
    kern::schrijfProjektLibUitvoer(in, werk, uit);
    return uit;
}

wxString foreachBlok(int n)
{
    return wxString::Format("foreach(SRC ${SRCS%d})\n\tlist(APPEND SRCS ${SRCS%dPath}/${SRC})\nendforeach(SRC)\n\n", n, n);
}

class LogOpname : public wxLog
{
public:
    LogOpname() : vorige(wxLog::SetActiveTarget(this)) {}
    ~LogOpname() override { wxLog::SetActiveTarget(vorige); }
    std::vector<wxString> fouten;

protected:
    void DoLogRecord(wxLogLevel niveau, const wxString& tekst, const wxLogRecordInfo&) override
    {
        if (niveau == wxLOG_Error)
            fouten.push_back(tekst);
    }

private:
    wxLog* vorige;
};

} // namespace

TEST(Bronlijst, TheWorkedExampleLineByLine)
{
    const auto in = invoer("/p", {"/p/main.c", "/p/src/a.c", "/p/src/b.c", "/p/inc/a.h"});
    EXPECT_EQ(lijst(in), "set(SrcPath0 ${PROJECT_SOURCE_DIR}/.)\n"
                         "set(SrcPath1 ${PROJECT_SOURCE_DIR}/src)\n"
                         "set(SrcPath2 ${PROJECT_SOURCE_DIR}/inc)\n"
                         "\n"
                         "set(AllIncludeDirs ${SrcPath2} )\n"
                         "include_directories(${AllIncludeDirs})\n"
                         "\n"
                         "\n"
                         "list(APPEND SRCS main.c )\n"
                         + foreachBlok(0) +
                         "set(SRCS1Path ${SrcPath1})\n"
                         "set(SRCS1 a.c b.c )\n"
                         + foreachBlok(1));
}

TEST(Bronlijst, ADirectoryMetFirstThroughAHeaderGetsItsGroupWithTheFirstSource)
{
    const auto in = invoer("/p", {"/p/x/a.h", "/p/y/b.c", "/p/x/c.c", "/p/x/d.h"});
    kern::Werklijsten werk;
    wxString uit;
    kern::schrijfProjektLibUitvoer(in, werk, uit);
    EXPECT_EQ(werk.dirLijst, wxArrayString(std::vector<wxString>{"x", "y"}.size(), std::vector<wxString>{"x", "y"}.data()));
    ASSERT_EQ(werk.groepNamen.size(), 2u);
    EXPECT_EQ(werk.groepPaden[0], "set(SRCS0Path ${SrcPath1})");
    EXPECT_EQ(werk.groepNamen[0], "set(SRCS0 b.c )");
    EXPECT_EQ(werk.groepPaden[1], "set(SRCS1Path ${SrcPath0})");
    EXPECT_EQ(werk.groepNamen[1], "set(SRCS1 c.c )");
    EXPECT_EQ(werk.includeDirs.size(), 1u);
    EXPECT_EQ(werk.includeDirs[0], "${SrcPath0}");
}

TEST(Bronlijst, ANameLineBreaksAfterTheFirstNameOncePast80Characters)
{
    kern::GeneratorInvoer in = invoer("/p", {});
    // "set(SRCS0 " is 10 characters; each name adds 10 ("file00.c" plus a blank is 9... use 9-char names)
    for (int i = 0; i < 20; ++i)
        in.bronnen.Add(wxString::Format("/p/d/bestand%02d.c", i)); // 13 characters + blank
    kern::Werklijsten werk;
    wxString uit;
    kern::schrijfProjektLibUitvoer(in, werk, uit);
    const wxString regel = werk.groepNamen[0];
    // 10 + 6 x 14 = 94 > 80 after six names: the seventh name ends the line
    wxString verwacht = "set(SRCS0 ";
    for (int i = 0; i < 20; ++i) {
        const size_t tab = verwacht.rfind('\t');
        const size_t lengte = tab == wxString::npos ? verwacht.length() : verwacht.length() - tab;
        verwacht += wxString::Format("bestand%02d.c", i) + (lengte > 80 ? " \n\t" : " ");
    }
    EXPECT_EQ(regel, verwacht + ")");
    EXPECT_TRUE(regel.StartsWith("set(SRCS0 bestand00.c bestand01.c bestand02.c bestand03.c bestand04.c "
                                 "bestand05.c bestand06.c \n\tbestand07.c "));
}

TEST(Bronlijst, TheWrapCountsFromTheLastTab)
{
    kern::GeneratorInvoer in = invoer("/p", {});
    for (int i = 0; i < 14; ++i)
        in.bronnen.Add(wxString::Format("/p/d/bestand%02d.c", i));
    kern::Werklijsten werk;
    wxString uit;
    kern::schrijfProjektLibUitvoer(in, werk, uit);
    // after the tab: "\t" + 6 names of 12 = 73, then 85 > 80 after the seventh
    EXPECT_TRUE(werk.groepNamen[0].EndsWith("\n\tbestand07.c bestand08.c bestand09.c bestand10.c bestand11.c "
                                            "bestand12.c bestand13.c )"));
}

TEST(Bronlijst, TenHeaderDirectoriesGiveNineThenOne)
{
    kern::GeneratorInvoer in = invoer("/p", {});
    for (int i = 0; i < 10; ++i)
        in.bronnen.Add(wxString::Format("/p/h%d/x.h", i));
    const wxString uit = lijst(in);
    EXPECT_NE(uit.Find("\nset(AllIncludeDirs ${SrcPath0} ${SrcPath1} ${SrcPath2} ${SrcPath3} ${SrcPath4} ${SrcPath5} "
                       "${SrcPath6} ${SrcPath7} ${SrcPath8} \n\t${SrcPath9} )\ninclude_directories(${AllIncludeDirs})\n\n"),
              wxNOT_FOUND);
}

TEST(Bronlijst, CrosscompileTakesTheCurrentSourceDirAsBase)
{
    kern::GeneratorInvoer in = invoer("/p", {"/p/src/a.c"});
    in.projektType = 1;
    EXPECT_TRUE(lijst(in).StartsWith("set(SrcPath0 ${CMAKE_CURRENT_SOURCE_DIR}/src)\n"));
}

TEST(Bronlijst, HppIsASourceAndOnlyLowerCaseHIsAHeader)
{
    const auto in = invoer("/p", {"/p/a/x.hpp", "/p/b/y.H", "/p/c/z.h"});
    kern::Werklijsten werk;
    wxString uit;
    kern::schrijfProjektLibUitvoer(in, werk, uit);
    EXPECT_EQ(werk.groepNamen.size(), 2u);
    EXPECT_EQ(werk.groepNamen[0], "set(SRCS0 x.hpp )");
    EXPECT_EQ(werk.groepNamen[1], "set(SRCS1 y.H )");
    ASSERT_EQ(werk.includeDirs.size(), 1u);
    EXPECT_EQ(werk.includeDirs[0], "${SrcPath2}");
}

TEST(Bronlijst, ASourceInTheOutputDirectoryAfterItsHeaderGetsTheAppendGroup)
{
    const auto in = invoer("/p", {"/p/a.h", "/p/src/b.c", "/p/c.c"});
    kern::Werklijsten werk;
    wxString uit;
    kern::schrijfProjektLibUitvoer(in, werk, uit);
    ASSERT_EQ(werk.groepNamen.size(), 2u);
    EXPECT_EQ(werk.groepNamen[1], "list(APPEND SRCS c.c )");
    EXPECT_EQ(werk.groepPaden[1], "");
    EXPECT_EQ(werk.includeDirs[0], ".");
}

TEST(Bronlijst, IncludeFilesAndSubDirectoriesKeepTheirPositionNumbers)
{
    kern::GeneratorInvoer in = invoer("/p", {"/p/src/a.c"});
    in.biebs = {{"/p/lib0", "nul", true}, {"/p/lib1", "een", false}, {"/q/lib2", "twee", true}};
    in.includes = {{"/p/cmake/a.cmake", false}, {"/p/b.cmake", true}};
    const wxString uit = lijst(in);
    EXPECT_NE(uit.Find("set(Include1Path ${PROJECT_SOURCE_DIR}/.)\ninclude(${Include1Path}/b.cmake)\n\n"), wxNOT_FOUND);
    EXPECT_EQ(uit.Find("Include0Path"), wxNOT_FOUND);
    EXPECT_TRUE(uit.EndsWith("set(Lib0Path ${PROJECT_SOURCE_DIR}/lib0)\nadd_subdirectory(${Lib0Path})\n\n"
                             "set(Lib2Path ${PROJECT_SOURCE_DIR}/../q/lib2)\nadd_subdirectory(${Lib2Path})\n\n"));
    EXPECT_EQ(uit.Find("Lib1Path"), wxNOT_FOUND);
}

TEST(Bronlijst, ASourceOnAnotherVolumeEndsOnlyTheSection)
{
    kern::GeneratorInvoer in = invoer("/p", {"/p/a.c", "/q/b.c"});
    kern::geefVolumeNaad() = [](const wxFileName& f) { return f.GetFullPath().StartsWith("/q") ? "Q" : ""; };
    LogOpname log;
    kern::Werklijsten werk;
    wxString uit;
    kern::maakProjekt(in, werk, uit);
    kern::geefVolumeNaad() = [](const wxFileName& f) { return f.GetVolume(); };
    ASSERT_EQ(log.fouten.size(), 1u);
    EXPECT_EQ(log.fouten[0], "Error computing the relative path between output file and the source files.\n"
                             "Please select the output directory to reside on the same volume as the sources files.");
    EXPECT_NE(uit.Find("set(SRCS )\n\nlist(SORT SRCS)\n\n"), wxNOT_FOUND);
    EXPECT_EQ(uit.Find("SrcPath"), wxNOT_FOUND);
    EXPECT_TRUE(uit.EndsWith("raw form with most ingredients in place.\n\n\n"));
}

TEST(Generator, TheProjectText)
{
    kern::GeneratorInvoer in = invoer("/p", {"/p/src/a.c"});
    in.biebs = {{"/p/l", "een", true}, {"/p/m", "twee", false}, {"/p/n", "drie", true}};
    kern::Werklijsten werk;
    wxString uit;
    kern::maakProjekt(in, werk, uit);
    const wxString verwacht =
        "## Klavermol generated CMakelists Project file\n"
        "## File generated on : 2020-09-07 13:25:22.\n"
        "## kop\n\n"
        "set(ProjectName Demo)\n\n"
        "# define minimum cmake version.\n"
        "cmake_minimum_required(VERSION 2.8.10)\n\n"
        "set(SRCS )\n"
        "set(SrcPath0 ${PROJECT_SOURCE_DIR}/src)\n"
        "\nset(AllIncludeDirs )\ninclude_directories(${AllIncludeDirs})\n\n"
        "set(SRCS0Path ${SrcPath0})\nset(SRCS0 a.c )\n" + foreachBlok(0) +
        "set(Lib0Path ${PROJECT_SOURCE_DIR}/l)\nadd_subdirectory(${Lib0Path})\n\n"
        "set(Lib2Path ${PROJECT_SOURCE_DIR}/n)\nadd_subdirectory(${Lib2Path})\n\n"
        "\nlist(SORT SRCS)\n\n" + kern::geefStandaardSjablonen().projektKommando +
        "\ntarget_link_libraries(${ProjectName} een drie )\n\n"
        "## This project will probably need some tuning, but this is the raw form with most ingredients in place."
        "\n\n\n";
    EXPECT_EQ(uit, verwacht);
}

TEST(Generator, CrosscompileProject)
{
    kern::GeneratorInvoer in = invoer("/p", {});
    in.projektType = 1;
    kern::Werklijsten werk;
    wxString uit;
    kern::maakProjekt(in, werk, uit);
    EXPECT_NE(uit.Find("cmake_minimum_required(VERSION 2.8.10)\n\n"
                       "## Cross-compilation requires a rewrite of several CMake compilation directive.\n"
                       "## Please include a cross-compile configuration file here (using include or directly).\n\n"
                       "set(SRCS )\n"),
              wxNOT_FOUND);
    EXPECT_NE(uit.Find("\nlist(SORT SRCS)\n\n## Enter the Cross compile commands here.\ntarget_link_libraries("),
              wxNOT_FOUND);
}

TEST(Generator, TheThreeLibraryKinds)
{
    const struct
    {
        int type;
        const char* kommando;
        const char* slot;
    } gevallen[] = {{0, "add_library(${LibName} STATIC ${SRCS})", "\"target_link_libraries( ... LibName ... )\" ."},
                    {1, "add_library(${LibName} SHARED ${SRCS})", "\"target_link_libraries( ... LibName ... )\" ."},
                    {2, "add_library(${LibName} OBJECT ${SRCS})", "\"$<TARGET_OBJECTS: Library Name >\" ."}};
    for (const auto& geval : gevallen) {
        kern::GeneratorInvoer in = invoer("/p/lib", {"/p/lib/a.c"});
        in.soort = kern::SoortBieb;
        in.biebType = geval.type;
        in.naam = "mylib";
        kern::Werklijsten werk;
        wxString uit;
        kern::maakUitvoer(in, werk, uit);
        EXPECT_TRUE(uit.StartsWith("## Klavermol generated CMakelists add_library file\n"
                                   "## File generated on : 2020-09-07 13:25:22.\n## kop\n\n"
                                   "# define minimum cmake version.\ncmake_minimum_required(VERSION 2.8.10)\n\n"
                                   "# The absolute path for this CMakeLists.txt file is : \"/p/lib\"\n"
                                   "set(LibName mylib)\n\nset(SRCS )\nset(SrcPath0 ${PROJECT_SOURCE_DIR}/.)\n"))
            << uit;
        EXPECT_NE(uit.Find("list(APPEND SRCS a.c )"), wxNOT_FOUND);
        EXPECT_NE(uit.Find(wxString("\nlist(SORT SRCS)\n\n") + geval.kommando), wxNOT_FOUND) << geval.type;
        EXPECT_TRUE(uit.EndsWith(wxString(geval.slot) + "\n\n\n")) << geval.type;
        EXPECT_EQ(uit.Find("ProjectName"), wxNOT_FOUND);
    }
}

TEST(Generator, ARenamedLibraryVariableChangesOnlyTheSetLine)
{
    kern::GeneratorInvoer in = invoer("/p", {});
    in.soort = kern::SoortBieb;
    in.sjablonen.biebLibNaam = "MijnBieb";
    kern::Werklijsten werk;
    wxString uit;
    kern::maakUitvoer(in, werk, uit);
    EXPECT_NE(uit.Find("set(MijnBieb Demo)\n\n"), wxNOT_FOUND);
    EXPECT_NE(uit.Find("add_library(${LibName} STATIC ${SRCS})"), wxNOT_FOUND);
}

TEST(Generator, AnIncludeFileOfHeadersOnly)
{
    kern::GeneratorInvoer in = invoer("/p", {"/p/inc/a.h"});
    in.soort = kern::SoortInclude;
    in.naam = "Common";
    kern::Werklijsten werk;
    wxString uit;
    kern::maakUitvoer(in, werk, uit);
    EXPECT_EQ(uit, "## Klavermol generated Common include file\n"
                   "## File generated on : 2020-09-07 13:25:22.\n## kop\n\n"
                   "# define minimum cmake version.\ncmake_minimum_required(VERSION 2.8.10)\n\n"
                   "set(SRCS )\n"
                   "set(SrcPath0 ${PROJECT_SOURCE_DIR}/inc)\n"
                   "\nset(AllIncludeDirs ${SrcPath0} )\ninclude_directories(${AllIncludeDirs})\n\n"
                   "## Include this file for including the listed include_directories directives.\n\n\n");
}

TEST(Generator, AnIncludeFileTakesEveryFileRelativeEvenInTheOutputDirectory)
{
    kern::GeneratorInvoer in = invoer("/p", {"/p/a.c"});
    in.soort = kern::SoortInclude;
    kern::Werklijsten werk;
    wxString uit;
    kern::maakUitvoer(in, werk, uit);
    EXPECT_NE(uit.Find("set(SrcPath0 ${PROJECT_SOURCE_DIR}/)\n"), wxNOT_FOUND);
    EXPECT_NE(uit.Find("set(SRCS0Path ${SrcPath0})\nset(SRCS0 a.c )\n"), wxNOT_FOUND);
    EXPECT_EQ(uit.Find("list(APPEND SRCS a.c"), wxNOT_FOUND);
    EXPECT_TRUE(uit.EndsWith("\nlist(SORT SRCS)\n\n"
                             "## Include this file where you would want to compile the listed source files (stored "
                             "in variable SRCS).\n"
                             "## and for including the listed include_directories directives.\n\n\n"));
}

TEST(Generator, AnUnknownKindWritesNothing)
{
    kern::GeneratorInvoer in = invoer("/p", {"/p/a.c"});
    in.soort = 3;
    kern::Werklijsten werk;
    wxString uit;
    kern::maakUitvoer(in, werk, uit);
    EXPECT_TRUE(uit.empty());
}
