#pragma once
// The working values of the waypoint editor, the path panel and the group view.
#include <array>
#include <cstdint>
#include <string>

namespace tarvex {

// One slot's position, as a flyby preview found it, to put back when the preview is dropped.
struct SlotPosition {
    std::string lat;
    std::string lon;
    float mapX = 0;
    float mapY = 0;
};

struct WaypointState {
    // ---- The map and the list of points ---------------------------------------------------
    // A waypoint is being dragged on the map.
    bool MapDragging = false;
    // PathPointCount when that drag began.
    std::int16_t DragEndSlot = 0;
    // The rows of lstPoints are being reordered.
    bool ListDragging = false;
    // False while lstPoints_Click fills txtPoint, so that text from the list isn't parsed.
    bool PointTextTyped = false;

    // ---- Flyby points ---------------------------------------------------------------------
    // A flyby airfield is being previewed: the path has the extra slot already.
    bool FlybyPreview = false;
    // Between cmbRunways_KeyDown and _KeyUp: a row chosen with the keys adds nothing.
    bool FlybyKeyActive = false;
    // The path as it stood before the preview: its End slot count, CurrentPoint, and the two
    // slots that the preview writes.
    std::uint8_t PreviewPointCount = 0;
    std::uint8_t PreviewCurrentPoint = 0;
    SlotPosition PreviewSlot;
    SlotPosition PreviewEndSlot;

    // The airfield combos are showing the rows of the path just selected: on the Formations
    // tab their handlers leave the selected group's runways alone meanwhile.
    bool ShowingPathAirfields = false;

    // ---- The paths of a group (fraWPSelect) -----------------------------------------------
    // At least one path is on offer in the panel.
    bool PathsOffered = false;
    // The map shown beside the panel with the right button: where it stood, and OverlayOn.
    bool PanelMapShown = false;
    float PanelMapLeft = 0;
    float PanelMapTop = 0;
    bool PanelOverlayOn = false;

    // ---- The group view -------------------------------------------------------------------
    // Path indexes of the group chosen in cmbGroups, GroupViewCount of them.
    std::array<std::uint8_t, 17> GroupViewPaths{};
    int GroupViewCount = 0;
    std::int16_t GroupViewIndex = 0;
};

}  // namespace tarvex
