#include "toepassing/bronlijstweergave.h"

#include <algorithm>
#include <vector>

namespace {

// The room around the text: the check box before it and a margin after.
const int kantlijn = 48;
// How many of the longest new texts in characters are measured in pixels.
const std::size_t proefGrootte = 32;

} // namespace

BronLijstWeergave::BronLijstWeergave(wxWindow* ouder, wxWindowID id, kern::BronSelektie& selektie)
    : wxListCtrl(ouder, id, wxDefaultPosition, wxDefaultSize, wxLC_REPORT | wxLC_VIRTUAL | wxLC_NO_HEADER),
      selektie(selektie)
{
    EnableCheckBoxes();
    AppendColumn(wxString());
    Bind(wxEVT_LIST_ITEM_CHECKED, &BronLijstWeergave::OnVinkje, this);
    Bind(wxEVT_LIST_ITEM_UNCHECKED, &BronLijstWeergave::OnVinkje, this);
    Bind(wxEVT_LIST_KEY_DOWN, &BronLijstWeergave::OnToets, this);
    ververs(0);
}

wxString BronLijstWeergave::OnGetItemText(long rij, long) const
{
    return rij >= 0 && static_cast<std::size_t>(rij) < selektie.aantal() ? selektie.geef(rij) : wxString();
}

bool BronLijstWeergave::OnGetItemIsChecked(long rij) const
{
    return rij >= 0 && static_cast<std::size_t>(rij) < selektie.aantal() && selektie.isAangevinkt(rij);
}

void BronLijstWeergave::Check(unsigned int i, bool aan)
{
    selektie.zetAangevinkt(i, aan);
    RefreshItem(i);
}

void BronLijstWeergave::OnVinkje(wxListEvent& event)
{
    const long rij = event.GetIndex();
    if (rij >= 0 && static_cast<std::size_t>(rij) < selektie.aantal())
        Check(static_cast<unsigned int>(rij), event.GetEventType() == wxEVT_LIST_ITEM_CHECKED);
}

void BronLijstWeergave::OnToets(wxListEvent& event)
{
    // Space flips the check mark of the current row, as in a checked list.
    const long rij = event.GetIndex();
    if (event.GetKeyCode() != WXK_SPACE || rij < 0 || static_cast<std::size_t>(rij) >= selektie.aantal()) {
        event.Skip();
        return;
    }
    Check(static_cast<unsigned int>(rij), !IsChecked(static_cast<unsigned int>(rij)));
}

void BronLijstWeergave::ververs(std::size_t nieuwVanaf)
{
    const std::size_t aantal = selektie.aantal();
    if (aantal == 0 || nieuwVanaf == 0)
        tekstBreedte = 0;
    // Measuring every text would cost as much as the toolkit's own pass;
    // the widest is among the longest in characters.
    std::vector<std::pair<std::size_t, std::size_t>> langste; // length, row
    for (std::size_t i = nieuwVanaf; i < aantal; ++i) {
        langste.emplace_back(selektie.geef(i).length(), i);
        if (langste.size() > 4 * proefGrootte) {
            std::nth_element(langste.begin(), langste.begin() + proefGrootte, langste.end(),
                             [](const auto& a, const auto& b) { return a.first > b.first; });
            langste.resize(proefGrootte);
        }
    }
    for (const auto& l : langste)
        tekstBreedte = std::max(tekstBreedte, GetTextExtent(selektie.geef(l.second)).x);
    SetItemCount(static_cast<long>(aantal));
    SetColumnWidth(0, std::max(tekstBreedte + kantlijn, GetClientSize().x));
    Refresh();
}
