#include "ground/layout_placing.h"

#include <exception>

#include "common/error.h"
#include "document/coord_text.h"
#include "ground/layout_drawing.h"
#include "ground/layout_lists.h"
#include "ground/layout_markers.h"
#include "ground/mission_layouts.h"
#include "maps/cursor_position.h"
#include "maps/map_loading.h"
#include "maps/path_drawing.h"
#include "maps/tab_selection.h"
#include "refdata/reference_lookups.h"
#include "shell/editor.h"
#include "shell/forms/frm_mission.h"
#include "shell/sounds.h"
#include "shell/status_strip.h"

namespace tarvex {

namespace {

// The read-out on the Ground units map has the precision of a layout's origin.
constexpr const char* kGroundMinutesFormat = "##00.0000";

void ShowLayoutLimitReached(Editor& ed) {
    MessageBoxRequest box;
    box.text = "Maximum Number of  Ground Layouts has been Reached";
    box.title = "Maximum Reached";
    box.icon = MsgIcon::Exclamation;
    ed.svc.dialogs.MsgBox(box);
}

void ShowAirfieldNotMovable(Editor& ed) {
    MessageBoxRequest box;
    box.text =
        "You can not move an airfield unit here. \nDouble click its name in [Mission Units]\n"
        "listbox to edit the layout location";
    box.title = "Moving Airfields";
    box.icon = MsgIcon::Information;
    ed.svc.dialogs.MsgBox(box);
}

// Runs a step whose failure the placing of an airfield layout goes on without.
template <typename Step>
void Ignoring(Step step) {
    try {
        step();
    } catch (const std::exception&) {
    }
}

}  // namespace

void PickOrPlaceLayout(Editor& ed, float x, float y) {
    auto& frm = ed.FrmMission;
    Mission& doc = ed.doc;
    GroundState& g = ed.ground;
    ListBox& added = frm.lstGUAdded;

    for (int i = 0; i < added.ListCount(); ++i) {
        const float left = doc.GUMapX(i) - kLayoutMarkerRadius;
        const float right = doc.GUMapX(i) + kLayoutMarkerRadius;
        const float top = doc.GUMapY(i) - kLayoutMarkerRadius;
        const float bottom = doc.GUMapY(i) + kLayoutMarkerRadius;
        if (!(left < x && x < right && top < y && y < bottom)) continue;
        added.SetListIndex(i);
        // An airfield layout's origin is its airfield's: it isn't dragged.
        if (added.ItemData(i) < kFirstAirfieldItemData) {
            g.MovingLayout = true;
            g.MovingRow = static_cast<std::int16_t>(i);
            PlaySound(ed, ed.shell.sndClick);
        } else {
            PlaySound(ed, ed.shell.sndCheckbox);
            ShowAirfieldNotMovable(ed);
        }
        return;
    }

    const int count = added.ListCount();
    ListBox& available = frm.lstGrnUnits;
    if (available.ListIndex() >= 0 && count < Mission::kMaxLayouts) {
        added.SetEnabled(true);
        // The origin is the point pressed, whatever the last move read out.
        ed.projection.SetCursorPosition(x, y, kGroundMinutesFormat);
        AddLayoutToMission(ed, LayoutRowText(count + 1, available.List(available.ListIndex())), x,
                           y, count + 1, kLandscapeMarkerFill,
                           available.ItemData(available.ListIndex()));
        PlaySound(ed, ed.shell.sndFlak);
    } else if (count >= Mission::kMaxLayouts) {
        ShowLayoutLimitReached(ed);
    }
}

void TrackLayoutPointer(Editor& ed, float x, float y) {
    auto& frm = ed.FrmMission;
    if (frm.mapGroundUnits.Tag() == "True") {
        float a = 0;
        float b = 0;
        MapToOffset(ed, a, b, x, y);
        return;
    }
    ShowCursorPosition(ed, x, y, kGroundMinutesFormat);

    GroundState& g = ed.ground;
    Mission& doc = ed.doc;
    if (!g.MovingLayout || g.MovingRow < 0 || g.MovingRow >= doc.GUCount) return;
    const int row = g.MovingRow;
    std::string lon = ed.projection.CursorLonText;
    std::string lat = ed.projection.CursorLatText;
    doc.GULon(row) = NormalizeCoordText(lon, "00.0000");
    doc.GULat(row) = NormalizeCoordText(lat, "00.0000");
    doc.GUMapX(row) = x;
    doc.GUMapY(row) = y;
    frm.mapGroundUnits.Cls();
    if (ed.drawing.OverlayOn) DrawPaths(ed, frm.mapGroundUnits);
    frm.txtGULatLon.SetText(doc.GULat(row) + " " + doc.GULon(row));
    DrawLayoutMarkers(ed, row);
}

void cmbGrndAirfield_Click(Editor& ed) {
    if (ed.FrmMission.cmbAirfieldLayout.ListIndex() < 0)
        ShowStatus(ed, "Select an Airfield Layout Type for this Airfield", kStatusNormal);
    else
        ShowStatus(ed, "");
}

void cmbAirfieldLayout_Click(Editor& ed) {
    auto& frm = ed.FrmMission;
    ComboBox& layouts = frm.cmbAirfieldLayout;
    ComboBox& airfields = frm.cmbGrndAirfield;
    const int layoutRow = layouts.ListIndex();
    if (layoutRow < 0) return;
    const std::int32_t layoutItem = layouts.ItemData(layoutRow);
    CheckLayoutDeletable(ed, frm.btnDelGUcmb, layoutItem);
    const int airfieldRow = airfields.ListIndex();
    if (airfieldRow < 0) return;

    const int count = frm.lstGUAdded.ListCount();
    if (count >= Mission::kMaxLayouts) {
        ShowLayoutLimitReached(ed);
        return;
    }
    const std::string text =
        LayoutRowText(count + 1, airfields.List(airfieldRow) + " " + layouts.List(layoutRow));
    MapProjection& proj = ed.projection;
    float x = 0;
    float y = 0;
    try {
        std::int16_t typeID = 0;
        std::int16_t elevation = 0;
        std::int16_t rwyID = 0;
        double rot = 0;
        LoadAirfieldPoint(ed, proj.CursorLatText, proj.CursorLonText, airfieldRow, typeID,
                          elevation, rot, rwyID);
        PlotPoint(ed, proj.CursorLatText, proj.CursorLonText, x, y);
    } catch (const AppError&) {
        ShowStatus(ed, "The airfield " + airfields.List(airfieldRow) + " is not in the database.",
                   kStatusWarning);
        return;
    }

    const std::int32_t itemData = layoutItem + (airfieldRow + 1) * 10000;
    PlaySound(ed, ed.shell.sndFlak);
    Ignoring([&] { AddLayoutToMission(ed, text, x, y, count + 1, kAirfieldMarkerFill, itemData); });
    // A default airfield layout is stored a quarter turn from its runway; copies saved from
    // it are not.
    if (ed.ground.LayoutIsDefault && frm.lstGUAdded.ListCount() == count + 1)
        ed.doc.GURotation(count) = 90;
}

void cmbGUMap_Click(Editor& ed) {
    Mission& doc = ed.doc;
    if (!doc.NotResetting) return;
    auto& frm = ed.FrmMission;
    SelectTab(ed, frm.SSTab1.Tab());
    // The text of each origin is the truth; the markers follow the map.
    for (int i = 0; i < doc.GUCount; ++i)
        PlotPoint(ed, doc.GULat(i), doc.GULon(i), doc.GUMapX(i), doc.GUMapY(i));
    frm.mapGroundUnits.Cls();
    DrawLayoutMarkers(ed);
}

}  // namespace tarvex
