#pragma once
// What a scenario is made of once it is read: the steps, each with its line, and the names,
// places and expectations the steps carry.
#include <functional>
#include <map>
#include <string>
#include <vector>

namespace tarvex::scenario {

class ScenarioRun;

// A control as a scenario names it: [Form.]name[(index)]. An empty form is the default one.
struct ControlName {
    std::string form;
    std::string name;
    int index = -1;
    // As written, for messages: "frmNewRecord.btnAddRecord", "optColor(3)".
    std::string Display() const;
};

// A property with its arguments: "Text", "List(2)", "Cell(1, 3)".
struct PropertyName {
    std::string name;
    std::vector<int> args;
    std::string Display() const;
};

// Where a press goes: a row of a list or grid (by number, or by its text), or a point in the
// control's map units.
struct Spot {
    bool point = false;
    float x = 0;
    float y = 0;
    int row = -1;
    bool byText = false;
    std::string rowText;
};

// The mouse button (0 when the line names none) and the keys held.
struct Modifiers {
    int button = 0;
    int shift = 0;
};

enum class Compare { Equal, NotEqual, Contains };

struct Expected {
    Compare compare = Compare::Equal;
    std::string value;
};

enum class StepKind {
    Action,       // what the user does
    Answer,       // an answer queued for a box the next action shows
    Expectation,  // a check of what the program shows or holds
};

struct Step {
    int line = 0;
    StepKind kind = StepKind::Action;
    std::function<void(ScenarioRun&)> run;
};

struct LineError {
    int line = 0;
    std::string message;
};

struct Script {
    std::vector<Step> steps;
    std::vector<LineError> errors;
};

struct ScriptContext {
    // Relative paths in the scenario are taken from here: the scenario's own folder.
    std::string folder;
    // $NAME in a line; a name that isn't here is an error at its line.
    std::map<std::string, std::string> variables;
};

}  // namespace tarvex::scenario
