// Generated files that CMake really configures and builds: a library made
// with "Add CMake library" into an application.
#include "kern/bestand.h"
#include "kern/generator.h"

#include <gtest/gtest.h>
#include <wx/filename.h>
#include <wx/utils.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>

namespace {

void schrijf(const wxString& pad, const char* inhoud)
{
    wxFileName::Mkdir(wxFileName(pad).GetPath(), wxS_DIR_DEFAULT, wxPATH_MKDIR_FULL);
    std::ofstream(pad.ToStdString()) << inhoud;
}

int voerUit(const wxString& opdracht, std::string* uitvoer = nullptr)
{
    FILE* p = popen((opdracht + " 2>&1").ToStdString().c_str(), "r");
    if (p == nullptr)
        return -1;
    char regel[512];
    std::string alles;
    while (fgets(regel, sizeof regel, p) != nullptr)
        alles += regel;
    const int status = pclose(p);
    if (uitvoer)
        *uitvoer = alles;
    if (status != 0)
        std::fprintf(stderr, "%s\n", alles.c_str());
    return status;
}

wxString maakTop()
{
    char sjabloon[] = "/tmp/klavermol-bouw-XXXXXX";
    const char* top = mkdtemp(sjabloon);
    EXPECT_NE(top, nullptr);
    return top != nullptr ? wxString(top) : wxString();
}

// Configures and builds `top` with CMake, then runs the program it made;
// returns what the program printed.
std::string bouwEnDraai(const wxString& top, const wxString& programma)
{
    std::string uitvoer;
    EXPECT_EQ(voerUit("cmake -S '" + top + "' -B '" + top + "/bouw'"), 0);
    EXPECT_EQ(voerUit("cmake --build '" + top + "/bouw'"), 0);
    EXPECT_EQ(voerUit("'" + top + "/bouw/" + programma + "'", &uitvoer), 0);
    wxFileName::Rmdir(top, wxPATH_RMDIR_RECURSIVE);
    return uitvoer;
}

kern::GeneratorInvoer basis(const wxString& uitvoerDir)
{
    kern::GeneratorInvoer in;
    in.uitvoerDir = uitvoerDir;
    in.sjablonen = kern::geefStandaardSjablonen();
    in.datum = "2020-09-07 13:25:22";
    return in;
}

} // namespace

TEST(EchteBouw, ALibraryAndAProjectThatUsesItConfigureBuildAndRun)
{
    const wxString top = maakTop();
    schrijf(top + "/main.c", "#include <stdio.h>\n#include \"rekenen.h\"\n"
                             "int main(void) { printf(\"%d\\n\", vermenigvuldig(6, 7)); return 0; }\n");
    schrijf(top + "/rekenen/rekenen.h", "int vermenigvuldig(int a, int b);\n");
    schrijf(top + "/rekenen/src/rekenen.c", "#include \"rekenen.h\"\nint vermenigvuldig(int a, int b) { return a * b; }\n");

    // The library, written into its own directory. Its paths start from the
    // directory of its own CMakeLists.txt, so that it works as a sub-directory.
    kern::GeneratorInvoer bieb = basis(top + "/rekenen");
    bieb.soort = kern::SoortBieb;
    bieb.projektType = 1;
    bieb.naam = "rekenen";
    bieb.bronnen.Add(top + "/rekenen/src/rekenen.c");
    bieb.bronnen.Add(top + "/rekenen/rekenen.h");
    kern::Werklijsten werk;
    wxString tekst;
    kern::maakUitvoer(bieb, werk, tekst);
    ASSERT_TRUE(kern::schrijfTekstBestand(top + "/rekenen/CMakeLists.txt", tekst));

    // The application, with the library as an added sub-directory.
    kern::GeneratorInvoer app = basis(top);
    app.naam = "demo";
    app.bronnen.Add(top + "/main.c");
    app.bronnen.Add(top + "/rekenen/rekenen.h");
    app.biebs.push_back({top + "/rekenen", "rekenen", true});
    werk.leeg();
    tekst.clear();
    kern::maakUitvoer(app, werk, tekst);
    ASSERT_TRUE(kern::schrijfTekstBestand(top + "/CMakeLists.txt", tekst));

    EXPECT_EQ(bouwEnDraai(top, "demo"), "42\n");
}

TEST(EchteBouw, NamesWithSpacesAndCMakeCharactersStillNameTheirFiles)
{
    const wxString top = maakTop();
    // (A backslash in a source name is escaped in the text as well, but CMake
    // cannot take such a source to a build.)
    const char* namen[] = {"met spatie.c", "geld$teken.c", "hek#je.c", "haak(1).c", "aanhalings'teken.c"};
    std::string aanroepen;
    kern::GeneratorInvoer app = basis(top);
    app.naam = "namen";
    int i = 0;
    for (const char* naam : namen) {
        const std::string functie = "f" + std::to_string(i++);
        schrijf(top + "/map (met) spatie/" + naam, ("int " + functie + "(void) { return 1; }\n").c_str());
        app.bronnen.Add(top + "/map (met) spatie/" + naam);
        aanroepen += "int " + functie + "(void);\n";
    }
    std::string hoofd = aanroepen + "#include <stdio.h>\nint main(void) { printf(\"%d\\n\", f0() + f1() + f2() + f3() + f4()); return 0; }\n";
    schrijf(top + "/main.c", hoofd.c_str());
    app.bronnen.Add(top + "/main.c");
    kern::Werklijsten werk;
    wxString tekst;
    kern::maakUitvoer(app, werk, tekst);
    // An ordinary name stays as it is; the others are quoted.
    EXPECT_NE(tekst.Find("list(APPEND SRCS main.c )"), wxNOT_FOUND);
    EXPECT_NE(tekst.Find("set(SrcPath0 \"${PROJECT_SOURCE_DIR}/map (met) spatie\")"), wxNOT_FOUND);
    EXPECT_NE(tekst.Find("\"geld\\$teken.c\""), wxNOT_FOUND);
    ASSERT_TRUE(kern::schrijfTekstBestand(top + "/CMakeLists.txt", tekst));

    EXPECT_EQ(bouwEnDraai(top, "namen"), "5\n");
}
