// tarvex-mis scan: the editor's mission summary scan, without its question and its windows.
#include <ostream>

#include "cli/command_setup.h"
#include "cli/commands.h"
#include "cli/mission_info.h"
#include "common/error.h"
#include "common/paths.h"
#include "library/mission_summary_scan.h"
#include "shell/editor.h"

namespace tarvex::cli {

namespace {

constexpr const char* kFields[] = {"MissionID",  "Title", "Type",       "Summary", "Objective",
                                   "Date",       "Time",  "Reqrd",      "Clouds",  "Wind",
                                   "Visibility", "Map",   "Allegiance", "Filename"};

std::string JsonValue(const FieldValue& value) {
    switch (value.GetKind()) {
        case FieldValue::Kind::Null:
            return "null";
        case FieldValue::Kind::Text:
            return JsonText(value.Text());
        default:
            return value.Text();
    }
}

// The rows of tblMissions in the order the scan wrote them.
void PrintRowsJson(Editor& ed, std::ostream& out) {
    Recordset rows = ed.db.theDB.OpenRecordset(
        "SELECT MissionID,Title,[Type],Summary,Objective,[Date],[Time],Reqrd,Clouds,Wind,"
        "Visibility,Map,Allegiance,Filename FROM tblMissions ORDER BY MissionID",
        kSnapshot);
    out << "[";
    bool first = true;
    for (; !rows.Eof(); rows.MoveNext()) {
        out << (first ? "\n  {" : ",\n  {");
        first = false;
        for (int i = 0; i < rows.FieldCount(); ++i)
            out << (i ? ", " : "") << JsonText(kFields[i]) << ": " << JsonValue(rows.Value(i));
        out << "}";
    }
    out << (first ? "]\n" : "\n]\n");
}

}  // namespace

int RunScan(const CommonOptions& options, bool json, std::ostream& cout, std::ostream& cerr) {
    ScratchDatabase unused;
    auto editor = StartEditor(options, false, unused, cerr);
    if (!editor) return kExitNoDatabase;
    Editor& ed = editor->ed();
    const std::string folder = JoinPath(ed.options.SimPath, "missions");
    std::string fileName;
    int count = 0;
    try {
        count = ScanMissionFolder(ed, folder, fileName);
        if (json) {
            PrintRowsJson(ed, cout);
        } else {
            cout << count << " missions read\n";
        }
    } catch (const AppError& e) {
        cerr << "tarvex-mis: " << JoinPath(folder, fileName) << ": " << e.Description()
             << " Error [" << e.Number() << "]; the missions before it are in tblMissions\n";
        return kExitLoadFailed;
    }
    return kExitOk;
}

}  // namespace tarvex::cli
