// The preferences dialog: how OK and Cancel hand the nine templates on.
#include "gebruiker.h"
#include "programma.h"

#include "dialogs/preferences.h"

#include <wx/bookctrl.h>
#include <wx/filepicker.h>
#include <wx/statbox.h>
#include <wx/textctrl.h>

namespace {

// A field, its key under "/Configuratie", its page, the label of its box or grid row, whether the exit writes it.
struct VeldRegel { Preferences::Veld lid; const char* sleutel; int pagina; const char* label; bool bewaard; };
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

} // namespace

using Voorkeuren = ProgrammaTest;

// Stored texts shown unexpanded; OK hands back every text, emptied too, Cancel none; the exit writes seven.
TEST_F(Voorkeuren, CancelKeepsOkTakesAndTheExitWritesSeven)
{
    const auto opgeslagen = [](const VeldRegel& v) { return (&v - velden) % 2 == 0; };
    const auto eerst = [&](const VeldRegel& v) { return opgeslagen(v) ? wxString("## stored $HOME ") + v.sleutel
                                                                      : kern::geefStandaardSjablonen().*v.lid; };
    const auto bevestigd = [](const VeldRegel& v) { return v.pagina == 2 && v.bewaard ? wxString()
                                                           : wxString("## confirmed ") + v.sleutel + "\n"; };
    std::string inhoud = "[Configuratie]\n";
    for (const VeldRegel& v : velden)
        inhoud += opgeslagen(v) ? std::string(v.sleutel) + "=" + eerst(v).ToStdString() + "\n" : "";
    schrijfInstellingen(inhoud);
    start();
    const auto open = [&](int knop, const std::function<wxString(const VeldRegel&)>& getoond,
                          const std::function<wxString(const VeldRegel&)>& nieuw) {
        wxTEST_DIALOG(opdracht(wxEVT_MENU, wxID_PREFERENCES), Antwoord<Preferences>([&](Preferences& dlg) {
            wxBookCtrlBase* boek = dlg.GetBookCtrl();
            wxString paginas = dlg.GetTitle() + "|";
            for (std::size_t i = 0; i < boek->GetPageCount(); ++i)
                paginas += boek->GetPageText(i) + wxString::Format(" %d|", boek->GetPageImage(i));
            EXPECT_EQ(paginas, "Preferences|General 0|CMake Project cmd 1|CMake Library cmd 2|CMake Include cmd 3|");
            return bedien(dlg, knop, [&] {
                EXPECT_EQ(bedien(dlg, wxID_HELP, [] {}), wxID_NONE);
                for (const VeldRegel& v : velden) {
                    wxTextCtrl* tekst = dlg.geefTekst(v.lid);
                    auto* kader = dynamic_cast<wxStaticBox*>(tekst->GetParent());
                    EXPECT_EQ(wxString::Format("%d %d ", boek->GetPage(v.pagina)->IsDescendant(tekst), tekst->IsMultiLine()) +
                              (kader ? kader->GetLabel() : tekst->GetPrevSibling()->GetLabel()) + "|" + tekst->GetValue(),
                              wxString::Format("1 %d ", v.pagina != 2 || !kader) + v.label + "|" + getoond(v));
                    tekst->SetValue(nieuw(v));
                }
            });
        }));
        for (const VeldRegel& v : velden)
            EXPECT_EQ(venster().sjablonen.*v.lid, knop == wxID_OK ? nieuw(v) : getoond(v)) << v.sleutel;
    };
    open(wxID_OK, eerst, bevestigd);
    venster().outputDirPicker->SetPath(thuis);
    klik(wxID_APPLY);
    EXPECT_TRUE(venster().uitvoerTekst->GetValue().Contains("## confirmed KopieerrechtMededeling\n")); // Execute uses them
    open(wxID_CANCEL, bevestigd, eerst);
    stop();
    for (const VeldRegel& v : velden)
        EXPECT_EQ(leesInstellingen()->Read(wxString("/Configuratie/") + v.sleutel, "missing"),
                  v.bewaard ? bevestigd(v) : opgeslagen(v) ? eerst(v) : wxString("missing")) << v.sleutel;
}
