// klavermol-cli: the generators on the command line, for scripted
// re-generation. Entries are collected in command-line order exactly as the
// main window's Add does, and the text is the one Execute would show.
#include "kern/bestand.h"
#include "kern/bronzoeker.h"
#include "kern/cmakecontrole.h"
#include "kern/generator.h"
#include "kern/selektie.h"
#include "kern/tekst.h"

#include <wx/cmdline.h>
#include <wx/fileconf.h>
#include <wx/filename.h>
#include <wx/init.h>
#include <wx/log.h>
#include <wx/wfstream.h>

#include <cstdio>
#include <cstring>
#include <memory>
#include <set>

namespace {

enum Afloop { Gelukt = 0, Fout = 1, VerkeerdGebruik = 2 };

const wxCmdLineEntryDesc beschrijving[] = {
    {wxCMD_LINE_OPTION, "k", "kind", "project|library|include (default project)"},
    {wxCMD_LINE_OPTION, "n", "name", "project, library or include name (default MyFirstProject)"},
    {wxCMD_LINE_OPTION, "o", "output-dir", "output directory; every path is made relative to it",
     wxCMD_LINE_VAL_STRING, wxCMD_LINE_OPTION_MANDATORY},
    {wxCMD_LINE_OPTION, "t", "project-type", "standard|crosscompile (default standard)"},
    {wxCMD_LINE_OPTION, "l", "library-type", "static|dynamic|object (default static)"},
    {wxCMD_LINE_OPTION, "m", "mode", "directory|recursive: how each DIR is searched (default directory)"},
    {wxCMD_LINE_SWITCH, nullptr, "c", "collect C files (*.c)"},
    {wxCMD_LINE_SWITCH, nullptr, "cpp", "collect C++ files (*.cpp, *.cxx)"},
    {wxCMD_LINE_SWITCH, nullptr, "h", "collect header files (*.h, *.hpp)"},
    {wxCMD_LINE_SWITCH, nullptr, "asm", "collect assembler files (*.s, *.S)"},
    {wxCMD_LINE_OPTION, "f", "file", "add one file as hand-picked (repeatable)", wxCMD_LINE_VAL_STRING,
     wxCMD_LINE_PARAM_MULTIPLE},
    {wxCMD_LINE_OPTION, "x", "uncheck", "leave this entry unchecked (repeatable)", wxCMD_LINE_VAL_STRING,
     wxCMD_LINE_PARAM_MULTIPLE},
    {wxCMD_LINE_OPTION, nullptr, "subdir", "DIR=LIBNAME: an existing CMake sub-directory and its library (repeatable)",
     wxCMD_LINE_VAL_STRING, wxCMD_LINE_PARAM_MULTIPLE},
    {wxCMD_LINE_OPTION, nullptr, "include", "an existing .cmake include file (repeatable)", wxCMD_LINE_VAL_STRING,
     wxCMD_LINE_PARAM_MULTIPLE},
    {wxCMD_LINE_SWITCH, "w", "write", "save to OUTPUT-DIR/<file name> instead of printing"},
    {wxCMD_LINE_OPTION, nullptr, "check",
     "after -w: configure the written file with cmake (--check), or configure and build it (--check=build)"},
    {wxCMD_LINE_OPTION, nullptr, "settings", "take the templates from this settings file"},
    {wxCMD_LINE_SWITCH, "h", "help", "show this help", wxCMD_LINE_VAL_NONE, wxCMD_LINE_OPTION_HELP},
    {wxCMD_LINE_PARAM, nullptr, nullptr, "DIR", wxCMD_LINE_VAL_STRING,
     wxCMD_LINE_PARAM_OPTIONAL | wxCMD_LINE_PARAM_MULTIPLE},
    {wxCMD_LINE_NONE}};

void meld(const wxString& tekst, FILE* stroom = stderr)
{
    const wxString regel = tekst + "\n";
    const wxScopedCharBuffer utf8 = regel.utf8_str();
    std::fwrite(utf8.data(), 1, utf8.length(), stroom);
}

// Reports a failure; false, so that a check can end with `return faal(...)`.
bool faal(const wxString& tekst)
{
    meld("klavermol-cli: " + tekst);
    return false;
}

// Shows what the core logs on stderr and counts the errors among it.
class FoutTeller : public wxLog
{
public:
    static int aantal;

protected:
    void DoLogRecord(wxLogLevel niveau, const wxString& tekst, const wxLogRecordInfo&) override
    {
        if (niveau > wxLOG_Message)
            return;
        if (niveau == wxLOG_Error || niveau == wxLOG_FatalError)
            ++aantal;
        meld("klavermol-cli: " + tekst);
    }
};

int FoutTeller::aantal = 0;

// One of a fixed list of words, by its position; 0 when the option is absent.
bool kiesWoord(const wxCmdLineParser& parser, const char* optie, std::initializer_list<const char*> woorden,
               int& keuze)
{
    keuze = 0;
    wxString waarde;
    if (!parser.Found(optie, &waarde))
        return true;
    wxString toegestaan;
    for (const char* woord : woorden) {
        if (waarde == woord)
            return true;
        ++keuze;
        toegestaan += (toegestaan.empty() ? "" : "|") + wxString(woord);
    }
    return faal(wxString::Format("--%s must be one of %s, not \"%s\"", optie, toegestaan, waarde));
}

// A switch by its long name: "--h" (headers) must not be taken for "-h".
bool heeftSchakelaar(const wxCmdLineParser& parser, const char* langeNaam)
{
    for (const wxCmdLineArg& arg : parser.GetArguments())
        if (arg.GetKind() == wxCMD_LINE_SWITCH && arg.GetLongName() == langeNaam)
            return true;
    return false;
}

wxString absoluut(const wxString& pad)
{
    wxFileName f(pad);
    f.MakeAbsolute();
    return f.GetFullPath();
}

// A directory as the main window's pickers hold it: absolute, without a
// closing separator. A file path keeps its form (its name taken as the last
// directory), which makes this the form to compare entries of any list in.
wxString absoluteMap(const wxString& map)
{
    wxFileName f = wxFileName::DirName(map);
    f.MakeAbsolute();
    return f.GetPath(wxPATH_GET_VOLUME);
}

bool leesSjablonen(const wxCmdLineParser& parser, kern::Sjablonen& sjablonen)
{
    wxString bestand;
    std::unique_ptr<wxFileConfig> config;
    if (parser.Found("settings", &bestand)) {
        if (!wxFileName::IsFileReadable(bestand))
            return faal("cannot read the settings file " + bestand);
        wxFileInputStream stroom(bestand);
        config = std::make_unique<wxFileConfig>(stroom);
    } else {
        config = std::make_unique<wxFileConfig>("Klavermol", "Zelvano", wxString(), wxString(), wxCONFIG_USE_LOCAL_FILE);
    }
    config->SetExpandEnvVars(false);
    config->DisableAutoSave();
    sjablonen = kern::leesSjablonen(*config);
    return true;
}

// Collects the three lists in command-line order.
class Verzameling
{
public:
    Verzameling(int modus, const kern::Families& families) : modus(modus), families(families) {}

    bool voegMapToe(const wxString& map)
    {
        if (!wxFileName::DirExists(map))
            return faal("no such directory: " + map);
        wxArrayString gevonden;
        if (!kern::verzamelBestanden(wxFileName::DirName(absoluteMap(map)).GetFullPath(), modus, families, gevonden,
                                     &overgeslagen))
            return faal("cannot read the directory " + map);
        voegBronnenToe(gevonden);
        return true;
    }

    bool voegBestandToe(const wxString& pad)
    {
        if (!wxFileName::FileExists(pad))
            return faal("no such file: " + pad);
        voegBronnenToe(wxArrayString(1, absoluut(pad)));
        return true;
    }

    bool voegSubMapToe(const wxString& waarde)
    {
        const wxString map = waarde.BeforeFirst('=');
        if (!waarde.Contains("=") || map.empty())
            return faal("--subdir takes DIR=LIBNAME, not \"" + waarde + "\"");
        const wxFileName lijst(wxFileName::DirName(map).GetFullPath(), "CMakeLists.txt");
        if (!lijst.FileExists())
            return faal("The selected dir does not contain a CMakeLists.txt file. (" + map + ")");
        wxFileName absoluteLijst(lijst);
        absoluteLijst.MakeAbsolute();
        const wxString pad = absoluteLijst.GetPath();
        for (const kern::BiebRegel& b : biebs)
            if (b.map == pad) {
                meld(absoluteLijst.GetFullName() + " won't be added since it is already in your selection list.");
                return true;
            }
        biebs.push_back({pad, waarde.AfterFirst('='), true});
        return true;
    }

    bool voegIncludeToe(const wxString& pad)
    {
        if (!pad.EndsWith(".cmake"))
            return faal("not a CMake include file (*.cmake): " + pad);
        if (!wxFileName::FileExists(pad))
            return faal("no such file: " + pad);
        const wxString vol = absoluut(pad);
        for (const kern::IncludeRegel& i : includes)
            if (i.pad == vol) {
                meld(wxFileName(vol).GetFullName() + " won't be added since it is already in your selection list.");
                return true;
            }
        includes.push_back({vol, true});
        return true;
    }

    // Fills the generator's input: the checked sources, the whole lists.
    // `uitgevinkt` holds the texts of the entries to leave unchecked.
    void vulIn(kern::GeneratorInvoer& invoer, const std::set<wxString>& uitgevinkt) const
    {
        for (size_t i = 0; i < selektie.aantal(); ++i)
            if (uitgevinkt.count(selektie.geef(i)) == 0)
                invoer.bronnen.Add(selektie.geef(i));
        invoer.biebs = biebs;
        for (kern::BiebRegel& b : invoer.biebs)
            b.aangevinkt = uitgevinkt.count(b.map) == 0;
        invoer.includes = includes;
        for (kern::IncludeRegel& i : invoer.includes)
            i.aangevinkt = uitgevinkt.count(i.pad) == 0;
    }

    // Paths no CMake text can name were left out; the caller reports them.
    std::size_t geefOvergeslagen() const { return overgeslagen; }

private:
    void voegBronnenToe(const wxArrayString& paden)
    {
        wxArrayString noembaar;
        noembaar.reserve(paden.size());
        for (const wxString& pad : paden)
            if (kern::kanCMakeNoemen(pad))
                noembaar.Add(pad);
            else
                ++overgeslagen;
        selektie.voegToe(noembaar, [](const wxString& pad) {
            meld(pad + " won't be added since it is already in your selection list.");
        });
    }

    int modus;
    kern::Families families;
    std::size_t overgeslagen = 0;
    kern::BronSelektie selektie;
    std::vector<kern::BiebRegel> biebs;
    std::vector<kern::IncludeRegel> includes;
};

// The choices of the output panel; false (reported) on a wrong value.
bool leesKeuzes(const wxCmdLineParser& parser, kern::GeneratorInvoer& invoer, int& modus)
{
    if (!kiesWoord(parser, "kind", {"project", "library", "include"}, invoer.soort)
        || !kiesWoord(parser, "project-type", {"standard", "crosscompile"}, invoer.projektType)
        || !kiesWoord(parser, "library-type", {"static", "dynamic", "object"}, invoer.biebType)
        || !kiesWoord(parser, "mode", {"directory", "recursive"}, modus))
        return false;
    modus += kern::ModusMap;
    if (!parser.Found("name", &invoer.naam))
        invoer.naam = "MyFirstProject";
    wxString uitvoerDir;
    parser.Found("output-dir", &uitvoerDir);
    if (!wxFileName::DirExists(uitvoerDir))
        return faal("no such output directory: " + uitvoerDir);
    invoer.uitvoerDir = absoluteMap(uitvoerDir);
    return true;
}

// The DIR parameters and the list options, in command-line order.
bool verzamel(const wxCmdLineParser& parser, int modus, kern::GeneratorInvoer& invoer)
{
    kern::Families families;
    families.c = heeftSchakelaar(parser, "c");
    families.cpp = heeftSchakelaar(parser, "cpp");
    families.h = heeftSchakelaar(parser, "h");
    families.s = heeftSchakelaar(parser, "asm");
    if (parser.GetParamCount() > 0 && !(families.c || families.cpp || families.h || families.s))
        return faal("a DIR needs at least one of --c, --cpp, --h and --asm");

    Verzameling verzameling(modus, families);
    std::set<wxString> uitgevinkt;
    for (const wxCmdLineArg& arg : parser.GetArguments()) {
        const wxString naam = arg.GetKind() == wxCMD_LINE_PARAM ? wxString() : arg.GetLongName();
        bool goed = true;
        if (arg.GetKind() == wxCMD_LINE_PARAM)
            goed = verzameling.voegMapToe(arg.GetStrVal());
        else if (naam == "file")
            goed = verzameling.voegBestandToe(arg.GetStrVal());
        else if (naam == "subdir")
            goed = verzameling.voegSubMapToe(arg.GetStrVal());
        else if (naam == "include")
            goed = verzameling.voegIncludeToe(arg.GetStrVal());
        else if (naam == "uncheck")
            uitgevinkt.insert(absoluteMap(arg.GetStrVal()));
        if (!goed)
            return false;
    }
    if (verzameling.geefOvergeslagen() != 0)
        meld("klavermol-cli: " + kern::geefOvergeslagenMelding(verzameling.geefOvergeslagen()));
    verzameling.vulIn(invoer, uitgevinkt);
    return true;
}

// Runs cmake on the written file; its messages and the verdict on stderr.
int controleer(const kern::GeneratorInvoer& invoer, const wxString& pad, bool bouw)
{
    if (kern::zoekCMake().empty()) {
        faal(kern::geefGeenCMakeMelding());
        return Fout;
    }
    kern::CMakeControle controle;
    const kern::ControleUitslag uitslag =
        controle.voerUit({invoer.soort, pad, invoer.uitvoerDir, bouw}, {});
    static const char* const ernst[] = {"error", "warning", "note"};
    for (const kern::CMakeMelding& m : uitslag.meldingen) {
        const wxString plaats = m.bestand.empty() ? wxString("cmake")
                                : m.regel > 0     ? wxString::Format("%s:%d", m.bestand, m.regel)
                                                  : m.bestand;
        meld(plaats + ": " + ernst[static_cast<int>(m.ernst)] + ": " + m.tekst);
    }
    meld(uitslag.oordeel);
    return uitslag.gelukt ? Gelukt : Fout;
}

int voerUit(const wxCmdLineParser& parser)
{
    wxString controle;
    const bool metControle = parser.Found("check", &controle);
    if (metControle && ((controle != "configure" && controle != "build") || !heeftSchakelaar(parser, "write"))) {
        faal("--check takes no value or \"build\", and needs -w");
        return VerkeerdGebruik;
    }
    kern::GeneratorInvoer invoer;
    int modus = 0;
    if (!leesKeuzes(parser, invoer, modus) || !verzamel(parser, modus, invoer)
        || !leesSjablonen(parser, invoer.sjablonen))
        return Fout;
    invoer.datum = kern::geefGeneratieDatum();

    kern::Werklijsten werk;
    wxString tekst;
    const int foutenVoor = FoutTeller::aantal;
    kern::maakUitvoer(invoer, werk, tekst);
    if (FoutTeller::aantal > foutenVoor)
        return Fout; // reported already; nothing is printed or written

    if (!heeftSchakelaar(parser, "write")) {
        const wxScopedCharBuffer utf8 = tekst.utf8_str();
        std::fwrite(utf8.data(), 1, utf8.length(), stdout);
        return std::fflush(stdout) == 0 ? Gelukt : Fout;
    }
    const wxString bestandNaam = invoer.soort == kern::SoortInclude ? invoer.naam + ".cmake" : "CMakeLists.txt";
    const wxString pad = wxFileName(invoer.uitvoerDir, bestandNaam).GetFullPath();
    if (kern::schrijfTekstBestand(pad, tekst))
        return metControle ? controleer(invoer, pad, controle == "build") : Gelukt;
    faal("Failed to open output file " + pad + " for writing to.");
    return Fout;
}

} // namespace

int main(int argc, char** argv)
{
    wxInitializer initialiseer(argc, argv);
    if (!initialiseer.IsOk()) {
        std::fputs("klavermol-cli: the toolkit could not be initialised\n", stderr);
        return Fout;
    }
    delete wxLog::SetActiveTarget(new FoutTeller);
    // "--check" stands alone or takes "=build"; the parser wants a value.
    static char alleenCheck[] = "--check=configure";
    for (int i = 1; i < argc; ++i)
        if (std::strcmp(argv[i], "--check") == 0)
            argv[i] = alleenCheck;
    wxCmdLineParser parser(beschrijving, argc, argv);
    parser.SetLogo("klavermol-cli writes the CMake file Klavermol's Execute would show.");
    // The parser reports a wrong call itself; the usage follows it on
    // stderr, or stands alone on stdout when it was asked for.
    switch (parser.Parse(false)) {
    case 0: return voerUit(parser);
    case -1: meld(parser.GetUsageString().Trim(), stdout); return Gelukt;
    default: meld(parser.GetUsageString().Trim()); return VerkeerdGebruik;
    }
}
