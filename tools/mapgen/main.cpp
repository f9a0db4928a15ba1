// tarvex-mapgen: renders the default maps and pictures of the editor from geographic data
// that tools/generate_assets dumps as text with the GMT tools.
//
//   tarvex-mapgen region MAP              GMT region, mask spacing and resolution of a map
//   tarvex-mapgen map MAP GMTDIR DB OUT   one theatre map (MAP 0..7)
//   tarvex-mapgen region-picture NAME     the same for the pictures that show a chart
//   tarvex-mapgen picture NAME GMTDIR OUT Splash, Summary or London1
#include <QGuiApplication>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "pictures.h"
#include "theatre_map.h"

namespace {

int Usage() {
    std::fprintf(stderr,
                 "usage: tarvex-mapgen region MAP | map MAP GMTDIR DB OUT |\n"
                 "       region-picture NAME | picture NAME GMTDIR OUT\n");
    return 2;
}

bool ParseMapIndex(const char* text, int& index) {
    char* end = nullptr;
    const long value = std::strtol(text, &end, 10);
    if (end == text || *end != '\0' || value < 0 || value > 7) return false;
    index = static_cast<int>(value);
    return true;
}

void PrintRequest(const tarvex::mapgen::GmtRequest& r) {
    std::printf("%.2f/%.2f/%.2f/%.2f %.15f %c %d\n", r.west, r.east, r.south, r.north,
                r.maskSpacing, r.resolution, r.largeScale ? 1 : 0);
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 3) return Usage();
    const std::string command = argv[1];
    int index = 0;
    if (command == "region" && argc == 3) {
        if (!ParseMapIndex(argv[2], index)) return Usage();
        PrintRequest(tarvex::mapgen::TheatreGmtRequest(index));
        return 0;
    }
    if (command == "region-picture" && argc == 3) {
        tarvex::mapgen::GmtRequest request;
        // A picture without a chart needs no geography: nothing printed, exit status 1.
        if (!tarvex::mapgen::PictureGmtRequest(argv[2], request)) return 1;
        PrintRequest(request);
        return 0;
    }

    // Text and antialiased drawing need the GUI font machinery, not a display.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    std::string error;
    bool done = false;
    if (command == "map" && argc == 6) {
        if (!ParseMapIndex(argv[2], index)) return Usage();
        done = tarvex::mapgen::RenderTheatreMap(index, argv[3], argv[4], argv[5], error);
    } else if (command == "picture" && argc == 5) {
        done = tarvex::mapgen::RenderPicture(argv[2], argv[3], argv[4], error);
    } else {
        return Usage();
    }
    if (!done) {
        std::fprintf(stderr, "tarvex-mapgen: %s\n", error.c_str());
        return 1;
    }
    return 0;
}
