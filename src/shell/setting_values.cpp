#include "shell/setting_values.h"

#include "common/text.h"
#include "shell/editor.h"

namespace tarvex {

bool SettingIsTrue(std::string_view text) {
    return InStr(text, "True") > 0;
}

std::string GetSetting(Editor& ed, const std::string& key) {
    return ed.svc.settings.Get(kSettingsApp, kSettingsSection, key).value_or(std::string());
}

void PutSetting(Editor& ed, const std::string& key, const std::string& value) {
    ed.svc.settings.Save(kSettingsApp, kSettingsSection, key, value);
}

}  // namespace tarvex
