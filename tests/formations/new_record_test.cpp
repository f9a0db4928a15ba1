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

// The pilots' limit and its box are walked through in formations_to_the_limits.scn.
TEST_F(FormationsTest, AddStopsAtSixteenGroupsWithItsBox) {
    AddGroups(16);
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
