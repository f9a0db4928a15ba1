#include "qt/editor_window.h"

#include <QCloseEvent>
#include <QEvent>
#include <QMenuBar>

#include "qt/binding.h"
#include "qt/form_view.h"
#include "qt/map_zoom.h"
#include "qt/menu_bar.h"
#include "qt/picture_view.h"
#include "qt/scaled_style.h"
#include "qt/view_scale.h"
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
    UseScaledStyle();
    BuildMenuBar(menuBar(), ed.MDIMissionED.MenuBar());
    main_ = new FormView(ed.MDIMissionED, this, FormView::Mode::Central);
    setCentralWidget(main_);
    mission_ = new FormView(ed.FrmMission, main_, FormView::Mode::Child);
    new MapZoom(mission_, {dynamic_cast<PictureView*>(mission_->WidgetOf("mapWayPoints")),
                           dynamic_cast<PictureView*>(mission_->WidgetOf("mapGroundUnits"))});
    main_->installEventFilter(this);

    Form* others[] = {&ed.frmNewRecord,   &ed.frmAircraft,  &ed.frmGrndNames, &ed.frmGUOffsets,
                      &ed.frmtblMissions, &ed.frmMsgScreen, &ed.frmSplash,    &ed.frmAbout};
    for (Form* form : others)
        windows_.push_back(std::make_unique<FormView>(*form, nullptr, FormView::Mode::Window));
    // The splash opens in the middle of the screen.
    FormWindow(ed.frmSplash.Name())->SetCentred(true);
    missionListener_ = ed.FrmMission.AddListener([this](Aspect aspect) {
        if (aspect == Aspect::Geometry) FitMissionView();
    });
    FitMissionView();
}

EditorWindow::~EditorWindow() {
    ed_.FrmMission.RemoveListener(missionListener_);
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
    const double scale = main_->Scale();
    const float width = Twips(main_->width(), scale);
    const float top = Twips(main_->height(), scale) - strip.Height();
    Guarded([&] { strip.Move(0, std::max(0.0f, top), width, strip.Height()); });
}

void EditorWindow::FitMissionView() {
    // The status strip grows with the mission window. The menu bar is the desktop's and keeps
    // its size: were it to grow, the room it leaves would change the scale again.
    const Form& form = ed_.FrmMission;
    const float strip = ed_.MDIMissionED.Picture1.Height();
    const double scale = FitScale(Twips(main_->width()), Twips(main_->height()), form.Width(),
                                  form.Height() + strip);
    const QSize room(main_->width(), main_->height() - Px(strip, scale));
    const QSize size(Px(form.Width(), scale), Px(form.Height(), scale));
    main_->SetScale(scale);
    mission_->SetScale(scale, QPoint(std::max(0, (room.width() - size.width()) / 2),
                                     std::max(0, (room.height() - size.height()) / 2)));
    PlaceStatusStrip();
}

bool EditorWindow::eventFilter(QObject* watched, QEvent* event) {
    if (watched == main_ && event->type() == QEvent::Resize) FitMissionView();
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
