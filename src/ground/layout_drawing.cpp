#include "ground/layout_drawing.h"

#include "common/number_text.h"
#include "common/numbers.h"
#include "document/coord_text.h"
#include "ground/layout_transform.h"
#include "ground/layout_view_geometry.h"
#include "refdata/shared_lookup.h"
#include "shell/editor.h"
#include "shell/forms/frm_mission.h"
#include "shell/status_strip.h"

namespace tarvex {

namespace {

// The read-out counts feet or metres per pixel of the picture at a zoom of 1. A pixel of
// 12.15 map units makes it the exact inverse of the drawing (1666.67 map units to the layout
// unit of 1000 metres or 3280.8 feet), so that a click reads back the offset drawn under it.
constexpr double kMapUnitsPerPixel = 12.15;
constexpr double kFeetPerPixel = 23.917032;
constexpr double kMetresPerPixel = 7.29;
constexpr double kFeetPerLayoutUnit = 3280.8;
constexpr double kMetresPerLayoutUnit = 1000;

bool Imperial(const Editor& ed) {
    return ed.projection.DistanceFactor == 1.0f;
}

void PrintAt(PictureSurface& map, float x, float y, const std::string& text) {
    map.SetCurrent(x, y);
    map.Print(text);
}

std::string HeadingText(double heading) {
    return Format(NormalizeHeading(static_cast<float>(heading)), "0");
}

}  // namespace

void MapToOffset(Editor& ed, float& a, float& b, float x, float y) {
    const PictureSurface& map = ed.FrmMission.mapGroundUnits;
    const bool imperial = Imperial(ed);
    const double k = imperial ? kFeetPerPixel : kMetresPerPixel;
    const double zoom = ed.ground.ZoomFactor;
    const double cx = (map.Width() / 2) / kMapUnitsPerPixel;
    const double cy = (map.Height() / 2) / kMapUnitsPerPixel;
    a = static_cast<float>((y / kMapUnitsPerPixel - cy) * k / zoom);
    b = static_cast<float>((x / kMapUnitsPerPixel - cx) * k / zoom);
    const char* unit = imperial ? " Feet." : " Meters.";
    ShowStatus(ed,
               std::string("Latitude Offset :") + Format(-a, "##0") + unit +
                   "  Longtitude Offset :" + Format(b, "##0") + unit,
               kStatusNormal);
    const double perUnit = imperial ? kFeetPerLayoutUnit : kMetresPerLayoutUnit;
    a = static_cast<float>(a / perUnit);
    b = static_cast<float>(b / perUnit);
}

void DrawGU(Editor& ed) {
    auto& frm = ed.FrmMission;
    GroundState& g = ed.ground;
    const LayoutTransform& turn = ed.transform;
    PictureSurface& map = frm.mapGroundUnits;
    const double heading = ed.placement.LayoutHeading;
    const float zoom = g.ZoomFactor;

    map.Cls();
    const double cx = map.ScaleWidth() / 2;
    const double cy = map.ScaleHeight() / 2;
    const double u = kMapUnitsPerLayoutUnit * zoom;
    const float lx = map.Width() - 1000;
    float ly = 60;

    // The cursor stands at the layout's shift.
    map.SetForeColor(Rgb(255, 0, 0));
    const auto xc = static_cast<float>(g.ViewShiftX * u + cx);
    const auto yc = static_cast<float>(g.ViewShiftY * u + cy);
    map.Line(xc, yc - g.CursorSize, xc, yc + g.CursorSize);
    map.Line(xc + g.CursorSize, yc, xc - g.CursorSize, yc);

    // The origin: a ring with a blue dot.
    map.SetFillStyle(kFillTransparent);
    map.Circle(static_cast<float>(cx), static_cast<float>(cy), 60);
    map.SetFillColor(Rgb(64, 222, 255));
    map.SetFillStyle(kFillSolid);
    map.SetForeColor(0);
    map.Circle(static_cast<float>(cx), static_cast<float>(cy), 24);

    if (g.LayoutType > 1) {
        map.SetDrawWidth(2);
        map.Line(static_cast<float>(cx), static_cast<float>(cy - zoom * 830.0),
                 static_cast<float>(cx), static_cast<float>(cy + zoom * 860.0));
        frm.picAC.Move(static_cast<float>(cx - frm.picAC.Width() / 2),
                       static_cast<float>(cy + zoom * 560.0));
        if (g.LayoutType == 3) {
            const int dx = frm.btnX.Value();
            const int dy = frm.btnY.Value();
            const auto point = [&](double px, double py, float& x, float& y) {
                x = CInt(ScaleAbout(px, cx, zoom) + dx);
                y = CInt(ScaleAbout(py, cy, zoom) - dy);
            };
            // Runways 2 and 3: fixed points of the picture, moved by btnX and btnY.
            const double runways[2][4] = {{3456, 2100, 4860, 3180}, {3200, 2848, 4764, 2076}};
            for (const auto& r : runways) {
                float x1, y1, x2, y2;
                point(r[0], r[1], x1, y1);
                point(r[2], r[3], x2, y2);
                map.Line(x1, y1, x2, y2);
            }
        } else {
            frm.btnX.SetVisible(false);
            frm.btnY.SetVisible(false);
        }
        map.SetDrawWidth(1);
    } else {
        frm.picAC.SetVisible(false);
    }

    // The heading of each edge: up is LayoutHeading.
    map.SetForeColor(0);
    std::string t = HeadingText(heading);
    PrintAt(map, static_cast<float>(cx - map.TextWidth(t) - 84), 40, t);
    t = HeadingText(heading + 90);
    PrintAt(map, map.ScaleWidth() - 360, static_cast<float>(cy - map.TextHeight(t)), t);
    t = HeadingText(heading + 180);
    PrintAt(map, static_cast<float>(cx), map.Height() - 250, t);
    t = HeadingText(heading + 270);
    PrintAt(map, 60, static_cast<float>(cy), t);

    // The units, one colour per type; the ORDER BY keeps each type together, and gives the
    // rows of the offsets grid.
    SharedLookup units(ed.db,
                       "SELECT ID,FullName,XOffset,YOffset FROM qryGroundUnitDetails Where ID=" +
                           IntText(g.EditedLayoutID) + " ORDER BY Fullname");
    Recordset& rs = units.rs;
    if (rs.Eof()) return;
    rs.MoveLast();
    rs.MoveFirst();
    int colour = 15;
    map.SetFillColor(QBColor(colour));
    std::string name = rs.Fields(1).Text();
    for (int i = 0; !rs.Eof(); ++i, rs.MoveNext()) {
        float a = CSng(rs.Fields(3).Double());
        float b = -CSng(rs.Fields(2).Double());
        turn.TurnOffset(a, b);
        if (turn.FineRotation != 0) turn.RotateOffset(a, b);
        const double dy = (static_cast<double>(b) * g.ViewSpread + (b + g.ViewShiftY)) * u;
        const double dx = (static_cast<double>(a) + g.ViewShiftX + a * g.ViewSpread) * u;
        const std::string fullName = rs.Fields(1).Text();
        if (fullName != name) DrawLegendEntry(ed, name, fullName, lx, ly, colour);
        map.Circle(static_cast<float>(cx + dx), static_cast<float>(cy + dy),
                   i == g.SelectedUnit ? 64 : 36);
    }
    DrawLegendEntry(ed, name, name, lx, ly, colour);
}

void DrawLegendEntry(Editor& ed, std::string& name, const std::string& nextName, float x, float& y,
                     int& colour) {
    PictureSurface& map = ed.FrmMission.mapGroundUnits;
    map.Circle(x, y, 48);
    map.SetForeColor(0);
    PrintAt(map, x + 160, y - 72, name);
    y += 120;
    colour = NextLegendColour(colour);
    map.SetFillColor(QBColor(colour));
    name = nextName;
}

void UpdateLayoutCentre(Editor& ed) {
    GroundState& g = ed.ground;
    double lat = 0;
    double lon = 0;
    DestinationPoint(lat, lon, g.OriginLat, g.OriginLon, std::abs(g.StepDistance.at(g.AxisXSlot)),
                     g.StepBearing.at(g.AxisXSlot));
    DestinationPoint(lat, lon, lat, lon, std::abs(g.StepDistance.at(g.AxisYSlot)),
                     g.StepBearing.at(g.AxisYSlot));
    g.CenterLat = DegreesToCoordText(lat, true, "00.0000");
    g.CenterLon = DegreesToCoordText(lon, false, "00.0000");
    NormalizeCoordText(g.CenterLat, "00.0000");
    NormalizeCoordText(g.CenterLon, "00.0000");
    ShowLayoutInfo(ed);
}

void ShowLayoutInfo(Editor& ed) {
    auto& frm = ed.FrmMission;
    const GroundState& g = ed.ground;
    const Mission& doc = ed.doc;
    PictureSurface& map = frm.mapGroundUnits;
    const double heading = ed.placement.LayoutHeading;

    map.SetForeColor(0);
    // Which coordinate runs along the top edge depends on how far the layout is turned.
    const bool across = CInt(heading) % 90 >= 45;
    const std::string& along = across ? g.CenterLon : g.CenterLat;
    const std::string& top = across ? g.CenterLat : g.CenterLon;
    PrintAt(map, map.ScaleWidth() / 2 + 84, 40, top);
    PrintAt(map, map.ScaleWidth() - map.TextWidth(along), map.ScaleHeight() / 2, along);

    const int x = frm.btnXPos.Value() * 10;
    const int y = frm.btnYPos.Value() * 10;
    const std::string bearing = Format(
        NormalizeHeading(static_cast<float>(
            OffsetBearing(static_cast<std::int16_t>(x), static_cast<std::int16_t>(-y)) + heading)),
        "0");
    const int row = g.CurrentLayout;
    const std::string origin = "Original Center: [" + doc.GULat(row) + " " + doc.GULon(row) + "]";
    if (Imperial(ed))
        ShowStatus(ed, origin + " [X Axis: " + DoubleText(x * 3.2808) + " Feet.| Y Axis: " +
                           DoubleText(y * 3.2808) + " Feet.]     [" + bearing + " Degrees.]");
    else
        ShowStatus(ed, origin + " [X Axis: " + IntText(x) + " Meters.| Y Axis: " + IntText(y) +
                           " Meters.]     [" + bearing + " Degrees.]");
}

void PaintAircraftPicture(PictureSurface& picture) {
    picture.Cls();
    picture.SetForeColor(Rgb(64, 64, 64));
    const float w = picture.Width();
    const float h = picture.Height();
    picture.SetDrawWidth(3);
    picture.Line(w / 2, h * 0.08f, w / 2, h * 0.92f);  // fuselage, nose up
    picture.SetDrawWidth(2);
    picture.Line(w * 0.08f, h * 0.38f, w * 0.92f, h * 0.38f);  // wings
    picture.Line(w * 0.3f, h * 0.82f, w * 0.7f, h * 0.82f);    // tailplane
    picture.SetDrawWidth(1);
}

}  // namespace tarvex
