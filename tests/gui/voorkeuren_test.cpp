// The preferences dialog: its pages and texts, and how OK and Cancel hand
// the nine templates back to the main window and on to the settings file.
#include "programma.h"

#include "dialogs/preferences.h"

#include <wx/bookctrl.h>
#include <wx/imaglist.h>
#include <wx/statbox.h>
#include <wx/testing.h>
#include <wx/textctrl.h>

#include <functional>

namespace {

struct VeldRegel
{
    Preferences::Veld lid;
    const char* sleutel;  // under "/Configuratie"
    int id;
    int pagina;
    const char* label;    // of its box, or of its grid row
    bool meerRegelig;
    int breedte;          // dialog units, 0 where none is given
    bool bewaard;         // written at exit
};

// The nine texts in the order they appear, page by page.
const VeldRegel velden[] = {
    {&kern::Sjablonen::kopieerrechtMededeling, "KopieerrechtMededeling", 10002, 0, "Copyright notice", true, 0, true},
    {&kern::Sjablonen::projektKommando, "ProjektKommando", 10005, 1, "Projekt generation command ", true, 250, true},
    {&kern::Sjablonen::ccProjektKommando, "CCProjektKommando", 10003, 1, "Cross compile projekt generation command ",
     true, 250, true},
    {&kern::Sjablonen::biebLibNaam, "BiebLibNaam", 10009, 2, "CMake variable containing library name", false, 0,
     true},
    {&kern::Sjablonen::biebIncludeNaam, "BiebIncludeNaam", 10010, 2, "CMake variable containing include path name",
     false, 0, true},
    {&kern::Sjablonen::biebKommando, "BiebKommando", 10006, 2, "Static library command:", true, 200, true},
    {&kern::Sjablonen::dynBiebKommando, "DynBiebKommando", 10011, 2, "Dynamic library command:", true, 0, false},
    {&kern::Sjablonen::objektBiebKommando, "ObjektBiebKommando", 10012, 2, "Object library command:", true, 0,
     false},
    {&kern::Sjablonen::includeKommando, "IncludeKommando", 10008, 3, "Include generation command ", true, 250, true},
};

// The three library commands sit in a grid on the library page.
bool isRasterRegel(const VeldRegel& v)
{
    return v.pagina == 2 && v.meerRegelig;
}

wxString sleutelPad(const VeldRegel& v)
{
    return wxString("/Configuratie/") + v.sleutel;
}

// Plays the user. Before the dialog is shown `voorTonen` sees it as built;
// showing it runs the validators into the texts; then `handeling` works the
// controls and the answer ends it. OK runs the transfer back, as the OK
// button does.
class Gebruiker : public wxExpectModalBase<Preferences, Gebruiker>
{
public:
    using Handeling = std::function<void(Preferences&)>;

    Gebruiker(int antwoord, Handeling handeling, Handeling voorTonen = {})
        : antwoord(antwoord), handeling(std::move(handeling)), voorTonen(std::move(voorTonen)) {}

protected:
    int OnInvoked(Preferences* dlg) const override
    {
        if (voorTonen)
            voorTonen(*dlg);
        dlg->InitDialog();
        if (handeling)
            handeling(*dlg);
        if (antwoord == wxID_OK) {
            EXPECT_TRUE(dlg->Validate());
            EXPECT_TRUE(dlg->TransferDataFromWindow());
        }
        return antwoord;
    }

private:
    int antwoord;
    Handeling handeling;
    Handeling voorTonen;
};

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

void zetAlle(Preferences& dlg, const std::function<wxString(const VeldRegel&)>& waarde)
{
    for (const VeldRegel& v : velden)
        dlg.geefTekst(v.lid)->SetValue(waarde(v));
}

} // namespace

class Voorkeuren : public ProgrammaTest
{
protected:
    void open(const Gebruiker& gebruiker)
    {
        wxCommandEvent menu(wxEVT_MENU, wxID_PREFERENCES);
        wxTEST_DIALOG(venster().ProcessWindowEvent(menu), gebruiker);
    }

    void verwachtSjablonen(const kern::Sjablonen& verwacht)
    {
        for (const VeldRegel& v : velden)
            EXPECT_EQ(venster().sjablonen.*v.lid, verwacht.*v.lid) << v.sleutel;
    }
};

// As built the grid rows hold their placeholder; shown, every text holds
// the window's template, on its page under its label.
TEST_F(Voorkeuren, TheDialogAsShown)
{
    start();
    const kern::Sjablonen standaard = kern::geefStandaardSjablonen();
    verwachtSjablonen(standaard);
    open(Gebruiker(
        wxID_CANCEL,
        [&](Preferences& dlg) {
            EXPECT_EQ(dlg.GetId(), 10000);
            EXPECT_EQ(dlg.GetTitle(), "Preferences");
            EXPECT_EQ(dlg.GetParent(), &venster());
            for (int knop : {wxID_OK, wxID_CANCEL, wxID_HELP})
                EXPECT_NE(dlg.FindWindow(knop), nullptr) << knop;

            wxBookCtrlBase* boek = dlg.GetBookCtrl();
            const char* titels[] = {"General", "CMake Project cmd", "CMake Library cmd", "CMake Include cmd"};
            const int paneelIds[] = {10001, 10003, 10004, 10007};
            ASSERT_EQ(boek->GetPageCount(), 4u);
            ASSERT_NE(boek->GetImageList(), nullptr);
            EXPECT_EQ(boek->GetImageList()->GetImageCount(), 4);
            std::vector<std::vector<wxTextCtrl*>> perPagina(4), verwacht(4);
            for (int i = 0; i < 4; ++i) {
                EXPECT_EQ(boek->GetPageText(i), titels[i]);
                EXPECT_EQ(boek->GetPage(i)->GetId(), paneelIds[i]);
                EXPECT_EQ(boek->GetPageImage(i), i);
                verzamelTeksten(boek->GetPage(i), perPagina[i]);
            }
            for (const VeldRegel& v : velden) {
                wxTextCtrl* tekst = dlg.geefTekst(v.lid);
                ASSERT_NE(tekst, nullptr) << v.sleutel;
                verwacht[v.pagina].push_back(tekst);
                EXPECT_EQ(tekst->GetValue(), standaard.*v.lid) << v.sleutel;
                EXPECT_EQ(tekst->GetId(), v.id) << v.sleutel;
                EXPECT_EQ(labelVan(tekst), wxString(v.label)) << v.sleutel;
                EXPECT_EQ(tekst->IsMultiLine(), v.meerRegelig) << v.sleutel;
                EXPECT_TRUE(tekst->HasFlag(wxTE_PROCESS_TAB) && tekst->HasFlag(wxWANTS_CHARS) &&
                            tekst->HasFlag(wxSUNKEN_BORDER))
                    << v.sleutel;
                if (v.breedte > 0)
                    EXPECT_EQ(tekst->GetMinSize().x, dlg.ConvertDialogToPixels(wxSize(v.breedte, 0)).x)
                        << v.sleutel;
            }
            EXPECT_EQ(perPagina, verwacht);

            // page images come from the four known names only
            const wxIcon boeken = dlg.GetIconResource("../../../grafisch/ikonen/32x32/icons8-books.png");
            ASSERT_TRUE(boeken.IsOk());
            EXPECT_EQ(boeken.GetSize(), wxSize(16, 16));
            EXPECT_FALSE(dlg.GetIconResource("../../../grafisch/ikonen/32x32/icons8-home.png").IsOk());
        },
        [](Preferences& dlg) {
            for (const VeldRegel& v : velden)
                EXPECT_EQ(dlg.geefTekst(v.lid)->GetValue(), isRasterRegel(v) ? "test" : "") << v.sleutel;
        }));
}

TEST_F(Voorkeuren, CancelHandsNothingBack)
{
    start();
    open(Gebruiker(wxID_CANCEL, [](Preferences& dlg) {
        zetAlle(dlg, [](const VeldRegel& v) { return wxString("edited ") + v.sleutel; });
        wxCommandEvent hulp(wxEVT_BUTTON, wxID_HELP);
        dlg.FindWindow(wxID_HELP)->ProcessWindowEvent(hulp);
        // even with the dialog's own copies changed
        dlg.TransferDataFromWindow();
    }));
    verwachtSjablonen(kern::geefStandaardSjablonen());
    stop();
    auto config = leesInstellingen();
    for (const VeldRegel& v : velden)
        if (v.bewaard)
            EXPECT_EQ(config->Read(sleutelPad(v), "missing"), kern::geefStandaardSjablonen().*v.lid) << v.sleutel;
}

// OK takes every text as it is, emptied ones too; opening again shows them,
// and the exit writes the seven that are saved.
TEST_F(Voorkeuren, OkTakesTheTextsAndTheExitWritesTheSevenSavedOnes)
{
    start();
    const auto bevestigd = [](const VeldRegel& v) {
        return v.id % 2 == 0 ? wxString() : wxString("## confirmed\n\t") + v.sleutel;
    };
    open(Gebruiker(wxID_OK, [&](Preferences& dlg) { zetAlle(dlg, bevestigd); }));
    for (const VeldRegel& v : velden)
        EXPECT_EQ(venster().sjablonen.*v.lid, bevestigd(v)) << v.sleutel;
    open(Gebruiker(wxID_CANCEL, [&](Preferences& dlg) {
        for (const VeldRegel& v : velden)
            EXPECT_EQ(dlg.geefTekst(v.lid)->GetValue(), bevestigd(v)) << v.sleutel;
    }));
    stop();
    auto config = leesInstellingen();
    for (const VeldRegel& v : velden) {
        EXPECT_EQ(config->HasEntry(sleutelPad(v)), v.bewaard) << v.sleutel;
        if (v.bewaard)
            EXPECT_EQ(config->Read(sleutelPad(v), "missing"), bevestigd(v)) << v.sleutel;
    }
}

TEST_F(Voorkeuren, EditedLibraryCommandsHoldForTheRunButOnlyTheStaticOneIsStored)
{
    schrijfInstellingen("[Configuratie]\nDynBiebKommando=stored dynamic\n");
    start();
    EXPECT_EQ(venster().sjablonen.dynBiebKommando, "stored dynamic");
    open(Gebruiker(wxID_OK, [](Preferences& dlg) {
        EXPECT_EQ(dlg.geefTekst(&kern::Sjablonen::dynBiebKommando)->GetValue(), "stored dynamic");
        dlg.geefTekst(&kern::Sjablonen::biebKommando)->SetValue("add_library(${LibName} STATIC ${SRCS} extra.c)");
        dlg.geefTekst(&kern::Sjablonen::dynBiebKommando)->SetValue("add_library(${LibName} MODULE ${SRCS})");
        dlg.geefTekst(&kern::Sjablonen::objektBiebKommando)->SetValue("add_library(${LibName} OBJECT x.c)");
    }));
    EXPECT_EQ(venster().sjablonen.biebKommando, "add_library(${LibName} STATIC ${SRCS} extra.c)");
    EXPECT_EQ(venster().sjablonen.dynBiebKommando, "add_library(${LibName} MODULE ${SRCS})");
    EXPECT_EQ(venster().sjablonen.objektBiebKommando, "add_library(${LibName} OBJECT x.c)");
    stop();
    auto config = leesInstellingen();
    EXPECT_EQ(config->Read("/Configuratie/BiebKommando"), "add_library(${LibName} STATIC ${SRCS} extra.c)");
    EXPECT_EQ(config->Read("/Configuratie/DynBiebKommando"), "stored dynamic");
    EXPECT_FALSE(config->HasEntry("/Configuratie/ObjektBiebKommando"));
}
