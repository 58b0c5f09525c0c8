#pragma once
// A user working a modal dialog that a wxTEST_DIALOG expectation holds: a
// button gets the command event a click sends, and only while it is enabled.
#include "programma.h"

#include <wx/dialog.h>

#include <functional>

// Shows the dialog (filled from its validators, its layout checked), lets `handeling`
// work it and presses `knop`; gives `knop` if that closed the dialog, else wxID_NONE.
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
