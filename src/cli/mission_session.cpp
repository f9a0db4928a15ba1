#include "cli/mission_session.h"

#include <exception>

#include "common/error.h"
#include "common/number_text.h"
#include "document/mission_export.h"
#include "document/mission_saver.h"
#include "document/mission_validation.h"
#include "shell/file_menu.h"

namespace tarvex::cli {

namespace {

// The box that ended an operation: a report or an error box, shown with the stop icon.
Outcome FromBoxes(HeadlessEditor& editor, MsgIcon failureIcon) {
    Outcome outcome;
    for (const MessageBoxRequest& box : editor.TakeMessages()) {
        if (box.icon != failureIcon || !outcome.ok) continue;
        outcome.ok = false;
        outcome.report = box.text;
    }
    return outcome;
}

}  // namespace

Outcome OpenMission(HeadlessEditor& editor, const std::string& path) {
    editor.TakeMessages();
    editor.dialogs().openAnswers.clear();
    editor.dialogs().QueueOpen(path);
    mnuOpen_Click(editor.ed());
    return FromBoxes(editor, MsgIcon::Critical);
}

Outcome ValidateLoadedMission(HeadlessEditor& editor) {
    editor.TakeMessages();
    if (ValidateMission(editor.ed())) return {};
    Outcome outcome = FromBoxes(editor, MsgIcon::Exclamation);
    outcome.ok = false;
    return outcome;
}

Outcome SaveMissionAs(HeadlessEditor& editor, const std::string& path, bool& validationFailed) {
    validationFailed = false;
    Outcome check = ValidateLoadedMission(editor);
    if (!check.ok) {
        validationFailed = true;
        return check;
    }
    editor.dialogs().saveAnswers.clear();
    editor.dialogs().QueueSave(path);
    FileSaveAs(editor.ed());
    Outcome outcome = FromBoxes(editor, MsgIcon::Critical);
    // The export is the last step, after the mission file is in place.
    outcome.missionWritten = !outcome.ok && editor.ed().StepText == "Saving EXCEL Import File";
    // Validation passed once already and nothing changed since; a second refusal can't come,
    // but a dialog that wasn't asked would leave the file unwritten without a word.
    if (outcome.ok && !editor.dialogs().saveAnswers.empty()) {
        outcome.ok = false;
        outcome.report = "the mission was not saved";
    }
    return outcome;
}

Outcome ExportLoadedMission(HeadlessEditor& editor) {
    Editor& ed = editor.ed();
    ed.StepText = "Saving EXCEL Import File";
    ed.StepDetail.clear();
    Outcome outcome;
    try {
        ExportForSpreadsheet(ed);
    } catch (const AppError& e) {
        outcome.ok = false;
        outcome.report = e.Description() + " Error [" + IntText(e.Number()) + "]";
    } catch (const std::exception& e) {
        outcome.ok = false;
        outcome.report = e.what();
    }
    return outcome;
}

std::string ExportPathOf(const std::string& missionPath) {
    const size_t keep = missionPath.size() >= 3 ? missionPath.size() - 3 : 0;
    return missionPath.substr(0, keep) + "txt";
}

std::string FirstLine(const std::string& text) {
    const size_t end = text.find_first_of("\r\n");
    return end == std::string::npos ? text : text.substr(0, end);
}

}  // namespace tarvex::cli
