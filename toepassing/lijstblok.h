#pragma once
// Large changes to a check list. GTK's tree view answers every row removed
// from its model on its own, which makes emptying a list of tens of
// thousands of rows quadratic; leegLijst empties the model while the view
// is away from it.
#include <wx/checklst.h>

void leegLijst(wxCheckListBox* lijst);
