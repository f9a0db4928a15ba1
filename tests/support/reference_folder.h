#pragma once
// A fresh reference database for each test, built from the schema and seed scripts of
// data/refdb in a temporary folder of its own.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace tarvex::testing {

// Runs SQL scripts into a new database file with the plain engine, outside the layer under
// test.
void BuildDatabaseFile(const std::filesystem::path& file, const std::string& sql);
std::string ReadTextFile(const std::filesystem::path& file);
std::string SchemaSql();
std::string SeedSql();

// A new empty folder under the system's temporary folder, named after the running test.
std::filesystem::path MakeTestFolder(const std::string& purpose);

// Puts a copy of the default reference database (built once per test program from the
// schema and seed scripts) at `file`.
void CopyDefaultDatabase(const std::filesystem::path& file);

class ReferenceFolderTest : public ::testing::Test {
  protected:
    void SetUp() override;
    void TearDown() override;

    std::filesystem::path folder;  // empty temporary folder of this test
    std::string dbPath;            // folder / "Tarvex Missions.mdb", built from schema and seed
};

}  // namespace tarvex::testing
