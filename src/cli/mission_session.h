#pragma once
// The editor's File menu run on a headless editor: the dialogs are answered beforehand and
// the boxes the handlers show become the result.
#include <string>

#include "app/headless_editor.h"

namespace tarvex::cli {

struct Outcome {
    bool ok = true;
    std::string report;           // the text of the box that ended the operation
    bool missionWritten = false;  // a save that failed wrote the mission, but not its export
};

// File Open of the file (an absolute path): a fresh document, then the load. Fails with the
// load report when the load ends in one.
Outcome OpenMission(HeadlessEditor& editor, const std::string& path);

// The check that comes before a save; fails with the list of faults.
Outcome ValidateLoadedMission(HeadlessEditor& editor);

// File Save As to the file (an absolute path): validation, the save and its export. Fails
// with the validation text (validationFailed set; nothing was written) or the save report.
Outcome SaveMissionAs(HeadlessEditor& editor, const std::string& path, bool& validationFailed);

// The spreadsheet export of the loaded mission beside its file; fails with the reason.
Outcome ExportLoadedMission(HeadlessEditor& editor);

// The file the export of a mission file goes to: its name with "txt" in place of its last
// three characters.
std::string ExportPathOf(const std::string& missionPath);

// The first line of a report.
std::string FirstLine(const std::string& text);

}  // namespace tarvex::cli
