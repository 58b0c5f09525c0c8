// Generated files that CMake itself reads: random trees run in script mode
// with the build commands stubbed, and a real project built and run.
#include "kern/bestand.h"
#include "kern/generator.h"

#include "bronboom_test.h"

#include <wx/filename.h>

#include <cstdio>
#include <sstream>

namespace {

const char* const stubs = R"cmake(
foreach(opdracht add_executable add_library target_link_libraries add_subdirectory install project)
  cmake_language(EVAL CODE "function(${opdracht})\nendfunction()")
endforeach()
function(include_directories)
  foreach(d ${ARGN})
    file(REAL_PATH "${d}" echt BASE_DIRECTORY "${CMAKE_CURRENT_SOURCE_DIR}")
    message("I ${echt}")
  endforeach()
endfunction()
include("${GEGENEREERD}")
foreach(bron ${SRCS})
  file(REAL_PATH "${bron}" echt BASE_DIRECTORY "${CMAKE_CURRENT_SOURCE_DIR}")
  message("S ${echt}")
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

wxString schrijfUitvoer(const kern::GeneratorInvoer& in, const wxString& pad)
{
    kern::Werklijsten werk;
    wxString tekst;
    kern::maakUitvoer(in, werk, tekst);
    EXPECT_TRUE(kern::schrijfTekstBestand(pad, tekst));
    return tekst;
}

} // namespace

// The SRCS list must name every checked source exactly once, every include
// directory must exist, and every listed header's directory must be among them.
TEST(GeneratorEigenschap, CMakeFindsEveryCheckedSourceOnceInRandomTrees)
{
    std::mt19937 toeval(20201122);
    const auto kies = [&toeval](const std::vector<std::string>& lijst) { return lijst[toeval() % lijst.size()]; };
    const char* extensies[] = {"c", "cpp", "cxx", "h", "hpp", "S", "s"};
    for (int ronde = 0; ronde < 25; ++ronde) {
        TijdelijkeBoom boom;
        std::vector<std::string> mappen{""}, bestanden;
        for (int i = 0, n = 1 + toeval() % 12; i < n; ++i) {
            const std::string ouder = kies(mappen);
            mappen.push_back(onder(ouder, "m" + std::to_string(i) + "_" + char('a' + toeval() % 26)));
            boom.maakMap(mappen.back());
        }
        for (int i = 0, n = toeval() % 61; i < n; ++i) {
            bestanden.push_back(onder(kies(mappen), "bestand_met_een_langere_naam-" + std::to_string(i) + "." +
                                               extensies[toeval() % WXSIZEOF(extensies)]));
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

        const wxString tekst = schrijfUitvoer(invoer, boom.map("gegenereerd.cmake"));
        wxString script = "set(GEGENEREERD \"" + boom.map("gegenereerd.cmake") + "\")\n";
        for (const char* naam : {"PROJECT_SOURCE_DIR", "CMAKE_CURRENT_SOURCE_DIR", "CMAKE_CURRENT_LIST_DIR"})
            script << "set(" << naam << " \"" << invoer.uitvoerDir << "\")\n";
        ASSERT_TRUE(kern::schrijfTekstBestand(boom.map("proef.cmake"), script + stubs));
        const std::string cmake = voerUit("cmake -P " + boom.map("proef.cmake"));
        ASSERT_EQ(cmake.find("Error"), std::string::npos) << cmake << tekst;

        std::istringstream uit(cmake);
        std::multiset<wxString> gezien;
        std::set<wxString> includeMappen;
        for (std::string regel; std::getline(uit, regel);) {
            if (regel.rfind("S ", 0) == 0)
                gezien.insert(wxString::FromUTF8(regel.substr(2)));
            else if (regel.rfind("I ", 0) == 0)
                includeMappen.insert(wxString::FromUTF8(regel.substr(2)));
        }
        EXPECT_EQ(gezien, std::multiset<wxString>(bronnen.begin(), bronnen.end())) << "round " << ronde << tekst;
        for (const wxString& map : includeMappen)
            EXPECT_TRUE(wxFileName::DirExists(map)) << map;
        for (const wxString& map : headerMappen)
            EXPECT_EQ(includeMappen.count(map), 1u) << map << "\n" << tekst;
    }
}

// A library made with "Add CMake library" into an application: its paths
// start from its own CMakeLists.txt, and its names hold blanks and CMake's
// own characters.
TEST(EchteBouw, ALibraryAndAProjectThatUsesItConfigureBuildAndRun)
{
    TijdelijkeBoom boom;
    const char* namen[] = {"met spatie.c", "geld$teken.c", "hek#je.c", "haak(1).c", "aanhalings'teken.c"};
    kern::GeneratorInvoer bieb = maakInvoer(boom.map("reken (bieb)"), kern::SoortBieb, "rekenen");
    bieb.projektType = 1;
    std::string koppen, som = "0";
    for (int i = 0; i < 5; ++i) {
        const std::string functie = "f" + std::to_string(i);
        const std::string bron = std::string("reken (bieb)/map met spatie/") + namen[i];
        boom.maakBestand(bron, "int " + functie + "(void) { return " + std::to_string(i + 1) + "; }\n");
        bieb.bronnen.Add(boom.map(bron));
        koppen += "int " + functie + "(void);\n";
        som += " + " + functie + "()";
    }
    boom.maakBestand("reken (bieb)/rekenen.h", koppen);
    bieb.bronnen.Add(boom.map("reken (bieb)/rekenen.h"));
    schrijfUitvoer(bieb, boom.map("reken (bieb)/CMakeLists.txt"));

    boom.maakBestand("main.c", "#include <stdio.h>\n#include \"rekenen.h\"\nint main(void) { printf(\"%d\\n\", " + som +
                                   "); return 0; }\n");
    kern::GeneratorInvoer app = maakInvoer(boom.map(), kern::SoortProjekt, "demo");
    app.bronnen.Add(boom.map("main.c"));
    app.bronnen.Add(boom.map("reken (bieb)/rekenen.h"));
    app.biebs.push_back({boom.map("reken (bieb)"), "rekenen", true});
    schrijfUitvoer(app, boom.map("CMakeLists.txt"));

    voerUit("cmake -S '" + boom.map() + "' -B '" + boom.map("bouw") + "'");
    voerUit("cmake --build '" + boom.map("bouw") + "'");
    EXPECT_EQ(voerUit("'" + boom.map("bouw/demo") + "'"), "15\n");
}
