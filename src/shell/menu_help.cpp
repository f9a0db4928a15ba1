#include "shell/menu_help.h"

#include "shell/editor.h"
#include "shell/forms/mdi_mission_ed.h"
#include "shell/status_strip.h"

namespace tarvex {

namespace {

struct EntryHelp {
    const MenuItem* entry;
    const char* text;
};

}  // namespace

std::string MenuHelpText(Editor& ed, const MenuItem& entry) {
    const auto& m = ed.MDIMissionED;
    const EntryHelp help[] = {
        {&m.mnuNew, "Create New Mission"},
        {&m.mnuOpen, "Open Mission File"},
        {&m.mnuSave, "Save the Current Mission"},
        {&m.mnuSaveAs, "Save the Current Mission with a Different File Name"},
        {&m.mnuExit, "Exit Editor"},
        {&m.mnuDel, "Delete Waypoint"},
        {&m.mnuClrPoints, "Delete All Waypoints from current Path"},
        {&m.mnuClrMap, "Delete All Paths"},
        {&m.mnuSummary, "Show Summary Tab"},
        {&m.mnuFormations, "Show Formations Tab"},
        {&m.mnuGroundUnits, "Show Ground Layout Tab"},
        {&m.mnuWaypoints, "Show Waypoints Tab"},
        {&m.mnuAddAC, "Add/Modify Aircraft records"},
        {&m.mnuGULayout, "Modify Ground Layout records"},
        {&m.mnuMissions, "Show Summaries of Single Missions."},
        {&m.mnuStationary, "Add Stationary Objects to the current Ground Layout "},
        {&m.mnuCompact,
         "As data is added/modified the database will grow and there will be a need to Compact "
         "it."},
        {&m.mnuMissDetail,
         "Scan Mission Folder for *.mis and extract Summary Data to be viewed under "
         "[Views/Missions Summary] Menu Option."},
        {&m.mnuAutoUpdate,
         "Toggle Auto Update On/Off. When ON will automatically set the ATTACK DIRECTIVE  for the "
         "group based on the AC selected."},
        {&m.mnuDist,
         "Toggle between Metric (Kilometer/Meters) and Imperial (Miles/Feet) for Speed and "
         "Distances."},
        {&m.mnuSndOn, "Toggle Sound On/Off"},
        {&m.mnuIncVol, "Increase Volume by 10%"},
        {&m.mnuDecVol, "Decrease Volume by 10%"},
        {&m.mnuTooltips, "Toggle Tooltips On/Off"},
    };
    for (const EntryHelp& h : help) {
        if (h.entry != &entry) continue;
        std::string text = h.text;
        // The summaries must exist before they can be shown: the help says where they come from.
        if (&entry == &m.mnuMissions && !entry.Enabled())
            text +=
                " Select the [Tool/Missions Summary] Menu Option first to make this option "
                "available.";
        return text;
    }
    return {};
}

void AttachMenuWatcher(Editor& ed) {
    ed.shell.MenuWatcherAttached = true;
}

void scMenus_Highlight(Editor& ed, const MenuItem& entry, bool byMouse) {
    if (!ed.shell.MenuWatcherAttached) return;
    Timer& delay = ed.MDIMissionED.tmrMenuHelp;
    // The help of an entry the pointer has just left must not come after this one.
    delay.SetEnabled(false);
    ShowStatus(ed, "");
    if (!byMouse || !entry.Children().empty()) return;
    ed.shell.MenuHelpText = MenuHelpText(ed, entry);
    delay.SetEnabled(true);
}

void tmrMenuHelp_Timer(Editor& ed) {
    ed.MDIMissionED.tmrMenuHelp.SetEnabled(false);
    ShowStatus(ed, ed.shell.MenuHelpText, kStatusWarning);
}

}  // namespace tarvex
