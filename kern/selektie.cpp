#include "kern/selektie.h"

#include <wx/translation.h>

namespace kern {

bool kanCMakeNoemen(const wxString& pad)
{
    return pad.find_first_of(wxS(";\\")) == wxString::npos;
}

wxString geefOvergeslagenMelding(std::size_t aantal)
{
    return wxString::Format(_("%lu names were left out: a CMake file cannot name a path that is not valid "
                              "UTF-8 or that contains \";\" or \"\\\"."),
                            static_cast<unsigned long>(aantal));
}

wxArrayString BronSelektie::voegToe(const wxArrayString& paden, const DubbelMelder& meldDubbel)
{
    wxArrayString nieuw;
    nieuw.Alloc(paden.size());
    lijst_.reserve(lijst_.size() + paden.size());
    aanwezig_.reserve(aanwezig_.size() + paden.size());
    for (const wxString& pad : paden) {
        if (voegToe(pad))
            nieuw.Add(pad);
        else if (meldDubbel)
            meldDubbel(pad);
    }
    return nieuw;
}

bool BronSelektie::voegToe(const wxString& pad)
{
    if (!aanwezig_.insert(pad).second)
        return false;
    lijst_.push_back(pad);
    return true;
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
