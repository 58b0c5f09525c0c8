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
        for (const char* naam : {"main", "src/a", "src/b", "inc/a"})
            maak("p/" + std::string(naam) + (naam[0] == 'i' ? ".h" : ".c"),
                 "int f_" + wxFileName(naam).GetName().ToStdString() + "(void) { return 0; }\n");
        maak("buiten/l.c", "int l(void) { return 0; }\n");
        maak("buiten/CMakeLists.txt", "cmake_minimum_required(VERSION 3.10)\nadd_library(buiten l.c)\n");
    }
    void TearDown() override { wxFileName::Rmdir(map, wxPATH_RMDIR_RECURSIVE); }

    void maak(const std::string& pad, const std::string& inhoud)
    {
        wxFileName::Mkdir(wxFileName(map + "/" + pad).GetPath(), wxS_DIR_DEFAULT, wxPATH_MKDIR_FULL);
        std::ofstream(map + "/" + pad) << inhoud;
    }

    // Generates the kind over `bronnen` (below the tree) and saves it as Save does.
    wxString bewaar(int soort, std::initializer_list<const char*> bronnen, bool metBuitenBieb = false)
    {
        invoer.soort = soort;
        invoer.naam = soort == kern::SoortInclude ? "Common" : "mylib";
        invoer.uitvoerDir = map + "/p";
        invoer.sjablonen = kern::geefStandaardSjablonen();
        for (const char* b : bronnen)
            invoer.bronnen.Add(map + "/" + b);
        if (metBuitenBieb)
            invoer.biebs.push_back({map + "/buiten", "buiten", true});
        kern::Werklijsten werk;
        kern::maakUitvoer(invoer, werk, tekst);
        const wxString pad = invoer.uitvoerDir + (soort == kern::SoortInclude ? "/Common.cmake" : "/CMakeLists.txt");
        EXPECT_TRUE(kern::schrijfTekstBestand(pad, tekst));
        return pad;
    }

    // The line (from 1) of the generated text that reads exactly `inhoud`.
    int regelVan(const wxString& inhoud) const
    {
        const wxArrayString regels = wxSplit(tekst, '\n', 0);
        const int plaats = regels.Index(inhoud);
        return plaats == wxNOT_FOUND ? -1 : plaats + 1;
    }

    std::string map;
    kern::GeneratorInvoer invoer;
    wxString tekst;
};

TEST_F(CMakeControleTest, VerdictsAndTheLinesTheyPointAt)
{
    struct Geval
    {
        const char* naam;
        int soort;
        std::initializer_list<const char*> bronnen;
        bool buitenBieb, bouw, wisB, uitvoerWeg;
        const char* oordeel;
        const char* eersteFout; // the start of the first error, nullptr when none
        const char* regel;      // the generated line it points at; "" for none
    };
    const Geval gevallen[] = {
        {"project", 0, {"p/main.c", "p/src/a.c", "p/inc/a.h"}, false, false, false, false,
         "CMake configured the project: no errors, 2 warnings", nullptr, ""},
        {"library, built", 1, {"p/main.c", "p/src/a.c"}, false, true, false, false,
         "CMake configured and built the library: no errors, 1 warning", nullptr, ""},
        {"include, built", 2, {"p/src/a.c", "p/inc/a.h"}, false, true, false, false,
         "CMake configured and built the include file: no errors, 1 warning", nullptr, ""},
        {"library outside the tree", 0, {"p/main.c"}, true, false, false, false, "CMake stopped with 1 error",
         "add_subdirectory not given a binary directory", "add_subdirectory(${Lib0Path})"},
        {"source deleted after Add", 0, {"p/main.c", "p/src/b.c"}, false, false, true, false,
         "CMake stopped with 2 errors", "Cannot find source file: ", "add_executable(${ProjectName} ${SRCS})"},
        {"output directory gone", 0, {"p/main.c"}, false, false, false, true, "CMake stopped with 1 error",
         "The source directory", ""},
    };
    for (const Geval& g : gevallen) {
        SCOPED_TRACE(g.naam);
        invoer = kern::GeneratorInvoer();
        tekst.clear();
        const wxString pad = bewaar(g.soort, g.bronnen, g.buitenBieb);
        if (g.wisB)
            wxRemoveFile(map + "/p/src/b.c");
        kern::ControleOpdracht opdracht{g.soort, pad, invoer.uitvoerDir, g.bouw};
        if (g.uitvoerWeg)
            opdracht.uitvoerDir = map + "/weg";
        int regels = 0;
        kern::CMakeControle controle;
        const kern::ControleUitslag u = controle.voerUit(opdracht, [&](const wxString&) { ++regels; });
        EXPECT_EQ(u.oordeel, g.oordeel);
        EXPECT_GT(regels, 0);
        ASSERT_FALSE(u.meldingen.empty());
        if (g.eersteFout == nullptr) {
            // the warnings every such file gets, as one note at the minimum-version line
            ASSERT_EQ(u.meldingen.size(), 1u);
            EXPECT_EQ(u.meldingen[0].ernst, kern::Ernst::Opmerking);
            EXPECT_EQ(u.meldingen[0].bestand, pad);
            EXPECT_EQ(u.meldingen[0].regel, regelVan("cmake_minimum_required(VERSION 2.8.10)"));
            EXPECT_TRUE(u.gelukt);
        } else {
            const auto fout = std::find_if(u.meldingen.begin(), u.meldingen.end(),
                                           [](const kern::CMakeMelding& m) { return m.ernst == kern::Ernst::Fout; });
            ASSERT_NE(fout, u.meldingen.end());
            EXPECT_TRUE(fout->tekst.StartsWith(g.eersteFout)) << fout->tekst;
            EXPECT_EQ(fout->bestand, *g.regel ? pad : wxString());
            EXPECT_EQ(fout->regel, *g.regel ? regelVan(g.regel) : 0);
            EXPECT_FALSE(u.gelukt);
        }
        maak("p/src/b.c", "int f_b(void) { return 0; }\n");
    }
    // nothing left behind, neither in the temporary directory nor in the tree
    EXPECT_FALSE(wxFileName::Exists(map + "/p/CMakeCache.txt"));
    EXPECT_FALSE(wxDir(map + "/tmp").HasSubDirs());
}

TEST_F(CMakeControleTest, CompilerErrorsOfTheBuildAreListedWithTheirLine)
{
    maak("p/src/a.c", "int a(void)\n{\n  return nietbekend;\n}\n");
    const wxString pad = bewaar(kern::SoortInclude, {"p/src/a.c"});
    kern::CMakeControle controle;
    const kern::ControleUitslag u = controle.voerUit({kern::SoortInclude, pad, invoer.uitvoerDir, true}, {});
    EXPECT_EQ(u.oordeel, "The build stopped with 1 error");
    ASSERT_EQ(u.meldingen.size(), 2u);
    EXPECT_EQ(u.meldingen[1].bestand, map + "/p/src/a.c");
    EXPECT_EQ(u.meldingen[1].regel, 3);
    EXPECT_TRUE(u.meldingen[1].tekst.StartsWith("'nietbekend' undeclared")) << u.meldingen[1].tekst;
}

int cli(const std::string& map, const std::string& argumenten, std::string& fout)
{
    const std::string opdracht = "cd " + map + " && HOME=" + map + " " + argumenten + " 2>" + map + "/fout.txt >/dev/null";
    const int status = std::system(opdracht.c_str());
    std::ifstream f(map + "/fout.txt");
    fout.assign(std::istreambuf_iterator<char>(f), {});
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

TEST_F(CMakeControleTest, CommandLineExitCodes)
{
    const std::string gebruik = "klavermol-cli: --check takes no value or \"build\", and needs -w";
    const struct
    {
        const char* omgeving;
        const char* argumenten;
        int code;
        std::string laatsteRegel;
    } gevallen[] = {
        {"", "-o p --c -m recursive p -w --check", 0, "CMake configured the project: no errors, 2 warnings"},
        {"", "-k library -o p --c p -w --check=build", 0, "CMake configured and built the library: no errors, 1 warning"},
        {"", "-o p --c p --subdir buiten=buiten -w --check", 1, "CMake stopped with 1 error"},
        {"", "-o p --c p -w --check=bouw", 2, gebruik},
        {"", "-o p --c p --check", 2, gebruik},
        {"PATH=/nergens", "-o p --c p -w --check", 1,
         "klavermol-cli: There is no cmake program on the PATH. Install it with \"apt-get install cmake\"."},
    };
    for (const auto& g : gevallen) {
        SCOPED_TRACE(g.argumenten);
        std::string fout;
        EXPECT_EQ(cli(map, std::string(g.omgeving) + " " KLAVERMOL_BIN_DIR "/klavermol-cli " + g.argumenten, fout),
                  g.code);
        EXPECT_EQ(wxSplit(wxString(fout).Trim(), '\n', 0).Last(), g.laatsteRegel) << fout;
    }
}

} // namespace
