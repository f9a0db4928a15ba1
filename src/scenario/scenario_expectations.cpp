// The expectations of a scenario: what the controls show, the status strip, the last box, the
// files written and the document.
#include <charconv>
#include <fstream>
#include <iterator>

#include "common/text.h"
#include "scenario/control_properties.h"
#include "scenario/mission_fields.h"
#include "scenario/scenario_error.h"
#include "scenario/scenario_run.h"
#include "shell/editor.h"
#include "shell/forms/mdi_mission_ed.h"

namespace tarvex::scenario {

namespace {

bool NumberOf(const std::string& text, double& value) {
    const char* end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, value);
    return !text.empty() && result.ec == std::errc() && result.ptr == end;
}

bool IsBoolean(const std::string& text) {
    return text == "True" || text == "False";
}

// Equal as text; as numbers ("3" and "3.0"); as booleans, without regard to case.
bool Same(const std::string& actual, const std::string& expected) {
    if (actual == expected) return true;
    double a = 0;
    double e = 0;
    if (NumberOf(actual, a) && NumberOf(expected, e)) return a == e;
    return IsBoolean(actual) && SameText(actual, expected);
}

bool ReadWholeFile(const std::string& path, std::string& text) {
    std::ifstream in(path, std::ios::binary);
    if (!in) return false;
    text.assign(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
    return true;
}

std::string FileText(const std::string& path) {
    std::string text;
    if (!ReadWholeFile(path, text)) throw ScenarioError("there is no file " + path);
    return text;
}

// Line `n` (from 1) of a text, with its line end; empty beyond the last.
std::string LineOf(const std::string& text, size_t n) {
    size_t start = 0;
    for (size_t i = 1; i < n && start < text.size(); ++i) {
        const size_t end = text.find('\n', start);
        start = end == std::string::npos ? text.size() : end + 1;
    }
    if (start >= text.size()) return {};
    const size_t end = text.find('\n', start);
    return text.substr(start, end == std::string::npos ? std::string::npos : end - start + 1);
}

}  // namespace

void ScenarioRun::Verify(const std::string& what, const std::string& actual,
                         const Expected& expected) {
    bool held = false;
    const char* op = "=";
    switch (expected.compare) {
        case Compare::Equal:
            held = Same(actual, expected.value);
            break;
        case Compare::NotEqual:
            held = !Same(actual, expected.value);
            op = "!=";
            break;
        case Compare::Contains:
            held = actual.find(expected.value) != std::string::npos;
            op = "contains";
            break;
    }
    if (held) return;
    // A whole file or a long box is cut, to keep the message readable.
    constexpr size_t kShown = 200;
    const std::string got = actual.size() <= kShown
                                ? Quoted(actual)
                                : Quoted(actual.substr(0, kShown)) + "... (" +
                                      std::to_string(actual.size()) + " characters)";
    throw ScenarioError("expected " + what + " " + op + " " + Quoted(expected.value) + ", got " +
                        got);
}

void ScenarioRun::ExpectProperty(const ControlName& name, const PropertyName& property,
                                 const Expected& expected) {
    const Found found = Find(name);
    const auto value = ReadProperty(*found.component, property);
    if (!value)
        throw ScenarioError(name.Display() + " is " + KindOf(*found.component) +
                            ": it has no property " + property.name);
    Verify(name.Display() + "." + property.Display(), *value, expected);
}

void ScenarioRun::ExpectStatus(const Expected& expected) {
    Verify("the status", *ReadProperty(editor_.ed().MDIMissionED.Picture1, {"Text", {}}), expected);
}

void ScenarioRun::ExpectBox(const std::string& part, const Expected& expected) {
    if (lastBoxes_.empty())
        throw ScenarioError(lastActionLine_ == 0
                                ? "no message box has come: no action ran yet"
                                : "no message box came at line " + std::to_string(lastActionLine_));
    const MessageBoxRequest& box = lastBoxes_.back();
    Verify(part == "Title" ? "the box's title" : "the box", part == "Title" ? box.title : box.text,
           expected);
}

void ScenarioRun::ExpectFileSame(const std::string& path, const std::string& reference) {
    const std::string text = FileText(path);
    const std::string want = FileText(reference);
    if (text == want) return;
    size_t line = 1;
    while (LineOf(text, line) == LineOf(want, line))
        ++line;
    throw ScenarioError(path + " differs from " + reference + " at line " + std::to_string(line) +
                        ": " + Quoted(LineOf(text, line)) + " where it has " +
                        Quoted(LineOf(want, line)));
}

void ScenarioRun::ExpectFileText(const std::string& path, const Expected& expected) {
    Verify("the text of " + path, FileText(path), expected);
}

void ScenarioRun::ExpectDoc(const std::string& field, const std::vector<int>& indexes,
                            const Expected& expected) {
    Verify(PropertyName{field, indexes}.Display(),
           MissionFieldText(editor_.ed().doc, field, indexes), expected);
}

}  // namespace tarvex::scenario
