#pragma once
// Writing a generated file so that it is either written whole or not at all.
#include <wx/string.h>

namespace kern {

// Writes `tekst` to `pad` in UTF-8 without a byte-order mark, with the
// platform's native line ends. The text goes to a temporary file in the same
// directory, which replaces `pad` only when all of it was written; on any
// failure (directory not writable, disk full, an existing file that is not
// writable or is marked read-only) `pad` is left as it was and false is
// returned, with the system's reason (such as "Permission denied") in
// `*reden` when it is given.
bool schrijfTekstBestand(const wxString& pad, const wxString& tekst, wxString* reden = nullptr);

} // namespace kern
