// What a load may and may not do to the shared database and to the designer's files: a load
// that fails, or keeps no layout of its own, leaves the database as it was; what can't be a
// mission is refused at once; after a failure, Save asks for a name.
#include <sys/stat.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "common/program_version.h"
#include "document/loader_fixture.h"
#include "document/mission_saver.h"
#include "shell/forms/frm_mission.h"
#include "shell/forms/mdi_mission_ed.h"
#include "shell/status_strip.h"

namespace tarvex::testing {
namespace {

namespace fs = std::filesystem;

std::string Report(const std::string& step, const std::string& error) {
    return "While [*** " + step + " ***]\nThe following error occurred.\n" + error;
}

std::string Replaced(std::string text, const std::string& from, const std::string& to) {
    const auto at = text.find(from);
    EXPECT_NE(at, std::string::npos) << from;
    if (at != std::string::npos) text.replace(at, from.size(), to);
    return text;
}

std::string Cut(std::string text, const std::string& from, const std::string& to) {
    const auto a = text.find(from);
    text.erase(a, text.find(to) - a);
    return text;
}

class LoadTrustTest : public LoaderTest {
  protected:
    // Every layout and unit row, so that any change shows.
    std::string Layouts() {
        std::string dump;
        for (const char* sql : {"SELECT ID,LayoutName,UnitTotal,IsDefault,GUType FROM GrndNames "
                                "ORDER BY ID",
                                "SELECT rowid,ID,UnitType,Points,XOffset,YOffset FROM GrndTypes "
                                "ORDER BY rowid"}) {
            Recordset rs = ed.db.theDB.OpenRecordset(sql, kSnapshot);
            for (; !rs.Eof(); rs.MoveNext()) {
                for (int i = 0; i < rs.FieldCount(); ++i)
                    dump += rs.Fields(i).Text() + ",";
                dump += "\n";
            }
        }
        return dump;
    }

    std::string StatusText() {
        const auto& ops = ed.MDIMissionED.Picture1.Operations();
        return ops.empty() ? std::string() : ops.back().text;
    }
};

// A load that keeps no layout of its own leaves no trace in the database, whether it ends in
// a mission or in the report: the record made in advance goes, with any units filed under it.
TEST_F(LoadTrustTest, ALoadThatKeepsNoLayoutChangesNothingInTheDatabase) {
    const std::string sample = SampleText();
    // The layout without a comment line, which the database doesn't know, made known.
    const std::string known =
        Replaced(sample, "id=2060\r\n", "id=2060\r\n; Ground Layout=1,0,0\r\n");
    const std::string folder = (t.folder / "a folder.mis").string();
    fs::create_directories(folder);
    const struct {
        const char* what;
        std::string text;  // empty: the path below as it stands
        std::string path;
        bool fails;
    } cases[] = {
        {"no ground units", Cut(sample, "[unit.3]", "[unit_type.0]"), "", false},
        {"a last layout never closed", Cut(known, "[unit_type.0]", "[waypoint_path.0]"), "", false},
        {"a missing file", "", (t.folder / "absent.mis").string(), true},
        {"a folder", "", folder, true},
        {"no mission at all", "Dear designer,\r\nthis is a letter.\r\n", "", true},
        {"an unknown map", Replaced(known, "map=Map1Bob", "map=Atlantis"), "", true},
        {"an unknown runway after the layouts",
         Replaced(known, "takeoff_runway_id=102", "takeoff_runway_id=999"), "", true},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        const std::string before = Layouts();
        ResetMission(ed);
        t.dialogs.ClearRecord();
        if (c.text.empty()) {
            LoadPath(c.path);
        } else {
            LoadBytes(c.text, "trust.mis");
        }
        EXPECT_EQ(t.dialogs.messages.size(), c.fails ? 1u : 0u) << LastReport();
        EXPECT_EQ(Layouts(), before);
        EXPECT_FALSE(ed.db.theRS.IsOpen());
    }
}

// Layouts the load made and kept stay, as the mission uses them; only the record made in
// advance for a next layout goes.
TEST_F(LoadTrustTest, ALayoutTheLoadMadeStaysAlsoWhenTheLoadFailsLater) {
    const long long before = Count("SELECT Count(*) FROM GrndNames");
    LoadBytes(Replaced(SampleText(), "takeoff_runway_id=102", "takeoff_runway_id=999"),
              "later.mis");
    ASSERT_EQ(t.dialogs.messages.size(), 1u);
    EXPECT_EQ(Count("SELECT Count(*) FROM GrndNames"), before + 1);
    EXPECT_EQ(Count("SELECT Count(*) FROM GrndNames WHERE LayoutName='Unnamed Layout1 in file "
                    "[later]' AND UnitTotal > 0"),
              1);
}

// A quote in the file's name goes into the layout's name as it stands.
TEST_F(LoadTrustTest, AMissionNamedWithAQuoteOpens) {
    LoadBytes(SampleText(), "O'Brien.mis");
    ASSERT_TRUE(t.dialogs.messages.empty()) << LastReport();
    EXPECT_EQ(ed.FrmMission.lstGUAdded.List(1), "02. Unnamed Layout1 in file [O'Brien]");
    EXPECT_EQ(Count("SELECT Count(*) FROM GrndNames WHERE LayoutName="
                    "'Unnamed Layout1 in file [O''Brien]'"),
              1);
}

// What can't be a mission is refused before it is read, with the file and the cause in words.
TEST_F(LoadTrustTest, RefusesWhatCantBeAMissionAtOnce) {
    const fs::path folder = t.folder / "missions.mis";
    fs::create_directories(folder);
    const fs::path pipe = t.folder / "pipe.mis";
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    const fs::path huge = t.folder / "huge.mis";
    std::ofstream(huge, std::ios::binary) << "[mission]\r\n";
    fs::resize_file(huge, 20 * 1024 * 1024);  // sparse: nothing is written
    const fs::path binary = t.folder / "binary.mis";
    std::ofstream(binary, std::ios::binary) << "[mission]\r\nmap=Map1Bob\r\n"
                                            << std::string(3, '\0');
    const fs::path longLine = t.folder / "long.mis";
    std::ofstream(longLine, std::ios::binary) << "[mission]\r\n"
                                              << std::string(1024 * 1024 + 1, 'x') << "\r\n";
    const fs::path letter = t.folder / "letter.mis";
    std::ofstream(letter, std::ios::binary) << "Dear designer\r\n";
    const std::string opening = "Opening Mission File";
    const struct {
        fs::path path;
        std::string step;
        std::string error;
    } cases[] = {
        {folder, opening, folder.string() + " is a folder, not a mission file Error [75]"},
        {pipe, opening, pipe.string() + " is a pipe or a device, not a mission file Error [75]"},
        {"/dev/zero", opening, "/dev/zero is a pipe or a device, not a mission file Error [75]"},
        {huge, opening,
         huge.string() + " is 20.0 MB, larger than any mission file (at most 16.0 MB) Error [75]"},
        {binary, "Loading Summary Data",
         binary.string() + " is not a mission file: line 3 holds binary data Error [75]"},
        {longLine, "Loading Summary Data",
         longLine.string() + " is not a mission file: line 2 is longer than 1.0 MB Error [75]"},
        {letter, opening,
         letter.string() +
             " is not a mission file: it has none of the sections of a mission Error [75]"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.path.string());
        t.dialogs.ClearRecord();
        ResetMission(ed);
        LoadPath(c.path);
        ASSERT_EQ(t.dialogs.messages.size(), 1u);
        EXPECT_EQ(t.dialogs.messages[0].text, Report(c.step, c.error));
    }
}

// After a failed load the half-read mission is a new one: Save asks for a name rather than
// write over the file that failed.
TEST_F(LoadTrustTest, AfterAFailedLoadSaveAsksForAName) {
    const fs::path file = t.folder / "bad.mis";
    const std::string text = Replaced(SampleText(), "map=Map1Bob", "map=Atlantis");
    std::ofstream(file, std::ios::binary) << text;
    ed.MDIMissionED.SetCaption("Tarvex Mission Editor: earlier.mis");
    LoadPath(file);
    ASSERT_EQ(t.dialogs.messages.size(), 1u);
    EXPECT_TRUE(ed.doc.MissionPath.empty());
    EXPECT_EQ(ed.MDIMissionED.Caption(), kProgramTitle);

    ed.FrmMission.txtTitle.SetText("Something");
    t.dialogs.ClearRecord();
    FileSave(ed);  // validation may refuse it or the dialog is asked; the file stays
    std::ifstream in(file, std::ios::binary);
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()),
              text);
}

// The designer is told when the load gave a layout to an airfield or made one anew, since
// the next save then writes it otherwise.
TEST_F(LoadTrustTest, TheStatusStripTellsWhatTheLoadDidToTheLayouts) {
    LoadPath(SampleMission("channel_sweep.mis"));
    ASSERT_TRUE(t.dialogs.messages.empty()) << LastReport();
    const auto& ops = ed.MDIMissionED.Picture1.Operations();
    ASSERT_FALSE(ops.empty());
    EXPECT_EQ(ops.back().pen, kStatusWarning);
    const std::string status = StatusText();
    EXPECT_NE(status.find("New layout 'Unnamed Layout1 in file [channel_sweep]' made from the "
                          "file's units"),
              std::string::npos)
        << status;
    EXPECT_NE(status.find(" km from "), std::string::npos) << status;
    EXPECT_NE(status.find("and is taken by its runway"), std::string::npos) << status;
}

}  // namespace
}  // namespace tarvex::testing
