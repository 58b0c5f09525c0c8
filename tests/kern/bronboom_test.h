#pragma once
// A throw-away directory tree, and the toolkit's own answers to compare the source search against.
#include "kern/bronzoeker.h"

#include <gtest/gtest.h>
#include <wx/dir.h>

#include <filesystem>
#include <fstream>
#include <random>
#include <set>

struct TijdelijkeBoom {
    std::string wortel_ = (std::filesystem::temp_directory_path() / "klavermol-bron-XXXXXX").string();
    TijdelijkeBoom() { EXPECT_NE(::mkdtemp(wortel_.data()), nullptr) << wortel_; }
    ~TijdelijkeBoom() { std::error_code fout; std::filesystem::remove_all(wortel_, fout); }
    wxString map(const std::string& rel = {}) const { return wxString::FromUTF8(rel.empty() ? wortel_ : pad(rel)); }
    std::string pad(const std::string& rel) const { return wortel_ + "/" + rel; }
    void maakMap(const std::string& rel) const { std::filesystem::create_directories(pad(rel)); }
    void maakBestand(const std::string& rel, const std::string& inhoud = "x") const
    { maakMap(std::filesystem::path(rel).parent_path()), std::ofstream(pad(rel)) << inhoud; }
    void maakLink(const std::string& naar, const std::string& r) const { std::filesystem::create_symlink(naar, pad(r)); }
};

// Mode 1 the directory, 2 the tree, 3 (a walk only) the tree without following links.
inline int geefToolkitVlaggen(int modus) { return wxDIR_FILES | (modus >= 2 ? wxDIR_DIRS : 0) | (modus != 2 ? wxDIR_NO_FOLLOW : 0); }

// The toolkit's files per pattern, less names not on disk (not UTF-8), non-regular files and repeats via links.
inline wxArrayString verzamelPerPatroon(const wxString& map, const std::vector<wxString>& patronen, int vlaggen)
{
    wxArrayString echt;
    for (const wxString& p : patronen) {
        wxArrayString alles;
        wxDir::GetAllFiles(map, &alles, p, vlaggen);
        std::set<std::string> gezien;
        for (const wxString& pad : alles) {
            const std::filesystem::path bytes(pad.fn_str().data());
            std::error_code fout;
            const auto echteMap = std::filesystem::canonical(bytes.parent_path(), fout);
            if (std::filesystem::is_regular_file(bytes, fout) && gezien.insert(echteMap / bytes.filename()).second)
                echt.Add(pad);
        }
    }
    return echt;
}

inline std::string onder(const std::string& m, const std::string& naam) { return m.empty() ? naam : m + "/" + naam; }

// A random tree: mixed case, hidden and non-UTF-8 names, links to files, broken ones, and acyclic ones into "d0".
inline void maakWillekeurigeBoom(const TijdelijkeBoom& boom, unsigned zaad)
{
    std::mt19937 rnd(zaad);
    const auto kans = [&rnd](unsigned n) { return rnd() % n == 0; };
    const auto kies = [&rnd](const std::vector<std::string>& v) { return v[rnd() % v.size()]; };
    std::vector<std::string> ext{".c"}, mappen{"", "d0"}, bestanden, doelen, plekken;
    for (const char* e : {".C", ".h", ".H", ".hpp", ".HPP", ".cpp", ".cxx", ".CXX", ".s", ".S", ".txt", ".c.orig",
                          "", ".cc", ".hp"})
        if (kans(2))
            ext.push_back(e);
    const auto geefNaam = [&](int i) {
        std::string naam = std::string(kans(15) ? "b\xff" : "") + (kans(10) ? "\xc3\xa9" : ""); // not UTF-8, é
        for (unsigned n = 1 + rnd() % 3; n > 0; --n)
            naam += "aAbBxX"[rnd() % 6];
        return (kans(8) ? "." : "") + naam + std::to_string(i);
    };
    for (int i = 0; i < 14; ++i)
        boom.maakMap(i == 0 ? "d0" : mappen.emplace_back(onder(kies(mappen), geefNaam(i))));
    for (int i = 0; i < 45; ++i)
        boom.maakBestand(bestanden.emplace_back(onder(kies(mappen), geefNaam(i) + kies(ext))));
    for (const auto& m : mappen)
        (m.rfind("d0", 0) == 0 ? doelen : plekken).push_back(m);
    for (int i = 0; i < 12; ++i) // 6 to files, 2 broken, 4 to directories
        boom.maakLink(i < 6 ? boom.pad(kies(bestanden)) : i < 8 ? "nergens" : boom.pad(kies(doelen)),
                      onder(kies(i < 8 ? mappen : plekken), "l" + std::to_string(i / 6) + geefNaam(i) + kies(ext)));
}

inline std::vector<kern::Families> geefAlleFamilies()
{
    std::vector<kern::Families> alle(16);
    for (int i = 0; i < 16; ++i)
        alle[i] = {(i & 1) != 0, (i & 2) != 0, (i & 4) != 0, (i & 8) != 0};
    return alle;
}
