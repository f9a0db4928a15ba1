#include "app/screenshot_scene.h"

#include <cstdint>

#include "common/text.h"
#include "maps/tab_numbers.h"
#include "maps/tab_selection.h"
#include "shell/controls/user_gestures.h"
#include "shell/editor.h"
#include "shell/forms/frm_about.h"
#include "shell/forms/frm_aircraft.h"
#include "shell/forms/frm_grnd_names.h"
#include "shell/forms/frm_gu_offsets.h"
#include "shell/forms/frm_mission.h"
#include "shell/forms/frm_msg_screen.h"
#include "shell/forms/frm_new_record.h"
#include "shell/forms/frm_splash.h"
#include "shell/forms/frm_tbl_missions.h"
#include "shell/forms/mdi_mission_ed.h"

namespace tarvex {

Form* FindForm(Editor& ed, std::string_view name) {
    Form* forms[] = {&ed.MDIMissionED, &ed.FrmMission,   &ed.frmNewRecord,   &ed.frmAircraft,
                     &ed.frmGrndNames, &ed.frmGUOffsets, &ed.frmtblMissions, &ed.frmMsgScreen,
                     &ed.frmSplash,    &ed.frmAbout};
    for (Form* form : forms)
        if (SameText(form->Name(), name)) return form;
    return nullptr;
}

bool NamedMissionLoaded(const Editor& ed, const EditorCommandLine& line) {
    return line.files.empty() || !ed.doc.MissionPath.empty();
}

void ApplyStartTab(Editor& ed, int tab) {
    if (tab < 0) return;
    if (ed.shell.MainWindowLoaded)
        SelectTab(ed, tab);
    else
        ed.options.LastTab = static_cast<std::int16_t>(tab);
}

std::string PrepareScene(Editor& ed, const EditorCommandLine& line) {
    auto& frm = ed.FrmMission;
    if (line.tab >= 0) SelectTab(ed, line.tab);
    if (line.layoutRow >= 0) {
        if (frm.SSTab1.Tab() != kGroundUnitsTab) SelectTab(ed, kGroundUnitsTab);
        ListBox& layouts = frm.lstGUAdded;
        if (line.layoutRow >= layouts.ListCount())
            return "the mission has no ground layout in row " + std::to_string(line.layoutRow);
        // A designer's double click: the first press selects the row, the second opens it.
        UserPressRow(layouts, line.layoutRow, kLeftButton, 0);
        UserReleaseRow(layouts, line.layoutRow, kLeftButton, 0);
        UserDoubleClickRow(layouts, line.layoutRow, kLeftButton, 0);
        UserReleaseRow(layouts, line.layoutRow, kLeftButton, 0);
    }
    if (!line.form.empty()) {
        Form* form = FindForm(ed, line.form);
        if (!form) return "there is no window named '" + line.form + "'";
        if (!form->Visible()) form->Show();
        if (!form->Visible()) return "the window '" + line.form + "' did not open";
    }
    return {};
}

}  // namespace tarvex
