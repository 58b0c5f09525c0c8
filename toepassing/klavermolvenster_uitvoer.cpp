// The output side: kind and names, sub-directories and include files,
// Execute and save.
#include "toepassing/klavermolvenster.h"

#include "kern/bestand.h"
#include "toepassing/padveld.h"

#include <wx/checklst.h>
#include <wx/choice.h>
#include <wx/filedlg.h>
#include <wx/filepicker.h>
#include <wx/log.h>
#include <wx/notebook.h>
#include <wx/radiobox.h>
#include <wx/statbox.h>
#include <wx/textctrl.h>
#include <wx/textdlg.h>
#include <wx/utils.h>

namespace {

enum Soort { Projekt = 0, Bieb = 1, Include = 2 };
enum Pagina { BronPagina = 0, BiebPagina = 1, IncludePagina = 2 };

const wxString cmakeLijstNaam = "CMakeLists.txt";

// Appends a checked row to one of the lists and brings its page to the front.
void voegRijToe(wxCheckListBox* lijst, wxNotebook* boek, int pagina, const wxString& tekst)
{
    const int rij = lijst->Append(tekst);
    lijst->Check(static_cast<unsigned int>(rij));
    boek->SetSelection(static_cast<size_t>(pagina));
}

} // namespace

void KlavermolVenster::OnUitvoerSoortKeuzeIDSelected(wxCommandEvent&)
{
    const int soort = uitvoerSoortKeuze->GetSelection();
    naamKader->SetLabel(geefKeuzeSoort(soort));
    if (soort == Projekt || soort == Bieb)
        bestandNaamTekst->ChangeValue(cmakeLijstNaam);
    else if (soort == Include)
        bestandNaamTekst->ChangeValue(projektLibIncludeNaam->GetValue() + ".cmake");
}

void KlavermolVenster::OnProjektLibIncludeNaamIDTextUpdated(wxCommandEvent&)
{
    if (uitvoerSoortKeuze->GetSelection() == Include)
        bestandNaamTekst->ChangeValue(projektLibIncludeNaam->GetValue() + ".cmake");
}

void KlavermolVenster::OnGebruikSourceDirNaamIDClick(wxCommandEvent&)
{
    const wxArrayString mappen = wxFileName::DirName(outputDirPicker->GetPath()).GetDirs();
    projektLibIncludeNaam->SetValue(mappen.empty() ? wxString() : mappen.Last());
}

void KlavermolVenster::OnZetAlsUitvoerIDClick(wxCommandEvent&)
{
    outputDirPicker->SetPath(normaleMap(vindBestandenInDirs->GetPath()));
}

void KlavermolVenster::outputDirVeranderdHandler(wxFileDirPickerEvent& event)
{
    event.Skip();
}

void KlavermolVenster::OnVindCMakeSubDirIDFilePickerChanged(wxFileDirPickerEvent&)
{
    subDirHeeftCMakeLists = mapHeeftCMakeLists(vindCMakeSubDir->GetPath());
}

void KlavermolVenster::OnVoegToeCMakeSubDirIDClick(wxCommandEvent&)
{
    const wxFileName bestand(vindCMakeSubDir->GetPath());
    if (bestand.GetFullName() != cmakeLijstNaam) {
        wxLogError(_("The selected dir does not contain a CMakeLists.txt file."));
        return;
    }
    const wxString map = bestand.GetPath();
    if (subDirPaden.Index(map) != wxNOT_FOUND) {
        wxLogMessage(bestand.GetFullName() + _(" won't be added since it is already in your selection list."));
        return;
    }
    wxTextEntryDialog vraag(this,
                            _("Please enter the name of the library you want to add (indicated in the "
                              "CMakeLists.txt file you selected)"),
                            wxGetTextFromUserPromptStr, wxString(), wxOK | wxCANCEL | wxCENTRE);
    if (vraag.ShowModal() != wxID_OK)
        return;

    subDirPaden.Add(map);
    subDirBiebNamen.Add(vraag.GetValue());
    voegRijToe(biebLijst, selektieBoek, BiebPagina, map);
    SetStatusText(bestand.GetFullName() + _(" was added to your selection list."), 0);
    if (!ligtIn(map, normaleMap(outputDirPicker->GetPath())))
        SetStatusText(wxString::Format(_("%s lies outside the output directory: CMake's add_subdirectory needs a "
                                         "binary directory for it."),
                                       map),
                      0);
    recenteLokaties.AddFileToHistory(map);
    Layout();
}

void KlavermolVenster::OnVindCMakeIncludeDirIDFilePickerChanged(wxFileDirPickerEvent&)
{
    includeIsCMake = wxFileName(vindCMakeIncludeDir->GetPath()).GetExt() == "cmake";
}

void KlavermolVenster::OnVoegToeCMakeIncludeIDClick(wxCommandEvent&)
{
    const wxFileName bestand(vindCMakeIncludeDir->GetPath());
    const wxString pad = bestand.GetFullPath();
    if (includeBestanden.Index(pad) != wxNOT_FOUND) {
        wxLogMessage(bestand.GetFullName() + _(" won't be added since it is already in your selection list."));
        return;
    }
    includeBestanden.Add(pad);
    voegRijToe(includeLijst, selektieBoek, IncludePagina, pad);
    SetStatusText(bestand.GetFullName() + _(" was added to your selection list."), 0);
    recenteLokaties.AddFileToHistory(bestand.GetPath());
    Layout();
}

void KlavermolVenster::SlaOpCMakeHandler(wxCommandEvent&)
{
    static const wxArrayString WildeKaarten = [] {
        wxArrayString w;
        w.Add("TXT files (*.txt)|*.txt");
        w.Add("TXT files (*.txt)|*.txt|CMake files (*.cmake)|*.cmake");
        w.Add("CMake files (*.cmake)|*.cmake|TXT files (*.txt)|*.txt");
        return w;
    }();

    const wxString map = outputDirPicker->GetPath();
    const wxString naam = bestandNaamTekst->GetValue();
    const int keuze = cmakeProjektKeuze->GetSelection();
    wxFileDialog dialoog(this, wxFileSelectorPromptStr, map, naam, WildeKaarten[static_cast<size_t>(keuze)],
                         wxFD_SAVE | wxFD_OVERWRITE_PROMPT);
    if (dialoog.ShowModal() != wxID_OK)
        return;

    // GTK's chooser reports a path only once it has been on screen; the
    // directory and name the dialog holds say the same otherwise.
    wxString pad = dialoog.GetPath();
    if (pad.empty())
        pad = wxFileName(dialoog.GetDirectory(), dialoog.GetFilename()).GetFullPath();
    wxString reden;
    if (!kern::schrijfTekstBestand(pad, volledigeUitvoer, &reden))
        wxLogError(wxString(_("Failed to open output file ")) + pad + _(" for writing to.") + "\n" + reden);
}
