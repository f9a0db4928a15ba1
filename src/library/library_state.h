#pragma once
// The working values of the mission summary scan and the mission browser.
namespace tarvex {

struct LibraryState {
    // frmtblMissions is open: the summaries are neither rebuilt nor compacted under it.
    bool MissionBrowserOpen = false;
};

}  // namespace tarvex
