// The help line of the menus: what each entry under the mouse says on the status strip, and
// when it says nothing.
#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

#include "shell/editor.h"
#include "shell/forms/mdi_mission_ed.h"
#include "shell/menu_help.h"
#include "support/test_editor.h"

namespace tarvex {
namespace {

using testing::TestEditor;

const struct {
    const char* entry;
    const char* help;
} kMenuHelp[] = {
    {"mnuNew", "Create New Mission"},
    {"mnuOpen", "Open Mission File"},
    {"mnuSave", "Save the Current Mission"},
    {"mnuSaveAs", "Save the Current Mission with a Different File Name"},
    {"mnuExit", "Exit Editor"},
    {"mnuDel", "Delete Waypoint"},
    {"mnuClrPoints", "Delete All Waypoints from current Path"},
    {"mnuClrMap", "Delete All Paths"},
    {"mnuSummary", "Show Summary Tab"},
    {"mnuFormations", "Show Formations Tab"},
    {"mnuGroundUnits", "Show Ground Layout Tab"},
    {"mnuWaypoints", "Show Waypoints Tab"},
    {"mnuAddAC", "Add/Modify Aircraft records"},
    {"mnuGULayout", "Modify Ground Layout records"},
    {"mnuMissions", "Show Summaries of Single Missions."},
    {"mnuStationary", "Add Stationary Objects to the current Ground Layout "},
    {"mnuCompact",
     "As data is added/modified the database will grow and there will be a need to Compact it."},
    {"mnuMissDetail",
     "Scan Mission Folder for *.mis and extract Summary Data to be viewed under [Views/Missions "
     "Summary] Menu Option."},
    {"mnuAutoUpdate",
     "Toggle Auto Update On/Off. When ON will automatically set the ATTACK DIRECTIVE  for the "
     "group based on the AC selected."},
    {"mnuDist",
     "Toggle between Metric (Kilometer/Meters) and Imperial (Miles/Feet) for Speed and Distances."},
    {"mnuSndOn", "Toggle Sound On/Off"},
    {"mnuIncVol", "Increase Volume by 10%"},
    {"mnuDecVol", "Decrease Volume by 10%"},
    {"mnuTooltips", "Toggle Tooltips On/Off"},
};

class MenuHelpTest : public ::testing::Test {
  protected:
    void SetUp() override { AttachMenuWatcher(ed); }

    MenuItem& Entry(const std::string& name, int index = -1) {
        auto* entry = dynamic_cast<MenuItem*>(m.FindComponent(name, index));
        if (!entry) throw std::runtime_error("no menu entry " + name);
        return *entry;
    }
    // The text on the strip, and whether it is red.
    std::string Strip() const {
        std::string text;
        for (const DrawOp& op : m.Picture1.Operations())
            if (op.kind == DrawKind::Text) text += op.text;
        return text;
    }
    bool StripIsRed() const { return m.Picture1.ForeColor() == 255; }
    // The pointer reaches an entry (or the keyboard does), then the moment passes.
    std::string HelpOf(MenuItem& entry, bool byMouse = true) {
        m.Picture1.Print("Lat: [N51 00.00]");
        entry.RaiseHighlight(byMouse);
        EXPECT_EQ(Strip(), "") << "cleared at once";
        m.tmrMenuHelp.Fire();
        return Strip();
    }

    TestEditor t;
    Editor& ed = *t;
    MDIMissionED& m = ed.MDIMissionED;
};

TEST_F(MenuHelpTest, EachEntryUnderTheMouseSaysWhatItDoesInRed) {
    m.mnuMissions.SetEnabled(true);
    for (const auto& row : kMenuHelp) {
        EXPECT_EQ(HelpOf(Entry(row.entry)), row.help) << row.entry;
        EXPECT_TRUE(StripIsRed()) << row.entry;
    }
}

TEST_F(MenuHelpTest, TheKeyboardSubmenusAndEntriesWithoutHelpSayNothing) {
    const struct {
        const char* what;
        MenuItem& entry;
        bool byMouse;
    } cases[] = {
        {"New by the keyboard", m.mnuNew, false},
        {"the Options submenu", m.mnuoptions, true},
        {"the Sound submenu", m.mnuSound, true},
        {"the File menu", m.mnuFile, true},
        {"Cut", m.mnuCut, true},
        {"a recent file", m.mnudummy(1), true},
    };
    for (const auto& c : cases)
        EXPECT_EQ(HelpOf(c.entry, c.byMouse), "") << c.what;

    // The help of an entry the mouse left at once for the keyboard's does not come after it.
    m.mnuNew.RaiseHighlight(true);
    m.mnuOpen.RaiseHighlight(false);
    m.tmrMenuHelp.Fire();
    EXPECT_EQ(Strip(), "");
}

TEST_F(MenuHelpTest, MissionsSummaryTellsWhereSummariesComeFromOnlyWhileDisabled) {
    m.mnuMissions.SetEnabled(false);
    EXPECT_EQ(HelpOf(m.mnuMissions),
              "Show Summaries of Single Missions. Select the [Tool/Missions Summary] Menu Option "
              "first to make this option available.");
    m.mnuMissions.SetEnabled(true);
    EXPECT_EQ(HelpOf(m.mnuMissions), "Show Summaries of Single Missions.");
}

TEST(MenuHelpWatcherTest, NothingIsWrittenBeforeTheWatcherIsAttached) {
    TestEditor t;
    auto& m = t->MDIMissionED;
    m.Picture1.Print("Loading");
    m.mnuNew.RaiseHighlight(true);
    m.tmrMenuHelp.Fire();
    ASSERT_EQ(m.Picture1.Operations().size(), 1u);
    EXPECT_EQ(m.Picture1.Operations()[0].text, "Loading");
}

}  // namespace
}  // namespace tarvex
