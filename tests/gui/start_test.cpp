// The application frame: start, window size, what the end writes and the
// restart after a language change.
#include "programma.h"

#include <wx/datetime.h>
#include <wx/display.h>
#include <wx/sizer.h>
#include <wx/testing.h>

#include <algorithm>
#include <functional>

namespace {

bool heeftVorm(const wxString& s, const wxString& vorm)
{
    wxDateTime tijd;
    wxString::const_iterator einde;
    return tijd.ParseFormat(s, vorm, &einde) && einde == s.end();
}

} // namespace

using Start = ProgrammaTest;

// A size no window can have gives the default: 800 x 600 or what the
// contents need, centred, on the screen, every control wholly inside; the
// splash over the registered window; the size is stored at the end.
TEST_F(Start, FirstStartWithNoUsableStore)
{
    schrijfInstellingen("[Gebruikersinstellingen/Venster]\nGrootteX=-99999\nGrootteY=50\n");
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
    EXPECT_TRUE(app().geefToonHulpToolTips());
    EXPECT_EQ(app().geefLaatsteDataPad(), wxStandardPaths::Get().GetDocumentsDir());

    ASSERT_NE(app().geefSplash(), nullptr);
    EXPECT_EQ(app().geefSplash()->GetTimeout(), 2000);
    EXPECT_EQ(app().geefSplashStatus()->GetStatusText(0), "Klavermol is starting!");
    EXPECT_EQ(app().geefHoofdVenster(), &venster());
    EXPECT_EQ(wxTheApp->GetTopWindow(), &venster());
    EXPECT_EQ(wxTheApp->GetAppName() + "|" + wxTheApp->GetAppDisplayName() + "|" + wxTheApp->GetVendorName() + "|" +
                  wxTheApp->GetVendorDisplayName(),
              "Klavermol|Klavermol|Zelvano|Zelvano");
    verwachtAssert("(win != nullptr)");
    app().zetHoofdVenster(nullptr, true, false);
    EXPECT_EQ(aantalAsserts("(win != nullptr)"), 1);
    EXPECT_EQ(app().geefHoofdVenster(), &venster());

    const wxSize grootte = venster().GetClientSize();
    stop();
    auto config = leesInstellingen();
    EXPECT_TRUE(heeftVorm(config->Read("/Statistiek/StartDatum") + " " + config->Read("/Statistiek/StartTijd"),
                          "%Y-%m-%d %H:%M:%S"));
    EXPECT_EQ(config->ReadLong("/Gebruikersinstellingen/Venster/GrootteX", 0), grootte.x);
    EXPECT_EQ(config->ReadLong("/Gebruikersinstellingen/Venster/GrootteY", 0), grootte.y);
    EXPECT_FALSE(config->HasEntry("/Operationeel/EigenHerstart"));
}

// The stored size is applied as far as the contents allow; language, tooltips, data path and the statistics are written at the end.
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
    EXPECT_EQ(venster().GetClientSize(), venster().GetSizer()->GetMinSize()); // 640 x 480 gave way
    stop();
    auto config = leesInstellingen();
    EXPECT_EQ(config->ReadLong("/Gebruikersinstellingen/Encoding", -1), wxLANGUAGE_DUTCH);
    EXPECT_FALSE(config->ReadBool("/Gebruikersinstellingen/toonHulptoolTips", true));
    EXPECT_EQ(config->Read("/Operationeel/LaatsteDataPad"), "$HOME/data/${SRCS}");
    EXPECT_TRUE(heeftVorm(config->Read("/Statistiek/StopDatum") + " " + config->Read("/Statistiek/StopTijd"),
                          "%Y-%m-%d %H:%M:%S"));
    EXPECT_EQ(config->ReadLong("/Statistiek/OS", 0), wxOS_UNIX_LINUX);
}

// No leaves all as it was; Yes stores the choice and a marker, writes the
// store, closes the window, starts the program anew and exits, in that order.
TEST_F(Start, TheLanguageSwitchRestartsOnlyWhenConfirmed)
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

    std::vector<std::string> gezien;
    DesktopAppBasis::geefProcesNaad().start = [&](const wxString& pad) {
        const auto config = leesInstellingen();
        gezien.push_back(config->ReadBool("/Operationeel/EigenHerstart", false) ? "marker" : "no marker");
        gezien.push_back(config->ReadBool("/Operationeel/EersteKeer/TaalGekozen", false) ? "chosen" : "not chosen");
        gezien.push_back(config->ReadLong("/Gebruikersinstellingen/Encoding", -1) == wxLANGUAGE_GERMAN ? "German"
                                                                                                     : "not German");
        gezien.push_back(wxTheApp->IsScheduledForDestruction(&venster()) ? "closed" : "open");
        gezien.push_back("start " + pad.ToStdString());
        return 1L;
    };
    DesktopAppBasis::geefProcesNaad().stop = [&] { gezien.push_back("exit"); };
    wxTEST_DIALOG(app().zetTaal(wxLANGUAGE_GERMAN), wxExpectModal<wxMessageDialog>(wxYES));
    const std::string exe = wxStandardPaths::Get().GetExecutablePath().ToStdString();
    EXPECT_EQ(gezien, (std::vector<std::string>{"marker", "chosen", "German", "closed", "start " + exe, "exit"}));
    EXPECT_EQ(app().geefTaal(), wxLANGUAGE_GERMAN);
}
