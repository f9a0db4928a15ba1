// Reading a scenario: which lines are read and which are refused, with the reason at the line.
#include <gtest/gtest.h>

#include <string>

#include "scenario/scenario_script.h"

namespace tarvex::scenario {
namespace {

TEST(ScenarioScriptTest, EachLineIsReadOrRefusedWithItsReason) {
    const struct {
        const char* line;
        const char* error;  // part of the message; empty when the line reads
    } cases[] = {
        {"# a comment", ""},
        {"click btnGroupName   # and a comment after", ""},
        {"click frmNewRecord.btnAddRecord", ""},
        {"CLICK optColor(3)", ""},
        {"select lstPoints 3 shift ctrl", ""},
        {"select lstGroupName \"Red Section\"", ""},
        {"pick cmbSkill \"Ace\"", ""},
        {"press mapWayPoints 1200.5 800 right shift", ""},
        {"drag lstPoints 0 2", ""},
        {"drag mapWayPoints 10 20 30 40", ""},
        {"type txtTitle \"say \\\"hello\\\"\\r\\nagain\"", ""},
        {"key cmbRunways Down", ""},
        {"tab \"Ground Units\"", ""},
        {"expect lstPoints.ListCount = 4", ""},
        {"expect lstPoints.List(2) contains \"N51\"", ""},
        {"expect box \"Saved\"", ""},
        {"expect doc WPLat(0,1) != \"\"", ""},
        {"expect file $SCRATCH/a.mis same-as golden/a.mis", ""},
        {"file cancel", ""},
        {"open $MISSION", "$MISSION is set only when missions are named"},
        {"open $NOSUCH", "unknown variable $NOSUCH"},
        {"type txtTitle \"cost $5\"", "write $$ for a dollar sign"},
        {"frobnicate lstPoints", "unknown action \"frobnicate\""},
        {"click", "missing a control"},
        {"click lstPoints(", "is not a control name"},
        {"click a.b.c", "is not a control name"},
        {"click btnSave now", "unexpected \"now\""},
        {"select lstPoints two", "expected a row"},
        {"press mapWayPoints 1200 800 5", "expected a row, or a point X Y"},
        {"press mapWayPoints 1200 800 twice", "unexpected \"twice\""},
        {"drag lstPoints 1 2 3", "expected two rows, or two points"},
        {"check chkSuspend maybe", "expected on or off"},
        {"answer maybe", "yes, no, ok or cancel"},
        {"key txtAlt Hyper", "no key is called \"Hyper\""},
        {"up btnXPos 0", "1 or more"},
        {"type txtTitle \"open", "not closed"},
        {"type txtTitle \"bad \\q\"", "unknown escape \\q"},
        {"expect lstPoints.ListCount", "missing the expected value"},
        {"expect lstPoints", "expect what?"},
        {"expect doc WPLat(x) = 1", "not a document entry"},
    };
    ScriptContext context;
    context.variables["SCRATCH"] = "/tmp/s";
    for (const auto& c : cases) {
        SCOPED_TRACE(c.line);
        const Script script = ParseScenario(std::string("new\n") + c.line + "\n", context);
        if (*c.error == '\0') {
            EXPECT_TRUE(script.errors.empty()) << script.errors[0].message;
            continue;
        }
        ASSERT_EQ(script.errors.size(), 1u);
        EXPECT_EQ(script.errors[0].line, 2);
        EXPECT_NE(script.errors[0].message.find(c.error), std::string::npos)
            << script.errors[0].message;
    }
}

// Every line is read before anything runs, so all faults come out at once; answers and
// expectations are told from actions.
TEST(ScenarioScriptTest, ReadsTheWholeTextAndKindsItsSteps) {
    const Script script = ParseScenario(
        "new\r\nanswer ok\r\nbogus\r\nsave\r\n\r\nexpect box \"x\"\r\nclick", ScriptContext{});
    ASSERT_EQ(script.errors.size(), 2u);
    EXPECT_EQ(script.errors[0].line, 3);
    EXPECT_EQ(script.errors[1].line, 7);
    ASSERT_EQ(script.steps.size(), 4u);
    EXPECT_EQ(script.steps[1].kind, StepKind::Answer);
    EXPECT_EQ(script.steps[2].line, 4);
    EXPECT_EQ(script.steps[3].kind, StepKind::Expectation);
}

}  // namespace
}  // namespace tarvex::scenario
