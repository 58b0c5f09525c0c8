// The settings file as the program meets it: damaged, of the wrong types,
// read-only or impossible to write.
#include "programma.h"
#include "storing.h"

#include <wx/filepicker.h>
#include <wx/sizer.h>
#include <wx/textctrl.h>

#include <algorithm>

#include <sys/stat.h>

class Instellingen : public ProgrammaTest
{
protected:
    // A language switch writes the store early, the end writes it again.
    void schrijfTweeKeer()
    {
        wxTEST_DIALOG(app().zetTaal(wxLANGUAGE_DUTCH), wxExpectModal<wxMessageDialog>(wxYES));
        stop();
    }
};

// Repeated groups, a line that is not UTF-8, values out of range: what can
// be read is used (a small height as far as the contents allow), the rest takes its default,
// the file is kept and that is said once, without an assertion.
TEST_F(Instellingen, ADamagedFileLoadsWhatItCanAndIsKept)
{
    const wxString map = maakMap(wxString::FromUTF8("jos\xc3\xa9"));
    std::string kapot = "[Gebruikersinstellingen]\nEncoding=99999\n[Gebruikersinstellingen/Venster]\nGrootteY=50\n"
                        "[Configuratie]\nVoegCBestandenToe=7\nDirPad=" + map.utf8_string() + "\nUitsluitTerm=x\xe9\n";
    for (int i = 0; i < 4000; ++i)
        kapot += "[Configuratie]\nUitsluitTerm=template\n";
    schrijfInstellingen(kapot);
    zetTaal(-1);
    start();
    EXPECT_EQ(venster().vindBestandenInDirs->GetPath(), map);
    EXPECT_FALSE(venster().voegCBestandenToe.boolean());
    const wxSize inhoud = venster().GetSizer()->GetMinSize(); // a height of 50 gives way to the contents
    EXPECT_EQ(venster().GetClientSize(), wxSize(std::max(800, inhoud.x), inhoud.y));
    EXPECT_EQ(app().geefTaal(), wxLocale::GetSystemLanguage());
    const std::vector<LogRegel> waarschuwingen = logRegels(wxLOG_Warning);
    ASSERT_EQ(waarschuwingen.size(), 1u);
    EXPECT_EQ(waarschuwingen[0].tekst, "The settings file " + instellingenPad() + " could not be read completely; the "
                                       "settings that could not be read start from their defaults. The file was kept "
                                       "as " + instellingenPad() + ".bak.");
    EXPECT_EQ(leesBestand((instellingenPad() + ".bak").ToStdString()), kapot);
    stop();
    EXPECT_EQ(leesInstellingen()->ReadLong("/Gebruikersinstellingen/Encoding", 0), wxLocale::GetSystemLanguage());
}

TEST_F(Instellingen, AReadOnlyFileIsLeftAloneAndThatIsSaidOnce)
{
    schrijfInstellingen("[Configuratie]\nProjektnaam=Vast\n");
    start();
    ::chmod(instellingenPad().fn_str(), 0444);
    const std::string voor = leesBestand(instellingenPad().ToStdString());
    schrijfTweeKeer();
    EXPECT_EQ(leesBestand(instellingenPad().ToStdString()), voor);
    EXPECT_EQ(logMet(wxLOG_Warning, "The settings file " + instellingenPad() +
                                        " is read-only; your settings were not written to it.")
                  .size(),
              1u);
}

TEST_F(Instellingen, AStoreThatCannotBeWrittenIsReportedOnceWithItsReason)
{
    // A directory where the file should be: it can be neither read nor replaced.
    ASSERT_TRUE(wxFileName::Mkdir(instellingenPad()));
    start();
    schrijfTweeKeer();
    const std::vector<wxString> fouten = logMet(wxLOG_Error, "Your settings could not be written to ");
    ASSERT_EQ(fouten.size(), 1u);
    EXPECT_EQ(fouten[0], "Your settings could not be written to " + instellingenPad() + ".\nIs a directory");
    EXPECT_TRUE(wxFileName::DirExists(instellingenPad()));
}
