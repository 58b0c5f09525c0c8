// The about box.
#include "desktopApp.h"

#include <wx/translation.h>

void DesktopApp::toonCopyright(const wxString& webSite, const wxIcon& ikoon, const wxArrayString& credits) const
{
    const wxString naam = "Klavermol";
    const wxString versie = geefVersie(true);
    const wxString beschrijving = _(
        "Klavermol simplifies applying CMake to large and existing code bases.\n\n"
        "With Klavermol it becomes easy to select and incorporate large numbers of source and header files,\n"
        "external libraries and CMake include files\n"
        "into a CMakeLists.txt project, library or include file.\n"
        "Migration of projects source directories(Eclipse, Keil, IAR, STMicroelectronics STM32 HAL library etcetera) to a CMake based project\n"
        "can be performed without the hassle of manually searching and entering\n"
        "of all file names and finding the proper paths relative from the build directory.");
    const wxString kopieerrecht = _("(c) 2016-2020 Zelvano. All rights reserved.");

    wxAboutDialogInfo info;
    info.SetName(naam);
    info.SetVersion(versie, wxString());
    info.SetCopyright(kopieerrecht);
    info.SetIcon(ikoon);
    info.SetWebSite(webSite, wxString());
    toonCopyright(info, beschrijving, credits);
}

namespace {

// A credit "name (web address)" goes in as two lines, the address on its own:
// the about box shows it so (as a link where the toolkit can), where it would
// otherwise turn the name into a link and lose the address.
void voegCreditToe(wxArrayString& lijst, const wxString& credit)
{
    const int open = credit.Find(" (http");
    if (open == wxNOT_FOUND || !credit.EndsWith(")")) {
        lijst.Add(credit);
        return;
    }
    const size_t begin = static_cast<size_t>(open) + 2;
    lijst.Add(credit.Left(static_cast<size_t>(open)));
    lijst.Add(credit.Mid(begin, credit.length() - begin - 1));
}

} // namespace

void DesktopApp::toonCopyright(wxAboutDialogInfo& info, const wxString& beschrijving, const wxArrayString& credits) const
{
    const wxString platform = geefPlatformBeschrijving();
    wxArrayString lijst;
    voegCreditToe(lijst, _("The wxWidgets cross-platform GUI toolkit (https://www.wxwidgets.org)"));
    for (const wxString& c : credits)
        voegCreditToe(lijst, "\n" + c);
    info.SetDescription(platform + "\n\n" + beschrijving);
    info.SetDevelopers(lijst);
    if (hoofdVenster == nullptr)
        wxFAIL_COND_MSG((nullptr!=hoofdVenster), "(DesktopApp::toonCopyright) hoofdvenster niet gezet !");
    geefAboutToner()(info, hoofdVenster);
}
