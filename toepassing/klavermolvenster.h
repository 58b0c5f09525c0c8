#pragma once
// The program's only frame: collects sources on the left, produces the
// CMake output on the right. Its handlers are spread over several files by
// concern (see klavermolvenster_*.cpp).
#include "desktopAlgemeen.h"
#include "support/standschakelaar.h"
#include "toepassing/achtergrondwerk.h"
#include "kern/bronzoeker.h"
#include "kern/generator.h"
#include "kern/selektie.h"
#include "kern/sjablonen.h"

#include <wx/arrstr.h>
#include <wx/bmpbndl.h>
#include <wx/filehistory.h>
#include <wx/frame.h>

#include <chrono>
#include <functional>
#include <memory>


class wxBitmapButton;
class wxButton;
class wxCheckBox;
class wxCheckListBox;
class wxListEvent;
class BronLijstWeergave;
class wxChoice;
class wxDirPickerCtrl;
class wxFileDirPickerCtrlBase;
class wxFileDirPickerEvent;
class wxFilePickerCtrl;
class wxNotebook;
class wxProgressDialog;
class wxTimer;
class wxRadioBox;
class wxStaticBox;
class wxTextCtrl;
class wxToggleButton;

// Control identifiers.
enum
{
    KlavermolVensterID = 10000,
    PaneelID = 10001,
    UitvoerSoortKeuzeID = 10002,
    ProjektLibIncludeNaamID = 10003,
    VindBestandenInDirsID = 10004,
    UitvoerTekstID = 10005,
    OutputDirPickerID = 10006,
    StatusBalkID = 10007,
    ZetAlsUitvoerID = 10008,
    IncludePaneelID = 10009,
    BestandSelektieLijstID = 10010,
    SelektieBoekID = 10011,
    VindCMakeIncludeDirID = 10012,
    VindCMakeSubDirID = 10013,
    BestandNaamTekstID = 10014,
    BronPaneelID = 10015,
    BiebPaneelID = 10016,
    IncludeLijstID = 10017,
    BiebLijstID = 10018,
    VoegToeCMakeSubDirID = 10019,
    VoegToeCMakeIncludeID = 10020,
    VoegToeModeKeuzeID = 10021,
    CMakeProjektKeuzeID = 10022,
    VoegCBestandenToeID = 10023,
    VoegCPPBestandenToeID = 10024,
    VoegHBestandenToeID = 10025,
    AutoZetUitvoerDirID = 10026,
    VoegSBestandenToeID = 10027,
    UitsluitTermID = 10028,
    UitsluitKaderID = 10029,
    GebruikSourceDirNaamID = 10030,
    ZetTaalID = 10031,
    VorigeLokatieID = 10032,
    CMakeBiebKeuzeID = 10033,
    CMakeControleID = 10034
};

class KlavermolVenster : public wxFrame
{
    wxDECLARE_DYNAMIC_CLASS(KlavermolVenster);
    wxDECLARE_EVENT_TABLE();

public:
    KlavermolVenster();
    KlavermolVenster(wxWindow* ouder, wxWindowID id, const wxString& titel, const wxPoint& positie,
                     const wxSize& grootte, long stijl);
    ~KlavermolVenster() override;

    bool Create(wxWindow* ouder, wxWindowID id, const wxString& titel, const wxPoint& positie,
                const wxSize& grootte, long stijl);
    void CreateControls();

    wxBitmapBundle GetBitmapResource(const wxString& naam, const wxSize& grootte = wxDefaultSize);
    wxIcon GetIconResource(const wxString& naam);

    // Source search and filters.
    void OnSelekteerBestandType();
    void onderzoekPadOpBestanden();

    // Generators.
    void maakProjekt();
    void maakLib();
    void maakInclude();

    // --- handlers: navigation (klavermolvenster_navigatie.cpp)
    void OnHomeKnopClick(wxCommandEvent& event);
    void OnVorigeLokatieIDClick(wxCommandEvent& event);
    void OnBACKWARDClick(wxCommandEvent& event);
    void OnFORWARDClick(wxCommandEvent& event);
    void OnVindBestandenInDirsIDDirPickerChanged(wxFileDirPickerEvent& event);
    void OnHOMEClick(wxCommandEvent& event);
    void OnMOREClick(wxCommandEvent& event);

    // --- handlers: source search (klavermolvenster_zoek.cpp)
    void OnVoegCBestandenToeIDClick(wxCommandEvent& event);
    void OnVoegCPPBestandenToeIDClick(wxCommandEvent& event);
    void OnVoegHBestandenToeIDClick(wxCommandEvent& event);
    void OnVoegSBestandenToeIDClick(wxCommandEvent& event);
    void OnVoegToeModeKeuzeIDSelected(wxCommandEvent& event);
    void OnAddClick(wxCommandEvent& event);

    // --- handlers: the three lists (klavermolvenster_lijsten.cpp)
    void OnBestandSelektieLijstIDDoubleClicked(wxListEvent& event);
    void OnSELECTALLClick(wxCommandEvent& event);
    void OnClearClick(wxCommandEvent& event);

    // --- handlers: output (klavermolvenster_uitvoer.cpp)
    void OnVindCMakeSubDirIDFilePickerChanged(wxFileDirPickerEvent& event);
    void OnVoegToeCMakeSubDirIDClick(wxCommandEvent& event);
    void OnVindCMakeIncludeDirIDFilePickerChanged(wxFileDirPickerEvent& event);
    void OnVoegToeCMakeIncludeIDClick(wxCommandEvent& event);
    void OnUitvoerSoortKeuzeIDSelected(wxCommandEvent& event);
    void OnProjektLibIncludeNaamIDTextUpdated(wxCommandEvent& event);
    void OnGebruikSourceDirNaamIDClick(wxCommandEvent& event);
    void outputDirVeranderdHandler(wxFileDirPickerEvent& event);
    void OnGenerateCMakeHandler(wxCommandEvent& event);
    void SlaOpCMakeHandler(wxCommandEvent& event);
    void OnZetAlsUitvoerIDClick(wxCommandEvent& event);

    // --- handlers: checking the saved file with cmake (klavermolvenster_controle.cpp)
    void OnCMakeControleIDClick(wxCommandEvent& event);
    void OnCMakeControleIDUpdate(wxUpdateUIEvent& event);
    wxString geefControleBestand() const;
    void springNaarRegel(int regel);

    // --- handlers: general menu (klavermolvenster_algemeen.cpp)
    void sluitHandler(wxCommandEvent& event);
    void OnPREFERENCESClick(wxCommandEvent& event);
    void OnZetTaalIDClick(wxCommandEvent& event);
    void OnABOUTClick(wxCommandEvent& event);

    // --- update-UI rules (klavermolvenster_regels.cpp)
    void OnVorigeLokatieIDUpdate(wxUpdateUIEvent& event);
    void OnBACKWARDUpdate(wxUpdateUIEvent& event);
    void OnFORWARDUpdate(wxUpdateUIEvent& event);
    void OnVindBestandenInDirsIDUpdate(wxUpdateUIEvent& event);
    void OnAddUpdate(wxUpdateUIEvent& event);
    void OnVindCMakeSubDirIDUpdate(wxUpdateUIEvent& event);
    void OnVoegToeCMakeSubDirIDUpdate(wxUpdateUIEvent& event);
    void OnVindCMakeIncludeDirIDUpdate(wxUpdateUIEvent& event);
    void OnVoegToeCMakeIncludeIDUpdate(wxUpdateUIEvent& event);
    void OnClearUpdate(wxUpdateUIEvent& event);
    void OnCMakeProjektKeuzeIDUpdate(wxUpdateUIEvent& event);
    void OnCMakeBiebKeuzeIDUpdate(wxUpdateUIEvent& event);
    void OnBestandNaamTekstIDUpdate(wxUpdateUIEvent& event);
    void OnOutputDirPickerIDUpdate(wxUpdateUIEvent& event);
    void OnAPPLYUpdate(wxUpdateUIEvent& event);
    void OnSaveUpdate(wxUpdateUIEvent& event);
    void OnZetAlsUitvoerIDUpdate(wxUpdateUIEvent& event);
    void OnAutoZetUitvoerDirIDUpdate(wxUpdateUIEvent& event);

    // Whether the directory of a picked file holds a file named "CMakeLists.txt".
    static bool mapHeeftCMakeLists(const wxString& bestandPad);

    // The name-box labels by output kind and the library labels by kind.
    static const wxArrayString& geefKeuzeSoorten();
    static wxString geefKeuzeSoort(int soort);
    static const wxArrayString& geefBiebSoorten();

    // Controls (owned by the window tree).
    wxChoice* voegToeModeKeuze = nullptr;
    wxTextCtrl* uitsluitTerm = nullptr;
    wxDirPickerCtrl* vindBestandenInDirs = nullptr;
    wxFilePickerCtrl* vindCMakeSubDir = nullptr;
    wxFilePickerCtrl* vindCMakeIncludeDir = nullptr;
    BronLijstWeergave* bestandSelektieLijst = nullptr;
    wxCheckListBox* biebLijst = nullptr;
    wxCheckListBox* includeLijst = nullptr;
    wxNotebook* selektieBoek = nullptr;
    wxChoice* uitvoerSoortKeuze = nullptr;
    wxRadioBox* cmakeProjektKeuze = nullptr;
    wxRadioBox* cmakeBiebKeuze = nullptr;
    wxStaticBox* naamKader = nullptr;
    wxTextCtrl* projektLibIncludeNaam = nullptr;
    wxTextCtrl* bestandNaamTekst = nullptr;
    wxDirPickerCtrl* outputDirPicker = nullptr;
    wxTextCtrl* uitvoerTekst = nullptr;
    wxToggleButton* selekteerAllesKnop = nullptr;
    wxCheckBox* cKeuze = nullptr;
    wxCheckBox* cppKeuze = nullptr;
    wxCheckBox* hKeuze = nullptr;
    wxCheckBox* sKeuze = nullptr;

    // Recent search locations (at most 9, newest first) and the back/forward history.
    wxFileHistory recenteLokaties;
    GeschiedenisLijst<wxFileName> lokatieGeschiedenis;

    // The file-type switches and what the last probe found.
    StandSchakelaar voegCBestandenToe;
    StandSchakelaar voegCPPBestandenToe;
    StandSchakelaar voegHBestandenToe;
    StandSchakelaar voegSBestandenToe;
    bool heeftCBestanden = false;
    bool heeftCPPBestanden = false;
    bool heeftHBestanden = false;
    bool heeftSBestanden = false;
    bool subDirHeeftCMakeLists = false;
    bool includeIsCMake = false;

    // The wildcard of the hand-picked file dialog (add mode 0).
    wxString bestandTypeFilter;

    // The nine texts the output is built from.
    kern::Sjablonen sjablonen;

    // Beside the "Libraries" list: directory and library name per row;
    // beside the "Include files" list: the file per row.
    wxArrayString subDirPaden;
    wxArrayString subDirBiebNamen;
    wxArrayString includeBestanden;

    // Beside the "Source Files" list: its entries for exact look-ups.
    kern::BronSelektie bronSelektie;

    // The generators' working lists, emptied by Execute before each run.
    kern::Werklijsten werklijsten;

    // What the generators read, taken from the controls.
    kern::GeneratorInvoer geefGeneratorInvoer() const;

    // Takes paths into the "Source Files" list and the selection, checked,
    // in one batch; a path already there is reported, one no CMake text can
    // name is counted in `overgeslagen`. Returns how many were added.
    int voegBronnenToe(const wxArrayString& paden, std::size_t& overgeslagen);

    // Whether a probe moves the output directory to the search location: not
    // for a project, and only while "Autoset output dir" is checked.
    bool moetUitvoerMapVolgen() const;
    // Whether the search location exists; says so in the status bar if not.
    bool zoekMapBestaat();

    // Writes the window's settings into the store (at the end, or before an
    // error ends the program).
    void bewaarToestand();

    // Whether a probe, an Add or Execute is still running on a worker.
    bool isBezig() const
    {
        return onderzoekWerk.isBezig() || verzamelWerk.isBezig() || uitvoerWerk.isBezig() || volgendePlak;
    }

    // The whole generated text, which Save writes; the output control shows
    // it, or only its head with a note when it is long.
    std::string volledigeUitvoer; // UTF-8, as Save writes it
    void zetUitvoer(std::string tekst);

    // What the workers call to probe and to collect (the core's walk; a
    // test may put a slow stand-in here).
    std::function<bool(const wxString&, int, const kern::Families&, kern::Aanwezig&, kern::Voortgang*)>
        onderzoeker = kern::onderzoekMap;
    using Verzamelaar = bool (*)(const wxString&, int, const kern::Families&, kern::Vondst&, std::size_t*,
                                 kern::Voortgang*);
    std::function<bool(const wxString&, int, const kern::Families&, kern::Vondst&, std::size_t*,
                       kern::Voortgang*)>
        verzamelaar = static_cast<Verzamelaar>(kern::verzamelBestanden);
    // Shown while an Add has walked longer than half a second.
    wxProgressDialog* voortgangDialoog = nullptr;

private:
    void Init();
    void herstelToestand();
    void zetSchakelaar(StandSchakelaar& schakelaar, int id, wxCheckBox* keuze);
    void wisselSchakelaar(StandSchakelaar& schakelaar);
    wxArrayString kiesBestanden(const wxString& map);
    void toonHuidigeLokatie();
    void koppelPadVelden();
    void neemGetyptPad(wxFileDirPickerCtrlBase* kiezer);

    void pasOnderzoekToe(const wxString& map, bool gelukt, const kern::Aanwezig& vlaggen);
    void rondToevoegenAf(const wxString& map, std::shared_ptr<const kern::Vondst> gevonden, std::size_t overgeslagen);
    void voegToeInPlakken(const wxString& map, std::shared_ptr<const kern::Vondst> gevonden, std::size_t van,
                          std::size_t overgeslagen, int toegevoegd);
    int voegBronnenToe(const kern::Vondst& vondst, std::size_t van, std::size_t tot, std::size_t& overgeslagen);
    std::function<void()> volgendePlak;
    wxTimer* plakKlok = nullptr;
    void begintVoortgang();
    void toonVoortgang();
    void eindigVoortgang();
    AchtergrondWerk onderzoekWerk{*this};
    AchtergrondWerk verzamelWerk{*this};
    AchtergrondWerk uitvoerWerk{*this};
    wxTimer* voortgangKlok = nullptr;
    std::chrono::steady_clock::time_point voortgangBegin;
    void schrijfUitvoer(void (*generator)(const kern::GeneratorInvoer&, kern::Werklijsten&, std::string&));
};
