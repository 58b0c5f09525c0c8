#include "programma.h"

#include <wx/app.h>
#include <wx/apptrait.h>
#include <wx/choice.h>
#include <wx/bookctrl.h>
#include <wx/statusbr.h>
#include <wx/textctrl.h>
#include <wx/filename.h>
#include <wx/filepicker.h>
#include <wx/init.h>
#include <wx/modalhook.h>
#include <wx/time.h>
#include <wx/uiaction.h>
#include <wx/wfstream.h>

#include <gtk/gtk.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>

namespace {

std::vector<std::string> asserts; // the conditions, as raised
std::vector<std::string> verwacht;
bool programmaAlGestart = false;

void assertHandler(const wxString& bestand, int regel, const wxString& functie, const wxString& conditie,
                   const wxString& melding)
{
    asserts.push_back(conditie.ToStdString());
    if (std::count(verwacht.begin(), verwacht.end(), asserts.back()) > 0)
        return;
    ADD_FAILURE_AT(bestand.ToStdString().c_str(), regel)
        << "wx assertion in " << functie << ": " << conditie << " " << melding;
}

std::vector<LogRegel> alleLog;

class OpnameLog : public wxLog
{
protected:
    void DoLogRecord(wxLogLevel niveau, const wxString& tekst, const wxLogRecordInfo&) override
    {
        alleLog.push_back({niveau, tekst});
    }
};

// A modal dialog no wxTEST_DIALOG announced fails the test and is closed at once.
class OnverwachtDialoogHaak : public wxModalDialogHook
{
protected:
    int Enter(wxDialog* dialoog) override
    {
        ADD_FAILURE() << "unexpected modal dialog " << dialoog->GetClassInfo()->GetClassName() << " \""
                      << dialoog->GetTitle().utf8_string() << "\"";
        return wxID_CANCEL;
    }
    void Exit(wxDialog*) override {}
};

OnverwachtDialoogHaak onverwachtDialoog;

} // namespace

void ProgrammaTest::SetUp()
{
    asserts.clear();
    verwacht.clear();
    alleLog.clear();

    // A test may continue in the home of an earlier run (a restart).
    const char* vorige = std::getenv(vorigThuis);
    char sjabloon[] = "/tmp/klavermol-test-XXXXXX";
    const char* map = vorige != nullptr ? vorige : mkdtemp(sjabloon);
    ASSERT_NE(map, nullptr);
    thuis = map;
    eigenThuis = vorige == nullptr;
    setenv("HOME", map, 1);
    // Temporary files and locks of this process stay in its own home.
    const wxString tijdelijk = thuis + "/tmp";
    wxFileName::Mkdir(tijdelijk, wxS_DIR_DEFAULT, wxPATH_MKDIR_FULL);
    setenv("TMPDIR", tijdelijk.ToStdString().c_str(), 1);
    setenv("XDG_CONFIG_HOME", (thuis + "/.config").ToStdString().c_str(), 1);
    // A fixed system language, so that nothing depends on the machine.
    setenv("LC_ALL", "en_US.UTF-8", 1);
    setenv("LANG", "en_US.UTF-8", 1);
    wxSetAssertHandler(assertHandler);
    onverwachtDialoog.Register();
    eersteTaal = wxLANGUAGE_ENGLISH;
}

void ProgrammaTest::TearDown()
{
    if (gestart)
        stop();
    if (HasFailure())
        for (const LogRegel& r : alleLog)
            std::cerr << "log " << r.niveau << ": " << r.tekst.utf8_string() << "\n";
    if (eigenThuis)
        wxFileName::Rmdir(thuis, wxPATH_RMDIR_RECURSIVE);
}

int ProgrammaTest::startOpnieuw(const std::string& filter)
{
    const std::string aanroep = std::string(vorigThuis) + "=" + thuis.ToStdString() + " '" +
                                 std::filesystem::read_symlink("/proc/self/exe").string() +
                                 "' --gtest_filter=" + filter;
    return std::system(aanroep.c_str());
}

void ProgrammaTest::start()
{
    ASSERT_FALSE(programmaAlGestart) << "one program start per process: run the GUI tests through ctest";
    programmaAlGestart = true;

    std::string inhoud = instellingen;
    const std::string groep = "[Gebruikersinstellingen]\n";
    const std::size_t plaats = inhoud.find(groep); // the language goes into the user's group
    if (eersteTaal >= 0 && inhoud.find("Encoding=") == std::string::npos)
        inhoud.insert(plaats == std::string::npos ? 0 : plaats + groep.size(),
                      (plaats == std::string::npos ? groep : "") + "Encoding=" + std::to_string(eersteTaal) + "\n");
    if (!inhoud.empty())
        std::ofstream(instellingenPad().ToStdString()) << inhoud;

    wxLog::SetActiveTarget(new OpnameLog);
    wxLog::SetLogLevel(wxLOG_Max);
    wxLog::SetVerbose(true);

    DesktopAppBasis::geefProcesNaad().start = [this](const wxString& pad) {
        procesStappen.push_back("start:" + pad.ToStdString());
        return 1L;
    };
    DesktopAppBasis::geefProcesNaad().stop = [this] { procesStappen.push_back("stop"); };

    new Klavermol;
    static int argc = 1;
    static char naam[] = "klavermol";
    static char* argv[] = {naam, nullptr};
    ASSERT_TRUE(wxEntryStart(argc, argv)) << "the display could not be opened";
    gestart = true;
    lus.reset(wxTheApp->GetTraits()->CreateEventLoop());
    wxEventLoopBase::SetActive(lus.get());
    // the toolkit's initialisation puts its own log target in place
    wxLog::SetActiveTarget(new OpnameLog);
    ASSERT_TRUE(wxTheApp->CallOnInit());
    verwerk();
}

void ProgrammaTest::stop()
{
    if (!gestart)
        return;
    gestart = false;
    if (wxWindow* hoofd = app().geefHoofdVenster())
        if (!wxTheApp->IsScheduledForDestruction(hoofd))
            hoofd->Close(true);
    wxTheApp->ProcessPendingEvents();
    wxTheApp->ProcessIdle();
    wxTheApp->OnExit();
    wxEventLoopBase::SetActive(nullptr);
    lus.reset();
    wxEntryCleanup();
}

std::unique_ptr<wxFileConfig> ProgrammaTest::leesInstellingen() const
{
    wxFileInputStream stroom(instellingenPad());
    auto config = std::make_unique<wxFileConfig>(stroom);
    config->SetExpandEnvVars(false);
    return config;
}

void ProgrammaTest::wachtOpVenster()
{
    wachtTot([this] { return app().geefVenster() == nullptr || !venster().isBezig(); }, "the window's workers");
}

void ProgrammaTest::verwerk()
{
    wachtOpVenster();
    for (int i = 0; i < 3; ++i) {
        wxTheApp->ProcessPendingEvents();
        wxTheApp->Yield(true);
    }
    if (app().geefVenster() != nullptr && !wxTheApp->IsScheduledForDestruction(app().geefVenster()))
        app().geefVenster()->UpdateWindowUI(wxUPDATE_UI_RECURSE);
}

void ProgrammaTest::opdracht(wxEventType soort, int id, int waarde)
{
    wxCommandEvent e(soort, id);
    e.SetInt(waarde);
    venster().ProcessWindowEvent(e);
    wachtOpVenster();
}

bool ProgrammaTest::aan(int id)
{
    venster().UpdateWindowUI(wxUPDATE_UI_RECURSE);
    return venster().FindWindow(id)->IsEnabled();
}

void ProgrammaTest::kiesZoekMap(const wxString& pad)
{
    venster().vindBestandenInDirs->SetPath(pad);
    wxFileDirPickerEvent e(wxEVT_DIRPICKER_CHANGED, venster().vindBestandenInDirs, VindBestandenInDirsID, pad);
    venster().ProcessWindowEvent(e);
    wachtOpVenster();
}

void ProgrammaTest::wachtTot(const std::function<bool()>& klaar, const char* wat)
{
    const wxLongLong einde = wxGetLocalTimeMillis() + 30000;
    // wakes the loop for what changes without an event (a worker's flag, the clock)
    const guint wekker = g_timeout_add(20, [](gpointer) -> gboolean { return G_SOURCE_CONTINUE; }, nullptr);
    wxTheApp->ProcessPendingEvents();
    while (!klaar()) {
        if (wxGetLocalTimeMillis() > einde) {
            ADD_FAILURE() << "still waiting for " << wat;
            break;
        }
        g_main_context_iteration(nullptr, TRUE);
        wxTheApp->ProcessPendingEvents();
    }
    g_source_remove(wekker);
}

bool ProgrammaTest::isGeplaatst(wxWindow* top)
{
    GdkRectangle r;
    gdk_window_get_frame_extents(gtk_widget_get_window(top->GetHandle()), &r);
    return top->IsShownOnScreen() && wxPoint(r.x, r.y) == top->GetPosition();
}

void ProgrammaTest::klikOp(wxWindow* w, wxEventType soort, wxPoint punt, bool dubbel)
{
    // The splash screen stays on top for two seconds: it goes first, also from the display.
    if (wxSplashScreen* splash = app().geefSplash()) {
        splash->Destroy();
        wachtTot([this] { return app().geefSplash() == nullptr; }, "the splash screen to go");
    }
    auto* top = static_cast<wxTopLevelWindow*>(wxGetTopLevelParent(w));
    top->Raise();
    wachtTot([&] { return w->IsShownOnScreen() && w->IsEnabled() && top->IsActive() && isGeplaatst(top); }, "a control to click");
    if (punt == wxDefaultPosition)
        punt = wxPoint(w->GetClientSize().x / 2, w->GetClientSize().y / 2);
    bool gekomen = false;
    auto gezien = [&](wxEvent& e) {
        gekomen = true;
        e.Skip();
    };
    const wxEventTypeTag<wxEvent> tag(soort);
    w->Bind(tag, gezien);
    wxUIActionSimulator sim;
    sim.MouseMove(w->ClientToScreen(wxPoint(-3, -3))); // in from outside: the control sees it enter
    verwerk();
    sim.MouseMove(w->ClientToScreen(punt));
    verwerk();
    dubbel ? sim.MouseDblClick() : sim.MouseClick();
    wachtTot([&] { return gekomen; }, "the click");
    w->Unbind(tag, gezien);
    verwerk();
}

void ProgrammaTest::typIn(wxTextCtrl* veld, const wxString& tekst)
{
    klikOp(veld, wxEVT_LEFT_UP);
    wachtTot([&] { return wxWindow::FindFocus() == veld; }, "the text field's focus");
    bool enter = false;
    auto gezien = [&](wxKeyEvent& e) {
        enter = enter || e.GetKeyCode() == WXK_RETURN;
        e.Skip();
    };
    veld->Bind(wxEVT_KEY_DOWN, gezien);
    wxUIActionSimulator sim;
    sim.Char('a', wxMOD_CONTROL);
    sim.Text(tekst.utf8_str());
    sim.Char(WXK_RETURN);
    wachtTot([&] { return enter; }, "the Enter key");
    veld->Unbind(wxEVT_KEY_DOWN, gezien);
    verwerk();
}

void ProgrammaTest::kiesRij(wxChoice* keuze, int rij)
{
    klikOp(venster().GetStatusBar(), wxEVT_LEFT_UP); // the window takes the keyboard
    keuze->SetFocus();
    wachtTot([&] { return wxWindow::FindFocus() == keuze; }, "the choice's focus");
    wxUIActionSimulator sim;
    for (int i = keuze->GetSelection(); i != rij; i += rij > i ? 1 : -1)
        sim.Char(rij > i ? WXK_DOWN : WXK_UP);
    wachtTot([&] { return keuze->GetSelection() == rij; }, "the chosen row");
    verwerk();
}

void ProgrammaTest::controleerIndeling(wxWindow* ouder)
{
    std::vector<wxWindow*> kinderen;
    for (wxWindow* kind : ouder->GetChildren())
        if (kind->IsShown() && !kind->IsTopLevel())
            kinderen.push_back(kind);
    const wxRect binnen = wxDynamicCast(ouder, wxBookCtrlBase) // a book places its pages itself
        ? wxRect(wxPoint(-9999, -9999), wxSize(19999, 19999)) : wxRect(ouder->GetClientSize());
    for (auto kind = kinderen.begin(); kind != kinderen.end(); ++kind) {
        const wxRect r = (*kind)->GetRect();
        EXPECT_TRUE(!r.IsEmpty() && binnen.Contains(r)) << (*kind)->GetName() << " in " << ouder->GetName();
        for (auto ander = kind + 1; ander != kinderen.end(); ++ander)
            EXPECT_FALSE(r.Intersects((*ander)->GetRect())) << (*kind)->GetName() << " over " << (*ander)->GetName();
        controleerIndeling(*kind);
    }
}

wxString ProgrammaTest::maakMap(const wxString& naam) const
{
    const wxString pad = thuis + "/" + naam;
    wxFileName::Mkdir(pad, wxS_DIR_DEFAULT, wxPATH_MKDIR_FULL);
    return pad;
}

wxString ProgrammaTest::maakBestand(const wxString& naam) const
{
    const wxString pad = thuis + "/" + naam;
    wxFileName::Mkdir(wxFileName(pad).GetPath(), wxS_DIR_DEFAULT, wxPATH_MKDIR_FULL);
    std::ofstream(pad.ToStdString()) << "\n";
    return pad;
}

void ProgrammaTest::verwachtAssert(const std::string& conditie)
{
    verwacht.push_back(conditie);
}

int ProgrammaTest::aantalAsserts(const std::string& conditie) const
{
    return static_cast<int>(std::count(asserts.begin(), asserts.end(), conditie));
}

std::vector<LogRegel> ProgrammaTest::logRegels(wxLogLevel niveau) const
{
    std::vector<LogRegel> uit;
    std::copy_if(alleLog.begin(), alleLog.end(), std::back_inserter(uit),
                 [&](const LogRegel& r) { return r.niveau == niveau; });
    return uit;
}

bool ProgrammaTest::heeftLog(wxLogLevel niveau, const wxString& tekst) const
{
    const std::vector<wxString> regels = logMet(niveau, tekst);
    return std::count(regels.begin(), regels.end(), tekst) > 0;
}

std::vector<wxString> ProgrammaTest::logMet(wxLogLevel niveau, const wxString& begin) const
{
    std::vector<wxString> uit;
    for (const LogRegel& r : logRegels(niveau))
        if (r.tekst.StartsWith(begin))
            uit.push_back(r.tekst);
    return uit;
}

int main(int argc, char** argv)
{
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
