// The preferences dialog: its pages and labels, and how OK and Cancel hand
// the nine templates back to the main window, to the generated text and on
// to the settings file.
#include "gebruiker.h"
#include "programma.h"

#include "dialogs/preferences.h"

#include <wx/bookctrl.h>
#include <wx/filepicker.h>
#include <wx/statbox.h>
#include <wx/textctrl.h>

namespace {

struct VeldRegel
{
    Preferences::Veld lid;
    const char* sleutel; // under "/Configuratie"
    int pagina;
    const char* label; // of its box, or of its grid row
    bool bewaard;      // written at exit
};

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

// The label of its box, or of its grid row.
wxString labelVan(wxTextCtrl* tekst)
{
    auto* kader = dynamic_cast<wxStaticBox*>(tekst->GetParent());
    return kader ? kader->GetLabel() : tekst->GetPrevSibling()->GetLabel();
}

} // namespace

class Voorkeuren : public ProgrammaTest
{
protected:
    // Opens the dialog from its menu item; `handeling` works the shown
    // dialog, then the user clicks `knop`.
    void open(int knop, const std::function<void(Preferences&)>& handeling)
    {
        wxTEST_DIALOG(opdracht(wxEVT_MENU, wxID_PREFERENCES), Antwoord<Preferences>([&](Preferences& dlg) {
                          return bedien(dlg, knop, [&] { handeling(dlg); });
                      }));
    }

    // The window holds, and the dialog (if given) shows, `waarde` for every field.
    void verwachtOveral(Preferences* dlg, const std::function<wxString(const VeldRegel&)>& waarde)
    {
        for (const VeldRegel& v : velden) {
            EXPECT_EQ(venster().sjablonen.*v.lid, waarde(v)) << v.sleutel;
            if (dlg != nullptr)
                EXPECT_EQ(dlg->geefTekst(v.lid)->GetValue(), waarde(v)) << v.sleutel;
        }
    }

    // What the exit writes under "/Configuratie".
    void verwachtBewaard(const std::function<wxString(const VeldRegel&)>& waarde)
    {
        stop();
        auto config = leesInstellingen();
        for (const VeldRegel& v : velden)
            EXPECT_EQ(config->Read(wxString("/Configuratie/") + v.sleutel, "missing"), waarde(v)) << v.sleutel;
    }
};

// Shown as stored (nothing expanded), each on its page under its label;
// Help does nothing, and Cancel after editing hands nothing back.
TEST_F(Voorkeuren, TheStoredTemplatesAsShownAndCancel)
{
    const auto opgeslagen = [](const VeldRegel& v) { return wxString("## stored $HOME ") + v.sleutel; };
    std::string inhoud = "[Configuratie]\n";
    for (const VeldRegel& v : velden)
        inhoud += std::string(v.sleutel) + "=" + opgeslagen(v).ToStdString() + "\n";
    schrijfInstellingen(inhoud);
    start();
    open(wxID_CANCEL, [&](Preferences& dlg) {
        EXPECT_EQ(dlg.GetTitle(), "Preferences");
        wxBookCtrlBase* boek = dlg.GetBookCtrl();
        const char* titels[] = {"General", "CMake Project cmd", "CMake Library cmd", "CMake Include cmd"};
        ASSERT_EQ(boek->GetPageCount(), 4u);
        for (int i = 0; i < 4; ++i)
            EXPECT_EQ(boek->GetPageText(i), titels[i]);
        for (const VeldRegel& v : velden) {
            EXPECT_TRUE(boek->GetPage(v.pagina)->IsDescendant(dlg.geefTekst(v.lid))) << v.sleutel;
            EXPECT_EQ(labelVan(dlg.geefTekst(v.lid)), v.label) << v.sleutel;
        }
        verwachtOveral(&dlg, opgeslagen);
        for (const VeldRegel& v : velden)
            dlg.geefTekst(v.lid)->SetValue("edited");
        EXPECT_EQ(bedien(dlg, wxID_HELP, [] {}), wxID_NONE);
    });
    verwachtOveral(nullptr, opgeslagen);
    verwachtBewaard(opgeslagen);
}

// OK takes every text as it is, emptied ones too, for the next Execute and
// the next opening; the exit writes all but the shared and object library
// commands.
TEST_F(Voorkeuren, OkTakesTheTextsForExecuteAndTheExitWritesSeven)
{
    start();
    const auto bevestigd = [](const VeldRegel& v) {
        return v.pagina == 2 && v.bewaard ? wxString() : wxString("## confirmed ") + v.sleutel + "\n";
    };
    open(wxID_OK, [&](Preferences& dlg) {
        verwachtOveral(&dlg, [](const VeldRegel& v) { return kern::geefStandaardSjablonen().*v.lid; });
        for (const VeldRegel& v : velden)
            dlg.geefTekst(v.lid)->SetValue(bevestigd(v));
    });
    verwachtOveral(nullptr, bevestigd);
    venster().outputDirPicker->SetPath(thuis);
    klik(wxID_APPLY);
    const wxString tekst = venster().uitvoerTekst->GetValue();
    for (const char* stuk : {"## confirmed KopieerrechtMededeling\n", "\n## confirmed ProjektKommando\n"})
        EXPECT_NE(tekst.Find(stuk), wxNOT_FOUND) << stuk;
    open(wxID_CANCEL, [&](Preferences& dlg) { verwachtOveral(&dlg, bevestigd); });
    verwachtBewaard([&](const VeldRegel& v) { return v.bewaard ? bevestigd(v) : wxString("missing"); });
}
