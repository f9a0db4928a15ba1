#pragma once
// The layouts of the mission: the rows of lstGUAdded with the layout arrays, added, selected,
// renamed, given their points and removed.
#include <cstdint>
#include <string>

#include "shell/controls/control.h"

namespace tarvex {

class Editor;

// The text of row `number` (from 1): the number with at least two digits, ". " and the name.
std::string LayoutRowText(int number, const std::string& name);
// The name in a row's text: everything from character 5 on.
std::string LayoutRowName(const std::string& rowText);

// Whether CurrentLayout is a row of the mission, so that the arrays may be written at it.
bool HasCurrentLayout(const Editor& ed);

// Appends a layout as row `number` - 1: its marker, its row, its origin from CursorLatText
// and CursorLonText (which the caller has set) in four-decimal text, its marker position, and
// the count; then selects the row. A 21st layout raises error 9 and adds nothing.
void AddLayoutToMission(Editor& ed, const std::string& text, float x, float y, int number,
                        Colour colour, std::int32_t itemData);

// Removes the selected row and closes the gap in the arrays; selects the row that took its
// place, or the last one.
void RemoveGroundLayout(Editor& ed);

// Every row's number rewritten from its place; the markers drawn again.
void RenumberLayoutList(Editor& ed);

void SetPointOptionsEnabled(Editor& ed, bool flag);

void lstGUAdded_Click(Editor& ed);
void lstGUAdded_MouseDown(Editor& ed, int button, int shift, float x, float y);
void optGndHasPoints_MouseDown(Editor& ed, int index, int button, int shift, float x, float y);
// Renames the selected row in the mission only, never in the database.
void txtAddedGU_Change(Editor& ed);
void btnDeleteGrndUnit_Click(Editor& ed);
void btnDeleteGrndUnit_MouseDown(Editor& ed, int button, int shift, float x, float y);

}  // namespace tarvex
