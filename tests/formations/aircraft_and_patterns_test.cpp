// The aircraft filter, the aircraft given to pilots, Auto Update with its blink, and the
// pattern limit with its refusal.
#include "formations_fixture.h"

namespace tarvex::testing {
namespace {

TEST_F(FormationsTest, FilterBuildsOneOfFourQueries) {
    const struct {
        int allegiance, family;
        const char* query;
        const char* first;
    } cases[] = {
        {3, 3, "SELECT ShortName,ACId FROM Aircraft", "BeaufighterMkIF"},
        {1, 3, "SELECT ShortName,ACId FROM Aircraft WHERE Allegiance=2", "Bf109E3"},
        {3, 1, "SELECT ShortName,ACId FROM Aircraft WHERE Family=2", "AnsonMkI"},
        {1, 1, "SELECT ShortName,ACId FROM Aircraft WHERE Allegiance=2 And Family=2", "Do17Z2"},
    };
    for (const auto& c : cases) {
        frm.OptFamily(c.family).UserClick();
        frm.optAllegiance(c.allegiance).UserClick();
        EXPECT_EQ(ed.ACQuery, c.query);
        ASSERT_GT(frm.cmbMovingType.ListCount(), 0);
        EXPECT_EQ(frm.cmbMovingType.List(0), c.first) << c.query;
    }
}

TEST_F(FormationsTest, AFilterThatHidesThePilotsAircraftKeepsIt) {
    AddGroups(1);
    AddPilots({"Red 1"});
    const std::int16_t ac = doc.PilotAC(0, 0);
    frm.optAllegiance(1).UserClick();
    EXPECT_EQ(doc.PilotAC(0, 0), ac);
    EXPECT_EQ(frm.cmbMovingType.ListIndex(), -1);
    EXPECT_EQ(Status(), "The AC for this pilot has been filtered from the Aircraft ComboBox. ");
    EXPECT_EQ(StatusColour(), 255);
}

TEST_F(FormationsTest, OnlyTheDesignersPickGivesTheAircraft) {
    AddGroups(1);
    AddPilots({"A", "B", "C"});
    SelectPilots({0, 1});
    const int ju88 = frm.cmbMovingType.FindRow("Ju88A1");
    frm.cmbMovingType.SetListIndex(ju88);
    EXPECT_NE(doc.PilotAC(0, 0), 63);
    EXPECT_EQ(frm.lblBombs.Caption(), "1800");
    EXPECT_EQ(Status(), "Luftwaffe Bomber");
    frm.cmbMovingType.UserChoose(ju88);
    EXPECT_EQ(doc.PilotAC(0, 0), 63);
    EXPECT_EQ(doc.PilotAC(0, 1), 63);
    EXPECT_NE(doc.PilotAC(0, 2), 63);
    // Pilots named after the aircraft: all of the group's, while only the selected fly it.
    frm.chkPilotIsAC.SetValue(kChecked);
    frm.chkPilotIsAC.RaiseMouseUp(kLeftButton, 0, 0, 0);
    SelectPilots({2});
    frm.cmbMovingType.UserChoose(frm.cmbMovingType.FindRow("He111H2"));
    for (int p = 0; p < 3; ++p)
        EXPECT_EQ(doc.PilotName(0, p), "He111H2") << p;
    EXPECT_EQ(doc.PilotAC(0, 0), 63);
    EXPECT_EQ(doc.PilotAC(0, 2), 60);
}

TEST_F(FormationsTest, AutoUpdateBlinksOnlyWhenTheDirectiveChanges) {
    ed.options.AutoUpdate = true;
    AddGroups(1);
    AddPilots({"A"});
    const struct {
        const char* aircraft;
        int directive;
        bool blinks;
    } cases[] = {
        {"He111H2", 4, true},
        {"Ju88A1", 4, false},
        {"Bf109E4", 1, true},
        {"BedfordOY", 1, false},  // a family 3 unit leaves the directive alone
    };
    for (const auto& c : cases) {
        frm.cmbMovingType.UserChoose(frm.cmbMovingType.FindRow(c.aircraft));
        EXPECT_EQ(frm.cmbDirective.ListIndex(), c.directive) << c.aircraft;
        EXPECT_EQ(doc.GrpDirective(0), c.directive) << c.aircraft;
        EXPECT_EQ(frm.tmrSetColor.Running(), c.blinks) << c.aircraft;
        std::vector<Colour> colours;
        while (frm.tmrSetColor.Fire())
            colours.push_back(frm.cmbDirective.BackColor());
        if (!c.blinks) continue;
        ASSERT_EQ(colours.size(), 8u);
        EXPECT_EQ(colours[0], 255);
        EXPECT_EQ(colours[7], Rgb(224, 224, 224));
    }
}

// The second group's pilot flies the Ju 88 that the first group's pilot shows: the directive
// follows when the group is selected again, though the aircraft combo doesn't change.
TEST_F(FormationsTest, AutoUpdateFollowsAPilotWhoseAircraftIsAlreadyShown) {
    ed.options.AutoUpdate = true;
    AddGroups(2);
    SelectGroup(0);
    AddPilots({"A"});
    frm.cmbMovingType.UserChoose(frm.cmbMovingType.FindRow("Ju88A1"));
    SelectGroup(1);
    AddPilots({"B"});
    ASSERT_EQ(doc.PilotAC(1, 0), 63);
    SelectGroup(0);
    while (frm.tmrSetColor.Fire()) {
    }
    SelectGroup(1);
    EXPECT_EQ(frm.cmbDirective.ListIndex(), 4);
    EXPECT_EQ(doc.GrpDirective(1), 4);
    EXPECT_TRUE(frm.tmrSetColor.Running());
}

TEST_F(FormationsTest, APatternTooSmallForTheGroupIsRefused) {
    AddGroups(2);
    SelectGroup(0);
    frm.btnPilotName.UserClick();
    for (int i = 0; i < 9; ++i)
        dlg.btnAddRecord.UserClick();
    dlg.btnCancel.UserClick();
    t.dialogs.ClearRecord();

    frm.cmbFormPattern.SetListIndex(5);  // Ketten: 6
    ASSERT_EQ(t.dialogs.messages.size(), 1u);
    EXPECT_EQ(t.dialogs.messages[0].title, "*** Maximum Exceeded ***");
    EXPECT_EQ(t.dialogs.messages[0].text,
              "WARNING: Only 6 Pilots may be assigned to [Ketten] Pattern.\n"
              "The Formation Pattern Setting will be reset to [Finger Four]. Delete 3 Pilots and "
              "try again.");
    EXPECT_EQ(frm.cmbFormPattern.ListIndex(), 0);
    EXPECT_EQ(doc.GrpPattern(0), 0);
    EXPECT_EQ(doc.PatternMaxPilots, 12);

    // Exactly full: no word. Room left: red for two seconds, then the normal colour.
    ed.MDIMissionED.Picture1.Cls();
    frm.cmbFormPattern.SetListIndex(4);  // German Bomber V: 9
    EXPECT_EQ(Status(), "");
    frm.cmbFormPattern.SetListIndex(3);  // B-17 Compact Formation: 18
    const std::string text =
        "Formation Pattern [B-17 Compact Formation] can contain a maximum of "
        "[18] Pilots.";
    EXPECT_EQ(Status(), text);
    EXPECT_EQ(StatusColour(), 255);
    EXPECT_EQ(frm.tmrSetColor.Interval(), 2000);
    frm.tmrSetColor.Fire();
    EXPECT_EQ(Status(), text);
    EXPECT_NE(StatusColour(), 255);
    EXPECT_FALSE(frm.tmrSetColor.Running());
    EXPECT_EQ(frm.tmrSetColor.Interval(), 100);

    // Another group brings its own limit silently; a refusal of Add then names its pattern.
    SelectGroup(1);
    EXPECT_EQ(doc.PatternMaxPilots, 12);
    EXPECT_EQ(frm.cmbFormPattern.Text(), "Finger Four");
}

TEST_F(FormationsTest, AGroupLoadedOverItsLimitSaysSoAndKeepsItsPilots) {
    AddGroups(1);
    frm.cmbFormPattern.SetListIndex(5);  // Ketten: 6
    for (int p = 0; p < 8; ++p)
        doc.PilotName(0, p) = "P" + std::to_string(p);
    AddGroups(1);
    SelectGroup(0);
    EXPECT_EQ(frm.lstPilotName.ListCount(), 8);
    EXPECT_EQ(Status(), "Formation Pattern [Ketten] can contain a maximum of [6] Pilots.");
    EXPECT_EQ(StatusColour(), 255);
}

}  // namespace
}  // namespace tarvex::testing
