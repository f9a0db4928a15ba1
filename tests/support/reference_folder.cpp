#include "support/reference_folder.h"

#include <sqlite3.h>
#include <unistd.h>

#include <fstream>
#include <sstream>

namespace tarvex::testing {

namespace fs = std::filesystem;

std::string ReadTextFile(const fs::path& file) {
    std::ifstream in(file, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

std::string SchemaSql() {
    return ReadTextFile(fs::path(TARVEX_SOURCE_DIR) / "data" / "refdb" / "schema.sql");
}

std::string SeedSql() {
    return ReadTextFile(fs::path(TARVEX_SOURCE_DIR) / "data" / "refdb" / "seed.sql");
}

void BuildDatabaseFile(const fs::path& file, const std::string& sql) {
    sqlite3* db = nullptr;
    ASSERT_EQ(
        sqlite3_open_v2(file.c_str(), &db, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr),
        SQLITE_OK);
    char* message = nullptr;
    const int rc = sqlite3_exec(
        db,
        ("PRAGMA foreign_keys = ON; PRAGMA synchronous = OFF; PRAGMA journal_mode = MEMORY;\n" +
         sql)
            .c_str(),
        nullptr, nullptr, &message);
    const std::string error = message ? message : "";
    sqlite3_free(message);
    sqlite3_close(db);
    ASSERT_EQ(rc, SQLITE_OK) << error;
}

fs::path MakeTestFolder(const std::string& purpose) {
    static int counter = 0;
    const auto* info = ::testing::UnitTest::GetInstance()->current_test_info();
    const std::string name = info ? info->name() : "setup";
    fs::path folder =
        fs::temp_directory_path() / ("tarvex-" + purpose + "-" + std::to_string(getpid()) + "-" +
                                     std::to_string(++counter) + "-" + name);
    fs::remove_all(folder);
    fs::create_directories(folder);
    return folder;
}

namespace {

// The folder of the default database built for this test program, removed when it exits.
struct DefaultDatabaseFolder {
    fs::path folder = fs::temp_directory_path() / ("tarvex-default-db-" + std::to_string(getpid()));
    DefaultDatabaseFolder() { fs::create_directories(folder); }
    ~DefaultDatabaseFolder() {
        std::error_code ignored;
        fs::remove_all(folder, ignored);
    }
};

}  // namespace

void CopyDefaultDatabase(const fs::path& file) {
    static const DefaultDatabaseFolder home;
    static const fs::path built = [] {
        const fs::path path = home.folder / "Tarvex Missions.mdb";
        fs::remove(path);
        BuildDatabaseFile(path, SchemaSql() + "\n" + SeedSql());
        return path;
    }();
    fs::copy_file(built, file, fs::copy_options::overwrite_existing);
}

void ReferenceFolderTest::SetUp() {
    folder = MakeTestFolder("refdata");
    dbPath = (folder / "Tarvex Missions.mdb").string();
    CopyDefaultDatabase(dbPath);
}

void ReferenceFolderTest::TearDown() {
    std::error_code error;
    fs::remove_all(folder, error);
}

}  // namespace tarvex::testing
