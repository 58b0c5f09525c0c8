#pragma once
// The entries of the "Source Files" list beside a hash set, so that the
// duplicate check of the Add command stays cheap for tens of thousands of
// paths. The window keeps its wxCheckListBox in step with this model:
//
//   wxArrayString nieuw = selektie.voegToe(gevonden, meldDubbel);
//   lijst->Append(nieuw);  then check the appended entries;
//   selektie.wis()  together with  lijst->Clear().
//
// Entries are compared exactly: case-sensitively, on the whole string.
#include <wx/arrstr.h>
#include <wx/string.h>

#include <cstddef>
#include <functional>
#include <unordered_set>
#include <vector>

namespace kern {

// CMake splits every list on ';' whatever the quoting, and reads '\' in a
// source path as an escape or a separator, and expands "${" even inside
// quotes: no CMake text names a path that holds any of them, so such a path
// is never taken into the selection.
bool kanCMakeNoemen(const wxString& pad);

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

    // Removes every entry.
    void wis();

    bool bevat(const wxString& pad) const;
    size_t aantal() const { return lijst_.size(); }
    wxString geef(size_t index) const { return lijst_[index]; }

    // The check marks: an entry is appended checked; only checked entries
    // go into the CMake file.
    bool isAangevinkt(size_t index) const { return vinkjes_[index]; }
    void zetAangevinkt(size_t index, bool aan) { vinkjes_[index] = aan; }
    void zetAllesAangevinkt(bool aan);
    // Flips the check mark of every entry in the directory of entry `index`.
    void wisselMap(size_t index);

private:
    std::vector<wxString> lijst_;
    std::vector<bool> vinkjes_;
    std::unordered_set<wxString> aanwezig_;
};

} // namespace kern
