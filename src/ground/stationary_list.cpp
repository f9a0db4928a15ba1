#include "ground/stationary_list.h"

#include "shell/editor.h"
#include "shell/forms/frm_gu_offsets.h"
#include "shell/forms/frm_mission.h"
#include "shell/sounds.h"
#include "shell/status_strip.h"

namespace tarvex {

namespace {

// The pointers of the drag: the four-headed arrow over what can be dragged, the cross for
// placing a unit.
constexpr int kDragPointer = 15;
constexpr int kCrossPointer = 2;
// The list's scroll bar, at the right of the list, scrolls rather than drags.
constexpr float kScrollBarWidth = 340;

}  // namespace

void ShowStationaryList(Editor& ed, int flag) {
    auto& frm = ed.FrmMission;
    if (flag == 1) {
        ed.db.FillListFromQuery(
            frm.lstStationary,
            "SELECT DISTINCT Fullname,UnitType FROM Stationary ORDER BY Fullname;");
        frm.fraStationary.SetVisible(true);
    } else {
        frm.fraStationary.SetVisible(false);
    }
    ed.ground.StationaryShown = frm.fraStationary.Visible();
}

void chkStationary_Click(Editor& ed) {
    PlaySound(ed, ed.shell.sndCheckbox);
    ShowStationaryList(ed, ed.FrmMission.chkStationary.Value());
}

void chkDataWindow_MouseUp(Editor& ed, int, int, float, float) {
    ed.options.ShowDataWin = !ed.options.ShowDataWin;
    if (ed.FrmMission.chkDataWindow.Value() == kChecked)
        ed.frmGUOffsets.Show();
    else
        ed.frmGUOffsets.UnloadForm();
    PlaySound(ed, ed.shell.sndCheckbox);
}

void lstStationary_Click(Editor& ed) {
    auto& frm = ed.FrmMission;
    const int row = frm.lstStationary.ListIndex();
    if (row < 0) return;
    frm.mapGroundUnits.SetMousePointer(kCrossPointer);
    ShowStatus(ed,
               "Click the layout to add [" + frm.lstStationary.List(row) +
                   "] to this layout. Right click the layout to cancel.",
               kStatusWarning);
}

void DropStationaryFrame(Editor& ed, StationaryDrop target, float x, float y) {
    auto& frm = ed.FrmMission;
    const GroundState& g = ed.ground;
    Frame& frame = frm.fraStationary;
    float left = x - g.StationaryAnchorX;
    float top = y - g.StationaryAnchorY;
    if (target != StationaryDrop::OnMap) {
        left += frame.Left();
        top += frame.Top();
    }
    if (target == StationaryDrop::OnList) {
        left += frm.lstStationary.Left();
        top += frm.lstStationary.Top();
    }
    frame.Move(left, top);
}

void fraStationary_MouseDown(Editor& ed, int button, int, float x, float y) {
    if (button != kLeftButton) return;
    GroundState& g = ed.ground;
    g.StationaryAnchorX = x;
    g.StationaryAnchorY = y;
    g.StationaryDragging = true;
}

void fraStationary_MouseMove(Editor& ed, int button, int, float x, float y) {
    ed.FrmMission.fraStationary.SetMousePointer(kDragPointer);
    // The frame follows the pointer while it is held.
    if (ed.ground.StationaryDragging && (button & kLeftButton) != 0)
        DropStationaryFrame(ed, StationaryDrop::OnFrame, x, y);
}

void fraStationary_MouseUp(Editor& ed, int, int, float x, float y) {
    if (!ed.ground.StationaryDragging) return;
    DropStationaryFrame(ed, StationaryDrop::OnFrame, x, y);
    ed.ground.StationaryDragging = false;
}

void lstStationary_MouseMove(Editor& ed, int, int, float x, float) {
    ListBox& list = ed.FrmMission.lstStationary;
    list.SetMousePointer(x < list.Width() - kScrollBarWidth ? kDragPointer : 0);
}

void lstStationary_MouseUp(Editor& ed, int, int, float x, float y) {
    if (!ed.ground.StationaryDragging) return;
    DropStationaryFrame(ed, StationaryDrop::OnList, x, y);
    ed.ground.StationaryDragging = false;
}

}  // namespace tarvex
