#include "shell/wiring.h"

#include "shell/about_box.h"
#include "shell/editor.h"
#include "shell/file_menu.h"
#include "shell/forms/frm_about.h"
#include "shell/forms/frm_mission.h"
#include "shell/forms/frm_splash.h"
#include "shell/forms/mdi_mission_ed.h"
#include "shell/measurement.h"
#include "shell/menu_help.h"
#include "shell/options_menu.h"
#include "shell/program_exit.h"
#include "shell/recent_files.h"
#include "shell/sounds.h"
#include "shell/startup.h"
#include "shell/summary_prompts.h"
#include "shell/tab_strip.h"
#include "shell/tools_menu.h"
#include "shell/view_menu.h"
#include "shell/wire.h"

namespace tarvex {

void WireShell(Editor& ed) {
    auto& splash = ed.frmSplash;
    Wire(ed, splash.Timer1.Timer, Timer1_Timer);
    Wire(ed, splash.picSplash.Click, picSplash_Click);

    auto& m = ed.MDIMissionED;
    Wire(ed, m.mnuNew.Click, mnuNew_Click);
    Wire(ed, m.mnuOpen.Click, mnuOpen_Click);
    Wire(ed, m.mnuSave.Click, mnuSave_Click);
    Wire(ed, m.mnuSaveAs.Click, mnuSaveAs_Click);
    WireEach(ed, m.mnudummy, &MenuItem::Click, mnudummy_Click);
    Wire(ed, m.mnuExit.Click, mnuExit_Click);

    Wire(ed, m.mnuSummary.Click, mnuSummary_Click);
    Wire(ed, m.mnuFormations.Click, mnuFormations_Click);
    Wire(ed, m.mnuGroundUnits.Click, mnuGroundUnits_Click);
    Wire(ed, m.mnuWaypoints.Click, mnuWaypoints_Click);

    Wire(ed, m.mnuCompact.Click, mnuCompact_Click);
    Wire(ed, m.mnuACListNorm.Click, mnuACListNorm_Click);
    Wire(ed, m.mnuACListInc.Click, mnuACListInc_Click);
    Wire(ed, m.mnuACListDec.Click, mnuACListDec_Click);
    Wire(ed, m.mnuAutoUpdate.Click, mnuAutoUpdate_Click);
    Wire(ed, m.mnuDist.Click, mnuDist_Click);
    Wire(ed, m.mnuSndOn.Click, mnuSndOn_Click);
    Wire(ed, m.mnuIncVol.Click, mnuIncVol_Click);
    Wire(ed, m.mnuDecVol.Click, mnuDecVol_Click);
    Wire(ed, m.mnuTooltips.Click, mnuTooltips_Click);

    Wire(ed, m.mnuAbout.Click, mnuAbout_Click);
    Wire(ed, ed.frmAbout.Load, frm_about::Form_Load);
    Wire(ed, ed.frmAbout.picOK.Click, picOK_Click);

    WireMenus(ed, m.MenuBar(), &MenuItem::Highlight, scMenus_Highlight);
    Wire(ed, m.tmrMenuHelp.Timer, tmrMenuHelp_Timer);

    auto& frm = ed.FrmMission;
    Wire(ed, frm.SSTab1.MouseDown, SSTab1_MouseDown);
    Wire(ed, frm.SSTab1.OLEDragOver, SSTab1_OLEDragOver);
    Wire(ed, frm.SSTab1.OLEDragDrop, SSTab1_OLEDragDrop);
    Wire(ed, frm.txtDate.Click, txtDate_Click);
    Wire(ed, frm.txtTime.Click, txtTime_Click);
}

}  // namespace tarvex
