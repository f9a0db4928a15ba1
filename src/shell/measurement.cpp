#include "shell/measurement.h"

#include <cmath>
#include <cstdint>

#include "common/number_text.h"
#include "common/numbers.h"
#include "ground/offsets_window.h"
#include "maps/path_drawing.h"
#include "shell/editor.h"
#include "shell/forms/frm_mission.h"
#include "shell/forms/mdi_mission_ed.h"

namespace tarvex {

namespace {

// Knots to km/h, as the program has always converted them.
constexpr double kKnotsToKmh = 1.8519873;

std::int16_t ConvertedSpeed(std::int16_t speed, bool toMetric) {
    const double value = toMetric ? speed * kKnotsToKmh : speed / kKnotsToKmh;
    const float cut = std::trunc(CSng(value + 0.5));
    // A speed too large for its field stays at the largest one rather than failing the toggle.
    return cut > 32767.0f ? std::int16_t{32767} : static_cast<std::int16_t>(cut);
}

}  // namespace

void ApplyMeasurement(Editor& ed) {
    const bool metric = ed.options.Measurement;
    ed.MDIMissionED.mnuDist.SetCaption(metric ? "Metric &Distance" : "Imperial &Distance");
    ed.projection.SetDistanceUnits(metric);
    ed.FrmMission.lblSpeed.SetCaption(metric ? "Km." : "Kts.");
}

void ConvertSpeeds(Editor& ed) {
    Mission& doc = ed.doc;
    const bool toMetric = ed.options.Measurement;
    for (int p = 0; p <= Mission::kPathUpper; ++p)
        for (int i = 0; i <= Mission::kPointUpper; ++i)
            if (doc.WPSpeed(p, i) >= 1)
                doc.WPSpeed(p, i) = ConvertedSpeed(doc.WPSpeed(p, i), toMetric);
    auto& points = ed.FrmMission.lstPoints;
    const int row = points.ListIndex();
    // Row r of the point list is waypoint r + 1.
    if (points.ListCount() > 0 && row >= 0 && row + 1 <= Mission::kPointUpper)
        ed.FrmMission.txtSpeed.SetText(IntText(doc.WPSpeed(doc.CurrentPath, row + 1)));
}

void mnuDist_Click(Editor& ed) {
    ed.options.Measurement = !ed.options.Measurement;
    ApplyMeasurement(ed);
    ConvertSpeeds(ed);
    // The offsets window shows metres or feet by its query.
    if (ed.ground.OffsetsOpen) SetOffsetsSource(ed);
    // The path length read-out is in the new unit.
    DrawPaths(ed, ed.FrmMission.mapWayPoints);
}

}  // namespace tarvex
