#include "formations/group_selection.h"

#include "common/number_text.h"
#include "document/mission_reset.h"
#include "formations/formation_lists.h"
#include "formations/formation_patterns.h"
#include "formations/group_path_preview.h"
#include "maps/group_paths.h"
#include "maps/runway_controls.h"
#include "shell/editor.h"
#include "shell/forms/frm_mission.h"
#include "shell/forms/frm_new_record.h"
#include "shell/sounds.h"
#include "shell/status_strip.h"

namespace tarvex {

void lstGroupName_Click(Editor& ed) {
    auto& frm = ed.FrmMission;
    Mission& doc = ed.doc;
    const int row = frm.lstGroupName.ListIndex();
    if (row < 0) return;

    // The group being left keeps what its open path panel shows.
    if (frm.fraWPSelect.Visible()) BuildGroupPathList(ed, doc.GrpPaths(doc.CurrentGroup));
    doc.CurrentGroup = static_cast<std::int16_t>(row);
    ShowGroupPathList(ed, doc.GrpPaths(row));

    {
        LoweredFlag quiet(doc.EventsOn);
        frm.cmbFormPattern.SetListIndex(doc.GrpPattern(row));
        frm.chkSuspend.SetValue(doc.GrpSuspended(row));
        frm.cmbDirective.SetListIndex(doc.GrpDirective(row));
        frm.cmbTakeoffFlag.SetListIndex(doc.GrpTakeoffFlag(row));
        // The limit comes silently with the group.
        ReadPatternLimit(ed, doc.GrpPattern(row));
        ed.formations.PreviousPattern = doc.GrpPattern(row);
    }

    frm.lblGroupID.SetCaption(IntText(6000 + row));
    frm.lstPilotName.Clear();
    frm.chkPilotIsAC.SetValue(doc.GrpPilotIsAC(row));
    const int pilots = PilotCount(doc, row);
    for (int p = 0; p < pilots; ++p)
        frm.lstPilotName.AddItem(doc.PilotName(row, p));
    if (pilots > 0) SelectRow(frm.lstPilotName, 0);

    if (ed.formations.NewRecordOpen)
        ed.frmNewRecord.txtNewRecord.SetText(frm.lstGroupName.List(row));

    ShowGroupPath(ed);
    EnableGroupControls(ed, true);
    EnablePilotList(ed, true);
    EnablePilotControls(ed, pilots > 0);
    ShowRunwayControlsForGroup(ed);

    // A group loaded with more pilots than its pattern holds says so; nothing is removed.
    if (pilots > doc.PatternMaxPilots) ShowPatternCapacity(ed);
}

void lstGroupName_MouseDown(Editor& ed, int button, int, float x, float y) {
    ListBox& list = ed.FrmMission.lstGroupName;
    const int row = list.RowAt(y);
    if (row < 0 || row >= list.ListCount()) return;
    PlaySound(ed, ed.shell.sndClick);
    if (button == kRightButton) PreviewGroupPath(ed, row, x);
}

void lstGroupName_MouseUp(Editor& ed, int button, int, float, float) {
    if (button == kRightButton) EndGroupPathPreview(ed);
}

void ShowGroupPath(Editor& ed) {
    const std::string& paths = ed.doc.GrpPaths(ed.doc.CurrentGroup);
    ShowStatus(ed, paths.empty() ? "Path Undefined..." : "Assigned Path :" + paths);
}

}  // namespace tarvex
