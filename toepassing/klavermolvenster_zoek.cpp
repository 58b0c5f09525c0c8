// The file-type switches, the filter text and wildcard, the probe of the
// search location and the Add command.
#include "toepassing/klavermolvenster.h"
#include "toepassing/bronlijstweergave.h"

#include "desktopAppBasis.h"
#include "kern/bronzoeker.h"
#include "toepassing/padveld.h"

#include <wx/checkbox.h>
#include <wx/filedlg.h>
#include <wx/log.h>
#include <wx/msgdlg.h>
#include <wx/notebook.h>
#include <wx/choice.h>
#include <wx/filepicker.h>
#include <wx/menu.h>
#include <wx/timer.h>
#include <wx/utils.h>

#include <algorithm>
#include <memory>
#include <utility>

namespace {

kern::Families geefFamilies(const StandSchakelaar& c, const StandSchakelaar& cpp, const StandSchakelaar& h,
                            const StandSchakelaar& s)
{
    kern::Families f;
    f.c = c.boolean();
    f.cpp = cpp.boolean();
    f.h = h.boolean();
    f.s = s.boolean();
    return f;
}

} // namespace

void KlavermolVenster::wisselSchakelaar(StandSchakelaar& schakelaar)
{
    schakelaar.om();
    OnSelekteerBestandType();
    onderzoekPadOpBestanden();
}

void KlavermolVenster::OnVoegCBestandenToeIDClick(wxCommandEvent&)
{
    wisselSchakelaar(voegCBestandenToe);
}

void KlavermolVenster::OnVoegCPPBestandenToeIDClick(wxCommandEvent&)
{
    wisselSchakelaar(voegCPPBestandenToe);
}

void KlavermolVenster::OnVoegHBestandenToeIDClick(wxCommandEvent&)
{
    wisselSchakelaar(voegHBestandenToe);
}

void KlavermolVenster::OnVoegSBestandenToeIDClick(wxCommandEvent&)
{
    wisselSchakelaar(voegSBestandenToe);
}

void KlavermolVenster::OnVoegToeModeKeuzeIDSelected(wxCommandEvent&)
{
    onderzoekPadOpBestanden();
}

void KlavermolVenster::zetSchakelaar(StandSchakelaar& schakelaar, int id, wxCheckBox* keuze)
{
    GetMenuBar()->Check(id, schakelaar.boolean());
    keuze->SetValue(schakelaar.boolean());
}

void KlavermolVenster::OnSelekteerBestandType()
{
    wxString status = _("Current filter searches for:");
    bestandTypeFilter.clear();

    zetSchakelaar(voegCBestandenToe, VoegCBestandenToeID, cKeuze);
    if (voegCBestandenToe.boolean()) {
        status += " C ";
        bestandTypeFilter += "C files (*.c)|*.c";
        if (voegHBestandenToe.boolean())
            bestandTypeFilter += "|H files (*.h)|*.h";
    }

    zetSchakelaar(voegCPPBestandenToe, VoegCPPBestandenToeID, cppKeuze);
    if (voegCPPBestandenToe.boolean()) {
        status += " CPP ";
        if (!bestandTypeFilter.empty())
            bestandTypeFilter += "|";
        bestandTypeFilter += "CPP files (*.cpp)|*.cpp;*.cxx";
        if (voegHBestandenToe.boolean())
            bestandTypeFilter += voegCBestandenToe.boolean() ? "|H files (*.hpp)|*.hpp" : "|H files (*.h[pp])|*.h;*.hpp";
    }

    // The header switch adds nothing to the wildcard of its own.
    zetSchakelaar(voegHBestandenToe, VoegHBestandenToeID, hKeuze);
    if (voegHBestandenToe.boolean())
        status += " H ";

    zetSchakelaar(voegSBestandenToe, VoegSBestandenToeID, sKeuze);
    if (voegSBestandenToe.boolean()) {
        status += " S ";
        if (!bestandTypeFilter.empty())
            bestandTypeFilter += "|";
        bestandTypeFilter += "ASM files (*.s)|*.s;*.S";
    }

    SetStatusText(status, 1);
}

void KlavermolVenster::onderzoekPadOpBestanden()
{
    // The probe runs on a worker from copies of what it needs; a later
    // probe stops this one, and only the latest result is applied.
    const wxString map = wxFileName::DirName(vindBestandenInDirs->GetPath()).GetFullPath();
    kern::Aanwezig vlaggen;
    vlaggen.c = heeftCBestanden;
    vlaggen.cpp = heeftCPPBestanden;
    vlaggen.h = heeftHBestanden;
    vlaggen.s = heeftSBestanden;
    const int modus = voegToeModeKeuze->GetSelection();
    const kern::Families aan = geefFamilies(voegCBestandenToe, voegCPPBestandenToe, voegHBestandenToe,
                                            voegSBestandenToe);
    onderzoekWerk.start([this, map, modus, aan, vlaggen, onderzoek = onderzoeker](
                            kern::Voortgang& voortgang) mutable -> AchtergrondWerk::Afronding {
        const bool gelukt = onderzoek(map, modus, aan, vlaggen, &voortgang);
        return [this, map, gelukt, vlaggen] { pasOnderzoekToe(map, gelukt, vlaggen); };
    });
}

void KlavermolVenster::pasOnderzoekToe(const wxString& map, bool gelukt, const kern::Aanwezig& vlaggen)
{
    if (!gelukt) {
        wxFAIL_COND_MSG(true == mag, "(KlavermolVenster::onderzoekPadOpBestanden) " + map);
        return;
    }
    heeftCBestanden = vlaggen.c;
    heeftCPPBestanden = vlaggen.cpp;
    heeftHBestanden = vlaggen.h;
    heeftSBestanden = vlaggen.s;

    if (moetUitvoerMapVolgen())
        outputDirPicker->SetPath(normaleMap(map));
}

wxArrayString KlavermolVenster::kiesBestanden(const wxString& map)
{
    // Translated once, on the first call; the caption is kept beside the
    // message but not shown.
    static const wxString melding = _("Please select one or more files from the current directory.");
    static const wxString kaptie = _("Select source files for your CMake based application.");
    wxUnusedVar(kaptie);

    wxFileDialog dialoog(this, melding, map, wxString(), bestandTypeFilter,
                         wxFD_OPEN | wxFD_FILE_MUST_EXIST | wxFD_CHANGE_DIR | wxFD_MULTIPLE);
    wxArrayString paden;
    if (dialoog.ShowModal() != wxID_OK)
        return paden;
    dialoog.GetPaths(paden);
    // GTK's chooser reports paths only once it has been on screen.
    if (paden.empty())
        dialoog.wxFileDialogBase::GetPaths(paden);
    // The dialog hands back full paths; only another form is converted.
    wxArrayString volledig;
    for (const wxString& pad : paden)
        if (!pad.empty())
            volledig.Add(wxIsAbsolutePath(pad) ? pad : wxFileName(pad).GetFullPath(wxPATH_NATIVE));
    return volledig;
}

int KlavermolVenster::voegBronnenToe(const wxArrayString& paden, std::size_t& overgeslagen)
{
    kern::Vondst vondst;
    kern::voegPadenToe(vondst, paden);
    return voegBronnenToe(vondst, 0, vondst.aantal(), overgeslagen);
}

int KlavermolVenster::voegBronnenToe(const kern::Vondst& vondst, std::size_t van, std::size_t tot,
                                     std::size_t& overgeslagen)
{
    wxBusyCursor bezig;
    // Asked once: the trace line per file is built only when it is kept.
    if (wxLog::IsLevelEnabled(wxLOG_Debug, wxASCII_STR(wxLOG_COMPONENT)))
        vondst.elk(van, tot, [&vondst](const kern::Vondst::Ingang& i) {
            const std::string_view naam = vondst.geefNaam(i);
            wxLogDebug("OnAddCLick : voeg toe bestand: "
                       + DesktopAppBasis::dubbeleQuotes(wxString::FromUTF8(vondst.mappen[i.map])
                                                            + wxString::FromUTF8(naam.data(), naam.size()),
                                                        false));
        });
    const std::size_t voor = bronSelektie.aantal();
    bronSelektie.voegToe(vondst, van, tot, [](const wxString& pad) {
        wxLogMessage(pad + _(" won't be added since it is already in your selection list."));
    }, overgeslagen);
    const std::size_t toegevoegd = bronSelektie.aantal() - voor;
    // One refresh of the view, however many files.
    if (toegevoegd != 0)
        bestandSelektieLijst->ververs(voor);
    return static_cast<int>(toegevoegd);
}

void KlavermolVenster::OnAddClick(wxCommandEvent&)
{
    if (volgendePlak)
        return; // the previous Add is still taking its files in
    if (!zoekMapBestaat())
        return;
    const wxString map = wxFileName::DirName(vindBestandenInDirs->GetPath()).GetFullPath();
    const int modus = voegToeModeKeuze->GetSelection();
    if (modus != kern::ModusMap && modus != kern::ModusRecursief) {
        auto gekozen = std::make_shared<kern::Vondst>();
        if (modus == kern::ModusBestanden)
            kern::voegPadenToe(*gekozen, kiesBestanden(map));
        rondToevoegenAf(map, gekozen, 0);
        return;
    }
    const kern::Families aan = geefFamilies(voegCBestandenToe, voegCPPBestandenToe, voegHBestandenToe,
                                            voegSBestandenToe);
    verzamelWerk.start([this, map, modus, aan, verzamel = verzamelaar](
                           kern::Voortgang& voortgang) -> AchtergrondWerk::Afronding {
        auto gevonden = std::make_shared<kern::Vondst>();
        std::size_t overgeslagen = 0;
        const bool gelukt = verzamel(map, modus, aan, *gevonden, &overgeslagen, &voortgang);
        return [this, map, gelukt, gevonden, overgeslagen] {
            eindigVoortgang();
            if (!gelukt)
                wxFAIL_COND_MSG(true == mag, "(KlavermolVenster::OnAddClick) " + map);
            rondToevoegenAf(map, gevonden, overgeslagen);
        };
    });
    begintVoortgang();
}

void KlavermolVenster::rondToevoegenAf(const wxString& map, std::shared_ptr<const kern::Vondst> gevonden,
                                       std::size_t overgeslagen)
{
    const int aantal = static_cast<int>(gevonden->aantal());
    wxLogDebug("The selected directory resulted in the addition of %d files", aantal);
    const bool verder = aantal <= 10
        || wxMessageBox(wxString::Format(_("%d files were found and will be added to the selection list.\nDo you "
                                           "want to proceed?"),
                                         aantal),
                        _("More than 10 files found"), wxYES_NO | wxICON_QUESTION, this) == wxYES;
    if (verder)
        voegToeInPlakken(map, gevonden, 0, overgeslagen, 0);
    else
        voegToeInPlakken(map, std::make_shared<const kern::Vondst>(), 0, 0, 0);
}

void KlavermolVenster::voegToeInPlakken(const wxString& map, std::shared_ptr<const kern::Vondst> gevonden,
                                        std::size_t van, std::size_t overgeslagen, int toegevoegd)
{
    // Taken in slices, the event loop running between them.
    const std::size_t plakGrootte = 20000;
    const std::size_t alles = gevonden->aantal();
    const std::size_t tot = std::min(alles, van + plakGrootte);
    toegevoegd += voegBronnenToe(*gevonden, van, tot, overgeslagen);
    if (tot < alles) {
        // The next slice after the event loop's own work: a timer, since a
        // queued call would run at once with the other queued events.
        volgendePlak = [=] { voegToeInPlakken(map, gevonden, tot, overgeslagen, toegevoegd); };
        if (plakKlok == nullptr) {
            plakKlok = new wxTimer(this);
            Bind(wxEVT_TIMER, [this](wxTimerEvent&) { std::exchange(volgendePlak, nullptr)(); }, plakKlok->GetId());
        }
        plakKlok->StartOnce(1);
        return;
    }
    if (overgeslagen != 0)
        wxLogWarning(kern::geefOvergeslagenMelding(overgeslagen));

    // The search directory counts as a directory: its name part is empty.
    PopStatusText(0);
    PushStatusText(wxString::Format(_("A total of %d files and dirs was found in "), toegevoegd)
                       + wxFileName::DirName(map).GetFullName() + _(" and added to the selection."),
                   0);
    selektieBoek->SetSelection(0);
    recenteLokaties.AddFileToHistory(map);
}
