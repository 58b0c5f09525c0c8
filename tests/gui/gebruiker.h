#pragma once
// What a user does with a modal dialog that a wxTEST_DIALOG expectation
// holds: the dialog is shown (so the toolkit fills it from its validators),
// worked, and ended by one of its buttons. Pointer events would reach other
// test processes' windows on the shared display, so the button sends the
// command event a click sends, and only while it is enabled.
#include <wx/dialog.h>

#include <functional>

// Shows the dialog, lets `handeling` work it and presses the button `knop`;
// gives `knop` if that closed the dialog, wxID_NONE if it is still open.
inline int bedien(wxDialog& dlg, int knop, const std::function<void()>& handeling)
{
    dlg.Show();
    handeling();
    dlg.UpdateWindowUI(wxUPDATE_UI_RECURSE);
    wxWindow* knopVenster = dlg.FindWindow(knop);
    if (knopVenster->IsEnabled()) {
        wxCommandEvent klik(wxEVT_BUTTON, knop);
        klik.SetEventObject(knopVenster);
        knopVenster->ProcessWindowEvent(klik);
    }
    return dlg.IsShown() ? wxID_NONE : knop;
}
