#include "kern/bestand.h"

#include <wx/log.h>
#include <wx/mstream.h>
#include <wx/txtstrm.h>

#include <atomic>
#include <random>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace kern {

namespace {

// Not an errno value: the path names something other than a regular file.
constexpr int GeenGewoonBestand = -1;
// Not an errno value: a rename would lose the file's owner or group.
constexpr int EigenaarVerloren = -2;

bool mislukt(wxString* reden, int fout)
{
    if (reden)
        *reden = fout == GeenGewoonBestand ? wxString("not a regular file")
                                           : wxSysErrorMsgStr(static_cast<unsigned long>(fout));
    return false;
}

std::string geefMap(const std::string& pad)
{
    const std::size_t streep = pad.rfind('/');
    if (streep == std::string::npos)
        return ".";
    return streep == 0 ? "/" : pad.substr(0, streep);
}

// Follows symbolic links to the path the content really lives at.
int volgLinks(std::string& pad)
{
    for (int n = 0; n < 40; ++n) {
        struct stat st;
        if (::lstat(pad.c_str(), &st) != 0 || !S_ISLNK(st.st_mode))
            return 0;
        char doel[PATH_MAX];
        const ssize_t lengte = ::readlink(pad.c_str(), doel, sizeof doel - 1);
        if (lengte < 0)
            return errno;
        const std::string naar(doel, static_cast<std::size_t>(lengte));
        pad = naar[0] == '/' ? naar : geefMap(pad) + "/" + naar;
    }
    return ELOOP;
}

int schrijfAlles(int fd, const std::string& inhoud)
{
    for (std::size_t n = 0; n < inhoud.size();) {
        const ssize_t w = ::pwrite(fd, inhoud.data() + n, inhoud.size() - n, static_cast<off_t>(n));
        if (w < 0 && errno == EINTR)
            continue;
        if (w <= 0)
            return w < 0 ? errno : EIO;
        n += static_cast<std::size_t>(w);
    }
    return ::ftruncate(fd, static_cast<off_t>(inhoud.size())) == 0 && ::fsync(fd) == 0 ? 0 : errno;
}

int leesAlles(const std::string& pad, std::string& inhoud)
{
    const int fd = ::open(pad.c_str(), O_RDONLY | O_CLOEXEC);
    if (fd < 0)
        return errno;
    char blok[65536];
    ssize_t n;
    while ((n = ::read(fd, blok, sizeof blok)) > 0 || (n < 0 && errno == EINTR))
        if (n > 0)
            inhoud.append(blok, static_cast<std::size_t>(n));
    const int fout = n < 0 ? errno : 0;
    ::close(fd);
    return fout;
}

void syncMap(const std::string& map)
{
    const int fd = ::open(map.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd >= 0) {
        ::fsync(fd);
        ::close(fd);
    }
}

// A free name for a temporary file beside `doel` that says where it comes from.
std::string geefTijdelijkeNaam(const std::string& map, const std::string& doel)
{
    static std::atomic<unsigned> teller{std::random_device{}()};
    static const char tekens[] = "abcdefghijklmnopqrstuvwxyz0123456789";
    unsigned waarde = (teller++ ^ static_cast<unsigned>(::getpid())) * 2654435761u;
    std::string achtervoegsel;
    for (int i = 0; i < 6; ++i, waarde /= 36)
        achtervoegsel += tekens[waarde % 36];
    return map + "/." + doel.substr(doel.rfind('/') + 1) + ".klavermol-" + achtervoegsel;
}

// Creates a named temporary file beside `doel` holding `inhoud`, synced.
int maakKopie(const std::string& map, const std::string& doel, const std::string& inhoud, std::string& naam)
{
    int fd = -1;
    for (int poging = 0; fd < 0 && poging < 100; ++poging) {
        naam = geefTijdelijkeNaam(map, doel);
        fd = ::open(naam.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
        if (fd < 0 && errno != EEXIST)
            return errno;
    }
    if (fd < 0)
        return EEXIST;
    const int fout = schrijfAlles(fd, inhoud);
    if (::close(fd) != 0 || fout != 0) {
        ::unlink(naam.c_str());
        return fout ? fout : EIO;
    }
    return 0;
}

// Gives the new file the old one's owner, group and mode, or the mode a new
// file gets from the umask.
int neemEigenaarOver(int fd, const struct stat* oud)
{
    if (!oud) {
        const mode_t masker = ::umask(0);
        ::umask(masker);
        return ::fchmod(fd, 0666 & ~masker) == 0 ? 0 : errno;
    }
    struct stat nieuw;
    if (::fstat(fd, &nieuw) != 0)
        return errno;
    if ((nieuw.st_uid != oud->st_uid || nieuw.st_gid != oud->st_gid)
        && ::fchown(fd, oud->st_uid, oud->st_gid) != 0)
        return EigenaarVerloren;
    return ::fchmod(fd, oud->st_mode & 07777) == 0 ? 0 : errno;
}

// Writes a file with no name in `map` and gives it a temporary name; -1 and
// no file where the file system cannot do that.
int schrijfNaamloos(const std::string& map, const std::string& doel, const std::string& inhoud,
                    const struct stat* oud, std::string& naam)
{
    const int fd = ::open(map.c_str(), O_TMPFILE | O_WRONLY | O_CLOEXEC, 0600);
    if (fd < 0)
        return errno == EACCES || errno == ENOSPC || errno == EROFS || errno == EDQUOT ? errno : -1;
    int fout = neemEigenaarOver(fd, oud);
    if (fout == 0)
        fout = schrijfAlles(fd, inhoud);
    if (fout == 0) {
        const std::string fdPad = "/proc/self/fd/" + std::to_string(fd);
        fout = -1;
        for (int poging = 0; fout == -1 && poging < 100; ++poging) {
            naam = geefTijdelijkeNaam(map, doel);
            if (::linkat(AT_FDCWD, fdPad.c_str(), AT_FDCWD, naam.c_str(), AT_SYMLINK_FOLLOW) == 0)
                fout = 0;
            else if (errno != EEXIST)
                break;
        }
    }
    ::close(fd);
    return fout;
}

int schrijfMetNaam(const std::string& map, const std::string& doel, const std::string& inhoud,
                   const struct stat* oud, std::string& naam)
{
    int fout = maakKopie(map, doel, inhoud, naam);
    if (fout != 0)
        return fout;
    const int fd = ::open(naam.c_str(), O_RDONLY | O_CLOEXEC);
    fout = fd < 0 ? errno : neemEigenaarOver(fd, oud);
    if (fd >= 0)
        ::close(fd);
    if (fout != 0)
        ::unlink(naam.c_str());
    return fout;
}

// A new file beside the target, synced, renamed over it, and the directory
// synced: the target is at every moment either the old file or the new one.
int vervangDoorHernoemen(const std::string& map, const std::string& doel, const std::string& inhoud,
                         const struct stat* oud)
{
    std::string naam;
    int fout = schrijfNaamloos(map, doel, inhoud, oud, naam);
    if (fout == -1)
        fout = schrijfMetNaam(map, doel, inhoud, oud, naam);
    if (fout != 0)
        return fout;
    if (::rename(naam.c_str(), doel.c_str()) != 0) {
        fout = errno;
        ::unlink(naam.c_str());
        return fout;
    }
    syncMap(map);
    return 0;
}

// Overwrites the file itself, for a file that must keep its inode. The old
// content is copied beside it (or to the temporary directory when its own
// is not writable) first, and put back if the write fails.
int vervangInPlaats(const std::string& map, const std::string& doel, const std::string& inhoud)
{
    std::string oud;
    int fout = leesAlles(doel, oud);
    if (fout != 0)
        return fout;
    std::string kopie;
    fout = ::access(map.c_str(), W_OK | X_OK) == 0 ? maakKopie(map, doel, oud, kopie) : EACCES;
    if (fout != 0) {
        const char* tmp = std::getenv("TMPDIR");
        fout = maakKopie(tmp && *tmp ? tmp : "/tmp", doel, oud, kopie);
    }
    if (fout != 0)
        return fout;
    const int fd = ::open(doel.c_str(), O_WRONLY | O_CLOEXEC);
    if (fd < 0) {
        fout = errno;
        ::unlink(kopie.c_str());
        return fout;
    }
    // Room for the whole text first, so that a full disk fails before any byte changes.
    fout = ::fallocate(fd, FALLOC_FL_KEEP_SIZE, 0, static_cast<off_t>(inhoud.size())) == 0 ? 0 : errno;
    if (fout == EOPNOTSUPP || fout == ENOSYS || fout == EINVAL)
        fout = 0;
    if (fout == 0)
        fout = schrijfAlles(fd, inhoud);
    const bool hersteld = fout == 0 || schrijfAlles(fd, oud) == 0;
    if (::close(fd) != 0 && fout == 0)
        fout = errno;
    if (hersteld)
        ::unlink(kopie.c_str());
    return fout;
}

} // namespace

std::string geefPadBytes(const wxString& pad)
{
    const wxScopedCharBuffer bytes = pad.fn_str();
    if (bytes.length() > 0 || pad.empty())
        return std::string(bytes.data(), bytes.length());
    return pad.utf8_string();
}

bool vervangBestand(const std::string& pad, const std::string& inhoud, wxString* reden)
{
    std::string doel = pad;
    int fout = volgLinks(doel);
    if (fout != 0)
        return mislukt(reden, fout);
    const std::string map = geefMap(doel);
    struct stat st;
    const bool bestaat = ::stat(doel.c_str(), &st) == 0;
    if (!bestaat && errno != ENOENT)
        return mislukt(reden, errno);
    if (bestaat) {
        if (S_ISDIR(st.st_mode))
            return mislukt(reden, EISDIR);
        if (!S_ISREG(st.st_mode))
            return mislukt(reden, GeenGewoonBestand);
        // A file marked read-only is refused for every user, root included,
        // though replacing it through a rename would succeed.
        if ((st.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) == 0)
            return mislukt(reden, EACCES);
        if (::access(doel.c_str(), W_OK) != 0)
            return mislukt(reden, errno);
    }
    const bool inPlaats = bestaat && (st.st_nlink > 1 || ::access(map.c_str(), W_OK | X_OK) != 0);
    fout = inPlaats ? EigenaarVerloren : vervangDoorHernoemen(map, doel, inhoud, bestaat ? &st : nullptr);
    if (fout == EigenaarVerloren)
        fout = vervangInPlaats(map, doel, inhoud);
    return fout == 0 || mislukt(reden, fout);
}

bool schrijfTekstBestand(const wxString& pad, const std::string& utf8, wxString* reden)
{
    return vervangBestand(geefPadBytes(pad), utf8, reden);
}

bool schrijfTekstBestand(const wxString& pad, const wxString& tekst, wxString* reden)
{
    wxMemoryOutputStream geheugen;
    {
        wxTextOutputStream tekstStroom(geheugen, wxEOL_NATIVE, wxConvUTF8);
        tekstStroom.WriteString(tekst);
        tekstStroom.Flush();
    }
    std::string inhoud(geheugen.GetLength(), '\0');
    geheugen.CopyTo(inhoud.data(), inhoud.size());
    return schrijfTekstBestand(pad, inhoud, reden);
}

} // namespace kern
