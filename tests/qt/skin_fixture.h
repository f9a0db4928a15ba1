#pragma once
// The editor's windows on the offscreen platform, on scripted services, with a fresh copy of
// the default reference database and the default installation's maps.
#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QMenuBar>
#include <filesystem>
#include <memory>
#include <string>

#include "platform/scripted_platform.h"
#include "qt/editor_session.h"
#include "qt/editor_window.h"
#include "qt/form_view.h"
#include "support/reference_folder.h"

namespace tarvex::qt {

class SkinTest : public ::testing::Test, public ScriptedServices {
  protected:
    void SetUp() override {
        folder = testing::MakeTestFolder("skin");
        const auto db = folder / "Tarvex Missions.mdb";
        testing::CopyDefaultDatabase(db);
        // A run after the first: the folders come from the settings.
        const std::string options = "Sortak Options";
        settings.Save("Sortak", options, "Path", folder.string() + "/");
        settings.Save("Sortak", options, "Sortak DB", db.string());
        settings.Save("Sortak", options, "Sortak Map",
                      std::string(TARVEX_BINARY_DIR) + "/default-install/Sortak/Sortak Maps/");
        session = std::make_unique<EditorSession>(Bind());
        ASSERT_TRUE(session->Start({}, true));
        session->window().show();
        QApplication::processEvents();
    }
    void TearDown() override {
        session.reset();
        std::error_code ignored;
        std::filesystem::remove_all(folder, ignored);
    }

    QWidget* Widget(const char* name, int index = -1) {
        return session->window().MissionView().WidgetOf(name, index);
    }
    QAction* Action(const QString& name) {
        return session->window().menuBar()->findChild<QAction*>(name);
    }

    std::filesystem::path folder;
    std::unique_ptr<EditorSession> session;
};

}  // namespace tarvex::qt
