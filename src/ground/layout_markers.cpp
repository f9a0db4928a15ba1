#include "ground/layout_markers.h"

#include <algorithm>

#include "common/number_text.h"
#include "shell/editor.h"
#include "shell/forms/frm_mission.h"

namespace tarvex {

void PaintLayoutMarker(Editor& ed, float x, float y, Colour fill, int number) {
    PictureSurface& map = ed.FrmMission.mapGroundUnits;
    map.SetFillStyle(kFillSolid);
    map.SetFillColor(fill);
    map.Circle(x, y, kLayoutMarkerRadius);
    if (number <= 0) return;
    // The number stands above and to the right, clear of the circle.
    map.SetCurrent(x + kLayoutMarkerRadius, y - 168);
    map.Print(IntText(number));
}

void DrawLayoutMarkers(Editor& ed, int highlightRow) {
    const Mission& doc = ed.doc;
    const ListBox& added = ed.FrmMission.lstGUAdded;
    const int rows = std::min<int>(doc.GUCount, added.ListCount());
    for (int i = 0; i < rows; ++i) {
        const Colour fill = i == highlightRow                             ? kHighlightedMarkerFill
                            : added.ItemData(i) >= kFirstAirfieldItemData ? kAirfieldMarkerFill
                                                                          : kLandscapeMarkerFill;
        PaintLayoutMarker(ed, doc.GUMapX(i), doc.GUMapY(i), fill, i + 1);
    }
}

}  // namespace tarvex
