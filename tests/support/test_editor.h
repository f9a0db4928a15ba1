#pragma once
// A fresh Editor on scripted desktop services, for tests that drive whole forms.
#include <filesystem>
#include <memory>
#include <system_error>

#include "app/make_editor.h"
#include "platform/scripted_platform.h"
#include "support/reference_folder.h"

namespace tarvex::testing {

struct TestEditor : ScriptedServices {
    std::unique_ptr<Editor> editor;

    TestEditor() { Rebuild(); }

    // A new Editor on the same services, for tests that script the services first.
    Editor& Rebuild() {
        editor.reset();
        editor = MakeEditor(Bind());
        return *editor;
    }

    ~TestEditor() {
        editor.reset();
        if (!folder.empty()) {
            std::error_code ignored;
            std::filesystem::remove_all(folder, ignored);
        }
    }

    // Opens a fresh copy of the default reference database in a folder of this test.
    Editor& OpenDatabase() {
        folder = MakeTestFolder("editor");
        editor->db.DBPath = (folder / "Tarvex Missions.mdb").string();
        CopyDefaultDatabase(editor->db.DBPath);
        editor->db.theDB.Open(editor->db.DBPath);
        return *editor;
    }

    std::filesystem::path folder;

    Editor& operator*() { return *editor; }
    Editor* operator->() { return editor.get(); }
};

}  // namespace tarvex::testing
