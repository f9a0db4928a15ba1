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
        std::vector<Place> steps;
        t.clock.onDoEvents = [&] {
            steps.push_back({main.Left(), main.Top(), main.Width(), main.Height()});
        };

        // Each opening loads the box afresh, with its sound.
        for (int opening = 0; opening < 2; ++opening) {
            main.mnuAbout.UserClick();
            EXPECT_TRUE(ed.frmAbout.Visible());
            EXPECT_TRUE(ed.frmAbout.Modal());
            ed.frmAbout.picOK.UserClick();
            EXPECT_FALSE(ed.frmAbout.Visible());
            EXPECT_FALSE(ed.frmAbout.Modal());
        }

        EXPECT_EQ(t.sound.loads,
                  (std::vector<std::string>{"/sim/sound/amb9.wav", "/sim/sound/exp.wav",
                                            "/sim/sound/amb9.wav", "/sim/sound/exp.wav"}));
        EXPECT_EQ(t.sound.plays.size(), soundOn ? 4u : 0u);
        // From the centre, 12 twips wide and 13 high, the window grows by 500 and 366 a step
        // while it moves up and left, 19 steps to 9012 twips; then it is put back.
        ASSERT_EQ(steps.size(), 38u);
        for (int k = 1; k <= 19; ++k) {
            SCOPED_TRACE("step " + std::to_string(k));
            const Place& step = steps[k - 1];
            EXPECT_EQ(step.left, 300 + 9500 / 2 - 250 * k);
            EXPECT_EQ(step.top, 400 + 7296 / 2 - 188 * k);
            EXPECT_EQ(step.width, 12 + 500 * (k - 1));
            EXPECT_EQ(step.height, 366 * k);
        }
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
