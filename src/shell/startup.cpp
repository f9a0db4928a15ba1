#include "shell/startup.h"

#include <exception>
#include <filesystem>
#include <system_error>

#include "common/paths.h"
#include "common/text.h"
#include "document/mission_loader.h"
#include "document/mission_reset.h"
#include "maps/tab_selection.h"
#include "shell/editor.h"
#include "shell/forms/frm_mission.h"
#include "shell/forms/frm_splash.h"
#include "shell/forms/mdi_mission_ed.h"
#include "shell/locate_file.h"
#include "shell/measurement.h"
#include "shell/menu_help.h"
#include "shell/mission_form_load.h"
#include "shell/options_menu.h"
#include "shell/program_exit.h"
#include "shell/recent_files.h"
#include "shell/settings.h"
#include "shell/sounds.h"
#include "shell/tooltips.h"
#include "shell/window_sizes.h"

namespace tarvex {

namespace {

namespace fs = std::filesystem;

constexpr float kSecondCopyOffset = 240;
constexpr float kMainWindowHeight = 7296;
constexpr int kTabCount = 4;

// The bare name of the file the text names, empty when there is no such file.
std::string ExistingFileName(const std::string& path) {
    std::error_code error;
    const fs::path file(NativePath(path));
    if (!fs::is_regular_file(file, error) || error) return {};
    return file.filename().string();
}

// A step of the main window's load that must not stop the window from coming up.
template <typename Step>
void Cosmetic(Step step) {
    try {
        step();
    } catch (const std::exception&) {
    }
}

// The command line as one path: blanks and a pair of enclosing quotes are not part of it.
std::string CommandPath(const std::string& commandLine) {
    std::string path = Trim(commandLine);
    if (path.size() >= 2 && path.front() == '"' && path.back() == '"')
        path = path.substr(1, path.size() - 2);
    return path;
}

}  // namespace

bool CheckSecondCopy(Editor& ed, const std::string& commandLine) {
    InstanceChannel& instance = ed.svc.instance;
    if (!instance.PrevInstance()) return true;
    ed.shell.SecondCopy = true;
    const bool fileNamed = !commandLine.empty();
    std::string caption = kProgramTitle;
    if (fileNamed) caption += ": " + ExistingFileName(commandLine);

    // Renamed first, so that the search can only find the other copy.
    ed.shell.AppTitle = "... duplicate instance.";
    ed.frmSplash.SetCaption("... duplicate instance.");
    if (instance.FindWindowByCaption(caption) && fileNamed) {
        const MsgAnswer answer = ed.svc.dialogs.MsgBox(
            {"Previous instance of " + caption +
                 " exists.\nDo you want to open another copy of this file?",
             "Tarvex Editor Duplication", MsgButtons::YesNo, MsgIcon::Question});
        if (answer != MsgAnswer::Yes) {
            instance.RestoreWindow(caption);
            return false;
        }
    }
    ed.frmSplash.SetCaption("");
    return true;
}

bool LoadSplash(Editor& ed, const std::string& commandLine) {
    ed.shell.CommandLine = commandLine;
    if (!CheckSecondCopy(ed, commandLine)) {
        EndProgram(ed);
        return false;
    }
    ReadSettings(ed);
    if (ed.shell.SecondCopy) {
        // Each further copy opens offset from the last one, and the next starts from there.
        ed.options.MDILeft += kSecondCopyOffset;
        ed.options.MDITop += kSecondCopyOffset;
        SaveSettings(ed);
    }

    auto& splash = ed.frmSplash;
    if (!splash.picSplash.LoadPicture(JoinPath(ed.options.MapPath, "Splash.bmp"))) {
        const std::string folder =
            LocateFile(ed,
                       "Unable to locate <Sortak\\Sortak Maps\\Splash.bmp> files\nDo you want to "
                       "try and locate it yourself?",
                       "Unable to locate <*.bmp>", "(*.bmp)|*.bmp");
        if (folder.empty()) {
            EndProgram(ed);
            return false;
        }
        ed.options.MapPath = folder;
        splash.picSplash.LoadPicture(JoinPath(folder, "Splash.bmp"));
    }

    splash.Timer1.SetInterval(1000);
    splash.Timer1.SetEnabled(true);
    // Centring on the screen is the desktop's business; the model keeps no screen size.
    splash.SetVisible(true);
    return true;
}

bool EndSplash(Editor& ed) {
    auto& splash = ed.frmSplash;
    // The timer and the click may both come, the click even while the main window loads;
    // only the first one counts.
    if (ed.shell.SplashEnded || ed.shell.Ended) return !ed.shell.Ended;
    ed.shell.SplashEnded = true;
    splash.Timer1.SetEnabled(false);
    const bool loaded = LoadMainWindow(ed);
    splash.SetVisible(false);
    if (!loaded) EndProgram(ed);
    return loaded;
}

bool LoadMainWindow(Editor& ed) {
    Mission& doc = ed.doc;
    AppSettings& o = ed.options;
    auto& main = ed.MDIMissionED;
    auto& frm = ed.FrmMission;

    // Handlers stay quiet while the lists and controls are filled.
    doc.EventsOn = false;
    doc.NotResetting = false;
    doc.NotLoading = false;

    LoadRecentFiles(ed);
    if (!ed.db.OpenReferenceDatabase(ed.svc.dialogs)) return false;
    ShowACListSize(ed);
    const MissionSummariesCheck summaries = ed.db.CheckMissionSummaries(ed.svc.dialogs);
    if (summaries.endProgram) return false;
    main.mnuMissions.SetEnabled(summaries.summariesLoaded);

    main.Move(o.MDILeft, o.MDITop);
    main.SetHeight(kMainWindowHeight);
    doc.NotLoading = true;

    LoadFrmMission(ed);
    // The document's arrays start as a reset leaves them.
    Cosmetic([&] { ResetDocumentArrays(ed); });
    PlaceMissionWindow(ed);
    frm.SetVisible(true);

    if (o.ToolTipsOn) {
        SetTooltips(ed);
    } else {
        ClearTooltips(ed);
    }
    ApplyMeasurement(ed);
    main.mnuTooltips.SetChecked(o.ToolTipsOn);
    ShowSoundState(ed);
    main.mnuAutoUpdate.SetChecked(o.AutoUpdate);

    // A stored tab that no longer exists shows the Summary.
    const int tab = o.LastTab >= 0 && o.LastTab < kTabCount ? o.LastTab : 0;
    Cosmetic([&] { frm.SSTab1.SetTab(tab); });
    Cosmetic([&] {
        SetSummaryDefaults(ed);
        SelectTab(ed, frm.SSTab1.Tab());
    });

    StartSoundEngine(ed);
    doc.NotResetting = true;
    doc.EventsOn = true;
    AttachMenuWatcher(ed);
    ChangeCurrentFolder(o.SimPath);
    main.SetVisible(true);
    ed.shell.MainWindowLoaded = true;

    OpenFileFromCommand(ed, ed.shell.CommandLine);
    return true;
}

void OpenFileFromCommand(Editor& ed, const std::string& path) {
    if (!EndsWithText(path, ".MIS")) return;
    Mission& doc = ed.doc;
    doc.MissionPath = path;
    doc.MissionFile = fs::path(NativePath(path)).filename().string();
    ResetMission(ed);
    LoadMission(ed);
}

bool StartProgram(Editor& ed, const std::string& commandLine, bool skipSplash) {
    if (!LoadSplash(ed, CommandPath(commandLine))) return false;
    if (skipSplash) return EndSplash(ed);
    return true;
}

void Timer1_Timer(Editor& ed) {
    EndSplash(ed);
}

void picSplash_Click(Editor& ed) {
    EndSplash(ed);
}

}  // namespace tarvex
