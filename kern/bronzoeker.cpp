#include "kern/bronzoeker.h"

#include "kern/bronwandeling.h"

#include <dirent.h>

namespace kern {
namespace {

bool kanOpenen(const wxString& map)
{
    if (map.empty())
        return false;
    DIR* d = ::opendir(map.fn_str());
    if (d)
        ::closedir(d);
    return d != nullptr;
}

// The enumeration flags of modes 1 and 2.
WandelWijze geefWijze(int modus)
{
    WandelWijze wijze;
    wijze.recursief = modus == ModusRecursief;
    wijze.volgLinks = modus == ModusRecursief;
    wijze.verborgen = false;
    return wijze;
}

// The probe's patterns, one bit each.
enum : std::uint32_t { BitC = 1, BitCpp = 2, BitCxx = 4, BitH = 8, BitHpp = 16, BitS = 32, BitGrootS = 64 };
const std::vector<wxString>& geefProbePatronen()
{
    static const std::vector<wxString> patronen{
        wxS("*.c"), wxS("*.cpp"), wxS("*.cxx"), wxS("*.h"), wxS("*.hpp"), wxS("*.s"), wxS("*.S")};
    return patronen;
}

// One question of the probe: the flag is true when any of the patterns in
// `masker` has a match.
struct Vraag {
    bool* vlag;
    std::uint32_t masker;
};

std::vector<Vraag> geefVragen(int modus, const Families& aan, Aanwezig& v)
{
    if (modus == ModusBestanden)
        return {{&v.c, BitC}, {&v.cpp, BitCpp | BitCxx}, {&v.h, BitH | BitHpp}, {&v.s, BitS | BitGrootS}};
    std::vector<Vraag> vragen;
    if (aan.c)
        vragen.push_back({&v.c, BitC});
    if (aan.cpp)
        vragen.push_back({&v.cpp, BitCpp | BitCxx});
    if (aan.h) {
        // With C++ on, the "*.hpp" answer survives only when C is on too;
        // with C++ off, "*.hpp" counts only when C is off as well.
        const std::uint32_t h = aan.cpp ? (aan.c ? BitH | BitHpp : BitH)
                                        : (aan.c ? BitH : BitH | BitHpp);
        vragen.push_back({&v.h, h});
    }
    if (aan.s)
        vragen.push_back({&v.s, BitS | BitGrootS});
    return vragen;
}

} // namespace

std::vector<wxString> geefPatronen(const Families& aan)
{
    std::vector<wxString> patronen;
    if (aan.c) {
        patronen.push_back(wxS("*.c"));
        if (aan.h)
            patronen.push_back(wxS("*.h"));
    }
    if (aan.cpp) {
        patronen.push_back(wxS("*.cpp"));
        patronen.push_back(wxS("*.cxx"));
        if (aan.h) {
            patronen.push_back(wxS("*.hpp"));
            if (!aan.c)
                patronen.push_back(wxS("*.h"));
        }
    }
    if (aan.h && !aan.c && !aan.cpp) {
        patronen.push_back(wxS("*.h"));
        patronen.push_back(wxS("*.hpp"));
    }
    if (aan.s) {
        patronen.push_back(wxS("*.s"));
        patronen.push_back(wxS("*.S"));
    }
    return patronen;
}

size_t Vondst::aantal() const
{
    size_t n = 0;
    for (const auto& ingangen : perPatroon)
        n += ingangen.size();
    return n;
}

void Vondst::wis()
{
    mappen.clear();
    namen.clear();
    perPatroon.clear();
}

void voegPadenToe(Vondst& vondst, const wxArrayString& paden)
{
    auto& ingangen = vondst.perPatroon.emplace_back();
    for (const wxString& pad : paden) {
        const std::string utf8 = pad.utf8_string();
        const std::size_t naam = utf8.rfind('/') + 1; // 0 without a separator
        if (vondst.mappen.empty() || vondst.mappen.back().compare(0, std::string::npos, utf8, 0, naam) != 0)
            vondst.mappen.emplace_back(utf8, 0, naam);
        ingangen.push_back({static_cast<std::uint32_t>(vondst.mappen.size() - 1),
                            static_cast<std::uint32_t>(vondst.namen.size())});
        vondst.namen.append(utf8, naam).push_back('\0');
    }
}

bool verzamelBestanden(const wxString& map, int modus, const Families& aan,
                       Vondst& vondst, std::size_t* overgeslagen, Voortgang* voortgang)
{
    vondst.wis();
    if (modus != ModusMap && modus != ModusRecursief)
        return true;
    const std::vector<wxString> patronen = geefPatronen(aan);
    if (patronen.empty())
        return kanOpenen(map);

    // One list per pattern; the walk fills them all at once.
    vondst.perPatroon.resize(patronen.size());
    const bool open = wandelRuw(map, patronen, geefWijze(modus), Volgorde::SubmappenEerst,
        [&vondst](const std::string& prefix, const std::vector<RuweTreffer>& treffers) {
            const auto nummer = static_cast<std::uint32_t>(vondst.mappen.size());
            vondst.mappen.push_back(prefix);
            for (const RuweTreffer& t : treffers) {
                const auto naam = static_cast<std::uint32_t>(vondst.namen.size());
                vondst.namen.append(t.naam).push_back('\0');
                for (size_t i = 0; i < vondst.perPatroon.size(); ++i)
                    if (t.patronen & (std::uint32_t(1) << i))
                        vondst.perPatroon[i].push_back(Vondst::Ingang{nummer, naam});
            }
            return true;
        }, overgeslagen, voortgang);
    if (voortgang && voortgang->isAfgebroken())
        vondst.wis();
    return open;
}

bool verzamelBestanden(const wxString& map, int modus, const Families& aan,
                       wxArrayString& gevonden, std::size_t* overgeslagen, Voortgang* voortgang)
{
    Vondst vondst;
    const bool open = verzamelBestanden(map, modus, aan, vondst, overgeslagen, voortgang);
    std::vector<wxString> mappen;
    mappen.reserve(vondst.mappen.size());
    for (const std::string& m : vondst.mappen)
        mappen.push_back(wxString::FromUTF8(m));
    gevonden.Alloc(gevonden.size() + vondst.aantal());
    for (const auto& ingangen : vondst.perPatroon)
        for (const Vondst::Ingang& i : ingangen) {
            const std::string_view naam = vondst.geefNaam(i);
            gevonden.Add(mappen[i.map] + wxString::FromUTF8(naam.data(), naam.size()));
        }
    return open;
}

bool onderzoekMap(const wxString& map, int modus, const Families& aan, Aanwezig& vlaggen,
                  Voortgang* voortgang)
{
    if (modus != ModusBestanden && modus != ModusMap && modus != ModusRecursief)
        return kanOpenen(map);
    Aanwezig nieuw = vlaggen;
    const std::vector<Vraag> vragen = geefVragen(modus, aan, nieuw);
    if (vragen.empty())
        return kanOpenen(map);

    WandelWijze wijze = geefWijze(modus);
    if (modus == ModusBestanden) {
        wijze.volgLinks = true;
        wijze.verborgen = true;
    }
    std::uint32_t gezien = 0;
    const bool open = wandelRuw(map, geefProbePatronen(), wijze, Volgorde::EigenBestandenEerst,
        [&](const std::string&, const std::vector<RuweTreffer>& treffers) {
            for (const RuweTreffer& t : treffers)
                gezien |= t.patronen;
            for (const Vraag& v : vragen)
                if ((gezien & v.masker) == 0)
                    return true;
            return false; // every flag asked for is true: stop
        }, nullptr, voortgang);
    if (!open)
        return false;
    if (voortgang && voortgang->isAfgebroken())
        return true;
    for (const Vraag& v : vragen)
        *v.vlag = (gezien & v.masker) != 0;
    vlaggen = nieuw;
    return true;
}

} // namespace kern
