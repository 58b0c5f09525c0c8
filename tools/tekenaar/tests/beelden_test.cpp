// The images the build drew: the sizes and transparency the program relies on.
#include <cstring>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <wx/filename.h>
#include <wx/image.h>

#include "tekeningen.h"

namespace {

const std::string share = KLAVERMOL_SHARE_DIR;
const std::string ikonen = "klavermol/ikonen/";

wxImage laad(const std::string& naam)
{
    wxImage beeld;
    const wxString pad = wxString::FromUTF8(share + "/" + naam);
    EXPECT_TRUE(wxFileName::FileExists(pad) && beeld.LoadFile(pad)) << naam;
    return beeld;
}

std::size_t geefGrootte(const std::string& naam)
{
    return static_cast<std::size_t>(wxFileName::GetSize(wxString::FromUTF8(share + "/" + naam)).GetValue());
}

// A square image with an alpha channel whose top corners are see-through,
// so it sits on any background, and that shows something solid in its
// middle half.
void verwachtVrijstaand(const std::string& naam, int maat)
{
    const wxImage beeld = laad(naam);
    ASSERT_TRUE(beeld.IsOk() && beeld.HasAlpha()) << naam;
    EXPECT_EQ(beeld.GetWidth(), maat) << naam;
    EXPECT_EQ(beeld.GetHeight(), maat) << naam;
    EXPECT_EQ(beeld.GetAlpha(0, 0) + beeld.GetAlpha(maat - 1, 0), 0) << naam;
    int dekkend = 0;
    for (int y = maat / 4; y < maat * 3 / 4; ++y)
        for (int x = maat / 4; x < maat * 3 / 4; ++x)
            dekkend += beeld.GetAlpha(x, y) > 200;
    EXPECT_GT(dekkend, maat * maat / 8) << naam;
}

} // namespace

TEST(Beelden, ButtonsIconsAndFlagsStandFree)
{
    for (const char* naam : {"thuis", "tijdmachine", "terug", "vooruit", "groenplus", "blauwplus", "insluiten",
                             "taal", "algemeen", "projekt", "boeken", "schakeling"})
        verwachtVrijstaand(ikonen + naam + ".png", 32);
    verwachtVrijstaand(ikonen + "uitvoeren.png", 48);
    for (int n : {16, 32, 48, 64, 128, 256})
        verwachtVrijstaand("icons/hicolor/" + std::to_string(n) + "x" + std::to_string(n) + "/apps/klavermol.png", n);
    // a flag is a field with a see-through border around it
    for (const char* land : {"nederland", "duitsland", "grootbritannie", "frankrijk", "spanje", "portugal", "israel",
                             "italie", "zweden", "japan", "china", "taiwan", "korea", "rusland"}) {
        verwachtVrijstaand(ikonen + "vlaggen/" + land + ".png", 24);
        EXPECT_EQ(laad(ikonen + "vlaggen/" + land + ".png").GetAlpha(12, 0), 0) << land;
    }
}

TEST(Beelden, JpegsAndLogoHaveTheirSizes)
{
    const struct { const char* naam; int breedte, hoogte; } beelden[] = {
        {"opstart.jpg", 400, 260}, {"klavermol.jpg", 32, 32}, {"zelvano_zeerklein.jpg", 24, 24},
        {"zelvano_klein.png", 96, 96}};
    for (const auto& b : beelden) {
        const wxImage beeld = laad(ikonen + b.naam);
        EXPECT_EQ(beeld.GetWidth(), b.breedte) << b.naam;
        EXPECT_EQ(beeld.GetHeight(), b.hoogte) << b.naam;
    }
    // the splash image is about 17 KB, the logo small
    EXPECT_NEAR(static_cast<double>(geefGrootte(ikonen + "opstart.jpg")), 17000, 2000);
    EXPECT_LT(geefGrootte(ikonen + "zelvano_klein.png"), 20000u);
}

TEST(Beelden, NoTwoFlagsAreDrawnAlike)
{
    std::vector<wxImage> gezien;
    for (int i = 0; i <= static_cast<int>(Vlag::Rusland); ++i) {
        const wxImage vlag = maakVlag(static_cast<Vlag>(i)).geefBeeld(true);
        for (const wxImage& ander : gezien)
            EXPECT_NE(0, std::memcmp(vlag.GetData(), ander.GetData(), 24 * 24 * 3)) << "flag " << i;
        gezien.push_back(vlag);
    }
}
