#include "shell/editor.h"

#include "shell/forms/frm_about.h"
#include "shell/forms/frm_aircraft.h"
#include "shell/forms/frm_grnd_names.h"
#include "shell/forms/frm_gu_offsets.h"
#include "shell/forms/frm_mission.h"
#include "shell/forms/frm_msg_screen.h"
#include "shell/forms/frm_new_record.h"
#include "shell/forms/frm_splash.h"
#include "shell/forms/frm_tbl_missions.h"
#include "shell/forms/mdi_mission_ed.h"

namespace tarvex {

struct Editor::Forms {
    ::tarvex::MDIMissionED MDIMissionED;
    ::tarvex::FrmMission FrmMission;
    ::tarvex::frmNewRecord frmNewRecord;
    ::tarvex::frmAircraft frmAircraft;
    ::tarvex::frmGrndNames frmGrndNames;
    ::tarvex::frmGUOffsets frmGUOffsets;
    ::tarvex::frmtblMissions frmtblMissions;
    ::tarvex::frmMsgScreen frmMsgScreen;
    ::tarvex::frmSplash frmSplash;
    ::tarvex::frmAbout frmAbout;
};

Editor::Editor(Services services)
    : svc(services),
      forms_(std::make_unique<Forms>()),
      MDIMissionED(forms_->MDIMissionED),
      FrmMission(forms_->FrmMission),
      frmNewRecord(forms_->frmNewRecord),
      frmAircraft(forms_->frmAircraft),
      frmGrndNames(forms_->frmGrndNames),
      frmGUOffsets(forms_->frmGUOffsets),
      frmtblMissions(forms_->frmtblMissions),
      frmMsgScreen(forms_->frmMsgScreen),
      frmSplash(forms_->frmSplash),
      frmAbout(forms_->frmAbout) {
    // The file dialogs of the forms are the desktop's.
    FrmMission.CommonDialog1.SetDialogs(svc.dialogs);
}

Editor::~Editor() {
    db.CloseReferenceDatabase();
}

}  // namespace tarvex
