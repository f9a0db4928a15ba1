#include "app/command_line.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tarvex {
namespace {

using Action = EditorCommandLine::Action;

struct Case {
    std::vector<std::string> args;
    Action action;
    std::string problem;  // a part of the one-line message, for refused lines
};

TEST(CommandLineTest, ActionsAndRefusals) {
    const Case cases[] = {
        {{}, Action::Run, ""},
        {{"Raid.mis"}, Action::Run, ""},
        {{"--help"}, Action::Help, ""},
        {{"-h"}, Action::Help, ""},
        {{"--version"}, Action::Version, ""},
        // The first of help and version wins over anything after it, even a bad option.
        {{"--version", "--bogus"}, Action::Version, ""},
        {{"--tab", "3", "Raid.mis"}, Action::Run, ""},
        {{"--bogus"}, Action::Refuse, "unknown option '--bogus'"},
        {{"-x"}, Action::Refuse, "unknown option '-x'"},
        {{"--tab", "4"}, Action::Refuse, "from 0 to 3, not '4'"},
        {{"--tab", "-1"}, Action::Refuse, "not '-1'"},
        {{"--tab", "two"}, Action::Refuse, "not 'two'"},
        {{"--tab", "2x"}, Action::Refuse, "not '2x'"},
        {{"--tab", ""}, Action::Refuse, "not ''"},
        {{"--tab"}, Action::Refuse, "--tab needs a value"},
        {{"Raid.mis", "--screenshot"}, Action::Refuse, "--screenshot needs a value"},
        {{"--screenshot", "a.png", "--edit-layout", "x"}, Action::Refuse, "row number"},
        {{"--form", "frmAircraft"}, Action::Refuse, "go with --screenshot"},
        {{"--edit-layout", "0"}, Action::Refuse, "go with --screenshot"},
    };
    for (const Case& c : cases) {
        std::string shown;
        for (const auto& a : c.args)
            shown += a + " ";
        const EditorCommandLine line = ParseEditorCommandLine(c.args);
        EXPECT_EQ(line.action, c.action) << shown;
        if (c.action == Action::Refuse) {
            EXPECT_NE(line.problem.find(c.problem), std::string::npos) << shown << line.problem;
            EXPECT_EQ(line.problem.find('\n'), std::string::npos) << shown;
        }
    }
}

TEST(CommandLineTest, ScreenshotOptionsAndFilesAreTakenInAnyOrder) {
    const EditorCommandLine line =
        ParseEditorCommandLine({"My", "--tab", "2", "--screenshot", "out.png", "Raid.mis", "--form",
                                "frmGUOffsets", "--edit-layout", "1", "--", "--odd.mis"});
    ASSERT_EQ(line.action, Action::Run);
    EXPECT_EQ(line.screenshot, "out.png");
    EXPECT_EQ(line.tab, 2);
    EXPECT_EQ(line.form, "frmGUOffsets");
    EXPECT_EQ(line.layoutRow, 1);
    // A name with blanks comes as several words; after "--" a word is a file even with a dash.
    EXPECT_EQ(line.files, (std::vector<std::string>{"My", "Raid.mis", "--odd.mis"}));
}

TEST(CommandLineTest, HelpNamesEveryOptionTheParserTakes) {
    const std::string help = EditorUsageText();
    for (const char* option :
         {"--help", "--version", "--tab", "--screenshot", "--form", "--edit-layout"})
        EXPECT_NE(help.find(option), std::string::npos) << option;
    EXPECT_EQ(EditorVersionText().rfind("tarvex-editor ", 0), 0u);
}

}  // namespace
}  // namespace tarvex
