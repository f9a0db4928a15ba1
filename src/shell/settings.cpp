#include "shell/settings.h"

#include <clocale>
#include <filesystem>
#include <system_error>

#include "common/error.h"
#include "common/number_text.h"
#include "common/numbers.h"
#include "common/paths.h"
#include "common/text.h"
#include "platform/account_registry.h"
#include "shell/editor.h"
#include "shell/forms/frm_mission.h"
#include "shell/locate_file.h"
#include "shell/recent_files.h"

namespace tarvex {

namespace {

namespace fs = std::filesystem;

std::string CurrentFolder() {
    std::error_code error;
    const fs::path folder = fs::current_path(error);
    return error ? std::string() : folder.string();
}

std::string BoolText(bool value) {
    return value ? "True" : "False";
}

// A stored number that doesn't fit its variable reads as 0, as a missing one does.
template <typename Convert>
auto NumberSetting(Editor& ed, const std::string& key, Convert convert) -> decltype(convert(0.0)) {
    try {
        return convert(Val(GetSetting(ed, key)));
    } catch (const AppError&) {
        return decltype(convert(0.0)){};
    }
}

// The user's decimal separator. All number text of the program is written and read with "."
// whatever the locale says, so the locale itself is left alone.
std::string UserDecimalSeparator() {
    const std::lconv* conventions = std::localeconv();
    if (conventions && conventions->decimal_point && *conventions->decimal_point)
        return conventions->decimal_point;
    return ".";
}

void ReadLaterRun(Editor& ed) {
    AppSettings& o = ed.options;
    ed.db.DBPath = GetSetting(ed, "Sortak DB");
    if (ed.db.DBPath.empty()) ed.db.DBPath = DefaultDatabasePath();
    o.MapPath = GetSetting(ed, "Sortak Map");
    if (o.MapPath.empty()) o.MapPath = DefaultMapPath();
    o.LastTab = NumberSetting(ed, "Last Tab", [](double v) { return CInt(v); });
    o.ShowAllegiance = NumberSetting(ed, "Show Allegiance", [](double v) { return CByte(v); });
    o.ACListSize = NumberSetting(ed, "ACListSize", [](double v) { return CSng(v); });
    o.MDILeft = NumberSetting(ed, "MDI Left", [](double v) { return CSng(v); });
    o.MDITop = NumberSetting(ed, "MDI Top", [](double v) { return CSng(v); });
    o.SoundOn = SettingIsTrue(GetSetting(ed, "Sound On"));
    o.ToolTipsOn = SettingIsTrue(GetSetting(ed, "ToolTips On"));
    o.AutoUpdate = SettingIsTrue(GetSetting(ed, "Auto Update"));
    o.Measurement = SettingIsTrue(GetSetting(ed, "Measurement"));
    o.ShowDataWin = SettingIsTrue(GetSetting(ed, "ShowDataWin"));
    ChangeCurrentFolder(o.SimPath);
}

void ReadFirstRun(Editor& ed) {
    AppSettings& o = ed.options;
    ed.db.DBPath = DefaultDatabasePath();
    o.MapPath = DefaultMapPath();
    std::string sim = ed.svc.registry.ReadRegistryValue(RegistryRoot::LocalMachine,
                                                        kSimulatorRegistryKey, "path");
    if (!sim.empty()) {
        if (!IsPathSeparator(sim.back())) sim += kPathSeparator;
        o.SimPath = sim;
        ChangeCurrentFolder(o.SimPath);
    } else {
        o.SimPath = LocateFile(ed,
                               "Tarvex Simulator does not appear to be installed on your "
                               "computer\nDo you want to try and locate it yourself?",
                               "Unable to locate Tarvex Simulator Path", "(*.exe)|*.exe");
    }
    o.LastTab = 1;
    o.ShowAllegiance = 0;
    o.ACListSize = 1;
    o.MDILeft = 0;
    o.MDITop = 0;
    o.SoundOn = true;
    o.ToolTipsOn = true;
    o.AutoUpdate = false;
    o.Measurement = true;
    o.ShowDataWin = true;
}

}  // namespace

std::string DefaultDatabasePath() {
    return JoinPath(JoinPath(JoinPath(CurrentFolder(), "Sortak"), "Sortak Data"),
                    kDatabaseFileName);
}

std::string DefaultMapPath() {
    return JoinPath(JoinPath(CurrentFolder(), "Sortak"), "Sortak Maps") + kPathSeparator;
}

bool ChangeCurrentFolder(const std::string& folder) {
    if (folder.empty()) return false;
    std::error_code error;
    fs::current_path(NativePath(folder), error);
    return !error;
}

void ReadSettings(Editor& ed) {
    AppSettings& o = ed.options;
    o.OldDecimal = UserDecimalSeparator();
    o.DefName = ed.svc.registry.ReadRegistryValue(RegistryRoot::CurrentUser, kUserInfoRegistryKey,
                                                  "DefName");
    o.SimPath = GetSetting(ed, "Path");
    ed.shell.FirstRun = o.SimPath.empty();
    if (ed.shell.FirstRun)
        ReadFirstRun(ed);
    else
        ReadLaterRun(ed);
}

void SaveSettings(Editor& ed) {
    AppSettings& o = ed.options;
    if (ed.shell.MainWindowLoaded)
        o.LastTab = static_cast<std::int16_t>(ed.FrmMission.SSTab1.Tab());
    PutSetting(ed, "Path", o.SimPath);
    PutSetting(ed, "Sortak DB", ed.db.DBPath);
    PutSetting(ed, "Sortak Map", o.MapPath);
    PutSetting(ed, "Last Tab", IntText(o.LastTab));
    PutSetting(ed, "Show Allegiance", IntText(o.ShowAllegiance));
    PutSetting(ed, "ACListSize", FloatText(o.ACListSize));
    PutSetting(ed, "ToolTips On", BoolText(o.ToolTipsOn));
    PutSetting(ed, "Sound On", BoolText(o.SoundOn));
    PutSetting(ed, "Auto Update", BoolText(o.AutoUpdate));
    PutSetting(ed, "Measurement", BoolText(o.Measurement));
    PutSetting(ed, "ShowDataWin", BoolText(o.ShowDataWin));
    PutSetting(ed, "MDI Left", FloatText(o.MDILeft));
    PutSetting(ed, "MDI Top", FloatText(o.MDITop));
    SaveRecentFiles(ed);
}

}  // namespace tarvex
