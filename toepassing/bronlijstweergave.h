#pragma once
// The "Source Files" list: a view over the selection store, not a copy of
// it. The control asks the store for the rows it paints, so a million
// entries cost no more than a screenful; check marks live in the store, and
// a click on a check box or the space bar changes them there. Select all,
// a directory's flip and Clear change the store and refresh the view once.
#include "kern/selektie.h"

#include <wx/listctrl.h>

class BronLijstWeergave : public wxListCtrl
{
public:
    BronLijstWeergave(wxWindow* ouder, wxWindowID id, kern::BronSelektie& selektie);

    // After the store changed: the view takes the new count and repaints.
    // Entries from `nieuwVanaf` on are new: the column widens to fit them.
    void ververs(std::size_t nieuwVanaf);

    // The checked list's own questions, answered from the store.
    unsigned int GetCount() const { return static_cast<unsigned int>(selektie.aantal()); }
    bool IsChecked(unsigned int i) const { return selektie.isAangevinkt(i); }
    void Check(unsigned int i, bool aan = true);
    wxString GetString(unsigned int i) const { return selektie.geef(i); }

protected:
    wxString OnGetItemText(long rij, long kolom) const override;
    bool OnGetItemIsChecked(long rij) const override;

private:
    void OnVinkje(wxListEvent& event);
    void OnToets(wxListEvent& event);

    kern::BronSelektie& selektie;
    int tekstBreedte = 0;
};
