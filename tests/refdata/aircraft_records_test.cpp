#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "refdata/aircraft_files.h"
#include "shell/forms/frm_aircraft.h"
#include "shell/forms/frm_mission.h"
#include "shell/forms/mdi_mission_ed.h"
#include "support/test_editor.h"

namespace tarvex {
namespace {

namespace fs = std::filesystem;

constexpr const char* kSelect =
    "select [AcID],[ShortName],[LongName],[Family],[Allegiance],[Gun],[Cannon],[Rockets],"
    "[Bombs],[AirforceName],[UnitRole] from [qryAllMovingUnits]";

class AircraftRecordsTest : public ::testing::Test {
  protected:
    AircraftRecordsTest() : ed(t.OpenDatabase()), f(ed.frmAircraft), grid(f.grdDataGrid) {
        ed.options.SimPath = (t.folder / "sim" / "").string();
        ed.MDIMissionED.mnuAddAC.UserClick();
    }

    // An aircraft folder of the simulator with its .air file; no cfg text leaves no cfg.
    std::string AircraftFile(const std::string& name, const char* cfg) {
        const fs::path folder = t.folder / "sim" / "Aircraft" / name;
        fs::create_directories(folder);
        std::ofstream(folder / (name + ".air")) << "air";
        if (cfg) std::ofstream(folder / "aircraft.cfg") << cfg;
        return (folder / (name + ".air")).string();
    }

    long long Count(const std::string& where) {
        Recordset rs =
            ed.db.theDB.OpenRecordset("SELECT Count(*) FROM Aircraft " + where, kSnapshot);
        return rs.Fields(0).Value().Int64();
    }

    testing::TestEditor t;
    Editor& ed;
    frmAircraft& f;
    DataGrid& grid;
};

TEST_F(AircraftRecordsTest, FiltersBuildTheSourceAndAHeadSortsWithinTheFilter) {
    EXPECT_EQ(f.cmbUnitRole.List(3), "All Families");
    EXPECT_EQ(f.cmbAirforce.ListIndex(), 3);
    EXPECT_FALSE(ed.MDIMissionED.mnuCompact.Enabled());
    const std::string s = kSelect;
    struct Step {
        ComboBox* combo;  // null: a click on the head of column `row`
        int row;
        std::string source;
    };
    const Step steps[] = {
        {nullptr, 1, "Select * From qryAllMovingUnits Order By ShortName"},
        {&f.cmbAirforce, 1, s + " where Allegiance=2 Order by Family,ShortName"},
        {&f.cmbUnitRole, 0,
         s + " where Family=1 AND Allegiance=2 Order by Family,Allegiance,ShortName"},
        {nullptr, 2, s + " where Family=1 AND Allegiance=2 Order By LongName"},
        {&f.cmbAirforce, 3, s + " where Family=1 Order by Allegiance,ShortName"},
        {&f.cmbUnitRole, 3, s},
        {nullptr, 0, s + "Order By AcID"},
    };
    for (const Step& step : steps) {
        if (step.combo) {
            step.combo->SetListIndex(step.row);
        } else {
            grid.UserHeadClick(step.row);
        }
        EXPECT_EQ(f.datPrimaryRS.RecordSource(), step.source);
        EXPECT_GT(grid.RowCount(), 0) << step.source;
    }
    EXPECT_EQ(grid.CellText(0, 0), "1");
}

TEST_F(AircraftRecordsTest, ADroppedAirFileBecomesANewAircraftInTheFormationsList) {
    f.cmbAirforce.SetListIndex(1);  // Luftwaffe
    const std::string air = AircraftFile("Ju88A4", "[fltsim.0]\r\nTITLE=Junkers Ju 88 A-4\r\n");
    EXPECT_EQ(f.cmdAdd.RaiseDragOver(DragData{true, {air}}), kDropEffectCopy);
    EXPECT_EQ(f.cmdAdd.RaiseDragOver(DragData{}), kDropEffectNone);
    f.cmdAdd.RaiseDragDrop(DragData{true, {air}});

    ASSERT_TRUE(grid.OnNewRow());
    EXPECT_EQ(grid.Columns(0).Text(), "130");  // from the whole table, whatever the filter
    EXPECT_EQ(grid.Columns(1).Text(), "Ju88A4");
    EXPECT_EQ(grid.Columns(2).Text(), "Junkers Ju 88 A-4");
    EXPECT_EQ(grid.Columns(4).Text(), "1");
    EXPECT_EQ(grid.Columns(6).Text(), "2");
    EXPECT_EQ(grid.Col(), 3);
    f.cmdUpdate.UserClick();
    EXPECT_EQ(Count("WHERE AcID=130 AND ShortName='Ju88A4' AND Allegiance=2"), 1);
    EXPECT_FALSE(grid.OnNewRow());
    EXPECT_TRUE(grid.Columns(0).Locked());

    f.cmdClose.UserClick();
    EXPECT_GE(ed.FrmMission.cmbMovingType.FindRow("Ju88A4"), 0);
    EXPECT_TRUE(ed.MDIMissionED.mnuCompact.Enabled());
}

TEST_F(AircraftRecordsTest, TheFolderAndTitleComeFromTheAirFilesPath) {
    struct Case {
        std::string path;
        std::string folder;
        std::string title;
        bool box;
    };
    const std::string air = AircraftFile("Bf110C", "title=Messerschmitt Bf 110 C\n");
    const std::string bare = AircraftFile("He111", nullptr);
    const std::string untitled = AircraftFile("Do17Z", "sim=Do17Z\n");
    const std::string outside = (t.folder / "Downloads" / "Fw190" / "Fw190.air").string();
    fs::create_directories(t.folder / "Downloads" / "Fw190");
    std::ofstream(t.folder / "Downloads" / "Fw190" / "aircraft.cfg") << "title=Fw 190 A\n";
    const Case cases[] = {
        {air, "Bf110C", "Messerschmitt Bf 110 C", false},
        {bare, "He111", "", true},
        {untitled, "Do17Z", "", false},
        {outside, "Fw190", "Fw 190 A", false},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.path);
        t.dialogs.ClearRecord();
        std::string folder, title;
        SplitAircraftPath(ed, folder, title, c.path, fs::path(c.path).filename().string());
        EXPECT_EQ(folder, c.folder);
        EXPECT_EQ(title, c.title);
        ASSERT_EQ(t.dialogs.messages.size(), c.box ? 1u : 0u);
        if (c.box) {
            EXPECT_EQ(t.dialogs.messages[0].title, " *** Add New Aircraft Error ***");
            EXPECT_EQ(t.dialogs.messages[0].text,
                      "While attempting to obtain the descriptive name from [aircraft.cfg]\n"
                      "The following error occurred.\nFile not found Error [53]");
        }
    }
}

TEST_F(AircraftRecordsTest, ATypedIdMustBeFreeInTheWholeTable) {
    f.cmbAirforce.SetListIndex(1);  // id 4 is an RAF aircraft, hidden by the filter
    struct Case {
        const char* typed;
        std::string kept;
        const char* box;
    };
    const Case cases[] = {
        {"4", "130", "Aircraft ID [4] is not unique.\nPlease find and enter an ID not in use"},
        {"abc", "130", nullptr},
        {"40000", "130", nullptr},
        {"900x", "900", nullptr},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.typed);
        t.dialogs.ClearRecord();
        f.cmdAdd.UserClick();
        grid.UserMoveTo(grid.Row(), 0);
        grid.UserEditCell(c.typed);
        EXPECT_EQ(grid.Columns(0).Text(), c.kept);
        if (c.box) {
            ASSERT_EQ(t.dialogs.messages.size(), 1u);
            EXPECT_EQ(t.dialogs.messages[0].text, c.box);
            EXPECT_EQ(t.dialogs.messages[0].title, "Aircraft ID not Unique");
        } else {
            EXPECT_TRUE(t.dialogs.messages.empty());
        }
        grid.UserKeyDown(kKeyEscape, 0);
    }

    // Nothing goes in before the id.
    grid.UserMoveTo(grid.RowCount(), 2);
    EXPECT_EQ(t.dialogs.LastMessage(),
              "You must enter an unique ID first before entering any data");
    EXPECT_EQ(grid.Col(), 0);
}

TEST_F(AircraftRecordsTest, TheFormationsListIsFilledAgainOnlyAfterAChange) {
    ComboBox& aircraft = ed.FrmMission.cmbMovingType;
    aircraft.Clear();
    f.cmdClose.UserClick();
    EXPECT_EQ(aircraft.ListCount(), 0);

    ed.MDIMissionED.mnuAddAC.UserClick();
    grid.UserSelectRow(0, false);
    EXPECT_TRUE(f.cmdDelete.Enabled());
    t.dialogs.QueueMsgAnswer(MsgAnswer::No);
    f.cmdDelete.UserClick();
    EXPECT_EQ(t.dialogs.LastMessage(), "Are you sure you want to delete this aircraft");
    EXPECT_EQ(Count("WHERE AcID=1"), 1);
    f.cmdDelete.UserClick();
    EXPECT_EQ(Count("WHERE AcID=1"), 0);
    EXPECT_FALSE(f.cmdDelete.Enabled());
    f.cmdClose.UserClick();
    EXPECT_EQ(aircraft.ListCount(), Count(""));
}

TEST_F(AircraftRecordsTest, ARowTheDatabaseRefusesStaysAsTyped) {
    grid.UserMoveTo(0, 4);
    grid.UserEditCell("9");  // no family has that id
    f.cmdUpdate.UserClick();
    EXPECT_EQ(t.dialogs.messages.back().title, "Aircraft Record Update Error");
    EXPECT_EQ(t.dialogs.messages.back().text.rfind(
                  "Unable to update Aircraft Record\nError Message [", 0),
              0u);
    EXPECT_EQ(grid.Columns(4).Text(), "9");
    EXPECT_EQ(Count("WHERE AcID=1 AND Family=1"), 1);
}

}  // namespace
}  // namespace tarvex
