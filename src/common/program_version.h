#pragma once
// The program's title and version, as captions, the splash and new missions show them.
#include <string>

namespace tarvex {

inline constexpr const char* kProgramTitle = "Tarvex Mission Editor";

struct ProgramVersion {
    int major;
    int minor;
    int revision;
};

inline constexpr ProgramVersion kProgramVersion{TARVEX_VERSION_MAJOR, TARVEX_VERSION_MINOR,
                                                TARVEX_VERSION_PATCH};

// "3.0.1": major, minor and revision joined by ".".
inline std::string ProgramVersionText() {
    return std::to_string(kProgramVersion.major) + "." + std::to_string(kProgramVersion.minor) +
           "." + std::to_string(kProgramVersion.revision);
}

}  // namespace tarvex
