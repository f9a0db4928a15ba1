// frmNewRecord: the generic names and their numbers, the limits with their boxes, Replace,
// and the row selected when the window closes.
#include "formations_fixture.h"

namespace tarvex::testing {
namespace {

TEST_F(FormationsTest, GenericGroupNamesStopAtATypedName) {
    frm.btnGroupName.UserClick();
    EXPECT_TRUE(dlg.Visible());
    EXPECT_TRUE(dlg.TopMost());
    EXPECT_EQ(dlg.Caption(), "Enter Group Name");
    EXPECT_FALSE(frm.btnGroupName.Enabled());
    EXPECT_EQ(dlg.txtNewRecord.Text(), "Group1");
    dlg.btnAddRecord.UserClick();
    EXPECT_EQ(dlg.txtNewRecord.Text(), "Group2");
    EXPECT_FALSE(doc.PilotsAssigned);
    // A click in the box: what is typed stays, and Add adds it again.
    dlg.txtNewRecord.UserClick();
    dlg.txtNewRecord.SetText("Escort");
    dlg.btnAddRecord.UserClick();
    dlg.btnAddRecord.UserClick();
    ASSERT_EQ(frm.lstGroupName.ListCount(), 3);
    EXPECT_EQ(frm.lstGroupName.List(2), "Escort");
    EXPECT_EQ(dlg.txtNewRecord.Text(), "Escort");
    // Replace renames the current row; closing selects the first row this opening added.
    frm.lstGroupName.SetListIndex(1);
    EXPECT_EQ(dlg.txtNewRecord.Text(), "Escort");
    dlg.txtNewRecord.SetText("Top Cover");
    EXPECT_TRUE(dlg.btnReplace.Enabled());
    dlg.btnReplace.UserClick();
    EXPECT_EQ(frm.lstGroupName.List(1), "Top Cover");
    dlg.btnCancel.UserClick();
    EXPECT_FALSE(dlg.Loaded());
    EXPECT_EQ(frm.lstGroupName.ListIndex(), 0);
    EXPECT_TRUE(frm.btnGroupName.Enabled());
    EXPECT_TRUE(frm.btnPilotName.Enabled());
}

TEST_F(FormationsTest, PilotNamesComeFromTheAircraftOffered) {
    AddGroups(1);
    frm.optAllegiance(1).UserClick();  // Luftwaffe
    frm.btnPilotName.UserClick();
    EXPECT_EQ(dlg.Caption(), "Enter Pilot Name");
    EXPECT_EQ(dlg.txtNewRecord.Text(), "Pilot_1");
    // Only flyable Luftwaffe aircraft, by name.
    ASSERT_GT(dlg.cmbPilotName.ListCount(), 0);
    EXPECT_EQ(dlg.cmbPilotName.List(0), "Bf109E3");
    const int row = dlg.cmbPilotName.FindRow("Ju88A1");
    ASSERT_GE(row, 0);
    dlg.cmbPilotName.UserChoose(row);
    EXPECT_EQ(dlg.txtNewRecord.Text(), "Ju88A1_1");
    EXPECT_EQ(frm.cmbMovingType.Text(), "Ju88A1");
    dlg.btnAddRecord.UserClick();
    EXPECT_EQ(frm.lstPilotName.List(0), "Ju88A1_1");
    EXPECT_EQ(doc.PilotAC(0, 0), 63);
    EXPECT_EQ(dlg.txtNewRecord.Text(), "Ju88A1_2");
    EXPECT_TRUE(doc.PilotsAssigned);
    dlg.btnCancel.UserClick();
}

TEST_F(FormationsTest, AddStopsAtTheLimitWithItsBox) {
    const struct {
        int pattern;
        int pilots;
        const char* text;
    } cases[] = {
        {5, 6, "Maximum Number of Allowed Pilots has been Reached for [Ketten] Pattern."},
        {4, 9, "Maximum Number of Allowed Pilots has been Reached for [German Bomber V] Pattern."},
    };
    AddGroups(1);
    for (const auto& c : cases) {
        while (frm.lstPilotName.ListCount() > 0)
            frm.btnDeletePilot.UserClick();
        frm.cmbFormPattern.SetListIndex(c.pattern);
        t.dialogs.ClearRecord();
        frm.btnPilotName.UserClick();
        for (int i = 0; i <= c.pilots; ++i)
            dlg.btnAddRecord.UserClick();
        EXPECT_EQ(frm.lstPilotName.ListCount(), c.pilots);
        ASSERT_EQ(t.dialogs.messages.size(), 1u);
        EXPECT_EQ(t.dialogs.messages[0].text, c.text);
        EXPECT_EQ(t.dialogs.messages[0].title, "Maximum Reached");
        EXPECT_FALSE(dlg.Loaded());
    }

    AddGroups(15);
    ASSERT_EQ(frm.lstGroupName.ListCount(), 16);
    t.dialogs.ClearRecord();
    frm.btnGroupName.UserClick();
    dlg.btnAddRecord.UserClick();
    EXPECT_EQ(frm.lstGroupName.ListCount(), 16);
    EXPECT_EQ(t.dialogs.LastMessage(), "Maximum Number of Allowed Groups has been Reached.");
    EXPECT_FALSE(dlg.Loaded());
}

TEST_F(FormationsTest, EditModeProposesTheRowItself) {
    AddGroups(2);
    SelectGroup(1);
    frm.lstGroupName.RaiseDblClick();
    EXPECT_EQ(dlg.txtNewRecord.Text(), "Group2");
    EXPECT_FALSE(dlg.btnReplace.Enabled());
    // The window stays usable while other rows are clicked.
    SelectGroup(0);
    EXPECT_EQ(dlg.txtNewRecord.Text(), "Group1");
    dlg.btnCancel.UserClick();
}

}  // namespace
}  // namespace tarvex::testing
