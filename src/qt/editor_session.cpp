#include "qt/editor_session.h"

#include <QApplication>
#include <QDir>
#include <QPixmap>

#include "common/paths.h"
#include "document/mission_reset.h"
#include "maps/tab_selection.h"
#include "qt/binders.h"
#include "qt/editor_window.h"
#include "shell/mission_form_load.h"

namespace tarvex::qt {

namespace {

std::string Setting(Editor& ed, const char* key, const std::string& fallback) {
    const auto value = ed.svc.settings.Get("Sortak", "Sortak Options", key);
    return value && !value->empty() ? *value : fallback;
}

}  // namespace

EditorSession::EditorSession(Services services)
    : editor_(std::make_unique<Editor>(services)),
      window_(std::make_unique<EditorWindow>(*editor_)) {}

EditorSession::~EditorSession() {
    // The widgets listen to the models: they go before the Editor that owns them.
    window_.reset();
    editor_.reset();
}

void EditorSession::Start(const QStringList&) {
    Editor& ed = *editor_;
    const std::string here = QDir::currentPath().toStdString();
    ed.db.DBPath =
        Setting(ed, "Sortak DB",
                JoinPath(JoinPath(JoinPath(here, "Sortak"), "Sortak Data"), "Tarvex Missions.mdb"));
    ed.options.MapPath =
        Setting(ed, "Sortak Map", JoinPath(JoinPath(here, "Sortak"), "Sortak Maps") + "/");
    Guarded([&] { ed.db.OpenReferenceDatabase(ed.svc.dialogs); });
    Guarded([&] { LoadFrmMission(ed); });
    Guarded([&] { ResetMission(ed); });
    Guarded([&] {
        ed.MDIMissionED.SetVisible(true);
        ed.FrmMission.SetVisible(true);
    });
}

void EditorSession::ShowTab(int tab) {
    Guarded([&] { SelectTab(*editor_, tab); });
}

bool EditorSession::SaveScreenshot(const QString& file) {
    QApplication::processEvents();
    return window_->grab().save(file, "PNG");
}

}  // namespace tarvex::qt
