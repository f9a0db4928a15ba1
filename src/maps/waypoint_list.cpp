#include "maps/waypoint_list.h"

#include <algorithm>
#include <vector>

#include "common/number_text.h"
#include "common/text.h"
#include "maps/path_drawing.h"
#include "maps/point_slots.h"
#include "shell/editor.h"
#include "shell/forms/frm_mission.h"
#include "shell/sounds.h"
#include "shell/status_strip.h"

namespace tarvex {

namespace {

// The number takes the first four characters of a row: "01. ".
constexpr int kNumberWidth = 4;

bool IsRow(const ListBox& list, int row) {
    return row >= 0 && row < list.ListCount();
}

int Checked(std::uint8_t flag) {
    return flag != 0 ? kChecked : kUnchecked;
}

// The common part of every press on lstPoints: the pressed row becomes the current point.
void PressRow(Editor& ed) {
    auto& frm = ed.FrmMission;
    const int row = frm.lstPoints.ListIndex();
    if (!IsRow(frm.lstPoints, row)) return;
    ed.doc.CurrentPoint = static_cast<std::uint8_t>(row);
    UnhighlightPoint(ed);
    HighlightPoint(ed, row + 1);
    PlaySound(ed, ed.shell.sndClick);
}

// Shift held on lstPoints: lstPointsExtended takes its place, with the range from the row
// pressed before to the row pressed now selected.
void EnterExtendedSelection(Editor& ed) {
    auto& frm = ed.FrmMission;
    ListBox& extended = frm.lstPointsExtended;
    ed.ActivePointList = &extended;
    frm.btnClrPoint.SetEnabled(false);
    frm.btnWPNames.SetEnabled(false);
    frm.btnWPTips.SetEnabled(false);
    extended.Clear();
    extended.SetVisible(true);
    for (int r = 0; r < frm.lstPoints.ListCount(); ++r) {
        extended.AddItem(frm.lstPoints.List(r));
        extended.SetItemData(extended.NewIndex(), frm.lstPoints.ItemData(r));
    }
    extended.ZOrder(0);
    ed.waypoints.ListDragging = false;
    const int last = extended.ListCount() - 1;
    const int selected = frm.lstPoints.ListIndex();
    if (last < 0 || selected < 0) return;
    const int anchor = std::min<int>(ed.doc.CurrentPoint, last);
    std::vector<int> rows;
    for (int r = std::min(anchor, selected); r <= std::max(anchor, selected); ++r)
        rows.push_back(r);
    extended.SetSelection(rows, selected);
}

}  // namespace

std::string PointRowText(int number, const std::string& lat, const std::string& lon) {
    return Format(number, "##00") + ". " + lat + " " + lon;
}

std::string PointRowCoordinates(const std::string& rowText) {
    return Mid(rowText, kNumberWidth + 1);
}

void ForEachSelectedPointRow(Editor& ed, const std::function<void(int row)>& action) {
    ListBox* list = ed.ActivePointList ? ed.ActivePointList : &ed.FrmMission.lstPoints;
    for (int r = 0; r < list->ListCount(); ++r)
        if (list->Selected(r)) action(r);
}

void lstPoints_Click(Editor& ed) {
    Mission& doc = ed.doc;
    auto& frm = ed.FrmMission;
    const int row = frm.lstPoints.ListIndex();
    if (!IsRow(frm.lstPoints, row) || row + 1 > Mission::kPointUpper) return;
    const int path = doc.CurrentPath;
    ed.waypoints.PointTextTyped = false;
    frm.txtPoint.SetText(PointRowCoordinates(frm.lstPoints.List(row)));
    UnhighlightPoint(ed);
    HighlightPoint(ed, row + 1);

    doc.EventsOn = false;
    const int i = row + 1;
    frm.chkWPOptions(0).SetValue(Checked(doc.WPOnMap(path, i)));
    frm.chkWPOptions(1).SetValue(Checked(doc.WPAction(path, i)));
    frm.chkWPOptions(2).SetValue(Checked(doc.WPCap(path, i)));
    // A new point inherits altitude and speed from the point before it.
    if (doc.WPAlt(path, i) == 0) doc.WPAlt(path, i) = doc.WPAlt(path, i - 1);
    if (doc.WPSpeed(path, i) == 0) doc.WPSpeed(path, i) = doc.WPSpeed(path, i - 1);
    frm.txtAlt.SetText(IntText(doc.WPAlt(path, i)));
    frm.txtSpeed.SetText(IntText(doc.WPSpeed(path, i)));
    std::string status;
    if (!doc.WPName(path, i).empty()) status = " Waypoint Name: " + doc.WPName(path, i) + ". ";
    if (!doc.WPTip(path, i).empty()) status += " Waypoint Tip: " + doc.WPTip(path, i);
    ShowStatus(ed, status);
    doc.EventsOn = true;
}

void lstPoints_MouseDown(Editor& ed, int, int shift, float, float) {
    if (shift == 0) {
        ed.waypoints.ListDragging = true;
    } else if (shift == kShiftMask) {
        EnterExtendedSelection(ed);
    }
    PressRow(ed);
}

void lstPoints_MouseMove(Editor& ed, int button, int, float, float) {
    if (button != 0 && ed.waypoints.ListDragging) SwapDraggedRow(ed);
}

void lstPoints_MouseUp(Editor& ed, int, int, float, float) {
    WaypointState& wp = ed.waypoints;
    if (!wp.ListDragging) return;
    SwapDraggedRow(ed);
    wp.ListDragging = false;
    RenumberPointRows(ed);
    // The coordinates shown are those of the row the drag left selected, as the list shows
    // it now, not as it stood when the pointer reached it.
    ListBox& list = ed.FrmMission.lstPoints;
    if (IsRow(list, list.ListIndex())) {
        wp.PointTextTyped = false;
        ed.FrmMission.txtPoint.SetText(PointRowCoordinates(list.List(list.ListIndex())));
    }
}

void SwapDraggedRow(Editor& ed) {
    Mission& doc = ed.doc;
    ListBox& list = ed.FrmMission.lstPoints;
    const int r = list.ListIndex();
    const int c = doc.CurrentPoint;
    if (!IsRow(list, r) || !IsRow(list, c) || r + 1 >= doc.PathPointCount(doc.CurrentPath)) return;
    SwapSlotPositions(doc, doc.CurrentPath, r + 1, c + 1);
    // The last row goes the same way as the others, so that the dragged row stays under the
    // pointer there as well instead of changing place back and forth at each move.
    if (r != c) {
        const std::string dragged = list.List(c);
        const std::int32_t draggedData = list.ItemData(c);
        list.SetList(c, list.List(r));
        list.SetItemData(c, list.ItemData(r));
        list.SetList(r, dragged);
        list.SetItemData(r, draggedData);
        doc.CurrentPoint = static_cast<std::uint8_t>(r);
    }
    ed.waypoints.ListDragging = true;
    DrawPaths(ed, ed.FrmMission.mapWayPoints);
}

void lstPointsExtended_MouseDown(Editor& ed, int, int shift, float, float) {
    const int row = ed.FrmMission.lstPointsExtended.ListIndex();
    if (row >= 0) ed.doc.CurrentPoint = static_cast<std::uint8_t>(row);
    if (shift == 0) LeaveExtendedSelection(ed);
}

void LeaveExtendedSelection(Editor& ed) {
    auto& frm = ed.FrmMission;
    frm.lstPointsExtended.SetVisible(false);
    frm.lstPoints.ZOrder(0);
    const int row = frm.lstPointsExtended.ListIndex();
    if (IsRow(frm.lstPoints, row)) {
        frm.lstPoints.SetListIndex(row);
        frm.txtPoint.SetText(PointRowCoordinates(frm.lstPoints.List(row)));
    }
    ed.ActivePointList = &frm.lstPoints;
    frm.btnClrPoint.SetEnabled(true);
    frm.btnWPNames.SetEnabled(true);
    frm.btnWPTips.SetEnabled(true);
}

void RenumberPointRows(Editor& ed) {
    ListBox& list = ed.FrmMission.lstPoints;
    for (int r = 0; r < list.ListCount(); ++r)
        list.SetList(r, Format(r + 1, "##00") + ". " + PointRowCoordinates(list.List(r)));
}

}  // namespace tarvex
