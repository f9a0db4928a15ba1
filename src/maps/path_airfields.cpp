#include "maps/path_airfields.h"

#include "document/mission_writers.h"
#include "maps/group_paths.h"
#include "maps/map_loading.h"
#include "maps/path_drawing.h"
#include "maps/point_slots.h"
#include "maps/tab_numbers.h"
#include "shell/editor.h"
#include "shell/forms/frm_mission.h"
#include "shell/status_strip.h"

namespace tarvex {

namespace {

bool OnFormationsTab(Editor& ed) {
    return ed.FrmMission.SSTab1.Tab() == kFormationsTab;
}

void PlotSlot(Editor& ed, int path, int slot) {
    Mission& doc = ed.doc;
    PlotPoint(ed, doc.WPLat(path, slot), doc.WPLon(path, slot), doc.WPMapX(path, slot),
              doc.WPMapY(path, slot));
}

// The paths that follow the group's airfields on the Formations tab: its own, and every path
// too short to be given to a group.
bool FollowsGroup(const Mission& doc, int path, int group) {
    return doc.PathPointCount(path) < 3 || PathListHolds(doc.GrpPaths(group), path);
}

// A path without an End airfield takes `row`. A new path gets its End slot so; a loaded path
// with waypoints has its End slot behind the last waypoint already.
void GiveEndAirfield(Mission& doc, int path, int row) {
    if (doc.PathAirfieldEnd(path) != Mission::kNoAirfield) return;
    doc.PathAirfieldEnd(path) = static_cast<std::int16_t>(row);
    if (doc.PathPointCount(path) == 0) doc.PathPointCount(path) = 1;
}

// The warning of both combos, on the groups' takeoff or landing runways.
void WarnRunwayChange(Editor& ed, const ComboBox& combo, const char* which, bool landing) {
    Mission& doc = ed.doc;
    auto& frm = ed.FrmMission;
    const int row = combo.ListIndex();
    if (OnFormationsTab(ed) || frm.lstGroupName.ListCount() == 0 || row < 0) return;
    std::string text = std::string("*** ") + which + " Runway for ";
    for (int g = 0; g < frm.lstGroupName.ListCount() && IsGroupIndex(g); ++g) {
        const int flag = doc.GrpTakeoffFlag(g);
        std::uint8_t& runway = landing ? doc.GrpLandingRwy(g) : doc.GrpTakeoffRwy(g);
        const bool uses = landing ? Lands(flag) : TakesOff(flag);
        if (!PathListHolds(doc.GrpPaths(g), doc.CurrentPath) || !uses || runway == row) continue;
        runway = static_cast<std::uint8_t>(row);
        text += "[" + frm.lstGroupName.List(g) + "] ";
    }
    if (text.find(']') != std::string::npos)
        ShowStatus(ed, text + " will be changed according to the new setting ***", kStatusWarning);
}

}  // namespace

void cmbStartAtRwy_Click(Editor& ed) {
    Mission& doc = ed.doc;
    auto& frm = ed.FrmMission;
    const int row = frm.cmbStartAtRwy.ListIndex();
    if (row < 0) return;
    if (!OnFormationsTab(ed)) {
        const int path = doc.CurrentPath;
        LoadAirfieldIntoSlot(ed, row, path, 0);
        doc.PathAirfieldStart(path) = static_cast<std::int16_t>(row);
        PlotSlot(ed, path, 0);
        if (doc.NotResetting) DrawPaths(ed, frm.mapWayPoints);
        return;
    }
    const int g = doc.CurrentGroup;
    if (!IsGroupIndex(g) || ed.waypoints.ShowingPathAirfields) return;
    doc.GrpTakeoffRwy(g) = static_cast<std::uint8_t>(row);
    for (int p = 0; p <= doc.HighestPath && p < Mission::kMaxPaths; ++p) {
        if (!FollowsGroup(doc, p, g)) continue;
        doc.PathAirfieldStart(p) = static_cast<std::int16_t>(row);
        LoadAirfieldIntoSlot(ed, row, p, 0);
        PlotSlot(ed, p, 0);
    }
}

void cmbEndAtRwy_Click(Editor& ed) {
    Mission& doc = ed.doc;
    auto& frm = ed.FrmMission;
    const int row = frm.cmbEndAtRwy.ListIndex();
    if (row < 0 || !doc.EventsOn) return;
    if (!OnFormationsTab(ed)) {
        const int path = doc.CurrentPath;
        GiveEndAirfield(doc, path, row);
        LoadAirfieldIntoSlot(ed, row, path, doc.PathPointCount(path));
        PlotSlot(ed, path, doc.PathPointCount(path));
        doc.PathAirfieldEnd(path) = static_cast<std::int16_t>(row);
        if (doc.NotResetting) DrawPaths(ed, frm.mapWayPoints);
        return;
    }
    const int g = doc.CurrentGroup;
    if (!IsGroupIndex(g) || ed.waypoints.ShowingPathAirfields) return;
    doc.GrpLandingRwy(g) = static_cast<std::uint8_t>(row);
    for (int p = 0; p <= doc.HighestPath && p < Mission::kMaxPaths; ++p) {
        if (!FollowsGroup(doc, p, g)) continue;
        GiveEndAirfield(doc, p, row);
        LoadAirfieldIntoSlot(ed, row, p, doc.PathPointCount(p));
        PlotSlot(ed, p, doc.PathPointCount(p));
        doc.PathAirfieldEnd(p) = doc.GrpLandingRwy(g);
    }
}

void WarnTakeoffChange(Editor& ed) {
    WarnRunwayChange(ed, ed.FrmMission.cmbStartAtRwy, "Takeoff", false);
}

void WarnLandingChange(Editor& ed) {
    WarnRunwayChange(ed, ed.FrmMission.cmbEndAtRwy, "Landing", true);
}

void cmbStartAtRwy_Highlight(Editor& ed, int) {
    cmbStartAtRwy_Click(ed);
}

void cmbStartAtRwy_UserPick(Editor& ed) {
    WarnTakeoffChange(ed);
}

void cmbStartAtRwy_DropCancel(Editor& ed) {
    cmbStartAtRwy_Click(ed);
}

void cmbEndAtRwy_Highlight(Editor& ed, int) {
    cmbEndAtRwy_Click(ed);
}

void cmbEndAtRwy_UserPick(Editor& ed) {
    WarnLandingChange(ed);
}

void cmbEndAtRwy_DropCancel(Editor& ed) {
    cmbEndAtRwy_Click(ed);
}

}  // namespace tarvex
