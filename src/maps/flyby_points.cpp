#include "maps/flyby_points.h"

#include "common/numbers.h"
#include "maps/map_loading.h"
#include "maps/path_drawing.h"
#include "maps/path_selection.h"
#include "maps/point_slots.h"
#include "maps/waypoint_controls.h"
#include "maps/waypoint_list.h"
#include "shell/editor.h"
#include "shell/forms/frm_mission.h"

namespace tarvex {

namespace {

// The row of the End airfield, for the End point behind the flyby.
int EndRow(Editor& ed) {
    const int row = ed.FrmMission.cmbEndAtRwy.ListIndex();
    return row >= 0 ? row : ed.doc.PathAirfieldEnd(ed.doc.CurrentPath);
}

// Takes a preview back: the path is as it was before the list opened.
void DropPreview(Editor& ed) {
    Mission& doc = ed.doc;
    WaypointState& wp = ed.waypoints;
    if (!wp.FlybyPreview) return;
    wp.FlybyPreview = false;
    const int path = doc.CurrentPath;
    const int count = wp.PreviewPointCount;
    doc.PathPointCount(path) = static_cast<std::uint8_t>(count);
    doc.CurrentPoint = wp.PreviewCurrentPoint;
    PutSlotPosition(doc, path, count, wp.PreviewSlot);
    PutSlotPosition(doc, path, count + 1, wp.PreviewEndSlot);
    DrawPaths(ed, ed.FrmMission.mapWayPoints);
}

}  // namespace

void scFlybyCombo(Editor& ed) {
    Mission& doc = ed.doc;
    auto& frm = ed.FrmMission;
    WaypointState& wp = ed.waypoints;
    const int row = frm.cmbRunways.ListIndex();
    if (row < 0) return;
    const int path = doc.CurrentPath;
    if (!wp.FlybyPreview) {
        EnsureEndSlot(ed);
        const int count = doc.PathPointCount(path);
        // A path of 15 waypoints has no slot for another; the choice will say so.
        if (count >= kFullPathPointCount) return;
        wp.PreviewPointCount = static_cast<std::uint8_t>(count);
        wp.PreviewCurrentPoint = doc.CurrentPoint;
        wp.PreviewSlot = SlotPositionOf(doc, path, count);
        wp.PreviewEndSlot = SlotPositionOf(doc, path, count + 1);
        // From here CurrentPoint is the slot of the preview, and the End point is one higher.
        doc.CurrentPoint = static_cast<std::uint8_t>(count);
        doc.PathPointCount(path) = static_cast<std::uint8_t>(count + 1);
        wp.FlybyPreview = true;
    }
    const int end = doc.PathPointCount(path);
    if (doc.PathAirfieldEnd(path) != Mission::kNoAirfield &&
        LoadAirfieldIntoSlot(ed, EndRow(ed), path, end)) {
        doc.WPMapX(path, end) = doc.WPMapX(path, doc.CurrentPoint);
        doc.WPMapY(path, end) = doc.WPMapY(path, doc.CurrentPoint);
    }
    const int slot = doc.CurrentPoint;
    LoadAirfieldIntoSlot(ed, row, path, slot);
    PlotPoint(ed, doc.WPLat(path, slot), doc.WPLon(path, slot), doc.WPMapX(path, slot),
              doc.WPMapY(path, slot));
    DrawPaths(ed, frm.mapWayPoints);
}

void cmbRunways_Click(Editor& ed) {
    Mission& doc = ed.doc;
    auto& frm = ed.FrmMission;
    WaypointState& wp = ed.waypoints;
    const int row = frm.cmbRunways.ListIndex();
    if (row < 0 || wp.FlybyKeyActive) return;
    const int path = doc.CurrentPath;
    // A pick that no preview came before makes its slot now; a full path takes no more.
    if (!wp.FlybyPreview) scFlybyCombo(ed);
    if (!wp.FlybyPreview) {
        if (doc.PathPointCount(path) >= kFullPathPointCount) ShowPathFull(ed);
        frm.cmbRunways.SetListIndex(-1);
        return;
    }
    SetWaypointControlsEnabled(ed, true);
    const int count = doc.PathPointCount(path);
    const int flyby = count - 1;
    if (!LoadAirfieldIntoSlot(ed, row, path, flyby)) {
        DropPreview(ed);
        frm.cmbRunways.SetListIndex(-1);
        return;
    }
    frm.lstPoints.AddItem(PointRowText(flyby, doc.WPLat(path, flyby), doc.WPLon(path, flyby)));
    frm.lstPoints.SetItemData(frm.lstPoints.NewIndex(), kFlybyRow);
    wp.FlybyPreview = false;
    doc.CurrentPoint = 0;
    if (doc.PathAirfieldEnd(path) == Mission::kNoAirfield) {
        // Without an End airfield the path ends on the flyby airfield.
        CopySlotPosition(doc, path, flyby, count);
    } else if (LoadAirfieldIntoSlot(ed, EndRow(ed), path, count)) {
        doc.WPMapX(path, count) = doc.WPMapX(path, flyby);
        doc.WPMapY(path, count) = doc.WPMapY(path, flyby);
    }
    frm.lstPoints.SetListIndex(frm.lstPoints.ListCount() - 1);
    if (Val(frm.txtAlt.Text()) == 0) frm.txtAlt.SetText("4000");
    if (Val(frm.txtSpeed.Text()) == 0) frm.txtSpeed.SetText("400");
    if (doc.HighestPath < path) doc.HighestPath = static_cast<std::int16_t>(path);
    DrawPaths(ed, frm.mapWayPoints);
    frm.cmbRunways.SetListIndex(-1);
}

void cmbRunways_KeyDown(Editor& ed, int&, int) {
    ed.waypoints.FlybyKeyActive = true;
}

void cmbRunways_KeyUp(Editor& ed, int&, int) {
    ed.waypoints.FlybyKeyActive = false;
    // A row chosen with the keys on the closed list adds nothing: the preview it made goes.
    auto& frm = ed.FrmMission;
    if (frm.cmbRunways.DroppedDown()) return;
    DropPreview(ed);
    frm.cmbRunways.SetListIndex(-1);
}

void cmbRunways_Highlight(Editor& ed, int) {
    // The list is open: what the keys or the pointer highlight there is previewed and may be
    // chosen.
    ed.waypoints.FlybyKeyActive = false;
    scFlybyCombo(ed);
}

void cmbRunways_UserPick(Editor& ed) {
    scFlybyCombo(ed);
}

void cmbRunways_DropCancel(Editor& ed) {
    DropPreview(ed);
}

}  // namespace tarvex
