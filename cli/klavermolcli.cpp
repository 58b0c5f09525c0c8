// klavermol-cli: the generators on the command line, for scripted
// re-generation. Entries are collected in command-line order exactly as the
// main window's Add does, and the text is the one Execute would show.
#include "kern/bestand.h"
#include "kern/bronzoeker.h"
#include "kern/cmakecontrole.h"
#include "kern/instellingenbestand.h"
#include "kern/namen.h"
#include "kern/generator.h"
#include "kern/selektie.h"
#include "kern/tekst.h"

#include <wx/cmdline.h>
#include <wx/fileconf.h>
#include <wx/filename.h>
#include <wx/init.h>
#include <wx/log.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <memory>
#include <set>
#include <sys/stat.h>

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

// False (reported) for a path that names something other than a regular
// file, such as a FIFO, which would block the read.
bool isGeenSpeciaalBestand(const wxString& pad)
{
    struct stat st;
    return ::stat(kern::geefPadBytes(pad).c_str(), &st) != 0 || S_ISREG(st.st_mode)
        || faal("not a regular file: " + pad);
}

// Writes UTF-8 text to standard output; a closed or full one is reported.
bool schrijfUit(const std::string& utf8)
{
    errno = 0;
    if (std::fwrite(utf8.data(), 1, utf8.size(), stdout) == utf8.size() && std::fflush(stdout) == 0)
        return true;
    return faal("cannot write to standard output: " + wxSysErrorMsgStr(static_cast<unsigned long>(errno ? errno : EIO)));
}

bool leesSjablonen(const wxCmdLineParser& parser, kern::Sjablonen& sjablonen)
{
    wxString bestand;
    std::string pad = kern::geefInstellingenPad("Klavermol");
    if (parser.Found("settings", &bestand)) {
        if (!isGeenSpeciaalBestand(bestand))
            return false;
        if (!wxFileName::IsFileReadable(bestand))
            return faal("cannot read the settings file " + bestand);
        pad = kern::geefPadBytes(bestand);
    }
    kern::InstellingenBestand instellingen(pad);
    const std::unique_ptr<wxFileConfig> config = instellingen.lees();
    if (instellingen.isBeschadigd())
        meld("klavermol-cli: the settings file " + instellingen.geefPad()
             + " could not be read completely; the settings that could not be read start from their defaults.");
    sjablonen = kern::leesSjablonen(*config);
    return true;
}

// Collects the three lists in command-line order.
class Verzameling
{
public:
    Verzameling(int modus, const kern::Families& families, kern::BronSelektie& selektie)
        : modus(modus), families(families), selektie(selektie)
    {
    }

    bool voegMapToe(const wxString& map)
    {
        if (!wxFileName::DirExists(map))
            return faal("no such directory: " + map);
        kern::Vondst vondst;
        if (!kern::verzamelBestanden(wxFileName::DirName(absoluteMap(map)).GetFullPath(), modus, families, vondst,
                                     &overgeslagen))
            return faal("cannot read the directory " + map);
        selektie.voegToe(vondst, meldDubbel, overgeslagen);
        return true;
    }

    bool voegBestandToe(const wxString& pad)
    {
        if (!isGeenSpeciaalBestand(pad))
            return false;
        if (!wxFileName::FileExists(pad))
            return faal("no such file: " + pad);
        const wxString vol = absoluut(pad);
        if (!kern::kanCMakeNoemen(vol))
            ++overgeslagen;
        else if (!selektie.voegToe(vol))
            meldDubbel(vol);
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
        if (!isGeenSpeciaalBestand(pad))
            return false;
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
        for (const wxString& pad : uitgevinkt) {
            const long i = selektie.zoek(pad);
            if (i >= 0)
                selektie.zetAangevinkt(static_cast<size_t>(i), false);
        }
        invoer.selektie = &selektie;
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
    static void meldDubbel(const wxString& pad)
    {
        meld(pad + " won't be added since it is already in your selection list.");
    }

    int modus;
    kern::Families families;
    std::size_t overgeslagen = 0;
    kern::BronSelektie& selektie;
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
bool verzamel(const wxCmdLineParser& parser, int modus, kern::GeneratorInvoer& invoer, kern::BronSelektie& selektie)
{
    kern::Families families;
    families.c = heeftSchakelaar(parser, "c");
    families.cpp = heeftSchakelaar(parser, "cpp");
    families.h = heeftSchakelaar(parser, "h");
    families.s = heeftSchakelaar(parser, "asm");
    if (parser.GetParamCount() > 0 && !(families.c || families.cpp || families.h || families.s))
        return faal("a DIR needs at least one of --c, --cpp, --h and --asm");

    Verzameling verzameling(modus, families, selektie);
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
    kern::BronSelektie selektie;
    int modus = 0;
    if (!leesKeuzes(parser, invoer, modus))
        return Fout;
    const wxString naamFout = kern::geefNaamFout(invoer.soort, invoer.naam);
    if (!naamFout.empty()) {
        faal(naamFout);
        return VerkeerdGebruik;
    }
    if (!verzamel(parser, modus, invoer, selektie)
        || !leesSjablonen(parser, invoer.sjablonen))
        return Fout;
    invoer.datum = kern::geefGeneratieDatum();

    kern::Werklijsten werk;
    werk.bewaarNamen = false;
    std::string tekst;
    const int foutenVoor = FoutTeller::aantal;
    kern::maakUitvoerUtf8(invoer, werk, tekst);
    if (FoutTeller::aantal > foutenVoor)
        return Fout; // reported already; nothing is printed or written

    if (!heeftSchakelaar(parser, "write"))
        return schrijfUit(tekst) ? Gelukt : Fout;
    const wxString bestandNaam = invoer.soort == kern::SoortInclude ? invoer.naam + ".cmake" : "CMakeLists.txt";
    const wxString pad = wxFileName(invoer.uitvoerDir, bestandNaam).GetFullPath();
    wxString reden;
    if (kern::schrijfTekstBestand(pad, tekst, &reden))
        return metControle ? controleer(invoer, pad, controle == "build") : Gelukt;
    faal("Failed to open output file " + pad + " for writing to.\n" + reden);
    return Fout;
}

} // namespace

int main(int argc, char** argv)
{
    // A closed standard output is held by a descriptor that refuses writes,
    // so that no file opened later takes its place.
    if (::fcntl(STDOUT_FILENO, F_GETFD) < 0 && errno == EBADF)
        ::dup2(::open("/dev/null", O_RDONLY | O_CLOEXEC), STDOUT_FILENO);
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
    case -1: return schrijfUit(std::string((parser.GetUsageString().Trim() + "\n").utf8_str())) ? Gelukt : Fout;
    default: meld(parser.GetUsageString().Trim()); return VerkeerdGebruik;
    }
}
