#pragma once
// The settings file of each application: $XDG_CONFIG_HOME/<app>/<app>.ini, or
// ~/.config/<app>/<app>.ini, in the INI form the editor has always written (section and key
// names percent-encoded, values quoted and escaped where they need it). The editor and
// tarvex-mis both read it here. Every change reads the file again and replaces it whole by a
// temporary file renamed over it, so two running copies each see a whole file, the last
// change winning.
#include <optional>
#include <string>

#include "platform/platform.h"

namespace tarvex {

class IniSettingsStore : public SettingsStore {
  public:
    // folder: where the applications' folders lie; empty for the user's configuration folder.
    explicit IniSettingsStore(std::string folder = {});

    std::optional<std::string> Get(const std::string& app, const std::string& section,
                                   const std::string& key) const override;
    // A file that can't be written keeps what it held; settings are never worth an error.
    void Save(const std::string& app, const std::string& section, const std::string& key,
              const std::string& value) override;
    void Delete(const std::string& app, const std::string& section,
                const std::string& key) override;

    // The settings file of an application; empty when no configuration folder is known.
    std::string FileOf(const std::string& app) const;

  private:
    void Change(const std::string& app, const std::string& section, const std::string& key,
                const std::optional<std::string>& value);
    std::string folder_;
};

// The value under section and key in INI text, decoded; nullopt when the section or the key
// is absent. Names match in their encoded and plain spellings, without regard to case; the
// last of repeated keys wins.
std::optional<std::string> IniValue(const std::string& text, const std::string& section,
                                    const std::string& key);

// The INI text with the key set to the value, or taken out for nullopt. The other lines stay
// as they were; a new key goes at the end of its section, a new section at the end.
std::string IniWithValue(const std::string& text, const std::string& section,
                         const std::string& key, const std::optional<std::string>& value);

}  // namespace tarvex
