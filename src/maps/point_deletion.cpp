#include "maps/point_deletion.h"

#include "maps/map_loading.h"
#include "maps/path_drawing.h"
#include "maps/point_slots.h"
#include "maps/waypoint_controls.h"
#include "maps/waypoint_list.h"
#include "shell/editor.h"
#include "shell/forms/frm_mission.h"
#include "shell/sounds.h"

namespace tarvex {

void DeleteSelectedPoint(Editor& ed) {
    Mission& doc = ed.doc;
    auto& frm = ed.FrmMission;
    ListBox& list = frm.lstPoints;
    const int r = list.ListIndex();
    if (r < 0) return;
    const int path = doc.CurrentPath;
    const int count = doc.PathPointCount(path);
    // The End point moves down with the rest.
    for (int i = r + 1; i <= count - 1 && i < Mission::kPointUpper; ++i) {
        CopySlotPosition(doc, path, i + 1, i);
        doc.WPAlt(path, i) = doc.WPAlt(path, i + 1);
        doc.WPSpeed(path, i) = doc.WPSpeed(path, i + 1);
        doc.WPOnMap(path, i) = doc.WPOnMap(path, i + 1);
        doc.WPAction(path, i) = doc.WPAction(path, i + 1);
        doc.WPCap(path, i) = doc.WPCap(path, i + 1);
    }
    if (list.ListCount() > 0) {
        if (count > 0) doc.PathPointCount(path) = static_cast<std::uint8_t>(count - 1);
        list.RemoveItem(r);
    }
    if (list.ListCount() > 0) {
        list.SetListIndex(r == 0 ? 0 : r - 1);
    } else {
        SetWaypointControlsEnabled(ed, false);
    }
    frm.mapWayPoints.Cls();
    DrawPaths(ed, frm.mapWayPoints);
}

void ClearPath(Editor& ed, int path) {
    Mission& doc = ed.doc;
    auto& frm = ed.FrmMission;
    const int end = doc.PathPointCount(path);
    doc.WPLon(path, 1) = doc.WPLon(path, end);
    doc.WPLat(path, 1) = doc.WPLat(path, end);
    doc.PathPointCount(path) = 1;
    PlotPoint(ed, doc.WPLat(path, 1), doc.WPLon(path, 1), doc.WPMapX(path, 1), doc.WPMapY(path, 1));
    frm.txtPoint.SetText("");
    frm.lstPoints.Clear();
    doc.PathCurrentPoint(path) = -1;
    SetWaypointControlsEnabled(ed, false);
    DrawPaths(ed, frm.mapWayPoints);
}

void btnClrPoint_MouseDown(Editor& ed, int, int, float, float) {
    PlaySound(ed, ed.shell.sndCheckbox);
}

void btnClrPoint_Click(Editor& ed) {
    DeleteSelectedPoint(ed);
    RenumberPointRows(ed);
}

void mnuDel_Click(Editor& ed) {
    DeleteSelectedPoint(ed);
}

void mnuClrPoints_Click(Editor& ed) {
    ClearPath(ed, ed.doc.CurrentPath);
}

void mnuClrMap_Click(Editor& ed) {
    for (int path = 0; path <= ed.doc.HighestPath && path < Mission::kMaxPaths; ++path)
        ClearPath(ed, path);
}

}  // namespace tarvex
