#include "maps/map_drawing_wiring.h"

#include "maps/cursor_position.h"
#include "maps/map_loading.h"
#include "maps/path_drawing.h"
#include "maps/path_overlays.h"
#include "shell/editor.h"

namespace tarvex {

void WireMapDrawing(Editor& ed) {
    auto& frm = ed.FrmMission;
    // The skin raises Paint when the surface is exposed, not when its recording changes:
    // the redraw itself changes the recording.
    frm.mapWayPoints.Paint = [&ed] { DrawPaths(ed, ed.FrmMission.mapWayPoints); };
    // The waypoint editor takes this over for its drags and must keep the read-out first.
    frm.mapWayPoints.MouseMove = [&ed](int, int, float x, float y) {
        ShowCursorPosition(ed, x, y, "##00.00");
    };
    // The layout editor reads the pointer as offsets ("True"); the ground layouts take this
    // over for their moves and must keep the read-out, with minutes to the precision of an
    // origin.
    frm.mapGroundUnits.MouseMove = [&ed](int, int, float x, float y) {
        if (ed.FrmMission.mapGroundUnits.Tag() == "True") return;
        ShowCursorPosition(ed, x, y, "##00.0000");
    };
    for (auto& box : frm.chkOverlay) {
        const int path = box.Index();
        box.Click = [&ed, path] { chkOverlay_Click(ed, path); };
    }
    frm.cmbSelectMap.Click = [&ed] { cmbSelectMap_Click(ed); };
}

}  // namespace tarvex
