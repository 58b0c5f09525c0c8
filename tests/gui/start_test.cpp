// Start, window size, shutdown writes and restart of the application frame.
#include "programma.h"

#include <wx/display.h>
#include <wx/testing.h>

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

TEST_F(Start, FirstStartWithAnEmptyStore)
{
    zetTaal(-1); // nothing in the store: the system language is taken
    start();
    EXPECT_EQ(venster().GetClientSize(), wxSize(800, 600));
    const wxRect scherm = wxDisplay(0u).GetGeometry();
    const wxRect buiten = venster().GetRect();
    EXPECT_NEAR(buiten.x + buiten.width / 2, scherm.width / 2, 2);
    EXPECT_NEAR(buiten.y + buiten.height / 2, scherm.height / 2, 2);
    EXPECT_EQ(app().geefTaal(), wxLocale::GetSystemLanguage());
    EXPECT_TRUE(app().geefToonHulpToolTips());
    EXPECT_FALSE(app().isTaalGekozen());
    EXPECT_EQ(app().geefLaatsteDataPad(), wxStandardPaths::Get().GetDocumentsDir());
    EXPECT_EQ(app().GetAppName(), "Klavermol");
    EXPECT_EQ(app().GetVendorName(), "Zelvano");
    EXPECT_EQ(venster().GetId(), 10000);
    stop();

    auto config = leesInstellingen();
    EXPECT_TRUE(isDatum(config->Read("/Statistiek/StartDatum")));
    EXPECT_TRUE(isTijd(config->Read("/Statistiek/StartTijd")));
    EXPECT_EQ(config->ReadLong("/Gebruikersinstellingen/Encoding", -1), wxLocale::GetSystemLanguage());
    EXPECT_TRUE(config->ReadBool("/Gebruikersinstellingen/toonHulptoolTips", false));
    EXPECT_EQ(config->ReadLong("/Gebruikersinstellingen/Venster/GrootteX", 0), 800);
    EXPECT_EQ(config->ReadLong("/Gebruikersinstellingen/Venster/GrootteY", 0), 600);
    EXPECT_FALSE(config->HasEntry("/Operationeel/EigenHerstart"));
}

TEST_F(Start, StoredTooltipSettingIsAppliedAndWrittenBack)
{
    schrijfInstellingen("[Gebruikersinstellingen]\ntoonHulptoolTips=0\n");
    start();
    EXPECT_FALSE(app().geefToonHulpToolTips());
    stop();
    EXPECT_FALSE(leesInstellingen()->ReadBool("/Gebruikersinstellingen/toonHulptoolTips", true));
}

TEST_F(Start, ASmallStoredSizeIsAppliedAsItStands)
{
    schrijfInstellingen("[Gebruikersinstellingen/Venster]\nGrootteX=50\nGrootteY=50\n");
    start();
    // GTK keeps the window at least as wide as its menu bar; the height
    // shows that no lower bound of our own is applied.
    EXPECT_EQ(venster().GetClientSize().y, 50);
    EXPECT_LT(venster().GetClientSize().x, 300);
}

TEST_F(Start, ASizeOf100OrLessIsNotStored)
{
    schrijfInstellingen("[Gebruikersinstellingen/Venster]\nGrootteX=640\nGrootteY=480\n");
    start();
    venster().SetClientSize(100, 500);
    verwerk();
    ASSERT_EQ(venster().GetClientSize(), wxSize(100, 500));
    stop();
    auto config = leesInstellingen();
    EXPECT_EQ(config->ReadLong("/Gebruikersinstellingen/Venster/GrootteX", 0), 640);
    EXPECT_EQ(config->ReadLong("/Gebruikersinstellingen/Venster/GrootteY", 0), 480);
}

TEST_F(Start, ASizeAbove100IsStored)
{
    start();
    venster().SetClientSize(101, 101);
    verwerk();
    ASSERT_EQ(venster().GetClientSize(), wxSize(101, 101));
    stop();
    auto config = leesInstellingen();
    EXPECT_EQ(config->ReadLong("/Gebruikersinstellingen/Venster/GrootteX", 0), 101);
    EXPECT_EQ(config->ReadLong("/Gebruikersinstellingen/Venster/GrootteY", 0), 101);
}

TEST_F(Start, ShutdownWritesLanguageDataPathAndStatistics)
{
    // "$HOME" stays as it is: the store never expands environment variables.
    schrijfInstellingen("[Operationeel]\nLaatsteDataPad=$HOME/data/${SRCS}\n");
    zetTaal(wxLANGUAGE_DUTCH);
    start();
    EXPECT_EQ(app().geefLaatsteDataPad(), "$HOME/data/${SRCS}");
    stop();
    auto config = leesInstellingen();
    EXPECT_EQ(config->ReadLong("/Gebruikersinstellingen/Encoding", -1), wxLANGUAGE_DUTCH);
    EXPECT_EQ(config->Read("/Operationeel/LaatsteDataPad"), "$HOME/data/${SRCS}");
    EXPECT_TRUE(isDatum(config->Read("/Statistiek/StopDatum")));
    EXPECT_TRUE(isTijd(config->Read("/Statistiek/StopTijd")));
    EXPECT_EQ(config->ReadLong("/Statistiek/OS", 0), wxOS_UNIX_LINUX);
}

TEST_F(Start, SplashScreenShowsItsStatusOverTheMainWindow)
{
    start();
    ASSERT_NE(app().geefSplash(), nullptr);
    EXPECT_EQ(app().geefSplash()->GetParent(), &venster());
    EXPECT_EQ(app().geefSplash()->GetTimeout(), 2000);
    EXPECT_EQ(app().geefSplash()->GetSplashStyle(), wxSPLASH_CENTRE_ON_SCREEN | wxSPLASH_TIMEOUT);
    EXPECT_EQ(app().geefSplashStatus()->GetStatusText(0), "Klavermol is starting!");
    EXPECT_TRUE(venster().IsShown());
    EXPECT_EQ(app().GetTopWindow(), &venster());
    EXPECT_EQ(app().geefHoofdVenster(), &venster());
    EXPECT_EQ(app().geefHtmlPrinter(), nullptr);
}

TEST_F(Start, RegisteringNoWindowAssertsAndChangesNothing)
{
    start();
    verwachtAssert("(win != nullptr)");
    app().zetHoofdVenster(nullptr, true, false);
    EXPECT_EQ(aantalAsserts("(win != nullptr)"), 1);
    EXPECT_EQ(app().geefHoofdVenster(), &venster());
    EXPECT_EQ(app().geefHtmlPrinter(), nullptr);
}

TEST_F(Start, ConfirmedLanguageSwitchRestartsInOrder)
{
    start();
    std::vector<std::string> gezien;
    DesktopAppBasis::geefProcesNaad().start = [&](const wxString& pad) {
        // by now the store is on disk and the window is closing
        auto config = leesInstellingen();
        gezien.push_back(config->ReadBool("/Operationeel/EigenHerstart", false) ? "marker" : "no marker");
        gezien.push_back(config->ReadLong("/Gebruikersinstellingen/Encoding", -1) == wxLANGUAGE_GERMAN ? "flushed"
                                                                                                 : "not flushed");
        gezien.push_back(wxTheApp->IsScheduledForDestruction(&venster()) ? "closed" : "open");
        gezien.push_back("start " + pad.ToStdString());
        return 1L;
    };
    DesktopAppBasis::geefProcesNaad().stop = [&] { gezien.push_back("exit"); };

    wxTEST_DIALOG(app().zetTaal(wxLANGUAGE_GERMAN),
                  wxExpectModal<wxMessageDialog>(wxYES).Describe("restart question"));

    const std::string exe = wxStandardPaths::Get().GetExecutablePath().ToStdString();
    EXPECT_EQ(gezien, (std::vector<std::string>{"marker", "flushed", "closed", "start " + exe, "exit"}));
    EXPECT_EQ(app().geefTaal(), wxLANGUAGE_GERMAN);
    EXPECT_TRUE(app().isTaalGekozen());
    auto config = leesInstellingen();
    EXPECT_TRUE(config->ReadBool("/Operationeel/EersteKeer/TaalGekozen", false));
    EXPECT_TRUE(config->ReadBool("/Operationeel/EigenHerstart", false));
}

TEST_F(Start, TheRestartQuestionHasItsTexts)
{
    start();
    wxString vraag, titel;
    class Lezer : public wxExpectModal<wxMessageDialog>
    {
    public:
        Lezer(wxString& vraag, wxString& titel) : wxExpectModal<wxMessageDialog>(wxNO), vraag(vraag), titel(titel) {}

    protected:
        int OnInvoked(wxMessageDialog* dlg) const override
        {
            vraag = dlg->GetMessage();
            titel = dlg->GetTitle();
            return wxID_NO;
        }

    private:
        wxString& vraag;
        wxString& titel;
    };
    wxTEST_DIALOG(app().zetTaal(wxLANGUAGE_DUTCH), Lezer(vraag, titel));
    EXPECT_EQ(vraag, "A new application language was selected.\nDo you want to proceed (Any unsaved data might be "
                     "lost) ?\nPlease select YES to put the changes into effect and restart the application.\n");
    EXPECT_EQ(titel, "Restart the application");
}

TEST_F(Start, NoInTheRestartQuestionStoresNothing)
{
    start();
    wxTEST_DIALOG(app().zetTaal(wxLANGUAGE_DUTCH), wxExpectModal<wxMessageDialog>(wxNO));
    EXPECT_TRUE(procesStappen.empty());
    EXPECT_EQ(app().geefTaal(), wxLANGUAGE_ENGLISH);
    EXPECT_FALSE(wxTheApp->IsScheduledForDestruction(&venster()));
    stop();
    auto config = leesInstellingen();
    EXPECT_EQ(config->ReadLong("/Gebruikersinstellingen/Encoding", -1), wxLANGUAGE_ENGLISH);
    EXPECT_FALSE(config->HasEntry("/Operationeel/EersteKeer/TaalGekozen"));
    EXPECT_FALSE(config->HasEntry("/Operationeel/EigenHerstart"));
}
