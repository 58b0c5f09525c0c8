// The settings file as the program meets it: damaged, read-only or impossible to write.
#include "programma.h"
#include "storing.h"

#include <wx/filepicker.h>

#include <sys/stat.h>

using Instellingen = ProgrammaTest;

// What can be read is used, the rest takes its default; the file is kept, that is said once.
TEST_F(Instellingen, ADamagedFileLoadsWhatItCanAndIsKept)
{
    const wxString map = maakMap(wxString::FromUTF8("jos\xc3\xa9"));
    std::string kapot = "[Gebruikersinstellingen]\nEncoding=99999\n[Gebruikersinstellingen/Venster]\nGrootteY=50\n"
                        "[Configuratie]\nVoegCBestandenToe=7\nProjektsoort=7\nDirPad=" + map.utf8_string() + "\nUitsluitTerm=x\xe9\n";
    for (int i = 0; i < 4000; ++i)
        kapot += "[Configuratie]\nUitsluitTerm=template\n";
    schrijfInstellingen(kapot);
    verwachtAssert("nIndex < m_nCount"); // a kind out of range: the array's own check, once
    start();
    EXPECT_EQ(aantalAsserts("nIndex < m_nCount"), 1);
    EXPECT_EQ(venster().vindBestandenInDirs->GetPath() + (venster().voegCBestandenToe.boolean() ? " C" : ""), map);
    const wxString p = instellingenPad();
    EXPECT_EQ(logMet(wxLOG_Warning, ""), std::vector<wxString>{"The settings file " + p + " could not be read completely;"
              " the settings that could not be read start from their defaults. The file was kept as " + p + ".bak."});
    EXPECT_EQ(leesBestand((p + ".bak").ToStdString()), kapot);
    stop();
    EXPECT_EQ(leesInstellingen()->ReadLong("/Gebruikersinstellingen/Encoding", 0), wxLocale::GetSystemLanguage());
}

// A read-only file or a directory in its place: left as it was, said once, with the reason.
class NietTeSchrijven : public ProgrammaTest, public ::testing::WithParamInterface<bool> {};

TEST_P(NietTeSchrijven, IsLeftAloneAndReportedOnce)
{
    const bool map = GetParam();
    map ? void(wxFileName::Mkdir(instellingenPad())) : schrijfInstellingen("[Configuratie]\nProjektnaam=Vast\n");
    start();
    const wxString p = instellingenPad();
    ::chmod(p.fn_str(), map ? 0755 : 0444);
    const std::string voor = map ? "" : leesBestand(p.ToStdString());
    wxTEST_DIALOG(app().zetTaal(wxLANGUAGE_DUTCH), wxExpectModal<wxMessageDialog>(wxYES)); // writes early
    stop(); // and again
    const wxString fout = map ? "Your settings could not be written to " + p + "." : "The settings file " + p;
    EXPECT_EQ(logMet(map ? wxLOG_Error : wxLOG_Warning, fout), std::vector<wxString>{map ? fout + "\nIs a directory"
              : fout + " is read-only; your settings were not written to it."});
    EXPECT_TRUE(wxFileName::DirExists(p) == map && (map || leesBestand(p.ToStdString()) == voor));
}

INSTANTIATE_TEST_SUITE_P(Instellingen, NietTeSchrijven, ::testing::Bool());
