#include "maps/waypoint_map.h"

#include "common/numbers.h"
#include "maps/cursor_position.h"
#include "maps/path_drawing.h"
#include "maps/path_selection.h"
#include "maps/point_slots.h"
#include "maps/waypoint_controls.h"
#include "maps/waypoint_list.h"
#include "shell/editor.h"
#include "shell/forms/frm_mission.h"
#include "shell/sounds.h"

namespace tarvex {

namespace {

// Half the side of the box around a waypoint in which a press grabs it: the marker's radius.
constexpr float kGrabDistance = 48;
constexpr const char* kMinutesFormat = "##00.00";

// The waypoint whose box holds the press, strictly inside; the lowest wins. 0 when none: the
// Start and End points can't be grabbed.
int WaypointAt(const Mission& doc, int path, float x, float y) {
    for (int i = 1; i <= doc.PathPointCount(path) - 1; ++i) {
        const float px = doc.WPMapX(path, i);
        const float py = doc.WPMapY(path, i);
        if (px - kGrabDistance < x && x < px + kGrabDistance && py - kGrabDistance < y &&
            y < py + kGrabDistance)
            return i;
    }
    return 0;
}

void PutPointer(Editor& ed, int slot, float x, float y) {
    const MapProjection& projection = ed.projection;
    PutSlotPosition(ed.doc, ed.doc.CurrentPath, slot,
                    {projection.CursorLatText, projection.CursorLonText, x, y});
}

}  // namespace

void mapWayPoints_MouseDown(Editor& ed, int button, int, float x, float y) {
    if (button == kRightButton) return;
    Mission& doc = ed.doc;
    auto& frm = ed.FrmMission;
    WaypointState& wp = ed.waypoints;
    const int path = doc.CurrentPath;
    // First, so that a full path can't be grabbed either.
    if (doc.PathPointCount(path) >= kFullPathPointCount) {
        ShowPathFull(ed);
        return;
    }
    if (frm.lstPointsExtended.Visible()) LeaveExtendedSelection(ed);

    const int hit = WaypointAt(doc, path, x, y);
    if (hit > 0 && hit - 1 < frm.lstPoints.ListCount()) {
        wp.MapDragging = true;
        doc.CurrentPoint = static_cast<std::uint8_t>(hit);
        frm.lstPoints.SetListIndex(hit - 1);
        wp.DragEndSlot = doc.PathPointCount(path);
        PlaySound(ed, ed.shell.sndClick);
        return;
    }

    // A new waypoint where the pointer is. The read-out of the last move has its position
    // already; a press that no move came before (a touch, a scripted click) is read here.
    EnsureEndSlot(ed);
    ed.projection.SetCursorPosition(x, y, kMinutesFormat);
    PlaySound(ed, ed.shell.sndFlak);
    SetWaypointControlsEnabled(ed, true);
    const int count = doc.PathPointCount(path);
    frm.lstPoints.AddItem(
        PointRowText(count, ed.projection.CursorLatText, ed.projection.CursorLonText));
    // The row the new point should take: behind the row selected until now.
    doc.CurrentPoint = static_cast<std::uint8_t>(frm.lstPoints.ListIndex() + 1);
    frm.lstPoints.SetListIndex(frm.lstPoints.ListCount() - 1);
    doc.PathPointCount(path) = static_cast<std::uint8_t>(count + 1);
    if (doc.HighestPath < path) doc.HighestPath = static_cast<std::int16_t>(path);
    // The first point of a path; a later one has copied its predecessor's values already.
    if (Val(frm.txtAlt.Text()) == 0) frm.txtAlt.SetText("4000");
    if (Val(frm.txtSpeed.Text()) == 0) frm.txtSpeed.SetText("400");
    if (doc.CurrentPoint == frm.lstPoints.ListIndex()) {
        AppendPoint(ed, x, y);
    } else {
        InsertPoint(ed, x, y);
    }
    DrawPaths(ed, frm.mapWayPoints);
}

void mapWayPoints_MouseMove(Editor& ed, int, int, float x, float y) {
    ShowCursorPosition(ed, x, y, kMinutesFormat);
    if (ed.waypoints.MapDragging) DragPointTo(ed, x, y);
}

void mapWayPoints_MouseUp(Editor& ed, int, int, float, float) {
    Mission& doc = ed.doc;
    auto& frm = ed.FrmMission;
    WaypointState& wp = ed.waypoints;
    if (!wp.MapDragging) return;
    wp.MapDragging = false;
    const int path = doc.CurrentPath;
    const int point = doc.CurrentPoint;
    const int flag = doc.GrpTakeoffFlag(doc.PathGroup(path));
    if (flag == kLandOnly && point == 1) {
        // A group that starts in the air begins its path at its first waypoint.
        CopySlotPosition(doc, path, 1, 0);
    } else if (flag == kTakeoffOnly && point == wp.DragEndSlot - 1) {
        // A group that does not land ends at its last waypoint.
        CopySlotPosition(doc, path, point, wp.DragEndSlot);
    }
    DrawPaths(ed, frm.mapWayPoints);
    if (point >= 1 && point - 1 < frm.lstPoints.ListCount())
        frm.lstPoints.SetList(point - 1, PointRowText(point, ed.projection.CursorLatText,
                                                      ed.projection.CursorLonText));
    const int row = frm.lstPoints.ListIndex();
    if (row >= 0) frm.txtPoint.SetText(PointRowCoordinates(frm.lstPoints.List(row)));
}

void AppendPoint(Editor& ed, float x, float y) {
    Mission& doc = ed.doc;
    const int path = doc.CurrentPath;
    const int end = doc.PathPointCount(path);
    CopySlotPosition(doc, path, end - 1, end);
    PutPointer(ed, doc.CurrentPoint + 1, x, y);
}

void InsertPoint(Editor& ed, float x, float y) {
    Mission& doc = ed.doc;
    ListBox& list = ed.FrmMission.lstPoints;
    const int path = doc.CurrentPath;
    const int at = doc.CurrentPoint;
    for (int i = doc.PathPointCount(path); i >= at + 2; --i)
        CopySlotPosition(doc, path, i - 1, i);
    PutPointer(ed, at + 1, x, y);
    // The rows behind move down one, each with its flyby mark.
    for (int r = list.ListCount() - 1; r > at; --r) {
        list.SetList(r, list.List(r - 1));
        list.SetItemData(r, list.ItemData(r - 1));
    }
    list.SetList(at,
                 PointRowText(at + 1, ed.projection.CursorLatText, ed.projection.CursorLonText));
    list.SetItemData(at, 0);
    list.SetListIndex(at);
    RenumberPointRows(ed);
}

void DragPointTo(Editor& ed, float x, float y) {
    const int point = ed.doc.CurrentPoint;
    if (point < 1 || point > Mission::kPointUpper) return;
    PutPointer(ed, point, x, y);
    DrawPaths(ed, ed.FrmMission.mapWayPoints);
}

}  // namespace tarvex
