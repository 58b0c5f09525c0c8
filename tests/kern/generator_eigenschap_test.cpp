// Random trees and options through the writers, checked by CMake itself:
// the generated file is run in script mode with the build commands
// stubbed, and the SRCS list it builds must name every checked source
// exactly once, every include directory must exist, and every listed
// header's directory must be among them.
#include "kern/bestand.h"
#include "kern/generator.h"

#include <gtest/gtest.h>
#include <wx/filename.h>
#include <wx/tokenzr.h>

#include <cstdio>
#include <fstream>
#include <iterator>
#include <random>
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

struct Boom
{
    wxString wortel;
    std::vector<wxString> mappen;    // the root first
    std::vector<wxString> bestanden; // absolute
};

Boom maakBoom(std::mt19937& toeval)
{
    char sjabloon[] = "/tmp/klavermol-eigenschap-XXXXXX";
    Boom boom;
    boom.wortel = mkdtemp(sjabloon);
    const char* extensies[] = {"c", "cpp", "cxx", "h", "hpp", "S", "s"};
    std::vector<wxString> mappen = {boom.wortel};
    const int aantalMappen = std::uniform_int_distribution<int>(1, 12)(toeval);
    for (int i = 0; i < aantalMappen; ++i) {
        const wxString ouder = mappen[std::uniform_int_distribution<size_t>(0, mappen.size() - 1)(toeval)];
        const wxString map = ouder + wxString::Format("/m%d_%c", i, 'a' + static_cast<char>(toeval() % 26));
        wxFileName::Mkdir(map);
        mappen.push_back(map);
    }
    const int aantalBestanden = std::uniform_int_distribution<int>(0, 60)(toeval);
    for (int i = 0; i < aantalBestanden; ++i) {
        const wxString map = mappen[std::uniform_int_distribution<size_t>(0, mappen.size() - 1)(toeval)];
        const wxString pad = map + wxString::Format("/bestand_met_een_langere_naam-%d.%s", i,
                                                    extensies[toeval() % WXSIZEOF(extensies)]);
        std::ofstream(pad.ToStdString()) << "\n";
        boom.bestanden.push_back(pad);
    }
    boom.mappen = mappen;
    return boom;
}

std::string voerCMakeUit(const wxString& script)
{
    FILE* p = popen(("cmake -P " + script + " 2>&1").ToStdString().c_str(), "r");
    std::string uit;
    char blok[4096];
    size_t n;
    while ((n = fread(blok, 1, sizeof blok, p)) > 0)
        uit.append(blok, n);
    pclose(p);
    return uit;
}

} // namespace

TEST(GeneratorEigenschap, CMakeFindsEveryCheckedSourceOnceInRandomTrees)
{
    std::mt19937 toeval(20201122);
    for (int ronde = 0; ronde < 25; ++ronde) {
        const Boom boom = maakBoom(toeval);
        kern::GeneratorInvoer in;
        in.soort = static_cast<int>(toeval() % 3);
        in.projektType = static_cast<int>(toeval() % 2);
        in.naam = "eigenschap";
        in.sjablonen = kern::geefStandaardSjablonen();
        in.datum = "2020-09-07 13:25:22";
        // the output directory: the root, or one of the directories below it
        in.uitvoerDir = toeval() % 3 == 0 ? boom.mappen[toeval() % boom.mappen.size()] : boom.wortel;
        std::set<wxString> bronnen, headerMappen;
        for (const wxString& pad : boom.bestanden) {
            if (toeval() % 4 == 0)
                continue; // unchecked
            in.bronnen.Add(pad);
            const wxFileName f(pad);
            (f.GetExt() == "h" ? headerMappen : bronnen).insert(f.GetExt() == "h" ? f.GetPath() : pad);
        }

        kern::Werklijsten werk;
        wxString tekst;
        kern::maakUitvoer(in, werk, tekst);
        const wxString gegenereerd = boom.wortel + "/gegenereerd.cmake";
        const wxString script = boom.wortel + "/proef.cmake";
        const wxString uitvoer = boom.wortel + "/uitvoer.txt";
        ASSERT_TRUE(kern::schrijfTekstBestand(gegenereerd, tekst));
        ASSERT_TRUE(kern::schrijfTekstBestand(
            script, "set(PROJECT_SOURCE_DIR \"" + in.uitvoerDir + "\")\nset(CMAKE_CURRENT_SOURCE_DIR \"" +
                        in.uitvoerDir + "\")\nset(CMAKE_CURRENT_LIST_DIR \"" + in.uitvoerDir + "\")\nset(GEGENEREERD \"" + gegenereerd +
                        "\")\nset(UITVOER \"" + uitvoer + "\")\nfile(WRITE \"${UITVOER}\" \"\")\n" + stubs));
        const std::string cmake = voerCMakeUit(script);
        ASSERT_EQ(cmake.find("Error"), std::string::npos) << cmake << tekst;

        std::ifstream f(uitvoer.ToStdString());
        std::multiset<wxString> gezien;
        std::set<wxString> includeMappen;
        std::string regel;
        while (std::getline(f, regel)) {
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
        wxFileName::Rmdir(boom.wortel, wxPATH_RMDIR_RECURSIVE);
    }
}
