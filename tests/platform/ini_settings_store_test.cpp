// The settings file as the editor has written it, and as the store writes it back.
#include "platform/ini_settings_store.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "support/reference_folder.h"

namespace tarvex {
namespace {

namespace fs = std::filesystem;

std::string Read(const fs::path& file) {
    std::ifstream in(file, std::ios::binary);
    return std::string((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
}

// The forms the editor's settings file takes: names encoded, values quoted when they hold a
// separator, escapes, other sections with the same keys, and the root section.
TEST(IniSettingsStoreTest, ReadsValuesAsTheEditorWroteThem) {
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
    EXPECT_EQ(IniValue(text, "", "Path"), "/general");
}

// Whatever a value holds, it reads back as it was written, and its line is the file's form.
TEST(IniSettingsStoreTest, WritesValuesThatReadBackTheSame) {
    const struct {
        std::string value;
        const char* line;
    } cases[] = {
        {"/home/ann/Sortak Data/Tarvex Missions.mdb",
         "Sortak%20DB=/home/ann/Sortak Data/Tarvex Missions.mdb"},
        {"a,b;c=d", "Sortak%20DB=\"a,b;c=d\""},
        {" padded ", "Sortak%20DB=\" padded \""},
        {"@at", "Sortak%20DB=@@at"},
        {"two\nlines\ttab \"q\" back\\", "Sortak%20DB=two\\nlines\\ttab \\\"q\\\" back\\\\"},
        {std::string("\x01"
                     "A",
                     2),
         "Sortak%20DB=\\x01\\x41"},
        {"caf\xC3\xA9", "Sortak%20DB=caf\xC3\xA9"},
        {"", "Sortak%20DB="},
    };
    for (const auto& c : cases) {
        const std::string text = IniWithValue("", "Sortak Options", "Sortak DB", c.value);
        EXPECT_EQ(text, "[Sortak%20Options]\n" + std::string(c.line) + "\n");
        EXPECT_EQ(IniValue(text, "Sortak Options", "Sortak DB"), c.value) << c.line;
    }
    // A section named General is not the keys outside any section.
    const std::string general = IniWithValue("", "General", "K%/", "v");
    EXPECT_EQ(general, "[%General]\nK%25\\=v\n");
    EXPECT_EQ(IniValue(general, "general", "K%/"), "v");
    EXPECT_EQ(IniValue(general, "", "K%/"), std::nullopt);
}

// A change rewrites its own line and leaves every other line of the file as it stood.
TEST(IniSettingsStoreTest, ChangesOneKeyAndKeepsTheRest) {
    const std::string file =
        "; kept\n[Sortak%20Options]\nPath=/old/\nLast%20Tab=2\n\n[Other]\nPath=/other/\n";
    const struct {
        const char* what;
        const char* key;
        std::optional<std::string> value;
        const char* text;
    } cases[] = {
        {"replaced", "path", "/new/",
         "; kept\n[Sortak%20Options]\nPath=/new/\nLast%20Tab=2\n\n[Other]\nPath=/other/\n"},
        {"added at the end of its section", "Sound On", "True",
         "; kept\n[Sortak%20Options]\nPath=/old/\nLast%20Tab=2\nSound%20On=True\n\n[Other]\n"
         "Path=/other/\n"},
        {"taken out", "Last Tab", std::nullopt,
         "; kept\n[Sortak%20Options]\nPath=/old/\n\n[Other]\nPath=/other/\n"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(IniWithValue(file, "Sortak Options", c.key, c.value), c.text) << c.what;
    EXPECT_EQ(IniWithValue(file, "New", "Key", "1"), file + "\n[New]\nKey=1\n");
}

// The store keeps one file per application; each change reads the file again, so two copies
// keep each other's keys, and no temporary file stays behind.
TEST(IniSettingsStoreTest, TwoCopiesShareOneWholeFile) {
    const fs::path folder = testing::MakeTestFolder("settings");
    IniSettingsStore first(folder.string());
    IniSettingsStore second(folder.string());
    const fs::path file = folder / "Sortak" / "Sortak.ini";
    EXPECT_EQ(first.FileOf("Sortak"), file.string());
    EXPECT_EQ(first.Get("Sortak", "Sortak Options", "Path"), std::nullopt);

    first.Save("Sortak", "Sortak Options", "Path", "/sim/");
    second.Save("Sortak", "Sortak Options", "MDI Left", "240");
    first.Save("Sortak", "Sortak Options", "MDI Top", "240");
    second.Delete("Sortak", "Sortak Options", "MDI Top");
    EXPECT_EQ(Read(file), "[Sortak%20Options]\nPath=/sim/\nMDI%20Left=240\n");
    EXPECT_EQ(second.Get("Sortak", "Sortak Options", "path"), "/sim/");
    EXPECT_EQ(std::distance(fs::directory_iterator(file.parent_path()), fs::directory_iterator()),
              1);
    fs::remove_all(folder);
}

}  // namespace
}  // namespace tarvex
