#include "kern/selektie.h"

#include "kern/bronzoeker.h"

#include <wx/translation.h>

#include <algorithm>

namespace kern {

bool kanCMakeNoemenUtf8(std::string_view utf8)
{
    return utf8.find_first_of(";\\") == std::string_view::npos && utf8.find("${") == std::string_view::npos;
}

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

namespace {

// A path split after its last separator.
std::pair<std::string_view, std::string_view> splits(std::string_view pad)
{
    const size_t slash = pad.rfind('/');
    const size_t n = slash == std::string_view::npos ? 0 : slash + 1;
    return {pad.substr(0, n), pad.substr(n)};
}

} // namespace

wxArrayString BronSelektie::voegToe(const wxArrayString& paden, const DubbelMelder& meldDubbel)
{
    wxArrayString nieuw;
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
    const wxScopedCharBuffer utf8 = pad.utf8_str();
    const auto [map, naam] = splits(std::string_view(utf8.data(), utf8.length()));
    return voegToe(map, naam);
}

size_t BronSelektie::geefHash(std::uint32_t map, std::string_view naam) const
{
    return std::hash<std::string_view>()(naam) ^ (static_cast<size_t>(map) * 0x9e3779b97f4a7c15ULL);
}

long BronSelektie::zoek(std::string_view map, std::string_view naam) const
{
    const auto plek = mapIndex_.find(std::string(map));
    if (plek == mapIndex_.end() || tabel_.empty())
        return -1;
    const size_t masker = tabel_.size() - 1;
    for (size_t i = geefHash(plek->second, naam) & masker; tabel_[i] != 0; i = (i + 1) & masker) {
        const size_t ingang = tabel_[i] - 1;
        if (mapVan_[ingang] == plek->second && geefNaam(ingang) == naam)
            return static_cast<long>(ingang);
    }
    return -1;
}

std::uint32_t BronSelektie::geefMapNummer(std::string_view map)
{
    const auto [plek, nieuw] = mapIndex_.emplace(std::string(map), static_cast<std::uint32_t>(mappen_.size()));
    if (nieuw)
        mappen_.push_back(&plek->first);
    return plek->second;
}

// Doubles the table (at most half full), which keeps adding linear.
void BronSelektie::groei()
{
    tabel_.assign(std::max<size_t>(64, tabel_.size() * 2), 0);
    const size_t masker = tabel_.size() - 1;
    for (size_t ingang = 0; ingang < mapVan_.size(); ++ingang) {
        size_t i = geefHash(mapVan_[ingang], geefNaam(ingang)) & masker;
        while (tabel_[i] != 0)
            i = (i + 1) & masker;
        tabel_[i] = static_cast<std::uint32_t>(ingang + 1);
    }
}

bool BronSelektie::voegToe(std::string_view map, std::string_view naam)
{
    if ((mapVan_.size() + 1) * 2 > tabel_.size())
        groei();
    const std::uint32_t nummer = geefMapNummer(map);
    const size_t masker = tabel_.size() - 1;
    size_t i = geefHash(nummer, naam) & masker;
    for (; tabel_[i] != 0; i = (i + 1) & masker) {
        const size_t ingang = tabel_[i] - 1;
        if (mapVan_[ingang] == nummer && geefNaam(ingang) == naam)
            return false;
    }
    tabel_[i] = static_cast<std::uint32_t>(mapVan_.size() + 1);
    mapVan_.push_back(nummer);
    namen_.append(naam);
    naamEind_.push_back(static_cast<std::uint32_t>(namen_.size()));
    vinkjes_.push_back(true);
    return true;
}

std::size_t BronSelektie::voegToe(const Vondst& vondst, const DubbelMelder& meldDubbel, std::size_t& overgeslagen)
{
    return voegToe(vondst, 0, vondst.aantal(), meldDubbel, overgeslagen);
}

std::size_t BronSelektie::voegToe(const Vondst& vondst, std::size_t van, std::size_t tot,
                                  const DubbelMelder& meldDubbel, std::size_t& overgeslagen)
{
    const size_t voor = aantal();
    // room for the whole slice at once, without giving up doubling
    const auto maakRuimte = [](auto& v, size_t extra) {
        if (v.size() + extra > v.capacity())
            v.reserve(std::max(v.size() + extra, v.capacity() * 2));
    };
    maakRuimte(mapVan_, tot - van);
    maakRuimte(naamEind_, tot - van);
    std::vector<signed char> noembaar(vondst.mappen.size(), -1); // per directory: unknown, no, yes
    vondst.elk(van, tot, [&](const Vondst::Ingang& ingang) {
        const std::string& map = vondst.mappen[ingang.map];
        const std::string_view naam = vondst.geefNaam(ingang);
        if (noembaar[ingang.map] < 0)
            noembaar[ingang.map] = kanCMakeNoemenUtf8(map) ? 1 : 0;
        if (!noembaar[ingang.map] || !kanCMakeNoemenUtf8(naam))
            ++overgeslagen;
        else if (!voegToe(map, naam) && meldDubbel)
            meldDubbel(wxString::FromUTF8(map) + wxString::FromUTF8(naam.data(), naam.size()));
    });
    return aantal() - voor;
}

void BronSelektie::wis()
{
    mapIndex_.clear();
    mappen_.clear();
    mapVan_.clear();
    naamEind_.clear();
    namen_.clear();
    vinkjes_.clear();
    tabel_.clear();
}

wxString BronSelektie::geef(size_t index) const
{
    const std::string& map = geefMap(mapVan_[index]);
    const std::string_view naam = geefNaam(index);
    std::string pad;
    pad.reserve(map.size() + naam.size());
    pad.append(map).append(naam);
    return wxString::FromUTF8(pad);
}

void BronSelektie::zetAllesAangevinkt(bool aan)
{
    vinkjes_.assign(vinkjes_.size(), aan);
}

void BronSelektie::wisselMap(size_t index)
{
    const std::uint32_t map = mapVan_[index];
    for (size_t i = 0; i < mapVan_.size(); ++i)
        if (mapVan_[i] == map)
            vinkjes_[i] = !vinkjes_[i];
}

long BronSelektie::zoek(const wxString& pad) const
{
    const wxScopedCharBuffer utf8 = pad.utf8_str();
    const auto [map, naam] = splits(std::string_view(utf8.data(), utf8.length()));
    return zoek(map, naam);
}

bool BronSelektie::bevat(const wxString& pad) const
{
    return zoek(pad) >= 0;
}

} // namespace kern
