#include "maps/path_drawing.h"

#include <string>

#include "common/number_text.h"
#include "document/mission_writers.h"
#include "maps/map_loading.h"
#include "maps/point_slots.h"
#include "shell/editor.h"
#include "shell/forms/frm_mission.h"

namespace tarvex {

namespace {

// Puts a text centred on a point, for the airfield names on the end markers.
void PrintCentred(PictureSurface& surface, float x, float y, const std::string& text) {
    surface.SetCurrent(x - surface.TextWidth(text) / 2, y - surface.TextHeight(text) / 2);
    surface.Print(text);
}

// The number of a point sits above and right of the end of its leg, clear of the circle.
void PrintPointNumber(PictureSurface& surface, float x, float y, int number) {
    const std::string text = IntText(number);
    surface.SetCurrent(x + kPointRadius, y - kPointRadius - surface.TextHeight(text));
    surface.Print(text);
}

// Start and End of the current path: their positions, and their markers when the group takes
// off or lands there. The pen is black from here on for the whole path. Answers the Start
// point's position in degrees, where the length of the path begins.
void DrawPathEnds(Editor& ed, PictureSurface& surface, int p, float& startLat, float& startLon) {
    Mission& doc = ed.doc;
    auto& frm = ed.FrmMission;
    // The Start circle should not inherit the red of the last highlight or a flyby's fill.
    frm.mapWayPoints.SetForeColor(kCurrentPathColour);
    frm.mapWayPoints.SetFillStyle(kFillTransparent);
    surface.SetForeColor(kCurrentPathColour);

    PlotPoint(ed, doc.WPLat(p, 0), doc.WPLon(p, 0), doc.WPMapX(p, 0), doc.WPMapY(p, 0));
    startLat = ed.projection.CurLat;
    startLon = ed.projection.CurLon;
    const int flag = doc.GrpTakeoffFlag(doc.PathGroup(p));
    if (TakesOff(flag)) {
        surface.SetFillColor(kStartMarkerFill);
        surface.SetFillStyle(kFillSolid);
        surface.Circle(doc.WPMapX(p, 0), doc.WPMapY(p, 0), kPointRadius);
        PrintCentred(surface, doc.WPMapX(p, 0), doc.WPMapY(p, 0),
                     frm.cmbStartAtRwy.List(doc.PathAirfieldStart(p)));
    }

    if (doc.PathAirfieldEnd(p) == Mission::kNoAirfield) return;
    const int end = doc.PathPointCount(p);
    PlotPoint(ed, doc.WPLat(p, end), doc.WPLon(p, end), doc.WPMapX(p, end), doc.WPMapY(p, end));
    if (Lands(flag)) {
        surface.SetFillColor(kEndMarkerFill);
        surface.SetFillStyle(kFillSolid);
        surface.Circle(doc.WPMapX(p, end), doc.WPMapY(p, end), kPointRadius);
        PrintCentred(surface, doc.WPMapX(p, end), doc.WPMapY(p, end),
                     frm.cmbEndAtRwy.List(doc.PathAirfieldEnd(p)));
    }
}

// The circle of a point and its incoming leg on mapWayPoints, in one colour.
void RedrawPoint(Editor& ed, int point, Colour colour) {
    Mission& doc = ed.doc;
    PictureSurface& map = ed.FrmMission.mapWayPoints;
    const int p = doc.CurrentPath;
    map.SetForeColor(colour);
    map.Line(doc.WPMapX(p, point - 1), doc.WPMapY(p, point - 1), doc.WPMapX(p, point),
             doc.WPMapY(p, point));
    map.Circle(doc.WPMapX(p, point), doc.WPMapY(p, point), kPointRadius);
}

}  // namespace

void DrawPaths(Editor& ed, PictureSurface& surface) {
    Mission& doc = ed.doc;
    auto& frm = ed.FrmMission;
    MapProjection& projection = ed.projection;
    float& total = ed.drawing.TotalPathDist;
    total = 0;
    surface.Cls();

    // Higher paths are drawn later and so lie on top.
    for (int p = 0; p < Mission::kMaxPaths; ++p) {
        const bool current = p == doc.CurrentPath;
        if (!current && frm.chkOverlay(p).Value() != kChecked) continue;

        float prevLat = 0;
        float prevLon = 0;
        if (current) {
            DrawPathEnds(ed, surface, p, prevLat, prevLon);
        } else {
            // An overlay's first leg starts at its Start point, whose map position may never
            // have been worked out (a loaded path not yet selected): from its text, no circle.
            if (!doc.WPLat(p, 0).empty())
                projection.ProjectPoint(doc.WPLat(p, 0), doc.WPLon(p, 0), doc.WPMapX(p, 0),
                                        doc.WPMapY(p, 0));
            surface.SetForeColor(kOverlayPathColour);
        }
        const Colour pathColour = surface.ForeColor();
        surface.SetFillStyle(kFillTransparent);

        for (int i = 1; i <= doc.PathPointCount(p); ++i) {
            // The rows show CurrentPath, yet an overlaid path consults them as well; past the
            // last row the fill of the last waypoint carries on to the End point.
            if (i - 1 < frm.lstPoints.ListCount()) {
                if (frm.lstPoints.ItemData(i - 1) == kFlybyRow) {
                    surface.SetFillColor(kFlybyFill);
                    surface.SetFillStyle(kFillSolid);
                } else {
                    surface.SetForeColor(pathColour);
                    surface.SetFillStyle(kFillTransparent);
                }
            }
            PlotPoint(ed, doc.WPLat(p, i), doc.WPLon(p, i), doc.WPMapX(p, i), doc.WPMapY(p, i));
            if (current) {
                total += projection.GreatCircleDistance(prevLat, prevLon, projection.CurLat,
                                                        projection.CurLon);
                prevLat = projection.CurLat;
                prevLon = projection.CurLon;
            }
            surface.Line(doc.WPMapX(p, i - 1), doc.WPMapY(p, i - 1), doc.WPMapX(p, i),
                         doc.WPMapY(p, i));
            PrintPointNumber(surface, doc.WPMapX(p, i), doc.WPMapY(p, i), i);
        }
    }
    HighlightPoint(ed, doc.PathCurrentPoint(doc.CurrentPath));
}

void mapWayPoints_Paint(Editor& ed) {
    DrawPaths(ed, ed.FrmMission.mapWayPoints);
}

void HighlightPoint(Editor& ed, int point) {
    if (point <= 0) return;
    Mission& doc = ed.doc;
    const int p = doc.CurrentPath;
    RedrawPoint(ed, point, kHighlightColour);
    doc.PathCurrentPoint(p) = static_cast<std::int16_t>(point);
    PlotPoint(ed, doc.WPLat(p, point), doc.WPLon(p, point), doc.WPMapX(p, point),
              doc.WPMapY(p, point));
}

void UnhighlightPoint(Editor& ed) {
    Mission& doc = ed.doc;
    ed.FrmMission.mapWayPoints.SetForeColor(kCurrentPathColour);
    const int point = doc.PathCurrentPoint(doc.CurrentPath);
    if (point > 0) RedrawPoint(ed, point, kCurrentPathColour);
}

}  // namespace tarvex
