// A whole redraw of the Waypoints map at its heaviest: 16 paths of 15 waypoints, every
// overlay checked. It runs on each pointer move of a drag, so it must stay well inside a
// frame (target: under 2 ms).
#include <benchmark/benchmark.h>

#include <string>

#include "app/make_editor.h"
#include "common/number_text.h"
#include "maps/path_drawing.h"
#include "platform/scripted_platform.h"
#include "shell/forms/frm_mission.h"

namespace {

using namespace tarvex;

void BM_DrawPathsFullMap(benchmark::State& state) {
    ScriptedServices services;
    auto editor = MakeEditor(services.Bind());
    Editor& ed = *editor;
    auto& frm = ed.FrmMission;
    ed.projection.SetDistanceUnits(true);
    ed.projection.SetMap(5, 8000, 6000);
    ed.ActiveMap = &frm.mapWayPoints;

    Mission& doc = ed.doc;
    for (int p = 0; p < Mission::kMaxPaths; ++p) {
        // Start, 15 waypoints spread over the map, End in slot 16.
        for (int i = 0; i <= Mission::kMaxWaypoints + 1; ++i) {
            doc.WPLat(p, i) = "N" + Format(48 + (i % 5), "00") + " " + Format(p * 3.5, "00.00");
            doc.WPLon(p, i) =
                (i % 2 ? "W0" : "E0") + IntText(i % 4) + " " + Format(i * 3.25, "00.00");
        }
        doc.PathPointCount(p) = Mission::kMaxWaypoints + 1;
        doc.PathAirfieldStart(p) = 0;
        doc.PathAirfieldEnd(p) = 0;
        doc.PathCurrentPoint(p) = 7;
    }
    doc.GrpTakeoffFlag(0) = 3;
    for (int r = 0; r < Mission::kMaxWaypoints; ++r)
        frm.lstPoints.AddItem("row", -1);
    frm.lstPoints.SetItemData(4, 1);  // one flyby
    for (int p = 0; p < Mission::kMaxPaths; ++p)
        frm.chkOverlay(p).SetValue(kChecked);

    for (auto _ : state) {
        DrawPaths(ed, frm.mapWayPoints);
        benchmark::DoNotOptimize(ed.drawing.TotalPathDist);
    }
    state.counters["ops"] = static_cast<double>(frm.mapWayPoints.Operations().size());
}
BENCHMARK(BM_DrawPathsFullMap)->Unit(benchmark::kMicrosecond);

}  // namespace
