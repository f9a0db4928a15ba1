#pragma once
// The remembered folders and options of the program, read from the settings store at start
// and written back at exit.
#include <array>
#include <cstdint>
#include <string>

namespace tarvex {

struct AppSettings {
    std::string SimPath;  // the simulator's folder, with a trailing separator
    std::string MapPath;  // folder of the map bitmaps, the splash and the summary picture
    std::array<std::string, 5> RecentFiles;  // entries 1..4, newest first; 0 unused
    bool ToolTipsOn = true;
    bool SoundOn = true;
    bool AutoUpdate = false;
    bool Measurement = true;  // true: metric
    bool ShowDataWin = true;
    std::int16_t LastTab = 1;
    std::uint8_t ShowAllegiance = 0;
    float ACListSize = 1.0f;
    float MDILeft = 0.0f;
    float MDITop = 0.0f;
    std::string DefName;
    std::string OldDecimal;
};

}  // namespace tarvex
