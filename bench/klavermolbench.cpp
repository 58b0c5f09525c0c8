// klavermol-bench: the real main window on a real tree, timed.
//   klavermol-bench add DIR       the probe and Add, recursive, all families
//   klavermol-bench execute DIR   Add, then Execute for a project in DIR and Save
// Prints key=value lines. Needs a display (Xvfb will do).
#include "kern/bestand.h"
#include "kern/bronzoeker.h"
#include "toepassing/bronlijstweergave.h"
#include "toepassing/klavermol.h"
#include "toepassing/klavermolvenster.h"

#include <wx/evtloop.h>
#include <wx/listctrl.h>
#include <wx/timer.h>
#include <wx/filedlg.h>
#include <wx/choice.h>
#include <wx/filepicker.h>
#include <wx/init.h>
#include <wx/msgdlg.h>
#include <wx/testing.h>
#include <wx/textctrl.h>
#include <wx/tglbtn.h>
#include <wx/utils.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <string>

namespace {

double meet(const std::function<void()>& werk)
{
    const auto begin = std::chrono::steady_clock::now();
    werk();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
}

// Runs a shell command, returns its seconds; the output is counted in lines.
double meetOpdracht(const std::string& opdracht, long* regels = nullptr)
{
    long n = 0;
    const double s = meet([&] {
        FILE* p = popen(opdracht.c_str(), "r");
        char regel[4096];
        while (p != nullptr && fgets(regel, sizeof regel, p) != nullptr)
            ++n;
        if (p != nullptr)
            pclose(p);
    });
    if (regels)
        *regels = n;
    return s;
}

long piekMb()
{
    std::ifstream status("/proc/self/status");
    std::string regel;
    while (std::getline(status, regel))
        if (regel.rfind("VmHWM:", 0) == 0)
            return std::atol(regel.c_str() + 6) / 1024;
    return -1;
}

std::string vindOpdracht(const std::string& map)
{
    return "find -L '" + map + "' -type f \\( -name '*.c' -o -name '*.h' -o -name '*.cpp' -o -name '*.cxx' -o -name "
                            "'*.hpp' -o -name '*.s' -o -name '*.S' \\)";
}

void print(const char* sleutel, double waarde)
{
    std::printf("%s=%.3f\n", sleutel, waarde);
}

// Answers the save dialog with a path.
class BewaarIn : public wxExpectModalBase<wxFileDialog, BewaarIn>
{
public:
    explicit BewaarIn(const wxString& pad) : pad(pad) {}

protected:
    int OnInvoked(wxFileDialog* dlg) const override
    {
        dlg->SetPath(pad);
        return wxID_OK;
    }

private:
    wxString pad;
};

// The longest time the GUI thread did not get back to its event loop: a
// 10 ms timer ticks, and the largest gap between two ticks counts.
class StilstandKlok : public wxTimer
{
public:
    StilstandKlok() : vorige(std::chrono::steady_clock::now()) { Start(10); }
    void Notify() override { tik(); }
    void tik()
    {
        const auto nu = std::chrono::steady_clock::now();
        langste = std::max(langste, std::chrono::duration<double>(nu - vorige).count());
        vorige = nu;
    }
    double langste = 0;

private:
    std::chrono::steady_clock::time_point vorige;
};

double hoogsteStilstand = 0;

// Does what a click does, then turns the event loop until `klaar` holds and
// nothing is left to do (the views' layout and painting included). Returns
// the seconds; the longest stall goes into hoogsteStilstand.
double meetInLus(const std::function<void()>& opdracht, const std::function<bool()>& klaar)
{
    wxEventLoopBase* lus = wxEventLoopBase::GetActive();
    StilstandKlok klok;
    const double s = meet([&] {
        opdracht();
        while (!klaar() || lus->Pending())
            lus->Dispatch();
    });
    klok.tik();
    hoogsteStilstand = klok.langste;
    return s;
}

// Points the window at the tree with every family on, recursively, and adds.
double voegToe(KlavermolVenster& v, const wxString& map)
{
    v.voegCBestandenToe = true;
    v.voegCPPBestandenToe = true;
    v.voegHBestandenToe = true;
    v.voegSBestandenToe = true;
    v.OnSelekteerBestandType();
    v.voegToeModeKeuze->SetSelection(kern::ModusRecursief);
    v.vindBestandenInDirs->SetPath(map);
    double s = 0;
    wxTEST_DIALOG(s = meetInLus(
                      [&] {
                          v.onderzoekPadOpBestanden();
                          wxCommandEvent klik(wxEVT_BUTTON, wxID_ADD);
                          v.ProcessWindowEvent(klik);
                      },
                      [&] { return !v.isBezig(); }),
                  wxExpectModal<wxMessageDialog>(wxYES).Optional());
    return s;
}

void klikSelekteerAlles(KlavermolVenster& v, bool aan)
{
    v.selekteerAllesKnop->SetValue(aan);
    wxCommandEvent e(wxEVT_TOGGLEBUTTON, wxID_SELECTALL);
    e.SetInt(aan);
    v.ProcessWindowEvent(e);
}

int meetToevoegen(KlavermolVenster& v, const std::string& map)
{
    // find runs in a child process: the peak below is the window's own
    const double find = meetOpdracht(vindOpdracht(map));
    const double add = voegToe(v, map);
    std::printf("files=%u\n", v.bestandSelektieLijst->GetCount());
    print("find_s", find);
    print("add_s", add);
    print("add_vs_find", add / find);
    print("max_stall_s", hoogsteStilstand);
    std::printf("peak_mb=%ld\n", piekMb());
    const auto klaar = [] { return true; };
    print("selectall_s", meetInLus([&] { klikSelekteerAlles(v, true); }, klaar));
    print("deselectall_s", meetInLus([&] { klikSelekteerAlles(v, false); }, klaar));
    print("toggle_s", meetInLus([&] {
        wxListEvent dubbel(wxEVT_LIST_ITEM_ACTIVATED, BestandSelektieLijstID);
        dubbel.m_itemIndex = 0;
        v.ProcessWindowEvent(dubbel);
    }, klaar));
    double wissen = 0;
    wxTEST_DIALOG(wissen = meetInLus(
                      [&] {
                          wxCommandEvent klik(wxEVT_BUTTON, wxID_CLEAR);
                          v.ProcessWindowEvent(klik);
                      },
                      klaar),
                  wxExpectModal<wxMessageDialog>(wxYES).Optional());
    print("clear_s", wissen);
    return 0;
}

int meetUitvoeren(KlavermolVenster& v, const std::string& map, const std::string& cli, const wxString& thuis)
{
    voegToe(v, map);
    v.uitvoerSoortKeuze->SetSelection(kern::SoortProjekt);
    v.outputDirPicker->SetPath(map);
    const double uitvoeren = meetInLus(
        [&] {
            wxCommandEvent klik(wxEVT_BUTTON, wxID_APPLY);
            v.ProcessWindowEvent(klik);
        },
        [&] { return !v.isBezig(); });
    const double stilstand = hoogsteStilstand;
    const wxString doel = thuis + "/CMakeLists.txt";
    const double bewaren = meet([&] {
        wxCommandEvent klik(wxEVT_BUTTON, wxID_SAVE);
        wxTEST_DIALOG(v.ProcessWindowEvent(klik), BewaarIn(doel));
    });
    const double find = meetOpdracht(vindOpdracht(map));
    const double cliTijd =
        meetOpdracht("'" + cli + "' -o '" + map + "' -m recursive --c --cpp --h --asm '" + map + "' > /dev/null");
    std::printf("files=%u\n", v.bestandSelektieLijst->GetCount());
    print("execute_s", uitvoeren);
    print("max_stall_s", stilstand);
    std::printf("text_bytes=%zu\n", v.volledigeUitvoer.size());
    print("save_s", bewaren);
    // the write alone, without the file dialog
    print("save_write_s", meet([&] { kern::schrijfTekstBestand(doel, v.volledigeUitvoer); }));
    std::printf("saved_bytes=%llu\n", static_cast<unsigned long long>(wxFileName::GetSize(doel).GetValue()));
    print("cli_s", cliTijd);
    print("find_s", find);
    print("cli_vs_find", cliTijd / find);
    std::printf("peak_mb=%ld\n", piekMb());
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 3 || (std::string(argv[1]) != "add" && std::string(argv[1]) != "execute")) {
        std::fprintf(stderr, "usage: klavermol-bench add|execute DIR\n");
        return 2;
    }
    const std::string soort = argv[1];
    const std::string map = wxFileName::DirName(argv[2]).GetPath().ToStdString();
    const std::string cli = (wxFileName(argv[0]).GetPath() + "/klavermol-cli").ToStdString();

    // A private home, so that the user's settings are neither read nor changed.
    char sjabloon[] = "/tmp/klavermol-bench-XXXXXX";
    const char* thuis = mkdtemp(sjabloon);
    setenv("HOME", thuis, 1);
    std::ofstream(std::string(thuis) + "/.Klavermol") << "[Gebruikersinstellingen]\nEncoding=" << wxLANGUAGE_ENGLISH
                                                      << "\n";

    new Klavermol;
    int argcWx = 1;
    if (!wxEntryStart(argcWx, argv) || !wxTheApp->CallOnInit()) {
        std::fprintf(stderr, "klavermol-bench: the program could not start (is there a display?)\n");
        return 1;
    }
    wxLog::EnableLogging(false); // duplicate messages would otherwise pile up
    KlavermolVenster& venster = *wxGetApp().geefVenster();
    wxEventLoop lus;
    wxEventLoopActivator actief(&lus);
    const int uitslag = soort == "add" ? meetToevoegen(venster, map) : meetUitvoeren(venster, map, cli, thuis);
    wxLog::EnableLogging(true);
    const double sluiten = meet([&] {
        venster.Destroy();
        wxTheApp->OnExit();
        wxEntryCleanup();
    });
    print("close_s", sluiten);
    wxFileName::Rmdir(thuis, wxPATH_RMDIR_RECURSIVE);
    return uitslag;
}
