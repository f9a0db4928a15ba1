#pragma once
// Where the program's own data lies: the reference database, the maps and the sample
// simulator folder, laid out as Sortak/Sortak Data, Sortak/Sortak Maps and Tarvex/.
#include <string>

namespace tarvex {

// The data folder of an installation whose programs lie in `programFolder`: for
// <prefix>/bin, <prefix>/share/tarvex.
std::string InstalledDataFolder(const std::string& programFolder);

// $TARVEX_HOME when set; else the data folder installed beside the running program when there
// is one; else the default installation the build made.
std::string DefaultInstallFolder();

}  // namespace tarvex
