#pragma once
// The scan of the simulator's missions folder into tblMissions: one row per mission file,
// rebuilt whole at each run, so that the browser can show the missions without opening them.
#include <cstdint>
#include <functional>
#include <string>

namespace tarvex {

class Editor;

// The Recnum of the map of that name in table Maps; error 3021 when the table lacks it.
std::uint8_t MapRecordNumber(Editor& ed, const std::string& name);

// Empties tblMissions and writes one row per "*.mis" file of `folder`, in the order of their
// names, all in one transaction. `eachFile` runs once a file is open. A file that can't be
// read, or whose map the table lacks, ends the scan with its error; the rows written before it
// stay, and `fileName` names it. Answers the number of rows written.
int ScanMissionFolder(Editor& ed, const std::string& folder, std::string& fileName,
                      const std::function<void()>& eachFile = {});

// The scan of the Tools menu, after its question, behind the message window and with a bar on
// the status strip; ends by showing the browser. True when it ran to its end.
bool LoadMissionSummaries(Editor& ed);

void mnuMissDetail_Click(Editor& ed);

}  // namespace tarvex
