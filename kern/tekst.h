#pragma once
// Small text helpers shared by the core, the desktop frame and the front ends.
#include <wx/string.h>
#include <wx/datetime.h>
#include <wx/buffer.h>

#include <string>
#include <string_view>

namespace kern {

// Appends to a UTF-8 text; the generators write through it into one buffer.
class Utf8Schrijver {
public:
    explicit Utf8Schrijver(std::string& tekst) : tekst_(tekst) {}
    Utf8Schrijver& operator<<(const wxString& t)
    {
        const wxScopedCharBuffer utf8 = t.utf8_str();
        tekst_.append(utf8.data(), utf8.length());
        return *this;
    }
    Utf8Schrijver& operator<<(std::string_view t)
    {
        tekst_.append(t);
        return *this;
    }
    Utf8Schrijver& operator<<(const char* t) { return *this << std::string_view(t); }
    Utf8Schrijver& operator<<(const std::string& t) { return *this << std::string_view(t); }
    Utf8Schrijver& operator<<(size_t getal) { return *this << std::string_view(std::to_string(getal)); }

private:
    std::string& tekst_;
};

extern const wxString vr;   // the line end every generator writes: "\n"
extern const wxString sp;   // one blank
extern const wxString tab;  // "\t"

// s between two double-quote characters; with metSpaties also one blank
// before and after the quoted text.
wxString dubbeleQuotes(const wxString& s, bool metSpaties);

// The date line of a generated file, "%Y-%m-%d %H:%M:%S": the local time
// now, or, when SOURCE_DATE_EPOCH holds a valid number (reproducible
// builds), that moment in UTC.
wxString geefGeneratieDatum();

} // namespace kern
