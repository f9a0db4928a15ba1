#include "maps/map_loading.h"

#include <string>

#include "common/error.h"
#include "common/paths.h"
#include "maps/map_catalogue.h"
#include "maps/path_drawing.h"
#include "shell/editor.h"
#include "shell/forms/frm_mission.h"
#include "shell/status_strip.h"

namespace tarvex {

namespace {

// Without a usable bitmap the designer still gets a map area to work on: the projection of the
// chosen map over a blank surface, so coordinates keep their meaning.
void ShowPlainSurface(PictureSurface& surface) {
    surface.LoadPicture("");
    surface.Cls();
    surface.Move(surface.Left(), surface.Top(), kDefaultMapWidth, kDefaultMapHeight);
}

}  // namespace

void LoadMap(Editor& ed, PictureSurface& surface, int mapIndex) {
    if (const MapInfo* map = FindMap(mapIndex)) {
        const std::string path = JoinPath(NativePath(ed.options.MapPath), map->BitmapFile);
        if (!surface.LoadPicture(path)) {
            ShowPlainSurface(surface);
            ShowStatus(ed, "Map bitmap [" + path + "] could not be loaded: showing a blank map",
                       kStatusWarning);
        }
    } else if (surface.Width() <= 0 || surface.Height() <= 0) {
        // No map chosen and nothing loaded before: a surface without size has no scale.
        ShowPlainSurface(surface);
    }
    try {
        ed.projection.SetMap(mapIndex, surface.Width(), surface.Height());
    } catch (const AppError& error) {
        if (error.Number() != kErrOverflow) throw;
        // The sizes are 16-bit map units: a bitmap beyond them can't be measured.
        ShowPlainSurface(surface);
        ShowStatus(ed, "Map bitmap is too large to be used: showing a blank map", kStatusWarning);
        ed.projection.SetMap(mapIndex, surface.Width(), surface.Height());
    }
    Mission& doc = ed.doc;
    const int path = doc.CurrentPath;
    PlotPoint(ed, doc.WPLat(path, 0), doc.WPLon(path, 0), doc.WPMapX(path, 0), doc.WPMapY(path, 0));
}

void PlotPoint(Editor& ed, std::string_view latText, std::string_view lonText, float& x, float& y) {
    ed.projection.ProjectPoint(latText, lonText, x, y);
    ed.FrmMission.mapWayPoints.Circle(x, y, kPointRadius);
}

void cmbSelectMap_Click(Editor& ed) {
    // While a mission is being opened the loader loads its map once it knows it.
    if (!ed.doc.NotLoading) return;
    auto& frm = ed.FrmMission;
    LoadMap(ed, frm.mapWayPoints, frm.cmbSelectMap.ListIndex());
    if (ed.doc.NotResetting) DrawPaths(ed, frm.mapWayPoints);
}

}  // namespace tarvex
