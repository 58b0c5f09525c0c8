#include "kern/bronwandeling.h"

#include <wx/debug.h>
#include <wx/filefn.h>
#include <wx/strconv.h>

#include <cstring>
#include <climits>
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace kern {
namespace {

// The wildcard rule on any kind of code unit; a name of plain ASCII bytes
// is matched without first converting it to a wxString.
template <typename T>
bool pastWild(const std::wstring& p, const T* t, size_t n, bool puntApart)
{
    if (n == 0)
        return p.empty();
    if (puntApart && t[0] == T('.'))
        return false;
    const size_t m = p.size();
    size_t i = 0, j = 0;
    size_t naSter = std::wstring::npos, sterTekst = 0;
    while (j < n) {
        if (i < m && p[i] == L'*') {
            naSter = ++i;
            sterTekst = j;
            continue;
        }
        if (i < m && p[i] == L'?') {
            ++i;
            ++j;
            continue;
        }
        if (i < m) {
            size_t k = i;
            if (p[k] == L'\\' && ++k == m)
                return false; // a quote with nothing behind it
            if (static_cast<wchar_t>(static_cast<std::make_unsigned_t<T>>(t[j])) == p[k]) {
                i = k + 1;
                ++j;
                continue;
            }
        }
        if (naSter == std::wstring::npos)
            return false;
        i = naSter;
        j = ++sterTekst;
    }
    while (i < m && p[i] == L'*')
        ++i;
    return i == m;
}

bool isAscii(const char* s, size_t& lengte)
{
    bool ascii = true;
    const char* b = s;
    for (; *s; ++s)
        ascii = ascii && static_cast<unsigned char>(*s) < 0x80;
    lengte = static_cast<size_t>(s - b);
    return ascii;
}

struct MapId {
    dev_t dev;
    ino_t ino;
};

class Wandeling {
public:
    Wandeling(const std::vector<wxString>& patronen, const WandelWijze& wijze,
              Volgorde volgorde, const MapOntvanger& ontvanger, std::size_t& overgeslagen,
              Voortgang* voortgang)
        : wijze_(wijze), volgorde_(volgorde), ontvanger_(ontvanger), overgeslagen_(overgeslagen),
          voortgang_(voortgang)
    {
        for (const wxString& p : patronen)
            patronen_.push_back(p.ToStdWstring());
    }

    // Takes over `d`: enters it unless it is already on the path.
    void gaIn(DIR* d, const wxString& prefix);

private:
    std::uint32_t zoekPatronen(const char* naam, size_t lengte, bool ascii,
                               const wxString& naamW) const;
    bool isMap(const dirent* de, const wxString& prefix, const wxString& naam,
               bool betrouwbaar) const;
    void bezoek(DIR* d, const wxString& prefix);
    void telOvergeslagen(DIR* d, const dirent* de, size_t lengte);

    WandelWijze wijze_;
    Volgorde volgorde_;
    const MapOntvanger& ontvanger_;
    std::size_t& overgeslagen_;
    std::vector<std::wstring> patronen_;
    std::vector<MapId> pad_;
    Voortgang* voortgang_;
    bool gestopt_ = false;
};

std::uint32_t Wandeling::zoekPatronen(const char* naam, size_t lengte, bool ascii,
                                      const wxString& naamW) const
{
    std::uint32_t masker = 0;
    const bool puntApart = !wijze_.verborgen;
    for (size_t i = 0; i < patronen_.size(); ++i) {
        const bool past = ascii
            ? pastWild(patronen_[i], naam, lengte, puntApart)
            : ::wxMatchWild(wxString(patronen_[i]), naamW, puntApart);
        if (past)
            masker |= std::uint32_t(1) << i;
    }
    return masker;
}

// The toolkit asks stat (or lstat) on the path it built from the converted
// names; d_type says the same whenever that path is the real one.
bool Wandeling::isMap(const dirent* de, const wxString& prefix, const wxString& naam,
                      bool betrouwbaar) const
{
    if (betrouwbaar) {
        if (de->d_type == DT_DIR)
            return true;
        if (de->d_type == DT_LNK && !wijze_.volgLinks)
            return false;
        if (de->d_type != DT_UNKNOWN && de->d_type != DT_LNK)
            return false;
    }
    struct stat st;
    const wxString pad = prefix + naam;
    const int rc = wijze_.volgLinks ? ::stat(pad.fn_str(), &st) : ::lstat(pad.fn_str(), &st);
    return rc == 0 && S_ISDIR(st.st_mode);
}

// A name left out is counted when it would have mattered: a file that
// matches a pattern, or a directory the walk would have entered. Both are
// judged on the bytes on disk.
void Wandeling::telOvergeslagen(DIR* d, const dirent* de, size_t lengte)
{
    bool map = de->d_type == DT_DIR;
    if (de->d_type == DT_UNKNOWN || (de->d_type == DT_LNK && wijze_.volgLinks)) {
        struct stat st;
        const int vlag = wijze_.volgLinks ? 0 : AT_SYMLINK_NOFOLLOW;
        map = ::fstatat(::dirfd(d), de->d_name, &st, vlag) == 0 && S_ISDIR(st.st_mode);
    }
    if (map ? wijze_.recursief : zoekPatronen(de->d_name, lengte, true, wxString()) != 0)
        ++overgeslagen_;
}

void Wandeling::bezoek(DIR* d, const wxString& prefix)
{
    const std::string bytePrefix(prefix.fn_str());
    // In a directory we may read but not search, every stat fails and the
    // toolkit takes each entry for a file.
    const bool zoekbaar = ::faccessat(::dirfd(d), ".", X_OK, AT_EACCESS) == 0;

    std::vector<wxString> submappen;
    std::vector<Treffer> treffers;
    while (const dirent* de = ::readdir(d)) {
        const char* naam = de->d_name;
        if (naam[0] == '.') {
            if (naam[1] == '\0' || (naam[1] == '.' && naam[2] == '\0'))
                continue;
            if (!wijze_.verborgen)
                continue;
        }
        size_t lengte = 0;
        const bool ascii = isAscii(naam, lengte);
        // Plain ASCII converts to itself both ways. Any other name must be
        // UTF-8 (the CMake file is) and come back as the same bytes from
        // the toolkit's conversion; otherwise no text could name the file.
        const wxString naamW = ascii ? wxString::FromAscii(naam, lengte)
                                     : wxString(naam, *wxConvFileName);
        if (!ascii && (wxConvUTF8.ToWChar(nullptr, 0, naam, lengte) == wxCONV_FAILED
                       || naamW.empty() || std::strcmp(naamW.fn_str(), naam) != 0)) {
            telOvergeslagen(d, de, lengte);
            continue;
        }
        const bool betrouwbaar = zoekbaar && bytePrefix.size() + lengte < PATH_MAX;

        if (isMap(de, prefix, naamW, betrouwbaar)) {
            if (wijze_.recursief)
                submappen.push_back(naamW);
            continue;
        }
        const std::uint32_t masker = zoekPatronen(naam, lengte, ascii, naamW);
        if (masker != 0)
            treffers.push_back(Treffer{naamW, masker});
    }
    ::closedir(d);

    if (voortgang_) {
        voortgang_->mappen.fetch_add(1, std::memory_order_relaxed);
        voortgang_->bestanden.fetch_add(treffers.size(), std::memory_order_relaxed);
        gestopt_ = gestopt_ || voortgang_->isAfgebroken();
    }
    const auto geefAf = [&]() {
        if (!gestopt_ && !treffers.empty() && !ontvanger_(prefix, treffers))
            gestopt_ = true;
    };
    if (volgorde_ == Volgorde::EigenBestandenEerst)
        geefAf();
    for (const wxString& sub : submappen) {
        if (gestopt_)
            return;
        const wxString pad = prefix + sub;
        if (DIR* sd = ::opendir(pad.fn_str()))
            gaIn(sd, pad + wxS('/'));
    }
    if (volgorde_ == Volgorde::SubmappenEerst && !gestopt_)
        geefAf();
}

void Wandeling::gaIn(DIR* d, const wxString& prefix)
{
    struct stat st;
    bool bekend = ::fstat(::dirfd(d), &st) != 0;
    for (const MapId& id : pad_)
        bekend = bekend || (id.dev == st.st_dev && id.ino == st.st_ino);
    if (bekend) {
        ::closedir(d);
        return;
    }
    pad_.push_back(MapId{st.st_dev, st.st_ino});
    bezoek(d, prefix);
    pad_.pop_back();
}

// The toolkit's name of an opened directory with its separator: trailing
// separators dropped (the root keeps its one), then one added.
wxString geefPrefix(const wxString& map)
{
    size_t n = map.length();
    while (n > 1 && map[n - 1] == wxS('/'))
        --n;
    wxString prefix = map.Left(n);
    if (prefix.Last() != wxS('/'))
        prefix += wxS('/');
    return prefix;
}

} // namespace

bool wandel(const wxString& map, const std::vector<wxString>& patronen,
            const WandelWijze& wijze, Volgorde volgorde,
            const MapOntvanger& ontvanger, std::size_t* overgeslagen, Voortgang* voortgang)
{
    wxASSERT_MSG(patronen.size() <= 32, "te veel patronen voor één wandeling");
    if (map.empty())
        return false;
    DIR* d = ::opendir(map.fn_str());
    if (!d)
        return false;
    std::size_t geteld = 0;
    Wandeling(patronen, wijze, volgorde, ontvanger, geteld, voortgang).gaIn(d, geefPrefix(map));
    if (overgeslagen)
        *overgeslagen += geteld;
    return true;
}

bool pastPatroon(const wxString& patroon, const wxString& naam, bool puntApart)
{
    const std::wstring t = naam.ToStdWstring();
    return pastWild(patroon.ToStdWstring(), t.data(), t.size(), puntApart);
}

} // namespace kern
