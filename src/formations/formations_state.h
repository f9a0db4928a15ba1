#pragma once
// The working values of the Formations tab: the new-record dialog, the patterns, the timed
// status text and the blink of the directive, and the preview of a group's path.
#include <cstdint>
#include <string>

namespace tarvex {

class ListBox;

struct FormationsState {
    // ---- frmNewRecord ---------------------------------------------------------------------
    // lstGroupName or lstPilotName; its tag tells the two modes apart.
    ListBox* NewRecordList = nullptr;
    std::string NewRecordCaption;
    // Opened by a double click on a row rather than by a "..." button.
    bool NewRecordEditMode = false;
    bool NewRecordOpen = false;
    // Row count + 1 of the next generic name; a group number of 0 stops generic group names.
    std::int16_t GenericGroupNumber = 0;
    std::int16_t GenericPilotNumber = 0;
    // The row to select when the dialog closes; -1 until the first Add of an opening.
    std::int16_t LastAddedRow = -1;

    // ---- Patterns ---------------------------------------------------------------------------
    // The row cmbFormPattern goes back to when a change of pattern is refused.
    std::int16_t PreviousPattern = 0;
    // The refused change is being undone: the return runs without a second box.
    bool ReturningToPreviousPattern = false;

    // ---- tmrSetColor ------------------------------------------------------------------------
    // The red status text that turns to the normal colour when the timer runs out.
    std::string TimedStatusText;
    // Ticks of the directive's blink.
    int BlinkCount = 0;

    // ---- The preview of a group's first path on mapWayPoints --------------------------------
    bool PreviewShown = false;
    int PreviewPath = 0;
    float PreviewMapLeft = 0;
    float PreviewMapTop = 0;
    bool PreviewOverlayOn = false;
};

}  // namespace tarvex
