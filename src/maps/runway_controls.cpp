#include "maps/runway_controls.h"

#include "document/mission_writers.h"
#include "maps/group_paths.h"
#include "maps/point_slots.h"
#include "maps/tab_numbers.h"
#include "shell/editor.h"
#include "shell/forms/frm_mission.h"

namespace tarvex {

void SetRunwayControls(Editor& ed, int flag) {
    if (flag < 0 || flag > kTakeoffAndLand) return;
    auto& frm = ed.FrmMission;
    const bool start = TakesOff(flag);
    const bool end = Lands(flag);
    frm.cmbStartAtRwy.SetEnabled(start);
    frm.lblStartRwy.SetEnabled(start);
    frm.cmbEndAtRwy.SetEnabled(end);
    frm.lblEndRwy.SetEnabled(end);
}

void ShowRunwayControlsForPath(Editor& ed, int path) {
    const Mission& doc = ed.doc;
    const int holder = doc.PathGroup(path);
    // A path that no group holds has both ends open.
    SetRunwayControls(ed, PathListHolds(doc.GrpPaths(holder), path) ? doc.GrpTakeoffFlag(holder)
                                                                    : kTakeoffAndLand);
}

void ShowRunwayControlsForGroup(Editor& ed) {
    Mission& doc = ed.doc;
    auto& frm = ed.FrmMission;
    const int g = doc.CurrentGroup;
    if (frm.SSTab1.Tab() != kFormationsTab || !IsGroupIndex(g)) return;
    const int flag = doc.GrpTakeoffFlag(g);
    if (!doc.GrpPaths(g).empty()) {
        SetRunwayControls(ed, flag);
    } else {
        frm.cmbStartAtRwy.SetEnabled(false);
        frm.cmbEndAtRwy.SetEnabled(false);
    }
    // The Start combo has no guard: its handler sets the group's paths to the group's own row.
    doc.EventsOn = false;
    const int takeoff = doc.GrpTakeoffRwy(g);
    if (TakesOff(flag) && takeoff < Mission::kNoAirfield && takeoff < frm.cmbStartAtRwy.ListCount())
        frm.cmbStartAtRwy.SetListIndex(takeoff);
    const int landing = doc.GrpLandingRwy(g);
    if (Lands(flag) && landing < Mission::kNoAirfield && landing < frm.cmbEndAtRwy.ListCount())
        frm.cmbEndAtRwy.SetListIndex(landing);
    doc.EventsOn = true;
}

}  // namespace tarvex
