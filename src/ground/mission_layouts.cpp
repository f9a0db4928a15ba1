#include "ground/mission_layouts.h"

#include <algorithm>
#include <exception>

#include "common/error.h"
#include "common/number_text.h"
#include "common/text.h"
#include "document/coord_text.h"
#include "ground/layout_markers.h"
#include "refdata/shared_lookup.h"
#include "shell/editor.h"
#include "shell/forms/frm_mission.h"
#include "shell/sounds.h"
#include "shell/status_strip.h"

namespace tarvex {

namespace {

// The selected marker's fill: a green a shade off the highlight of a drag.
constexpr Colour kSelectedMarkerFill = Rgb(0, 255, 24);

}  // namespace

std::string LayoutRowText(int number, const std::string& name) {
    return Format(number, "##00") + ". " + name;
}

std::string LayoutRowName(const std::string& rowText) {
    return Mid(rowText, 5);
}

bool HasCurrentLayout(const Editor& ed) {
    return ed.ground.CurrentLayout >= 0 && ed.ground.CurrentLayout < ed.doc.GUCount;
}

void AddLayoutToMission(Editor& ed, const std::string& text, float x, float y, int number,
                        Colour colour, std::int32_t itemData) {
    auto& frm = ed.FrmMission;
    Mission& doc = ed.doc;
    const int row = number - 1;
    // The arrays keep one spare element for the shift of a removal: 20 layouts at most.
    if (row < 0 || row >= Mission::kMaxLayouts) Raise(kErrSubscript);
    std::string lat = ed.projection.CursorLatText;
    std::string lon = ed.projection.CursorLonText;
    NormalizeCoordText(lat, "00.0000");
    NormalizeCoordText(lon, "00.0000");

    PaintLayoutMarker(ed, x, y, colour, number);
    frm.lstGUAdded.AddItem(text);
    frm.lstGUAdded.SetItemData(frm.lstGUAdded.NewIndex(), itemData);
    doc.GULon(row) = lon;
    doc.GULat(row) = lat;
    doc.GUMapX(row) = x;
    doc.GUMapY(row) = y;
    doc.GUCount = static_cast<std::uint8_t>(doc.GUCount + 1);
    frm.lstGUAdded.SetListIndex(frm.lstGUAdded.NewIndex());
    frm.lstGUAdded.SetEnabled(true);
}

void RemoveGroundLayout(Editor& ed) {
    auto& frm = ed.FrmMission;
    Mission& doc = ed.doc;
    GroundState& g = ed.ground;
    ListBox& added = frm.lstGUAdded;

    g.CurrentLayout = static_cast<std::int16_t>(added.ListIndex());
    if (g.CurrentLayout >= 0) {
        // Each element takes the one below it, up to the first empty one: the spare element
        // at the end is always empty, so the last used one ends empty too.
        for (int i = g.CurrentLayout; i < Mission::kLayoutUpper && !doc.GULon(i).empty(); ++i) {
            doc.GULat(i) = doc.GULat(i + 1);
            doc.GULon(i) = doc.GULon(i + 1);
            doc.GUMapX(i) = doc.GUMapX(i + 1);
            doc.GUMapY(i) = doc.GUMapY(i + 1);
            doc.GUShiftY(i) = doc.GUShiftY(i + 1);
            doc.GUShiftX(i) = doc.GUShiftX(i + 1);
            doc.GUSpread(i) = doc.GUSpread(i + 1);
            doc.GURotation(i) = doc.GURotation(i + 1);
            doc.GUPoints(i) = doc.GUPoints(i + 1);
        }
        added.RemoveItem(g.CurrentLayout);
        doc.GUCount = static_cast<std::uint8_t>(doc.GUCount - 1);
        g.PreviousLayout = -1;
        RenumberLayoutList(ed);
    }
    if (doc.GUCount != 0) {
        if (g.CurrentLayout >= 0)
            added.SetListIndex(std::min<int>(g.CurrentLayout, added.ListCount() - 1));
    } else {
        frm.btnDeleteGrndUnit.SetVisible(false);
        SetPointOptionsEnabled(ed, false);
        added.SetEnabled(false);
        frm.txtAddedGU.SetText("");
        frm.txtGULatLon.SetText("");
    }
    g.CurrentLayout = static_cast<std::int16_t>(added.ListIndex());
}

void RenumberLayoutList(Editor& ed) {
    auto& frm = ed.FrmMission;
    ListBox& added = frm.lstGUAdded;
    for (int i = 0; i < added.ListCount(); ++i)
        added.SetList(i, LayoutRowText(i + 1, LayoutRowName(added.List(i))));
    frm.mapGroundUnits.Cls();
    DrawLayoutMarkers(ed);
}

void SetPointOptionsEnabled(Editor& ed, bool flag) {
    for (auto& option : ed.FrmMission.optGndHasPoints)
        option.SetEnabled(flag);
}

void lstGUAdded_Click(Editor& ed) {
    auto& frm = ed.FrmMission;
    Mission& doc = ed.doc;
    GroundState& g = ed.ground;
    ListBox& added = frm.lstGUAdded;
    const int row = added.ListIndex();
    if (row >= 0) {
        g.CurrentLayout = static_cast<std::int16_t>(row);
        frm.btnDeleteGrndUnit.SetVisible(true);
        SetPointOptionsEnabled(ed, true);
        const int points = doc.GUPoints(row);
        if (frm.optGndHasPoints.Exists(points)) frm.optGndHasPoints(points).SetValue(true);

        // The old marker loses its highlight; the next full drawing gives an airfield marker
        // its blue back.
        if (g.PreviousLayout >= 0 && g.PreviousLayout < added.ListCount())
            PaintLayoutMarker(ed, doc.GUMapX(g.PreviousLayout), doc.GUMapY(g.PreviousLayout),
                              kLandscapeMarkerFill);
        PaintLayoutMarker(ed, doc.GUMapX(row), doc.GUMapY(row), kSelectedMarkerFill);

        const std::string text = added.List(row);
        ShowStatus(ed, text + "  Lat: [" + doc.GULat(row) + ", Lon: " + doc.GULon(row) + "] ");
        frm.txtAddedGU.SetText(LayoutRowName(text));
        frm.txtGULatLon.SetText(doc.GULat(row) + " " + doc.GULon(row));
        const std::int32_t itemData = added.ItemData(row);
        frm.txtGULatLon.SetEnabled(itemData < kFirstAirfieldItemData);

        try {
            SharedLookup lookup(ed.db, "SELECT IsDefault FROM GrndNames Where ID=" +
                                           IntText(LayoutIdFromItemData(itemData)));
            g.LayoutIsDefault = lookup.First().Fields(0).Bool();
        } catch (const std::exception&) {
            // A layout that the database no longer has keeps the flag as it was; entering the
            // editor on it takes it out of the mission.
        }
        // A default layout keeps its name.
        frm.txtAddedGU.SetEnabled(!g.LayoutIsDefault);
    }
    g.PreviousLayout = static_cast<std::int16_t>(added.ListIndex());
}

void lstGUAdded_MouseDown(Editor& ed, int, int, float, float) {
    PlaySound(ed, ed.shell.sndClick);
}

void optGndHasPoints_MouseDown(Editor& ed, int index, int, int, float, float) {
    if (HasCurrentLayout(ed))
        ed.doc.GUPoints(ed.ground.CurrentLayout) = static_cast<std::uint8_t>(index);
    PlaySound(ed, ed.shell.sndClick);
}

void txtAddedGU_Change(Editor& ed) {
    auto& frm = ed.FrmMission;
    const int row = frm.lstGUAdded.ListIndex();
    if (!frm.btnDeleteGrndUnit.Visible() || row < 0) return;
    frm.lstGUAdded.SetList(row, LayoutRowText(row + 1, frm.txtAddedGU.Text()));
}

void btnDeleteGrndUnit_Click(Editor& ed) {
    RemoveGroundLayout(ed);
}

void btnDeleteGrndUnit_MouseDown(Editor& ed, int, int, float, float) {
    PlaySound(ed, ed.shell.sndCheckbox);
}

}  // namespace tarvex
