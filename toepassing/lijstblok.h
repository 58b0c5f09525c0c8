#pragma once
// Emptying a check list of many rows.
//
// GTK's tree view answers every row removed from its model on its own,
// which makes emptying a big list quadratic; leegLijst empties the model
// while the view is away from it.
#include <wx/checklst.h>

void leegLijst(wxCheckListBox* lijst);
