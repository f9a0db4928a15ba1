#include "platform/account_registry.h"

#include <pwd.h>
#include <unistd.h>

#include <cstdlib>

#include "common/text.h"

namespace tarvex {

std::string AccountRegistry::ReadRegistryValue(RegistryRoot, const std::string&,
                                               const std::string& value) const {
    if (SameText(value, "path")) {
        const char* sim = std::getenv("TARVEX_SIM_PATH");
        return sim ? std::string(sim) : std::string();
    }
    if (SameText(value, "DefName")) {
        if (const passwd* account = getpwuid(getuid())) {
            // The full name is the first field of the account's comment.
            std::string full = account->pw_gecos ? account->pw_gecos : "";
            full = full.substr(0, full.find(','));
            if (!full.empty()) return full;
            if (account->pw_name) return account->pw_name;
        }
        const char* user = std::getenv("USER");
        return user ? std::string(user) : std::string();
    }
    return {};
}

}  // namespace tarvex
