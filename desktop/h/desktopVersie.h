#pragma once
#include <wx/string.h>

#include <cstdint>

// A version as four one-byte fields: major, minor, patch and a build letter.
struct ZelvanoVersieNummer
{
    std::uint8_t hoofd;
    std::uint8_t neven;
    std::uint8_t herstel;
    char bouwLetter;
};

class DesktopVersieNummer
{
public:
    explicit DesktopVersieNummer(const ZelvanoVersieNummer& nummer) : versie(nummer) {}

    // "%d.%d.%d.%c", for example 2.0.0.a
    wxString geefVersieString() const;

private:
    ZelvanoVersieNummer versie;
};
