#include "kern/selektie.h"

namespace kern {

wxArrayString BronSelektie::voegToe(const wxArrayString& paden, const DubbelMelder& meldDubbel)
{
    wxArrayString nieuw;
    nieuw.Alloc(paden.size());
    lijst_.reserve(lijst_.size() + paden.size());
    aanwezig_.reserve(aanwezig_.size() + paden.size());
    for (const wxString& pad : paden) {
        if (!aanwezig_.insert(pad).second) {
            if (meldDubbel)
                meldDubbel(pad);
            continue;
        }
        lijst_.push_back(pad);
        nieuw.Add(pad);
    }
    return nieuw;
}

void BronSelektie::wis()
{
    lijst_.clear();
    aanwezig_.clear();
}

bool BronSelektie::bevat(const wxString& pad) const
{
    return aanwezig_.count(pad) != 0;
}

} // namespace kern
