// The exact texts of the CMake writers, and the edges of the source listing:
// the wrap and include-list thresholds, numbered references inside longer
// numbers, directory strings as the picker holds them, and an early end.
#include "kern/generator.h"

#include <gtest/gtest.h>
#include <wx/log.h>

#include <vector>

namespace {

kern::GeneratorInvoer maakInvoer(const wxString& uitvoerDir, std::initializer_list<const char*> bronnen = {},
                                 int soort = kern::SoortProjekt)
{
    kern::GeneratorInvoer in;
    in.uitvoerDir = uitvoerDir;
    in.soort = soort;
    for (const char* b : bronnen)
        in.bronnen.Add(b);
    in.sjablonen = kern::geefStandaardSjablonen();
    in.sjablonen.kopieerrechtMededeling = "## kop\n";
    in.datum = "2020-09-07 13:25:22";
    in.naam = "Demo";
    return in;
}

struct Uitkomst
{
    kern::Werklijsten werk;
    wxString tekst;
};

Uitkomst geefLijst(const kern::GeneratorInvoer& in)
{
    Uitkomst u;
    kern::schrijfProjektLibUitvoer(in, u.werk, u.tekst);
    return u;
}

wxString geefUitvoer(const kern::GeneratorInvoer& in)
{
    kern::Werklijsten werk;
    wxString tekst;
    kern::maakUitvoer(in, werk, tekst);
    return tekst;
}

wxArrayString lijstVan(std::initializer_list<const char*> regels)
{
    wxArrayString a;
    for (const char* r : regels)
        a.Add(r);
    return a;
}

wxString foreachBlok(int n)
{
    return wxString::Format("foreach(SRC ${SRCS%d})\n\tlist(APPEND SRCS ${SRCS%dPath}/${SRC})\nendforeach(SRC)\n\n", n,
                            n);
}

const wxString kop = "## File generated on : 2020-09-07 13:25:22.\n## kop\n\n";
const wxString minimum = "# define minimum cmake version.\ncmake_minimum_required(VERSION 2.8.10)\n\n";

// Paths starting with `begin` lie on another volume while this lives; the
// errors logged meanwhile are kept.
class VreemdVolume
{
public:
    explicit VreemdVolume(const wxString& begin) : vorige(wxLog::SetActiveTarget(&opname))
    {
        kern::geefVolumeNaad() = [begin](const wxFileName& f) {
            return f.GetFullPath().StartsWith(begin) ? wxString("Q") : wxString();
        };
    }
    ~VreemdVolume()
    {
        kern::geefVolumeNaad() = [](const wxFileName& f) { return f.GetVolume(); };
        wxLog::SetActiveTarget(vorige);
    }
    const std::vector<wxString>& fouten() const { return opname.fouten; }

private:
    struct Opname : wxLog
    {
        std::vector<wxString> fouten;
        void DoLogRecord(wxLogLevel niveau, const wxString& tekst, const wxLogRecordInfo&) override
        {
            if (niveau == wxLOG_Error)
                fouten.push_back(tekst);
        }
    } opname;
    wxLog* vorige;
};

} // namespace

TEST(Bronlijst, TheWorkedExampleLineByLine)
{
    const auto in = maakInvoer("/p", {"/p/main.c", "/p/src/a.c", "/p/src/b.c", "/p/inc/a.h"});
    EXPECT_EQ(geefLijst(in).tekst, "set(SrcPath0 ${PROJECT_SOURCE_DIR}/.)\n"
                                   "set(SrcPath1 ${PROJECT_SOURCE_DIR}/src)\n"
                                   "set(SrcPath2 ${PROJECT_SOURCE_DIR}/inc)\n"
                                   "\n"
                                   "set(AllIncludeDirs ${SrcPath2} )\n"
                                   "include_directories(${AllIncludeDirs})\n"
                                   "\n"
                                   "\n"
                                   "list(APPEND SRCS main.c )\n" +
                                       foreachBlok(0) +
                                       "set(SRCS1Path ${SrcPath1})\n"
                                       "set(SRCS1 a.c b.c )\n" +
                                       foreachBlok(1));
}

TEST(Bronlijst, GroupsHeadersAndTheOutputDirectory)
{
    // A directory met first through a header gets its group with its first source.
    Uitkomst u = geefLijst(maakInvoer("/p", {"/p/x/a.h", "/p/y/b.c", "/p/x/c.c", "/p/x/d.h"}));
    EXPECT_EQ(u.werk.dirLijst, lijstVan({"x", "y"}));
    EXPECT_EQ(u.werk.groepPaden, lijstVan({"set(SRCS0Path ${SrcPath1})", "set(SRCS1Path ${SrcPath0})"}));
    EXPECT_EQ(u.werk.groepNamen, lijstVan({"set(SRCS0 b.c )", "set(SRCS1 c.c )"}));
    EXPECT_EQ(u.werk.includeDirs, lijstVan({"${SrcPath0}"}));

    // Only a lower-case "h" is a header.
    u = geefLijst(maakInvoer("/p", {"/p/a/x.hpp", "/p/b/y.H", "/p/c/z.h"}));
    EXPECT_EQ(u.werk.groepNamen, lijstVan({"set(SRCS0 x.hpp )", "set(SRCS1 y.H )"}));
    EXPECT_EQ(u.werk.includeDirs, lijstVan({"${SrcPath2}"}));

    // A source beside the output after "." came in through a header.
    u = geefLijst(maakInvoer("/p", {"/p/a.h", "/p/src/b.c", "/p/c.c"}));
    EXPECT_EQ(u.werk.groepPaden, lijstVan({"set(SRCS0Path ${SrcPath1})", ""}));
    EXPECT_EQ(u.werk.groepNamen, lijstVan({"set(SRCS0 b.c )", "list(APPEND SRCS c.c )"}));
    EXPECT_EQ(u.werk.includeDirs, lijstVan({"."}));

    // The output directory is compared as the picker holds it: with a
    // closing separator the files beside it take the relative case.
    u = geefLijst(maakInvoer("/p/", {"/p/a.c", "/p/a.h"}));
    EXPECT_EQ(u.werk.dirLijst, lijstVan({""}));
    EXPECT_EQ(u.werk.groepNamen, lijstVan({"set(SRCS0 a.c )"}));
    EXPECT_EQ(u.werk.includeDirs, lijstVan({"${SrcPath0}"}));
    EXPECT_TRUE(u.tekst.StartsWith("set(SrcPath0 ${PROJECT_SOURCE_DIR}/)\n"));

    // A directory beside the output with the same start is a sibling.
    u = geefLijst(maakInvoer("/w/p", {"/w/p2/a.c", "/w/p/sub/diep/b.c", "/a.c"}));
    EXPECT_EQ(u.werk.dirLijst, lijstVan({"../p2", "sub/diep", "../.."}));
}

// ${SrcPath1} must not be taken for ${SrcPath12}, neither in the include
// list nor in the search for a directory's group.
TEST(Bronlijst, AReferenceIsNotFoundInsideALongerNumber)
{
    kern::GeneratorInvoer in = maakInvoer("/p");
    for (int i = 0; i < 13; ++i)
        in.bronnen.Add(wxString::Format("/p/d%d/%s", i, i == 1 ? "eerst.h" : "x.h"));
    in.bronnen.Add("/p/d12/bron.c"); // group 0 takes ${SrcPath12}
    in.bronnen.Add("/p/d1/bron.c");  // d1 has no group yet
    in.bronnen.Add("/p/d1/nog.h");
    const Uitkomst u = geefLijst(in);
    EXPECT_EQ(u.werk.groepPaden, lijstVan({"set(SRCS0Path ${SrcPath12})", "set(SRCS1Path ${SrcPath1})"}));
    EXPECT_EQ(u.werk.groepNamen, lijstVan({"set(SRCS0 bron.c )", "set(SRCS1 bron.c )"}));
    ASSERT_EQ(u.werk.includeDirs.size(), 13u);
    EXPECT_EQ(u.werk.includeDirs[1], "${SrcPath1}");
    EXPECT_EQ(u.werk.includeDirs[12], "${SrcPath12}");
}

// The check comes before a name is appended, so the break follows the first
// name added to a line already past 80. "set(SRCS0 " is 10 characters, so
// a first name of k characters makes the line 11 + k long. After a break
// the line is measured as its length minus the position of its last tab:
// the tab counts, and a tab with 80 characters does not break yet.
TEST(Bronlijst, TheWrapBreaksOnlyPast80FromTheStartOrTheLastTab)
{
    const auto naamVan = [](size_t lengte, char letter) { return wxString(letter, lengte - 2) + ".c"; };
    const wxString a69 = naamVan(69, 'a'), a70 = naamVan(70, 'a'), a80 = naamVan(80, 'a');
    const wxString c78 = naamVan(78, 'c'), c79 = naamVan(79, 'c');
    const struct
    {
        std::vector<wxString> namen;
        wxString regel;
    } gevallen[] = {
        {{a69, "b.c", "c.c"}, "set(SRCS0 " + a69 + " b.c c.c \n\t)"},
        {{a70, "b.c", "c.c"}, "set(SRCS0 " + a70 + " b.c \n\tc.c )"},
        {{a80, "b.c", c78, "d.c", "e.c"}, "set(SRCS0 " + a80 + " b.c \n\t" + c78 + " d.c e.c \n\t)"},
        {{a80, "b.c", c79, "d.c", "e.c"}, "set(SRCS0 " + a80 + " b.c \n\t" + c79 + " d.c \n\te.c )"},
    };
    for (const auto& geval : gevallen) {
        kern::GeneratorInvoer in = maakInvoer("/p");
        for (const wxString& naam : geval.namen)
            in.bronnen.Add("/p/d/" + naam);
        EXPECT_EQ(geefLijst(in).werk.groepNamen[0], geval.regel);
    }
}

TEST(Bronlijst, EighteenHeaderDirectoriesGiveNineThenEightThenOne)
{
    kern::GeneratorInvoer in = maakInvoer("/p");
    for (int i = 0; i < 18; ++i)
        in.bronnen.Add(wxString::Format("/p/h%d/x.h", i));
    wxString verwacht = "\nset(AllIncludeDirs ";
    for (int i = 0; i < 18; ++i)
        verwacht += wxString::Format("${SrcPath%d} ", i) + (i == 8 || i == 16 ? "\n\t" : "");
    verwacht += ")\ninclude_directories(${AllIncludeDirs})\n\n";
    EXPECT_NE(geefLijst(in).tekst.Find(verwacht), wxNOT_FOUND);
}

// Include files and sub-directories keep their position numbers, take
// ${SrcPath<i>} only on an exact match with the (relative) directory list,
// and start from ${PROJECT_SOURCE_DIR} whatever the project type.
TEST(Bronlijst, IncludeFilesAndSubDirectories)
{
    kern::GeneratorInvoer in = maakInvoer("/p", {"/p/src/a.c"});
    in.projektType = 1;
    in.includes = {{"/p/cmake/a.cmake", false}, {"src/eigen.cmake", true}, {"/p/src/abs.cmake", true},
                   {"/p/b.cmake", true}};
    in.biebs = {{"src", "een", true}, {"/p/lib1", "x", false}, {"/q/lib2", "twee", true}, {"/p", "drie", true}};
    EXPECT_EQ(geefLijst(in).tekst,
              "set(SrcPath0 ${CMAKE_CURRENT_SOURCE_DIR}/src)\n"
              "\nset(AllIncludeDirs )\ninclude_directories(${AllIncludeDirs})\n\n"
              "set(Include1Path ${SrcPath0})\ninclude(${Include1Path}/eigen.cmake)\n\n"
              "set(Include2Path ${PROJECT_SOURCE_DIR}/src)\ninclude(${Include2Path}/abs.cmake)\n\n"
              "set(Include3Path ${PROJECT_SOURCE_DIR}/.)\ninclude(${Include3Path}/b.cmake)\n\n"
              "set(SRCS0Path ${SrcPath0})\nset(SRCS0 a.c )\n" +
                  foreachBlok(0) +
                  "set(Lib0Path ${SrcPath0})\nadd_subdirectory(${Lib0Path})\n\n"
                  "set(Lib2Path ${PROJECT_SOURCE_DIR}/../q/lib2)\nadd_subdirectory(${Lib2Path})\n\n"
                  "set(Lib3Path ${PROJECT_SOURCE_DIR}/.)\nadd_subdirectory(${Lib3Path})\n\n");
}

// The listing ends at the first source on another volume; the generator
// goes on with its own lines, and the groups made before the end stay in
// the working lists, so an include file still counts them for its sort line.
TEST(Bronlijst, ASourceOnAnotherVolumeEndsOnlyTheListing)
{
    VreemdVolume volume("/q");
    kern::GeneratorInvoer in = maakInvoer("/p", {"/p/src/a.c", "/q/b.c", "/p/src/c.c"}, kern::SoortInclude);
    in.naam = "Common";
    kern::Werklijsten werk;
    wxString tekst;
    kern::maakUitvoer(in, werk, tekst);
    ASSERT_EQ(volume.fouten().size(), 1u);
    EXPECT_EQ(volume.fouten()[0],
              "Error computing the relative path between output file and the source files.\n"
              "Please select the output directory to reside on the same volume as the sources files.");
    EXPECT_EQ(werk.groepNamen, lijstVan({"set(SRCS0 a.c "}));
    EXPECT_EQ(tekst, "## Klavermol generated Common include file\n" + kop + minimum +
                         "set(SRCS )\n"
                         "\nlist(SORT SRCS)\n\n"
                         "## Include this file where you would want to compile the listed source files (stored in "
                         "variable SRCS).\n"
                         "## and for including the listed include_directories directives.\n\n\n");

    in.soort = kern::SoortProjekt;
    EXPECT_TRUE(geefUitvoer(in).EndsWith(
        "set(SRCS )\n\nlist(SORT SRCS)\n\n" + kern::geefStandaardSjablonen().projektKommando +
        "\ntarget_link_libraries(${ProjectName} )\n\n"
        "## This project will probably need some tuning, but this is the raw form with most ingredients in place."
        "\n\n\n"));
}

TEST(Generator, TheProjectText)
{
    kern::GeneratorInvoer in = maakInvoer("/p", {"/p/src/a.c"});
    in.biebs = {{"/p/l", "een", true}, {"/p/m", "twee", false}, {"/p/n", "drie", true}};
    EXPECT_EQ(geefUitvoer(in),
              "## Klavermol generated CMakelists Project file\n" + kop +
                  "set(ProjectName Demo)\n\n" + minimum +
                  "set(SRCS )\n"
                  "set(SrcPath0 ${PROJECT_SOURCE_DIR}/src)\n"
                  "\nset(AllIncludeDirs )\ninclude_directories(${AllIncludeDirs})\n\n"
                  "set(SRCS0Path ${SrcPath0})\nset(SRCS0 a.c )\n" +
                  foreachBlok(0) +
                  "set(Lib0Path ${PROJECT_SOURCE_DIR}/l)\nadd_subdirectory(${Lib0Path})\n\n"
                  "set(Lib2Path ${PROJECT_SOURCE_DIR}/n)\nadd_subdirectory(${Lib2Path})\n\n"
                  "\nlist(SORT SRCS)\n\n" +
                  kern::geefStandaardSjablonen().projektKommando +
                  "\ntarget_link_libraries(${ProjectName} een drie )\n\n"
                  "## This project will probably need some tuning, but this is the raw form with most ingredients "
                  "in place.\n\n\n");

    in.soort = 3; // no such kind: nothing at all
    EXPECT_TRUE(geefUitvoer(in).empty());
}

TEST(Generator, CrosscompileProject)
{
    kern::GeneratorInvoer in = maakInvoer("/p");
    in.projektType = 1;
    const wxString uit = geefUitvoer(in);
    EXPECT_NE(uit.Find("cmake_minimum_required(VERSION 2.8.10)\n\n"
                       "## Cross-compilation requires a rewrite of several CMake compilation directive.\n"
                       "## Please include a cross-compile configuration file here (using include or directly).\n\n"
                       "set(SRCS )\n"),
              wxNOT_FOUND);
    EXPECT_NE(uit.Find("\nlist(SORT SRCS)\n\n## Enter the Cross compile commands here.\ntarget_link_libraries("),
              wxNOT_FOUND);
}

TEST(Generator, TheLibraryKinds)
{
    const struct
    {
        int type;
        const char* kommando; // the start of the directives, or none
        const char* slot;
    } gevallen[] = {{0, "add_library(${LibName} STATIC ${SRCS})", "\"target_link_libraries( ... LibName ... )\" ."},
                    {1, "add_library(${LibName} SHARED ${SRCS})", "\"target_link_libraries( ... LibName ... )\" ."},
                    {2, "add_library(${LibName} OBJECT ${SRCS})", "\"$<TARGET_OBJECTS: Library Name >\" ."},
                    {3, "", "list(SORT SRCS)\n\n"}};
    for (const auto& geval : gevallen) {
        kern::GeneratorInvoer in = maakInvoer("/p/lib", {"/p/lib/a.c"}, kern::SoortBieb);
        in.biebType = geval.type;
        in.projektType = geval.type == 3 ? 1 : 0; // the project type still picks the path base
        in.naam = "mylib";
        const wxString uit = geefUitvoer(in);
        EXPECT_TRUE(uit.StartsWith("## Klavermol generated CMakelists add_library file\n" + kop + minimum +
                                   "# The absolute path for this CMakeLists.txt file is : \"/p/lib\"\n"
                                   "set(LibName mylib)\n\nset(SRCS )\n" +
                                   (geval.type == 3 ? "set(SrcPath0 ${CMAKE_CURRENT_SOURCE_DIR}/.)\n"
                                                    : "set(SrcPath0 ${PROJECT_SOURCE_DIR}/.)\n")))
            << uit;
        EXPECT_NE(uit.Find("\nlist(APPEND SRCS a.c )\n"), wxNOT_FOUND);
        EXPECT_NE(uit.Find(wxString("endforeach(SRC)\n\n\nlist(SORT SRCS)\n\n") + geval.kommando), wxNOT_FOUND)
            << geval.type;
        EXPECT_TRUE(uit.EndsWith(wxString(geval.slot) + "\n\n\n")) << geval.type;
        EXPECT_EQ(uit.Find("ProjectName"), wxNOT_FOUND);
    }

    // A renamed variable changes only the set line.
    kern::GeneratorInvoer in = maakInvoer("/p", {}, kern::SoortBieb);
    in.sjablonen.biebLibNaam = "MijnBieb";
    const wxString uit = geefUitvoer(in);
    EXPECT_NE(uit.Find("set(MijnBieb Demo)\n\n"), wxNOT_FOUND);
    EXPECT_NE(uit.Find("add_library(${LibName} STATIC ${SRCS})"), wxNOT_FOUND);
}

TEST(Generator, AnIncludeFileOfHeadersOnly)
{
    kern::GeneratorInvoer in = maakInvoer("/p", {"/p/inc/a.h"}, kern::SoortInclude);
    in.naam = "Common";
    EXPECT_EQ(geefUitvoer(in), "## Klavermol generated Common include file\n" + kop + minimum +
                                   "set(SRCS )\n"
                                   "set(SrcPath0 ${PROJECT_SOURCE_DIR}/inc)\n"
                                   "\nset(AllIncludeDirs ${SrcPath0} )\ninclude_directories(${AllIncludeDirs})\n\n"
                                   "## Include this file for including the listed include_directories "
                                   "directives.\n\n\n");
}

// Every file takes the relative case, even one in the output directory,
// and the stored templates are never read.
TEST(Generator, AnIncludeFileOfSources)
{
    kern::GeneratorInvoer in = maakInvoer("/p", {"/p/a.c"}, kern::SoortInclude);
    const wxString uit = geefUitvoer(in);
    EXPECT_NE(uit.Find("set(SRCS )\nset(SrcPath0 ${PROJECT_SOURCE_DIR}/)\n"), wxNOT_FOUND);
    EXPECT_NE(uit.Find("set(SRCS0Path ${SrcPath0})\nset(SRCS0 a.c )\n"), wxNOT_FOUND);
    EXPECT_EQ(uit.Find("list(APPEND SRCS a.c"), wxNOT_FOUND);
    EXPECT_TRUE(uit.EndsWith("\nlist(SORT SRCS)\n\n"
                             "## Include this file where you would want to compile the listed source files (stored "
                             "in variable SRCS).\n"
                             "## and for including the listed include_directories directives.\n\n\n"));
    in.sjablonen.includeKommando = "## eigen";
    in.sjablonen.projektKommando = "## eigen";
    EXPECT_EQ(geefUitvoer(in), uit);
}
