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

wxImage laad(const std::string& naam)
{
    wxImage beeld;
    const wxString pad = wxString::FromUTF8(share + "/" + naam);
    EXPECT_TRUE(wxFileName::FileExists(pad)) << naam;
    if (wxFileName::FileExists(pad))
        EXPECT_TRUE(beeld.LoadFile(pad)) << naam;
    return beeld;
}

// A square image with an alpha channel whose corners are see-through, so it
// sits on any background.
void verwachtVrijstaand(const std::string& naam, int maat)
{
    const wxImage beeld = laad(naam);
    ASSERT_TRUE(beeld.IsOk()) << naam;
    EXPECT_EQ(beeld.GetWidth(), maat) << naam;
    EXPECT_EQ(beeld.GetHeight(), maat) << naam;
    ASSERT_TRUE(beeld.HasAlpha()) << naam;
    EXPECT_EQ(beeld.GetAlpha(0, 0), 0) << naam;
    EXPECT_EQ(beeld.GetAlpha(maat - 1, 0), 0) << naam;
    // ... and that shows something solid in its middle half.
    int dekkend = 0;
    for (int y = maat / 4; y < maat * 3 / 4; ++y)
        for (int x = maat / 4; x < maat * 3 / 4; ++x)
            dekkend += beeld.GetAlpha(x, y) > 200;
    EXPECT_GT(dekkend, maat * maat / 8) << naam;
}

std::size_t geefGrootte(const std::string& naam)
{
    return static_cast<std::size_t>(wxFileName::GetSize(wxString::FromUTF8(share + "/" + naam)).GetValue());
}

} // namespace

TEST(Beelden, ButtonsAndProgramIconsStandFree)
{
    for (const char* naam : {"thuis", "tijdmachine", "terug", "vooruit", "groenplus", "blauwplus", "insluiten",
                             "taal", "algemeen", "projekt", "boeken", "schakeling"})
        verwachtVrijstaand(std::string("klavermol/ikonen/") + naam + ".png", 32);
    verwachtVrijstaand("klavermol/ikonen/uitvoeren.png", 48);
    for (int n : {16, 32, 48, 64, 128, 256}) {
        const std::string maat = std::to_string(n) + "x" + std::to_string(n);
        verwachtVrijstaand("icons/hicolor/" + maat + "/apps/klavermol.png", n);
    }
}

TEST(Beelden, JpegsAndLogoHaveTheirSizes)
{
    const struct { const char* naam; int breedte, hoogte; } jpegs[] = {
        {"klavermol/ikonen/opstart.jpg", 400, 260},
        {"klavermol/ikonen/klavermol.jpg", 32, 32},
        {"klavermol/ikonen/zelvano_zeerklein.jpg", 24, 24}};
    for (const auto& j : jpegs) {
        const wxImage beeld = laad(j.naam);
        ASSERT_TRUE(beeld.IsOk()) << j.naam;
        EXPECT_EQ(beeld.GetWidth(), j.breedte) << j.naam;
        EXPECT_EQ(beeld.GetHeight(), j.hoogte) << j.naam;
    }
    // the splash image is about 17 KB, the logo small
    const std::size_t opstart = geefGrootte("klavermol/ikonen/opstart.jpg");
    EXPECT_GT(opstart, 15000u);
    EXPECT_LT(opstart, 19000u);
    EXPECT_EQ(laad("klavermol/ikonen/zelvano_klein.png").GetWidth(), 96);
    EXPECT_LT(geefGrootte("klavermol/ikonen/zelvano_klein.png"), 20000u);
}

TEST(Beelden, FlagsHaveABorderAroundAField)
{
    for (const char* land : {"nederland", "duitsland", "grootbritannie", "frankrijk", "spanje", "portugal", "israel",
                             "italie", "zweden", "japan", "china", "taiwan", "korea", "rusland"}) {
        const wxImage vlag = laad(std::string("klavermol/ikonen/vlaggen/") + land + ".png");
        ASSERT_TRUE(vlag.IsOk()) << land;
        EXPECT_EQ(vlag.GetWidth(), 24) << land;
        EXPECT_EQ(vlag.GetHeight(), 24) << land;
        ASSERT_TRUE(vlag.HasAlpha()) << land;
        EXPECT_EQ(vlag.GetAlpha(12, 0), 0) << land;     // above the flag
        EXPECT_EQ(vlag.GetAlpha(12, 12), 255) << land;  // the middle of the field
    }
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

TEST(Beelden, JpegQualityIsChosenForTheTargetSize)
{
    const wxString pad = wxFileName::CreateTempFileName("klavermol-tekenaar");
    for (std::size_t doel : {9000u, 17000u}) {
        const std::size_t gemeten = bewaarJpegRond(maakOpstartBeeld(), pad.ToStdString(), doel);
        EXPECT_EQ(gemeten, static_cast<std::size_t>(wxFileName::GetSize(pad).GetValue()));
        EXPECT_NEAR(static_cast<double>(gemeten), static_cast<double>(doel), doel * 0.08);
    }
    wxRemoveFile(pad);
}
