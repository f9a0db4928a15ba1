#pragma once
// An editor as after start-up, with helpers that put a mission file on disk and load it.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "document/mission_loader.h"
#include "document/mission_reset.h"
#include "shell/mission_form_load.h"
#include "support/test_editor.h"

namespace tarvex::testing {

class LoaderTest : public ::testing::Test {
  protected:
    TestEditor t;
    Editor& ed = t.OpenDatabase();

    void SetUp() override {
        LoadFrmMission(ed);
        ResetMission(ed);
        ed.projection.SetDistanceUnits(true);
        t.dialogs.ClearRecord();
    }

    static std::filesystem::path SampleMission(const std::string& name) {
        return std::filesystem::path(TARVEX_SOURCE_DIR) / "tests" / "data" / "missions" / name;
    }

    void LoadPath(const std::filesystem::path& path) {
        ed.doc.MissionPath = path.string();
        ed.doc.MissionFile = path.filename().string();
        ed.doc.NotLoading = false;
        LoadMission(ed);
        ed.doc.NotLoading = true;
    }

    // Writes the bytes as they stand, under the given name, and loads them.
    void LoadBytes(const std::string& bytes, const std::string& name = "test.mis") {
        const std::filesystem::path path = t.folder / name;
        std::ofstream(path, std::ios::binary) << bytes;
        LoadPath(path);
    }

    // Lines joined with CR LF, as the program writes them.
    static std::string Crlf(const std::string& text) {
        std::string out;
        for (char c : text) {
            if (c == '\n') out += '\r';
            out += c;
        }
        return out;
    }

    void LoadText(const std::string& text, const std::string& name = "test.mis") {
        LoadBytes(Crlf(text), name);
    }

    // A whole mission file's sample, from which tests cut or change sections.
    static std::string SampleText() {
        std::ifstream in(SampleMission("channel_sweep.mis"), std::ios::binary);
        return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
    }

    long long Count(const std::string& sql) {
        Recordset rs = ed.db.theDB.OpenRecordset(sql, kSnapshot);
        rs.MoveFirst();
        return rs.Fields(0).Long();
    }

    std::string LastReport() const { return t.dialogs.LastMessage(); }
};

}  // namespace tarvex::testing
