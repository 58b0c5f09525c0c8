#include "dialogs/cmakecontroledialoog.h"

#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/filename.h>
#include <wx/gauge.h>
#include <wx/listctrl.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

wxDEFINE_EVENT(EVT_CMAKE_CONTROLE_KLAAR, wxCommandEvent);

wxIMPLEMENT_DYNAMIC_CLASS(CMakeControleDialoog, wxDialog);

namespace {

// A file below the output directory by its path from there, others in full.
wxString toonbaar(const wxString& bestand, const wxString& uitvoerDir)
{
    wxFileName naam(bestand);
    if (!naam.IsAbsolute() || !bestand.StartsWith(wxFileName::DirName(uitvoerDir).GetFullPath()))
        return bestand;
    naam.MakeRelativeTo(uitvoerDir);
    return naam.GetFullPath();
}

} // namespace

wxBEGIN_EVENT_TABLE(CMakeControleDialoog, wxDialog)
    EVT_BUTTON(CMakeControleDialoog::OpnieuwID, CMakeControleDialoog::OnOpnieuwClick)
    EVT_UPDATE_UI(CMakeControleDialoog::OpnieuwID, CMakeControleDialoog::OnOpnieuwUpdate)
    EVT_BUTTON(wxID_CANCEL, CMakeControleDialoog::OnCancelClick)
    EVT_UPDATE_UI(wxID_CANCEL, CMakeControleDialoog::OnCancelUpdate)
    EVT_BUTTON(wxID_CLOSE, CMakeControleDialoog::OnCloseClick)
    EVT_CLOSE(CMakeControleDialoog::OnSluit)
    EVT_LIST_ITEM_ACTIVATED(CMakeControleDialoog::MeldingLijstID, CMakeControleDialoog::OnMeldingGekozen)
wxEND_EVENT_TABLE()

CMakeControleDialoog::CMakeControleDialoog(wxWindow* ouder, wxWindowID id, const wxString& titel)
{
    Create(ouder, id, titel);
}

CMakeControleDialoog::~CMakeControleDialoog()
{
    // The worker calls back into this dialog: it must be gone first.
    if (werker.joinable()) {
        controle.breekAf();
        werker.join();
    }
}

bool CMakeControleDialoog::Create(wxWindow* ouder, wxWindowID id, const wxString& titel)
{
    if (!wxDialog::Create(ouder, id, titel, wxDefaultPosition, wxDefaultSize,
                          wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER, naam))
        return false;
    CreateControls();
    SetMinSize(FromDIP(wxSize(480, 360)));
    SetSize(FromDIP(wxSize(760, 560)));
    Centre(wxBOTH);
    return true;
}

void CMakeControleDialoog::CreateControls()
{
    auto* hoofd = new wxBoxSizer(wxVERTICAL);
    SetSizer(hoofd);

    oordeelTekst = new wxStaticText(this, wxID_ANY, wxEmptyString);
    oordeelTekst->SetFont(oordeelTekst->GetFont().Bold());
    hoofd->Add(oordeelTekst, 0, wxGROW | wxALL, 8);
    voortgang = new wxGauge(this, wxID_ANY, 100, wxDefaultPosition, wxDefaultSize, wxGA_HORIZONTAL | wxGA_SMOOTH);
    hoofd->Add(voortgang, 0, wxGROW | wxLEFT | wxRIGHT, 8);

    uitvoer = new wxTextCtrl(this, wxID_ANY, wxEmptyString, wxDefaultPosition, FromDIP(wxSize(-1, 150)),
                             wxTE_MULTILINE | wxTE_READONLY | wxTE_DONTWRAP | wxHSCROLL);
    hoofd->Add(uitvoer, 1, wxGROW | wxALL, 8);

    meldingLijst = new wxListCtrl(this, MeldingLijstID, wxDefaultPosition, FromDIP(wxSize(-1, 180)),
                                  wxLC_REPORT | wxLC_SINGLE_SEL);
    meldingLijst->SetHelpText(_("Double-click a message about the generated file to go to its line."));
    meldingLijst->AppendColumn(_("Kind"), wxLIST_FORMAT_LEFT, FromDIP(80));
    meldingLijst->AppendColumn(_("File"), wxLIST_FORMAT_LEFT, FromDIP(220));
    meldingLijst->AppendColumn(_("Line"), wxLIST_FORMAT_RIGHT, FromDIP(50));
    meldingLijst->AppendColumn(_("Message"), wxLIST_FORMAT_LEFT, FromDIP(1200));
    hoofd->Add(meldingLijst, 1, wxGROW | wxLEFT | wxRIGHT, 8);

    auto* knoppen = new wxBoxSizer(wxHORIZONTAL);
    hoofd->Add(knoppen, 0, wxGROW | wxALL, 8);
    bouwKeuze = new wxCheckBox(this, BouwKeuzeID, _("Build as well"));
    knoppen->Add(bouwKeuze, 0, wxALIGN_CENTER_VERTICAL);
    knoppen->AddStretchSpacer();
    knoppen->Add(new wxButton(this, OpnieuwID, _("Check again")), 0, wxLEFT, 5);
    knoppen->Add(new wxButton(this, wxID_CANCEL, _("Cancel")), 0, wxLEFT, 5);
    knoppen->Add(new wxButton(this, wxID_CLOSE, _("Close")), 0, wxLEFT, 5);
    SetEscapeId(wxID_NONE); // Escape must not close the dialog under a running check
}

void CMakeControleDialoog::start(const kern::ControleOpdracht& nieuw)
{
    if (bezig())
        return;
    opdracht = nieuw;
    opdracht.bouw = bouwKeuze->GetValue();
    uitslag = kern::ControleUitslag();
    uitvoer->Clear();
    meldingLijst->DeleteAllItems();
    oordeelTekst->SetLabel(opdracht.bouw ? _("CMake is configuring and building...") : _("CMake is configuring..."));
    voortgang->Pulse();
    werker = std::thread([this, taak = opdracht] {
        kern::ControleUitslag klaar = controle.voerUit(taak, [this](const wxString& r) { ontvangRegel(r); });
        CallAfter([this, klaar] { toonUitslag(klaar); });
    });
}

void CMakeControleDialoog::ontvangRegel(const wxString& regel)
{
    bool eerste = false;
    {
        std::lock_guard<std::mutex> slotje(slot);
        eerste = wachtend.empty();
        wachtend += regel + "\n";
    }
    if (eerste) // one call for every batch that gathers meanwhile
        CallAfter(&CMakeControleDialoog::toonRegels);
}

void CMakeControleDialoog::toonRegels()
{
    wxString regels;
    {
        std::lock_guard<std::mutex> slotje(slot);
        regels.swap(wachtend);
    }
    if (regels.empty())
        return;
    uitvoer->AppendText(regels);
    voortgang->Pulse();
}

void CMakeControleDialoog::toonUitslag(const kern::ControleUitslag& klaar)
{
    werker.join(); // it has nothing left to do but return
    toonRegels();
    uitslag = klaar;
    voortgang->SetValue(uitslag.gelukt ? 100 : 0);
    oordeelTekst->SetLabel(uitslag.oordeel);

    const wxString ernst[] = {_("Error"), _("Warning"), _("Note")};
    for (const kern::CMakeMelding& m : uitslag.meldingen) {
        const long rij = meldingLijst->InsertItem(meldingLijst->GetItemCount(), ernst[static_cast<int>(m.ernst)]);
        meldingLijst->SetItem(rij, 1, toonbaar(m.bestand, opdracht.uitvoerDir));
        meldingLijst->SetItem(rij, 2, m.regel > 0 ? wxString::Format("%d", m.regel) : wxString());
        meldingLijst->SetItem(rij, 3, m.tekst);
    }
    Layout();
    wxCommandEvent gedaan(EVT_CMAKE_CONTROLE_KLAAR, GetId());
    gedaan.SetEventObject(this);
    ProcessWindowEvent(gedaan);
}

void CMakeControleDialoog::OnMeldingGekozen(wxListEvent& event)
{
    const long rij = event.GetIndex();
    if (rij < 0 || static_cast<size_t>(rij) >= uitslag.meldingen.size() || !springer)
        return;
    const kern::CMakeMelding& m = uitslag.meldingen[static_cast<size_t>(rij)];
    if (m.regel > 0 && wxFileName(m.bestand).SameAs(wxFileName(opdracht.bestand)))
        springer(m.regel);
}

void CMakeControleDialoog::OnOpnieuwClick(wxCommandEvent&)
{
    start(opdracht);
}

void CMakeControleDialoog::OnCancelClick(wxCommandEvent&)
{
    controle.breekAf();
}

void CMakeControleDialoog::OnCloseClick(wxCommandEvent&)
{
    Close();
}

void CMakeControleDialoog::OnSluit(wxCloseEvent&)
{
    Destroy(); // the destructor stops a running check
}

void CMakeControleDialoog::OnOpnieuwUpdate(wxUpdateUIEvent& event)
{
    event.Enable(!bezig() && !opdracht.bestand.empty());
}

void CMakeControleDialoog::OnCancelUpdate(wxUpdateUIEvent& event)
{
    event.Enable(bezig());
}
