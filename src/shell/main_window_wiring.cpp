#include "shell/main_window_wiring.h"

#include "maps/tab_selection.h"
#include "shell/about_box.h"
#include "shell/editor.h"
#include "shell/file_menu.h"
#include "shell/measurement.h"
#include "shell/message_screen.h"
#include "shell/options_menu.h"
#include "shell/program_exit.h"
#include "shell/recent_files.h"
#include "shell/sounds.h"
#include "shell/startup.h"

namespace tarvex {

namespace {

void ShowTabFromMenu(Editor& ed, int tab) {
    ed.FrmMission.SSTab1.SetTab(tab);
    SelectTab(ed, tab);
}

void mnuCompact_Click(Editor& ed) {
    ed.db.CompactReferenceDatabase(
        ed.svc.dialogs, [&ed](const std::string& text) { ShowMessageScreen(ed, text); },
        [&ed] { CloseMessageScreen(ed); });
}

}  // namespace

void WireMainWindow(Editor& ed) {
    // The file dialogs of the forms are the desktop's.
    ed.FrmMission.CommonDialog1.SetDialogs(ed.svc.dialogs);
    WireSplash(ed);
    WireRecentFiles(ed);
    auto& m = ed.MDIMissionED;
    m.mnuNew.Click = [&ed] { mnuNew_Click(ed); };
    m.mnuOpen.Click = [&ed] { mnuOpen_Click(ed); };
    m.mnuSave.Click = [&ed] { mnuSave_Click(ed); };
    m.mnuSaveAs.Click = [&ed] { mnuSaveAs_Click(ed); };
    m.mnuExit.Click = [&ed] { CloseMainWindow(ed, UnloadMode::FormCode); };

    m.mnuSummary.Click = [&ed] { ShowTabFromMenu(ed, 0); };
    m.mnuFormations.Click = [&ed] { ShowTabFromMenu(ed, 1); };
    m.mnuGroundUnits.Click = [&ed] { ShowTabFromMenu(ed, 2); };
    m.mnuWaypoints.Click = [&ed] { ShowTabFromMenu(ed, 3); };

    m.mnuCompact.Click = [&ed] { mnuCompact_Click(ed); };
    m.mnuACListNorm.Click = [&ed] { mnuACListNorm_Click(ed); };
    m.mnuACListInc.Click = [&ed] { mnuACListInc_Click(ed); };
    m.mnuACListDec.Click = [&ed] { mnuACListDec_Click(ed); };
    m.mnuAutoUpdate.Click = [&ed] { mnuAutoUpdate_Click(ed); };
    m.mnuDist.Click = [&ed] { mnuDist_Click(ed); };
    m.mnuSndOn.Click = [&ed] { mnuSndOn_Click(ed); };
    m.mnuIncVol.Click = [&ed] { mnuIncVol_Click(ed); };
    m.mnuDecVol.Click = [&ed] { mnuDecVol_Click(ed); };
    m.mnuTooltips.Click = [&ed] { mnuTooltips_Click(ed); };

    m.mnuAbout.Click = [&ed] { mnuAbout_Click(ed); };
    ed.frmAbout.picOK.Click = [&ed] { picOK_Click(ed); };
}

}  // namespace tarvex
