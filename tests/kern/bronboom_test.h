#pragma once
// A throw-away directory tree, and the toolkit's own answers to compare the
// source search against.
#include "kern/bronzoeker.h"

#include <gtest/gtest.h>
#include <wx/dir.h>

#include <sys/stat.h>

#include <filesystem>
#include <fstream>
#include <random>
#include <set>

class TijdelijkeBoom {
public:
    TijdelijkeBoom()
    {
        std::string sjabloon = (std::filesystem::temp_directory_path() / "klavermol-bron-XXXXXX").string();
        if (::mkdtemp(sjabloon.data()) == nullptr)
            ADD_FAILURE() << "mkdtemp";
        wortel_ = sjabloon;
    }
    ~TijdelijkeBoom()
    {
        std::error_code fout;
        std::filesystem::remove_all(wortel_, fout);
    }
    wxString map(const std::string& rel = {}) const
    {
        return wxString::FromUTF8(rel.empty() ? wortel_ : wortel_ + "/" + rel);
    }
    std::string pad(const std::string& rel) const { return wortel_ + "/" + rel; }

    void maakMap(const std::string& rel) const { std::filesystem::create_directories(pad(rel)); }
    void maakBestand(const std::string& rel, const std::string& inhoud = "x") const
    {
        maakMap(std::filesystem::path(rel).parent_path());
        std::ofstream(pad(rel)) << inhoud;
    }
    void maakLink(const std::string& doel, const std::string& rel) const
    {
        std::filesystem::create_symlink(doel, pad(rel));
    }

private:
    std::string wortel_;
};

inline int geefToolkitVlaggen(int modus)
{
    return modus == 1 ? (wxDIR_FILES | wxDIR_NO_FOLLOW) : (wxDIR_FILES | wxDIR_DIRS);
}

// What the toolkit collects, pattern by pattern, less what the walk leaves
// out on purpose: paths that do not name an entry on disk (a name that is
// not UTF-8, which the toolkit reads as something else), entries that are
// not regular files, and a directory's files a second time (reached again
// through a link).
inline wxArrayString verzamelPerPatroon(const wxString& map, const std::vector<wxString>& patronen,
                                        int vlaggen)
{
    wxArrayString echt;
    for (const wxString& p : patronen) {
        wxArrayString alles;
        wxDir::GetAllFiles(map, &alles, p, vlaggen);
        std::set<std::string> gezien;
        struct stat st;
        for (const wxString& pad : alles) {
            const std::string bytes(pad.fn_str());
            const size_t slash = bytes.rfind('/');
            char* echteMap = ::realpath(bytes.substr(0, slash).c_str(), nullptr);
            const std::string sleutel = (echteMap ? echteMap : "") + bytes.substr(slash);
            std::free(echteMap);
            if (::stat(bytes.c_str(), &st) == 0 && S_ISREG(st.st_mode) && gezien.insert(sleutel).second)
                echt.Add(pad);
        }
    }
    return echt;
}

inline std::string onder(const std::string& map, const std::string& naam)
{
    return map.empty() ? naam : map + "/" + naam;
}

// A tree of random shape: names in mixed case, extensions that differ only
// in case, hidden files and directories, links to files, broken links,
// non-UTF-8 names, and links to directories. Directory links point into
// the sub-tree "d0" and are never placed inside it, so there is no cycle
// and the toolkit's own walk ends too.
inline void maakWillekeurigeBoom(const TijdelijkeBoom& boom, unsigned zaad)
{
    std::mt19937 rnd(zaad);
    const auto kans = [&rnd](unsigned n) { return rnd() % n == 0; };
    const auto kies = [&rnd](const std::vector<std::string>& v) { return v[rnd() % v.size()]; };
    std::vector<std::string> ext{".c"};
    for (const char* e : {".C", ".h", ".H", ".hpp", ".HPP", ".cpp", ".cxx", ".CXX", ".s", ".S", ".txt", ".c.orig",
                          "", ".cc", ".hp"})
        if (kans(2))
            ext.push_back(e);
    const auto geefExt = [&]() { return kies(ext); };
    const auto geefNaam = [&](int i) {
        std::string naam;
        for (unsigned n = 1 + rnd() % 3; n > 0; --n)
            naam += "aAbBxX"[rnd() % 6];
        naam = (kans(10) ? "\xc3\xa9" : "") + naam; // é
        naam = (kans(15) ? "b\xff" : "") + naam;     // not UTF-8
        return (kans(8) ? "." : "") + naam + std::to_string(i);
    };

    std::vector<std::string> mappen{"", "d0"};
    boom.maakMap("d0");
    for (int i = 1; i < 14; ++i) {
        const std::string ouder = kies(mappen);
        mappen.push_back(onder(ouder, geefNaam(i)));
        boom.maakMap(mappen.back());
    }
    std::vector<std::string> bestanden;
    for (int i = 0; i < 45; ++i) {
        bestanden.push_back(onder(kies(mappen), geefNaam(i) + geefExt()));
        boom.maakBestand(bestanden.back());
    }
    for (int i = 0; i < 6; ++i)
        boom.maakLink(boom.pad(kies(bestanden)), onder(kies(mappen), "lf" + geefNaam(i) + geefExt()));
    for (int i = 0; i < 2; ++i)
        boom.maakLink("nergens", onder(kies(mappen), "bl" + geefNaam(i) + geefExt()));
    std::vector<std::string> doelen, plekken;
    for (const auto& m : mappen)
        (m.rfind("d0", 0) == 0 ? doelen : plekken).push_back(m);
    for (int i = 0; i < 4; ++i)
        boom.maakLink(boom.pad(kies(doelen)), onder(kies(plekken), "ld" + geefNaam(i) + geefExt()));
}

inline std::vector<kern::Families> geefAlleFamilies()
{
    std::vector<kern::Families> alle;
    for (int i = 0; i < 16; ++i)
        alle.push_back(kern::Families{(i & 1) != 0, (i & 2) != 0, (i & 4) != 0, (i & 8) != 0});
    return alle;
}
