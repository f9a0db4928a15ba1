#include "refdata/reference_database.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <vector>

#include "common/item_list.h"
#include "platform/scripted_platform.h"
#include "support/reference_folder.h"

namespace tarvex {
namespace {

namespace fs = std::filesystem;

const char* const kLocateTitle = "Unable to locate <Tarvex Missions.mdb>";

class RowList : public ItemList {
  public:
    void Clear() override { rows.clear(); }
    void AddItem(const std::string& text) override { rows.push_back({text, 0}); }
    int ListCount() const override { return static_cast<int>(rows.size()); }
    std::int32_t ItemData(int index) const override { return rows.at(index).second; }
    void SetItemData(int index, std::int32_t data) override { rows.at(index).second = data; }
    std::vector<std::pair<std::string, std::int32_t>> rows;
};

class ReferenceDatabaseTest : public testing::ReferenceFolderTest {
  protected:
    ReferenceDatabase ref;
    ScriptedDialogs dialogs;
};

TEST_F(ReferenceDatabaseTest, OpensTheDatabaseWithoutAsking) {
    ref.DBPath = dbPath;
    EXPECT_TRUE(ref.OpenReferenceDatabase(dialogs));
    EXPECT_TRUE(ref.theDB.IsOpen());
    EXPECT_TRUE(dialogs.messages.empty());
}

// A missing file leads to the locate dialog; whatever .mdb the user picks, the folder's
// "Tarvex Missions.mdb" is opened. Without a choice the program ends.
TEST_F(ReferenceDatabaseTest, LocatesTheFolderWhenTheFileIsMissing) {
    const fs::path chosen = folder / "Anything.mdb";
    std::ofstream(chosen) << "not a database";
    const struct {
        std::vector<MsgAnswer> answers;
        std::vector<FileDialogResult> choices;
        bool goesOn;
        size_t dialogsShown;
    } cases[] = {
        {{MsgAnswer::Yes}, {ScriptedDialogs::Chosen(chosen.string())}, true, 1},
        {{MsgAnswer::No}, {}, false, 0},
        {{MsgAnswer::Yes}, {FileDialogResult{}}, false, 1},
        // The chosen name isn't in the path it came with.
        {{MsgAnswer::Yes}, {{false, chosen.string(), "Other.mdb"}}, false, 1},
    };
    for (const auto& c : cases) {
        ReferenceDatabase ref;
        ScriptedDialogs dialogs;
        for (MsgAnswer answer : c.answers)
            dialogs.QueueMsgAnswer(answer);
        for (const auto& choice : c.choices)
            dialogs.openAnswers.push_back(choice);
        ref.DBPath = (folder / "missing" / "Tarvex Missions.mdb").string();

        EXPECT_EQ(ref.OpenReferenceDatabase(dialogs), c.goesOn);
        ASSERT_EQ(dialogs.messages.size(), 1u);
        EXPECT_EQ(dialogs.messages[0].title, kLocateTitle);
        EXPECT_EQ(dialogs.messages[0].text,
                  std::string(kLocateTitle) + "\nDo you want to try and locate it yourself?");
        EXPECT_EQ(dialogs.messages[0].buttons, MsgButtons::YesNo);
        ASSERT_EQ(dialogs.opens.size(), c.dialogsShown);
        if (c.goesOn) {
            EXPECT_EQ(dialogs.opens[0].title, "Locate Tarvex Folder");
            EXPECT_EQ(dialogs.opens[0].filter, "(*.mdb)|*.mdb");
            EXPECT_EQ(dialogs.opens[0].initDir, fs::current_path().string());
            EXPECT_EQ(ref.DBPath, dbPath);
            EXPECT_TRUE(ref.theDB.IsOpen());
        }
    }
}

TEST_F(ReferenceDatabaseTest, ALocatedFolderWithoutTheDatabaseEndsWithAMessage) {
    const fs::path empty = folder / "empty";
    fs::create_directories(empty);
    dialogs.QueueOpen((empty / "x.mdb").string());
    ref.DBPath = (empty / "gone.mdb").string();
    EXPECT_FALSE(ref.OpenReferenceDatabase(dialogs));
    ASSERT_EQ(dialogs.messages.size(), 2u);
    EXPECT_EQ(dialogs.messages[1].icon, MsgIcon::Critical);
    EXPECT_FALSE(ref.theDB.IsOpen());
}

TEST_F(ReferenceDatabaseTest, AFileOfAnotherKindIsNotOpened) {
    const fs::path text = folder / "text.mdb";
    std::ofstream(text) << "Standard Jet DB, or anything else that isn't SQLite......";
    Database db;
    try {
        db.Open(text.string());
        ADD_FAILURE() << "opened";
    } catch (const AppError& error) {
        EXPECT_EQ(error.Number(), kErrUnrecognizedDatabase);
    }
    try {
        db.Open((folder / "none.mdb").string());
        ADD_FAILURE() << "opened";
    } catch (const AppError& error) {
        EXPECT_EQ(error.Number(), kErrFileNotFound);
    }
    EXPECT_FALSE(fs::exists(folder / "none.mdb"));  // never created
    dialogs.QueueMsgAnswer(MsgAnswer::No);
    ref.DBPath = text.string();
    EXPECT_FALSE(ref.OpenReferenceDatabase(dialogs));
}

TEST_F(ReferenceDatabaseTest, CheckMissionSummariesFollowsTheTable) {
    ref.DBPath = dbPath;
    ASSERT_TRUE(ref.OpenReferenceDatabase(dialogs));
    MissionSummariesCheck check = ref.CheckMissionSummaries(dialogs);
    EXPECT_FALSE(check.summariesLoaded);
    EXPECT_FALSE(check.endProgram);
    ref.theDB.Execute("INSERT INTO tblMissions (Title) VALUES ('One')");
    check = ref.CheckMissionSummaries(dialogs);
    EXPECT_TRUE(check.summariesLoaded);
    EXPECT_TRUE(ref.SummariesLoaded);
    EXPECT_TRUE(dialogs.messages.empty());
    EXPECT_FALSE(ref.theRS.IsOpen());
}

TEST_F(ReferenceDatabaseTest, ADatabaseWithoutMissionTableEndsTheProgram) {
    const fs::path other = folder / "other.mdb";
    testing::BuildDatabaseFile(other, "CREATE TABLE Something (x);");
    ref.DBPath = other.string();
    ASSERT_TRUE(ref.OpenReferenceDatabase(dialogs));
    const MissionSummariesCheck check = ref.CheckMissionSummaries(dialogs);
    EXPECT_TRUE(check.endProgram);
    EXPECT_FALSE(ref.SummariesLoaded);
    ASSERT_EQ(dialogs.messages.size(), 1u);
    EXPECT_EQ(dialogs.messages[0].title, "Missing Table in Database");
    EXPECT_EQ(dialogs.messages[0].text,
              "Unable to open [tblMissions] table in database. Current database is:\n" +
                  other.string() +
                  "\nPlease confirm that no other version of [Tarvex Missions.mdb] exists on "
                  "your system");
    EXPECT_EQ(dialogs.messages[0].icon, MsgIcon::Critical);
}

TEST_F(ReferenceDatabaseTest, FillListFromQueryPairsTextAndItemData) {
    ref.DBPath = dbPath;
    ASSERT_TRUE(ref.OpenReferenceDatabase(dialogs));
    RowList list;
    list.rows = {{"stale", 1}};
    ref.FillListFromQuery(list, "SELECT UnitRole,Family FROM tblFamily");
    const std::vector<std::pair<std::string, std::int32_t>> families = {
        {"Fighter", 1}, {"Bomber", 2}, {"Other", 3}};
    EXPECT_EQ(list.rows, families);
    EXPECT_FALSE(ref.theRS.IsOpen());

    // A filter that matches nothing leaves an empty list; a bad text is an error, not a stop.
    ref.FillListFromQuery(list, "SELECT ShortName,ACId FROM Aircraft WHERE Family=9");
    EXPECT_TRUE(list.rows.empty());
    EXPECT_THROW(ref.FillListFromQuery(list, "SELECT ShortName FROM Aircraft"), AppError);
    EXPECT_FALSE(ref.theRS.IsOpen());
}

TEST_F(ReferenceDatabaseTest, CompactionKeepsThePathAndReportsFailure) {
    ref.DBPath = dbPath;
    ASSERT_TRUE(ref.OpenReferenceDatabase(dialogs));
    ref.theDB.Execute("DELETE * FROM GrndNames");
    std::vector<std::string> screen;
    const auto show = [&](const std::string& text) { screen.push_back(text); };
    const auto close = [&] { screen.push_back("closed"); };

    const auto sizeBefore = fs::file_size(dbPath);
    ref.CompactReferenceDatabase(dialogs, show, close);
    EXPECT_EQ(screen, (std::vector<std::string>{"Compacting Database", "closed"}));
    EXPECT_TRUE(dialogs.messages.empty());
    EXPECT_TRUE(ref.theDB.IsOpen());
    EXPECT_LT(fs::file_size(dbPath), sizeBefore);
    EXPECT_FALSE(fs::exists(folder / "Tarvex Missions.tmp"));
    EXPECT_EQ(ref.theDB.OpenRecordset("SELECT Count(*) FROM GrndNames", kSnapshot).Fields(0).Long(),
              0);

    // The temporary name taken by a folder: the copy can't be written. The engine's text is
    // shown, and the database is open again, unchanged.
    fs::create_directories(folder / "Tarvex Missions.tmp");
    ref.CompactReferenceDatabase(dialogs, show, close);
    ASSERT_EQ(dialogs.messages.size(), 1u);
    const MessageBoxRequest& box = dialogs.messages[0];
    EXPECT_EQ(box.title, "Database Compact Error");
    EXPECT_EQ(box.icon, MsgIcon::Exclamation);
    EXPECT_EQ(box.text.rfind("Error compacting Database.\nError: [", 0), 0u) << box.text;
    EXPECT_NE(box.text.find("]\nIf all else fails, try restarting Tarvex Mission Editor"),
              std::string::npos);
    EXPECT_GT(box.text.size(), std::string("Error compacting Database.\nError: []\nIf all else "
                                           "fails, try restarting Tarvex Mission Editor")
                                   .size());
    EXPECT_TRUE(ref.theDB.IsOpen());
    EXPECT_TRUE(fs::exists(dbPath));
}

TEST_F(ReferenceDatabaseTest, CloseNeverFails) {
    ref.CloseReferenceDatabase();  // nothing open
    ref.DBPath = dbPath;
    ASSERT_TRUE(ref.OpenReferenceDatabase(dialogs));
    ref.theRS = ref.theDB.OpenRecordset("GrndNames");
    ref.CloseReferenceDatabase();
    ref.CloseReferenceDatabase();
    EXPECT_FALSE(ref.theDB.IsOpen());
    EXPECT_FALSE(ref.theRS.IsOpen());
}

TEST(LayoutIdTest, ReducesAirfieldItemData) {
    const std::pair<int, int> cases[] = {{17, 17},   {9999, 9999}, {10000, 10000},
                                         {10001, 1}, {20017, 17},  {120005, 5}};
    for (const auto& [value, id] : cases)
        EXPECT_EQ(LayoutIdFromItemData(value), id) << value;
}

}  // namespace
}  // namespace tarvex
