#pragma once
// A fresh Editor on scripted desktop services, for tests that drive whole forms.
#include <memory>

#include "shell/editor.h"
#include "shell/scripted_platform.h"

namespace tarvex::testing {

struct TestEditor {
    ScriptedDialogs dialogs;
    ScriptedSoundEngine sound;
    MemorySettingsStore settings;
    ScriptedRegistry registry;
    ScriptedInstanceChannel instance;
    ScriptedClock clock;
    std::unique_ptr<Editor> editor;

    TestEditor() { Rebuild(); }

    // A new Editor on the same services, for tests that script the services first.
    Editor& Rebuild() {
        editor.reset();
        editor =
            std::make_unique<Editor>(Services{dialogs, sound, settings, registry, instance, clock});
        return *editor;
    }

    Editor& operator*() { return *editor; }
    Editor* operator->() { return editor.get(); }
};

}  // namespace tarvex::testing
