#pragma once
// Runs tarvex-mis as a user would, in a folder of its own: a copy of the default database,
// a simulator folder, and an environment without the user's editor settings.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "support/reference_folder.h"

namespace tarvex::testing {

struct ToolResult {
    int code = -1;
    std::string out;
    std::string err;
};

class ToolTest : public ::testing::Test {
  protected:
    std::filesystem::path folder = MakeTestFolder("cli");
    std::filesystem::path db = folder / "Tarvex Missions.mdb";
    std::filesystem::path sim = folder / "sim";
    std::filesystem::path config = folder / "config";
    // The default installation the build made, for its maps; tests name their own database.
    std::string home = std::string(TARVEX_BINARY_DIR) + "/default-install";
    std::filesystem::path start;

    void SetUp() override {
        // The editor moves the current folder into the test's folder, which goes at the end.
        start = std::filesystem::current_path();
        CopyDefaultDatabase(db);
        std::filesystem::create_directories(sim / "missions");
        std::filesystem::create_directories(config);
    }
    void TearDown() override {
        std::error_code ignored;
        std::filesystem::current_path(start, ignored);
        std::filesystem::remove_all(folder, ignored);
    }

    static std::string Quote(const std::string& arg) {
        std::string quoted = "'";
        for (char c : arg)
            quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
        return quoted + "'";
    }

    ToolResult Run(const std::vector<std::string>& args) {
        const std::filesystem::path out = folder / "stdout.txt";
        const std::filesystem::path err = folder / "stderr.txt";
        std::string command = "env -u TARVEX_SIM_PATH HOME=" + Quote(config.string()) +
                              " XDG_CONFIG_HOME=" + Quote(config.string()) +
                              " TARVEX_HOME=" + Quote(home) + " " + Quote(TARVEX_MIS);
        for (const std::string& arg : args)
            command += " " + Quote(arg);
        command += " >" + Quote(out.string()) + " 2>" + Quote(err.string());
        const int status = std::system(command.c_str());
        ToolResult result;
        result.code = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
        result.out = ReadTextFile(out);
        result.err = ReadTextFile(err);
        return result;
    }

    // The common options that keep a command on this test's database and simulator folder.
    std::vector<std::string> With(std::vector<std::string> args, bool imperial = false) {
        args.insert(args.end(), {"--db", db.string(), "--sim", sim.string()});
        if (imperial) args.push_back("--imperial");
        return args;
    }

    static std::string SourceFile(const std::string& relative) {
        return std::string(TARVEX_SOURCE_DIR) + "/tests/data/" + relative;
    }

    // A copy of a test mission with one piece of text replaced, under a name of this test.
    std::string Mission(const std::string& name, const std::string& from = "",
                        const std::string& to = "",
                        const std::string& source = "missions/channel_sweep.mis") {
        std::string text = ReadTextFile(SourceFile(source));
        if (!from.empty()) {
            const size_t at = text.find(from);
            EXPECT_NE(at, std::string::npos) << from;
            if (at != std::string::npos) text.replace(at, from.size(), to);
        }
        const std::filesystem::path path = sim / "missions" / name;
        std::ofstream(path, std::ios::binary) << text;
        return path.string();
    }
};

}  // namespace tarvex::testing
