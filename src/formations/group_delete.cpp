#include "formations/group_delete.h"

#include <algorithm>

#include "document/mission_reset.h"
#include "formations/formation_lists.h"
#include "formations/player.h"
#include "maps/group_paths.h"
#include "shell/editor.h"
#include "shell/forms/frm_mission.h"
#include "shell/sounds.h"

namespace tarvex {

namespace {

void CopyGroupValues(Mission& doc, int from, int to) {
    doc.GrpPattern(to) = doc.GrpPattern(from);
    doc.GrpSuspended(to) = doc.GrpSuspended(from);
    doc.GrpDirective(to) = doc.GrpDirective(from);
    doc.GrpTakeoffFlag(to) = doc.GrpTakeoffFlag(from);
    doc.GrpTakeoffRwy(to) = doc.GrpTakeoffRwy(from);
    doc.GrpLandingRwy(to) = doc.GrpLandingRwy(from);
    doc.GrpPaths(to) = doc.GrpPaths(from);
    doc.GrpPilotIsAC(to) = doc.GrpPilotIsAC(from);
}

}  // namespace

void DeleteGroupPilots(Editor& ed, int group) {
    Mission& doc = ed.doc;
    if (group == doc.PlayerGroup) ClearPlayer(ed);
    for (int g = group; g < Mission::kGroupUpper; ++g)
        for (int p = 0; p <= Mission::kPilotUpper; ++p)
            CopyPilotSlot(doc, g + 1, p, g, p);
    for (int p = 0; p <= Mission::kPilotUpper && !doc.PilotName(Mission::kGroupUpper, p).empty();
         ++p)
        ClearPilotSlot(doc, Mission::kGroupUpper, p);
    if (doc.PlayerGroup > group) --doc.PlayerGroup;
}

void btnDeleteGroup_Click(Editor& ed) {
    auto& frm = ed.FrmMission;
    Mission& doc = ed.doc;
    ListBox& groups = frm.lstGroupName;
    const int row = groups.ListIndex();
    if (row < 0 || row >= Mission::kMaxGroups) return;

    frm.lstPilotName.Clear();
    for (int p = 0; p < Mission::kMaxPaths; ++p) {
        if (doc.PathGroup(p) == row) {
            doc.PathGroup(p) = 0;
        } else if (doc.PathGroup(p) > row) {
            --doc.PathGroup(p);
        }
    }
    for (int g = row; g < groups.ListCount(); ++g)
        CopyGroupValues(doc, g + 1, g);
    DeleteGroupPilots(ed, row);
    groups.RemoveItem(row);
    // An open path panel shows the deleted group's paths; the selection below would store
    // them into the group that now stands in its row.
    if (frm.fraWPSelect.Visible()) ShowGroupPathList(ed, doc.GrpPaths(row));

    if (groups.ListCount() == 0) {
        EnableGroupControls(ed, false);
        EnablePilotControls(ed, false);
        EnablePilotList(ed, false);
    } else {
        groups.SetListIndex(std::min(row, groups.ListCount() - 1));
    }
    frm.btnGroupName.SetEnabled(true);
}

void btnDeleteGroup_MouseDown(Editor& ed, int, int, float, float) {
    PlaySound(ed, ed.shell.sndCheckbox);
}

}  // namespace tarvex
