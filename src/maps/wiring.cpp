#include "maps/wiring.h"

#include "maps/flyby_points.h"
#include "maps/group_path_preview.h"
#include "maps/group_paths.h"
#include "maps/group_view.h"
#include "maps/map_loading.h"
#include "maps/path_airfields.h"
#include "maps/path_drawing.h"
#include "maps/path_overlays.h"
#include "maps/path_selection.h"
#include "maps/point_deletion.h"
#include "maps/waypoint_fields.h"
#include "maps/waypoint_list.h"
#include "maps/waypoint_map.h"
#include "shell/editor.h"
#include "shell/forms/frm_mission.h"
#include "shell/forms/mdi_mission_ed.h"
#include "shell/wire.h"

namespace tarvex {

void WireMaps(Editor& ed) {
    auto& frm = ed.FrmMission;
    Wire(ed, frm.mapWayPoints.Paint, mapWayPoints_Paint);
    Wire(ed, frm.mapWayPoints.MouseDown, mapWayPoints_MouseDown);
    Wire(ed, frm.mapWayPoints.MouseMove, mapWayPoints_MouseMove);
    Wire(ed, frm.mapWayPoints.MouseUp, mapWayPoints_MouseUp);
    WireEach(ed, frm.chkOverlay, &CheckBox::Click, chkOverlay_Click);
    WireEach(ed, frm.chkOverlay, &CheckBox::MouseDown, chkOverlay_MouseDown);
    Wire(ed, frm.cmbSelectMap.Click, cmbSelectMap_Click);

    // The waypoint editor.
    Wire(ed, frm.lstPoints.Click, lstPoints_Click);
    Wire(ed, frm.lstPoints.MouseDown, lstPoints_MouseDown);
    Wire(ed, frm.lstPoints.MouseMove, lstPoints_MouseMove);
    Wire(ed, frm.lstPoints.MouseUp, lstPoints_MouseUp);
    Wire(ed, frm.lstPointsExtended.MouseDown, lstPointsExtended_MouseDown);
    Wire(ed, frm.txtPoint.Change, txtPoint_Change);
    Wire(ed, frm.txtAlt.Change, txtAlt_Change);
    Wire(ed, frm.txtSpeed.Change, txtSpeed_Change);
    WireEach(ed, frm.chkWPOptions, &CheckBox::MouseDown, chkWPOptions_MouseDown);
    WireEach(ed, frm.chkWPOptions, &CheckBox::MouseUp, chkWPOptions_MouseUp);
    Wire(ed, frm.btnClrPoint.MouseDown, btnClrPoint_MouseDown);
    Wire(ed, frm.btnClrPoint.Click, btnClrPoint_Click);
    Wire(ed, frm.btnWPNames.Click, btnWPNames_Click);
    Wire(ed, frm.btnWPTips.Click, btnWPTips_Click);
    auto& mdi = ed.MDIMissionED;
    Wire(ed, mdi.mnuDel.Click, mnuDel_Click);
    Wire(ed, mdi.mnuClrPoints.Click, mnuClrPoints_Click);
    Wire(ed, mdi.mnuClrMap.Click, mnuClrMap_Click);

    // The paths and the groups that fly them.
    WireEach(ed, frm.optColor, &OptionButton::Click, optColor_Click);
    WireEach(ed, frm.optColor, &OptionButton::MouseDown, optColor_MouseDown);
    WireEach(ed, frm.lblPath, &Label::MouseMove, lblPath_MouseMove);
    Wire(ed, frm.btnSetWaypoints.Click, btnSetWaypoints_Click);
    WireEach(ed, frm.chkWP, &CheckBox::Click, chkWP_Click);
    WireEach(ed, frm.chkWP, &CheckBox::MouseDown, chkWP_MouseDown);
    WireEach(ed, frm.chkWP, &CheckBox::MouseMove, chkWP_MouseMove);
    WireEach(ed, frm.chkWP, &CheckBox::MouseUp, chkWP_MouseUp);
    Wire(ed, frm.btnPathClear.Click, btnPathClear_Click);
    Wire(ed, frm.btnWPClose.Click, btnWPClose_Click);
    Wire(ed, frm.fraWPSelect.MouseMove, fraWPSelect_MouseMove);
    Wire(ed, frm.btnGrpView.Click, btnGrpView_Click);
    Wire(ed, frm.cmbGroups.Click, cmbGroups_Click);
    Wire(ed, frm.updwnGroupView.DownClick, updwnGroupView_DownClick);
    Wire(ed, frm.updwnGroupView.UpClick, updwnGroupView_UpClick);

    // The airfields of a path: the open lists follow the highlight, the choice warns.
    Wire(ed, frm.cmbStartAtRwy.Click, cmbStartAtRwy_Click);
    Wire(ed, frm.cmbStartAtRwy.Highlight, cmbStartAtRwy_Highlight);
    Wire(ed, frm.cmbStartAtRwy.UserPick, cmbStartAtRwy_UserPick);
    Wire(ed, frm.cmbStartAtRwy.DropCancel, cmbStartAtRwy_DropCancel);
    Wire(ed, frm.cmbEndAtRwy.Click, cmbEndAtRwy_Click);
    Wire(ed, frm.cmbEndAtRwy.Highlight, cmbEndAtRwy_Highlight);
    Wire(ed, frm.cmbEndAtRwy.UserPick, cmbEndAtRwy_UserPick);
    Wire(ed, frm.cmbEndAtRwy.DropCancel, cmbEndAtRwy_DropCancel);
    Wire(ed, frm.cmbRunways.Click, cmbRunways_Click);
    Wire(ed, frm.cmbRunways.KeyDown, cmbRunways_KeyDown);
    Wire(ed, frm.cmbRunways.KeyUp, cmbRunways_KeyUp);
    Wire(ed, frm.cmbRunways.Highlight, cmbRunways_Highlight);
    Wire(ed, frm.cmbRunways.UserPick, cmbRunways_UserPick);
    Wire(ed, frm.cmbRunways.DropCancel, cmbRunways_DropCancel);
}

}  // namespace tarvex
