#pragma once
// Deleting a layout's record from the reference database, with every use of it in the mission.
#include <cstdint>

namespace tarvex {

class Editor;
class ListControl;

// After the designer's yes: deletes the record (its units go with it), takes its row out of
// `list` and every row of the mission that uses it. A database error ends in the "Delete
// Error" box before anything else changed.
void DeleteLayoutRecord(Editor& ed, ListControl& list, std::int32_t itemData);

void btnDelGUlst_Click(Editor& ed);
void btnDelGUcmb_Click(Editor& ed);

}  // namespace tarvex
