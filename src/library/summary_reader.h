#pragma once
// The summary of one mission file: the few keys that the mission browser shows, read by a
// plain pass over the text, without the mission loader. Lines ahead of [strings] are tested
// for the keys; behind it the first seven text entries are taken by their position.
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace tarvex {

// What a file gave; a key the file lacks stays empty. Texts are the file's own bytes
// (Windows-1252), numbers as read.
struct MissionSummary {
    std::optional<std::string> Title;
    std::optional<std::string> Summary;
    std::optional<std::string> Objective;
    std::optional<std::string> Type;
    std::optional<std::string> Date;
    std::optional<std::string> Time;
    std::optional<double> Reqrd;
    std::optional<double> Clouds;
    std::optional<double> Wind;
    std::optional<double> Visibility;
    std::optional<double> Allegiance;
    std::optional<std::uint8_t> Map;
};

// The Recnum of the map a "map=" line names; raises an AppError when there is none.
using MapNumberLookup = std::function<std::uint8_t(const std::string& name)>;

// Reads one file's text. Each "map=" line is looked up as it is met, so a name that the map
// table lacks ends the read with the lookup's error.
MissionSummary ReadMissionSummary(std::string_view text, const MapNumberLookup& mapNumber);

}  // namespace tarvex
