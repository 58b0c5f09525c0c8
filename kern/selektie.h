#pragma once
// The entries of the "Source Files" list with their check marks, kept
// compact for a million files: each directory once, each entry as its
// directory's number and its name in UTF-8, the check marks in a bit
// vector, and a hash table of entry numbers for the duplicate check of the
// Add command. The window shows this store as it is; the generators read
// the checked entries from it.
//
// Entries are compared exactly: case-sensitively, on the whole path. An
// entry is split at its last separator: the directory keeps the separator,
// so that directory + name gives the path back as it was added.
#include <wx/arrstr.h>
#include <wx/string.h>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace kern {

struct Vondst;

// CMake splits every list on ';' whatever the quoting, and reads '\' in a
// source path as an escape or a separator, and expands "${" even inside
// quotes: no CMake text names a path that holds any of them, so such a path
// is never taken into the selection.
bool kanCMakeNoemen(const wxString& pad);
bool kanCMakeNoemenUtf8(std::string_view utf8);

// The one message after an Add that left names out: those no CMake text
// could name (not UTF-8, or holding ';', '\' or "${").
wxString geefOvergeslagenMelding(std::size_t aantal);

class BronSelektie {
public:
    using DubbelMelder = std::function<void(const wxString& pad)>;

    // Takes `paden` in order: a path not yet present is appended and
    // returned (in order) for the list to append checked; a path that is
    // present, also one that appeared earlier in the same batch, is passed
    // to `meldDubbel` at its place in the order and not added.
    wxArrayString voegToe(const wxArrayString& paden, const DubbelMelder& meldDubbel);

    // One path: appended and true when it is new, false when present.
    bool voegToe(const wxString& pad);
    // The same for a directory (UTF-8, ending in its separator) and a name.
    bool voegToe(std::string_view map, std::string_view naam);

    // What a walk found, pattern by pattern, as voegToe(paden, ...) would
    // take it; paths no CMake text can name are counted in `overgeslagen`
    // and left out. Returns the number of entries appended.
    std::size_t voegToe(const Vondst& vondst, const DubbelMelder& meldDubbel, std::size_t& overgeslagen);
    // The same for the entries `van` up to `tot` of the find, counted over
    // its patterns in order: a large find is taken in slices.
    std::size_t voegToe(const Vondst& vondst, std::size_t van, std::size_t tot, const DubbelMelder& meldDubbel,
                        std::size_t& overgeslagen);

    // Removes every entry.
    void wis();

    bool bevat(const wxString& pad) const;
    // The entry holding `pad`, or -1.
    long zoek(const wxString& pad) const;
    size_t aantal() const { return mapVan_.size(); }
    wxString geef(size_t index) const;

    // The compact form: entry -> directory number, directory text, name.
    std::uint32_t geefMapNummer(size_t index) const { return mapVan_[index]; }
    size_t aantalMappen() const { return mappen_.size(); }
    const std::string& geefMap(std::uint32_t map) const { return *mappen_[map]; }
    std::string_view geefNaam(size_t index) const
    {
        const std::uint32_t begin = index == 0 ? 0 : naamEind_[index - 1];
        return std::string_view(namen_).substr(begin, naamEind_[index] - begin);
    }

    // The check marks: an entry is appended checked; only checked entries
    // go into the CMake file.
    bool isAangevinkt(size_t index) const { return vinkjes_[index]; }
    void zetAangevinkt(size_t index, bool aan) { vinkjes_[index] = aan; }
    void zetAllesAangevinkt(bool aan);
    // Flips the check mark of every entry in the directory of entry `index`.
    void wisselMap(size_t index);

private:
    std::uint32_t geefMapNummer(std::string_view map);
    size_t geefHash(std::uint32_t map, std::string_view naam) const;
    long zoek(std::string_view map, std::string_view naam) const;
    void groei();

    std::unordered_map<std::string, std::uint32_t> mapIndex_;
    std::vector<const std::string*> mappen_; // the keys of mapIndex_, by number
    std::vector<std::uint32_t> mapVan_;
    std::vector<std::uint32_t> naamEind_;    // where each name ends in namen_
    std::string namen_;
    std::vector<bool> vinkjes_;
    std::vector<std::uint32_t> tabel_;       // entry + 1 per slot, 0 free
};

} // namespace kern
