#include "ground/layout_origin_text.h"

#include "common/text.h"
#include "ground/layout_markers.h"
#include "ground/mission_layouts.h"
#include "maps/map_loading.h"
#include "shell/editor.h"
#include "shell/forms/frm_mission.h"

namespace tarvex {

void txtGULatLon_KeyDown(Editor& ed, int&, int) {
    ed.ground.LatLonKeyDown = true;
}

void txtGULatLon_Change(Editor& ed) {
    GroundState& g = ed.ground;
    if (!g.LatLonKeyDown) return;
    auto& frm = ed.FrmMission;
    TextBox& box = frm.txtGULatLon;
    // The change this makes reads the text; the typing goes on where it was.
    if (box.UpperCaseKeepingCaret()) return;

    const std::string& text = box.Text();
    const size_t p = text.size() >= 5 ? InStr(text, " ", 5) : 0;
    if (p == 0) return;
    const std::string next = Mid(text, static_cast<long long>(p) + 1, 1);
    if (next != "E" && next != "W") return;
    // Without a layout of the mission selected there is nowhere to put it.
    if (!HasCurrentLayout(ed)) return;

    Mission& doc = ed.doc;
    const int row = g.CurrentLayout;
    doc.GULat(row) = Left(text, static_cast<long long>(p));
    doc.GULon(row) = Right(text, static_cast<long long>(text.size() - p));
    PlotPoint(ed, doc.GULat(row), doc.GULon(row), doc.GUMapX(row), doc.GUMapY(row));
    frm.mapGroundUnits.Cls();
    DrawLayoutMarkers(ed);
    g.LatLonKeyDown = false;
}

}  // namespace tarvex
