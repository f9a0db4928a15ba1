#include "scenario/scenario_run.h"

#include "common/error.h"
#include "common/number_text.h"
#include "common/text.h"
#include "scenario/control_properties.h"
#include "scenario/scenario_error.h"
#include "shell/editor.h"
#include "shell/forms/frm_about.h"
#include "shell/forms/frm_aircraft.h"
#include "shell/forms/frm_grnd_names.h"
#include "shell/forms/frm_gu_offsets.h"
#include "shell/forms/frm_mission.h"
#include "shell/forms/frm_msg_screen.h"
#include "shell/forms/frm_new_record.h"
#include "shell/forms/frm_splash.h"
#include "shell/forms/frm_tbl_missions.h"
#include "shell/forms/mdi_mission_ed.h"

namespace tarvex::scenario {

namespace {

std::string Describe(const ScriptedDialogs::Unanswered& box) {
    const bool vowel = std::string("aeiou").find(box.kind.front()) != std::string::npos;
    std::string text = (vowel ? "an " : "a ") + box.kind + " came with no answer queued";
    if (!box.title.empty()) text += " (title " + Quoted(box.title) + ")";
    if (!box.text.empty()) text += ": " + Quoted(box.text);
    return text;
}

}  // namespace

ScenarioRun::ScenarioRun(HeadlessEditor& editor) : editor_(editor) {
    ScriptedDialogs& dialogs = editor_.dialogs();
    dialogs.declineUnanswered = true;
    dialogs.ClearAnswers();
    dialogs.ClearRecord();
}

std::optional<Failure> ScenarioRun::Run(const Script& script) {
    if (!script.errors.empty()) return Failure{script.errors[0].line, script.errors[0].message};
    for (const Step& step : script.steps) {
        line_ = step.line;
        const bool action = step.kind == StepKind::Action;
        try {
            if (action) BeginAction();
            step.run(*this);
            if (action) EndAction();
        } catch (const ScenarioError& e) {
            return Failure{step.line, e.what()};
        } catch (const AppError& e) {
            return Failure{step.line, "error " + IntText(e.Number()) + " " +
                                          Quoted(e.Description()) +
                                          " came out of the program's handlers"};
        } catch (const std::exception& e) {
            return Failure{step.line, std::string("the program failed: ") + e.what()};
        }
    }
    if (!pending_.empty())
        return Failure{pending_.front().line,
                       "no action follows the answer " + pending_.front().what};
    return std::nullopt;
}

// ---- Finding controls --------------------------------------------------------------------

std::vector<Form*> ScenarioRun::Forms() const {
    Editor& ed = editor_.ed();
    return {&ed.FrmMission,   &ed.MDIMissionED, &ed.frmNewRecord,   &ed.frmAircraft,
            &ed.frmGrndNames, &ed.frmGUOffsets, &ed.frmtblMissions, &ed.frmMsgScreen,
            &ed.frmSplash,    &ed.frmAbout};
}

Form& ScenarioRun::FindForm(const std::string& name) const {
    for (Form* form : Forms())
        if (SameText(form->Name(), name)) return *form;
    throw ScenarioError("there is no window called " + name);
}

ScenarioRun::Found ScenarioRun::Find(const ControlName& name) const {
    // A name without a window is looked up on the mission window, then on the main window
    // (its menus and status strip); a window's own name stands for the window.
    std::vector<Form*> forms;
    if (name.form.empty()) {
        forms = {&editor_.ed().FrmMission, &editor_.ed().MDIMissionED};
    } else {
        forms = {&FindForm(name.form)};
    }
    for (Form* form : forms)
        if (Component* component = form->FindComponent(name.name, name.index))
            return {form, component};
    if (name.form.empty() && name.index < 0)
        for (Form* form : Forms())
            if (SameText(form->Name(), name.name)) return {form, form};
    for (Form* form : forms) {
        for (Component* component : form->Components()) {
            if (!SameText(component->Name(), name.name)) continue;
            if (name.index < 0)
                throw ScenarioError(name.name + " is a control array: name an element, as in " +
                                    name.name + "(0)");
            if (component->Index() < 0)
                throw ScenarioError(name.name + " is not a control array: name it without (" +
                                    std::to_string(name.index) + ")");
            throw ScenarioError(name.name + " has no element " + std::to_string(name.index));
        }
    }
    throw ScenarioError("there is no control " + name.Display() + " on " +
                        (name.form.empty() ? std::string("FrmMission") : forms[0]->Name()));
}

Control& ScenarioRun::Reach(const ControlName& name) const {
    const Found found = Find(name);
    auto* control = dynamic_cast<Control*>(found.component);
    if (!control)
        throw ScenarioError(name.Display() + " is " + KindOf(*found.component) +
                            (dynamic_cast<MenuItem*>(found.component) ? ": use menu" : ""));
    if (!found.form->Visible()) throw ScenarioError(found.form->Name() + " is not open");
    if (!control->Visible()) throw ScenarioError(name.Display() + " is hidden");
    if (!control->Enabled()) throw ScenarioError(name.Display() + " is disabled");
    return *control;
}

int ScenarioRun::RowOf(const ControlName& name, const Spot& row, const ListControl* list,
                       int count) const {
    if (row.point) throw ScenarioError(name.Display() + " takes a row, not a point X Y");
    if (row.byText) {
        const int found = list ? list->FindRow(row.rowText) : -1;
        if (found < 0) throw ScenarioError(name.Display() + " has no row " + Quoted(row.rowText));
        return found;
    }
    if (row.row < 0 || row.row >= count)
        throw ScenarioError("row " + std::to_string(row.row) + " is outside " + name.Display() +
                            " (" + std::to_string(count) + (count == 1 ? " row)" : " rows)"));
    return row.row;
}

// ---- Answers and the record of each action ----------------------------------------------------

void ScenarioRun::Queue(AnswerKind kind, const std::string& what) {
    pending_.push_back({kind, line_, what});
}

void ScenarioRun::Answer(const std::string& answer) {
    MsgAnswer reply = MsgAnswer::OK;
    if (SameText(answer, "yes")) reply = MsgAnswer::Yes;
    if (SameText(answer, "no")) reply = MsgAnswer::No;
    if (SameText(answer, "cancel")) reply = MsgAnswer::Cancel;
    editor_.dialogs().QueueMsgAnswer(reply);
    Queue(AnswerKind::Message, LCase(answer));
}

void ScenarioRun::Input(const std::string& text) {
    editor_.dialogs().QueueInput(text);
    Queue(AnswerKind::Input, Quoted(text));
}

void ScenarioRun::File(const std::string& path, bool cancel) {
    if (cancel) {
        editor_.dialogs().QueueFileCancel();
    } else {
        editor_.dialogs().QueueFile(path);
    }
    Queue(AnswerKind::File, cancel ? "cancel" : Quoted(path));
}

void ScenarioRun::BeginAction() {
    ScriptedDialogs& dialogs = editor_.dialogs();
    dialogs.unanswered.clear();
    boxesBefore_ = dialogs.messages.size();
}

void ScenarioRun::EndAction() {
    ScriptedDialogs& dialogs = editor_.dialogs();
    lastActionLine_ = line_;
    lastBoxes_.assign(dialogs.messages.begin() + static_cast<long>(boxesBefore_),
                      dialogs.messages.end());
    std::vector<Pending> pending;
    pending.swap(pending_);
    if (!dialogs.unanswered.empty()) throw ScenarioError(Describe(dialogs.unanswered.front()));
    // An answer left over was meant for a box that did not come: the first of its kind that
    // is still waiting.
    const struct {
        AnswerKind kind;
        size_t left;
        const char* box;
    } kinds[] = {{AnswerKind::Message, dialogs.msgAnswers.size(), "message box"},
                 {AnswerKind::Input, dialogs.inputAnswers.size(), "input box"},
                 {AnswerKind::File, dialogs.fileAnswers.size(), "file dialog"}};
    for (const auto& kind : kinds) {
        if (kind.left == 0) continue;
        size_t queued = 0;
        for (const Pending& p : pending)
            queued += p.kind == kind.kind ? 1 : 0;
        size_t seen = 0;
        for (const Pending& p : pending) {
            if (p.kind != kind.kind || ++seen <= queued - kind.left) continue;
            dialogs.ClearAnswers();
            throw ScenarioError(
                std::string("no ") + kind.box + " came for the answer " + p.what +
                (p.line == line_ ? std::string() : " of line " + std::to_string(p.line)));
        }
    }
}

}  // namespace tarvex::scenario
