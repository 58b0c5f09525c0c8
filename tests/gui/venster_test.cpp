// The main window: what it shows at a first start, what it restores from the
// store, what it writes back, and which commands each state enables.
#include "programma.h"

#include <wx/checkbox.h>
#include <wx/checklst.h>
#include <wx/choice.h>
#include <wx/filepicker.h>
#include <wx/menu.h>
#include <wx/notebook.h>
#include <wx/radiobox.h>
#include <wx/statbox.h>
#include <wx/textctrl.h>
#include <wx/tglbtn.h>
#include <wx/bmpbuttn.h>

#include <fstream>

namespace {

bool isZelfdeMap(const wxString& a, const wxString& b)
{
    return wxFileName::DirName(a).SameAs(wxFileName::DirName(b));
}

} // namespace

class Venster : public ProgrammaTest
{
protected:
    bool aan(int id)
    {
        venster().UpdateWindowUI(wxUPDATE_UI_RECURSE);
        wxWindow* w = venster().FindWindow(id);
        EXPECT_NE(w, nullptr) << id;
        return w != nullptr && w->IsEnabled();
    }

    bool menuAan(int id)
    {
        venster().DoMenuUpdates();
        return venster().GetMenuBar()->IsEnabled(id);
    }

    void kiesSoort(int soort)
    {
        venster().uitvoerSoortKeuze->SetSelection(soort);
    }
};

TEST_F(Venster, FirstStartShowsTheDefaultsAndTheListedControls)
{
    start();
    KlavermolVenster& v = venster();
    EXPECT_TRUE(isZelfdeMap(v.vindBestandenInDirs->GetPath(), thuis));
    EXPECT_EQ(v.outputDirPicker->GetPath(), thuis);
    EXPECT_EQ(v.vindCMakeSubDir->GetPath(), thuis);
    EXPECT_EQ(v.vindCMakeIncludeDir->GetPath(), thuis);
    EXPECT_EQ(v.projektLibIncludeNaam->GetValue(), "MyFirstProject");
    EXPECT_EQ(v.bestandNaamTekst->GetValue(), "CMakeLists.txt");
    EXPECT_EQ(v.voegToeModeKeuze->GetStringSelection(), "One or more files in the directory");
    EXPECT_EQ(v.uitsluitTerm->GetValue(), "template");
    EXPECT_EQ(v.uitvoerSoortKeuze->GetStringSelection(), "CMake Project");
    EXPECT_EQ(v.naamKader->GetLabel(), "Project name");
    wxMenuBar* menu = v.GetMenuBar();
    for (int id : {VoegCBestandenToeID, VoegCPPBestandenToeID, VoegHBestandenToeID, VoegSBestandenToeID}) {
        EXPECT_FALSE(menu->IsChecked(id)) << id;
        EXPECT_FALSE(static_cast<wxCheckBox*>(v.FindWindow(id))->GetValue()) << id;
    }
    EXPECT_TRUE(menu->IsChecked(AutoZetUitvoerDirID));
    EXPECT_EQ(v.GetStatusBar()->GetStatusText(0), "Welkom bij Klavermol !!");
    EXPECT_EQ(v.GetStatusBar()->GetStatusText(1), "Current filter searches for:");
    EXPECT_EQ(v.selekteerAllesKnop->GetLabel(), "Select all");
    EXPECT_NE(v.vindBestandenInDirs->GetDropTarget(), nullptr);

    ASSERT_EQ(menu->GetMenuCount(), 3u);
    EXPECT_EQ(menu->GetMenuLabelText(0), "General");
    EXPECT_EQ(menu->GetMenuLabelText(1), "Navigation");
    EXPECT_EQ(menu->GetMenuLabelText(2), "Options");
    EXPECT_EQ(menu->FindItem(wxID_PREFERENCES)->GetItemLabel(), "Preferences\tCtrl+,");
    EXPECT_EQ(menu->FindItem(wxID_HOME)->GetItemLabel(), "Go home\tCtrl+h");
    EXPECT_EQ(menu->FindItem(wxID_MORE)->GetItemLabel(), "Go somewhere else\tCtrl+g");
    EXPECT_EQ(menu->FindItem(ZetAlsUitvoerID)->GetItemLabel(), "Set the current directory as the output dir\tF1");
    EXPECT_EQ(menu->FindItem(AutoZetUitvoerDirID)->GetHelp(), "Automatically set output dir from Source top dir");
    EXPECT_EQ(menu->FindItem(VoegSBestandenToeID)->GetItemLabel(), "Include ASM Files in list\tF6");
    ASSERT_EQ(v.selektieBoek->GetPageCount(), 3u);
    EXPECT_EQ(v.selektieBoek->GetPageText(0), "Source Files");
    EXPECT_EQ(v.selektieBoek->GetPageText(1), "Libraries");
    EXPECT_EQ(v.selektieBoek->GetPageText(2), "Include files");
    EXPECT_EQ(v.FindWindow(wxID_HOME)->GetToolTipText(), "Go to your home directory");
    EXPECT_EQ(v.bestandSelektieLijst->GetToolTipText(),
              "These entries (when checked) will be included in the CMake file.");
    // the images were found
    EXPECT_TRUE(v.GetIcon().IsOk());
    EXPECT_TRUE(menu->FindItem(ZetTaalID)->GetBitmap().IsOk());
    for (int id : std::initializer_list<int>{wxID_HOME, VorigeLokatieID, wxID_BACKWARD, wxID_FORWARD, wxID_ADD,
                                            VoegToeCMakeSubDirID, VoegToeCMakeIncludeID, wxID_APPLY}) {
        auto* knop = dynamic_cast<wxBitmapButton*>(v.FindWindow(id));
        ASSERT_NE(knop, nullptr) << id;
        EXPECT_TRUE(knop->GetBitmap().IsOk()) << id;
    }
    // at the default size every control can be scrolled into view
    wxWindow* paneel = v.FindWindow(PaneelID);
    const wxSize inhoud = paneel->GetSizer()->GetMinSize();
    EXPECT_GE(paneel->GetVirtualSize().x, inhoud.x);
    EXPECT_GE(paneel->GetVirtualSize().y, inhoud.y);
}

TEST_F(Venster, APreWrittenStoreIsRestoredIntoEveryControl)
{
    const wxString bron = thuis + "/bron";
    const wxString uit = thuis + "/uit";
    wxFileName::Mkdir(bron + "/lib", wxS_DIR_DEFAULT, wxPATH_MKDIR_FULL);
    wxFileName::Mkdir(uit, wxS_DIR_DEFAULT, wxPATH_MKDIR_FULL);
    std::ofstream((bron + "/lib/CMakeLists.txt").ToStdString()) << "\n";
    std::ofstream((bron + "/extra.cmake").ToStdString()) << "\n";
    wxSetEnv("SRCS", "environment-value");
    schrijfInstellingen("[Configuratie]\n"
                        "DirPad=" + bron.ToStdString() + "\n"
                        "UitvoerDirPad=" + uit.ToStdString() + "\n"
                        "Projektnaam=Motor\n"
                        "Projektsoort=2\n"
                        "Projekttype=1\n"
                        "Biebtype=2\n"
                        "BestandNaamTekst=Motor.cmake\n"
                        "VoegToeMethode=2\n"
                        "CMakeSubDirPad=" + bron.ToStdString() + "/lib/CMakeLists.txt\n"
                        "CMakeIncludeDirPad=" + bron.ToStdString() + "/extra.cmake\n"
                        "KopieerrechtMededeling=## mine\\n\n"
                        "ProjektKommando=add_executable(${ProjectName} ${SRCS})\n"
                        "CCProjektKommando=## cross\n"
                        "BiebLibNaam=Naam\n"
                        "BiebIncludeNaam=Dirs\n"
                        "BiebKommando=static\n"
                        "DynBiebKommando=dynamic\n"
                        "ObjektBiebKommando=object\n"
                        "IncludeKommando=include\n"
                        "AutoDirToewijzing=0\n"
                        "VoegCBestandenToe=1\n"
                        "VoegCPPBestandenToe=0\n"
                        "VoegHBestandenToe=1\n"
                        "VoegSBestandenToe=1\n"
                        "UitsluitTerm=test\n"
                        "file1=/a\n"
                        "file2=/b\n");
    start();
    KlavermolVenster& v = venster();
    EXPECT_EQ(v.vindBestandenInDirs->GetPath(), bron);
    EXPECT_EQ(v.outputDirPicker->GetPath(), uit); // the automatic output directory is off
    EXPECT_EQ(v.projektLibIncludeNaam->GetValue(), "Motor");
    EXPECT_EQ(v.uitvoerSoortKeuze->GetSelection(), 2);
    EXPECT_EQ(v.naamKader->GetLabel(), "Include name");
    EXPECT_EQ(v.cmakeProjektKeuze->GetSelection(), 1);
    EXPECT_EQ(v.cmakeBiebKeuze->GetSelection(), 2);
    EXPECT_EQ(v.bestandNaamTekst->GetValue(), "Motor.cmake");
    EXPECT_EQ(v.voegToeModeKeuze->GetSelection(), 2);
    EXPECT_TRUE(v.subDirHeeftCMakeLists);
    EXPECT_TRUE(v.includeIsCMake);
    EXPECT_EQ(v.sjablonen.kopieerrechtMededeling, "## mine\n");
    EXPECT_EQ(v.sjablonen.projektKommando, "add_executable(${ProjectName} ${SRCS})");
    EXPECT_EQ(v.sjablonen.ccProjektKommando, "## cross");
    EXPECT_EQ(v.sjablonen.biebLibNaam, "Naam");
    EXPECT_EQ(v.sjablonen.biebIncludeNaam, "Dirs");
    EXPECT_EQ(v.sjablonen.biebKommando, "static");
    EXPECT_EQ(v.sjablonen.dynBiebKommando, "dynamic");
    EXPECT_EQ(v.sjablonen.objektBiebKommando, "object");
    EXPECT_EQ(v.sjablonen.includeKommando, "include");
    EXPECT_FALSE(v.GetMenuBar()->IsChecked(AutoZetUitvoerDirID));
    EXPECT_TRUE(v.voegCBestandenToe.boolean());
    EXPECT_FALSE(v.voegCPPBestandenToe.boolean());
    EXPECT_TRUE(v.voegHBestandenToe.boolean());
    EXPECT_TRUE(v.voegSBestandenToe.boolean());
    EXPECT_TRUE(v.GetMenuBar()->IsChecked(VoegHBestandenToeID));
    EXPECT_FALSE(v.GetMenuBar()->IsChecked(VoegCPPBestandenToeID));
    EXPECT_EQ(v.GetStatusBar()->GetStatusText(1), "Current filter searches for: C  H  S ");
    EXPECT_EQ(v.bestandTypeFilter, "C files (*.c)|*.c|H files (*.h)|*.h|ASM files (*.s)|*.s;*.S");
    EXPECT_EQ(v.uitsluitTerm->GetValue(), "test");
    ASSERT_EQ(v.recenteLokaties.GetCount(), 2u);
    EXPECT_EQ(v.recenteLokaties.GetHistoryFile(0), "/a");
    wxUnsetEnv("SRCS");
}

TEST_F(Venster, TheStateIsWrittenBackInFullAtExit)
{
    start();
    KlavermolVenster& v = venster();
    const wxString bron = thuis + "/bron";
    wxFileName::Mkdir(bron, wxS_DIR_DEFAULT, wxPATH_MKDIR_FULL);
    v.vindBestandenInDirs->SetPath(bron);
    v.outputDirPicker->SetPath(bron);
    v.projektLibIncludeNaam->ChangeValue("Naam met spatie");
    v.uitvoerSoortKeuze->SetSelection(1);
    v.cmakeProjektKeuze->SetSelection(1);
    v.cmakeBiebKeuze->SetSelection(1);
    v.bestandNaamTekst->ChangeValue("x.txt");
    v.voegToeModeKeuze->SetSelection(1);
    v.sjablonen.kopieerrechtMededeling = "";
    v.sjablonen.biebKommando = "statisch";
    v.GetMenuBar()->Check(AutoZetUitvoerDirID, false);
    v.voegSBestandenToe = true;
    v.uitsluitTerm->ChangeValue("");
    v.recenteLokaties.AddFileToHistory("/oud");
    v.recenteLokaties.AddFileToHistory("/nieuw");
    stop();

    auto config = leesInstellingen();
    config->SetPath("/Configuratie");
    EXPECT_EQ(config->Read("DirPad"), bron);
    EXPECT_EQ(config->Read("UitvoerDirPad"), bron);
    EXPECT_EQ(config->Read("Projektnaam"), "Naam met spatie");
    EXPECT_EQ(config->ReadLong("Projektsoort", -1), 1);
    EXPECT_EQ(config->ReadLong("Projekttype", -1), 1);
    EXPECT_EQ(config->ReadLong("Biebtype", -1), 1);
    EXPECT_EQ(config->Read("BestandNaamTekst"), "x.txt");
    EXPECT_EQ(config->ReadLong("VoegToeMethode", -1), 1);
    EXPECT_EQ(config->Read("CMakeSubDirPad"), thuis);
    EXPECT_EQ(config->Read("CMakeIncludeDirPad"), thuis);
    EXPECT_TRUE(config->HasEntry("KopieerrechtMededeling"));
    EXPECT_EQ(config->Read("KopieerrechtMededeling", "x"), "");
    EXPECT_EQ(config->Read("ProjektKommando"), kern::geefStandaardSjablonen().projektKommando);
    EXPECT_EQ(config->Read("CCProjektKommando"), "## Enter the Cross compile commands here.");
    EXPECT_EQ(config->Read("BiebLibNaam"), "LibName");
    EXPECT_EQ(config->Read("BiebIncludeNaam"), "AllIncludeDirs");
    EXPECT_EQ(config->Read("BiebKommando"), "statisch");
    EXPECT_EQ(config->Read("IncludeKommando"), kern::geefStandaardSjablonen().includeKommando);
    EXPECT_FALSE(config->ReadBool("AutoDirToewijzing", true));
    EXPECT_FALSE(config->ReadBool("VoegCBestandenToe", true));
    EXPECT_TRUE(config->ReadBool("VoegSBestandenToe", false));
    EXPECT_TRUE(config->HasEntry("UitsluitTerm"));
    EXPECT_EQ(config->Read("file1"), "/nieuw");
    EXPECT_EQ(config->Read("file2"), "/oud");
    EXPECT_EQ(config->ReadLong("/Gebruikersinstellingen/Venster/GrootteX", 0), 800);
}

TEST_F(Venster, AStoredOutputKindOutOfRangeRaisesTheArrayIndexAssertion)
{
    schrijfInstellingen("[Configuratie]\nProjektsoort=3\n");
    verwachtAssert("nIndex < m_nCount");
    verwachtAssert("IsValid(n)");
    start();
    EXPECT_EQ(aantalAsserts("nIndex < m_nCount"), 1);
}

TEST_F(Venster, EnablingFollowsTheOutputKind)
{
    start();
    KlavermolVenster& v = venster();
    v.subDirHeeftCMakeLists = true;
    v.includeIsCMake = false;
    kiesSoort(0);
    EXPECT_TRUE(aan(CMakeProjektKeuzeID));
    EXPECT_FALSE(aan(CMakeBiebKeuzeID));
    EXPECT_FALSE(aan(BestandNaamTekstID));
    EXPECT_FALSE(menuAan(ZetAlsUitvoerID));
    EXPECT_FALSE(menuAan(AutoZetUitvoerDirID));
    EXPECT_TRUE(aan(VindCMakeSubDirID));
    EXPECT_TRUE(aan(VoegToeCMakeSubDirID));
    EXPECT_FALSE(aan(VoegToeCMakeIncludeID));

    kiesSoort(1);
    v.includeIsCMake = true;
    EXPECT_FALSE(aan(CMakeProjektKeuzeID));
    EXPECT_TRUE(aan(CMakeBiebKeuzeID));
    EXPECT_FALSE(aan(BestandNaamTekstID));
    EXPECT_FALSE(aan(VindCMakeSubDirID));
    EXPECT_FALSE(aan(VoegToeCMakeSubDirID));
    EXPECT_TRUE(aan(VoegToeCMakeIncludeID)); // whatever the kind
    EXPECT_TRUE(menuAan(ZetAlsUitvoerID));
    EXPECT_TRUE(menuAan(AutoZetUitvoerDirID));

    kiesSoort(2);
    v.subDirHeeftCMakeLists = false;
    EXPECT_FALSE(aan(CMakeProjektKeuzeID));
    EXPECT_FALSE(aan(CMakeBiebKeuzeID));
    EXPECT_TRUE(aan(BestandNaamTekstID));
    EXPECT_TRUE(aan(VindCMakeSubDirID));
    EXPECT_FALSE(aan(VoegToeCMakeSubDirID));
    EXPECT_TRUE(menuAan(ZetAlsUitvoerID));
    // always available, whatever the state
    for (int id : std::initializer_list<int>{VindCMakeIncludeDirID, VindBestandenInDirsID, OutputDirPickerID,
                                            VoegToeModeKeuzeID, wxID_SELECTALL, wxID_HOME, GebruikSourceDirNaamID,
                                            VoegCBestandenToeID, wxID_EXIT})
        EXPECT_TRUE(aan(id)) << id;

    // F1 copies the search location into the output directory
    const wxString bron = thuis + "/bron";
    wxFileName::Mkdir(bron, wxS_DIR_DEFAULT, wxPATH_MKDIR_FULL);
    v.vindBestandenInDirs->SetPath(bron);
    wxCommandEvent f1(wxEVT_MENU, ZetAlsUitvoerID);
    v.ProcessWindowEvent(f1);
    EXPECT_EQ(v.outputDirPicker->GetPath(), bron);
}

TEST_F(Venster, EnablingFollowsTheListsTheProbeAndTheHistories)
{
    start();
    KlavermolVenster& v = venster();
    v.biebLijst->Append("/lib");
    v.includeLijst->Append("/x.cmake");
    EXPECT_FALSE(aan(wxID_APPLY)); // only the source list counts
    EXPECT_FALSE(aan(wxID_CLEAR)); // page 0 is empty
    v.selektieBoek->SetSelection(1);
    EXPECT_TRUE(aan(wxID_CLEAR));
    v.biebLijst->Clear();
    EXPECT_FALSE(aan(wxID_CLEAR));
    v.selektieBoek->SetSelection(2);
    EXPECT_TRUE(aan(wxID_CLEAR));
    v.bestandSelektieLijst->Append("/a.c");
    EXPECT_TRUE(aan(wxID_APPLY));
    EXPECT_FALSE(aan(wxID_SAVE));
    v.uitvoerTekst->ChangeValue("x");
    EXPECT_TRUE(aan(wxID_SAVE));

    // Add needs a found family that is switched on
    v.heeftHBestanden = true;
    EXPECT_FALSE(aan(wxID_ADD));
    v.voegHBestandenToe = true;
    EXPECT_TRUE(aan(wxID_ADD));
    v.voegHBestandenToe = false;
    v.heeftCBestanden = true;
    v.voegCPPBestandenToe = true;
    EXPECT_FALSE(aan(wxID_ADD));
    v.heeftCPPBestanden = true;
    EXPECT_TRUE(aan(wxID_ADD));

    // no location at all: forward is on (count - 1 wraps), back is off
    EXPECT_FALSE(aan(wxID_BACKWARD));
    EXPECT_TRUE(aan(wxID_FORWARD));
    EXPECT_FALSE(aan(VorigeLokatieID));
    v.lokatieGeschiedenis.voegToe(wxFileName::DirName("/a"));
    EXPECT_TRUE(aan(wxID_BACKWARD)); // index 1 after the append
    EXPECT_FALSE(aan(wxID_FORWARD)); // one location: count - 1 is 0
    v.lokatieGeschiedenis.zetIndex(0);
    EXPECT_FALSE(aan(wxID_BACKWARD));
    EXPECT_FALSE(aan(wxID_FORWARD));
    v.lokatieGeschiedenis.voegToe(wxFileName::DirName("/b"));
    v.lokatieGeschiedenis.zetIndex(0);
    EXPECT_TRUE(aan(wxID_FORWARD));
    v.recenteLokaties.AddFileToHistory("/a");
    EXPECT_TRUE(aan(VorigeLokatieID));
}

TEST_F(Venster, QuitButtonAndMenuCloseTheWindow)
{
    start();
    wxCommandEvent klik(wxEVT_BUTTON, wxID_EXIT);
    venster().ProcessWindowEvent(klik);
    EXPECT_TRUE(wxTheApp->IsScheduledForDestruction(&venster()));
}
