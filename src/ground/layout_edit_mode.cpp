#include "ground/layout_edit_mode.h"

#include "ground/layout_drawing.h"
#include "maps/map_loading.h"
#include "shell/editor.h"
#include "shell/forms/frm_aircraft.h"
#include "shell/forms/frm_grnd_names.h"
#include "shell/forms/frm_gu_offsets.h"
#include "shell/forms/frm_mission.h"
#include "shell/forms/frm_tbl_missions.h"
#include "shell/forms/mdi_mission_ed.h"

namespace tarvex {

void SetLayoutEditMode(Editor& ed, bool flag) {
    auto& frm = ed.FrmMission;
    auto& mdi = ed.MDIMissionED;
    PictureSurface& map = frm.mapGroundUnits;
    if (!flag) {
        map.Move(map.Left(), map.Top(), kDefaultMapWidth, kDefaultMapHeight);
        map.ZOrder(1);
    } else if (frm.picAC.Operations().empty()) {
        PaintAircraftPicture(frm.picAC);
    }
    frm.fraGUPos.SetVisible(flag);
    frm.XLine.SetVisible(flag);
    frm.YLine.SetVisible(flag);
    frm.picAC.SetVisible(flag);
    map.SetTag(flag ? "True" : "False");
    frm.fraPathColor.SetVisible(!flag);
    frm.lstGUAdded.SetEnabled(!flag);

    for (MenuItem* entry : {&mdi.mnuNew, &mdi.mnuOpen, &mdi.mnuSave, &mdi.mnuSaveAs,
                            &mdi.mnuMissDetail, &mdi.mnuAddAC, &mdi.mnuGULayout})
        entry->SetEnabled(!flag);
    if (ed.db.SummariesLoaded) mdi.mnuMissions.SetEnabled(!flag);
    if (!ed.frmGrndNames.Loaded() && !ed.frmAircraft.Loaded() && !ed.frmtblMissions.Loaded())
        mdi.mnuCompact.SetEnabled(!flag);
    // The recent files come back as far as there are any.
    for (int k = 1; k <= 4; ++k)
        mdi.mnudummy(k).SetVisible(!flag && !ed.options.RecentFiles[k].empty());
}

void LeaveLayoutEditor(Editor& ed) {
    auto& frm = ed.FrmMission;
    if (ed.ground.OffsetsOpen) ed.frmGUOffsets.UnloadForm();
    if (frm.mapGroundUnits.Tag() != "True") return;
    frm.fraStationary.SetVisible(false);
    ed.MDIMissionED.mnuStationary.SetEnabled(false);
    SetLayoutEditMode(ed, false);
    frm.mapGroundUnits.SetMousePointer(0);
}

}  // namespace tarvex
