#include <gtest/gtest.h>

#include "library/mission_summary_scan.h"
#include "library_fixture.h"
#include "shell/forms/frm_msg_screen.h"
#include "shell/forms/frm_tbl_missions.h"
#include "shell/forms/mdi_mission_ed.h"

namespace tarvex::testing {
namespace {

using ScanTest = LibraryTest;

TEST_F(ScanTest, AFileWithAnUnknownMapEndsTheScanKeepingTheRowsBefore) {
    Write("a.mis", Mission("Alpha", 1));
    Write("b.mis", Mission("Bravo", 1, "Nowhere"));
    Write("c.mis", Mission("Charlie", 1));
    EXPECT_FALSE(LoadMissionSummaries(ed()));

    const MessageBoxRequest& box = dialogs().messages.back();
    EXPECT_EQ(box.text,
              "An error occurred trying to load Mission Summaries from files.\n"
              "[No current record.]\nLast File loaded [b.mis]");
    EXPECT_EQ(box.title, "Mission Summary Load Error");
    EXPECT_EQ(box.icon, MsgIcon::Exclamation);
    EXPECT_EQ(Count(), 1);
    EXPECT_FALSE(ed().db.SummariesLoaded);
    EXPECT_FALSE(ed().frmtblMissions.Visible());
    EXPECT_FALSE(ed().frmMsgScreen.Visible());
    EXPECT_EQ(ed().MDIMissionED.MousePointer(), 0);
}

TEST_F(ScanTest, TheQuestionSaysWhetherSummariesExistAndNoChangesNothing) {
    Write("a.mis", Mission("Alpha", 1));
    auto& menu = ed().MDIMissionED;
    dialogs().QueueMsgAnswer(MsgAnswer::No);
    menu.mnuMissDetail.UserClick();
    EXPECT_EQ(dialogs().messages.back().title, "Load Mission Summaries?");
    EXPECT_EQ(Count(), 0);
    EXPECT_FALSE(menu.mnuMissions.Enabled());

    menu.mnuMissDetail.UserClick();
    EXPECT_EQ(Count(), 1);
    EXPECT_TRUE(menu.mnuMissions.Enabled());
    EXPECT_TRUE(ed().frmtblMissions.Visible());
    ed().frmtblMissions.UnloadForm();

    // An emptied folder empties the table, and the browser opens all the same.
    std::filesystem::remove(Missions() / "a.mis");
    EXPECT_TRUE(LoadMissionSummaries(ed()));
    EXPECT_EQ(dialogs().messages.back().text,
              "Mission Summary Data has already been loaded.\nDo you want to reload it?");
    EXPECT_EQ(Count(), 0);
    EXPECT_TRUE(ed().db.SummariesLoaded);
    EXPECT_TRUE(ed().frmtblMissions.Visible());
}

TEST_F(ScanTest, ASampleMissionFillsItsRowAndAFileThatIsNoMissionOnlyItsName) {
    const auto sample = CopySample("Amsterdam_Escort.mis");
    Write("junk.MIS", std::string("\x89PNG\r\n\x1a\n\0\0", 10));
    Write("notes.txt", "map=Nowhere\r\n");
    std::string last;
    EXPECT_EQ(ScanMissionFolder(ed(), Missions().string(), last), 2);

    Recordset rs = ed().db.theDB.OpenRecordset(
        "SELECT Title,[Date],[Time],Map,Allegiance,Reqrd,Filename FROM tblMissions "
        "ORDER BY MissionID",
        kSnapshot);
    EXPECT_EQ(rs.Fields(0).Text(), "Fortresses to Amsterdam");
    EXPECT_EQ(rs.Fields(1).Text(), "07/26/1943");
    EXPECT_EQ(rs.Fields(2).Text(), "09:30");
    EXPECT_EQ(rs.Fields(3).Long(), 8);
    EXPECT_EQ(rs.Fields(4).Long(), 3);
    EXPECT_EQ(rs.Fields(5).Long(), 75);
    EXPECT_EQ(rs.Fields(6).Text(), sample.string());
    rs.MoveNext();
    EXPECT_TRUE(rs.Fields(0).IsNull());
    EXPECT_TRUE(rs.Fields(3).IsNull());
    EXPECT_EQ(rs.Fields(6).Text(), (Missions() / "junk.MIS").string());
}

}  // namespace
}  // namespace tarvex::testing
