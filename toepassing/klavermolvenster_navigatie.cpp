// Moving the search location: home, back, forward, elsewhere, recent.
#include "toepassing/klavermolvenster.h"

#include "dialogs/recentelokatievenster.h"
#include "toepassing/padveld.h"

#include <wx/dirdlg.h>
#include <wx/filepicker.h>
#include <wx/utils.h>

void KlavermolVenster::OnHomeKnopClick(wxCommandEvent& event)
{
    OnHOMEClick(event);
}

void KlavermolVenster::toonHuidigeLokatie()
{
    vindBestandenInDirs->SetPath(normaleMap(lokatieGeschiedenis.geefHuidigVoorwerp().GetFullPath(wxPATH_NATIVE)));
    onderzoekPadOpBestanden();
}

void KlavermolVenster::OnBACKWARDClick(wxCommandEvent&)
{
    if (lokatieGeschiedenis.geefIndex() > 0)
        lokatieGeschiedenis.zetIndex(lokatieGeschiedenis.geefIndex() - 1);
    toonHuidigeLokatie();
}

void KlavermolVenster::OnFORWARDClick(wxCommandEvent&)
{
    // Unsigned on purpose, as in the enabling rule: with no location at all
    // the index moves to 1 and the fetch below reports it out of range.
    const std::size_t laatste = lokatieGeschiedenis.geefAantal() - 1;
    if (lokatieGeschiedenis.geefIndex() < laatste)
        lokatieGeschiedenis.zetIndex(lokatieGeschiedenis.geefIndex() + 1);
    toonHuidigeLokatie();
}

void KlavermolVenster::OnVindBestandenInDirsIDDirPickerChanged(wxFileDirPickerEvent&)
{
    onderzoekPadOpBestanden();
    lokatieGeschiedenis.voegToe(wxFileName::DirName(vindBestandenInDirs->GetPath()));
}

void KlavermolVenster::OnHOMEClick(wxCommandEvent&)
{
    // The home directory taken as a full path: its last component counts as a
    // file name, so the picker shows the directory above it.
    const wxFileName thuis(wxGetHomeDir());
    vindBestandenInDirs->SetPath(thuis.GetPath(wxPATH_GET_VOLUME, wxPATH_NATIVE));
    recenteLokaties.AddFileToHistory(thuis.GetFullPath());
}

void KlavermolVenster::OnMOREClick(wxCommandEvent&)
{
    wxDirDialog dialoog(this, wxDirSelectorPromptStr, wxEmptyString, wxDD_DEFAULT_STYLE | wxRESIZE_BORDER);
    if (dialoog.ShowModal() == wxID_OK)
        recenteLokaties.AddFileToHistory(dialoog.GetPath());
}

void KlavermolVenster::OnVorigeLokatieIDClick(wxCommandEvent&)
{
    RecenteLokatieVenster dialoog(this, 10000, _("Recent locations where you searched for CMake files"),
                                  wxDefaultPosition, wxSize(500, -1), RecenteLokatieVenster::standaardStijl);
    wxArrayString paden;
    for (size_t i = 0; i < recenteLokaties.GetCount(); ++i)
        paden.Add(recenteLokaties.GetHistoryFile(i));
    dialoog.vulpaden(paden);
    if (dialoog.ShowModal() != wxID_OK)
        return;
    const int gekozen = dialoog.geefGekozenPad();
    if (gekozen >= 0 && static_cast<size_t>(gekozen) < paden.size())
        vindBestandenInDirs->SetPath(normaleMap(paden[static_cast<size_t>(gekozen)]));
}
