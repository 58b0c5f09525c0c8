// A damaged or unwritable settings file: the program starts with defaults
// for what it cannot read, keeps the user's file, and says once what it
// could not write.
#include "programma.h"

#include <wx/choice.h>
#include <wx/ffile.h>
#include <wx/testing.h>
#include <wx/textctrl.h>

#include <fstream>
#include <iterator>

namespace {

std::string leesBytes(const wxString& pad)
{
    std::ifstream in(pad.ToStdString(), std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), {});
}

int aantalMet(const std::vector<LogRegel>& regels, const wxString& begin)
{
    int n = 0;
    for (const LogRegel& r : regels)
        if (r.tekst.StartsWith(begin))
            ++n;
    return n;
}

} // namespace

using Instellingen = ProgrammaTest;

TEST_F(Instellingen, ACorruptFileIsKeptAndWhatCanBeReadIsUsed)
{
    const std::string kapot = "[Gebruikersinstellingen]\nEncoding=57\n"
                              "[Configuratie\nProjektnaam=Half\n"
                              "[Configuratie]\nBestandNaamTekst=goed.txt\n"
                              "\x01\x02 rommel zonder is-teken\n"
                              "UitsluitTerm=";
    schrijfInstellingen(kapot);
    start();
    EXPECT_EQ(venster().bestandNaamTekst->GetValue(), "goed.txt");
    EXPECT_EQ(aantalMet(logRegels(wxLOG_Warning), "The settings file " + instellingenPad()), 1);
    EXPECT_EQ(leesBytes(instellingenPad() + ".bak"), kapot);
    stop();
    // the store is written again in a form it can read next time
    EXPECT_EQ(leesInstellingen()->Read("/Configuratie/BestandNaamTekst"), "goed.txt");
}

TEST_F(Instellingen, ValuesOfTheWrongTypeTakeTheirDefaults)
{
    schrijfInstellingen("[Gebruikersinstellingen]\nEncoding=Nederlands\n"
                        "[Gebruikersinstellingen/Venster]\nGrootteX=breed\nGrootteY=600\n"
                        "[Configuratie]\nProjektsoort=bibliotheek\nVoegCBestandenToe=misschien\n");
    zetTaal(-1);
    start();
    EXPECT_EQ(app().geefTaal(), wxLocale::GetSystemLanguage());
    EXPECT_EQ(venster().GetClientSize().x, 800);
    EXPECT_EQ(venster().uitvoerSoortKeuze->GetSelection(), 0);
    EXPECT_FALSE(venster().voegCBestandenToe.boolean());
}

TEST_F(Instellingen, AStoreThatCannotBeWrittenIsReportedOnce)
{
    // A directory where the file should be: it can be neither read nor replaced.
    ASSERT_TRUE(wxFileName::Mkdir(instellingenPad()));
    start();
    // a language switch writes the store early, the exit writes it again
    wxTEST_DIALOG(app().zetTaal(wxLANGUAGE_DUTCH), wxExpectModal<wxMessageDialog>(wxYES));
    stop();
    EXPECT_EQ(aantalMet(logRegels(wxLOG_Error), "Your settings could not be written to " + instellingenPad()), 1);
    EXPECT_TRUE(wxFileName::DirExists(instellingenPad()));
}
