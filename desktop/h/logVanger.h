#pragma once
// Catches what the toolkit logs while it is in scope, instead of showing
// it, and puts the previous log target back afterwards. Used where the
// program reports a failure in its own words.
#include <wx/log.h>

class LogVanger : public wxLog
{
public:
    LogVanger() : vorige(wxLog::SetActiveTarget(this)) {}
    ~LogVanger() override { wxLog::SetActiveTarget(vorige); }
    LogVanger(const LogVanger&) = delete;
    LogVanger& operator=(const LogVanger&) = delete;

    // Whether a warning or an error was logged.
    bool heeftProblemen() const { return problemen > 0; }

protected:
    void DoLogRecord(wxLogLevel niveau, const wxString&, const wxLogRecordInfo&) override
    {
        if (niveau <= wxLOG_Warning)
            ++problemen;
    }

private:
    wxLog* vorige;
    int problemen = 0;
};
