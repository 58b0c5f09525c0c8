#pragma once
// General pieces shared by the maker's desktop programs.
#include <wx/filename.h>
#include <wx/log.h>

#include <cstddef>
#include <vector>

// A back/forward history of values with a current index. After an append
// the index stands one past the last entry; Back and Forward (the users of
// this class) step it before they fetch.
template <typename T>
class GeschiedenisLijst
{
public:
    // Records x: an entry that is the same as x only becomes current; else x
    // is inserted just before the entry at the index when the index is inside
    // the list (and not 0), or appended, moving the index one on.
    void voegToe(const T& x)
    {
        for (std::size_t p = 0; p < voorwerpen.size(); ++p) {
            if (isZelfde(voorwerpen[p], x)) {
                huidigeIndex = p;
                logIndex();
                return;
            }
        }
        if (huidigeIndex != 0 && huidigeIndex < voorwerpen.size() - 1) {
            voorwerpen.insert(voorwerpen.begin() + static_cast<std::ptrdiff_t>(huidigeIndex - 1), x);
        } else {
            voorwerpen.push_back(x);
            ++huidigeIndex;
        }
        logIndex();
    }

    // The entry at the current index; throws std::out_of_range when the
    // index is not below the entry count.
    T geefHuidigVoorwerp() const
    {
        logIndex();
        return voorwerpen.at(huidigeIndex);
    }

    std::size_t geefIndex() const { return huidigeIndex; }
    void zetIndex(std::size_t index) { huidigeIndex = index; }
    std::size_t geefAantal() const { return voorwerpen.size(); }
    const std::vector<T>& geefVoorwerpen() const { return voorwerpen; }

private:
    static bool isZelfde(const T& a, const T& b);

    void logIndex() const { wxLogDebug("Huidige Index = %d", static_cast<int>(huidigeIndex)); }

    std::vector<T> voorwerpen;
    std::size_t huidigeIndex = 0;
};

// Equality per type: file names compare the toolkit's way, the rest with ==.
template <typename T>
bool GeschiedenisLijst<T>::isZelfde(const T& a, const T& b)
{
    return a == b;
}

template <>
inline bool GeschiedenisLijst<wxFileName>::isZelfde(const wxFileName& a, const wxFileName& b)
{
    return a.SameAs(b, wxPATH_NATIVE);
}
