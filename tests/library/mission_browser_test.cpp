#include <gtest/gtest.h>

#include "library_fixture.h"
#include "shell/forms/frm_mission.h"
#include "shell/forms/frm_tbl_missions.h"
#include "shell/forms/mdi_mission_ed.h"

namespace tarvex::testing {
namespace {

class BrowserTest : public LibraryTest {
  protected:
    // Scans what was written, which opens the browser.
    frmtblMissions& Browse() {
        ed().MDIMissionED.mnuMissDetail.UserClick();
        return ed().frmtblMissions;
    }
    std::vector<std::string> Titles() {
        const DataGrid& grid = ed().frmtblMissions.grdDataGrid;
        std::vector<std::string> titles;
        for (int row = 0; row < grid.RowCount(); ++row)
            titles.push_back(grid.CellText(row, 1));
        return titles;
    }
    void SelectTitle(const std::string& title) {
        const auto titles = Titles();
        const auto at = std::find(titles.begin(), titles.end(), title) - titles.begin();
        ed().frmtblMissions.grdDataGrid.UserMoveTo(static_cast<int>(at), 1);
    }
};

TEST_F(BrowserTest, TheFilterOfTheLastRunShowsItsMissionsByTitleAndIsKept) {
    Write("1.mis", Mission("Bravo", 2));
    Write("2.mis", Mission("Alpha", 2));
    Write("3.mis", Mission("Charlie", 1));
    Write("4.mis", Mission("Delta", 7));
    ed().options.ShowAllegiance = 2;
    frmtblMissions& f = Browse();
    auto& menu = ed().MDIMissionED;

    EXPECT_TRUE(f.optAllegiance(2).Value());
    EXPECT_EQ(f.datPrimaryRS.RecordSource(),
              "select [MissionID],[Title],[Type],[Summary],[Objective],[Date],[Time],[Reqrd],"
              "[Clouds],[Wind],[Visibility],[Map],[Allegiance],[Filename] from [tblMissions] "
              "where allegiance=2 order by [Title]");
    EXPECT_EQ(Titles(), (std::vector<std::string>{"Alpha", "Bravo"}));
    EXPECT_EQ(f.lblAlly.Caption(), "Luftwaffe");
    EXPECT_EQ(f.lblTime.Caption(), "10:30");
    EXPECT_EQ(f.lblClouds.Caption(), ed().FrmMission.cmbClouds.List(1));
    EXPECT_FALSE(menu.mnuCompact.Enabled());
    EXPECT_FALSE(menu.mnuMissDetail.Enabled());

    f.optAllegiance(0).UserClick();
    EXPECT_EQ(ed().options.ShowAllegiance, 0);
    EXPECT_EQ(Titles(), (std::vector<std::string>{"Alpha", "Bravo", "Charlie", "Delta"}));
    // An allegiance outside 1 to 3 leaves the label as it was.
    SelectTitle("Delta");
    EXPECT_EQ(f.lblAlly.Caption(), "Luftwaffe");

    f.cmdClose.UserClick();
    EXPECT_TRUE(menu.mnuCompact.Enabled());
    EXPECT_TRUE(menu.mnuMissDetail.Enabled());
    // Opened again on the option still set, the grid is filled all the same.
    menu.mnuMissions.UserClick();
    EXPECT_EQ(Titles().size(), 4u);
}

TEST_F(BrowserTest, DeletingNeverRetargetsTheOpenMissionUnlessItsOwnFileGoes) {
    struct Case {
        const char* row;
        MsgAnswer answer;
        bool gone;
        std::string pathAfter;
    };
    const std::string open = (Missions() / "a.mis").string();
    const Case cases[] = {
        {"Bravo", MsgAnswer::No, false, open},
        {"Bravo", MsgAnswer::Yes, true, open},
        {"Alpha", MsgAnswer::Yes, true, ""},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(std::string(c.row) + (c.answer == MsgAnswer::Yes ? " yes" : " no"));
        Write("a.mis", Mission("Alpha", 1));
        const auto file = Write("b.mis", Mission("Bravo", 1));
        const auto target = c.row == std::string("Alpha") ? Missions() / "a.mis" : file;
        ed().doc.MissionPath = open;
        ed().doc.MissionFile = "a.mis";
        Browse();
        SelectTitle(c.row);
        dialogs().QueueMsgAnswer(c.answer);
        ed().frmtblMissions.btnDelete.UserClick();

        EXPECT_EQ(dialogs().messages.back().text,
                  "You are about to delete the following:\n\nFile: " + target.filename().string() +
                      "\nTitle: " + c.row + "\n\nAre you sure?");
        EXPECT_EQ(std::filesystem::exists(target), !c.gone);
        EXPECT_EQ(Count(), c.gone ? 1 : 2);
        EXPECT_EQ(Titles().size(), c.gone ? 1u : 2u);
        EXPECT_EQ(ed().doc.MissionPath, c.pathAfter);
        EXPECT_EQ(ed().doc.MissionFile, "a.mis");
        ed().frmtblMissions.UnloadForm();
    }
}

TEST_F(BrowserTest, AMissionGoneSinceTheScanCanNeitherBeDeletedNorOpened) {
    const auto file = Write("a.mis", Mission("Alpha", 1));
    Browse();
    std::filesystem::remove(file);
    dialogs().ClearRecord();
    ed().frmtblMissions.btnDelete.UserClick();
    EXPECT_EQ(dialogs().messages.front().text,
              "You are about to delete the following:\n\nFile: \nTitle: Alpha\n\nAre you sure?");
    EXPECT_EQ(dialogs().messages.back().title, "Delete Mission File");
    EXPECT_NE(dialogs().messages.back().text.find("File not found Error [53]"), std::string::npos);
    EXPECT_EQ(Count(), 1);

    ed().frmtblMissions.cmdLoad.UserClick();
    EXPECT_NE(dialogs().messages.back().title.find("*** Load Mission File Error ***"),
              std::string::npos);
    EXPECT_FALSE(ed().frmtblMissions.Visible());
}

TEST_F(BrowserTest, ADoubleClickOpensTheMissionAndClosesTheBrowser) {
    const auto sample = CopySample("Amsterdam_Escort.mis");
    Browse().grdDataGrid.RaiseDblClick();
    EXPECT_EQ(ed().doc.MissionPath, sample.string());
    EXPECT_EQ(ed().doc.MissionFile, "Amsterdam_Escort.mis");
    EXPECT_EQ(ed().FrmMission.txtTitle.Text(), "Fortresses to Amsterdam");
    EXPECT_FALSE(ed().frmtblMissions.Visible());
    EXPECT_TRUE(ed().MDIMissionED.mnuCompact.Enabled());
}

}  // namespace
}  // namespace tarvex::testing
