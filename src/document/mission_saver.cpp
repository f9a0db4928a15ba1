#include "document/mission_saver.h"

#include <filesystem>
#include <system_error>

#include "common/encoding.h"
#include "common/error.h"
#include "common/number_text.h"
#include "common/paths.h"
#include "common/text.h"
#include "common/atomic_file_writer.h"
#include "document/mission_export.h"
#include "document/mission_validation.h"
#include "document/mission_writers.h"
#include "refdata/transaction.h"
#include "shell/editor.h"
#include "shell/error_box.h"
#include "shell/forms/frm_mission.h"
#include "shell/forms/frm_msg_screen.h"
#include "shell/forms/mdi_mission_ed.h"
#include "shell/recent_files.h"
#include "shell/status_strip.h"

namespace tarvex {

namespace {

constexpr int kPointerDefault = 0;
constexpr int kPointerHourglass = 11;

void ShowSavingScreen(Editor& ed, const std::string& text) {
    ed.frmMsgScreen.lblMessage.SetCaption(text);
    ed.frmMsgScreen.SetVisible(true);
    ed.svc.clock.DoEvents();
}

void EndSavingScreen(Editor& ed) {
    ed.frmMsgScreen.SetVisible(false);
    ed.MDIMissionED.SetMousePointer(kPointerDefault);
}

void ShowSaveReport(Editor& ed, int number, const std::string& description) {
    EndSavingScreen(ed);
    ed.svc.dialogs.MsgBox({"While [*** " + ed.StepText + ed.StepDetail + " ***].\n" +
                               "The following error occurred\n" + description + " Error [" +
                               IntText(number) + "]",
                           ed.doc.MissionFile + " *** Save Mission File Error ***", MsgButtons::OK,
                           MsgIcon::Critical});
}

struct WriterStep {
    const char* stepText;
    void (*write)(Editor&, FileText&);
};

constexpr WriterStep kWriterSteps[] = {
    {"Saving Summary Data", WriteSummarySection},
    {"Saving Unit Data", WriteUnitSections},
    {"Saving Unit Type Data", WriteUnitTypeSections},
    {"Saving Waypoint Data", WriteWaypointPathSections},
    {"Saving Formation Data", WriteFormationSections},
    {"Saving Runway Data", WriteRunwaySections},
    {"Saving String Data", WriteStringsSection},
};

std::string ComposeText(Editor& ed) {
    FileText text;
    for (const WriterStep& step : kWriterSteps) {
        ed.StepDetail.clear();
        ed.StepText = step.stepText;
        step.write(ed, text);
    }
    return Utf8ToCp1252(text.Text());
}

// The mission file and its export; any failure is raised to the save report.
void WriteMissionFiles(Editor& ed) {
    // All lookups of a save read one state of the reference database.
    Transaction snapshot(ed.db.theDB);
    ed.StepText = "Opening file for Save.";
    ed.StepDetail.clear();
    // The export takes the mission's name with "txt" for its last three characters: under
    // any other name than "....mis" it could be the mission itself.
    if (!EndsWithText(ed.doc.MissionPath, ".mis"))
        Raise(kErrPathAccess,
              ed.doc.MissionPath + ": a mission is saved only under a name ending in .mis");
    AtomicFileWriter file(ed.doc.MissionPath);
    const std::string bytes = ComposeText(ed);
    // The text goes to disk in one piece, after the steps that composed it.
    ed.StepText = "Writing the mission file to disk";
    ed.StepDetail.clear();
    file.Write(bytes);
    file.Commit();

    ed.StepText = "Saving EXCEL Import File";
    ed.StepDetail.clear();
    ExportForSpreadsheet(ed);
}

}  // namespace

int ChooseMissionToSave(Editor& ed, std::string& path) {
    Mission& doc = ed.doc;
    CommonDialog& dialog = ed.FrmMission.CommonDialog1;
    try {
        dialog.SetDialogs(ed.svc.dialogs);
        dialog.CancelError = true;
        dialog.DialogTitle = "Save Mission Data";
        dialog.Filter = "(*.mis)|*.mis";
        dialog.InitDir = JoinPath(ed.options.SimPath, "missions");
        // A recent entry of the missions folder carries the folder in front of its name.
        if (doc.MissionFile.find("missions\\") != std::string::npos ||
            doc.MissionFile.find("missions/") != std::string::npos)
            doc.MissionFile = Mid(doc.MissionFile, 10);
        dialog.FileName = doc.MissionFile;
        dialog.ShowSave();
        path = dialog.FileName;
        doc.MissionFile = dialog.FileTitle;
        if (!EndsWithText(path, ".mis")) {
            path += ".mis";
            doc.MissionFile += ".mis";
        }
        return 0;
    } catch (const AppError& e) {
        if (e.Number() != kErrCancel) ShowErrorBox(ed, e.Number(), e.Description());
        return -1;
    }
}

void SaveMission(Editor& ed) {
    ShowSavingScreen(ed, "Saving Mission File");
    ShowStatus(ed, "Saving " + ed.doc.MissionPath, kStatusNormal);
    ed.MDIMissionED.SetMousePointer(kPointerHourglass);

    try {
        WriteMissionFiles(ed);
    } catch (const AppError& e) {
        ShowSaveReport(ed, e.Number(), e.Description());
        return;
    } catch (const std::exception& e) {
        ShowSaveReport(ed, kErrInvalidCall, e.what());
        return;
    }

    RememberMission(ed);
    if (!ed.options.SimPath.empty()) {
        std::error_code ignored;
        std::filesystem::current_path(NativePath(ed.options.SimPath), ignored);
    }
    ed.MDIMissionED.SetCaption("Tarvex Mission Editor: " + ed.doc.MissionFile);
    EndSavingScreen(ed);
    ShowStatus(ed, "Ready...", kStatusNormal);
}

std::string ComposeMissionText(Editor& ed) {
    Transaction snapshot(ed.db.theDB);
    return ComposeText(ed);
}

void FileSave(Editor& ed) {
    if (!ValidateMission(ed)) return;
    const bool named = EndsWithText(ed.doc.MissionPath, ".mis");
    if (!named && ChooseMissionToSave(ed, ed.doc.MissionPath) != 0) return;
    SaveMission(ed);
}

void FileSaveAs(Editor& ed) {
    if (!ValidateMission(ed)) return;
    if (ChooseMissionToSave(ed, ed.doc.MissionPath) == 0) SaveMission(ed);
}

}  // namespace tarvex
