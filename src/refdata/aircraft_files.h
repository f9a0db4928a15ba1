#pragma once
// A new aircraft taken from the simulator's own aircraft folders: browsed for or dropped as
// its ".air" file, the folder's name as its file name and the title of the folder's
// aircraft.cfg as its descriptive name.
#include <cstdint>
#include <string>

namespace tarvex {

class Editor;
struct DragData;

// The open dialog over the simulator's Aircraft folder. 0 when a file was chosen (folder and
// title then hold the aircraft's), -1 when cancelled or when the dialog failed.
std::int16_t BrowseAircraftFile(Editor& ed, std::string& folder, std::string& title);

// From the chosen ".air" file: `folder` becomes the aircraft's folder below the simulator's
// "Aircraft" folder, `title` the title of the aircraft.cfg beside the file.
void SplitAircraftPath(Editor& ed, std::string& folder, std::string& title, const std::string& path,
                       const std::string& fileTitle);

// What follows "title=" on the first line that holds it; empty when no line does, or when the
// file can't be read (the failure is shown).
std::string ReadAircraftTitle(Editor& ed, const std::string& cfgPath);

namespace frm_aircraft {

void btnBrowse_Click(Editor& ed);
// Files dragged over the Add button may be dropped there; a dropped ".air" file starts a new
// aircraft.
void cmdAdd_OLEDragOver(Editor& ed, const DragData& data, int& effect);
void cmdAdd_OLEDragDrop(Editor& ed, const DragData& data, int& effect);

}  // namespace frm_aircraft
}  // namespace tarvex
