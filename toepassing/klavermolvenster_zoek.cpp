// The file-type switches, the filter text and wildcard, the probe of the
// search location and the Add command.
#include "toepassing/klavermolvenster.h"

#include "kern/bronzoeker.h"

#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/filepicker.h>
#include <wx/menu.h>
#include <wx/utils.h>

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
    const wxString map = wxFileName::DirName(vindBestandenInDirs->GetPath()).GetFullPath();
    kern::Aanwezig vlaggen;
    vlaggen.c = heeftCBestanden;
    vlaggen.cpp = heeftCPPBestanden;
    vlaggen.h = heeftHBestanden;
    vlaggen.s = heeftSBestanden;

    wxBusyCursor bezig;
    const int modus = voegToeModeKeuze->GetSelection();
    const kern::Families aan = geefFamilies(voegCBestandenToe, voegCPPBestandenToe, voegHBestandenToe,
                                            voegSBestandenToe);
    if (!kern::onderzoekMap(map, modus, aan, vlaggen)) {
        wxFAIL_COND_MSG(true == mag, "(KlavermolVenster::onderzoekPadOpBestanden) " + map);
        return;
    }
    heeftCBestanden = vlaggen.c;
    heeftCPPBestanden = vlaggen.cpp;
    heeftHBestanden = vlaggen.h;
    heeftSBestanden = vlaggen.s;

    const wxMenuItem* auto_ = GetMenuBar()->FindItem(AutoZetUitvoerDirID);
    if (auto_ != nullptr && auto_->IsEnabled() && auto_->IsChecked())
        outputDirPicker->SetPath(map);
}

void KlavermolVenster::OnAddClick(wxCommandEvent&)
{
}
