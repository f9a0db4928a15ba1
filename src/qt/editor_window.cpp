#include "qt/editor_window.h"

#include <QCloseEvent>
#include <QEvent>
#include <QMenuBar>

#include "qt/binding.h"
#include "qt/form_view.h"
#include "qt/menu_bar.h"
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
#include "shell/program_exit.h"

namespace tarvex::qt {

EditorWindow::EditorWindow(Editor& ed) : ed_(ed) {
    BuildMenuBar(menuBar(), ed.MDIMissionED.MenuBar());
    main_ = new FormView(ed.MDIMissionED, this, FormView::Mode::Central);
    setCentralWidget(main_);
    mission_ = new FormView(ed.FrmMission, main_, FormView::Mode::Child);
    main_->installEventFilter(this);

    Form* others[] = {&ed.frmNewRecord,   &ed.frmAircraft,  &ed.frmGrndNames, &ed.frmGUOffsets,
                      &ed.frmtblMissions, &ed.frmMsgScreen, &ed.frmSplash,    &ed.frmAbout};
    for (Form* form : others)
        windows_.push_back(std::make_unique<FormView>(*form, nullptr, FormView::Mode::Window));
    PlaceStatusStrip();
}

EditorWindow::~EditorWindow() {
    // The form windows go first: they listen to models the frame's widgets share.
    windows_.clear();
}

FormView* EditorWindow::FormWindow(const std::string& formName) const {
    for (const auto& window : windows_)
        if (window->Model().Name() == formName) return window.get();
    return nullptr;
}

void EditorWindow::PlaceStatusStrip() {
    // The strip keeps its height at the bottom edge over the full width, as a bottom-aligned
    // picture does.
    PictureSurface& strip = ed_.MDIMissionED.Picture1;
    const float width = Twips(main_->width());
    const float top = Twips(main_->height()) - strip.Height();
    Guarded([&] { strip.Move(0, std::max(0.0f, top), width, strip.Height()); });
}

bool EditorWindow::eventFilter(QObject* watched, QEvent* event) {
    if (watched == main_ && event->type() == QEvent::Resize) PlaceStatusStrip();
    return false;
}

void EditorWindow::closeEvent(QCloseEvent* event) {
    // The close box asks the core, which may keep the window open.
    bool closing = true;
    Guarded([&] { closing = CloseMainWindow(ed_, UnloadMode::FormControlMenu); });
    if (closing)
        event->accept();
    else
        event->ignore();
}

}  // namespace tarvex::qt
