// What the user types into a picker's text field is taken once, on Enter or
// when the field loses focus, and only when it names what the picker wants;
// dropped paths reach the search location through the button and the field.
#include "toepassing/klavermolvenster.h"

#include "toepassing/bestanddroptarget.h"
#include "toepassing/padveld.h"

#include <wx/choice.h>
#include <wx/filepicker.h>
#include <wx/menu.h>
#include <wx/textctrl.h>

void KlavermolVenster::koppelPadVelden()
{
    for (wxFileDirPickerCtrlBase* kiezer :
         std::initializer_list<wxFileDirPickerCtrlBase*>{vindBestandenInDirs, outputDirPicker, vindCMakeSubDir,
                                                        vindCMakeIncludeDir}) {
        wxTextCtrl* veld = kiezer->GetTextCtrl();
        if (veld == nullptr)
            continue;
        // Each keystroke leaves the picker alone: a half-typed path is no location.
        veld->Bind(wxEVT_TEXT, [](wxCommandEvent&) {});
        veld->Bind(wxEVT_KEY_DOWN, [this, kiezer](wxKeyEvent& e) {
            if (e.GetKeyCode() == WXK_RETURN || e.GetKeyCode() == WXK_NUMPAD_ENTER)
                neemGetyptPad(kiezer);
            else
                e.Skip();
        });
        veld->Bind(wxEVT_KILL_FOCUS, [this, kiezer](wxFocusEvent& e) {
            neemGetyptPad(kiezer);
            e.Skip();
        });
    }
    vindBestandenInDirs->SetDropTarget(new BestandDropTarget(this));
    if (vindBestandenInDirs->GetTextCtrl() != nullptr)
        vindBestandenInDirs->GetTextCtrl()->SetDropTarget(new BestandDropTarget(this));
}

void KlavermolVenster::neemGetyptPad(wxFileDirPickerCtrlBase* kiezer)
{
    if (IsBeingDeleted())
        return;
    const bool isMap = kiezer == vindBestandenInDirs || kiezer == outputDirPicker;
    const wxString getypt = kiezer->GetTextCtrl()->GetValue();
    const wxString pad = isMap ? normaleMap(getypt) : normaalBestand(getypt);
    const wxString huidig = isMap ? normaleMap(kiezer->GetPath()) : normaalBestand(kiezer->GetPath());
    if (getypt.empty() || pad == huidig) {
        kiezer->GetTextCtrl()->ChangeValue(kiezer->GetPath());
        return;
    }
    if (isMap ? !wxFileName::DirExists(pad) : !wxFileName::FileExists(pad)) {
        SetStatusText(wxString::Format(isMap ? _("No such directory: %s") : _("No such file: %s"), getypt), 0);
        return;
    }
    kiezer->SetPath(pad);
    wxFileDirPickerEvent gekozen(isMap ? wxEVT_DIRPICKER_CHANGED : wxEVT_FILEPICKER_CHANGED, kiezer, kiezer->GetId(),
                                 pad);
    kiezer->GetEventHandler()->ProcessEvent(gekozen);
}

bool KlavermolVenster::moetUitvoerMapVolgen() const
{
    return uitvoerSoortKeuze->GetSelection() != kern::SoortProjekt && GetMenuBar()->IsChecked(AutoZetUitvoerDirID);
}

bool KlavermolVenster::zoekMapBestaat()
{
    const wxString map = vindBestandenInDirs->GetPath();
    if (wxFileName::DirExists(map))
        return true;
    SetStatusText(wxString::Format(_("No such directory: %s"), map), 0);
    return false;
}
