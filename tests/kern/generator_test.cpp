// The exact texts of the CMake writers, and the edges of the source listing.
#include "kern/generator.h"
#include "kern/selektie.h"

#include <gtest/gtest.h>
#include <wx/log.h>

namespace {

kern::GeneratorInvoer maakInvoer(const wxString& uitvoerDir, std::vector<wxString> bronnen = {},
                                 int soort = kern::SoortProjekt)
{
    kern::GeneratorInvoer in;
    in.uitvoerDir = uitvoerDir, in.soort = soort, in.naam = "Common", in.datum = "2020-09-07 13:25:22";
    in.bronnen = wxArrayString(bronnen.size(), bronnen.data());
    (in.sjablonen = kern::geefStandaardSjablonen()).kopieerrechtMededeling = "## kop\n";
    return in;
}

struct Uitkomst { kern::Werklijsten werk; wxString tekst; };

// The source listing alone, or the whole text of the chosen kind.
Uitkomst geef(const kern::GeneratorInvoer& in, bool heel = false)
{ Uitkomst u; return (heel ? kern::maakUitvoer : kern::schrijfProjektLibUitvoer)(in, u.werk, u.tekst), u; }

wxString samen(const wxArrayString& lijst) { return wxJoin(lijst, '|', 0); }

wxString foreachBlok(int n) { return wxString::Format("foreach(SRC ${SRCS%d})\n\tlist(APPEND SRCS ${SRCS%dPath}/${SRC})\n"
                                                       "endforeach(SRC)\n\n", n, n); }

const wxString kop = "## File generated on : 2020-09-07 13:25:22.\n## kop\n\n";
const wxString minimum = "# define minimum cmake version.\ncmake_minimum_required(VERSION 2.8.10)\n\n";
const wxString geenIncludeMappen = "\nset(AllIncludeDirs )\ninclude_directories(${AllIncludeDirs})\n\n";

} // namespace

// Each row also through the store, where an unchecked entry is passed by.
TEST(Bronlijst, GroupsPerDirectoryWithHeadersAndTheOutputDirectory)
{
    const auto naam = [](size_t lengte, char letter) { return "/p/d/" + wxString(letter, lengte - 2) + ".c"; };
    const wxString a69 = naam(69, 'a'), a70 = naam(70, 'a'), a80 = naam(80, 'a'), c78 = naam(78, 'c'),
                   c79 = naam(79, 'c'), p0 = "set(SRCS0Path ${SrcPath0})#set(SRCS0 ";
    const struct { wxString uitvoer; std::vector<wxString> bronnen; wxString mappen, lijsten; } gevallen[] = {
        {"/p", {"/p/x/a.h", "/p/y/b.c", "/p/x/c.c", "/p/x/d.h"}, "x|y", // a header's directory grouped at its first source
         "set(SRCS0Path ${SrcPath1})|set(SRCS1Path ${SrcPath0})#set(SRCS0 b.c )|set(SRCS1 c.c )#${SrcPath0}"},
        {"/p", {"/p/a/x.hpp", "/p/b/y.H", "/p/c/z.h"}, "a|b|c", // only a lower-case "h" is a header
         "set(SRCS0Path ${SrcPath0})|set(SRCS1Path ${SrcPath1})#set(SRCS0 x.hpp )|set(SRCS1 y.H )#${SrcPath2}"},
        {"/p", {"/p/a.h", "/p/src/b.c", "/p/c.c"}, ".|src", "set(SRCS0Path ${SrcPath1})|#set(SRCS0 b.c )|list(APPEND SRCS c.c )#."},
        {"/p/", {"/p/a.c", "/p/a.h"}, "", p0 + "a.c )#${SrcPath0}"},
        {"/w/p", {"/w/p2/a.c", "/w/p/sub/diep/b.c", "/a.c"}, "../p2|sub/diep|../..", // a sibling with the same start
         "set(SRCS0Path ${SrcPath0})|set(SRCS1Path ${SrcPath1})|set(SRCS2Path ${SrcPath2})#set(SRCS0 a.c )|set(SRCS1 b.c )|set(SRCS2 a.c )#"},
        {"/p", {"/p/s/a\"b.c", "/p/s/c\x7f.c", "/p/s/d e.c"}, "s", p0 + "\"a\\\"b.c\" \"c\x7f.c\" \"d e.c\" )#"},
        {"/", {"/a.c", "/b.h"}, ".", "#list(APPEND SRCS a.c )#."}, // paths the toolkit splits: "/", "//", ".h" (a source)
        {"/p", {"/p//s/.h", "/p/s/b.c", "/p/t//c.h"}, "s|t", p0 + ".h b.c )#${SrcPath1}"},
        {"/p/~q", {"/p/~q/i/.h", "/p/~q/i/a.h"}, "i", p0 + ".h )#${SrcPath0}"},
        {"/p", {"/p/a$b.c", "/p/c.c"}, ".", "#list(APPEND SRCS \"a\\$b.c\" c.c )#"}, // a lone "$" is quoted too
        {"/p", {a69, "/p/d/b.c", "/p/d/c.c"}, "d", p0 + a69.substr(5) + " b.c c.c \n\t)#"}, // break past 80 since start/tab
        {"/p", {a70, "/p/d/b.c", "/p/d/c.c"}, "d", p0 + a70.substr(5) + " b.c \n\tc.c )#"},
        {"/p", {a80, "/p/d/b.c", c78, "/p/d/d.c", "/p/d/e.c"}, "d", p0 + a80.substr(5) + " b.c \n\t" + c78.substr(5) + " d.c e.c \n\t)#"},
        {"/p", {a80, "/p/d/b.c", c79, "/p/d/d.c", "/p/d/e.c"}, "d", p0 + a80.substr(5) + " b.c \n\t" + c79.substr(5) + " d.c \n\te.c )#"},
    };
    for (const auto& g : gevallen) {
        const Uitkomst u = geef(maakInvoer(g.uitvoer, g.bronnen));
        EXPECT_EQ(samen(u.werk.dirLijst) + "#" + samen(u.werk.groepPaden) + "#" + samen(u.werk.groepNamen) + "#" +
                      samen(u.werk.includeDirs), g.mappen + "#" + g.lijsten);
        kern::BronSelektie selektie;
        selektie.voegToe("/weg/niet.c"), selektie.zetAangevinkt(0, false);
        selektie.voegToe(wxArrayString(g.bronnen.size(), g.bronnen.data()), nullptr);
        kern::GeneratorInvoer uitSelektie = maakInvoer(g.uitvoer);
        uitSelektie.selektie = &selektie;
        EXPECT_EQ(geef(uitSelektie).tekst, u.tekst) << g.mappen;
    }
}

// ${SrcPath1} is not taken for ${SrcPath12}; the include list breaks after nine, then every eight.
TEST(Bronlijst, ManyDirectoriesKeepTheirNumbersAndTheIncludeListWraps)
{
    kern::GeneratorInvoer in = maakInvoer("/p");
    wxString verwacht = "\nset(AllIncludeDirs ";
    for (int i = 0; i < 18; ++i) {
        in.bronnen.Add(wxString::Format("/p/d%d/x.h", i));
        verwacht += wxString::Format("${SrcPath%d} ", i) + (i == 8 || i == 16 ? "\n\t" : "");
    }
    for (const char* b : {"/p/d12/bron.c", "/p/d1/bron.c", "/p/d1/nog.h"}) in.bronnen.Add(b);
    const Uitkomst u = geef(in);
    EXPECT_NE(u.tekst.Find(verwacht + ")\ninclude_directories(${AllIncludeDirs})\n\n"), wxNOT_FOUND);
    EXPECT_EQ(samen(u.werk.groepPaden), "set(SRCS0Path ${SrcPath12})|set(SRCS1Path ${SrcPath1})");
}

// A source on another volume ends the listing with an error; the include file keeps its sort line.
TEST(Bronlijst, ASourceOnAnotherVolumeEndsOnlyTheListing)
{
    struct Opname : wxLog { wxString regels;
        void DoLogRecord(wxLogLevel n, const wxString& t, const wxLogRecordInfo&) override { regels << n << ":" << t; }
    } opname;
    wxLog* const vorige = wxLog::SetActiveTarget(&opname);
    kern::geefVolumeNaad() = [](const wxFileName& f) { return f.GetFullPath().StartsWith("/q") ? "Q" : ""; };
    const Uitkomst u = geef(maakInvoer("/p", {"/p/a.c", "/q/b.c", "/p/src/c.c"}, kern::SoortInclude), true);
    kern::geefVolumeNaad() = [](const wxFileName& f) { return f.GetVolume(); };
    wxLog::SetActiveTarget(vorige);
    EXPECT_EQ(opname.regels, "1:Error computing the relative path between output file and the source files.\n"
                             "Please select the output directory to reside on the same volume as the sources files.");
    EXPECT_EQ(samen(u.werk.dirLijst) + "|" + samen(u.werk.groepNamen), "|set(SRCS0 a.c ");
    EXPECT_EQ(u.tekst, "## Klavermol generated Common include file\n" + kop + minimum + "set(SRCS )\n\nlist(SORT SRCS)\n\n"
                       "## Include this file where you would want to compile the listed source files (stored in variable SRCS).\n"
                       "## and for including the listed include_directories directives.\n\n\n");
}

TEST(Generator, TheProjectTexts)
{
    const wxString begin = "## Klavermol generated CMakelists Project file\n" + kop + "set(ProjectName Common)\n\n" + minimum,
                   slot = "## This project will probably need some tuning, but this is the raw form with most ingredients in place.\n\n\n";
    kern::GeneratorInvoer in = maakInvoer("/p", {"/p/main.c", "/p/src/a.c", "/p/src/b.c", "/p/inc/a.h"});
    in.biebs = {{"/p/l", "een", true}, {"/p/m", "twee", false}};
    EXPECT_EQ(geef(in, true).tekst,
              begin + "set(SRCS )\nset(SrcPath0 ${PROJECT_SOURCE_DIR}/.)\nset(SrcPath1 ${PROJECT_SOURCE_DIR}/src)\n"
                  "set(SrcPath2 ${PROJECT_SOURCE_DIR}/inc)\n\nset(AllIncludeDirs ${SrcPath2} )\ninclude_directories(${AllIncludeDirs})\n\n\n"
                  "list(APPEND SRCS main.c )\n" + foreachBlok(0) + "set(SRCS1Path ${SrcPath1})\nset(SRCS1 a.c b.c )\n" + foreachBlok(1) +
                  "set(Lib0Path ${PROJECT_SOURCE_DIR}/l)\nadd_subdirectory(${Lib0Path})\n\n\nlist(SORT SRCS)\n\n" +
                  kern::geefStandaardSjablonen().projektKommando + "\ntarget_link_libraries(${ProjectName} een )\n\n" + slot);
    // Crosscompile: rows keep their numbers, take ${SrcPath<i>} only on an exact match, else ${PROJECT_SOURCE_DIR}.
    in = maakInvoer("/p", {"/p/src/a.c"}), in.projektType = 1;
    in.includes = {{"src/eigen.cmake", true}, {"/p/cmake/a.cmake", false}, {"/p/src/abs.cmake", true}, {"/p/b.cmake", true}};
    in.biebs = {{"src", "een", true}, {"/p/lib1", "x", false}, {"/q/lib2", "twee", true}, {"/p", "drie", true}};
    EXPECT_EQ(geef(in, true).tekst,
              begin + "## Cross-compilation requires a rewrite of several CMake compilation directive.\n"
                  "## Please include a cross-compile configuration file here (using include or directly).\n\n"
                  "set(SRCS )\nset(SrcPath0 ${CMAKE_CURRENT_SOURCE_DIR}/src)\n" + geenIncludeMappen +
                  "set(Include0Path ${SrcPath0})\ninclude(${Include0Path}/eigen.cmake)\n\n"
                  "set(Include2Path ${PROJECT_SOURCE_DIR}/src)\ninclude(${Include2Path}/abs.cmake)\n\n"
                  "set(Include3Path ${PROJECT_SOURCE_DIR}/.)\ninclude(${Include3Path}/b.cmake)\n\n"
                  "set(SRCS0Path ${SrcPath0})\nset(SRCS0 a.c )\n" + foreachBlok(0) +
                  "set(Lib0Path ${SrcPath0})\nadd_subdirectory(${Lib0Path})\n\n"
                  "set(Lib2Path ${PROJECT_SOURCE_DIR}/../q/lib2)\nadd_subdirectory(${Lib2Path})\n\n"
                  "set(Lib3Path ${PROJECT_SOURCE_DIR}/.)\nadd_subdirectory(${Lib3Path})\n\n"
                  "\nlist(SORT SRCS)\n\n## Enter the Cross compile commands here.\n"
                  "target_link_libraries(${ProjectName} een twee drie )\n\n" + slot);
    in.soort = 3; // no such kind: nothing at all
    EXPECT_TRUE(geef(in, true).tekst.empty());
}

// The library variable's name comes from its template, the path base from the project type.
TEST(Generator, TheLibraryKinds)
{
    const kern::Sjablonen s = kern::geefStandaardSjablonen();
    const wxString kommandos[] = {s.biebKommando, s.dynBiebKommando, s.objektBiebKommando, ""};
    for (int type = 0; type < 4; ++type) {
        kern::GeneratorInvoer in = maakInvoer("/p/lib", {"/p/lib/a.c"}, kern::SoortBieb);
        in.biebType = type, in.projektType = type == 3 ? 1 : 0, in.naam = "mylib", in.sjablonen.biebLibNaam = "MijnBieb";
        EXPECT_EQ(geef(in, true).tekst, "## Klavermol generated CMakelists add_library file\n" + kop + minimum +
                      "# The absolute path for this CMakeLists.txt file is : \"/p/lib\"\nset(MijnBieb mylib)\n\nset(SRCS )\n"
                      "set(SrcPath0 ${" + (type == 3 ? "CMAKE_CURRENT" : "PROJECT") + "_SOURCE_DIR}/.)\n" + geenIncludeMappen +
                      "\nlist(APPEND SRCS a.c )\n" + foreachBlok(0) + "\nlist(SORT SRCS)\n\n" + kommandos[type] + "\n\n\n") << type;
    }
}

// Headers only: no sort line; the stored templates are never read.
TEST(Generator, TheIncludeFileOfHeaders)
{
    kern::GeneratorInvoer in = maakInvoer("/p", {"/p/inc/a.h"}, kern::SoortInclude);
    in.sjablonen.includeKommando = in.sjablonen.projektKommando = "## eigen";
    EXPECT_EQ(geef(in, true).tekst, "## Klavermol generated Common include file\n" + kop + minimum +
                  "set(SRCS )\nset(SrcPath0 ${PROJECT_SOURCE_DIR}/inc)\n\nset(AllIncludeDirs ${SrcPath0} )\n"
                  "include_directories(${AllIncludeDirs})\n\n## Include this file for including the listed include_directories directives.\n\n\n");
}
