// The application frame: start, window size, what the end writes, the restart.
#include "programma.h"

#include <wx/datetime.h>
#include <wx/display.h>
#include <wx/sizer.h>

#include <algorithm>

struct StartRegel { const char *naam, *instellingen; int taal; bool hulp; const char *dataPad, *splash; };

void PrintTo(const StartRegel& r, std::ostream* os) { *os << r.naam; }

class StartEnEinde : public ProgrammaTest, public ::testing::WithParamInterface<StartRegel> {};
using Start = ProgrammaTest;

// A size no window can have gives 800 x 600 or what the contents need, centred (before the title bar is
// added); the splash; what the end writes (the data path never expanded), the statistics included.
TEST_P(StartEnEinde, StartAndTheEndWrite)
{
    const StartRegel& r = GetParam();
    schrijfInstellingen(r.instellingen);
    zetTaal(r.taal);
    start();
    const wxString dataPad = r.dataPad ? wxString(r.dataPad) : wxStandardPaths::Get().GetDocumentsDir();
    const wxSize inhoud = venster().GetSizer()->GetMinSize();
    EXPECT_EQ(venster().GetClientSize(), wxSize(std::max(800, inhoud.x), std::max(600, inhoud.y)));
    const wxRect scherm = wxDisplay(0u).GetClientArea(), buiten = venster().GetRect();
    EXPECT_TRUE(scherm.Contains(buiten)) << buiten.width << "x" << buiten.height;
    EXPECT_NEAR(buiten.x + buiten.width / 2, scherm.x + scherm.width / 2, 2);
    EXPECT_NEAR(buiten.y + buiten.height / 2, scherm.y + scherm.height / 2, 16);
    EXPECT_EQ(app().geefToonHulpToolTips(), r.hulp);
    EXPECT_EQ(app().geefLaatsteDataPad(), dataPad);
    ASSERT_NE(app().geefSplash(), nullptr);
    EXPECT_EQ(app().geefSplash()->GetTimeout(), 2000);
    EXPECT_EQ(app().geefSplashStatus()->GetStatusText(0), r.splash);
    EXPECT_EQ(wxTheApp->GetTopWindow(), &venster());
    EXPECT_EQ(wxTheApp->GetAppName() + "|" + wxTheApp->GetAppDisplayName() + "|" + wxTheApp->GetVendorName() + "|" +
                  wxTheApp->GetVendorDisplayName(), "Klavermol|Klavermol|Zelvano|Zelvano");
    verwachtAssert("(win != nullptr)");
    app().zetHoofdVenster(nullptr, true, false); // refused, with an assertion
    EXPECT_TRUE(aantalAsserts("(win != nullptr)") == 1 && app().geefHoofdVenster() == &venster());
    const wxSize grootte = venster().GetClientSize();
    stop();
    auto c = leesInstellingen();
    EXPECT_EQ(wxSize(c->ReadLong("/Gebruikersinstellingen/Venster/GrootteX", 0), c->ReadLong("/Gebruikersinstellingen/"
                     "Venster/GrootteY", 0)), grootte);
    EXPECT_FALSE(c->HasEntry("/Operationeel/EigenHerstart"));
    EXPECT_EQ(c->ReadLong("/Gebruikersinstellingen/Encoding", -1), r.taal);
    EXPECT_EQ(c->ReadBool("/Gebruikersinstellingen/toonHulptoolTips", !r.hulp), r.hulp);
    EXPECT_EQ(c->Read("/Operationeel/LaatsteDataPad"), dataPad);
    for (const wxString& wanneer : {"Start", "Stop"})
        EXPECT_TRUE(wxDateTime().ParseISOCombined(c->Read("/Statistiek/" + wanneer + "Datum") + " " +
                                                  c->Read("/Statistiek/" + wanneer + "Tijd"), ' ')) << wanneer;
    EXPECT_EQ(c->ReadLong("/Statistiek/OS", 0), wxOS_UNIX_LINUX);
}

INSTANTIATE_TEST_SUITE_P(Start, StartEnEinde, ::testing::Values(
    StartRegel{"NoUsableSize", "[Gebruikersinstellingen/Venster]\nGrootteX=-99999\nGrootteY=50\n", wxLANGUAGE_ENGLISH,
               true, nullptr, "Klavermol is starting!"}, // nullptr: the documents directory
    StartRegel{"StoredValues", "[Gebruikersinstellingen]\ntoonHulptoolTips=0\n[Operationeel]\nLaatsteDataPad=$HOME/"
               "data/${SRCS}\n", wxLANGUAGE_DUTCH, false, "$HOME/data/${SRCS}", "Klavermol wordt gestart!"}),
    [](const ::testing::TestParamInfo<StartRegel>& i) { return std::string(i.param.naam); });

// No leaves all as it was; Yes stores the choice and a marker, writes the
// store, closes the window, starts the program anew and exits, in that order.
TEST_F(Start, TheLanguageSwitchRestartsOnlyWhenConfirmed)
{
    start();
    wxTEST_DIALOG(app().zetTaal(wxLANGUAGE_DUTCH), beantwoordVraag("A new application language was selected.\nDo you "
        "want to proceed (Any unsaved data might be lost) ?\nPlease select YES to put the changes into effect and "
        "restart the application.\n", "Restart the application", wxID_NO));
    EXPECT_TRUE(procesStappen.empty() && !wxTheApp->IsScheduledForDestruction(&venster()));
    EXPECT_EQ(app().geefTaal(), wxLANGUAGE_ENGLISH);
    std::vector<std::string> gezien;
    DesktopAppBasis::geefProcesNaad().start = [&](const wxString& pad) {
        const auto c = leesInstellingen(); // marker, language chosen, language, window closed
        gezien.push_back(wxString::Format("%d %d %ld %d start ", c->ReadBool("/Operationeel/EigenHerstart", false),
                                          c->ReadBool("/Operationeel/EersteKeer/TaalGekozen", false),
                                          c->ReadLong("/Gebruikersinstellingen/Encoding", -1),
                                          wxTheApp->IsScheduledForDestruction(&venster())).ToStdString() + pad.ToStdString());
        return 1L;
    };
    DesktopAppBasis::geefProcesNaad().stop = [&] { gezien.push_back("exit"); };
    wxTEST_DIALOG(app().zetTaal(wxLANGUAGE_GERMAN), wxExpectModal<wxMessageDialog>(wxYES));
    EXPECT_EQ(gezien, (std::vector<std::string>{wxString::Format("1 1 %d 1 start ", wxLANGUAGE_GERMAN).ToStdString() +
                                                wxStandardPaths::Get().GetExecutablePath().ToStdString(), "exit"}));
    EXPECT_EQ(app().geefTaal(), wxLANGUAGE_GERMAN);
}
