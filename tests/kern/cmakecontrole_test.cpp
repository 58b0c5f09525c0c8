// Checking saved files with the real cmake, on small trees made here.
#include "kern/bestand.h"
#include "kern/cmakecontrole.h"
#include "kern/generator.h"

#include <gtest/gtest.h>
#include <wx/dir.h>
#include <wx/filename.h>

#include <cstdlib>
#include <fstream>
#include <sys/wait.h>

namespace {

class CMakeControleTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        char sjabloon[] = "/tmp/klavermol-controle-test-XXXXXX";
        ASSERT_NE(mkdtemp(sjabloon), nullptr);
        map = sjabloon;
        setenv("TMPDIR", (map + "/tmp").c_str(), 1);
        wxFileName::Mkdir(map + "/tmp");
        for (const char* naam : {"p/main.c", "p/src/a.c", "p/src/b.c", "p/inc/a.h", "buiten/l.c"})
            maak(naam, "int f_" + wxFileName(naam).GetName().ToStdString() + "(void) { return 0; }\n");
        maak("buiten/CMakeLists.txt", "cmake_minimum_required(VERSION 3.10)\nadd_library(buiten l.c)\n");
    }
    void TearDown() override { wxFileName::Rmdir(map, wxPATH_RMDIR_RECURSIVE); }
    void maak(const std::string& pad, const std::string& inhoud)
    {
        wxFileName::Mkdir(wxFileName(map + "/" + pad).GetPath(), wxS_DIR_DEFAULT, wxPATH_MKDIR_FULL);
        std::ofstream(map + "/" + pad) << inhoud;
    }

    // Generates the kind over `bronnen` (below the tree) and saves it as Save does.
    wxString bewaar(int soort, const std::vector<const char*>& bronnen, bool metBuitenBieb)
    {
        invoer = kern::GeneratorInvoer();
        invoer.soort = soort;
        invoer.naam = "Common";
        invoer.uitvoerDir = map + "/p";
        invoer.sjablonen = kern::geefStandaardSjablonen();
        for (const char* b : bronnen)
            invoer.bronnen.Add(map + "/" + b);
        if (metBuitenBieb)
            invoer.biebs.push_back({map + "/buiten", "buiten", true});
        kern::Werklijsten werk;
        tekst.clear();
        kern::maakUitvoer(invoer, werk, tekst);
        const wxString pad = invoer.uitvoerDir + (soort == kern::SoortInclude ? "/Common.cmake" : "/CMakeLists.txt");
        EXPECT_TRUE(kern::schrijfTekstBestand(pad, tekst));
        return pad;
    }

    std::string map;
    kern::GeneratorInvoer invoer;
    wxString tekst;
};

TEST_F(CMakeControleTest, VerdictsAndTheLinesTheyPointAt)
{
    // `weg` is deleted after the save; `melding` starts the first message (the folded note when all is
    // well); `plaats` is the line it points at: the generated text there, or "file:line".
    const struct
    {
        int soort;
        std::vector<const char*> bronnen;
        bool buitenBieb, bouw;
        const char *weg, *oordeel, *melding, *plaats;
    } gevallen[] = {
        {0, {"p/main.c", "p/inc/a.h"}, false, false, "", "CMake configured the project: no errors, 2 warnings",
         "Warnings CMake gives for every file of this form: No project() command is present.",
         "cmake_minimum_required(VERSION 2.8.10)"},
        {1, {"p/main.c", "p/src/a.c"}, false, true, "", "CMake configured and built the library: no errors, 1 warning",
         "Warnings CMake gives for every file of this form: Compatibility with CMake < ",
         "cmake_minimum_required(VERSION 2.8.10)"},
        {2, {"p/src/a.c", "p/inc/a.h"}, false, true, "",
         "CMake configured and built the include file: no errors, 1 warning", "Warnings",
         "cmake_minimum_required(VERSION 2.8.10)"},
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
        const wxString pad = bewaar(g.soort, g.bronnen, g.buitenBieb);
        if (*g.weg)
            wxFileName::DirExists(map + "/" + g.weg) ? wxRename(map + "/" + g.weg, map + "/weg")
                                                      : wxRemoveFile(map + "/" + g.weg);
        int regels = 0;
        kern::CMakeControle controle;
        const kern::ControleUitslag u =
            controle.voerUit({g.soort, pad, invoer.uitvoerDir, g.bouw}, [&](const wxString&) { ++regels; });
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
        EXPECT_EQ(eerste->bestand,
                  plaats.empty() ? wxString() : regel > 0 ? pad : wxString(map) + "/" + plaats.BeforeLast(':'));
        EXPECT_EQ(eerste->regel, regel > 0 ? regel : wxAtoi(plaats.AfterLast(':')));
    }
    // nothing left behind, neither in the temporary directory nor in the tree
    EXPECT_FALSE(wxFileName::Exists(map + "/p/CMakeCache.txt"));
    EXPECT_FALSE(wxDir(map + "/tmp").HasSubDirs());
}

TEST_F(CMakeControleTest, CommandLineExitCodes)
{
    const std::string gebruik = "klavermol-cli: --check takes no value or \"build\", and needs -w";
    const struct { const char *omgeving, *aanroep; int code; std::string laatsteRegel; } gevallen[] = {
        {"", "-o p --c -m recursive p -w --check", 0, "CMake configured the project: no errors, 2 warnings"},
        {"", "-o p --c p --subdir buiten=buiten -w --check=build", 1, "CMake stopped with 1 error"},
        {"", "-o p --c p -w --check=bouw", 2, gebruik},
        {"PATH=/nergens", "-o p --c p -w --check", 1,
         "klavermol-cli: There is no cmake program on the PATH. Install it with \"apt-get install cmake\"."},
    };
    for (const auto& g : gevallen) {
        SCOPED_TRACE(g.aanroep);
        const int status = std::system(("cd " + map + " && HOME=" + map + " " + g.omgeving + " " KLAVERMOL_BIN_DIR
                                        "/klavermol-cli " + g.aanroep + " 2>fout.txt >/dev/null").c_str());
        EXPECT_EQ(WIFEXITED(status) ? WEXITSTATUS(status) : -1, g.code);
        std::ifstream f(map + "/fout.txt");
        const wxString fout(std::string(std::istreambuf_iterator<char>(f), {}));
        EXPECT_EQ(wxSplit(wxString(fout).Trim(), '\n', 0).Last(), g.laatsteRegel) << fout;
    }
}

} // namespace
