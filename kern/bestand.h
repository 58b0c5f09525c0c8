#pragma once
// Writing a file the user owns so that it is either written whole or not at
// all: a generated CMake file or the settings file.
#include <wx/string.h>

#include <string>

namespace kern {

// Writes `tekst` to `pad` in UTF-8 without a byte-order mark, with the
// platform's native line ends. The text goes to a temporary file in the same
// directory, which replaces `pad` only when all of it was written; on any
// failure (directory not writable, disk full, an existing file that is not
// writable or is marked read-only) `pad` is left as it was and false is
// returned, with the system's reason (such as "Permission denied") in
// `*reden` when it is given.
bool schrijfTekstBestand(const wxString& pad, const wxString& tekst, wxString* reden = nullptr);
// The same for a text that is UTF-8 already.
bool schrijfTekstBestand(const wxString& pad, const std::string& utf8, wxString* reden = nullptr);

// Replaces the file at `pad` (the bytes the file system takes) by `inhoud`,
// byte for byte. A symbolic link is followed and its target replaced; the
// owner, group and mode of an existing file are kept. Where the file cannot
// be replaced by a rename (it has more hard links, or its directory is not
// writable) it is written in place after a copy of the old content, which
// goes again once the write succeeded.
bool vervangBestand(const std::string& pad, const std::string& inhoud, wxString* reden = nullptr);

// The bytes the file system takes for a path the program holds as text.
std::string geefPadBytes(const wxString& pad);

} // namespace kern
