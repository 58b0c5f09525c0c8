// "Check with CMake": runs the machine's cmake on the saved file of the
// current output in the results dialog, and leads from a message to its line.
#include "klavermolvenster.h"
#include "dialogs/cmakecontroledialoog.h"
#include "kern/cmakecontrole.h"

#include <wx/choice.h>
#include <wx/filename.h>
#include <wx/filepicker.h>
#include <wx/log.h>
#include <wx/textctrl.h>

// The file Save writes for the current output: the file name in the output
// directory. The check is there to be had once that file exists.
wxString KlavermolVenster::geefControleBestand() const
{
    return wxFileName(outputDirPicker->GetPath(), bestandNaamTekst->GetValue()).GetFullPath();
}

void KlavermolVenster::OnCMakeControleIDClick(wxCommandEvent&)
{
    if (kern::zoekCMake().empty()) {
        wxLogError(kern::geefGeenCMakeMelding());
        return;
    }
    kern::ControleOpdracht opdracht;
    opdracht.soort = uitvoerSoortKeuze->GetSelection();
    opdracht.bestand = geefControleBestand();
    opdracht.uitvoerDir = outputDirPicker->GetPath();

    auto* dialoog = wxDynamicCast(FindWindowByName(CMakeControleDialoog::naam, this), CMakeControleDialoog);
    if (dialoog == nullptr) {
        dialoog = new CMakeControleDialoog(this);
        dialoog->zetSpringer([this](int regel) { springNaarRegel(regel); });
    }
    dialoog->Show();
    dialoog->Raise();
    dialoog->start(opdracht);
}

void KlavermolVenster::OnCMakeControleIDUpdate(wxUpdateUIEvent& event)
{
    event.Enable(wxFileName::FileExists(geefControleBestand()));
}

// Selects line `regel` (from 1) of the output text and shows it.
void KlavermolVenster::springNaarRegel(int regel)
{
    const long begin = uitvoerTekst->XYToPosition(0, regel - 1);
    if (begin < 0)
        return;
    uitvoerTekst->SetSelection(begin, begin + uitvoerTekst->GetLineLength(regel - 1));
    uitvoerTekst->ShowPosition(begin);
    Raise();
    uitvoerTekst->SetFocus();
}
