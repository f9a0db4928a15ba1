#include "cli/editor_settings_file.h"

#include <gtest/gtest.h>

namespace tarvex::cli {
namespace {

// The forms the editor's settings file takes for the keys the tool reads: names encoded,
// values quoted when they hold a separator, escapes, and other sections with the same keys.
TEST(EditorSettingsFileTest, ReadsValuesAsTheEditorWroteThem) {
    const std::string text =
        "[General]\r\nPath=/general\r\n\r\n"
        "[Sortak%20Options]\r\n"
        "Path=/home/ann/Tarvex/\r\n"
        "Sortak%20DB=\"/data/a,b/Tarvex Missions.mdb\"\r\n"
        "Sortak%20Map=\" /maps with blank \"\r\n"
        "File%201=C:\\\\missions\\\\one.mis\r\n"
        "File%202=@@odd\r\n"
        "Caf%E9=\\x44\r\n"
        "\r\n[Other]\r\nSortak%20DB=/other.mdb\r\n";
    const struct {
        const char* key;
        std::optional<std::string> value;
    } cases[] = {
        {"Path", "/home/ann/Tarvex/"},
        {"sortak db", "/data/a,b/Tarvex Missions.mdb"},
        {"Sortak Map", " /maps with blank "},
        {"File 1", "C:\\missions\\one.mis"},
        {"File 2", "@odd"},
        {"Caf\xC3\xA9", "D"},
        {"Last Tab", std::nullopt},
    };
    for (const auto& c : cases)
        EXPECT_EQ(IniValue(text, "Sortak Options", c.key), c.value) << c.key;
    EXPECT_EQ(IniValue(text, "Missing", "Path"), std::nullopt);
}

}  // namespace
}  // namespace tarvex::cli
