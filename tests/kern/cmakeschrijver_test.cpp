// Limits and look-ups of the CMake writers that the worked examples do not
// reach: the wrap and include-list thresholds at their exact edges, numbered
// references that are prefixes of one another, the directory comparisons
// against the output directory as the picker holds it, and what stays in the
// working lists when the listing ends early.
#include "kern/generator.h"

#include <gtest/gtest.h>
#include <wx/log.h>

#include <vector>

namespace {

kern::GeneratorInvoer maakInvoer(const wxString& uitvoerDir, int soort = kern::SoortProjekt)
{
    kern::GeneratorInvoer in;
    in.uitvoerDir = uitvoerDir;
    in.soort = soort;
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

Uitkomst geefUitvoer(const kern::GeneratorInvoer& in)
{
    Uitkomst u;
    kern::maakUitvoer(in, u.werk, u.tekst);
    return u;
}

wxArrayString lijstVan(std::initializer_list<const char*> regels)
{
    wxArrayString a;
    for (const char* r : regels)
        a.Add(r);
    return a;
}

// A name of `lengte` characters ending in ".c".
wxString naamVan(size_t lengte, char letter)
{
    return wxString(letter, lengte - 2) + ".c";
}

// Restores the toolkit's volume test and the log target on leaving.
class VreemdVolume
{
public:
    explicit VreemdVolume(const wxString& begin)
        : vorige(wxLog::SetActiveTarget(&opname))
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
    size_t fouten() const { return opname.fouten; }

private:
    struct Opname : wxLog
    {
        size_t fouten = 0;
        void DoLogRecord(wxLogLevel niveau, const wxString&, const wxLogRecordInfo&) override
        {
            if (niveau == wxLOG_Error)
                ++fouten;
        }
    } opname;
    wxLog* vorige;
};

} // namespace

// The check comes before a name is appended, so the break follows the first
// name added to a line already past 80. "set(SRCS0 " is 10 characters, so
// a first name of k characters makes the line 11 + k long. After a break
// the line is measured as its length minus the position of its last tab:
// the tab counts, and a tab with 80 characters does not break yet.
TEST(CMakeSchrijver, TheWrapBreaksOnlyPast80FromTheStartOrTheLastTab)
{
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

TEST(CMakeSchrijver, EighteenHeaderDirectoriesGiveNineThenEightThenOne)
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

// ${SrcPath1} must not be taken for ${SrcPath12}, neither in the include
// list nor in the search for a directory's group.
TEST(CMakeSchrijver, AReferenceIsNotFoundInsideALongerNumber)
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

// The output-directory case compares the directory string with the
// picker's string as it is: with a closing separator the files beside it
// take the relative case, whose directory part is empty.
TEST(CMakeSchrijver, TheOutputDirectoryCaseComparesTheStringsAsTheyAre)
{
    kern::GeneratorInvoer in = maakInvoer("/p/");
    in.bronnen.Add("/p/a.c");
    in.bronnen.Add("/p/a.h");
    const Uitkomst u = geefLijst(in);
    EXPECT_EQ(u.werk.dirLijst, lijstVan({""}));
    EXPECT_EQ(u.werk.groepPaden, lijstVan({"set(SRCS0Path ${SrcPath0})"}));
    EXPECT_EQ(u.werk.groepNamen, lijstVan({"set(SRCS0 a.c )"}));
    EXPECT_EQ(u.werk.includeDirs, lijstVan({"${SrcPath0}"}));
    EXPECT_TRUE(u.tekst.StartsWith("set(SrcPath0 ${PROJECT_SOURCE_DIR}/)\n"));
}

TEST(CMakeSchrijver, ADirectoryBesideTheOutputWithTheSameStartIsASibling)
{
    kern::GeneratorInvoer in = maakInvoer("/w/p");
    in.bronnen.Add("/w/p2/a.c");
    in.bronnen.Add("/w/p/sub/diep/b.c");
    in.bronnen.Add("/a.c");
    EXPECT_EQ(geefLijst(in).werk.dirLijst, lijstVan({"../p2", "sub/diep", "../.."}));
}

// Include files and sub-directories take ${SrcPath<i>} only on an exact
// string match with the (relative) directory list; absolute paths never
// match it, and their own directory is "." when it is the output directory.
TEST(CMakeSchrijver, IncludeAndSubDirectoryPathsMatchTheDirectoryListOnlyExactly)
{
    kern::GeneratorInvoer in = maakInvoer("/p");
    in.bronnen.Add("/p/src/a.c");
    in.includes = {{"src/eigen.cmake", true}, {"/p/src/abs.cmake", true}, {"Src/hoofd.cmake", true}};
    in.biebs = {{"src", "een", true}, {"/p", "twee", true}};
    const wxString tekst = geefLijst(in).tekst;
    EXPECT_NE(tekst.Find("set(Include0Path ${SrcPath0})\ninclude(${Include0Path}/eigen.cmake)\n\n"
                         "set(Include1Path ${PROJECT_SOURCE_DIR}/src)\ninclude(${Include1Path}/abs.cmake)\n\n"
                         "set(Include2Path ${PROJECT_SOURCE_DIR}/"),
              wxNOT_FOUND)
        << tekst;
    EXPECT_TRUE(tekst.EndsWith("set(Lib0Path ${SrcPath0})\nadd_subdirectory(${Lib0Path})\n\n"
                               "set(Lib1Path ${PROJECT_SOURCE_DIR}/.)\nadd_subdirectory(${Lib1Path})\n\n"))
        << tekst;
}

// A library takes the path base of the project type too; a library type
// outside the three writes no directive, and the include kind never uses
// the stored include template.
TEST(CMakeSchrijver, LibraryAndIncludeKindsReadOnlyTheirOwnTemplates)
{
    kern::GeneratorInvoer bieb = maakInvoer("/p", kern::SoortBieb);
    bieb.bronnen.Add("/p/src/a.c");
    bieb.projektType = 1;
    bieb.biebType = 3;
    const wxString biebTekst = geefUitvoer(bieb).tekst;
    EXPECT_NE(biebTekst.Find("set(SrcPath0 ${CMAKE_CURRENT_SOURCE_DIR}/src)\n"), wxNOT_FOUND);
    EXPECT_TRUE(biebTekst.EndsWith("endforeach(SRC)\n\n\nlist(SORT SRCS)\n\n\n\n\n")) << biebTekst;
    EXPECT_EQ(biebTekst.Find("add_library("), wxNOT_FOUND);
    EXPECT_EQ(biebTekst.Find("Cross"), wxNOT_FOUND);

    kern::GeneratorInvoer inc = maakInvoer("/p", kern::SoortInclude);
    inc.bronnen.Add("/p/src/a.c");
    const wxString standaard = geefUitvoer(inc).tekst;
    inc.sjablonen.includeKommando = "## eigen";
    inc.sjablonen.projektKommando = "## eigen";
    EXPECT_EQ(geefUitvoer(inc).tekst, standaard);
    EXPECT_EQ(standaard.Find("ProjectName"), wxNOT_FOUND);
}

// The listing ends at the first source on another volume; the groups made
// before it stay in the working lists (unclosed), so an include file still
// counts them for its sort line.
TEST(CMakeSchrijver, AnEarlyEndLeavesTheGroupsMadeSoFar)
{
    VreemdVolume volume("/q");
    kern::GeneratorInvoer in = maakInvoer("/p", kern::SoortInclude);
    in.naam = "Common";
    in.bronnen.Add("/p/src/a.c");
    in.bronnen.Add("/q/b.c");
    in.bronnen.Add("/p/src/c.c");
    const Uitkomst u = geefUitvoer(in);
    EXPECT_EQ(volume.fouten(), 1u);
    EXPECT_EQ(u.werk.groepNamen, lijstVan({"set(SRCS0 a.c "}));
    EXPECT_EQ(u.tekst, "## Klavermol generated Common include file\n"
                       "## File generated on : 2020-09-07 13:25:22.\n## kop\n\n"
                       "# define minimum cmake version.\ncmake_minimum_required(VERSION 2.8.10)\n\n"
                       "set(SRCS )\n"
                       "\nlist(SORT SRCS)\n\n"
                       "## Include this file where you would want to compile the listed source files (stored in "
                       "variable SRCS).\n"
                       "## and for including the listed include_directories directives.\n\n\n");
}

TEST(CMakeSchrijver, ALibraryOnAnotherVolumeKeepsItsHeadAndDirectives)
{
    VreemdVolume volume("/q");
    kern::GeneratorInvoer in = maakInvoer("/q", kern::SoortBieb);
    in.naam = "mylib";
    in.bronnen.Add("/p/a.c");
    in.biebs = {{"/p/l", "een", true}};
    const wxString tekst = geefUitvoer(in).tekst;
    EXPECT_EQ(volume.fouten(), 1u);
    EXPECT_EQ(tekst, "## Klavermol generated CMakelists add_library file\n"
                     "## File generated on : 2020-09-07 13:25:22.\n## kop\n\n"
                     "# define minimum cmake version.\ncmake_minimum_required(VERSION 2.8.10)\n\n"
                     "# The absolute path for this CMakeLists.txt file is : \"/q\"\n"
                     "set(LibName mylib)\n\n"
                     "set(SRCS )\n"
                     "\nlist(SORT SRCS)\n\n"
                     + kern::geefStandaardSjablonen().biebKommando + "\n\n\n");
}
