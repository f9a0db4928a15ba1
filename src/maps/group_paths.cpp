#include "maps/group_paths.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "common/number_text.h"
#include "common/numbers.h"
#include "common/text.h"
#include "maps/runway_controls.h"
#include "shell/editor.h"
#include "shell/forms/frm_mission.h"
#include "shell/status_strip.h"

namespace tarvex {

namespace {

// The path of an id in a group's list, or -1 for a text that names none of the 16.
int PathOfId(double id) {
    const double path = id - kFirstPathId;
    return path >= 0 && path < Mission::kMaxPaths && path == std::floor(path)
               ? static_cast<int>(path)
               : -1;
}

// A percentage as it goes into the list: as typed when it is a plain whole number (or still
// empty), else the whole number it reads as, so that no comma or colon typed in a box can
// break the list that the mission file carries.
std::string PercentText(const std::string& typed) {
    if (std::all_of(typed.begin(), typed.end(), [](char c) { return c >= '0' && c <= '9'; }))
        return typed;
    return IntText(static_cast<std::int64_t>(std::clamp(RoundHalfEven(Val(typed)), -1e9, 1e9)));
}

}  // namespace

bool PathListHolds(const std::string& list, int path) {
    return InStr(list, IntText(PathId(path))) > 0;
}

void BuildGroupPathList(Editor& ed, std::string& list) {
    auto& frm = ed.FrmMission;
    // Wider than PercentLeft: a box may hold any number, and only the sum counts.
    double left = 100;
    list.clear();
    for (int p = 0; p < Mission::kMaxPaths; ++p) {
        if (frm.chkWP(p).Value() != kChecked) continue;
        const std::string& typed = frm.txtWPPct(p).Text();
        left -= RoundHalfEven(Val(typed));
        if (!list.empty()) list += ",";
        list += IntText(PathId(p)) + ":" + PercentText(typed);
    }
    ed.doc.PercentLeft = static_cast<std::int16_t>(std::clamp(left, -32768.0, 32767.0));
    // One path at 100, or one whose percentage is still empty: the lone id.
    const int percentLeft = ed.doc.PercentLeft;
    if ((percentLeft == 0 && list.size() == 8) || (percentLeft == 100 && list.size() == 5))
        list = Left(list, 4);
    ShowStatus(ed, "Formation Path: " + list);
}

void ShowGroupPathList(Editor& ed, const std::string& list) {
    auto& frm = ed.FrmMission;
    ed.doc.PathChecksArmed = false;
    for (int p = 0; p < Mission::kMaxPaths; ++p) {
        frm.chkWP(p).SetValue(kUnchecked);
        frm.txtWPPct(p).SetText("");
    }
    size_t pos = 1;
    while (pos <= list.size()) {
        const size_t colon = InStr(list, ":", pos);
        if (colon == 0) {
            const int path = PathOfId(Val(Mid(list, static_cast<long long>(pos))));
            if (path >= 0) {
                frm.chkWP(path).SetValue(kChecked);
                frm.txtWPPct(path).SetText("100");
            }
            break;
        }
        const long long start = static_cast<long long>(pos);
        const int path = PathOfId(Val(Mid(list, start, static_cast<long long>(colon) - start)));
        const size_t comma = InStr(list, ",", colon);
        const size_t end = comma == 0 ? list.size() + 1 : comma;
        const std::string percent =
            Mid(list, static_cast<long long>(colon) + 1, static_cast<long long>(end - colon - 1));
        if (path >= 0) {
            frm.chkWP(path).SetValue(kChecked);
            frm.txtWPPct(path).SetText(DoubleText(Val(percent)));
        }
        if (comma == 0) break;
        pos = comma + 1;
    }
    ed.doc.PathChecksArmed = true;
}

void ShowAvailablePaths(Editor& ed) {
    Mission& doc = ed.doc;
    auto& frm = ed.FrmMission;
    bool& offered = ed.waypoints.PathsOffered;
    offered = false;
    for (int p = 0; p < Mission::kMaxPaths; ++p) {
        // A path serves one group only.
        bool taken = false;
        for (int g = 0; g < frm.lstGroupName.ListCount() && g < Mission::kMaxGroups; ++g)
            if (g != doc.CurrentGroup && PathListHolds(doc.GrpPaths(g), p)) taken = true;
        const bool open = doc.PathPointCount(p) >= 3 && !taken;
        frm.chkWP(p).SetEnabled(open);
        frm.txtWPPct(p).SetEnabled(open);
        frm.txtWPPct(p).SetBackColor(open ? kSystemWindow : kSystemButtonFace);
        if (open) {
            frm.btnPathClear.SetEnabled(true);
            offered = true;
        }
    }
    if (!offered) {
        MessageBoxRequest box;
        box.text =
            "There are no (more) paths available to assign.\nYou have to define Waypoints first.";
        box.title = "Unassigned Paths Not Available";
        box.icon = MsgIcon::Exclamation;
        ed.svc.dialogs.MsgBox(box);
        return;
    }
    doc.PercentLeft = 100;
    frm.btnSetWaypoints.SetEnabled(false);
    frm.fraWPSelect.SetVisible(true);
    frm.fraWPSelect.ZOrder(0);
}

void btnSetWaypoints_Click(Editor& ed) {
    if (!IsGroupIndex(ed.doc.CurrentGroup)) return;
    ShowGroupPathList(ed, ed.doc.GrpPaths(ed.doc.CurrentGroup));
    ShowAvailablePaths(ed);
}

void chkWP_Click(Editor& ed, int path) {
    Mission& doc = ed.doc;
    auto& frm = ed.FrmMission;
    if (!doc.PathChecksArmed) return;
    TextBox& percent = frm.txtWPPct(path);
    if (frm.chkWP(path).Value() != kChecked) {
        // The list keeps the path until the next build.
        percent.SetText("");
        return;
    }
    const int g = doc.CurrentGroup;
    if (!IsGroupIndex(g)) return;
    frm.btnPathClear.SetEnabled(true);
    if (doc.GrpPaths(g).empty()) {
        // The group's first path gives the group its runways.
        const auto asRow = [](std::int16_t row) {
            return static_cast<std::uint8_t>(std::clamp<int>(row, 0, Mission::kNoAirfield));
        };
        doc.GrpTakeoffRwy(g) = asRow(doc.PathAirfieldStart(path));
        doc.GrpLandingRwy(g) = asRow(doc.PathAirfieldEnd(path));
    } else {
        // Its further paths take the group's.
        for (int p = 0; p < Mission::kMaxPaths; ++p) {
            if (!PathListHolds(doc.GrpPaths(g), p)) continue;
            doc.PathAirfieldStart(p) = doc.GrpTakeoffRwy(g);
            doc.PathAirfieldEnd(p) = doc.GrpLandingRwy(g);
        }
    }
    BuildGroupPathList(ed, doc.GrpPaths(g));
    percent.SetText(IntText(doc.PercentLeft));
    percent.SetSelStart(0);
    percent.SetSelLength(static_cast<int>(percent.Text().size()));
    percent.SetFocus();
    frm.optColor(path).SetValue(true);
    doc.PathGroup(path) = static_cast<std::uint8_t>(g);
}

void btnPathClear_Click(Editor& ed) {
    auto& frm = ed.FrmMission;
    for (int p = 0; p < Mission::kMaxPaths; ++p) {
        frm.chkWP(p).SetValue(kUnchecked);
        frm.txtWPPct(p).SetText("");
    }
    frm.btnPathClear.SetEnabled(false);
}

void btnWPClose_Click(Editor& ed) {
    Mission& doc = ed.doc;
    auto& frm = ed.FrmMission;
    if (!IsGroupIndex(doc.CurrentGroup)) return;
    BuildGroupPathList(ed, doc.GrpPaths(doc.CurrentGroup));
    if (doc.PercentLeft > 0 && ed.waypoints.PathsOffered) {
        MessageBoxRequest box;
        box.text =
            "A total of " + IntText(doc.PercentLeft) + "% is still unassigned to this group.";
        box.title = "Path Assignment";
        box.icon = MsgIcon::Information;
        ed.svc.dialogs.MsgBox(box);
    } else if (doc.PercentLeft < 0) {
        MessageBoxRequest box;
        box.text =
            "You have assigned " + IntText(std::abs(doc.PercentLeft)) + "% too much to this group.";
        box.title = "ERROR: Too many waypoints assigned";
        box.icon = MsgIcon::Exclamation;
        ed.svc.dialogs.MsgBox(box);
        return;
    } else {
        frm.btnGrpView.SetEnabled(true);
    }
    frm.fraWPSelect.SetVisible(false);
    frm.btnSetWaypoints.SetEnabled(true);
    ShowRunwayControlsForGroup(ed);
}

}  // namespace tarvex
