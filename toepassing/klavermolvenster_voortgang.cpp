// What the window shows while Add walks on a worker: the busy cursor at
// once, and after half a second a dialog with the counts so far and a
// Cancel button (Escape works too). Cancel leaves the list as it was.
#include "toepassing/klavermolvenster.h"

#include <wx/progdlg.h>
#include <wx/timer.h>
#include <wx/utils.h>

namespace {

// How long a walk may take before the dialog shows, and how often it is told.
const std::chrono::milliseconds wachtTijd(500);
const int tik = 100; // ms

} // namespace

void KlavermolVenster::begintVoortgang()
{
    if (voortgangKlok == nullptr) {
        voortgangKlok = new wxTimer(this);
        Bind(wxEVT_TIMER, [this](wxTimerEvent&) { toonVoortgang(); }, voortgangKlok->GetId());
    }
    voortgangBegin = std::chrono::steady_clock::now();
    if (!voortgangKlok->IsRunning())
        wxBeginBusyCursor();
    voortgangKlok->Start(tik);
}

void KlavermolVenster::toonVoortgang()
{
    if (!verzamelWerk.isBezig()) {
        eindigVoortgang();
        return;
    }
    if (voortgangDialoog == nullptr && std::chrono::steady_clock::now() - voortgangBegin < wachtTijd)
        return;
    const kern::Voortgang& voortgang = verzamelWerk.geefVoortgang();
    const wxString tekst = wxString::Format(_("%lu directories and %lu files so far"),
                                            static_cast<unsigned long>(voortgang.mappen.load()),
                                            static_cast<unsigned long>(voortgang.bestanden.load()));
    if (voortgangDialoog == nullptr)
        voortgangDialoog = new wxProgressDialog(_("Searching for source files"), tekst, 100, this,
                                                wxPD_APP_MODAL | wxPD_CAN_ABORT);
    if (!voortgangDialoog->Pulse(tekst)) {
        verzamelWerk.stop();
        eindigVoortgang();
    }
}

void KlavermolVenster::eindigVoortgang()
{
    if (voortgangKlok == nullptr || !voortgangKlok->IsRunning())
        return;
    voortgangKlok->Stop();
    wxEndBusyCursor();
    if (voortgangDialoog != nullptr) {
        voortgangDialoog->Destroy();
        voortgangDialoog = nullptr;
    }
}
