#include "maps/wiring.h"

#include "maps/cursor_position.h"
#include "maps/map_loading.h"
#include "maps/path_drawing.h"
#include "maps/path_overlays.h"
#include "shell/editor.h"
#include "shell/forms/frm_mission.h"
#include "shell/wire.h"

namespace tarvex {

void WireMaps(Editor& ed) {
    auto& frm = ed.FrmMission;
    Wire(ed, frm.mapWayPoints.Paint, mapWayPoints_Paint);
    Wire(ed, frm.mapWayPoints.MouseMove, mapWayPoints_MouseMove);
    WireEach(ed, frm.chkOverlay, &CheckBox::Click, chkOverlay_Click);
    Wire(ed, frm.cmbSelectMap.Click, cmbSelectMap_Click);
}

}  // namespace tarvex
