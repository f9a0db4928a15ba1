#include "library/mission_summary_scan.h"

#include <algorithm>
#include <filesystem>
#include <map>
#include <optional>
#include <system_error>
#include <vector>

#include "common/encoding.h"
#include "common/error.h"
#include "common/file_bytes.h"
#include "common/paths.h"
#include "common/text.h"
#include "library/summary_reader.h"
#include "refdata/transaction.h"
#include "shell/editor.h"
#include "shell/forms/frm_tbl_missions.h"
#include "shell/forms/mdi_mission_ed.h"
#include "shell/message_screen.h"
#include "shell/status_strip.h"

namespace tarvex {

namespace {

namespace fs = std::filesystem;

constexpr int kHourglass = 11;
constexpr int kDefaultPointer = 0;
// One block of the progress bar on the status strip.
constexpr const char* kBarBlock = "\xE2\x96\x88";

constexpr const char* kInsertRow =
    "INSERT INTO tblMissions (Title,Summary,Objective,[Type],[Date],[Time],Reqrd,Clouds,Wind,"
    "Visibility,Allegiance,Map,Filename) VALUES (?,?,?,?,?,?,?,?,?,?,?,?,?)";

// The names of the folder's mission files, as a listing of "*.mis" gives them: files only,
// the extension in any case. A folder that isn't there lists nothing.
std::vector<std::string> MissionFileNames(const std::string& folder) {
    std::vector<std::string> names;
    std::error_code error;
    fs::directory_iterator it(fs::path(std::u8string(folder.begin(), folder.end())), error);
    for (; !error && it != fs::directory_iterator(); it.increment(error)) {
        if (!it->is_regular_file(error)) continue;
        const std::u8string name = it->path().filename().u8string();
        std::string text(name.begin(), name.end());
        if (EndsWithText(text, ".mis")) names.push_back(std::move(text));
    }
    std::sort(names.begin(), names.end());
    return names;
}

FieldValue TextOrNull(const std::optional<std::string>& text) {
    return text ? FieldValue(Cp1252ToUtf8(*text)) : FieldValue();
}

template <typename T>
FieldValue NumberOrNull(const std::optional<T>& value) {
    return value ? FieldValue(static_cast<double>(*value)) : FieldValue();
}

// The bar on the status strip: a block per file. Blocks beyond the strip's right end change
// nothing on the screen, so the strip is written (and painted) only while the bar still grows
// where it can be seen.
class ProgressBar {
  public:
    explicit ProgressBar(Editor& ed) : ed_(ed) {
        PictureSurface& strip = ed.MDIMissionED.Picture1;
        const float block = std::max(1.0f, strip.TextWidth(kBarBlock));
        visibleBlocks_ = static_cast<int>(strip.Width() / block) + 1;
    }

    void Step() {
        bar_ += kBarBlock;
        if (++blocks_ > visibleBlocks_) return;
        ShowStatus(ed_, bar_, kStatusWarning);
        ed_.svc.clock.DoEvents();
    }

  private:
    Editor& ed_;
    std::string bar_;
    int blocks_ = 0;
    int visibleBlocks_ = 0;
};

void EndScanDisplay(Editor& ed) {
    CloseMessageScreen(ed);
    ed.MDIMissionED.SetMousePointer(kDefaultPointer);
    ShowStatus(ed, "");
}

bool AskToScan(Editor& ed) {
    MessageBoxRequest box;
    box.buttons = MsgButtons::YesNo;
    box.icon = MsgIcon::Question;
    if (ed.db.CheckMissionSummaries()) {
        box.text = "Mission Summary Data has already been loaded.\nDo you want to reload it?";
        box.title = "Reload Mission Summaries?";
    } else {
        box.text =
            "This option will read all files in the Mission folder to extract each Mission's "
            "Summary Data .\nThis process can take several minutes depending on how many files "
            "are present.\nOnce you have loaded the mission summaries you do not have to repeat "
            "this process\nunless you add new missions. Do you want to load the summary data?";
        box.title = "Load Mission Summaries?";
    }
    return ed.svc.dialogs.MsgBox(box) != MsgAnswer::No;
}

}  // namespace

std::uint8_t MapRecordNumber(Editor& ed, const std::string& name) {
    // A quotation mark in the name stays part of the name.
    std::string quoted;
    for (const char c : name)
        quoted += c == '"' ? std::string("\"\"") : std::string(1, c);
    Recordset& rs = ed.db.theRS;
    try {
        rs = ed.db.theDB.OpenRecordset("SELECT Recnum FROM Maps Where Name=\"" + quoted + "\"",
                                       kSnapshot);
        rs.MoveFirst();
        const std::uint8_t recnum = rs.Fields(0).Byte();
        rs.Close();
        return recnum;
    } catch (...) {
        rs.Close();
        throw;
    }
}

int ScanMissionFolder(Editor& ed, const std::string& folder, std::string& fileName,
                      const std::function<void()>& eachFile) {
    Database& db = ed.db.theDB;
    // The emptied table and every row of the run are one commit; a scan that ends in an
    // error commits the rows it wrote before the file that failed.
    Transaction transaction(db);
    db.Execute("DELETE * FROM tblMissions");

    // Missions of one folder name a handful of maps: each is looked up once per run.
    std::map<std::string, std::uint8_t> maps;
    const MapNumberLookup mapNumber = [&](const std::string& name) {
        auto it = maps.find(name);
        if (it == maps.end()) it = maps.emplace(name, MapRecordNumber(ed, name)).first;
        return it->second;
    };

    FolderReader files(folder);
    std::string bytes;
    std::vector<FieldValue> row;
    int written = 0;
    for (const std::string& name : MissionFileNames(folder)) {
        fileName = name;
        const std::string path = JoinPath(folder, name);
        const std::string_view text = files.Read(name, bytes);
        if (eachFile) eachFile();
        const MissionSummary s = ReadMissionSummary(text, mapNumber);
        row = {TextOrNull(s.Title),
               TextOrNull(s.Summary),
               TextOrNull(s.Objective),
               TextOrNull(s.Type),
               TextOrNull(s.Date),
               TextOrNull(s.Time),
               NumberOrNull(s.Reqrd),
               NumberOrNull(s.Clouds),
               NumberOrNull(s.Wind),
               NumberOrNull(s.Visibility),
               NumberOrNull(s.Allegiance),
               s.Map ? FieldValue(static_cast<int>(*s.Map)) : FieldValue(),
               FieldValue(path)};
        db.Execute(kInsertRow, row);
        ++written;
    }
    return written;
}

bool LoadMissionSummaries(Editor& ed) {
    std::string fileName;
    try {
        if (!AskToScan(ed)) return false;
        ShowMessageScreen(ed, "Loading Mission Details");
        ed.MDIMissionED.SetMousePointer(kHourglass);
        ProgressBar bar(ed);
        ScanMissionFolder(ed, JoinPath(ed.options.SimPath, "missions"), fileName,
                          [&bar] { bar.Step(); });
        ed.db.SummariesLoaded = true;
    } catch (const std::exception& e) {
        EndScanDisplay(ed);
        const auto* error = dynamic_cast<const AppError*>(&e);
        MessageBoxRequest box;
        box.text = "An error occurred trying to load Mission Summaries from files.\n[" +
                   (error ? error->Description() : std::string(e.what())) +
                   "]\nLast File loaded [" + fileName + "]";
        box.title = "Mission Summary Load Error";
        box.icon = MsgIcon::Exclamation;
        ed.svc.dialogs.MsgBox(box);
        ed.db.SummariesLoaded = false;
        return false;
    }
    EndScanDisplay(ed);
    ed.frmtblMissions.Show();
    return true;
}

void mnuMissDetail_Click(Editor& ed) {
    if (LoadMissionSummaries(ed)) ed.MDIMissionED.mnuMissions.SetEnabled(true);
}

}  // namespace tarvex
