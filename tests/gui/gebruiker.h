#pragma once
// A user working a modal dialog that a wxTEST_DIALOG expectation holds: a
// button gets the command event a click sends, and only while it is enabled.
#include "programma.h"

#include <wx/dialog.h>

#include <functional>

// Shows the dialog (the toolkit fills it from its validators; its layout is
// checked), lets
// `handeling` work it and presses `knop`; gives `knop` if that closed the
// dialog, wxID_NONE if it is still open.
inline int bedien(wxDialog& dlg, int knop, const std::function<void()>& handeling)
{
    dlg.Show();
    ProgrammaTest::controleerIndeling(&dlg);
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
