#include "kern/selektie.h"

#include <wx/filefn.h>
#include <wx/translation.h>

namespace kern {

bool kanCMakeNoemen(const wxString& pad)
{
    return pad.find_first_of(wxS(";\\")) == wxString::npos && pad.find(wxS("${")) == wxString::npos;
}

wxString geefOvergeslagenMelding(std::size_t aantal)
{
    return wxString::Format(_("%lu names were left out: a CMake file cannot name a path that is not valid "
                              "UTF-8 or that contains \";\", \"\\\" or \"${\"."),
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
    vinkjes_.push_back(true);
    return true;
}

void BronSelektie::wis()
{
    lijst_.clear();
    vinkjes_.clear();
    aanwezig_.clear();
}

void BronSelektie::zetAllesAangevinkt(bool aan)
{
    vinkjes_.assign(vinkjes_.size(), aan);
}

namespace {

// The directory part of an entry, without its closing separator.
wxString mapVan(const wxString& pad)
{
    const size_t slash = pad.rfind(wxFILE_SEP_PATH);
    return slash == wxString::npos ? wxString() : pad.substr(0, slash);
}

} // namespace

void BronSelektie::wisselMap(size_t index)
{
    const wxString map = mapVan(lijst_[index]);
    for (size_t i = 0; i < lijst_.size(); ++i)
        if (mapVan(lijst_[i]) == map)
            vinkjes_[i] = !vinkjes_[i];
}

bool BronSelektie::bevat(const wxString& pad) const
{
    return aanwezig_.count(pad) != 0;
}

} // namespace kern
