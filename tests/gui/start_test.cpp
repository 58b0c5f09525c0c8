// The application frame: start, window size, what the end writes, the
// restart after a language change, and a damaged or unwritable store.
#include "programma.h"

#include <wx/choice.h>
#include <wx/display.h>
#include <wx/sizer.h>
#include <wx/testing.h>
#include <wx/textctrl.h>

#include <algorithm>
#include <fstream>
#include <functional>
#include <iterator>

namespace {

bool isDatum(const wxString& s)
{
    return s.length() == 10 && s.Matches("????-??-??");
}

bool isTijd(const wxString& s)
{
    return s.length() == 8 && s.Matches("??:??:??");
}

} // namespace

using Start = ProgrammaTest;

// 800 x 600 or what the contents need, centred, on the screen, every control
// wholly inside; the system language, the splash over the registered window;
// the size is stored at the end.
TEST_F(Start, FirstStartWithAnEmptyStore)
{
    zetTaal(-1); // nothing in the store: the system language is taken
    start();
    const wxSize inhoud = venster().GetSizer()->GetMinSize();
    EXPECT_EQ(venster().GetClientSize(), wxSize(std::max(800, inhoud.x), std::max(600, inhoud.y)));
    const wxRect scherm = wxDisplay(0u).GetClientArea();
    const wxRect buiten = venster().GetRect();
    EXPECT_TRUE(scherm.Contains(buiten)) << buiten.width << "x" << buiten.height;
    // centred before the window manager adds its title bar
    EXPECT_NEAR(buiten.x + buiten.width / 2, scherm.x + scherm.width / 2, 2);
    EXPECT_NEAR(buiten.y + buiten.height / 2, scherm.y + scherm.height / 2, 16);
    const wxRect binnen(venster().GetClientAreaOrigin(), venster().GetClientSize());
    std::function<void(wxWindow*)> binnenIn = [&](wxWindow* w) {
        for (wxWindow* kind : w->GetChildren()) {
            if (!kind->IsShown() || kind->IsTopLevel() || kind == venster().GetStatusBar())
                continue;
            const wxRect plaats(venster().ScreenToClient(kind->GetScreenPosition()), kind->GetSize());
            EXPECT_TRUE(binnen.Contains(plaats)) << kind->GetClassInfo()->GetClassName() << " " << kind->GetId();
            if (kind->GetParent() == &venster() || kind->GetParent()->GetId() == PaneelID)
                binnenIn(kind);
        }
    };
    binnenIn(&venster());
    EXPECT_EQ(app().geefTaal(), wxLocale::GetSystemLanguage());
    EXPECT_TRUE(app().geefToonHulpToolTips());
    EXPECT_EQ(app().geefLaatsteDataPad(), wxStandardPaths::Get().GetDocumentsDir());

    ASSERT_NE(app().geefSplash(), nullptr);
    EXPECT_EQ(app().geefSplash()->GetTimeout(), 2000);
    EXPECT_EQ(app().geefSplashStatus()->GetStatusText(0), "Klavermol is starting!");
    EXPECT_EQ(app().geefHoofdVenster(), &venster());
    verwachtAssert("(win != nullptr)");
    app().zetHoofdVenster(nullptr, true, false);
    EXPECT_EQ(aantalAsserts("(win != nullptr)"), 1);
    EXPECT_EQ(app().geefHoofdVenster(), &venster());

    const wxSize grootte = venster().GetClientSize();
    stop();
    auto config = leesInstellingen();
    EXPECT_TRUE(isDatum(config->Read("/Statistiek/StartDatum")));
    EXPECT_TRUE(isTijd(config->Read("/Statistiek/StartTijd")));
    EXPECT_EQ(config->ReadLong("/Gebruikersinstellingen/Encoding", -1), wxLocale::GetSystemLanguage());
    EXPECT_EQ(config->ReadLong("/Gebruikersinstellingen/Venster/GrootteX", 0), grootte.x);
    EXPECT_EQ(config->ReadLong("/Gebruikersinstellingen/Venster/GrootteY", 0), grootte.y);
    EXPECT_FALSE(config->HasEntry("/Operationeel/EigenHerstart"));
}

// The window's size, language, tooltips, data path and the statistics are
// stored at the end.
TEST_F(Start, ShutdownWritesLanguageTooltipsDataPathAndStatistics)
{
    // "$HOME" stays as it is: the store never expands environment variables.
    schrijfInstellingen("[Gebruikersinstellingen]\ntoonHulptoolTips=0\n"
                        "[Gebruikersinstellingen/Venster]\nGrootteX=640\nGrootteY=480\n"
                        "[Operationeel]\nLaatsteDataPad=$HOME/data/${SRCS}\n");
    zetTaal(wxLANGUAGE_DUTCH);
    start();
    EXPECT_FALSE(app().geefToonHulpToolTips());
    EXPECT_EQ(app().geefLaatsteDataPad(), "$HOME/data/${SRCS}");
    const wxSize grootte = venster().GetClientSize(); // 640 x 480 gave way to the contents
    stop();
    auto config = leesInstellingen();
    EXPECT_EQ(config->ReadLong("/Gebruikersinstellingen/Venster/GrootteX", 0), grootte.x);
    EXPECT_EQ(config->ReadLong("/Gebruikersinstellingen/Venster/GrootteY", 0), grootte.y);
    EXPECT_EQ(config->ReadLong("/Gebruikersinstellingen/Encoding", -1), wxLANGUAGE_DUTCH);
    EXPECT_FALSE(config->ReadBool("/Gebruikersinstellingen/toonHulptoolTips", true));
    EXPECT_EQ(config->Read("/Operationeel/LaatsteDataPad"), "$HOME/data/${SRCS}");
    EXPECT_TRUE(isDatum(config->Read("/Statistiek/StopDatum")));
    EXPECT_TRUE(isTijd(config->Read("/Statistiek/StopTijd")));
    EXPECT_EQ(config->ReadLong("/Statistiek/OS", 0), wxOS_UNIX_LINUX);
}

TEST_F(Start, ConfirmedLanguageSwitchRestartsInOrder)
{
    start();
    std::vector<std::string> gezien;
    DesktopAppBasis::geefProcesNaad().start = [&](const wxString& pad) {
        // by now the store is on disk and the window is closing
        auto config = leesInstellingen();
        gezien.push_back(config->ReadBool("/Operationeel/EigenHerstart", false) ? "marker" : "no marker");
        gezien.push_back(config->ReadLong("/Gebruikersinstellingen/Encoding", -1) == wxLANGUAGE_GERMAN
                             ? "flushed"
                             : "not flushed");
        gezien.push_back(wxTheApp->IsScheduledForDestruction(&venster()) ? "closed" : "open");
        gezien.push_back("start " + pad.ToStdString());
        return 1L;
    };
    DesktopAppBasis::geefProcesNaad().stop = [&] { gezien.push_back("exit"); };

    wxTEST_DIALOG(app().zetTaal(wxLANGUAGE_GERMAN), wxExpectModal<wxMessageDialog>(wxYES));

    const std::string exe = wxStandardPaths::Get().GetExecutablePath().ToStdString();
    EXPECT_EQ(gezien, (std::vector<std::string>{"marker", "flushed", "closed", "start " + exe, "exit"}));
    EXPECT_EQ(app().geefTaal(), wxLANGUAGE_GERMAN);
    auto config = leesInstellingen();
    EXPECT_TRUE(config->ReadBool("/Operationeel/EersteKeer/TaalGekozen", false));
    EXPECT_TRUE(config->ReadBool("/Operationeel/EigenHerstart", false));
}

TEST_F(Start, NoInTheRestartQuestionStoresNothing)
{
    start();
    wxTEST_DIALOG(app().zetTaal(wxLANGUAGE_DUTCH),
                  beantwoordVraag("A new application language was selected.\nDo you want to proceed (Any unsaved "
                                  "data might be lost) ?\nPlease select YES to put the changes into effect and "
                                  "restart the application.\n",
                                  "Restart the application", wxID_NO));
    EXPECT_TRUE(procesStappen.empty());
    EXPECT_EQ(app().geefTaal(), wxLANGUAGE_ENGLISH);
    EXPECT_FALSE(wxTheApp->IsScheduledForDestruction(&venster()));
    stop();
    auto config = leesInstellingen();
    EXPECT_EQ(config->ReadLong("/Gebruikersinstellingen/Encoding", -1), wxLANGUAGE_ENGLISH);
    EXPECT_FALSE(config->HasEntry("/Operationeel/EersteKeer/TaalGekozen"));
    EXPECT_FALSE(config->HasEntry("/Operationeel/EigenHerstart"));
}

// A damaged file is kept beside the store, what can be read is used, and
// the store is written again in a form it can read next time.
TEST_F(Start, ACorruptStoreIsKeptAndWhatCanBeReadIsUsed)
{
    const std::string kapot = "[Gebruikersinstellingen]\nEncoding=57\n"
                              "[Configuratie\nProjektnaam=Half\n"
                              "[Configuratie]\nBestandNaamTekst=goed.txt\n"
                              "\x01\x02 rommel zonder is-teken\n"
                              "UitsluitTerm=";
    schrijfInstellingen(kapot);
    start();
    EXPECT_EQ(venster().bestandNaamTekst->GetValue(), "goed.txt");
    EXPECT_EQ(logMet(wxLOG_Warning, "The settings file " + instellingenPad()).size(), 1u);
    std::ifstream bak((instellingenPad() + ".bak").ToStdString(), std::ios::binary);
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(bak), {}), kapot);
    stop();
    EXPECT_EQ(leesInstellingen()->Read("/Configuratie/BestandNaamTekst"), "goed.txt");
}

// A size no window can have gives the default size, which gives way to
// what the contents need.
TEST_F(Start, ValuesOfTheWrongTypeOrSizeTakeTheirDefaults)
{
    schrijfInstellingen("[Gebruikersinstellingen]\nEncoding=Nederlands\n"
                        "[Gebruikersinstellingen/Venster]\nGrootteX=-99999\nGrootteY=50\n"
                        "[Configuratie]\nProjektsoort=bibliotheek\nVoegCBestandenToe=misschien\n");
    zetTaal(-1);
    start();
    EXPECT_EQ(app().geefTaal(), wxLocale::GetSystemLanguage());
    const wxSize inhoud = venster().GetSizer()->GetMinSize();
    EXPECT_EQ(venster().GetClientSize(), wxSize(std::max(800, inhoud.x), std::max(600, inhoud.y)));
    EXPECT_EQ(venster().uitvoerSoortKeuze->GetSelection(), 0);
    EXPECT_FALSE(venster().voegCBestandenToe.boolean());
}

TEST_F(Start, AStoreThatCannotBeWrittenIsReportedOnce)
{
    // A directory where the file should be: it can be neither read nor replaced.
    ASSERT_TRUE(wxFileName::Mkdir(instellingenPad()));
    start();
    // a language switch writes the store early, the exit writes it again
    wxTEST_DIALOG(app().zetTaal(wxLANGUAGE_DUTCH), wxExpectModal<wxMessageDialog>(wxYES));
    stop();
    EXPECT_EQ(logMet(wxLOG_Error, "Your settings could not be written to " + instellingenPad()).size(), 1u);
    EXPECT_TRUE(wxFileName::DirExists(instellingenPad()));
}
