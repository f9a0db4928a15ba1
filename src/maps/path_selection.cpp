#include "maps/path_selection.h"

#include "common/number_text.h"
#include "maps/group_paths.h"
#include "maps/path_drawing.h"
#include "maps/path_overlays.h"
#include "maps/point_slots.h"
#include "maps/runway_controls.h"
#include "maps/waypoint_controls.h"
#include "maps/waypoint_list.h"
#include "shell/editor.h"
#include "shell/forms/frm_mission.h"
#include "shell/sounds.h"
#include "shell/status_strip.h"

namespace tarvex {

namespace {

// The airfields of every new path, rows of the airfield combos.
constexpr int kDefaultStartRow = 16;
constexpr int kDefaultEndRow = 8;

bool IsAirfieldRow(int row) {
    return row >= 0 && row < Mission::kNoAirfield;
}

// A row the combo holds; a database with fewer airfields has no such row, and nothing is
// selected then.
void SelectRow(ComboBox& combo, int row) {
    if (row < combo.ListCount()) combo.SetListIndex(row);
}

}  // namespace

void optColor_Click(Editor& ed, int path) {
    Mission& doc = ed.doc;
    auto& frm = ed.FrmMission;
    if (frm.lstPointsExtended.Visible()) LeaveExtendedSelection(ed);
    doc.CurrentPath = static_cast<std::uint8_t>(path);
    ShowRunwayControlsForPath(ed, path);
    frm.fraPathColor.SetCaption("Flight Path: " + IntText(PathId(path)));
    frm.fraWaypoints.SetCaption("Waypoints for Path: " + IntText(PathId(path)));
    frm.lstPoints.Clear();
    RefreshOverlayChecks(ed);

    if (doc.PathPointCount(path) < 2) {
        // No waypoints: the combos go to no row first, so that the rows below are a change and
        // their handlers store the End and Start points.
        frm.cmbEndAtRwy.SetListIndex(-1);
        frm.cmbStartAtRwy.SetListIndex(-1);
        SetWaypointControlsEnabled(ed, false);
        const int end = doc.PathAirfieldEnd(path);
        SelectRow(frm.cmbEndAtRwy, IsAirfieldRow(end) ? end : kDefaultEndRow);
        const int start = doc.PathAirfieldStart(path);
        if (IsAirfieldRow(start)) {
            SelectRow(frm.cmbStartAtRwy, start);
        } else {
            SelectRow(frm.cmbStartAtRwy, kDefaultStartRow);
            doc.PathAirfieldStart(path) = kDefaultStartRow;
        }
    } else {
        for (int i = 1; i < doc.PathPointCount(path); ++i)
            frm.lstPoints.AddItem(PointRowText(i, doc.WPLat(path, i), doc.WPLon(path, i)));
        frm.lstPoints.SetListIndex(frm.lstPoints.ListCount() - 1);
        doc.PathCurrentPoint(path) = static_cast<std::int16_t>(frm.lstPoints.ListCount());
        SetWaypointControlsEnabled(ed, true);
        // The combos show the path's own airfields. On the Formations tab that is a view
        // only: a path shown (by the group view, the path panel or the tab itself) doesn't
        // give its airfields to the selected group, which may not even fly it.
        ed.waypoints.ShowingPathAirfields = true;
        const int start = doc.PathAirfieldStart(path);
        if (start != Mission::kNoAirfield && start >= 0) SelectRow(frm.cmbStartAtRwy, start);
        const int end = doc.PathAirfieldEnd(path);
        if (end != Mission::kNoAirfield && end >= 0) SelectRow(frm.cmbEndAtRwy, end);
        ed.waypoints.ShowingPathAirfields = false;
    }
    DrawPaths(ed, frm.mapWayPoints);
}

void optColor_MouseDown(Editor& ed, int, int, int, float, float) {
    PlaySound(ed, ed.shell.sndClick);
}

void lblPath_MouseMove(Editor& ed, int path, int, int, float, float) {
    const Mission& doc = ed.doc;
    const std::string id = IntText(PathId(path));
    const int holder = doc.PathGroup(path);
    if (PathListHolds(doc.GrpPaths(holder), path)) {
        ShowStatus(ed, "Waypoint [" + id + "] is assigned to [" +
                           ed.FrmMission.lstGroupName.List(holder) + "] ");
    } else {
        ShowStatus(ed, "Waypoint [" + id + "] is unassigned. ");
    }
}

void EnsureEndSlot(Editor& ed) {
    Mission& doc = ed.doc;
    const int path = doc.CurrentPath;
    if (doc.PathPointCount(path) != 0) return;
    optColor_Click(ed, path);
    if (doc.PathPointCount(path) != 0) return;
    CopySlotPosition(doc, path, 0, 1);
    doc.PathPointCount(path) = 1;
}

}  // namespace tarvex
