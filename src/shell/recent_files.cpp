#include "shell/recent_files.h"

#include "common/number_text.h"
#include "common/paths.h"
#include "document/mission_loader.h"
#include "document/mission_reset.h"
#include "shell/editor.h"
#include "shell/forms/mdi_mission_ed.h"
#include "shell/setting_values.h"
#include "shell/shell_state.h"

namespace tarvex {

namespace {

std::string FileKey(int k) {
    return "File " + IntText(k);
}

}  // namespace

void LoadRecentFiles(Editor& ed) {
    for (int k = 1; k <= 4; ++k)
        ed.options.RecentFiles[k] = GetSetting(ed, FileKey(k));
    ShowRecentFiles(ed);
}

void SaveRecentFiles(Editor& ed) {
    for (int k = 1; k <= 4; ++k)
        PutSetting(ed, FileKey(k), ed.options.RecentFiles[k]);
}

void AddRecentFile(Editor& ed, const std::string& name) {
    auto& files = ed.options.RecentFiles;
    for (int k = 1; k <= 4; ++k) {
        if (files[k] != name) continue;
        for (int j = k; j < 4; ++j)
            files[j] = files[j + 1];
        files[4].clear();
        break;
    }
    for (int k = 4; k > 1; --k)
        files[k] = files[k - 1];
    files[1] = name;
    ShowRecentFiles(ed);
}

void ShowRecentFiles(Editor& ed) {
    auto& menu = ed.MDIMissionED.mnudummy;
    for (int k = 1; k <= 4; ++k) {
        const std::string& entry = ed.options.RecentFiles[k];
        menu(k).SetCaption(entry);
        menu(k).SetVisible(!entry.empty());
    }
    if (!ed.options.RecentFiles[1].empty()) menu(0).SetVisible(true);
}

void RememberMission(Editor& ed) {
    const Mission& doc = ed.doc;
    AddRecentFile(ed,
                  InStrPath(doc.MissionPath, "Missions\\") > 0 ? doc.MissionFile : doc.MissionPath);
}

void OpenRecentFile(Editor& ed, int k) {
    if (k < 1 || k > 4) return;
    const std::string entry = ed.options.RecentFiles[k];
    if (entry.empty()) return;
    Mission& doc = ed.doc;
    LoweredFlag loading(doc.NotLoading);
    ResetMission(ed);
    // A bare name is a mission of the simulator's folder, which is the current one.
    const bool hasFolder =
        entry.find('\\') != std::string::npos || entry.find('/') != std::string::npos;
    doc.MissionPath = hasFolder ? entry : JoinPath("missions", entry);
    doc.MissionFile = entry;
    LoadMission(ed);
}

void mnudummy_Click(Editor& ed, int k) {
    // Entry 0 is the separator above the list.
    if (k >= 1 && k <= 4) OpenRecentFile(ed, k);
}

}  // namespace tarvex
