#pragma once
// The desktop editor keeps its settings in an INI file under the user's configuration folder
// (one file per application name, sections and keys percent-encoded, values quoted and
// backslash-escaped when they need it). The command-line tool only reads it, as plain text,
// to start from the same folders as the editor.
#include <optional>
#include <string>

namespace tarvex::cli {

// Where the editor's settings for the application live: $XDG_CONFIG_HOME/<app>/<app>.ini,
// or ~/.config/<app>/<app>.ini. Empty when neither variable names a folder.
std::string EditorSettingsFile(const std::string& app);

// The value stored under section/key in the INI text, decoded; nullopt when the section or
// the key is absent. Section and key are given as the program names them ("Sortak Options",
// "Sortak DB"); their encoded and plain spellings both match, without regard to case.
std::optional<std::string> IniValue(const std::string& text, const std::string& section,
                                    const std::string& key);

}  // namespace tarvex::cli
