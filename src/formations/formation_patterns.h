#pragma once
// The pattern of a group (cmbFormPattern) and the number of pilots it holds.
namespace tarvex {

class Editor;

// PatternMaxPilots from frmNames for the pattern of cmbFormPattern's row. A pattern the
// database doesn't list is reported, and the limit stays as it was.
void ReadPatternLimit(Editor& ed, int row);

// The red status text that names the shown pattern's limit, for two seconds.
void ShowPatternCapacity(Editor& ed);

// A change of pattern by the designer: refused, with the combo going back, when the group
// has more pilots than the new pattern holds.
void cmbFormPattern_Click(Editor& ed);

}  // namespace tarvex
