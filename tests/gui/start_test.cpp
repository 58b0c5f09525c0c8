// The application frame: start, window size, what the end writes, the restart.
#include "programma.h"

#include <wx/display.h>
#include <wx/sizer.h>

struct StartRegel { const char *naam, *instellingen; int taal; bool hulp; const char *dataPad, *splash; };

void PrintTo(const StartRegel& r, std::ostream* os) { *os << r.naam; }

class StartEnEinde : public ProgrammaTest, public ::testing::WithParamInterface<StartRegel> {};
using Start = ProgrammaTest;

// An impossible size gives 800 x 600 or what the contents need, centred; the splash; what the end writes.
TEST_P(StartEnEinde, StartAndTheEndWrite)
{
    const StartRegel& r = GetParam();
    schrijfInstellingen(r.instellingen);
    zetTaal(r.taal);
    start();
    wachtTot([&] { return isGeplaatst(&venster()); }, "the window placed by the window manager");
    const wxString dataPad = r.dataPad ? wxString(r.dataPad) : wxStandardPaths::Get().GetDocumentsDir();
    const wxSize inhoud = venster().GetSizer()->GetMinSize();
    const wxSize grootte(std::max(800, inhoud.x), std::max(600, inhoud.y));
    EXPECT_EQ(venster().GetClientSize(), grootte);
    const wxRect scherm = wxDisplay(0u).GetClientArea(), buiten = venster().GetRect();
    EXPECT_TRUE(scherm.Contains(buiten) && std::abs(buiten.x + buiten.width / 2 - scherm.x - scherm.width / 2) <= 2 &&
                std::abs(buiten.y + buiten.height / 2 - scherm.y - scherm.height / 2) <= 16) << buiten.x << "," << buiten.y;
    ASSERT_NE(app().geefSplash(), nullptr);
    EXPECT_EQ(wxString::Format("%d %d %d|", app().geefToonHulpToolTips(), app().geefSplash()->GetTimeout(), wxTheApp->
              GetTopWindow() == &venster()) + app().geefSplashStatus()->GetStatusText(0) + "|" + app().geefLaatsteDataPad() +
              "|" + wxTheApp->GetAppName() + "|" + wxTheApp->GetAppDisplayName() + "|" + wxTheApp->GetVendorName() + "|" +
              wxTheApp->GetVendorDisplayName(), wxString::Format("%d 2000 1|", r.hulp) + r.splash + "|" + dataPad +
              "|Klavermol|Klavermol|Zelvano|Zelvano");
    verwachtAssert("(win != nullptr)");
    app().zetHoofdVenster(nullptr, true, false); // refused, with an assertion
    EXPECT_TRUE(aantalAsserts("(win != nullptr)") == 1 && app().geefHoofdVenster() == &venster());
    stop();
    auto c = leesInstellingen();
    EXPECT_EQ(wxString::Format("%ld %ld %d %ld %d %ld ", c->ReadLong("/Gebruikersinstellingen/Venster/GrootteX", 0),
              c->ReadLong("/Gebruikersinstellingen/Venster/GrootteY", 0), c->HasEntry("/Operationeel/EigenHerstart"),
              c->ReadLong("/Gebruikersinstellingen/Encoding", -1), c->ReadBool("/Gebruikersinstellingen/toonHulptoolTips",
              !r.hulp), c->ReadLong("/Statistiek/OS", 0)) + c->Read("/Operationeel/LaatsteDataPad"), wxString::Format(
              "%d %d 0 %d %d %d ", grootte.x, grootte.y, r.taal, r.hulp, wxOS_UNIX_LINUX) + dataPad);
    for (const wxString& wanneer : {"Start", "Stop"})
        EXPECT_TRUE(wxDateTime().ParseISOCombined(c->Read("/Statistiek/" + wanneer + "Datum") + " " +
                                                  c->Read("/Statistiek/" + wanneer + "Tijd"), ' ')) << wanneer;
}

INSTANTIATE_TEST_SUITE_P(Start, StartEnEinde, ::testing::Values(
    StartRegel{"NoUsableSize", "[Gebruikersinstellingen/Venster]\nGrootteX=-99999\nGrootteY=50\n", wxLANGUAGE_ENGLISH,
               true, nullptr, "Klavermol is starting!"}, // nullptr: the documents directory
    StartRegel{"StoredValues", "[Gebruikersinstellingen]\ntoonHulptoolTips=0\n[Gebruikersinstellingen/Venster]\nGrootteX=1300\n"
               "GrootteY=0\n[Operationeel]\nLaatsteDataPad=$HOME/"
               "data/${SRCS}\n", wxLANGUAGE_DUTCH, false, "$HOME/data/${SRCS}", "Klavermol wordt gestart!"}),
    [](const ::testing::TestParamInfo<StartRegel>& i) { return std::string(i.param.naam); });

// No leaves all as it was; Yes stores choice and marker, closes the window, starts anew and exits, in that order.
TEST_F(Start, TheLanguageSwitchRestartsOnlyWhenConfirmed)
{
    start();
    wxTEST_DIALOG(app().zetTaal(wxLANGUAGE_DUTCH), beantwoordVraag("A new application language was selected.\nDo you "
        "want to proceed (Any unsaved data might be lost) ?\nPlease select YES to put the changes into effect and "
        "restart the application.\n", "Restart the application", wxID_NO));
    EXPECT_TRUE(procesStappen.empty() && !wxTheApp->IsScheduledForDestruction(&venster()) &&
                app().geefTaal() == wxLANGUAGE_ENGLISH);
    std::vector<std::string> gezien;
    DesktopAppBasis::geefProcesNaad().start = [&](const wxString& pad) {
        const auto c = leesInstellingen(); // marker, language chosen, language, window closed
        gezien.push_back(wxString::Format("%d %d %ld %d start ", c->ReadBool("/Operationeel/EigenHerstart", false),
            c->ReadBool("/Operationeel/EersteKeer/TaalGekozen", false), c->ReadLong("/Gebruikersinstellingen/Encoding", -1),
            wxTheApp->IsScheduledForDestruction(&venster())).ToStdString() + pad.ToStdString());
        return 1L;
    };
    DesktopAppBasis::geefProcesNaad().stop = [&] { gezien.push_back("exit " + std::to_string(app().geefTaal())); };
    wxTEST_DIALOG(app().zetTaal(wxLANGUAGE_GERMAN), wxExpectModal<wxMessageDialog>(wxYES));
    EXPECT_EQ(gezien, (std::vector<std::string>{wxString::Format("1 1 %d 1 start ", wxLANGUAGE_GERMAN).ToStdString() +
              wxStandardPaths::Get().GetExecutablePath().ToStdString(), "exit " + std::to_string(wxLANGUAGE_GERMAN)}));
}
