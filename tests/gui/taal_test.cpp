// Locale set-up, catalogues, the language dialog and the about box.
#include "programma.h"

#include "dialogs/taalkeuzedialoog.h"

#include <clocale>

namespace {

std::vector<wxString> debugMet(const std::vector<LogRegel>& regels, const wxString& begin)
{
    std::vector<wxString> uit;
    for (const LogRegel& r : regels)
        if (r.tekst.StartsWith(begin))
            uit.push_back(r.tekst);
    return uit;
}

} // namespace

using Taal = ProgrammaTest;

TEST_F(Taal, EnglishAddsThePrefixesButNoCatalogue)
{
    zetTaal(wxLANGUAGE_ENGLISH);
    start();
    const auto debug = logRegels(wxLOG_Debug);
    EXPECT_TRUE(heeftLog(wxLOG_Debug, "(DesktopAppBasis::zetLokaliteit) Gekozen taal : English kort :en"));
    EXPECT_TRUE(heeftLog(wxLOG_Debug, "Taalpad (BSD/Solaris/AIX/Linux) toegevoegd."));

    // the resources directory as the toolkit reports it while the
    // application object is being built: <prefix>/share/<program name>
    const wxString e = wxFileName(wxStandardPaths::Get().GetExecutablePath()).GetPath();
    const wxString r = wxFileName(e).GetPath() + "/share/klavermol-gui-tests";
    EXPECT_EQ(debugMet(debug, "Taalpad toegevoegd : "),
              (std::vector<wxString>{"Taalpad toegevoegd : " + r,
                                     "Taalpad toegevoegd : " + r + "/Zelvano/Klavermol/locale",
                                     "Taalpad toegevoegd : " + r + "/../Zelvano/Klavermol/locale",
                                     "Taalpad toegevoegd : " + r + "/locale",
                                     "Taalpad toegevoegd : " + e + "/../share/Zelvano/Klavermol/locale"}));
    EXPECT_TRUE(debugMet(debug, "Zelvano katalogus").empty());
    EXPECT_TRUE(debugMet(debug, "Applikatie (").empty());
    EXPECT_TRUE(logRegels(wxLOG_Error).empty());
}

TEST_F(Taal, AMissingCatalogueIsLoggedAndTheProgramGoesOn)
{
    zetTaal(wxLANGUAGE_FRENCH); // a generated locale without catalogues of ours
    if (std::setlocale(LC_ALL, "fr_FR.UTF-8") == nullptr)
        GTEST_SKIP() << "fr_FR.UTF-8 is not generated on this machine";
    std::setlocale(LC_ALL, "C");
    start();
    const auto fouten = logRegels(wxLOG_Error);
    ASSERT_EQ(fouten.size(), 1u);
    EXPECT_EQ(fouten[0].tekst, "Could not add Zelvano catalog for language : French");
    EXPECT_TRUE(venster().IsShown());
    EXPECT_EQ(app().geefTaal(), wxLANGUAGE_FRENCH);
}

TEST_F(Taal, ALocaleThatCannotBeSetIsLoggedAndTheProgramGoesOn)
{
    zetTaal(wxLANGUAGE_SWEDISH);
    if (std::setlocale(LC_ALL, "sv_SE.UTF-8") != nullptr)
        GTEST_SKIP() << "sv_SE.UTF-8 is generated on this machine";
    std::setlocale(LC_ALL, "C");
    start();
    EXPECT_TRUE(heeftLog(wxLOG_Error, "Could not initialise the Locale for \"Swedish\" ."));
    EXPECT_TRUE(heeftLog(wxLOG_Error, "Could not initialise the Internationalization Locale system forKlavermol."));
    EXPECT_TRUE(venster().IsShown());
}

TEST(CatalogusNamen, ApplikatieCountsFromTheThirdPosition)
{
    EXPECT_EQ(DesktopAppBasis::geefCatalogusNamen("Klavermol"), wxArrayString(1, "Klavermol"));
    EXPECT_EQ(DesktopAppBasis::geefCatalogusNamen("Applikatie"), wxArrayString(1, "Applikatie"));
    EXPECT_EQ(DesktopAppBasis::geefCatalogusNamen("XApplikatie"), wxArrayString(1, "XApplikatie"));
    wxArrayString twee;
    twee.Add("XYApplikatie");
    twee.Add("XY");
    EXPECT_EQ(DesktopAppBasis::geefCatalogusNamen("XYApplikatie"), twee);
}

TEST_F(Taal, TheDialogOffersTheLanguagesInOrderWithFlags)
{
    start();
    wxArrayInt talen;
    talen.Add(wxLANGUAGE_GERMAN);
    talen.Add(wxLANGUAGE_ENGLISH);
    talen.Add(wxLANGUAGE_DUTCH);
    TaalKeuzeDialoog dialoog(&venster(), talen, 10000, "Language Selection ");
    wxListCtrl* lijst = dialoog.geefLijst();
    ASSERT_EQ(lijst->GetItemCount(), 3);
    const wxString namen[] = {"German", "English", "Dutch"};
    const int vlaggen[] = {1, 2, 0};
    for (int i = 0; i < 3; ++i) {
        wxListItem item;
        item.SetId(i);
        item.SetMask(wxLIST_MASK_TEXT | wxLIST_MASK_IMAGE);
        ASSERT_TRUE(lijst->GetItem(item));
        EXPECT_EQ(item.GetText(), namen[i]);
        EXPECT_EQ(item.GetImage(), vlaggen[i]);
    }
    EXPECT_EQ(dialoog.geefVlaggen()->GetImageCount(), 14);
    EXPECT_EQ(dialoog.geefVlaggen()->GetSize(), wxSize(24, 24));
    EXPECT_EQ(dialoog.geefTaalKaart().find("Dutch")->second, wxLANGUAGE_DUTCH);
    EXPECT_EQ(dialoog.geefTaal(), wxLANGUAGE_UNKNOWN);
    EXPECT_EQ(dialoog.GetTitle(), "Language Selection ");

    wxWindow* ok = dialoog.FindWindow(wxID_OK);
    ASSERT_NE(ok, nullptr);
    dialoog.UpdateWindowUI(wxUPDATE_UI_RECURSE);
    EXPECT_FALSE(ok->IsEnabled());
    EXPECT_TRUE(dialoog.FindWindow(wxID_CANCEL)->IsEnabled());

    lijst->SetItemState(2, wxLIST_STATE_SELECTED, wxLIST_STATE_SELECTED);
    dialoog.UpdateWindowUI(wxUPDATE_UI_RECURSE);
    EXPECT_EQ(dialoog.geefTaal(), wxLANGUAGE_DUTCH);
    EXPECT_TRUE(ok->IsEnabled());

    lijst->SetItemState(2, 0, wxLIST_STATE_SELECTED); // deselecting changes nothing
    dialoog.UpdateWindowUI(wxUPDATE_UI_RECURSE);
    EXPECT_EQ(dialoog.geefTaal(), wxLANGUAGE_DUTCH);
    EXPECT_TRUE(ok->IsEnabled());
}

TEST_F(Taal, AnUnknownLanguageGetsAnEmptyNameAndNoFlag)
{
    start();
    wxArrayInt talen;
    talen.Add(wxLANGUAGE_FINNISH);
    talen.Add(wxLANGUAGE_ENGLISH_US);
    TaalKeuzeDialoog dialoog(&venster(), talen, 10000, "Language Selection ");
    wxListCtrl* lijst = dialoog.geefLijst();
    ASSERT_EQ(lijst->GetItemCount(), 2);
    EXPECT_EQ(lijst->GetItemText(0), "");
    EXPECT_EQ(lijst->GetItemText(1), "English");
    EXPECT_EQ(dialoog.geefTaalKaart().find("")->second, wxLANGUAGE_FINNISH);
    EXPECT_EQ(dialoog.geefTaalKaart().find("English")->second, wxLANGUAGE_ENGLISH_US);
}

TEST_F(Taal, AboutInformation)
{
    start();
    wxAboutDialogInfo getoond;
    wxWindow* ouder = nullptr;
    DesktopApp::geefAboutToner() = [&](const wxAboutDialogInfo& info, wxWindow* o) {
        getoond = info;
        ouder = o;
    };
    wxArrayString credits;
    credits.Add("The CMake Project (https://cmake.org)");
    credits.Add("Icons");
    app().toonCopyright("https://www.zelvano.nl", wxIcon(), credits);

    EXPECT_EQ(ouder, &venster());
    EXPECT_EQ(getoond.GetName(), "Klavermol");
    EXPECT_EQ(getoond.GetVersion(), "07.09.2020_2.0.0.a");
    EXPECT_EQ(getoond.GetWebSiteURL(), "https://www.zelvano.nl");
    const wxString platform = app().geefPlatformBeschrijving();
    EXPECT_EQ(platform, "wxGTK Linux(64 bit)");
    EXPECT_TRUE(getoond.GetDescription().StartsWith(platform + "\n\nKlavermol simplifies applying CMake"));
    EXPECT_TRUE(getoond.GetDescription().EndsWith("finding the proper paths relative from the build directory."));
    const wxArrayString& ontwikkelaars = getoond.GetDevelopers();
    ASSERT_EQ(ontwikkelaars.size(), 3u);
    EXPECT_TRUE(ontwikkelaars[0].StartsWith("The wxWidgets cross-platform GUI toolkit ("));
    EXPECT_EQ(ontwikkelaars[1], "\nThe CMake Project (https://cmake.org)");
    EXPECT_EQ(ontwikkelaars[2], "\nIcons");
    EXPECT_EQ(app().geefVersie(false), "2.0.0");
}
