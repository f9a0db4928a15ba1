#include "shell/forms/mdi_mission_ed.h"

namespace tarvex {

namespace {

// An entry under its parent: its caption ("-" for a separator) and shortcut, entered under its
// parent.
void Under(MenuItem& parent, MenuItem& item, const char* caption, const char* shortcut = "") {
    item.SetCaption(caption);
    item.SetShortcut(shortcut);
    parent.AddChild(item);
}

}  // namespace

MDIMissionED::MDIMissionED() : Form("MDIMissionED"), mnudummy(0, 4) {
    SetCaption("Tarvex Mission Editor");
    // As wide as the mission window it holds, with its border.
    Move(0, 0, 9516, 7296);

    // The status strip keeps to the bottom edge over the whole width.
    constexpr float kStripHeight = 330;
    Add(NAMED(Picture1), Self(), {0, Height() - kStripHeight, Width(), kStripHeight});
    Add(NAMED(tmrMenuHelp));
    tmrMenuHelp.SetEnabled(false);
    tmrMenuHelp.SetInterval(1);

    // The names first, in menu order, so that the register lists the entries as the bar does.
    Add(NAMED(mnuFile));
    Add(NAMED(mnuNew));
    Add(NAMED(mnuOpen));
    Add(NAMED(mnuFileSpc1));
    Add(NAMED(mnuSave));
    Add(NAMED(mnuSaveAs));
    Add(NAMED(mnudummy));
    Add(NAMED(mnuFileSpc3));
    Add(NAMED(mnuExit));
    Add(NAMED(mnuEdit));
    Add(NAMED(mnuCut));
    Add(NAMED(mnuCopy));
    Add(NAMED(mnuPaste));
    Add(NAMED(editb1));
    Add(NAMED(mnuDel));
    Add(NAMED(mnuClrPoints));
    Add(NAMED(mnuClrMap));
    Add(NAMED(mnuView));
    Add(NAMED(mnuSummary));
    Add(NAMED(mnuFormations));
    Add(NAMED(mnuGroundUnits));
    Add(NAMED(mnuWaypoints));
    Add(NAMED(mnuViewSpace));
    Add(NAMED(mnuAddAC));
    Add(NAMED(mnuGULayout));
    Add(NAMED(mnuVspace));
    Add(NAMED(mnuMissions));
    Add(NAMED(mnuStationary));
    Add(NAMED(mnuTools));
    Add(NAMED(mnuCompact));
    Add(NAMED(mnuMissDetail));
    Add(NAMED(mnuspace));
    Add(NAMED(mnuoptions));
    Add(NAMED(mnuACList));
    Add(NAMED(mnuACListNorm));
    Add(NAMED(mnuACListInc));
    Add(NAMED(mnuACListDec));
    Add(NAMED(mnuAutoUpdate));
    Add(NAMED(mnuDist));
    Add(NAMED(mnuSound));
    Add(NAMED(mnuSndOn));
    Add(NAMED(mnuIncVol));
    Add(NAMED(mnuDecVol));
    Add(NAMED(mnuTooltips));
    Add(NAMED(mnuWindows));
    Add(NAMED(mnuHelp));
    Add(NAMED(mnuAbout));

    mnuFile.SetCaption("&File");
    Under(mnuFile, mnuNew, "&New", "Ctrl+N");
    Under(mnuFile, mnuOpen, "&Open...", "Ctrl+O");
    Under(mnuFile, mnuFileSpc1, "-");
    Under(mnuFile, mnuSave, "Sa&ve...", "Ctrl+S");
    Under(mnuFile, mnuSaveAs, "Sav&e As...", "F12");
    // The recent files stay hidden until the list has entries to show.
    Under(mnuFile, mnudummy(0), "-");
    for (int k = 1; k <= 4; ++k)
        Under(mnuFile, mnudummy(k), "");
    for (int k = 0; k <= 4; ++k)
        mnudummy(k).SetVisible(false);
    Under(mnuFile, mnuFileSpc3, "-");
    Under(mnuFile, mnuExit, "E&xit");

    // Cut, Copy and Paste are there for the look of a standard Edit menu only.
    mnuEdit.SetCaption("&Edit");
    Under(mnuEdit, mnuCut, "Cu&t", "Ctrl+X");
    Under(mnuEdit, mnuCopy, "&Copy", "Ctrl+C");
    Under(mnuEdit, mnuPaste, "&Paste", "Ctrl+V");
    Under(mnuEdit, editb1, "-");
    Under(mnuEdit, mnuDel, "&Delete", "Del");
    Under(mnuEdit, mnuClrPoints, "Clear &Points");
    Under(mnuEdit, mnuClrMap, "Clear &Map");
    mnuCut.SetEnabled(false);
    mnuCopy.SetEnabled(false);
    mnuPaste.SetEnabled(false);
    mnuDel.SetEnabled(false);
    mnuClrMap.SetEnabled(false);

    mnuView.SetCaption("&View");
    Under(mnuView, mnuSummary, "&Summary");
    Under(mnuView, mnuFormations, "&Formations");
    Under(mnuView, mnuGroundUnits, "&Ground Units");
    Under(mnuView, mnuWaypoints, "&Waypoints");
    Under(mnuView, mnuViewSpace, "-");
    Under(mnuView, mnuAddAC, "&Aircrafts...", "F5");
    Under(mnuView, mnuGULayout, "Ground &Layouts...", "F6");
    Under(mnuView, mnuVspace, "-");
    Under(mnuView, mnuMissions, "Missions Summary...", "F2");
    Under(mnuView, mnuStationary, "&Stationary Types...", "F3");
    // Missions waits for summaries to exist, Stationary for the layout editor.
    mnuMissions.SetEnabled(false);
    mnuStationary.SetEnabled(false);

    mnuTools.SetCaption("&Tools");
    Under(mnuTools, mnuCompact, "&Compact Database");
    Under(mnuTools, mnuMissDetail, "&Missions Summary");
    Under(mnuTools, mnuspace, "-");
    Under(mnuTools, mnuoptions, "&Options");
    Under(mnuoptions, mnuACList, "AC List Size");
    Under(mnuACList, mnuACListNorm, "Normal");
    Under(mnuACList, mnuACListInc, "Increase Size");
    Under(mnuACList, mnuACListDec, "Decrease Size");
    Under(mnuoptions, mnuAutoUpdate, "Auto &Update");
    Under(mnuoptions, mnuDist, "Metric &Distance");
    Under(mnuoptions, mnuSound, "&Sound...");
    Under(mnuSound, mnuSndOn, "Dis&abled");
    Under(mnuSound, mnuIncVol, "&Increase Volume");
    Under(mnuSound, mnuDecVol, "&Decrease Volume");
    Under(mnuoptions, mnuTooltips, "&Tooltips");
    // The option entries show the first-run settings until the settings are applied at load:
    // normal list size, metric, sound and tooltips on, Auto Update off. The distance entry
    // always carries its check mark; its caption names the unit system in force.
    mnuACListNorm.SetChecked(true);
    mnuACListDec.SetEnabled(false);
    mnuDist.SetChecked(true);
    mnuTooltips.SetChecked(true);

    mnuWindows.SetCaption("&Windows");

    mnuHelp.SetCaption("&Help");
    Under(mnuHelp, mnuAbout, "&About...");

    menuBar_ = {&mnuFile, &mnuEdit, &mnuView, &mnuTools, &mnuWindows, &mnuHelp};
}

}  // namespace tarvex
