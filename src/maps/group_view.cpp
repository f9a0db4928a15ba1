#include "maps/group_view.h"

#include "common/number_text.h"
#include "common/numbers.h"
#include "common/text.h"
#include "maps/group_paths.h"
#include "shell/editor.h"
#include "shell/forms/frm_mission.h"

namespace tarvex {

namespace {

// A path read from four characters of a list: its index, or -1 for text that names none.
int PathAt(const std::string& list, size_t start) {
    const double path = Val(Mid(list, static_cast<long long>(start), 4)) - kFirstPathId;
    return path >= 0 && path < Mission::kMaxPaths ? static_cast<int>(path) : -1;
}

}  // namespace

void btnGrpView_Click(Editor& ed) {
    auto& frm = ed.FrmMission;
    if (frm.btnGrpView.Caption() == "Groups...") {
        frm.cmbGroups.Clear();
        frm.btnGrpView.SetCaption("Airfields...");
        for (int g = 0; g < frm.lstGroupName.ListCount() && IsGroupIndex(g); ++g) {
            if (ed.doc.GrpPaths(g).empty()) continue;
            frm.cmbGroups.AddItem(frm.lstGroupName.List(g));
            frm.cmbGroups.SetItemData(frm.cmbGroups.NewIndex(), g);
        }
        frm.fraGrpView.SetVisible(true);
        frm.fraGrpView.ZOrder(0);
    } else {
        frm.btnGrpView.SetCaption("Groups...");
        frm.fraGrpView.SetVisible(false);
    }
}

void cmbGroups_Click(Editor& ed) {
    auto& frm = ed.FrmMission;
    WaypointState& wp = ed.waypoints;
    const int row = frm.cmbGroups.ListIndex();
    if (row < 0) return;
    const int g = frm.cmbGroups.ItemData(row);
    if (!IsGroupIndex(g)) return;
    const std::string& list = ed.doc.GrpPaths(g);
    wp.GroupViewCount = 0;
    const auto add = [&](int path) {
        if (path >= 0 && wp.GroupViewCount < static_cast<int>(wp.GroupViewPaths.size()))
            wp.GroupViewPaths[static_cast<size_t>(wp.GroupViewCount++)] =
                static_cast<std::uint8_t>(path);
    };
    add(PathAt(list, 1));
    for (size_t comma = InStr(list, ","); comma > 0; comma = InStr(list, ",", comma + 1))
        add(PathAt(list, comma + 1));
    frm.updwnGroupView.SetVisible(wp.GroupViewCount > 1);
    wp.GroupViewIndex = 0;
    if (wp.GroupViewCount > 0) MoveWaypointStr(ed);
}

void updwnGroupView_DownClick(Editor& ed) {
    WaypointState& wp = ed.waypoints;
    if (wp.GroupViewIndex <= 0) return;
    --wp.GroupViewIndex;
    MoveWaypointStr(ed);
}

void updwnGroupView_UpClick(Editor& ed) {
    WaypointState& wp = ed.waypoints;
    if (wp.GroupViewCount == 0) return;
    wp.GroupViewIndex = static_cast<std::int16_t>((wp.GroupViewIndex + 1) % wp.GroupViewCount);
    MoveWaypointStr(ed);
}

void MoveWaypointStr(Editor& ed) {
    WaypointState& wp = ed.waypoints;
    if (wp.GroupViewIndex < 0 || wp.GroupViewIndex >= wp.GroupViewCount) return;
    Mission& doc = ed.doc;
    auto& frm = ed.FrmMission;
    doc.CurrentPath = wp.GroupViewPaths[static_cast<size_t>(wp.GroupViewIndex)];
    frm.lblGrpWP.SetCaption(IntText(PathId(doc.CurrentPath)));
    frm.optColor(doc.CurrentPath).SetValue(true);
}

}  // namespace tarvex
