#pragma once
// The eight theatre maps. Every position on them is placed by the editor's own projection, so
// that a point plotted by the editor lands where the map shows it.
#include <string>

namespace tarvex::mapgen {

// Pixel size of a map: the largest that keeps the geographic aspect (longitude span at mid
// latitude times its cosine against the latitude span) inside the map area of the Waypoints
// tab, at 192 dots per inch.
struct MapSize {
    int widthPixels = 0;
    int heightPixels = 0;
};
MapSize TheatreMapSize(int mapIndex);

// What the GMT tools must dump for a map: the region around it, the land mask spacing and the
// shoreline resolution letter.
struct GmtRequest {
    double west = 0, east = 0, south = 0, north = 0;
    double maskSpacing = 0;
    char resolution = 'h';
    bool largeScale = false;  // the four small maps: more rivers, half-degree graticule
};
GmtRequest TheatreGmtRequest(int mapIndex);

// Renders map mapIndex from the text files in gmtDir (coast.txt, rivers.txt, borders.txt,
// mask_info.txt, mask.txt) and the airfields of the database at dbPath, and writes the bitmap.
bool RenderTheatreMap(int mapIndex, const std::string& gmtDir, const std::string& dbPath,
                      const std::string& outPath, std::string& error);

}  // namespace tarvex::mapgen
