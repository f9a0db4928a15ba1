#include "ground/ground_map.h"

#include "ground/layout_drawing.h"
#include "ground/layout_markers.h"
#include "ground/layout_placing.h"
#include "ground/layout_units.h"
#include "ground/stationary_list.h"
#include "shell/editor.h"
#include "shell/forms/frm_mission.h"

namespace tarvex {

void mapGroundUnits_MouseDown(Editor& ed, int button, int, float x, float y) {
    auto& frm = ed.FrmMission;
    GroundState& g = ed.ground;
    if (frm.mapGroundUnits.Tag() != "True") {
        if (button == kLeftButton) PickOrPlaceLayout(ed, x, y);
        return;
    }
    // A unit selected in the offsets grid comes before a type chosen in the list.
    if (g.SelectedUnit != -1 && !g.LayoutLocked) {
        if (button == kLeftButton) {
            MoveSelectedUnit(ed, x, y);
        } else if (button == kRightButton) {
            CancelUnitSelection(ed);
        }
        DrawGU(ed);
    } else if (frm.fraStationary.Visible() && frm.lstStationary.ListIndex() >= 0) {
        if (button == kLeftButton) {
            AddStationaryUnit(ed, x, y, g.EditedLayoutID,
                              frm.lstStationary.ItemData(frm.lstStationary.ListIndex()));
            DrawGU(ed);
        } else if (button == kRightButton) {
            frm.mapGroundUnits.SetMousePointer(0);
            frm.lstStationary.SetListIndex(-1);
        }
    }
}

void mapGroundUnits_MouseMove(Editor& ed, int, int, float x, float y) {
    TrackLayoutPointer(ed, x, y);
}

void mapGroundUnits_MouseUp(Editor& ed, int, int, float x, float y) {
    GroundState& g = ed.ground;
    if (g.StationaryDragging) {
        DropStationaryFrame(ed, StationaryDrop::OnMap, x, y);
        g.StationaryDragging = false;
        return;
    }
    if (!g.MovingLayout) return;
    g.MovingLayout = false;
    DrawLayoutMarkers(ed);
}

}  // namespace tarvex
