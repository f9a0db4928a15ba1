#include "maps/cursor_position.h"

#include "shell/editor.h"
#include "shell/forms/frm_mission.h"
#include "shell/status_strip.h"

namespace tarvex {

void ShowCursorPosition(Editor& ed, float x, float y, std::string_view minutesFormat) {
    Mission& doc = ed.doc;
    MapProjection& projection = ed.projection;
    projection.SetCursorPosition(x, y, minutesFormat);
    const int path = doc.CurrentPath;
    const std::int16_t point = doc.PathCurrentPoint(path);
    const float distance =
        point > 0 ? projection.DistanceFromPoint(doc.WPLat(path, point), doc.WPLon(path, point))
                  : 0.0f;
    ShowStatus(ed,
               projection.CursorReadout(ed.FrmMission.SSTab1.Tab(), distance, point,
                                        ed.drawing.TotalPathDist),
               kStatusNormal);
}

}  // namespace tarvex
