#pragma once
// The per-user settings file: where it lives, reading it line by line as
// UTF-8 into the store, and writing the store back over what another
// instance of the program may have written meanwhile.
#include <wx/fileconf.h>
#include <wx/string.h>

#include <map>
#include <memory>
#include <string>

namespace kern {

// The settings file of `appNaam` in the user's home directory, in the bytes
// the file system takes: $HOME as it stands (a relative one taken from the
// working directory), or the password file's home when HOME is not set.
std::string geefInstellingenPad(const wxString& appNaam);

class InstellingenBestand
{
public:
    explicit InstellingenBestand(std::string pad) : pad(std::move(pad)) {}

    // Reads the file into a new store. Lines that are not valid UTF-8 are
    // dropped, repeated groups merged into the first, a repeated key keeps
    // its last value, and stored values of the wrong type or out of range
    // removed so that their readers take the default; any of these, or a
    // file that cannot be read, marks the file as damaged.
    std::unique_ptr<wxFileConfig> lees();
    bool isBeschadigd() const { return beschadigd; }

    // The path for messages.
    wxString geefPad() const { return wxString::FromUTF8(pad.c_str()); }
    // Keeps the file as it stands beside itself, with ".bak" added.
    bool bewaarKopie(wxString* kopie) const;

    enum Uitslag { Geschreven, AlleenLezen, Mislukt };
    // Writes every key of `config` over a fresh read of the file: a key this
    // store did not change since it was read (or last written), and that the
    // file now holds with another value, takes the file's value into
    // `config`; keys only the file holds are taken over. A file without any
    // write bit is left alone.
    Uitslag bewaar(wxFileConfig& config, wxString* reden = nullptr);

private:
    std::unique_ptr<wxFileConfig> leesStore(bool& fouten) const;

    std::string pad;
    bool beschadigd = false;
    std::map<wxString, wxString> begin; // every key's value as read or last written
};

} // namespace kern
