#pragma once
// The working values of the Ground units tab, the layout editor, the offsets window and the layout
// records.
#include <array>
#include <cstdint>
#include <string>

namespace tarvex {

struct GroundState {
    // ---- The tab: the layouts of the mission --------------------------------------------------
    // The row of lstGUAdded in use: the index into the layout arrays for every handler of the
    // tab and of the editor.
    std::int16_t CurrentLayout = 0;
    // The row selected before it, whose marker loses its highlight; negative for none.
    std::int16_t PreviousLayout = -1;
    // GUType and IsDefault of the layout last looked at.
    std::uint8_t LayoutType = 0;
    bool LayoutIsDefault = false;
    // A marker is being dragged, and its row.
    bool MovingLayout = false;
    std::int16_t MovingRow = 0;
    // A key went down in txtGULatLon: only typing re-reads the origin from its text.
    bool LatLonKeyDown = false;

    // ---- The layout editor ----------------------------------------------------------------
    // GrndNames.ID of the layout shown.
    std::int32_t EditedLayoutID = 0;
    // The layout's shift and spread as the picture uses them; ViewShiftY counts down the screen.
    float ViewShiftX = 0;
    float ViewShiftY = 0;
    float ViewSpread = 0;
    // Display only: 1.0 to 8.0.
    float ZoomFactor = 2.0f;
    // Half the length of the cursor's arms, in map units.
    std::int16_t CursorSize = 240;
    // Row of the unit selected in the offsets grid, -1 for none.
    std::int16_t SelectedUnit = -1;
    // The origin in degrees, and where the cursor stands as four-decimal coordinate text.
    double OriginLat = 0;
    double OriginLon = 0;
    std::string CenterLat;
    std::string CenterLon;
    // The cursor's step from the origin along each axis: statute miles with their sign, and
    // the course of the step. btnXPos writes element AxisXSlot, btnYPos element AxisYSlot;
    // each Rotate 90 exchanges the two.
    std::array<float, 3> StepDistance{};
    std::array<float, 3> StepBearing{};
    std::int16_t AxisXSlot = 0;
    std::int16_t AxisYSlot = 1;
    // Save Layout ran since the editor was entered: the layout lists need a refill at Close.
    bool LayoutSaved = false;
    // The layout in the editor is a default one: its units can't be changed.
    bool LayoutLocked = false;
    // fraStationary was showing when the stationary list was last shown or hidden; the next
    // entry of the editor shows it again.
    bool StationaryShown = false;
    // frmGUOffsets is loaded.
    bool OffsetsOpen = false;
    // fraStationary is being dragged, and where the pointer grabbed it.
    bool StationaryDragging = false;
    float StationaryAnchorX = 0;
    float StationaryAnchorY = 0;

    // ---- The offsets window ---------------------------------------------------------------
    // The grid's column less 2: 2 and 3 name XOffset and YOffset.
    std::int16_t OffsetColumn = 0;
    // btnOffsetEdit's value at its last change.
    std::int32_t OffsetLastValue = 0;
    // 100, or 1000 while Shift is held: a step of btnOffsetEdit is 1 / this layout units.
    std::int16_t OffsetStepDivisor = 100;
    // Layout names made by Save Layout since the mission window was created.
    std::int16_t SaveCount = 0;

    // ---- The layout records ---------------------------------------------------------------
    // txtLayoutID and txtLayoutTotal were edited since the last layout was picked.
    bool LayoutIDChanged = false;
    bool LayoutTotalChanged = false;
    // The grid row under the last press of the mouse.
    std::int16_t RecordGridRow = 0;
    // The pointer's y over lstStationaryName; -255 for none, which ends the edge scrolling.
    float StationaryLastY = -255;
    // Seconds of the clock at the last step of the edge scrolling.
    double StationaryScrollTime = 0;
};

}  // namespace tarvex
