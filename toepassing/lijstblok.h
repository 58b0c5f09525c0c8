#pragma once
// Check lists of tens of thousands of rows.
//
// GTK's tree view answers every row removed from its model on its own,
// which makes emptying a big list quadratic; leegLijst empties the model
// while the view is away from it.
//
// By default the view also measures every row, once the event loop runs,
// to find the heights and the widest text: seconds of a frozen window
// after a big Add. A list made with maakRijenVast has rows of one height
// and columns of a set width instead; voegToeAanLijst widens the text
// column to the widest of the entries it appends, judged from the longest
// few, and checks them.
#include <wx/arrstr.h>
#include <wx/checklst.h>

void leegLijst(wxCheckListBox* lijst);
void maakRijenVast(wxCheckListBox* lijst);
void voegToeAanLijst(wxCheckListBox* lijst, const wxArrayString& nieuw);
