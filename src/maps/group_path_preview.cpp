#include "maps/group_path_preview.h"

#include "common/number_text.h"
#include "maps/group_paths.h"
#include "maps/path_selection.h"
#include "shell/editor.h"
#include "shell/forms/frm_mission.h"
#include "shell/sounds.h"
#include "shell/status_strip.h"

namespace tarvex {

namespace {

// The boxes of paths 8 to 15 stand in the right-hand column: their map opens to the left.
constexpr int kFirstRightColumnPath = 8;

}  // namespace

void chkWP_MouseDown(Editor& ed, int path, int button, int, float x, float y) {
    auto& frm = ed.FrmMission;
    if (button == kRightButton) {
        WaypointState& wp = ed.waypoints;
        PictureSurface& map = frm.mapWayPoints;
        if (!wp.PanelMapShown) {
            wp.PanelMapLeft = map.Left();
            wp.PanelMapTop = map.Top();
            wp.PanelOverlayOn = ed.drawing.OverlayOn;
            wp.PanelMapShown = true;
        }
        ed.drawing.OverlayOn = false;
        optColor_Click(ed, path);
        float left = frm.chkWP(path).Left() + frm.fraWPSelect.Left() + x;
        if (path >= kFirstRightColumnPath) left -= map.Width();
        map.Move(left, frm.fraWPSelect.Top() + y);
        map.ZOrder(0);
        map.SetVisible(true);
    }
    PlaySound(ed, ed.shell.sndCheckbox);
}

void chkWP_MouseMove(Editor& ed, int path, int button, int, float, float) {
    if (button == 0)
        ShowStatus(ed, "Right click to view map of Waypoints " + IntText(PathId(path)));
}

void chkWP_MouseUp(Editor& ed, int path, int button, int, float, float) {
    WaypointState& wp = ed.waypoints;
    if (button == kRightButton && wp.PanelMapShown) {
        PictureSurface& map = ed.FrmMission.mapWayPoints;
        wp.PanelMapShown = false;
        ed.drawing.OverlayOn = wp.PanelOverlayOn;
        map.Move(wp.PanelMapLeft, wp.PanelMapTop);
        map.SetVisible(false);
        optColor_Click(ed, path);
    }
    PlaySound(ed, ed.shell.sndCheckbox);
    if (button == kRightButton) ShowStatus(ed, "");
}

void fraWPSelect_MouseMove(Editor& ed, int, int, float, float) {
    ShowStatus(ed, "");
}

}  // namespace tarvex
