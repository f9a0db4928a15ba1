// The about box's sounds and show, and the offsets window following the main window.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "shell/editor.h"
#include "shell/forms/frm_about.h"
#include "shell/forms/frm_gu_offsets.h"
#include "shell/forms/mdi_mission_ed.h"
#include "shell/window_sizes.h"
#include "support/test_editor.h"

namespace tarvex {
namespace {

using testing::TestEditor;

TEST(MainWindowAboutTest, BoxPlaysOnlyWithSoundOnAndTheWindowComesBackWhereItWas) {
    for (const bool soundOn : {true, false}) {
        TestEditor t;
        Editor& ed = *t;
        ed.options.SimPath = "/sim/";
        ed.options.SoundOn = soundOn;
        auto& main = ed.MDIMissionED;
        main.Move(300, 400, 9500, 7296);
        std::vector<float> widths;
        t.clock.onDoEvents = [&] { widths.push_back(main.Width()); };

        main.mnuAbout.UserClick();
        EXPECT_TRUE(ed.frmAbout.Visible());
        ed.frmAbout.picOK.UserClick();
        EXPECT_FALSE(ed.frmAbout.Visible());

        EXPECT_EQ(t.sound.loads,
                  (std::vector<std::string>{"/sim/sound/amb9.wav", "/sim/sound/exp.wav"}));
        EXPECT_EQ(t.sound.plays.size(), soundOn ? 2u : 0u);
        // The window grows from 12 twips wide in steps of 500 up to 9012, then is put back.
        ASSERT_EQ(widths.size(), 19u);
        EXPECT_EQ(widths.front(), 12);
        EXPECT_EQ(widths.back(), 9012);
        EXPECT_EQ(main.Left(), 300);
        EXPECT_EQ(main.Top(), 400);
        EXPECT_EQ(main.Width(), 9500);
        EXPECT_EQ(main.Height(), 7296);
    }
}

TEST(MainWindowAboutTest, OffsetsWindowHidesWithTheMinimisedMainWindow) {
    TestEditor t;
    Editor& ed = *t;
    MDIMissionED_Resize(ed, true);
    EXPECT_FALSE(ed.frmGUOffsets.Visible()) << "a closed offsets window stays closed";
    ed.frmGUOffsets.SetVisible(true);
    MDIMissionED_Resize(ed, true);
    EXPECT_FALSE(ed.frmGUOffsets.Visible());
    MDIMissionED_Resize(ed, false);
    EXPECT_TRUE(ed.frmGUOffsets.Visible());
}

}  // namespace
}  // namespace tarvex
