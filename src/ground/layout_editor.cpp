#include "ground/layout_editor.h"

#include <algorithm>
#include <exception>
#include <string>

#include "common/error.h"
#include "common/number_text.h"
#include "common/numbers.h"
#include "document/coord_text.h"
#include "ground/layout_drawing.h"
#include "ground/layout_edit_mode.h"
#include "ground/layout_lists.h"
#include "ground/layout_units.h"
#include "ground/mission_layouts.h"
#include "ground/stationary_list.h"
#include "maps/tab_selection.h"
#include "refdata/reference_lookups.h"
#include "refdata/shared_lookup.h"
#include "shell/editor.h"
#include "shell/forms/frm_gu_offsets.h"
#include "shell/forms/frm_mission.h"
#include "shell/forms/mdi_mission_ed.h"
#include "shell/status_strip.h"

namespace tarvex {

namespace {

// The map while the editor shows a layout on it.
constexpr float kEditorMapWidth = 9100;
constexpr float kEditorMapHeight = 5390;

// A value for a spin control, kept within the control's range.
void SetSpin(UpDown& spin, int value) {
    spin.SetValue(
        std::clamp(value, std::min(spin.Min(), spin.Max()), std::max(spin.Min(), spin.Max())));
}

void ShowMessage(Editor& ed, const std::string& text, const std::string& title) {
    MessageBoxRequest box;
    box.text = text;
    box.title = title;
    box.icon = MsgIcon::Exclamation;
    ed.svc.dialogs.MsgBox(box);
}

// Steps of the entry from the layout's lookup on; any failure ends the entry. `mapTaken` tells
// the caller that the map has to be given back.
void EnterEditor(Editor& ed, int row, double originLat, double originLon, bool& mapTaken) {
    auto& frm = ed.FrmMission;
    GroundState& g = ed.ground;
    Mission& doc = ed.doc;
    PictureSurface& map = frm.mapGroundUnits;

    g.EditedLayoutID = frm.lstGUAdded.ItemData(row);
    // An airfield layout stands on its runway: up is the runway's heading.
    if (g.EditedLayoutID >= 10001) {
        std::string lat, lon;
        std::int16_t typeID = 0, elevation = 0, rwyID = 0;
        double rot = 0;
        LoadAirfieldPoint(ed, lat, lon, g.EditedLayoutID / 10000 - 1, typeID, elevation, rot,
                          rwyID);
        ed.placement.LayoutHeading = rot;
        g.EditedLayoutID %= 10000;
    }
    bool isDefault = false;
    {
        SharedLookup lookup(
            ed.db, "SELECT GUType,IsDefault FROM GrndNames Where ID=" + IntText(g.EditedLayoutID));
        Recordset& rs = lookup.First();
        g.LayoutType = rs.Fields(0).Byte();
        isDefault = rs.Fields(1).Bool();
    }

    mapTaken = true;
    map.Move(map.Left(), map.Top(), kEditorMapWidth, kEditorMapHeight);
    map.ZOrder(0);
    g.OriginLat = originLat;
    g.OriginLon = originLon;
    g.CenterLat = doc.GULat(row);
    g.CenterLon = doc.GULon(row);
    g.ViewShiftX = doc.GUShiftX(row);
    g.ViewShiftY = -doc.GUShiftY(row);
    g.ViewSpread = doc.GUSpread(row);
    {
        // The controls take the layout's values without acting on them.
        LoweredFlag quiet(doc.EventsOn);
        SetSpin(frm.btnYPos, -CInt(g.ViewShiftY * 100.0));
        SetSpin(frm.btnXPos, CInt(g.ViewShiftX * 100.0));
        // The spread stays in ViewSpread; the control shows 0 until it is used.
        frm.btnSpread.SetValue(0);
        g.AxisYSlot = 1;
        g.AxisXSlot = 0;
        ed.transform.SetFromRotation(doc.GURotation(row));
        SetSpin(frm.btnRotate2, CInt(ed.transform.FineRotation));
        g.ZoomFactor = 2.0f;
        frm.btnZoom.SetValue(20);
    }

    map.LoadPicture("");
    SetLayoutEditMode(ed, true);
    if (g.LayoutType == 3) {
        frm.btnX.SetVisible(true);
        frm.btnY.SetVisible(true);
    }
    g.CursorSize = static_cast<std::int16_t>(frm.btnCursor.Value());
    const float w = map.ScaleWidth();
    const float h = map.ScaleHeight();
    frm.XLine.SetEnds(0, h / 2, w, h / 2);
    frm.YLine.SetEnds(w / 2, 0, w / 2, h);
    g.SelectedUnit = -1;
    ShowStationaryList(ed, g.StationaryShown && !isDefault ? 1 : 0);
    // The offsets window's load sets the lock as well; set here, it holds without the window.
    ApplyLayoutLock(ed, isDefault);
    if (ed.options.ShowDataWin) {
        ed.frmGUOffsets.Show();
        frm.chkDataWindow.SetValue(kChecked);
    }
    g.LayoutSaved = false;
    DrawGU(ed);
}

void GiveMapBack(Editor& ed) {
    auto& frm = ed.FrmMission;
    if (ed.ground.OffsetsOpen) ed.frmGUOffsets.UnloadForm();
    frm.fraStationary.SetVisible(false);
    SetLayoutEditMode(ed, false);
    SelectTab(ed, frm.SSTab1.Tab());
}

}  // namespace

void lstGUAdded_DblClick(Editor& ed) {
    auto& frm = ed.FrmMission;
    GroundState& g = ed.ground;
    Mission& doc = ed.doc;
    if (!HasCurrentLayout(ed) || frm.mapGroundUnits.Tag() == "True") return;
    const int row = g.CurrentLayout;

    // An origin typed without the blank between degrees and minutes can't be read: the row
    // stays for the designer to correct.
    double originLat = 0;
    double originLon = 0;
    try {
        originLat = CoordTextToDegrees(doc.GULat(row));
        originLon = CoordTextToDegrees(doc.GULon(row));
    } catch (const AppError&) {
        ShowMessage(
            ed,
            "The position [" + doc.GULat(row) + " " + doc.GULon(row) +
                "] of this Ground Layout can not be read.\nCorrect it in the Lat / Lon box.",
            "Ground Layout Position");
        return;
    }

    ShowStatus(ed, "");
    ed.placement.LayoutHeading = 360;
    bool mapTaken = false;
    int failure = 0;
    std::string description;
    try {
        EnterEditor(ed, row, originLat, originLon, mapTaken);
        return;
    } catch (const AppError& e) {
        failure = e.Number();
        description = e.Description();
    } catch (const std::exception& e) {
        failure = kErrInvalidCall;
        description = e.what();
    }
    if (mapTaken) GiveMapBack(ed);
    if (failure == kErrNoCurrentRecord) {
        // The record is gone (deleted in another window or by another running copy): the row
        // can't be saved either, so it leaves the mission.
        ShowMessage(ed, "Unable to display the Ground Layout.", "*** Record not found ***");
        if (frm.lstGUAdded.ListIndex() != row) frm.lstGUAdded.SetListIndex(row);
        RemoveGroundLayout(ed);
    } else {
        ShowMessage(
            ed,
            "Unable to display the Ground Layout.\nError # " + IntText(failure) + " " + description,
            "Ground Layout Error");
    }
}

void btnRotate90_Click(Editor& ed) {
    auto& frm = ed.FrmMission;
    GroundState& g = ed.ground;
    // The X shift becomes the Y shift, whose control reaches less far.
    const int t = -frm.btnXPos.Value();
    if (t < frm.btnYPos.Min() || t > frm.btnYPos.Max()) {
        ShowStatus(ed,
                   "Ground Layout not rotated: its X Axis shift of " +
                       IntText(frm.btnXPos.Value()) + " is beyond the Y Axis range of " +
                       IntText(frm.btnYPos.Min()) + " to " + IntText(frm.btnYPos.Max()) + ".",
                   kStatusWarning);
        return;
    }
    std::swap(g.AxisXSlot, g.AxisYSlot);
    frm.btnXPos.SetValue(frm.btnYPos.Value());
    frm.btnYPos.SetValue(t);
    std::int16_t& turns = ed.transform.QuarterTurns;
    turns = static_cast<std::int16_t>(turns + 1);
    if (turns == 4) turns = 0;
    if (turns >= 0 && turns <= 3) {
        ShowStatus(ed, "Ground Layout Rotated " + IntText(turns * 90) + " Degrees from Normal",
                   kStatusNormal);
        SetOffsetCaptions(ed, ed.placement.LayoutHeading + turns * 90, 4, 5);
    }
    DrawGU(ed);
    ShowLayoutInfo(ed);
}

void btnGUReset_Click(Editor& ed) {
    auto& frm = ed.FrmMission;
    GroundState& g = ed.ground;
    Mission& doc = ed.doc;
    for (UpDown* spin : {&frm.btnSpread, &frm.btnYPos, &frm.btnXPos, &frm.btnX, &frm.btnY})
        spin->SetValue(0);
    const int row = g.CurrentLayout;
    // A spread stored before the editor was entered stands behind a control at 0 already.
    g.ViewSpread = 0;
    g.ViewShiftX = 0;
    g.ViewShiftY = 0;
    if (HasCurrentLayout(ed)) {
        doc.GUSpread(row) = 0;
        doc.GUShiftX(row) = 0;
        doc.GUShiftY(row) = 0;
    }
    g.AxisXSlot = 0;
    g.AxisYSlot = 1;
    g.StepDistance.at(0) = 0;
    g.StepDistance.at(1) = 0;
    frm.btnRotate2.SetValue(0);
    if (HasCurrentLayout(ed)) {
        g.CenterLat = doc.GULat(row);
        g.CenterLon = doc.GULon(row);
        // A default airfield layout is stored a quarter turn from its runway.
        doc.GURotation(row) = g.LayoutType > 1 && g.LayoutIsDefault ? 90.0f : 0.0f;
        ed.transform.QuarterTurns = static_cast<std::int16_t>(doc.GURotation(row) / 90);
    }
    SetOffsetCaptions(ed, ed.placement.LayoutHeading, 4, 5);
    DrawGU(ed);
    ShowLayoutInfo(ed);
}

void btnGUClose_Click(Editor& ed) {
    auto& frm = ed.FrmMission;
    GroundState& g = ed.ground;
    frm.fraStationary.SetVisible(false);
    ed.MDIMissionED.mnuStationary.SetEnabled(false);
    if (HasCurrentLayout(ed))
        ed.doc.GURotation(g.CurrentLayout) =
            static_cast<float>(frm.btnRotate2.Value() + 90 * ed.transform.QuarterTurns);
    if (g.OffsetsOpen) ed.frmGUOffsets.UnloadForm();
    SelectTab(ed, frm.SSTab1.Tab());
    if (g.LayoutSaved) FillLayoutLists(ed);
    frm.mapGroundUnits.SetMousePointer(0);
}

void ApplyLayoutLock(Editor& ed, bool flag) {
    auto& frm = ed.FrmMission;
    ed.ground.LayoutLocked = flag;
    frm.chkStationary.SetEnabled(!flag);
    ed.MDIMissionED.mnuStationary.SetEnabled(!flag);
    if (flag)
        frm.fraStationary.SetVisible(false);
    else if (frm.chkStationary.Value() == kChecked)
        frm.fraStationary.SetVisible(true);
}

}  // namespace tarvex
