// Checking saved files with the real cmake, on a small tree made here.
#include "kern/bestand.h"
#include "kern/cmakecontrole.h"
#include "kern/generator.h"

#include <gtest/gtest.h>
#include <wx/dir.h>
#include <wx/filename.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>

namespace {

TEST(CMakeControleTest, VerdictsAndTheLinesTheyPointAt)
{
    char sjabloon[] = "/tmp/klavermol-controle-test-XXXXXX";
    ASSERT_NE(mkdtemp(sjabloon), nullptr);
    const wxString map = sjabloon;
    setenv("TMPDIR", (map + "/tmp").c_str(), 1);
    wxFileName::Mkdir(map + "/tmp");
    const auto maak = [&](const wxString& pad, const std::string& inhoud) {
        wxFileName::Mkdir(wxFileName(map + "/" + pad).GetPath(), wxS_DIR_DEFAULT, wxPATH_MKDIR_FULL);
        std::ofstream((map + "/" + pad).ToStdString()) << inhoud;
    };
    for (const char* naam : {"p/main.c", "p/inc/a.h", "buiten/l.c"})
        maak(naam, "int f_" + wxFileName(naam).GetName().ToStdString() + "(void) { return 0; }\n");
    maak("buiten/CMakeLists.txt", "cmake_minimum_required(VERSION 3.10)\nadd_library(buiten l.c)\n");

    // `weg` is deleted after the save; `melding` starts the first message (the folded note when all is
    // well); `plaats` is the line it points at: the generated text there, or "file:line".
    const char* const kop = "cmake_minimum_required(VERSION 2.8.10)";
    const struct { int soort; std::vector<const char*> bronnen; bool buitenBieb, bouw;
                   const char *weg, *oordeel, *melding, *plaats; } gevallen[] = {
        {0, {"p/main.c", "p/inc/a.h"}, false, false, "", "CMake configured the project: no errors, 2 warnings",
         "Warnings CMake gives for every file of this form: No project() command is present.", kop},
        {1, {"p/main.c", "p/src/a.c"}, false, true, "", "CMake configured and built the library: no errors, 1 warning",
         "Warnings CMake gives for every file of this form: Compatibility with CMake < ", kop},
        {2, {"p/src/a.c", "p/inc/a.h"}, false, true, "",
         "CMake configured and built the include file: no errors, 1 warning", "Warnings", kop},
        {0, {"p/main.c"}, true, false, "", "CMake stopped with 1 error",
         "add_subdirectory not given a binary directory", "add_subdirectory(${Lib0Path})"},
        {0, {"p/main.c", "p/src/b.c"}, false, false, "p/src/b.c", "CMake stopped with 2 errors",
         "Cannot find source file: ", "add_executable(${ProjectName} ${SRCS})"},
        {0, {"p/main.c"}, false, false, "p", "CMake stopped with 1 error", "The source directory", ""},
        {2, {"p/src/a.c"}, false, true, "", "The build stopped with 1 error", "'nietbekend' undeclared", "p/src/a.c:3"},
    };
    for (const auto& g : gevallen) {
        SCOPED_TRACE(g.oordeel);
        maak("p/src/b.c", "int f_b(void) { return 0; }\n");
        const bool fout = std::string(g.melding).find("nietbekend") != std::string::npos;
        maak("p/src/a.c", fout ? "int a(void)\n{\n  return nietbekend;\n}\n" : "int f_a(void) { return 0; }\n");
        // generated and saved as Save does
        kern::GeneratorInvoer invoer;
        invoer.soort = g.soort;
        invoer.naam = "Common";
        invoer.uitvoerDir = map + "/p";
        invoer.sjablonen = kern::geefStandaardSjablonen();
        for (const char* b : g.bronnen)
            invoer.bronnen.Add(map + "/" + b);
        if (g.buitenBieb)
            invoer.biebs.push_back({map + "/buiten", "buiten", true});
        kern::Werklijsten werk;
        wxString tekst;
        kern::maakUitvoer(invoer, werk, tekst);
        const wxString pad = invoer.uitvoerDir + (g.soort == kern::SoortInclude ? "/Common.cmake" : "/CMakeLists.txt");
        ASSERT_TRUE(kern::schrijfTekstBestand(pad, tekst));
        if (*g.weg)
            wxFileName::DirExists(map + "/" + g.weg) ? wxRename(map + "/" + g.weg, map + "/weg")
                                                      : wxRemoveFile(map + "/" + g.weg);
        int regels = 0;
        const kern::ControleUitslag u =
            kern::CMakeControle().voerUit({g.soort, pad, invoer.uitvoerDir, g.bouw}, [&](const wxString&) { ++regels; });
        if (wxFileName::DirExists(map + "/weg"))
            wxRename(map + "/weg", map + "/p");
        EXPECT_EQ(u.oordeel, g.oordeel);
        EXPECT_GT(regels, 0);
        EXPECT_EQ(u.gelukt, u.fouten == 0);
        const auto eerste = std::find_if(u.meldingen.begin(), u.meldingen.end(), [&](const kern::CMakeMelding& m) {
            return m.ernst == (u.gelukt ? kern::Ernst::Opmerking : kern::Ernst::Fout);
        });
        ASSERT_NE(eerste, u.meldingen.end());
        EXPECT_TRUE(eerste->tekst.StartsWith(g.melding)) << eerste->tekst;
        const wxString plaats = g.plaats;
        const int regel = plaats.empty() ? 0 : wxSplit(tekst, '\n', 0).Index(plaats) + 1;
        EXPECT_EQ(eerste->bestand, plaats.empty() ? wxString() : regel > 0 ? pad : map + "/" + plaats.BeforeLast(':'));
        EXPECT_EQ(eerste->regel, regel > 0 ? regel : wxAtoi(plaats.AfterLast(':')));
    }
    // nothing left behind, neither in the temporary directory nor in the tree
    EXPECT_FALSE(wxFileName::Exists(map + "/p/CMakeCache.txt"));
    EXPECT_FALSE(wxDir(map + "/tmp").HasSubDirs());
    wxFileName::Rmdir(map, wxPATH_RMDIR_RECURSIVE);
}

} // namespace
