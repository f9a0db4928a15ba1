#pragma once
// The working values of the map drawing that outlive one redraw.
namespace tarvex {

struct MapDrawingState {
    // Length of CurrentPath in DistanceUnit, summed by each DrawPaths for the read-out.
    float TotalPathDist = 0;
    // The last click on an overlay box checked it: layout moves then redraw the paths too.
    bool OverlayOn = false;
    // The tab SelectTab showed last, whose View entry loses its check mark at the next change.
    int ShownTab = 0;
};

}  // namespace tarvex
