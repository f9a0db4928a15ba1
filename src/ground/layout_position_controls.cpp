#include "ground/layout_position_controls.h"

#include <string>

#include "common/number_text.h"
#include "document/coord_text.h"
#include "ground/layout_drawing.h"
#include "ground/mission_layouts.h"
#include "shell/editor.h"
#include "shell/forms/frm_mission.h"
#include "shell/status_strip.h"

namespace tarvex {

namespace {

// Metres in a statute mile: a step of the position controls is 10 metres.
constexpr double kMetresPerMile = 1609.3636;

float StepMiles(int value) {
    return static_cast<float>(value * 10 / kMetresPerMile);
}

void ShowSpreadStatus(Editor& ed) {
    ShowStatus(ed, "Ground Layout Spread Factor: " + IntText(ed.FrmMission.btnSpread.Value()),
               kStatusNormal);
}

void ShowZoomStatus(Editor& ed) {
    ShowStatus(ed, "Zoom Factor: " + Format(ed.ground.ZoomFactor, "0.0"), kStatusNormal);
}

void ShowRunwayStatus(Editor& ed, int value, const char* plane) {
    ShowStatus(ed, "Runways 2 & 3 moved " + DoubleText(value / 12.0) + " along " + plane + " plane",
               kStatusNormal);
}

}  // namespace

void btnXPos_Change(Editor& ed) {
    if (!ed.doc.EventsOn || !HasCurrentLayout(ed)) return;
    GroundState& g = ed.ground;
    const int v = ed.FrmMission.btnXPos.Value();
    g.ViewShiftX = static_cast<float>(v / 100.0);
    g.StepDistance.at(g.AxisXSlot) = StepMiles(v);
    float& shift = ed.doc.GUShiftX(g.CurrentLayout);
    shift = g.ViewShiftX;
    DrawGU(ed);
    const double heading = ed.placement.LayoutHeading;
    g.StepBearing.at(g.AxisXSlot) =
        NormalizeHeading(static_cast<float>(shift > 0 ? heading + 90 : heading - 90));
    UpdateLayoutCentre(ed);
}

void btnYPos_Change(Editor& ed) {
    if (!ed.doc.EventsOn || !HasCurrentLayout(ed)) return;
    GroundState& g = ed.ground;
    const int v = ed.FrmMission.btnYPos.Value();
    // Up the screen is a positive shift; the picture counts down.
    g.ViewShiftY = static_cast<float>(-v / 100.0);
    g.StepDistance.at(g.AxisYSlot) = StepMiles(v);
    float& shift = ed.doc.GUShiftY(g.CurrentLayout);
    shift = -g.ViewShiftY;
    DrawGU(ed);
    const double heading = ed.placement.LayoutHeading;
    g.StepBearing.at(g.AxisYSlot) = shift > 0 ? NormalizeHeading(static_cast<float>(heading - 180))
                                              : static_cast<float>(heading);
    UpdateLayoutCentre(ed);
}

void btnRotate2_Change(Editor& ed) {
    auto& frm = ed.FrmMission;
    const int v = frm.btnRotate2.Value();
    ed.transform.FineRotation = static_cast<float>(v);
    frm.lblRotate2.SetCaption("Rotate " + IntText(v));
    if (v == 90) {
        std::int16_t& turns = ed.transform.QuarterTurns;
        turns = static_cast<std::int16_t>(turns + 1);
        if (turns == 4) turns = 0;
        frm.btnRotate2.SetValue(0);
    }
    if (ed.doc.EventsOn) DrawGU(ed);
}

void btnSpread_Change(Editor& ed) {
    if (!ed.doc.EventsOn || !HasCurrentLayout(ed)) return;
    GroundState& g = ed.ground;
    g.ViewSpread = static_cast<float>(ed.FrmMission.btnSpread.Value() / 8.0);
    ed.doc.GUSpread(g.CurrentLayout) = g.ViewSpread;
    DrawGU(ed);
    ShowSpreadStatus(ed);
}

void btnSpread_MouseDown(Editor& ed, int, int, float, float) {
    ShowSpreadStatus(ed);
}

void btnZoom_Change(Editor& ed) {
    if (!ed.doc.EventsOn) return;
    ed.ground.ZoomFactor = static_cast<float>(ed.FrmMission.btnZoom.Value() / 10.0);
    DrawGU(ed);
    ShowZoomStatus(ed);
}

void btnZoom_MouseDown(Editor& ed, int, int, float, float) {
    ShowZoomStatus(ed);
}

void btnCursor_Change(Editor& ed) {
    ed.ground.CursorSize = static_cast<std::int16_t>(ed.FrmMission.btnCursor.Value());
    DrawGU(ed);
}

void btnX_Change(Editor& ed) {
    DrawGU(ed);
    ShowRunwayStatus(ed, ed.FrmMission.btnX.Value(), "X");
}

void btnY_Change(Editor& ed) {
    DrawGU(ed);
    ShowRunwayStatus(ed, ed.FrmMission.btnY.Value(), "Y");
}

}  // namespace tarvex
