#pragma once
// Finding source files for the Add command and the probe of the search
// location. Both walk the directory at most once; the results are those of
// the toolkit's wxDir enumeration pattern by pattern (see bronwandeling.h
// for the traversal rules), except that only regular files count and each
// real directory is read once, so a recursive walk never loops.
#include "kern/voortgang.h"

#include <wx/arrstr.h>
#include <wx/string.h>

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace kern {

// What a walk found, compact: each directory once (UTF-8, ending in its
// separator), each name once (UTF-8, ended by a NUL byte), and per pattern
// the entries in the order the toolkit would give them.
struct Vondst {
    struct Ingang {
        std::uint32_t map;  // in `mappen`
        std::uint32_t naam; // where the name begins in `namen`
    };
    std::vector<std::string> mappen;
    std::string namen;
    std::vector<std::vector<Ingang>> perPatroon;

    std::string_view geefNaam(const Ingang& i) const { return namen.c_str() + i.naam; }
    size_t aantal() const;
    // Calls `doe` for the entries `van` up to `tot`, counted over the
    // patterns in order.
    template <class Doe> void elk(size_t van, size_t tot, Doe doe) const
    {
        size_t plaats = 0; // of the pattern's first entry
        for (const auto& ingangen : perPatroon) {
            const size_t einde = std::clamp(tot, plaats, plaats + ingangen.size()) - plaats;
            for (size_t i = std::clamp(van, plaats, plaats + ingangen.size()) - plaats; i < einde; ++i)
                doe(ingangen[i]);
            plaats += ingangen.size();
        }
    }
    void wis();
};

// Appends paths picked by hand to the compact form, in order, as the list
// of one more pattern.
void voegPadenToe(Vondst& vondst, const wxArrayString& paden);

// The four file-type switches: C, C++, header, assembler.
struct Families {
    bool c = false, cpp = false, h = false, s = false;
};

// The add-mode choice: 0 pick files by hand, 1 the directory itself,
// 2 the directory recursively.
enum VoegToeModus : int { ModusBestanden = 0, ModusMap = 1, ModusRecursief = 2 };

// The patterns of the Add command, in the order it collects them:
//   C: "*.c", with header also "*.h";
//   C++: "*.cpp", "*.cxx", with header "*.hpp" and, only when C is off, "*.h";
//   header alone (C and C++ off): "*.h", "*.hpp";
//   assembler: "*.s", "*.S".
std::vector<wxString> geefPatronen(const Families& aan);

// Appends to `gevonden`, pattern by pattern in the order of geefPatronen,
// every file that wxDir::GetAllFiles(map, ..., pattern, flags) would give:
// mode 1 files directly in `map` (wxDIR_FILES | wxDIR_NO_FOLLOW), mode 2
// the whole tree (wxDIR_FILES | wxDIR_DIRS); hidden entries never. A file
// matching two patterns appears twice; nothing is sorted or removed.
// Other modes collect nothing. Returns false when `map` cannot be opened
// (the caller raises "true == mag"), and then appends nothing. Names no
// CMake text could name (see bronwandeling.h) are left out and added to
// `*overgeslagen` when it is given. With `voortgang` the walk reports its
// counts there and can be stopped from another thread; a stopped walk
// appends nothing.
bool verzamelBestanden(const wxString& map, int modus, const Families& aan,
                       wxArrayString& gevonden, std::size_t* overgeslagen = nullptr,
                       Voortgang* voortgang = nullptr);
// The same into the compact form, which is emptied first; a stopped walk
// leaves it empty.
bool verzamelBestanden(const wxString& map, int modus, const Families& aan,
                       Vondst& vondst, std::size_t* overgeslagen = nullptr,
                       Voortgang* voortgang = nullptr);

// The probe's found flags: found-C, found-C++, found-header, found-assembler.
struct Aanwezig {
    bool c = false, cpp = false, h = false, s = false;
};

// The probe of the search location. Modes 1 and 2 (flags as above): a
// flag of a switched-on type is set from whether a matching file exists:
//   C: "*.c";  C++: "*.cpp" or "*.cxx";  assembler: "*.s" or "*.S";
//   header: with C++ on, "*.hpp" or "*.h" when C is on too, only "*.h"
//   when C is off (the "*.hpp" answer is overwritten by the "*.h" one);
//   with C++ off, "*.h", or also "*.hpp" when C is off as well.
// A flag of a switched-off type is left as it is.
// Mode 0: all four flags are set, whatever the switches, from the
// directory itself as wxDir::HasFiles sees it (no recursion, links
// followed, hidden files count): "*.c"; "*.cpp"/"*.cxx"; "*.h"/"*.hpp";
// "*.s"/"*.S". Other modes change nothing.
// The walk stops as soon as every flag asked for is known to be true.
// Returns false, leaving the flags alone, when `map` cannot be opened.
// With `voortgang` as for verzamelBestanden; a stopped probe leaves the
// flags alone.
bool onderzoekMap(const wxString& map, int modus, const Families& aan, Aanwezig& vlaggen,
                  Voortgang* voortgang = nullptr);

} // namespace kern
