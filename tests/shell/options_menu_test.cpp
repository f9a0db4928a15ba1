// The Options menu: list size, units and speeds, sound and volume, the two switches.
#include <gtest/gtest.h>

#include <vector>

#include "shell/editor.h"
#include "shell/forms/frm_mission.h"
#include "shell/forms/mdi_mission_ed.h"
#include "shell/measurement.h"
#include "shell/options_menu.h"
#include "shell/sounds.h"
#include "support/test_editor.h"

namespace tarvex {
namespace {

using testing::TestEditor;

struct ListSizeState {
    float size;
    bool decEnabled;
    bool incEnabled;
    bool normChecked;
};

void ExpectState(Editor& ed, const ListSizeState& want, const char* step) {
    const auto& m = ed.MDIMissionED;
    EXPECT_EQ(ed.options.ACListSize, want.size) << step;
    EXPECT_EQ(m.mnuACListDec.Enabled(), want.decEnabled) << step;
    EXPECT_EQ(m.mnuACListInc.Enabled(), want.incEnabled) << step;
    EXPECT_EQ(m.mnuACListNorm.Checked(), want.normChecked) << step;
}

TEST(OptionsMenuTest, StoredListSizeSetsTheEntriesAtStart) {
    for (const ListSizeState& c : {ListSizeState{0, false, true, true},
                                   {1, false, true, true},
                                   {1.75f, true, true, false},
                                   {2.5f, true, false, false},
                                   {2.75f, false, true, true}}) {
        TestEditor t;
        t->options.ACListSize = c.size;
        ShowACListSize(*t);
        ExpectState(*t, c, "start");
    }
}

TEST(OptionsMenuTest, ListSizeStepsUpToTheLargestAndBackToNormal) {
    TestEditor t;
    Editor& ed = *t;
    auto& m = ed.MDIMissionED;
    ed.options.ACListSize = 0;
    ShowACListSize(ed);
    m.mnuACListInc.UserClick();
    ExpectState(ed, {1.25f, true, true, false}, "from normal");
    for (int i = 0; i < 5; ++i)
        m.mnuACListInc.UserClick();
    ExpectState(ed, {2.5f, true, false, false}, "largest");
    m.mnuACListInc.UserClick();  // disabled: dropped
    ExpectState(ed, {2.5f, true, false, false}, "beyond the largest");
    m.mnuACListDec.UserClick();
    ExpectState(ed, {2.25f, true, true, false}, "one down");
    m.mnuACListNorm.UserClick();
    ExpectState(ed, {0, false, true, true}, "normal");

    ed.options.ACListSize = 1;
    m.mnuACListDec.SetEnabled(true);
    m.mnuACListDec.UserClick();
    ExpectState(ed, {0, false, true, true}, "0.75 falls to normal");
}

TEST(OptionsMenuTest, VolumeStepsInTensBetweenSilentAndFull) {
    TestEditor t;
    Editor& ed = *t;
    auto& m = ed.MDIMissionED;
    SetVolume(ed, 90);
    EXPECT_EQ(t.sound.volume, -500);
    m.mnuIncVol.UserClick();
    EXPECT_EQ(t.sound.volume, 0);
    EXPECT_FALSE(m.mnuIncVol.Enabled());
    m.mnuDecVol.UserClick();
    EXPECT_EQ(t.sound.volume, -500);
    EXPECT_TRUE(m.mnuIncVol.Enabled());

    std::vector<int> volumes;
    for (int i = 0; i < 9; ++i) {
        m.mnuDecVol.UserClick();
        volumes.push_back(t.sound.volume);
    }
    EXPECT_EQ(volumes,
              (std::vector<int>{-1000, -1500, -2000, -2500, -3000, -3500, -4000, -4500, -5000}));
    EXPECT_FALSE(m.mnuDecVol.Enabled());
    EXPECT_EQ(EngineVolumeToPercent(-5000), 0);
}

TEST(OptionsMenuTest, SoundOffSilencesPlaysAndTheEntryNamesTheNextClick) {
    TestEditor t;
    Editor& ed = *t;
    auto& entry = ed.MDIMissionED.mnuSndOn;
    PlaySound(ed, 7);
    entry.UserClick();
    EXPECT_FALSE(ed.options.SoundOn);
    EXPECT_EQ(entry.Caption(), "&Enabled");
    PlaySound(ed, 8);
    entry.UserClick();
    EXPECT_EQ(entry.Caption(), "Dis&abled");
    EXPECT_EQ(t.sound.plays, std::vector<int>{7});
}

TEST(OptionsMenuTest, UnitToggleConvertsSpeedsAndLabels) {
    TestEditor t;
    Editor& ed = *t;
    auto& frm = ed.FrmMission;
    ed.doc.WPSpeed(0, 1) = 400;
    ed.doc.WPSpeed(3, 16) = 400;
    ed.doc.WPSpeed(0, 2) = 0;
    frm.lstPoints.AddItem("1");
    frm.lstPoints.SetListIndex(0);

    ed.MDIMissionED.mnuDist.UserClick();
    EXPECT_FALSE(ed.options.Measurement);
    EXPECT_EQ(ed.MDIMissionED.mnuDist.Caption(), "Imperial &Distance");
    EXPECT_EQ(frm.lblSpeed.Caption(), "Kts.");
    EXPECT_EQ(ed.projection.DistanceUnit, "Mi.");
    EXPECT_EQ(ed.doc.WPSpeed(0, 1), 216);
    EXPECT_EQ(ed.doc.WPSpeed(3, 16), 216);
    EXPECT_EQ(ed.doc.WPSpeed(0, 2), 0);
    EXPECT_EQ(frm.txtSpeed.Text(), "216");

    ed.MDIMissionED.mnuDist.UserClick();
    EXPECT_EQ(ed.MDIMissionED.mnuDist.Caption(), "Metric &Distance");
    EXPECT_EQ(frm.lblSpeed.Caption(), "Km.");
    EXPECT_EQ(ed.projection.DistanceUnit, "Km.");
    EXPECT_EQ(ed.doc.WPSpeed(0, 1), 400);
    EXPECT_EQ(ed.doc.WPSpeed(0, 2), 0);
    EXPECT_TRUE(ed.MDIMissionED.mnuDist.Checked());
}

}  // namespace
}  // namespace tarvex
