// Building the main window: menus, the two columns of controls, the status bar.
#include "toepassing/klavermolvenster.h"
#include "toepassing/bronlijstweergave.h"

#include <wx/bmpbuttn.h>
#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/checklst.h>
#include <wx/choice.h>
#include <wx/filepicker.h>
#include <wx/menu.h>
#include <wx/notebook.h>
#include <wx/panel.h>
#include <wx/radiobox.h>
#include <wx/sizer.h>
#include <wx/statbox.h>
#include <wx/statusbr.h>
#include <wx/textctrl.h>
#include <wx/tglbtn.h>

#include <functional>

namespace {

const char* const thuisBeeld = "../../../grafisch/ikonen/32x32/icons8-home.png";

// Menu pictures are half the size of the button pictures.
const wxSize menuBeeld(16, 16);

wxMenuItem* voegMenuItemToe(wxMenu* menu, int id, const wxString& label, const wxBitmapBundle& beeld = {},
                            wxItemKind soort = wxITEM_NORMAL, const wxString& hulp = wxString())
{
    auto* item = new wxMenuItem(menu, id, label, hulp, soort);
    if (beeld.IsOk())
        item->SetBitmap(beeld);
    menu->Append(item);
    return item;
}

wxBitmapButton* maakBeeldKnop(wxWindow* ouder, int id, const wxBitmapBundle& beeld, const wxString& tip = wxString())
{
    auto* knop = new wxBitmapButton(ouder, id, beeld, wxDefaultPosition, wxDefaultSize, wxBU_AUTODRAW);
    if (!tip.empty())
        knop->SetToolTip(tip);
    return knop;
}

// A notebook page with one list that fills it; `maak` makes the list on the page.
template <class Lijst>
Lijst* maakLijstPagina(wxNotebook* boek, int paneelId, const wxString& titel, const std::function<Lijst*(wxWindow*)>& maak)
{
    auto* paneel = new wxPanel(boek, paneelId, wxDefaultPosition, wxDefaultSize, wxSUNKEN_BORDER | wxTAB_TRAVERSAL);
    auto* sizer = new wxBoxSizer(wxHORIZONTAL);
    paneel->SetSizer(sizer);
    Lijst* lijst = maak(paneel);
    lijst->SetToolTip(_("These entries (when checked) will be included in the CMake file."));
    sizer->Add(lijst, 1, wxGROW | wxALL, 0);
    boek->AddPage(paneel, titel);
    return lijst;
}

wxCheckListBox* maakLijstPagina(wxNotebook* boek, int paneelId, int lijstId, long stijl, const wxString& titel)
{
    return maakLijstPagina<wxCheckListBox>(boek, paneelId, titel, [=](wxWindow* paneel) {
        return new wxCheckListBox(paneel, lijstId, wxDefaultPosition, wxDefaultSize, wxArrayString(), stijl);
    });
}

} // namespace

void KlavermolVenster::CreateControls()
{
    auto* menuBalk = new wxMenuBar;
    auto* algemeen = new wxMenu;
    voegMenuItemToe(algemeen, wxID_PREFERENCES, _("Preferences\tCtrl+,"));
    voegMenuItemToe(algemeen, ZetTaalID, _("Set language"),
                    GetBitmapResource("../../../grafisch/ikonen/32x32/icons8-language.png", menuBeeld));
    voegMenuItemToe(algemeen, wxID_ABOUT, _("About this programme"),
                    GetBitmapResource("../../../grafisch/ikonen/Zelvano_zeerklein.jpg", menuBeeld));
    voegMenuItemToe(algemeen, wxID_EXIT, _("Quit\tCtrl+Q"));
    menuBalk->Append(algemeen, _("General"));

    auto* navigatie = new wxMenu;
    voegMenuItemToe(navigatie, wxID_HOME, _("Go home\tCtrl+h"), GetBitmapResource(thuisBeeld, menuBeeld));
    voegMenuItemToe(navigatie, wxID_MORE, _("Go somewhere else\tCtrl+g"));
    menuBalk->Append(navigatie, _("Navigation"));

    auto* opties = new wxMenu;
    voegMenuItemToe(opties, ZetAlsUitvoerID, _("Set the current directory as the output dir\tF1"));
    voegMenuItemToe(opties, AutoZetUitvoerDirID, _("Autoset output dir\tF2"), wxNullBitmap, wxITEM_CHECK,
                    _("Automatically set output dir from Source top dir"));
    opties->Check(AutoZetUitvoerDirID, true);
    opties->AppendSeparator();
    const std::pair<int, const char*> schakelaars[] = {
        {VoegCBestandenToeID, wxTRANSLATE("Include C Files in list\tF3")},
        {VoegCPPBestandenToeID, wxTRANSLATE("Include C++ Files in list\tF4")},
        {VoegHBestandenToeID, wxTRANSLATE("Include Header Files in list\tF5")},
        {VoegSBestandenToeID, wxTRANSLATE("Include ASM Files in list\tF6")}};
    for (const auto& [id, label] : schakelaars) {
        voegMenuItemToe(opties, id, wxGetTranslation(label), wxNullBitmap, wxITEM_CHECK);
        opties->Check(id, true);
    }
    opties->AppendSeparator();
    voegMenuItemToe(opties, CMakeControleID, _("Check with CMake\tF7"), wxNullBitmap, wxITEM_NORMAL,
                    _("Run cmake on the saved file in a temporary build directory"));
    menuBalk->Append(opties, _("Options"));
    SetMenuBar(menuBalk);

    auto* frameSizer = new wxBoxSizer(wxHORIZONTAL);
    SetSizer(frameSizer);
    // The panel's minimum is its contents': the frame's size hints come from
    // it, so no control is ever cut off.
    auto* paneel = new wxPanel(this, PaneelID, wxDefaultPosition, wxDefaultSize, wxSUNKEN_BORDER | wxTAB_TRAVERSAL);
    paneel->SetBackgroundColour(wxColour(0, 238, 168));
    frameSizer->Add(paneel, 1, wxGROW | wxALL, 5);
    auto* paneelSizer = new wxBoxSizer(wxVERTICAL);
    paneel->SetSizer(paneelSizer);
    auto* rij = new wxBoxSizer(wxHORIZONTAL);
    paneelSizer->Add(rij, 1, wxGROW | wxALL, 5);

    // Left column: collecting sources.
    auto* links = new wxBoxSizer(wxVERTICAL);
    rij->Add(links, 1, wxGROW | wxALL, 5);

    auto* bronKader = new wxStaticBoxSizer(wxVERTICAL, paneel, _("Add source files"));
    links->Add(bronKader, 0, wxALIGN_CENTER_HORIZONTAL | wxALL, 3);
    wxWindow* bronOuder = bronKader->GetStaticBox();

    auto* bovenRij = new wxBoxSizer(wxHORIZONTAL);
    bronKader->Add(bovenRij, 0, wxALIGN_CENTER_HORIZONTAL | wxALL, 5);
    auto* groep = new wxBoxSizer(wxHORIZONTAL);
    bovenRij->Add(groep, 0, wxALIGN_CENTER_VERTICAL, 0);

    auto* knoppenDeel = new wxBoxSizer(wxVERTICAL);
    groep->Add(knoppenDeel, 0, wxALIGN_CENTER_VERTICAL, 0);
    auto* knoppenRij = new wxBoxSizer(wxHORIZONTAL);
    knoppenDeel->Add(knoppenRij, 0, wxALIGN_CENTER_HORIZONTAL, 0);
    knoppenRij->Add(maakBeeldKnop(bronOuder, wxID_HOME, GetBitmapResource(thuisBeeld),
                                  _("Go to your home directory")),
                    0, wxALIGN_CENTER_VERTICAL | wxALL, 2);
    knoppenRij->Add(maakBeeldKnop(bronOuder, VorigeLokatieID,
                                  GetBitmapResource("../../../grafisch/ikonen/32x32/icons8-time_machine.png"),
                                  _("Select recent locations from a list")),
                    0, wxALIGN_CENTER_VERTICAL | wxALL, 2);
    knoppenRij->Add(maakBeeldKnop(bronOuder, wxID_BACKWARD,
                                  GetBitmapResource("../../../grafisch/ikonen/32x32/icons8-circled_left.png")),
                    0, wxALIGN_CENTER_VERTICAL | wxALL, 2);
    knoppenRij->Add(maakBeeldKnop(bronOuder, wxID_FORWARD,
                                  GetBitmapResource("../../../grafisch/ikonen/32x32/icons8-circled_right.png")),
                    0, wxALIGN_CENTER_VERTICAL | wxALL, 2);

    auto* keuzeRij = new wxBoxSizer(wxHORIZONTAL);
    knoppenDeel->Add(keuzeRij, 0, wxALIGN_CENTER_HORIZONTAL, 0);
    cKeuze = new wxCheckBox(bronOuder, VoegCBestandenToeID, _("C"));
    cppKeuze = new wxCheckBox(bronOuder, VoegCPPBestandenToeID, _("C++"));
    hKeuze = new wxCheckBox(bronOuder, VoegHBestandenToeID, _("h"));
    sKeuze = new wxCheckBox(bronOuder, VoegSBestandenToeID, _("S"));
    for (wxCheckBox* keuze : {cKeuze, cppKeuze, hKeuze, sKeuze}) {
        keuze->SetValue(false);
        keuzeRij->Add(keuze, 0, wxALIGN_CENTER_VERTICAL | wxALL, 2);
    }

    auto* modusDeel = new wxBoxSizer(wxVERTICAL);
    groep->Add(modusDeel, 0, wxALIGN_CENTER_VERTICAL | wxALL, 5);
    wxArrayString modi;
    modi.Add(_("One or more files in the directory"));
    modi.Add(_("All files in the selected directory"));
    modi.Add(_("All files in the selected dir recursively"));
    voegToeModeKeuze = new wxChoice(bronOuder, VoegToeModeKeuzeID, wxDefaultPosition, wxDefaultSize, modi);
    voegToeModeKeuze->SetStringSelection(_("All files in the selected directory"));
    voegToeModeKeuze->SetToolTip(_("This setting represents the search and add mode for source and header files."));
    modusDeel->Add(voegToeModeKeuze, 0, wxALIGN_CENTER_HORIZONTAL | wxALL, 4);
    auto* uitsluitKader = new wxStaticBoxSizer(
        new wxStaticBox(bronOuder, UitsluitKaderID, _("Do not select files that contain this term")), wxHORIZONTAL);
    modusDeel->Add(uitsluitKader, 0, wxGROW | wxALL, 2);
    uitsluitTerm = new wxTextCtrl(uitsluitKader->GetStaticBox(), UitsluitTermID);
    uitsluitTerm->SetFont(wxFont(13, wxFONTFAMILY_SWISS, wxFONTSTYLE_NORMAL, wxFONTWEIGHT_NORMAL, false,
                                 ".SF NS Text"));
    uitsluitKader->Add(uitsluitTerm, 1, wxALL, 0);

    auto* zoekRij = new wxBoxSizer(wxHORIZONTAL);
    bronKader->Add(zoekRij, 0, wxGROW | wxALL, 5);
    vindBestandenInDirs = new wxDirPickerCtrl(bronOuder, VindBestandenInDirsID, wxEmptyString,
                                              wxDirSelectorPromptStr, wxDefaultPosition, wxDefaultSize,
                                              wxDIRP_DIR_MUST_EXIST | wxDIRP_USE_TEXTCTRL);
    vindBestandenInDirs->SetToolTip(_("Drag the files of interested below to the Selection box"));
    zoekRij->Add(vindBestandenInDirs, 1, wxALIGN_CENTER_VERTICAL | wxALL, 5);
    zoekRij->Add(maakBeeldKnop(bronOuder, wxID_ADD,
                               GetBitmapResource("../../../grafisch/ikonen/32x32/icons8-greenplus.png")),
                 0, wxALIGN_CENTER_VERTICAL | wxALL, 2);

    auto* biebKader = new wxStaticBoxSizer(wxHORIZONTAL, paneel, _("Add CMake library"));
    links->Add(biebKader, 0, wxGROW | wxALL, 3);
    vindCMakeSubDir = new wxFilePickerCtrl(biebKader->GetStaticBox(), VindCMakeSubDirID, wxEmptyString,
                                           wxFileSelectorPromptStr, "CMakeLists.txt|CMakeLists.txt",
                                           wxDefaultPosition, wxDefaultSize,
                                           wxFLP_OPEN | wxFLP_FILE_MUST_EXIST | wxFLP_USE_TEXTCTRL);
    biebKader->Add(vindCMakeSubDir, 1, wxALIGN_CENTER_VERTICAL | wxALL, 0);
    biebKader->Add(maakBeeldKnop(biebKader->GetStaticBox(), VoegToeCMakeSubDirID,
                                 GetBitmapResource("../../../grafisch/ikonen/32x32/icons8-blueplus.png")),
                   0, wxALIGN_CENTER_VERTICAL | wxALL, 0);

    auto* includeKader = new wxStaticBoxSizer(wxHORIZONTAL, paneel, _("Add CMake include"));
    links->Add(includeKader, 0, wxGROW | wxALL, 3);
    vindCMakeIncludeDir = new wxFilePickerCtrl(includeKader->GetStaticBox(), VindCMakeIncludeDirID, wxEmptyString,
                                               wxFileSelectorPromptStr, _("CMake include file (*.cmake)|*.cmake"),
                                               wxDefaultPosition, wxDefaultSize,
                                               wxFLP_OPEN | wxFLP_FILE_MUST_EXIST | wxFLP_USE_TEXTCTRL);
    includeKader->Add(vindCMakeIncludeDir, 1, wxALIGN_CENTER_VERTICAL | wxALL, 0);
    includeKader->Add(maakBeeldKnop(includeKader->GetStaticBox(), VoegToeCMakeIncludeID,
                                    GetBitmapResource("../../../grafisch/ikonen/32x32/icons8-joyent.png")),
                      0, wxALIGN_CENTER_VERTICAL | wxALL, 0);

    selektieBoek = new wxNotebook(paneel, SelektieBoekID);
    links->Add(selektieBoek, 1, wxGROW | wxALL, 5);
    bestandSelektieLijst = maakLijstPagina<BronLijstWeergave>(selektieBoek, BronPaneelID, _("Source Files"),
                                                              [this](wxWindow* paneel) {
        return new BronLijstWeergave(paneel, BestandSelektieLijstID, bronSelektie);
    });
    biebLijst = maakLijstPagina(selektieBoek, BiebPaneelID, BiebLijstID, wxLB_MULTIPLE | wxBORDER_THEME,
                                _("Libraries"));
    includeLijst = maakLijstPagina(selektieBoek, IncludePaneelID, IncludeLijstID,
                                   wxLB_MULTIPLE | wxBORDER_THEME | wxLB_HSCROLL, _("Include files"));

    auto* lijstKnoppen = new wxBoxSizer(wxHORIZONTAL);
    links->Add(lijstKnoppen, 0, wxGROW | wxALL, 5);
    selekteerAllesKnop = new wxToggleButton(paneel, wxID_SELECTALL, _("Select all"));
    selekteerAllesKnop->SetValue(false);
    lijstKnoppen->Add(selekteerAllesKnop, 1, wxALIGN_CENTER_VERTICAL | wxALL, 5);
    lijstKnoppen->Add(new wxButton(paneel, wxID_CLEAR, _("&Clear"), wxDefaultPosition, wxDefaultSize, 0,
                                   wxDefaultValidator, "geenSelectieButton"),
                      1, wxALIGN_CENTER_VERTICAL | wxALL, 5);

    // Right column: the output.
    auto* rechtsRij = new wxBoxSizer(wxHORIZONTAL);
    rij->Add(rechtsRij, 1, wxGROW | wxALL, 5);
    auto* rechts = new wxBoxSizer(wxVERTICAL);
    rechtsRij->Add(rechts, 1, wxGROW | wxALL, 5);

    auto* richtlijnen = new wxStaticBoxSizer(wxHORIZONTAL, paneel, _("Output directives"));
    rechts->Add(richtlijnen, 0, wxGROW | wxALL, 5);
    wxWindow* richtOuder = richtlijnen->GetStaticBox();
    auto* soortDeel = new wxBoxSizer(wxVERTICAL);
    richtlijnen->Add(soortDeel, 0, wxALIGN_TOP | wxALL, 0);
    wxArrayString soorten;
    soorten.Add(_("CMake Project"));
    soorten.Add(_("CMake Library"));
    soorten.Add(_("CMake Include"));
    uitvoerSoortKeuze = new wxChoice(richtOuder, UitvoerSoortKeuzeID, wxDefaultPosition, wxDefaultSize, soorten);
    uitvoerSoortKeuze->SetStringSelection(_("CMake Project"));
    soortDeel->Add(uitvoerSoortKeuze, 0, wxALIGN_CENTER_HORIZONTAL | wxALL, 5);
    auto* radioRij = new wxBoxSizer(wxHORIZONTAL);
    soortDeel->Add(radioRij, 0, wxALIGN_CENTER_HORIZONTAL, 0);
    wxArrayString projektTypen;
    projektTypen.Add(_("Standard"));
    projektTypen.Add(_("Crosscompile"));
    cmakeProjektKeuze = new wxRadioBox(richtOuder, CMakeProjektKeuzeID, _("Project type"), wxDefaultPosition,
                                       wxDefaultSize, projektTypen, 1, wxRA_SPECIFY_COLS);
    cmakeProjektKeuze->SetSelection(0);
    radioRij->Add(cmakeProjektKeuze, 0, wxGROW | wxALL, 1);
    wxArrayString biebTypen;
    biebTypen.Add(_("Static"));
    biebTypen.Add(_("Dynamic"));
    biebTypen.Add(_("Object"));
    cmakeBiebKeuze = new wxRadioBox(richtOuder, CMakeBiebKeuzeID, _("Library generation"), wxDefaultPosition,
                                    wxDefaultSize, biebTypen, 1, wxRA_SPECIFY_COLS);
    cmakeBiebKeuze->SetSelection(0);
    radioRij->Add(cmakeBiebKeuze, 0, wxALL, 2);

    auto* naamDeel = new wxBoxSizer(wxVERTICAL);
    richtlijnen->Add(naamDeel, 1, wxALIGN_CENTER_VERTICAL | wxALL, 5);
    naamKader = new wxStaticBox(richtOuder, wxID_ANY, _("Project name"));
    auto* naamSizer = new wxStaticBoxSizer(naamKader, wxVERTICAL);
    naamDeel->Add(naamSizer, 0, wxGROW | wxALL, 2);
    projektLibIncludeNaam = new wxTextCtrl(naamKader, ProjektLibIncludeNaamID);
    naamSizer->Add(projektLibIncludeNaam, 0, wxGROW | wxALL, 5);
    auto* naamKnop = new wxButton(naamKader, GebruikSourceDirNaamID, _("Use output directory name"));
    naamKnop->SetToolTip(_("Use the output directory name "));
    naamSizer->Add(naamKnop, 0, wxALIGN_CENTER_HORIZONTAL | wxALL, 5);
    auto* bestandKader = new wxStaticBoxSizer(wxHORIZONTAL, richtOuder, _("CMake output name"));
    naamDeel->Add(bestandKader, 1, wxGROW | wxALL, 5);
    bestandNaamTekst = new wxTextCtrl(bestandKader->GetStaticBox(), BestandNaamTekstID, "CMakeLists.txt");
    bestandKader->Add(bestandNaamTekst, 1, wxALIGN_CENTER_VERTICAL | wxALL, 0);

    auto* uitvoerMapRij = new wxBoxSizer(wxHORIZONTAL);
    rechts->Add(uitvoerMapRij, 0, wxGROW | wxALL, 5);
    auto* uitvoerMapKader = new wxStaticBoxSizer(wxHORIZONTAL, paneel, _("Location for saving the generated output"));
    uitvoerMapRij->Add(uitvoerMapKader, 2, wxALIGN_CENTER_VERTICAL | wxALL, 0);
    outputDirPicker = new wxDirPickerCtrl(uitvoerMapKader->GetStaticBox(), OutputDirPickerID, wxEmptyString,
                                          wxDirSelectorPromptStr, wxDefaultPosition, wxDefaultSize,
                                          wxDIRP_DIR_MUST_EXIST | wxDIRP_USE_TEXTCTRL);
    uitvoerMapKader->Add(outputDirPicker, 1, wxALIGN_CENTER_VERTICAL | wxALL, 0);

    auto* tekstKader = new wxStaticBoxSizer(wxVERTICAL, paneel, _("CMake generated output"));
    rechts->Add(tekstKader, 1, wxGROW | wxALL, 5);
    uitvoerTekst = new wxTextCtrl(tekstKader->GetStaticBox(), UitvoerTekstID, wxEmptyString, wxDefaultPosition,
                                  wxSize(-1, 300), wxTE_MULTILINE | wxTE_DONTWRAP | wxHSCROLL | wxTE_READONLY);
    uitvoerTekst->SetMinSize(wxSize(-1, 100)); // 300 high at first, but the window may be smaller
    tekstKader->Add(uitvoerTekst, 1, wxGROW | wxALL, 0);

    auto* uitvoerenKader = new wxStaticBoxSizer(wxHORIZONTAL, paneel, _("Execute and save"));
    rechts->Add(uitvoerenKader, 0, wxGROW | wxALL, 5);
    wxWindow* uitvoerenOuder = uitvoerenKader->GetStaticBox();
    auto* uitvoerKnop = maakBeeldKnop(uitvoerenOuder, wxID_APPLY, GetBitmapResource("ikoon/cmakelogo_klein.png"),
                                      _("Execute the build of the CMake file based on the selected files and the "
                                        "include and subdirectory preferences."));
    uitvoerKnop->SetHelpText(_("Pressing this button will generate the CMake output file"));
    uitvoerenKader->Add(uitvoerKnop, 0, wxALIGN_CENTER_VERTICAL | wxALL, 5);
    auto* bewaarDeel = new wxBoxSizer(wxVERTICAL);
    uitvoerenKader->Add(bewaarDeel, 1, wxALIGN_CENTER_VERTICAL | wxALL, 0);
    auto* bewaarRij = new wxBoxSizer(wxHORIZONTAL);
    bewaarDeel->Add(bewaarRij, 1, wxGROW | wxALL, 0);
    bewaarRij->Add(new wxButton(uitvoerenOuder, wxID_SAVE, _("&Save")), 1, wxGROW | wxALL, 0);
    auto* controleKnop = new wxButton(uitvoerenOuder, CMakeControleID, _("Check"));
    controleKnop->SetToolTip(_("Check with CMake (F7)"));
    bewaarRij->Add(controleKnop, 0, wxGROW | wxLEFT, 4);
    bewaarDeel->Add(new wxButton(uitvoerenOuder, wxID_EXIT, _("&Quit"), wxDefaultPosition, wxDefaultSize, 0,
                                 wxDefaultValidator, "sluitButton"),
                    0, wxGROW | wxALL, 0);

    auto* status = new wxStatusBar(this, StatusBalkID, wxSTB_SIZEGRIP | wxSUNKEN_BORDER);
    status->SetFieldsCount(2);
    SetStatusBar(status);
}
