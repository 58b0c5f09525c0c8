// The settings file as the program shares it: with another instance that
// wrote it meanwhile, with an owner who made it read-only, and damaged.
#include "programma.h"

#include <wx/filepicker.h>
#include <wx/textctrl.h>

#include <fstream>
#include <iterator>
#include <sys/stat.h>

using Instellingen = ProgrammaTest;

TEST_F(Instellingen, WhatThisInstanceDidNotChangeKeepsTheOtherInstancesValue)
{
    schrijfInstellingen("[Configuratie]\nProjektnaam=Begin\nUitsluitTerm=template\n");
    start();
    venster().projektLibIncludeNaam->ChangeValue("Eigen");
    std::ofstream(instellingenPad().ToStdString())
        << "[Configuratie]\nProjektnaam=Ander\nUitsluitTerm=anders\n[Ander]\nSleutel=1\n";
    stop();
    const auto config = leesInstellingen();
    EXPECT_EQ(config->Read("/Configuratie/Projektnaam"), "Eigen");
    EXPECT_EQ(config->Read("/Configuratie/UitsluitTerm"), "anders");
    EXPECT_EQ(config->Read("/Ander/Sleutel"), "1");
}

TEST_F(Instellingen, AReadOnlyFileIsLeftAloneAndThatIsSaidOnce)
{
    schrijfInstellingen("[Configuratie]\nProjektnaam=Vast\n");
    start();
    ::chmod(instellingenPad().fn_str(), 0444);
    std::ifstream in(instellingenPad().ToStdString(), std::ios::binary);
    const std::string voor(std::istreambuf_iterator<char>(in), {});
    // a language switch writes the store early, the exit writes it again
    wxTEST_DIALOG(app().zetTaal(wxLANGUAGE_DUTCH), wxExpectModal<wxMessageDialog>(wxYES));
    stop();
    std::ifstream na(instellingenPad().ToStdString(), std::ios::binary);
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(na), {}), voor);
    EXPECT_EQ(logMet(wxLOG_Warning, "The settings file " + instellingenPad() + " is read-only").size(), 1u);
}

// Repeated groups, a line that is not UTF-8 and values out of range: what
// can be read is used, the file kept and reported once, no assertion.
TEST_F(Instellingen, ADamagedFileLoadsWithoutAssertionsAndIsKept)
{
    const wxString map = maakMap(wxString::FromUTF8("jos\xc3\xa9"));
    std::string kapot = "[Gebruikersinstellingen]\nEncoding=99999\n[Configuratie]\nVoegCBestandenToe=7\nDirPad="
                        + map.utf8_string() + "\nUitsluitTerm=x\xe9\n";
    for (int i = 0; i < 4000; ++i)
        kapot += "[Configuratie]\nUitsluitTerm=template\n";
    schrijfInstellingen(kapot);
    zetTaal(-1);
    start();
    EXPECT_EQ(venster().vindBestandenInDirs->GetPath(), map);
    EXPECT_FALSE(venster().voegCBestandenToe.boolean());
    EXPECT_EQ(app().geefTaal(), wxLocale::GetSystemLanguage());
    const std::vector<LogRegel> waarschuwingen = logRegels(wxLOG_Warning);
    ASSERT_EQ(waarschuwingen.size(), 1u);
    EXPECT_TRUE(waarschuwingen[0].tekst.StartsWith("The settings file " + instellingenPad())) << waarschuwingen[0].tekst;
    std::ifstream bak((instellingenPad() + ".bak").ToStdString(), std::ios::binary);
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(bak), {}), kapot);
    stop();
    EXPECT_NE(leesInstellingen()->ReadLong("/Gebruikersinstellingen/Encoding", 0), 99999);
}
