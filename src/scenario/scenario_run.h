#pragma once
// One run of a scenario on a started headless editor: the user's actions through the same
// gestures the skin uses, answers queued for the boxes, and expectations on what the program
// shows and holds.
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "app/headless_editor.h"
#include "scenario/scenario_steps.h"

namespace tarvex {
class Component;
class Control;
class Form;
class ListControl;
}  // namespace tarvex

namespace tarvex::scenario {

struct Failure {
    int line = 0;
    std::string message;
};

class ScenarioRun {
  public:
    // Boxes that come without an answer are declined and stop the run.
    explicit ScenarioRun(HeadlessEditor& editor);
    ScenarioRun(const ScenarioRun&) = delete;
    ScenarioRun& operator=(const ScenarioRun&) = delete;

    // Runs the steps in order and stops at the first that fails.
    std::optional<Failure> Run(const Script& script);

    // ---- Actions -----------------------------------------------------------------------------
    // A menu entry, with the menus above it opened first, as a pointer goes.
    void Menu(const ControlName& entry);
    // A menu entry with a file chosen in the dialog it opens.
    void MenuWithFile(const ControlName& entry, const std::string& path);
    // A press and release on the header of a page of SSTab1, by number or caption.
    void Tab(int page, const std::string& caption);
    void Click(const ControlName& name);
    void DoubleClick(const ControlName& name, const std::optional<Spot>& row);
    void Check(const ControlName& name, bool on);
    void Select(const ControlName& name, const Spot& row, const Modifiers& keys);
    void Cell(const ControlName& name, int row, int col);
    void Pick(const ControlName& name, const Spot& row);
    void Highlight(const ControlName& name, const Spot& row);
    void Dismiss(const ControlName& name);
    void Type(const ControlName& name, const std::string& text, bool replace);
    void Key(const ControlName& name, int keyCode, const Modifiers& keys);
    enum class Mouse { Press, Move, Release };
    void Pointer(Mouse what, const ControlName& name, const Spot& at, const Modifiers& keys);
    void Drag(const ControlName& name, const Spot& from, const Spot& to, const Modifiers& keys);
    void Spin(const ControlName& name, bool up, int times);
    void Tick(const ControlName& name, int times);
    void Close(const std::string& form);

    // ---- Answers for the next action's boxes -------------------------------------------------
    void Answer(const std::string& answer);
    void Input(const std::string& text);
    void File(const std::string& path, bool cancel);

    // ---- Expectations ------------------------------------------------------------------------
    void ExpectProperty(const ControlName& name, const PropertyName& property,
                        const Expected& expected);
    void ExpectStatus(const Expected& expected);
    // `part` is "Text" or "Title" of the last message box the last action showed.
    void ExpectBox(const std::string& part, const Expected& expected);
    void ExpectFileSame(const std::string& path, const std::string& reference);
    void ExpectFileText(const std::string& path, const Expected& expected);
    void ExpectDoc(const std::string& field, const std::vector<int>& indexes,
                   const Expected& expected);

  private:
    struct Found {
        Form* form = nullptr;
        Component* component = nullptr;
    };
    enum class AnswerKind { Message, Input, File };
    struct Pending {
        AnswerKind kind;
        int line;
        std::string what;
    };

    std::vector<Form*> Forms() const;
    Form& FindForm(const std::string& name) const;
    Found Find(const ControlName& name) const;
    // The control, which a user's hands can reach: its window open, itself shown and enabled.
    Control& Reach(const ControlName& name) const;
    template <typename T>
    T& ReachAs(const ControlName& name, const char* verbs) const;
    // The row a line names, which must be one of `count`.
    int RowOf(const ControlName& name, const Spot& row, const ListControl* list, int count) const;
    void Queue(AnswerKind kind, const std::string& what);
    void BeginAction();
    void EndAction();
    void Verify(const std::string& what, const std::string& actual, const Expected& expected);

    HeadlessEditor& editor_;
    int line_ = 0;
    // The button held on a control since a press without its release.
    std::map<const Component*, int> held_;
    // Answers queued since the last action, in order.
    std::vector<Pending> pending_;
    // The message boxes of the last action, and the line of that action.
    std::vector<MessageBoxRequest> lastBoxes_;
    int lastActionLine_ = 0;
    size_t boxesBefore_ = 0;
};

}  // namespace tarvex::scenario
