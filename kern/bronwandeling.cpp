#include "kern/bronwandeling.h"

#include <wx/debug.h>
#include <wx/filefn.h>
#include <wx/strconv.h>

#include <cerrno>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <linux/magic.h>
#include <sys/stat.h>
#include <sys/vfs.h>
#include <unistd.h>
#include <unordered_map>
#include <unordered_set>

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

// A name other than plain ASCII that a CMake text can name: valid UTF-8
// that the toolkit's file-name conversion gives back byte for byte.
bool isNoembaar(const char* naam, size_t lengte)
{
    if (wxConvUTF8.ToWChar(nullptr, 0, naam, lengte) == wxCONV_FAILED)
        return false;
    const wxString naamW(naam, *wxConvFileName, lengte);
    return !naamW.empty() && std::strcmp(naamW.fn_str(), naam) == 0;
}

struct MapId {
    dev_t dev;
    ino_t ino;
    bool operator==(const MapId& o) const { return dev == o.dev && ino == o.ino; }
};

struct MapIdHash {
    size_t operator()(const MapId& id) const
    {
        return std::hash<std::uint64_t>()(static_cast<std::uint64_t>(id.ino) * 0x9e3779b97f4a7c15ULL
                                          ^ static_cast<std::uint64_t>(id.dev));
    }
};

// File systems that show the kernel's state rather than stored files: a
// walk that enters them may never end (/proc/N/cwd leads back to /).
bool isPseudo(int fd)
{
    static const unsigned long soorten[] = {
        PROC_SUPER_MAGIC, SYSFS_MAGIC, CGROUP_SUPER_MAGIC, CGROUP2_SUPER_MAGIC, DEBUGFS_MAGIC,
        TRACEFS_MAGIC, SECURITYFS_MAGIC, PSTOREFS_MAGIC, BPF_FS_MAGIC, DEVPTS_SUPER_MAGIC,
        0x19800202UL /* mqueue */, NSFS_MAGIC, 0x62656570UL /* configfs */, 0x65735543UL /* fusectl */,
        SELINUX_MAGIC, SMACK_MAGIC, EFIVARFS_MAGIC, BINFMTFS_MAGIC, HUGETLBFS_MAGIC};
    struct statfs fs;
    if (::fstatfs(fd, &fs) != 0)
        return false;
    for (unsigned long soort : soorten)
        if (static_cast<unsigned long>(fs.f_type) == soort)
            return true;
    return false;
}

// The device nodes under /dev: devtmpfs calls itself tmpfs, so it is told
// by its place instead, when /dev is a file system of its own.
bool isApparatenMap(dev_t dev)
{
    static const dev_t apparaten = [] {
        struct stat dev, wortel;
        const bool eigen = ::stat("/dev", &dev) == 0 && ::stat("/", &wortel) == 0 && dev.st_dev != wortel.st_dev;
        return eigen ? dev.st_dev : dev_t(-1);
    }();
    return dev == apparaten;
}

enum class Soort { Geen, Bestand, Map };

class Wandeling {
public:
    Wandeling(const std::vector<wxString>& patronen, const WandelWijze& wijze,
              Volgorde volgorde, const RuweOntvanger& ontvanger, std::size_t& overgeslagen,
              Voortgang* voortgang)
        : wijze_(wijze), volgorde_(volgorde), ontvanger_(ontvanger), overgeslagen_(overgeslagen),
          voortgang_(voortgang)
    {
        for (const wxString& p : patronen)
            patronen_.push_back(p.ToStdWstring());
    }

    // Takes over the descriptor `fd`: reads the directory unless it was
    // read before in this walk or lies on a pseudo file system.
    void gaIn(int fd, std::string& prefix);

private:
    std::uint32_t zoekPatronen(const char* naam, size_t lengte, bool ascii) const;
    Soort geefSoort(int fd, const dirent* de) const;
    bool magIn(int fd);
    void bezoek(DIR* d, std::string& prefix);

    WandelWijze wijze_;
    Volgorde volgorde_;
    const RuweOntvanger& ontvanger_;
    std::size_t& overgeslagen_;
    std::vector<std::wstring> patronen_;
    std::unordered_set<MapId, MapIdHash> gezien_;
    std::unordered_map<dev_t, bool> pseudo_;
    dev_t wortelDev_ = 0;
    Voortgang* voortgang_;
    bool gestopt_ = false;
};

std::uint32_t Wandeling::zoekPatronen(const char* naam, size_t lengte, bool ascii) const
{
    std::uint32_t masker = 0;
    const bool puntApart = !wijze_.verborgen;
    const wxString naamW = ascii ? wxString() : wxString::FromUTF8(naam, lengte);
    for (size_t i = 0; i < patronen_.size(); ++i) {
        const bool past = ascii
            ? pastWild(patronen_[i], naam, lengte, puntApart)
            : ::wxMatchWild(wxString(patronen_[i]), naamW, puntApart);
        if (past)
            masker |= std::uint32_t(1) << i;
    }
    return masker;
}

// What an entry is, from readdir's type where it tells, otherwise from its
// status. In a directory that may be read but not searched only the type
// is known: a link or an entry of unknown type there is nothing.
Soort Wandeling::geefSoort(int fd, const dirent* de) const
{
    unsigned char type = de->d_type;
    struct stat st;
    if (type == DT_UNKNOWN) {
        if (::fstatat(fd, de->d_name, &st, AT_SYMLINK_NOFOLLOW) != 0)
            return Soort::Geen;
        type = S_ISLNK(st.st_mode) ? DT_LNK : S_ISDIR(st.st_mode) ? DT_DIR : S_ISREG(st.st_mode) ? DT_REG : DT_FIFO;
    }
    if (type == DT_REG)
        return Soort::Bestand;
    if (type == DT_DIR)
        return Soort::Map;
    if (type != DT_LNK || ::fstatat(fd, de->d_name, &st, 0) != 0)
        return Soort::Geen;
    if (S_ISREG(st.st_mode))
        return Soort::Bestand;
    return S_ISDIR(st.st_mode) && wijze_.volgLinks ? Soort::Map : Soort::Geen;
}

bool Wandeling::magIn(int fd)
{
    struct stat st;
    if (::fstat(fd, &st) != 0 || !gezien_.insert(MapId{st.st_dev, st.st_ino}).second)
        return false;
    if (gezien_.size() == 1)
        wortelDev_ = st.st_dev; // the user picked this one: read it whatever it is
    if (st.st_dev == wortelDev_)
        return true;
    auto plek = pseudo_.find(st.st_dev);
    if (plek == pseudo_.end())
        plek = pseudo_.emplace(st.st_dev, isPseudo(fd) || isApparatenMap(st.st_dev)).first;
    return !plek->second;
}

void Wandeling::bezoek(DIR* d, std::string& prefix)
{
    const int leesFd = ::dirfd(d);
    std::vector<std::string> submappen;
    std::string namen; // the matching names, one after the other
    std::vector<std::pair<size_t, std::uint32_t>> treffers; // end in `namen`, patterns
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
        const Soort soort = geefSoort(leesFd, de);
        if (soort == Soort::Geen || (soort == Soort::Map && !wijze_.recursief))
            continue;
        // Plain ASCII converts to itself both ways. Any other name must be
        // UTF-8 (the CMake file is) and come back as the same bytes from
        // the toolkit's conversion; otherwise no text could name the file
        // (its bytes are matched as they are, to know whether it counts).
        const bool noembaar = ascii || isNoembaar(naam, lengte);
        const std::uint32_t masker =
            soort == Soort::Bestand ? zoekPatronen(naam, lengte, ascii || !noembaar) : 0;
        if (soort == Soort::Bestand && masker == 0)
            continue;
        if (!noembaar) {
            ++overgeslagen_;
            continue;
        }
        if (soort == Soort::Map) {
            submappen.emplace_back(naam, lengte);
            continue;
        }
        namen.append(naam, lengte);
        treffers.emplace_back(namen.size(), masker);
    }

    if (voortgang_) {
        voortgang_->mappen.fetch_add(1, std::memory_order_relaxed);
        voortgang_->bestanden.fetch_add(treffers.size(), std::memory_order_relaxed);
        gestopt_ = gestopt_ || voortgang_->isAfgebroken();
    }
    const auto geefAf = [&]() {
        if (gestopt_ || treffers.empty())
            return;
        std::vector<RuweTreffer> uit;
        uit.reserve(treffers.size());
        size_t begin = 0;
        for (const auto& [eind, masker] : treffers) {
            uit.push_back(RuweTreffer{std::string_view(namen).substr(begin, eind - begin), masker});
            begin = eind;
        }
        gestopt_ = !ontvanger_(prefix, uit);
    };
    if (volgorde_ == Volgorde::EigenBestandenEerst)
        geefAf();
    // Only the descriptor is kept while the sub-directories are read, not
    // the stream's buffer.
    const int fd = submappen.empty() ? -1 : ::dup(::dirfd(d));
    ::closedir(d);
    if (fd < 0) {
        overgeslagen_ += submappen.size(); // out of descriptors
        submappen.clear();
    }
    const size_t lengte = prefix.size();
    const int vlaggen = O_RDONLY | O_DIRECTORY | O_CLOEXEC | (wijze_.volgLinks ? 0 : O_NOFOLLOW);
    for (const std::string& sub : submappen) {
        if (gestopt_)
            break;
        const int subFd = ::openat(fd, sub.c_str(), vlaggen);
        if (subFd < 0) {
            if (errno == EMFILE || errno == ENFILE)
                ++overgeslagen_; // too deep to hold every level open
            continue;
        }
        prefix.append(sub).push_back('/');
        gaIn(subFd, prefix);
        prefix.resize(lengte);
    }
    if (fd >= 0)
        ::close(fd);
    if (volgorde_ == Volgorde::SubmappenEerst)
        geefAf();
}

void Wandeling::gaIn(int fd, std::string& prefix)
{
    DIR* d = magIn(fd) ? ::fdopendir(fd) : nullptr;
    if (!d) {
        ::close(fd);
        return;
    }
    bezoek(d, prefix);
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

bool wandelRuw(const wxString& map, const std::vector<wxString>& patronen,
               const WandelWijze& wijze, Volgorde volgorde,
               const RuweOntvanger& ontvanger, std::size_t* overgeslagen, Voortgang* voortgang)
{
    wxASSERT_MSG(patronen.size() <= 32, "te veel patronen voor één wandeling");
    if (map.empty())
        return false;
    const int fd = ::open(map.fn_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0)
        return false;
    std::size_t geteld = 0;
    std::string prefix(geefPrefix(map).utf8_str());
    Wandeling(patronen, wijze, volgorde, ontvanger, geteld, voortgang).gaIn(fd, prefix);
    if (overgeslagen)
        *overgeslagen += geteld;
    return true;
}

bool wandel(const wxString& map, const std::vector<wxString>& patronen,
            const WandelWijze& wijze, Volgorde volgorde,
            const MapOntvanger& ontvanger, std::size_t* overgeslagen, Voortgang* voortgang)
{
    std::vector<Treffer> treffers;
    return wandelRuw(map, patronen, wijze, volgorde,
        [&](const std::string& prefix, const std::vector<RuweTreffer>& ruw) {
            treffers.clear();
            for (const RuweTreffer& t : ruw)
                treffers.push_back(Treffer{wxString::FromUTF8(t.naam.data(), t.naam.size()), t.patronen});
            return ontvanger(wxString::FromUTF8(prefix), treffers);
        }, overgeslagen, voortgang);
}

bool pastPatroon(const wxString& patroon, const wxString& naam, bool puntApart)
{
    const std::wstring t = naam.ToStdWstring();
    return pastWild(patroon.ToStdWstring(), t.data(), t.size(), puntApart);
}

} // namespace kern
