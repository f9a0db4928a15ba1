#pragma once
// The two registry values of start-up as this desktop answers them: the simulator's folder
// from the environment variable TARVEX_SIM_PATH, the user's name from the account's full name
// or else its login. The editor and tarvex-mis both ask here, so they find the same folders.
#include <string>

#include "platform/platform.h"

namespace tarvex {

// Where the values stand in the registry the program was written for.
inline constexpr const char* kSimulatorRegistryKey =
    "SOFTWARE\\Microsoft\\microsoft games\\tarvex simulator\\1.00";
inline constexpr const char* kUserInfoRegistryKey =
    "Software\\Microsoft\\MS SETUP (ACME)\\User Info";

class AccountRegistry : public Registry {
  public:
    // "path" and "DefName", without regard to case and whatever the key; any other value
    // is empty.
    std::string ReadRegistryValue(RegistryRoot root, const std::string& subkey,
                                  const std::string& value) const override;
};

}  // namespace tarvex
