#pragma once
// A started editor on its own database and simulator folder, with mission files to scan.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "app/scratch_editor.h"
#include "shell/editor.h"

namespace tarvex::testing {

class LibraryTest : public ::testing::Test {
  protected:
    static ScratchOptions Options() {
        const std::filesystem::path refdb = std::filesystem::path(TARVEX_SOURCE_DIR) / "data/refdb";
        ScratchOptions options;
        options.scripts = {refdb / "schema.sql", refdb / "seed.sql"};
        return options;
    }

    Editor& ed() { return editor.ed(); }
    ScriptedDialogs& dialogs() { return editor.dialogs(); }
    std::filesystem::path Missions() const { return editor.SimFolder() / "missions"; }

    std::filesystem::path Write(const std::string& name, const std::string& text) {
        std::ofstream(Missions() / name, std::ios::binary) << text;
        return Missions() / name;
    }
    // A mission of the sample simulator folder.
    std::filesystem::path CopySample(const std::string& name) {
        const auto sample = std::filesystem::path(TARVEX_SOURCE_DIR) / "data/sim/missions" / name;
        std::filesystem::copy_file(sample, Missions() / name);
        return Missions() / name;
    }
    // A short mission with the keys the scan reads.
    static std::string Mission(const std::string& title, int allegiance,
                               const std::string& map = "Map1Bob") {
        return "[mission]\r\nallegiance=" + std::to_string(allegiance) +
               "\r\ntime=10:30\r\nmap=" + map +
               "\r\ncloud=1\r\n\r\n[strings]\r\n\"title_string\"=" + title + "\r\n";
    }

    long long Count(const std::string& where = "") {
        Recordset rs =
            ed().db.theDB.OpenRecordset("SELECT Count(*) FROM tblMissions " + where, kSnapshot);
        return rs.Fields(0).Value().Int64();
    }

    ScratchEditor editor{Options(), "library"};
};

}  // namespace tarvex::testing
