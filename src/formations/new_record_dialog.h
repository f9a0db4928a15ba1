#pragma once
// frmNewRecord: the floating window through which group and pilot names are entered. It
// stays open beside the main window while the designer clicks other rows; Add appends the
// name as a new row and proposes the next generic name, Replace renames the current row.
namespace tarvex {

class Editor;
class ListBox;

// Opens the window for lstGroupName or lstPilotName; editMode when a row was double clicked.
void OpenNewRecord(Editor& ed, ListBox& list, bool editMode);
void btnGroupName_Click(Editor& ed);
void btnPilotName_Click(Editor& ed);
void lstGroupName_DblClick(Editor& ed);
void lstPilotName_DblClick(Editor& ed);

// The proposals in txtNewRecord: "Group" and the next number, or the aircraft's (or
// "Pilot") with "_" and the next number; in edit mode the current row's text.
void AddGenericGroup(Editor& ed);
void AddGenericPilot(Editor& ed);

namespace frm_new_record {

void Form_Load(Editor& ed);
void Form_Unload(Editor& ed);
void txtNewRecord_Click(Editor& ed);
void txtNewRecord_Change(Editor& ed);
void cmbPilotName_Click(Editor& ed);
void btnAddRecord_Click(Editor& ed);
void btnReplace_Click(Editor& ed);
void btnCancel_Click(Editor& ed);

}  // namespace frm_new_record

}  // namespace tarvex
