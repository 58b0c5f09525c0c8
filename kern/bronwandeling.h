#pragma once
// One walk over a directory tree that answers several wildcard patterns at
// once, with exactly the answers the toolkit's wxDir enumeration gives per
// pattern (wxDir::GetAllFiles, FindFirst, HasFiles) on POSIX:
//
//  - a directory is read once; its sub-directories are entered in the order
//    readdir gives them, and only after all of them the directory's own
//    matching files are handed out, again in readdir order (so per pattern
//    the order equals the toolkit's);
//  - "." and ".." are skipped; without `verborgen` every name starting with
//    a dot is skipped, directories included;
//  - only regular files and links to regular files count as files; broken
//    links, fifos, sockets and devices are passed by. With `volgLinks` a
//    link to a directory is a directory, without it nothing;
//  - patterns are matched case-sensitively against the file name with the
//    toolkit's wildcard rules ('*' any run, '?' one character, '\' quotes);
//  - a directory that cannot be opened is passed by silently;
//  - unlike the toolkit, a name that is not valid UTF-8, or that the
//    toolkit's file-name conversion does not give back byte for byte, is
//    left out: no CMake text could name it. Such names are counted when
//    they matter (a matching file, a directory a recursive walk would
//    enter), so the caller can say how many were left out. A directory
//    that cannot be entered for want of file descriptors counts the same;
//  - unlike the toolkit, every real directory (device and inode) is read at
//    most once per walk, however many links or bind mounts lead to it, so
//    a walk always ends and gives every file once;
//  - pseudo file systems (proc, sysfs, cgroup, debugfs, ...) are not
//    entered, except the one the walk starts in;
//  - directories are opened relative to their parent's descriptor, so the
//    depth of a tree and the length of its paths do not matter.
#include "kern/voortgang.h"

#include <wx/string.h>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace kern {

// The toolkit's wxDIR_DIRS, !wxDIR_NO_FOLLOW and wxDIR_HIDDEN.
struct WandelWijze {
    bool recursief = false;
    bool volgLinks = true;
    bool verborgen = false;
};

// A file that matched: its name as the toolkit converts it, and bit i set
// for every pattern i it matches.
struct Treffer {
    wxString naam;
    std::uint32_t patronen = 0;
};

// Receives the matching files of one directory. `prefix` is the directory
// as the toolkit writes it, ending in the separator, so prefix + naam is the
// toolkit's path. Return false to end the walk.
using MapOntvanger =
    std::function<bool(const wxString& prefix, const std::vector<Treffer>&)>;

// The same for the byte form: `prefix` as UTF-8 bytes ending in '/', the
// names as UTF-8 bytes (valid only during the call).
struct RuweTreffer {
    std::string_view naam;
    std::uint32_t patronen = 0;
};
using RuweOntvanger =
    std::function<bool(const std::string& prefix, const std::vector<RuweTreffer>&)>;

// In what order a directory's own files are handed out: after its
// sub-directories (the toolkit's order), or before them (a probe that wants
// to stop early and does not care about order).
enum class Volgorde { SubmappenEerst, EigenBestandenEerst };

// Walks `map` with at most 32 patterns. Returns false when `map` itself
// cannot be opened (nothing is then handed out). The names left out are
// added to `*overgeslagen` when it is given. With `voortgang` the walk
// counts what it has read there and ends early once it is told to stop.
bool wandel(const wxString& map, const std::vector<wxString>& patronen,
            const WandelWijze& wijze, Volgorde volgorde,
            const MapOntvanger& ontvanger, std::size_t* overgeslagen = nullptr,
            Voortgang* voortgang = nullptr);

// The same walk handing out bytes: no text conversion per file.
bool wandelRuw(const wxString& map, const std::vector<wxString>& patronen,
               const WandelWijze& wijze, Volgorde volgorde,
               const RuweOntvanger& ontvanger, std::size_t* overgeslagen = nullptr,
               Voortgang* voortgang = nullptr);

// The toolkit's wildcard match of a name against a pattern; with puntApart
// a name starting with a dot never matches.
bool pastPatroon(const wxString& patroon, const wxString& naam, bool puntApart);

} // namespace kern
