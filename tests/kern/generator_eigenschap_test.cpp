// Generated files read by CMake: random trees in script mode with stubbed commands, and a real build.
#include "kern/bestand.h"
#include "kern/generator.h"

#include "bronboom_test.h"

#include <sstream>

// Put before a generated text: `meld` prints paths as CMake resolves them from the directory ${UIT}.
const char* const stubs = R"cmake(
foreach(naam PROJECT_SOURCE_DIR CMAKE_CURRENT_SOURCE_DIR CMAKE_CURRENT_LIST_DIR)
  set(${naam} "${UIT}")
endforeach()
foreach(opdracht add_executable add_library target_link_libraries add_subdirectory install project include_directories)
  cmake_language(EVAL CODE "function(${opdracht})\nendfunction()")
endforeach()
function(meld soort)
  foreach(pad ${ARGN})
    file(REAL_PATH "${pad}" echt BASE_DIRECTORY "${UIT}")
    message("${soort} ${echt}")
  endforeach()
endfunction()
)cmake";

// Runs a shell command that must succeed; gives what it printed.
static std::string voerUit(const wxString& opdracht)
{
    FILE* p = popen((opdracht + " 2>&1").ToStdString().c_str(), "r");
    std::string uit;
    for (char blok[4096]; size_t n = p ? fread(blok, 1, sizeof blok, p) : 0;) uit.append(blok, n);
    EXPECT_EQ(p == nullptr ? -1 : pclose(p), 0) << opdracht << "\n" << uit;
    return uit;
}

// The text of `in` with the built-in templates.
static wxString geefTekst(kern::GeneratorInvoer in)
{
    kern::Werklijsten werk; wxString tekst;
    return in.sjablonen = kern::geefStandaardSjablonen(), kern::maakUitvoer(in, werk, tekst), tekst;
}

// SRCS names every checked source once, also quoted ones; the include directories are the headers', once each.
TEST(GeneratorEigenschap, CMakeFindsEveryCheckedSourceOnceInRandomTrees)
{
    std::mt19937 toeval(20201122);
    const auto kies = [&toeval](const std::vector<std::string>& lijst) { return lijst[toeval() % lijst.size()]; };
    const char* extensies[] = {"c", "cpp", "cxx", "h", "hpp", "S", "s"};
    for (int ronde = 0; ronde < 25; ++ronde) {
        TijdelijkeBoom boom;
        std::vector<std::string> mappen{""}, bestanden;
        for (int i = 0, n = 1 + toeval() % 12; i < n; ++i)
            boom.maakMap(mappen.emplace_back(onder(kies(mappen), "m" + std::to_string(i) + "_" + char('a' + toeval() % 26))));
        for (int i = 0, n = toeval() % 61; i < n; ++i)
            boom.maakBestand(bestanden.emplace_back(onder(kies(mappen), (i % 3 ? "bestand_met_een_langere_naam-" : "n \"a\"\x7f(#$)-") +
                                                                           std::to_string(i) + "." + extensies[toeval() % 7])));
        kern::GeneratorInvoer invoer;
        invoer.soort = toeval() % 3, invoer.projektType = toeval() % 2;
        invoer.uitvoerDir = boom.map(toeval() % 3 == 0 ? kies(mappen) : ""); // the root or a directory below
        std::multiset<wxString> verwacht, gezien; // "S <source>" and "I <include directory>" lines
        for (const std::string& b : bestanden) {
            const wxFileName f(boom.map(b));
            if (toeval() % 4 == 0) continue; // unchecked
            invoer.bronnen.Add(f.GetFullPath());
            if (f.GetExt() != "h" || verwacht.count("I " + f.GetPath()) == 0)
                verwacht.insert(f.GetExt() != "h" ? "S " + f.GetFullPath() : "I " + f.GetPath());
        }
        const wxString tekst = geefTekst(invoer);
        ASSERT_TRUE(kern::schrijfTekstBestand(boom.map("proef.cmake"), "set(UIT \"" + invoer.uitvoerDir + "\")\n" +
                                                                           stubs + tekst + "\nmeld(S ${SRCS})\nmeld(I ${AllIncludeDirs})\n"));
        std::istringstream uit(voerUit("cmake -P " + boom.map("proef.cmake")));
        for (std::string regel; std::getline(uit, regel);)
            if (regel.rfind("S ", 0) == 0 || regel.rfind("I ", 0) == 0)
                gezien.insert(wxString::FromUTF8(regel));
        EXPECT_EQ(gezien, verwacht) << "round " << ronde << tekst;
    }
}

// A library added to an application: paths from its own CMakeLists.txt, names with blanks and CMake's characters.
TEST(EchteBouw, ALibraryAndAProjectThatUsesItConfigureBuildAndRun)
{
    TijdelijkeBoom boom;
    kern::GeneratorInvoer bieb, app;
    bieb.uitvoerDir = boom.map("reken (bieb)"), bieb.soort = kern::SoortBieb, bieb.projektType = 1, bieb.naam = "rekenen";
    const char* namen[] = {"met spatie.c", "geld$teken.c", "hek#je.c", "haak(1).c", "aanhalings'teken.c"};
    std::string koppen, som = "0";
    for (int i = 0; i < 5; ++i) {
        const std::string functie = "f" + std::to_string(i), bron = std::string("reken (bieb)/map met spatie/") + namen[i];
        boom.maakBestand(bron, "int " + functie + "(void) { return " + std::to_string(i + 1) + "; }\n");
        bieb.bronnen.Add(boom.map(bron));
        koppen += "int " + functie + "(void);\n", som += " + " + functie + "()";
    }
    boom.maakBestand("reken (bieb)/rekenen.h", koppen), bieb.bronnen.Add(boom.map("reken (bieb)/rekenen.h"));
    ASSERT_TRUE(kern::schrijfTekstBestand(boom.map("reken (bieb)/CMakeLists.txt"), geefTekst(bieb)));

    boom.maakBestand("main.c", "#include <stdio.h>\n#include \"rekenen.h\"\nint main(void) { printf(\"%d\\n\", " + som +
                                   "); return 0; }\n");
    app.uitvoerDir = boom.map(), app.naam = "demo";
    app.bronnen.Add(boom.map("main.c")), app.bronnen.Add(boom.map("reken (bieb)/rekenen.h"));
    app.biebs.push_back({boom.map("reken (bieb)"), "rekenen", true});
    ASSERT_TRUE(kern::schrijfTekstBestand(boom.map("CMakeLists.txt"), geefTekst(app)));
    voerUit("cmake -S '" + boom.map() + "' -B '" + boom.map("bouw") + "' && cmake --build '" + boom.map("bouw") + "'");
    EXPECT_EQ(voerUit("'" + boom.map("bouw/demo") + "'"), "15\n");
}
