#pragma once
// What the mission browser does with the mission of its current row: open it in the editor,
// or delete its file and its row.
namespace tarvex {

class Editor;

namespace frm_tbl_missions {

// MissionPath and MissionFile of the document from the current row; the file name is empty
// when the file has gone since the scan.
void ReadSelectedMission(Editor& ed);
// A fresh document, the row's mission loaded into it, and the browser closed.
void LoadSelectedMission(Editor& ed);

void grdDataGrid_DblClick(Editor& ed);
void cmdLoad_Click(Editor& ed);
// Deletes the row's file and its row, after a question. The mission open in the editor keeps
// its file name, unless it was this file: then the next save asks for one.
void btnDelete_Click(Editor& ed);

}  // namespace frm_tbl_missions
}  // namespace tarvex
