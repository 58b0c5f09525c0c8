#include "toepassing/klavermolvenster.h"

#include "afbeeldingen.h"
#include "kern/instellingen.h"
#include "toepassing/bestanddroptarget.h"
#include "toepassing/bronlijstweergave.h"
#include "toepassing/padveld.h"
#include "toepassing/klavermol.h"
#include "toepassing/lijstblok.h"

#include <wx/checkbox.h>
#include <wx/dir.h>
#include <wx/log.h>
#include <wx/checklst.h>
#include <wx/choice.h>
#include <wx/filepicker.h>
#include <wx/menu.h>
#include <wx/radiobox.h>
#include <wx/statbox.h>
#include <wx/stdpaths.h>
#include <wx/textctrl.h>
#include <wx/tglbtn.h>

wxIMPLEMENT_DYNAMIC_CLASS(KlavermolVenster, wxFrame);

wxBEGIN_EVENT_TABLE(KlavermolVenster, wxFrame)
    EVT_BUTTON(wxID_HOME, KlavermolVenster::OnHomeKnopClick)
    EVT_BUTTON(VorigeLokatieID, KlavermolVenster::OnVorigeLokatieIDClick)
    EVT_UPDATE_UI(VorigeLokatieID, KlavermolVenster::OnVorigeLokatieIDUpdate)
    EVT_BUTTON(wxID_BACKWARD, KlavermolVenster::OnBACKWARDClick)
    EVT_UPDATE_UI(wxID_BACKWARD, KlavermolVenster::OnBACKWARDUpdate)
    EVT_BUTTON(wxID_FORWARD, KlavermolVenster::OnFORWARDClick)
    EVT_UPDATE_UI(wxID_FORWARD, KlavermolVenster::OnFORWARDUpdate)
    EVT_CHECKBOX(VoegCBestandenToeID, KlavermolVenster::OnVoegCBestandenToeIDClick)
    EVT_CHECKBOX(VoegCPPBestandenToeID, KlavermolVenster::OnVoegCPPBestandenToeIDClick)
    EVT_CHECKBOX(VoegHBestandenToeID, KlavermolVenster::OnVoegHBestandenToeIDClick)
    EVT_CHECKBOX(VoegSBestandenToeID, KlavermolVenster::OnVoegSBestandenToeIDClick)
    EVT_CHOICE(VoegToeModeKeuzeID, KlavermolVenster::OnVoegToeModeKeuzeIDSelected)
    EVT_DIRPICKER_CHANGED(VindBestandenInDirsID, KlavermolVenster::OnVindBestandenInDirsIDDirPickerChanged)
    EVT_UPDATE_UI(VindBestandenInDirsID, KlavermolVenster::OnVindBestandenInDirsIDUpdate)
    EVT_BUTTON(wxID_ADD, KlavermolVenster::OnAddClick)
    EVT_UPDATE_UI(wxID_ADD, KlavermolVenster::OnAddUpdate)
    EVT_FILEPICKER_CHANGED(VindCMakeSubDirID, KlavermolVenster::OnVindCMakeSubDirIDFilePickerChanged)
    EVT_UPDATE_UI(VindCMakeSubDirID, KlavermolVenster::OnVindCMakeSubDirIDUpdate)
    EVT_BUTTON(VoegToeCMakeSubDirID, KlavermolVenster::OnVoegToeCMakeSubDirIDClick)
    EVT_UPDATE_UI(VoegToeCMakeSubDirID, KlavermolVenster::OnVoegToeCMakeSubDirIDUpdate)
    EVT_FILEPICKER_CHANGED(VindCMakeIncludeDirID, KlavermolVenster::OnVindCMakeIncludeDirIDFilePickerChanged)
    EVT_UPDATE_UI(VindCMakeIncludeDirID, KlavermolVenster::OnVindCMakeIncludeDirIDUpdate)
    EVT_BUTTON(VoegToeCMakeIncludeID, KlavermolVenster::OnVoegToeCMakeIncludeIDClick)
    EVT_UPDATE_UI(VoegToeCMakeIncludeID, KlavermolVenster::OnVoegToeCMakeIncludeIDUpdate)
    EVT_LIST_ITEM_ACTIVATED(BestandSelektieLijstID, KlavermolVenster::OnBestandSelektieLijstIDDoubleClicked)
    EVT_TOGGLEBUTTON(wxID_SELECTALL, KlavermolVenster::OnSELECTALLClick)
    EVT_BUTTON(wxID_CLEAR, KlavermolVenster::OnClearClick)
    EVT_UPDATE_UI(wxID_CLEAR, KlavermolVenster::OnClearUpdate)
    EVT_CHOICE(UitvoerSoortKeuzeID, KlavermolVenster::OnUitvoerSoortKeuzeIDSelected)
    EVT_UPDATE_UI(CMakeProjektKeuzeID, KlavermolVenster::OnCMakeProjektKeuzeIDUpdate)
    EVT_UPDATE_UI(CMakeBiebKeuzeID, KlavermolVenster::OnCMakeBiebKeuzeIDUpdate)
    EVT_TEXT(ProjektLibIncludeNaamID, KlavermolVenster::OnProjektLibIncludeNaamIDTextUpdated)
    EVT_BUTTON(GebruikSourceDirNaamID, KlavermolVenster::OnGebruikSourceDirNaamIDClick)
    EVT_UPDATE_UI(BestandNaamTekstID, KlavermolVenster::OnBestandNaamTekstIDUpdate)
    EVT_DIRPICKER_CHANGED(OutputDirPickerID, KlavermolVenster::outputDirVeranderdHandler)
    EVT_UPDATE_UI(OutputDirPickerID, KlavermolVenster::OnOutputDirPickerIDUpdate)
    EVT_BUTTON(wxID_APPLY, KlavermolVenster::OnGenerateCMakeHandler)
    EVT_UPDATE_UI(wxID_APPLY, KlavermolVenster::OnAPPLYUpdate)
    EVT_BUTTON(wxID_SAVE, KlavermolVenster::SlaOpCMakeHandler)
    EVT_UPDATE_UI(wxID_SAVE, KlavermolVenster::OnSaveUpdate)
    EVT_BUTTON(CMakeControleID, KlavermolVenster::OnCMakeControleIDClick)
    EVT_MENU(CMakeControleID, KlavermolVenster::OnCMakeControleIDClick)
    EVT_UPDATE_UI(CMakeControleID, KlavermolVenster::OnCMakeControleIDUpdate)
    EVT_BUTTON(wxID_EXIT, KlavermolVenster::sluitHandler)
    EVT_MENU(wxID_PREFERENCES, KlavermolVenster::OnPREFERENCESClick)
    EVT_MENU(ZetTaalID, KlavermolVenster::OnZetTaalIDClick)
    EVT_MENU(wxID_ABOUT, KlavermolVenster::OnABOUTClick)
    EVT_MENU(wxID_EXIT, KlavermolVenster::sluitHandler)
    EVT_MENU(wxID_HOME, KlavermolVenster::OnHOMEClick)
    EVT_MENU(wxID_MORE, KlavermolVenster::OnMOREClick)
    EVT_MENU(ZetAlsUitvoerID, KlavermolVenster::OnZetAlsUitvoerIDClick)
    EVT_UPDATE_UI(ZetAlsUitvoerID, KlavermolVenster::OnZetAlsUitvoerIDUpdate)
    EVT_UPDATE_UI(AutoZetUitvoerDirID, KlavermolVenster::OnAutoZetUitvoerDirIDUpdate)
    EVT_MENU(VoegCBestandenToeID, KlavermolVenster::OnVoegCBestandenToeIDClick)
    EVT_MENU(VoegCPPBestandenToeID, KlavermolVenster::OnVoegCPPBestandenToeIDClick)
    EVT_MENU(VoegHBestandenToeID, KlavermolVenster::OnVoegHBestandenToeIDClick)
    EVT_MENU(VoegSBestandenToeID, KlavermolVenster::OnVoegSBestandenToeIDClick)
wxEND_EVENT_TABLE()

KlavermolVenster::KlavermolVenster()
    : recenteLokaties(9, wxID_FILE1)
{
    Init();
}

KlavermolVenster::KlavermolVenster(wxWindow* ouder, wxWindowID id, const wxString& titel, const wxPoint& positie,
                                   const wxSize& grootte, long stijl)
    : recenteLokaties(9, wxID_FILE1)
{
    Init();
    Create(ouder, id, titel, positie, grootte, stijl);
}

void KlavermolVenster::Init()
{
    heeftCBestanden = heeftCPPBestanden = heeftHBestanden = heeftSBestanden = false;
    subDirHeeftCMakeLists = includeIsCMake = false;
}

const wxArrayString& KlavermolVenster::geefKeuzeSoorten()
{
    static const wxArrayString soorten = [] {
        wxArrayString s;
        s.Add(_("Project name"));
        s.Add(_("Library name"));
        s.Add(_("Include name"));
        return s;
    }();
    return soorten;
}

wxString KlavermolVenster::geefKeuzeSoort(int soort)
{
    const wxArrayString& soorten = geefKeuzeSoorten();
    if (soort < 0 || static_cast<size_t>(soort) >= soorten.size()) {
        // the array's own index check, without reading past its end
        wxFAIL_COND_MSG(nIndex < m_nCount, "wxArrayString: index out of bounds");
        return wxString();
    }
    return soorten[static_cast<size_t>(soort)];
}

const wxArrayString& KlavermolVenster::geefBiebSoorten()
{
    static const wxArrayString soorten = [] {
        wxArrayString s;
        s.Add(_("Static library"));
        s.Add(_("Dynamic library"));
        s.Add(_("Object library"));
        return s;
    }();
    return soorten;
}

bool KlavermolVenster::Create(wxWindow* ouder, wxWindowID id, const wxString& titel, const wxPoint& positie,
                              const wxSize& grootte, long stijl)
{
    wxFrame::Create(ouder, id, titel, positie, grootte, stijl);
    CreateControls();
    SetIcon(GetIconResource("ikoon/Klavermol.jpg"));
    if (GetSizer())
        GetSizer()->SetSizeHints(this);
    Centre(wxBOTH);
    herstelToestand();
    return true;
}

KlavermolVenster::~KlavermolVenster()
{
    // No worker may report to a window that is going.
    onderzoekWerk.stopAlles();
    verzamelWerk.stopAlles();
    uitvoerWerk.stopAlles();
    eindigVoortgang();
    delete voortgangKlok;
    delete plakKlok;
    bewaarToestand();
    // Emptied at once: row by row the toolkit takes long on big lists.
    for (wxCheckListBox* lijst : {biebLijst, includeLijst})
        leegLijst(lijst);
}

bool KlavermolVenster::mapHeeftCMakeLists(const wxString& bestandPad)
{
    const wxString map = wxFileName(bestandPad).GetPath();
    if (map.empty() || !wxDirExists(map))
        return false;
    wxLogNull stil;
    return !wxDir::FindFirst(map, "CMakeLists.txt", wxDIR_FILES).empty();
}

wxBitmapBundle KlavermolVenster::GetBitmapResource(const wxString& naam, const wxSize& grootte)
{
    return geefBeeldBundel(naam, grootte);
}

wxIcon KlavermolVenster::GetIconResource(const wxString& naam)
{
    if (naam == "ikoon/Klavermol.jpg")
        return geefIkoon(naam);
    return wxNullIcon;
}

void KlavermolVenster::herstelToestand()
{
    wxConfigBase& config = wxGetApp().geefAppConfigRef();
    const wxString thuis = wxGetHomeDir();
    config.SetPath(instelling::Configuratie);

    vindBestandenInDirs->SetPath(normaleMap(config.Read(instelling::DirPad, thuis)));
    outputDirPicker->SetPath(normaleMap(config.Read(instelling::UitvoerDirPad, thuis)));
    projektLibIncludeNaam->ChangeValue(config.Read(instelling::Projektnaam, _("MyFirstProject")));
    const int soort = static_cast<int>(config.ReadLong(instelling::Projektsoort, 0));
    uitvoerSoortKeuze->SetSelection(soort);
    naamKader->SetLabel(geefKeuzeSoort(soort));
    cmakeProjektKeuze->SetSelection(static_cast<int>(config.ReadLong(instelling::Projekttype, 0)));
    cmakeBiebKeuze->SetSelection(static_cast<int>(config.ReadLong(instelling::Biebtype, 0)));
    bestandNaamTekst->ChangeValue(config.Read(instelling::BestandNaamTekst, instelling::StandaardBestandNaam));
    voegToeModeKeuze->SetSelection(static_cast<int>(config.ReadLong(instelling::VoegToeMethode, 0)));

    vindCMakeSubDir->SetPath(config.Read(instelling::CMakeSubDirPad, thuis));
    subDirHeeftCMakeLists = mapHeeftCMakeLists(vindCMakeSubDir->GetPath());
    vindCMakeIncludeDir->SetPath(config.Read(instelling::CMakeIncludeDirPad, thuis));
    includeIsCMake = vindCMakeIncludeDir->GetPath().EndsWith(".cmake");

    sjablonen = kern::leesSjablonen(config);

    config.SetPath(instelling::Configuratie);
    GetMenuBar()->Check(AutoZetUitvoerDirID, config.ReadBool(instelling::AutoDirToewijzing, true));
    voegCBestandenToe = config.ReadBool(instelling::VoegCBestandenToe, false);
    voegCPPBestandenToe = config.ReadBool(instelling::VoegCPPBestandenToe, false);
    voegHBestandenToe = config.ReadBool(instelling::VoegHBestandenToe, false);
    voegSBestandenToe = config.ReadBool(instelling::VoegSBestandenToe, false);

    OnSelekteerBestandType();
    onderzoekPadOpBestanden();

    config.SetPath(instelling::Configuratie);
    uitsluitTerm->ChangeValue(config.Read(instelling::UitsluitTerm, instelling::StandaardUitsluitTerm));
    recenteLokaties.Load(config);

    subDirPaden.Clear();
    subDirBiebNamen.Clear();
    includeBestanden.Clear();
    bronSelektie.wis();
    werklijsten.leeg();

    koppelPadVelden();
    PushStatusText(_("Welkom bij Klavermol !!"), 0);
}

void KlavermolVenster::bewaarToestand()
{
    Klavermol& app = wxGetApp();
    wxConfigBase& config = app.geefAppConfigRef();
    config.SetPath(instelling::Configuratie);
    config.Write(instelling::DirPad, vindBestandenInDirs->GetPath());
    config.Write(instelling::UitvoerDirPad, outputDirPicker->GetPath());
    config.Write(instelling::Projektnaam, projektLibIncludeNaam->GetValue());
    config.Write(instelling::Projektsoort, static_cast<long>(uitvoerSoortKeuze->GetSelection()));
    config.Write(instelling::Projekttype, static_cast<long>(cmakeProjektKeuze->GetSelection()));
    config.Write(instelling::Biebtype, static_cast<long>(cmakeBiebKeuze->GetSelection()));
    config.Write(instelling::BestandNaamTekst, bestandNaamTekst->GetValue());
    config.Write(instelling::VoegToeMethode, static_cast<long>(voegToeModeKeuze->GetSelection()));
    config.Write(instelling::CMakeSubDirPad, vindCMakeSubDir->GetPath());
    config.Write(instelling::CMakeIncludeDirPad, vindCMakeIncludeDir->GetPath());
    kern::schrijfSjablonen(config, sjablonen);
    config.SetPath(instelling::Configuratie);
    config.Write(instelling::AutoDirToewijzing, GetMenuBar()->IsChecked(AutoZetUitvoerDirID));
    config.Write(instelling::VoegCBestandenToe, voegCBestandenToe.boolean());
    config.Write(instelling::VoegCPPBestandenToe, voegCPPBestandenToe.boolean());
    config.Write(instelling::VoegHBestandenToe, voegHBestandenToe.boolean());
    config.Write(instelling::VoegSBestandenToe, voegSBestandenToe.boolean());
    config.Write(instelling::UitsluitTerm, uitsluitTerm->GetValue());
    recenteLokaties.Save(config);
    app.bewaarHoofdVensterGrootte();
}
