#include "shell/editor.h"

#include "maps/map_drawing_wiring.h"
#include "shell/main_window_wiring.h"

namespace tarvex {

Editor::Editor(Services services)
    : svc(services),
      MDIMissionED(*this),
      FrmMission(*this),
      frmNewRecord(*this),
      frmAircraft(*this),
      frmGrndNames(*this),
      frmGUOffsets(*this),
      frmtblMissions(*this),
      frmMsgScreen(*this),
      frmSplash(*this),
      frmAbout(*this) {
    WireMapDrawing(*this);
    WireMainWindow(*this);
}

Editor::~Editor() {
    db.CloseReferenceDatabase();
}

}  // namespace tarvex
