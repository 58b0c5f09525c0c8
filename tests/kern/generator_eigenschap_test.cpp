// Generated files that CMake itself reads. Random trees and options go
// through the writers and the file is run in script mode with the build
// commands stubbed: the SRCS list it builds must name every checked source
// exactly once, every include directory must exist, and every listed
// header's directory must be among them. And real projects that CMake
// configures, builds and runs.
#include "kern/bestand.h"
#include "kern/generator.h"

#include "bronboom_test.h"

#include <wx/filename.h>

#include <cstdio>
#include <set>

namespace {

const char* const stubs = R"cmake(
foreach(opdracht add_executable add_library target_link_libraries add_subdirectory install project)
  cmake_language(EVAL CODE "function(${opdracht})\nendfunction()")
endforeach()
function(include_directories)
  foreach(d ${ARGN})
    file(REAL_PATH "${d}" echt BASE_DIRECTORY "${CMAKE_CURRENT_SOURCE_DIR}")
    file(APPEND "${UITVOER}" "I ${echt}\n")
  endforeach()
endfunction()
include("${GEGENEREERD}")
foreach(bron ${SRCS})
  file(REAL_PATH "${bron}" echt BASE_DIRECTORY "${CMAKE_CURRENT_SOURCE_DIR}")
  file(APPEND "${UITVOER}" "S ${echt}\n")
endforeach()
)cmake";

// Runs a shell command that must succeed; gives what it printed.
std::string voerUit(const wxString& opdracht)
{
    FILE* p = popen((opdracht + " 2>&1").ToStdString().c_str(), "r");
    std::string uit;
    char blok[4096];
    for (size_t n; p != nullptr && (n = fread(blok, 1, sizeof blok, p)) > 0;)
        uit.append(blok, n);
    EXPECT_EQ(p == nullptr ? -1 : pclose(p), 0) << opdracht << "\n" << uit;
    return uit;
}

kern::GeneratorInvoer maakInvoer(const wxString& uitvoerDir, int soort, const wxString& naam)
{
    kern::GeneratorInvoer in;
    in.uitvoerDir = uitvoerDir;
    in.soort = soort;
    in.naam = naam;
    in.sjablonen = kern::geefStandaardSjablonen();
    in.datum = "2020-09-07 13:25:22";
    return in;
}

// Writes the text of `in` to `pad`, and gives it.
wxString schrijfUitvoer(const kern::GeneratorInvoer& in, const wxString& pad)
{
    kern::Werklijsten werk;
    wxString tekst;
    kern::maakUitvoer(in, werk, tekst);
    EXPECT_TRUE(kern::schrijfTekstBestand(pad, tekst));
    return tekst;
}

// Configures and builds the tree with CMake, then runs the program it made;
// gives what the program printed.
std::string bouwEnDraai(const TijdelijkeBoom& boom, const wxString& programma)
{
    voerUit("cmake -S '" + boom.map() + "' -B '" + boom.map("bouw") + "'");
    voerUit("cmake --build '" + boom.map("bouw") + "'");
    return voerUit("'" + boom.map("bouw/" + programma.ToStdString()) + "'");
}

} // namespace

TEST(GeneratorEigenschap, CMakeFindsEveryCheckedSourceOnceInRandomTrees)
{
    std::mt19937 toeval(20201122);
    const auto kies = [&toeval](const std::vector<std::string>& lijst) { return lijst[toeval() % lijst.size()]; };
    const auto in = [](const std::string& map) { return map.empty() ? map : map + "/"; };
    const char* extensies[] = {"c", "cpp", "cxx", "h", "hpp", "S", "s"};
    for (int ronde = 0; ronde < 25; ++ronde) {
        TijdelijkeBoom boom;
        std::vector<std::string> mappen{""}, bestanden;
        for (int i = 0, n = 1 + toeval() % 12; i < n; ++i) {
            mappen.push_back(in(kies(mappen)) + "m" + std::to_string(i) + "_" + char('a' + toeval() % 26));
            boom.maakMap(mappen.back());
        }
        for (int i = 0, n = toeval() % 61; i < n; ++i) {
            bestanden.push_back(in(kies(mappen)) + "bestand_met_een_langere_naam-" + std::to_string(i) + "." +
                                extensies[toeval() % WXSIZEOF(extensies)]);
            boom.maakBestand(bestanden.back());
        }
        kern::GeneratorInvoer invoer = maakInvoer(boom.map(), toeval() % 3, "eigenschap");
        invoer.projektType = toeval() % 2;
        if (toeval() % 3 == 0)
            invoer.uitvoerDir = boom.map(kies(mappen)); // or one of the directories below the root
        std::set<wxString> bronnen, headerMappen;
        for (const std::string& b : bestanden) {
            if (toeval() % 4 == 0)
                continue; // unchecked
            const wxFileName f(boom.map(b));
            invoer.bronnen.Add(f.GetFullPath());
            if (f.GetExt() == "h")
                headerMappen.insert(f.GetPath());
            else
                bronnen.insert(f.GetFullPath());
        }

        const wxString gegenereerd = boom.map("gegenereerd.cmake"), script = boom.map("proef.cmake");
        const wxString uitvoer = boom.map("uitvoer.txt");
        const wxString tekst = schrijfUitvoer(invoer, gegenereerd);
        ASSERT_TRUE(kern::schrijfTekstBestand(
            script, "set(PROJECT_SOURCE_DIR \"" + invoer.uitvoerDir + "\")\nset(CMAKE_CURRENT_SOURCE_DIR \"" +
                        invoer.uitvoerDir + "\")\nset(CMAKE_CURRENT_LIST_DIR \"" + invoer.uitvoerDir +
                        "\")\nset(GEGENEREERD \"" + gegenereerd + "\")\nset(UITVOER \"" + uitvoer +
                        "\")\nfile(WRITE \"${UITVOER}\" \"\")\n" + stubs));
        const std::string cmake = voerUit("cmake -P " + script);
        ASSERT_EQ(cmake.find("Error"), std::string::npos) << cmake << tekst;

        std::ifstream f(uitvoer.ToStdString());
        std::multiset<wxString> gezien;
        std::set<wxString> includeMappen;
        for (std::string regel; std::getline(f, regel);) {
            const wxString pad = wxString::FromUTF8(regel.substr(2));
            if (regel[0] == 'S')
                gezien.insert(pad);
            else
                includeMappen.insert(pad);
        }
        EXPECT_EQ(gezien, std::multiset<wxString>(bronnen.begin(), bronnen.end())) << "round " << ronde << "\n" << tekst;
        for (const wxString& map : includeMappen)
            EXPECT_TRUE(wxFileName::DirExists(map)) << map;
        for (const wxString& map : headerMappen)
            EXPECT_EQ(includeMappen.count(map), 1u) << map << "\n" << tekst;
    }
}

TEST(EchteBouw, ALibraryAndAProjectThatUsesItConfigureBuildAndRun)
{
    TijdelijkeBoom boom;
    boom.maakBestand("main.c", "#include <stdio.h>\n#include \"rekenen.h\"\n"
                               "int main(void) { printf(\"%d\\n\", vermenigvuldig(6, 7)); return 0; }\n");
    boom.maakBestand("rekenen/rekenen.h", "int vermenigvuldig(int a, int b);\n");
    boom.maakBestand("rekenen/src/rekenen.c",
                     "#include \"rekenen.h\"\nint vermenigvuldig(int a, int b) { return a * b; }\n");

    // The library, written into its own directory. Its paths start from the
    // directory of its own CMakeLists.txt, so that it works as a sub-directory.
    kern::GeneratorInvoer bieb = maakInvoer(boom.map("rekenen"), kern::SoortBieb, "rekenen");
    bieb.projektType = 1;
    bieb.bronnen.Add(boom.map("rekenen/src/rekenen.c"));
    bieb.bronnen.Add(boom.map("rekenen/rekenen.h"));
    schrijfUitvoer(bieb, boom.map("rekenen/CMakeLists.txt"));

    // The application, with the library as an added sub-directory.
    kern::GeneratorInvoer app = maakInvoer(boom.map(), kern::SoortProjekt, "demo");
    app.bronnen.Add(boom.map("main.c"));
    app.bronnen.Add(boom.map("rekenen/rekenen.h"));
    app.biebs.push_back({boom.map("rekenen"), "rekenen", true});
    schrijfUitvoer(app, boom.map("CMakeLists.txt"));

    EXPECT_EQ(bouwEnDraai(boom, "demo"), "42\n");
}

TEST(EchteBouw, NamesWithSpacesAndCMakeCharactersStillNameTheirFiles)
{
    TijdelijkeBoom boom;
    // (A backslash in a source name is escaped in the text as well, but CMake
    // cannot take such a source to a build.)
    const char* namen[] = {"met spatie.c", "geld$teken.c", "hek#je.c", "haak(1).c", "aanhalings'teken.c"};
    kern::GeneratorInvoer app = maakInvoer(boom.map(), kern::SoortProjekt, "namen");
    std::string hoofd, som = "0";
    for (int i = 0; i < 5; ++i) {
        const std::string functie = "f" + std::to_string(i);
        boom.maakBestand(std::string("map (met) spatie/") + namen[i], "int " + functie + "(void) { return 1; }\n");
        app.bronnen.Add(boom.map(std::string("map (met) spatie/") + namen[i]));
        hoofd += "int " + functie + "(void);\n";
        som += " + " + functie + "()";
    }
    boom.maakBestand("main.c", hoofd + "#include <stdio.h>\nint main(void) { printf(\"%d\\n\", " + som +
                                   "); return 0; }\n");
    app.bronnen.Add(boom.map("main.c"));
    const wxString tekst = schrijfUitvoer(app, boom.map("CMakeLists.txt"));
    // An ordinary name stays as it is; the others are quoted.
    EXPECT_NE(tekst.Find("list(APPEND SRCS main.c )"), wxNOT_FOUND);
    EXPECT_NE(tekst.Find("set(SrcPath0 \"${PROJECT_SOURCE_DIR}/map (met) spatie\")"), wxNOT_FOUND);
    EXPECT_NE(tekst.Find("\"geld\\$teken.c\""), wxNOT_FOUND);

    EXPECT_EQ(bouwEnDraai(boom, "namen"), "5\n");
}
