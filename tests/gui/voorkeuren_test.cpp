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
};

// Every other text is stored: shown as stored (nothing expanded), the others
// as the defaults, each on its page under its label. Help does nothing and
// Cancel after editing hands nothing back; OK takes every text as it is,
// emptied ones too, for Execute and the next opening. The exit writes all
// but the shared and object library commands.
TEST_F(Voorkeuren, CancelKeepsOkTakesAndTheExitWritesSeven)
{
    const auto opgeslagen = [](const VeldRegel& v) { return (&v - velden) % 2 == 0; };
    const auto eerst = [&](const VeldRegel& v) {
        return opgeslagen(v) ? wxString("## stored $HOME ") + v.sleutel : kern::geefStandaardSjablonen().*v.lid;
    };
    const auto bevestigd = [](const VeldRegel& v) {
        return v.pagina == 2 && v.bewaard ? wxString() : wxString("## confirmed ") + v.sleutel + "\n";
    };
    std::string inhoud = "[Configuratie]\n";
    for (const VeldRegel& v : velden)
        if (opgeslagen(v))
            inhoud += std::string(v.sleutel) + "=" + eerst(v).ToStdString() + "\n";
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
            const bool naam = v.lid == &kern::Sjablonen::biebLibNaam || v.lid == &kern::Sjablonen::biebIncludeNaam;
            EXPECT_EQ(dlg.geefTekst(v.lid)->IsMultiLine(), !naam) << v.sleutel; // the names take one line
            dlg.geefTekst(v.lid)->SetValue("edited");
        }
        EXPECT_EQ(bedien(dlg, wxID_HELP, [] {}), wxID_NONE);
    });
    open(wxID_OK, [&](Preferences& dlg) {
        verwachtOveral(&dlg, eerst);
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
    stop();
    auto config = leesInstellingen();
    for (const VeldRegel& v : velden)
        EXPECT_EQ(config->Read(wxString("/Configuratie/") + v.sleutel, "missing"),
                  v.bewaard ? bevestigd(v) : opgeslagen(v) ? eerst(v) : wxString("missing"))
            << v.sleutel;
}
