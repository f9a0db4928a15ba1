#pragma once
// One remembered value, read or written by its key in the program's own section of the
// settings store.
#include <string>
#include <string_view>

namespace tarvex {

class Editor;

inline constexpr const char* kSettingsApp = "Sortak";
inline constexpr const char* kSettingsSection = "Sortak Options";

// True when the text holds "True" anywhere, in any case: "xTRUEx" is true, "no" false.
bool SettingIsTrue(std::string_view text);

// The text stored under the key, empty when there is none.
std::string GetSetting(Editor& ed, const std::string& key);
void PutSetting(Editor& ed, const std::string& key, const std::string& value);

}  // namespace tarvex
