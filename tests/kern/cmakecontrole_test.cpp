#include "kern/bestand.h"
#include "kern/cmakecontrole.h"
#include "kern/generator.h"

#include "bronboom_test.h"

#include <wx/filename.h>

#include <algorithm>

namespace {

// With the real cmake: verdict, first message (the folded note when all is well), the line it points at.
TEST(CMakeControleTest, VerdictsAndTheLinesTheyPointAt)
{
    TijdelijkeBoom boom;
    ::setenv("TMPDIR", (boom.maakMap("tmp"), boom.pad("tmp")).c_str(), 1);
    for (const char* naam : {"p/main.c", "p/inc/a.h", "p/src/a.c", "buiten/l.c"})
        boom.maakBestand(naam, "int f_" + wxFileName(naam).GetName().ToStdString() + "(void) { return 0; }\n");
    boom.maakBestand("p/src/fout.c", "int fout(void)\n{\n  return nietbekend;\n}\n");
    boom.maakBestand("buiten/CMakeLists.txt", "cmake_minimum_required(VERSION 3.10)\nadd_library(buiten l.c)\n");
    const char* const kop = "cmake_minimum_required(VERSION 2.8.10)"; // `plaats`: the generated line, or "file:line"
    const struct { int soort; const char* bronnen; bool bieb, bouw; const char *weg, *oordeel, *melding, *plaats; } gevallen[] = {
        {0, "main.c inc/a.h", false, false, "", "CMake configured the project: no errors, 2 warnings",
         "Warnings CMake gives for every file of this form: No project() command is present.", kop},
        {1, "main.c src/a.c", false, true, "", "CMake configured and built the library: no errors, 1 warning",
         "Warnings CMake gives for every file of this form: Compatibility with CMake < ", kop},
        {2, "src/a.c inc/a.h", false, true, "", "CMake configured and built the include file: no errors, 1 warning", "Warnings", kop},
        {0, "main.c", true, false, "", "CMake stopped with 1 error", "add_subdirectory not given a binary directory",
         "add_subdirectory(${Lib0Path})"},
        {0, "main.c", false, false, "p", "CMake stopped with 1 error", "The source directory", ""},
        {2, "src/fout.c", false, true, "", "The build stopped with 1 error", "'nietbekend' undeclared", "p/src/fout.c:3"},
    };
    for (const auto& g : gevallen) {
        kern::GeneratorInvoer invoer; // generated and saved as Save does
        invoer.soort = g.soort, invoer.naam = "Common", invoer.uitvoerDir = boom.map("p"), invoer.sjablonen = kern::geefStandaardSjablonen();
        for (const wxString& b : wxSplit(g.bronnen, ' '))
            invoer.bronnen.Add(invoer.uitvoerDir + "/" + b);
        invoer.biebs.assign(g.bieb, kern::BiebRegel{boom.map("buiten"), "buiten", true});
        kern::Werklijsten werk;
        wxString tekst;
        kern::maakUitvoer(invoer, werk, tekst);
        const wxString pad = invoer.uitvoerDir + (g.soort == kern::SoortInclude ? "/Common.cmake" : "/CMakeLists.txt");
        ASSERT_TRUE(kern::schrijfTekstBestand(pad, tekst));
        int regels = 0, regel = *g.plaats ? wxSplit(tekst, '\n', 0).Index(g.plaats) + 1 : 0;
        ::rename(boom.pad(*g.weg ? g.weg : "geen").c_str(), boom.pad("weg").c_str()); // put back below
        const kern::ControleUitslag u =
            kern::CMakeControle().voerUit({g.soort, pad, invoer.uitvoerDir, g.bouw}, [&](const wxString&) { ++regels; });
        ::rename(boom.pad("weg").c_str(), boom.pad(g.weg).c_str());
        const auto eerste = std::find_if(u.meldingen.begin(), u.meldingen.end(),
            [&](auto& m) { return m.ernst == (u.gelukt ? kern::Ernst::Opmerking : kern::Ernst::Fout); });
        ASSERT_NE(eerste, u.meldingen.end()) << g.oordeel;
        EXPECT_EQ(u.oordeel + (regels > 0 && u.gelukt == (u.fouten == 0) ? "" : " (no output, or flag)") + "\n" +
                      eerste->tekst.Left(std::string(g.melding).size()) + wxString::Format("\n%s:%d", eerste->bestand, eerste->regel),
                  g.oordeel + ("\n" + wxString::FromUTF8(g.melding)) + "\n" +
                      (!*g.plaats ? ":0" : regel > 0 ? wxString::Format("%s:%d", pad, regel) : boom.map(g.plaats)));
    }
    EXPECT_FALSE(wxFileName::Exists(boom.map("p/CMakeCache.txt")) || wxDir(boom.map("tmp")).HasSubDirs()) << "left behind";
}

} // namespace
