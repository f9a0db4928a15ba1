// Reading and writing the remembered folders and options.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "shell/editor.h"
#include "shell/settings.h"
#include "support/test_editor.h"

namespace tarvex {
namespace {

using testing::TestEditor;
namespace fs = std::filesystem;

constexpr const char* kSimKey = "SOFTWARE\\Microsoft\\microsoft games\\tarvex simulator\\1.00";

// ReadSettings moves into the simulator's folder; the test program must not stay there.
struct KeepCurrentFolder {
    fs::path saved = fs::current_path();
    ~KeepCurrentFolder() { fs::current_path(saved); }
};

void Store(TestEditor& t, const std::string& key, const std::string& value) {
    t.settings.Save("Sortak", "Sortak Options", key, value);
}

TEST(SettingsStoreTest, TrueAnywhereInAnyCase) {
    for (const char* text : {"True", "true", "xTRUEx", "  TrUe!"})
        EXPECT_TRUE(SettingIsTrue(text)) << text;
    for (const char* text : {"", "False", "no", "-1", "Tru e"})
        EXPECT_FALSE(SettingIsTrue(text)) << text;
}

TEST(SettingsStoreTest, FirstRunTakesTheRegistryAndFirstRunOptions) {
    KeepCurrentFolder keep;
    const fs::path sim = testing::MakeTestFolder("sim");
    TestEditor t;
    t.registry.Set(RegistryRoot::LocalMachine, kSimKey, "path", sim.string());
    t.registry.Set(RegistryRoot::CurrentUser, "Software\\Microsoft\\MS SETUP (ACME)\\User Info",
                   "DefName", "Bram");
    const fs::path startFolder = fs::current_path();
    Editor& ed = *t;
    ReadSettings(ed);

    EXPECT_TRUE(ed.shell.FirstRun);
    EXPECT_EQ(ed.options.SimPath, sim.string() + "/");
    EXPECT_EQ(fs::current_path(), sim);
    EXPECT_EQ(ed.options.DefName, "Bram");
    EXPECT_EQ(ed.db.DBPath, (startFolder / "Sortak/Sortak Data/Tarvex Missions.mdb").string());
    EXPECT_EQ(ed.options.MapPath, (startFolder / "Sortak/Sortak Maps/").string());
    EXPECT_EQ(ed.options.LastTab, 1);
    EXPECT_EQ(ed.options.ACListSize, 1.0f);
    EXPECT_TRUE(ed.options.SoundOn && ed.options.ToolTipsOn && ed.options.Measurement &&
                ed.options.ShowDataWin);
    EXPECT_FALSE(ed.options.AutoUpdate);
    EXPECT_TRUE(t.dialogs.messages.empty());
    fs::remove_all(sim);
}

TEST(SettingsStoreTest, FirstRunWithoutTheSimulatorAsksAndGoesOnWithoutIt) {
    KeepCurrentFolder keep;
    TestEditor t;
    t.dialogs.QueueMsgAnswer(MsgAnswer::No);
    ReadSettings(*t);
    ASSERT_EQ(t.dialogs.messages.size(), 1u);
    EXPECT_EQ(t.dialogs.messages[0].text,
              "Tarvex Simulator does not appear to be installed on your computer\nDo you want "
              "to try and locate it yourself?");
    EXPECT_EQ(t.dialogs.messages[0].title, "Unable to locate Tarvex Simulator Path");
    EXPECT_TRUE(t->options.SimPath.empty());
    EXPECT_TRUE(t.dialogs.opens.empty());
}

TEST(SettingsStoreTest, LaterRunReadsWhatIsStoredAndAbsentValuesAsNothing) {
    KeepCurrentFolder keep;
    const fs::path sim = testing::MakeTestFolder("sim");
    TestEditor t;
    Store(t, "Path", sim.string() + "/");
    Store(t, "Sortak Map", "/maps/");
    Store(t, "ACListSize", "1.75");
    Store(t, "MDI Left", "480");
    Store(t, "Show Allegiance", "2");
    Store(t, "Sound On", "true");
    Store(t, "ToolTips On", "xTRUEx");
    Store(t, "Measurement", "no");
    // "Last Tab", "Auto Update", "ShowDataWin", "MDI Top" and "Sortak DB" are absent.
    const fs::path startFolder = fs::current_path();
    Editor& ed = *t;
    ReadSettings(ed);

    EXPECT_FALSE(ed.shell.FirstRun);
    EXPECT_EQ(fs::current_path(), sim);
    EXPECT_EQ(ed.options.LastTab, 0);
    EXPECT_EQ(ed.options.MapPath, "/maps/");
    // The default comes from the folder current before the move into the simulator's.
    EXPECT_EQ(ed.db.DBPath, (startFolder / "Sortak/Sortak Data/Tarvex Missions.mdb").string());
    EXPECT_EQ(ed.options.ACListSize, 1.75f);
    EXPECT_EQ(ed.options.MDILeft, 480.0f);
    EXPECT_EQ(ed.options.MDITop, 0.0f);
    EXPECT_EQ(ed.options.ShowAllegiance, 2);
    EXPECT_TRUE(ed.options.SoundOn);
    EXPECT_TRUE(ed.options.ToolTipsOn);
    EXPECT_FALSE(ed.options.Measurement);
    EXPECT_FALSE(ed.options.AutoUpdate);
    EXPECT_FALSE(ed.options.ShowDataWin);
    fs::remove_all(sim);
}

TEST(SettingsStoreTest, NumbersThatDontFitReadAsZero) {
    KeepCurrentFolder keep;
    TestEditor t;
    Store(t, "Path", "/nowhere-at-all/");
    Store(t, "Last Tab", "70000");
    Store(t, "Show Allegiance", "300");
    Store(t, "ACListSize", "abc");
    ReadSettings(*t);
    EXPECT_EQ(t->options.LastTab, 0);
    EXPECT_EQ(t->options.ShowAllegiance, 0);
    EXPECT_EQ(t->options.ACListSize, 0.0f);
}

// Records the order in which keys are written.
class RecordingStore : public MemorySettingsStore {
  public:
    void Save(const std::string& app, const std::string& section, const std::string& key,
              const std::string& value) override {
        keys.push_back(key);
        MemorySettingsStore::Save(app, section, key, value);
    }
    std::vector<std::string> keys;
};

TEST(SettingsStoreTest, SaveWritesEveryKeyInItsOrderAsText) {
    TestEditor t;
    RecordingStore store;
    auto editor = MakeEditor(Services{t.dialogs, t.sound, store, t.registry, t.instance, t.clock});
    Editor& ed = *editor;
    ed.options.SimPath = "/sim/";
    ed.db.DBPath = "/db/Tarvex Missions.mdb";
    ed.options.MapPath = "/maps/";
    ed.options.LastTab = 3;
    ed.options.ShowAllegiance = 1;
    ed.options.ACListSize = 1.25f;
    ed.options.ToolTipsOn = false;
    ed.options.MDILeft = 240;
    ed.options.MDITop = 12.5f;
    ed.options.RecentFiles[1] = "a.mis";
    SaveSettings(ed);

    const std::vector<std::string> order = {
        "Path",        "Sortak DB", "Sortak Map",  "Last Tab",    "Show Allegiance", "ACListSize",
        "ToolTips On", "Sound On",  "Auto Update", "Measurement", "ShowDataWin",     "MDI Left",
        "MDI Top",     "File 1",    "File 2",      "File 3",      "File 4"};
    EXPECT_EQ(store.keys, order);
    const auto get = [&](const char* key) { return *store.Get("Sortak", "Sortak Options", key); };
    EXPECT_EQ(get("Path"), "/sim/");
    EXPECT_EQ(get("Last Tab"), "3");
    EXPECT_EQ(get("ACListSize"), "1.25");
    EXPECT_EQ(get("ToolTips On"), "False");
    EXPECT_EQ(get("Sound On"), "True");
    EXPECT_EQ(get("MDI Left"), "240");
    EXPECT_EQ(get("MDI Top"), "12.5");
    EXPECT_EQ(get("File 1"), "a.mis");
    EXPECT_EQ(get("File 2"), "");
}

}  // namespace
}  // namespace tarvex
