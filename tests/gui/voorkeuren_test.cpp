// The preferences dialog: its pages and texts, and how OK and Cancel hand
// the nine templates back to the main window and on to the settings file.
#include "programma.h"

#include "dialogs/preferences.h"

#include <wx/bookctrl.h>
#include <wx/statbox.h>
#include <wx/testing.h>
#include <wx/textctrl.h>

#include <cstring>
#include <functional>

namespace {

struct VeldRegel
{
    Preferences::Veld lid;
    const char* sleutel; // under "/Configuratie"
    int pagina;
    const char* label;   // of its box, or of its grid row
    bool bewaard;        // written at exit
};

// The nine texts in the order they appear, page by page.
const VeldRegel velden[] = {
    {&kern::Sjablonen::kopieerrechtMededeling, "KopieerrechtMededeling", 0, "Copyright notice", true},
    {&kern::Sjablonen::projektKommando, "ProjektKommando", 1, "Projekt generation command ", true},
    {&kern::Sjablonen::ccProjektKommando, "CCProjektKommando", 1, "Cross compile projekt generation command ", true},
    {&kern::Sjablonen::biebLibNaam, "BiebLibNaam", 2, "CMake variable containing library name", true},
    {&kern::Sjablonen::biebIncludeNaam, "BiebIncludeNaam", 2, "CMake variable containing include path name", true},
    {&kern::Sjablonen::biebKommando, "BiebKommando", 2, "Static library command:", true},
    {&kern::Sjablonen::dynBiebKommando, "DynBiebKommando", 2, "Dynamic library command:", false},
    {&kern::Sjablonen::objektBiebKommando, "ObjektBiebKommando", 2, "Object library command:", false},
    {&kern::Sjablonen::includeKommando, "IncludeKommando", 3, "Include generation command ", true},
};

wxString sleutelPad(const VeldRegel& v)
{
    return wxString("/Configuratie/") + v.sleutel;
}

// Plays the user: showing the dialog runs the validators into the texts,
// then `handeling` works the controls and the answer ends it. OK runs the
// transfer back, as the OK button does.
Antwoord<Preferences> gebruiker(int antwoord, std::function<void(Preferences&)> handeling)
{
    return Antwoord<Preferences>([=](Preferences& dlg) {
        dlg.InitDialog();
        handeling(dlg);
        if (antwoord == wxID_OK) {
            EXPECT_TRUE(dlg.Validate());
            EXPECT_TRUE(dlg.TransferDataFromWindow());
        }
        return antwoord;
    });
}

// The text controls below a window, in creation order.
void verzamelTeksten(wxWindow* w, std::vector<wxTextCtrl*>& uit)
{
    for (wxWindow* kind : w->GetChildren()) {
        if (auto* tekst = dynamic_cast<wxTextCtrl*>(kind))
            uit.push_back(tekst);
        verzamelTeksten(kind, uit);
    }
}

// The box label above a text, or the grid label beside it.
wxString labelVan(wxTextCtrl* tekst)
{
    if (auto* kader = dynamic_cast<wxStaticBox*>(tekst->GetParent()))
        return kader->GetLabel();
    wxWindow* ervoor = tekst->GetPrevSibling();
    return ervoor != nullptr && ervoor->GetId() == wxID_STATIC ? ervoor->GetLabel() : wxString("?");
}

} // namespace

class Voorkeuren : public ProgrammaTest
{
protected:
    void open(const Antwoord<Preferences>& gebruiker) { wxTEST_DIALOG(opdracht(wxEVT_MENU, wxID_PREFERENCES), gebruiker); }

    // Every text shows, and the window holds, what `waarde` gives for it.
    void verwachtOveral(Preferences* dlg, const std::function<wxString(const VeldRegel&)>& waarde)
    {
        for (const VeldRegel& v : velden) {
            EXPECT_EQ(venster().sjablonen.*v.lid, waarde(v)) << v.sleutel;
            if (dlg != nullptr)
                EXPECT_EQ(dlg->geefTekst(v.lid)->GetValue(), waarde(v)) << v.sleutel;
        }
    }
};

// The stored templates are shown as stored (the store expands no variables),
// each on its page under its label; Cancel
// hands nothing back, even with the dialog's own copies changed, and the
// exit writes the seven saved ones as they were.
TEST_F(Voorkeuren, TheStoredTemplatesAsShownAndCancel)
{
    const auto opgeslagen = [](const VeldRegel& v) { return wxString("## stored $HOME ") + v.sleutel; };
    std::string inhoud = "[Configuratie]\n";
    for (const VeldRegel& v : velden)
        inhoud += std::string(v.sleutel) + "=" + opgeslagen(v).ToStdString() + "\n";
    schrijfInstellingen(inhoud);
    start();
    open(gebruiker(wxID_CANCEL, [&](Preferences& dlg) {
        EXPECT_EQ(dlg.GetTitle(), "Preferences");
        wxBookCtrlBase* boek = dlg.GetBookCtrl();
        const char* titels[] = {"General", "CMake Project cmd", "CMake Library cmd", "CMake Include cmd"};
        ASSERT_EQ(boek->GetPageCount(), 4u);
        std::vector<std::vector<wxTextCtrl*>> perPagina(4), verwacht(4);
        for (int i = 0; i < 4; ++i) {
            EXPECT_EQ(boek->GetPageText(i), titels[i]);
            verzamelTeksten(boek->GetPage(i), perPagina[i]);
        }
        for (const VeldRegel& v : velden) {
            verwacht[v.pagina].push_back(dlg.geefTekst(v.lid));
            EXPECT_EQ(labelVan(dlg.geefTekst(v.lid)), wxString(v.label)) << v.sleutel;
        }
        EXPECT_EQ(perPagina, verwacht);
        verwachtOveral(&dlg, opgeslagen);

        for (const VeldRegel& v : velden)
            dlg.geefTekst(v.lid)->SetValue(wxString("edited ") + v.sleutel);
        wxCommandEvent hulp(wxEVT_BUTTON, wxID_HELP);
        dlg.FindWindow(wxID_HELP)->ProcessWindowEvent(hulp);
        dlg.TransferDataFromWindow();
    }));
    verwachtOveral(nullptr, opgeslagen);
    stop();
    auto config = leesInstellingen();
    for (const VeldRegel& v : velden)
        EXPECT_EQ(config->Read(sleutelPad(v), "missing"), opgeslagen(v)) << v.sleutel;
}

// OK takes every text as it is, emptied ones too; opening again shows them.
// The library commands of a shared or object library hold for this run only:
// the exit writes the seven others.
TEST_F(Voorkeuren, OkTakesTheTextsAndTheExitWritesTheSevenSavedOnes)
{
    start();
    const auto bevestigd = [](const VeldRegel& v) {
        return std::strlen(v.sleutel) % 2 == 0 ? wxString() : wxString("## confirmed\n\t") + v.sleutel;
    };
    open(gebruiker(wxID_OK, [&](Preferences& dlg) {
        verwachtOveral(&dlg, [](const VeldRegel& v) { return kern::geefStandaardSjablonen().*v.lid; });
        for (const VeldRegel& v : velden)
            dlg.geefTekst(v.lid)->SetValue(bevestigd(v));
    }));
    open(gebruiker(wxID_CANCEL, [&](Preferences& dlg) { verwachtOveral(&dlg, bevestigd); }));
    stop();
    auto config = leesInstellingen();
    for (const VeldRegel& v : velden) {
        EXPECT_EQ(config->HasEntry(sleutelPad(v)), v.bewaard) << v.sleutel;
        if (v.bewaard)
            EXPECT_EQ(config->Read(sleutelPad(v), "missing"), bevestigd(v)) << v.sleutel;
    }
}
