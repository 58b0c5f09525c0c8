#pragma once
// Large changes to a check list in one block. GTK's tree view answers every
// row change of its model on its own, which makes emptying a list of tens
// of thousands of rows quadratic; while a LijstBlok lives, the list's view
// is detached from its model, so rows are added, checked and removed
// without the view, which then takes the finished model back at once.
#include <wx/checklst.h>

class LijstBlok
{
public:
    explicit LijstBlok(wxCheckListBox* lijst);
    ~LijstBlok();
    LijstBlok(const LijstBlok&) = delete;
    LijstBlok& operator=(const LijstBlok&) = delete;

private:
    wxCheckListBox* lijst;
    void* model = nullptr;
};
