#include "maps/path_overlays.h"

#include "ground/layout_markers.h"
#include "maps/path_drawing.h"
#include "shell/editor.h"
#include "shell/forms/frm_mission.h"
#include "shell/sounds.h"

namespace tarvex {

void RefreshOverlayChecks(Editor& ed) {
    for (int p = 0; p < Mission::kMaxPaths; ++p)
        ed.FrmMission.chkOverlay(p).SetEnabled(ed.doc.PathPointCount(p) != 0);
}

void chkOverlay_Click(Editor& ed, int path) {
    PictureSurface* map = ed.ActiveMap;
    const bool checked = ed.FrmMission.chkOverlay(path).Value() == kChecked;
    ed.drawing.OverlayOn = checked;
    // The ground units map in placing mode carries its tag "False".
    const bool onlyClear = !checked && map && map->Tag() == "False";
    if (onlyClear) map->Cls();
    if (!onlyClear && map) DrawPaths(ed, *map);
    DrawLayoutMarkers(ed);
}

void chkOverlay_MouseDown(Editor& ed, int, int, int, float, float) {
    PlaySound(ed, ed.shell.sndCheckbox);
}

}  // namespace tarvex
