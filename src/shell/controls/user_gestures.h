#pragma once
// The user's gestures that take more than one step of a model: a click, a press on a list's
// row, a press on a tab's header, a key, typed text. The skin and the scenario runner both go
// through these, so that a scenario does what a user's hands do, in the same order.
#include <string_view>

#include "shell/controls/control.h"

namespace tarvex {

class ListBox;
class TabControl;

// A left click on a button, check box, option button or label: MouseDown, the control's own
// change (UserClick), MouseUp, in the middle of the control.
void UserClickControl(Control& control);

// A press on a row of a list. With the left button the selection changes first, as the
// desktop's list changes it before it reports the press, so that MouseDown sees the row:
// - a single-selection list selects the row;
// - an extended list selects the row alone; with Ctrl the row is toggled and the rest stay;
//   with Shift the rows from the anchor to this one are selected (added to the rest with Ctrl
//   as well); without Shift the row becomes the anchor;
// - a simple multiple-selection list toggles the row.
// The right and middle buttons select nothing, and neither does a press below the last row
// (row -1). Then MouseDown, at the row's middle or at the point (x, y) the pointer is on.
void UserPressRow(ListBox& list, int row, int button, int shift);
void UserPressRow(ListBox& list, int row, int button, int shift, float x, float y);
// The pointer over a row with `button` held: with the left button a single selection follows
// the pointer and an extended one spans from the anchor to it; then MouseMove.
void UserMoveOverRow(ListBox& list, int row, int button, int shift);
void UserMoveOverRow(ListBox& list, int row, int button, int shift, float x, float y);
void UserReleaseRow(ListBox& list, int row, int button, int shift);
void UserReleaseRow(ListBox& list, int row, int button, int shift, float x, float y);
// The second press of a double click, after the first press and its release: the selection
// stays as the first press left it; MouseDown, then DblClick.
void UserDoubleClickRow(ListBox& list, int row, int button, int shift);
void UserDoubleClickRow(ListBox& list, int row, int button, int shift, float x, float y);
// Where a press on a row is reported, in the list's map units, from its top.
float RowMiddle(const ListBox& list, int row);

// A press at (x, y) on the strip, over the header of `tab` (-1 when over none): with the left
// button the strip shows that page first when it is another, enabled one and y lies within
// the headers' height; then MouseDown.
void UserPressTab(TabControl& strip, int tab, int button, int shift, float x, float y);

// A key pressed and released on a control: KeyDown, where a handler that sets the code to 0
// swallows the key; KeyPress for a key that gives a character (which a handler may swallow or
// change); the control's own response; KeyUp. The responses: a text box or an editable combo
// takes the character, a text box also Back and Delete (the selection or one character),
// Home, End, Left and Right (the caret) and, when multi-line, Return (a new line); a list or a
// closed combo moves its selected row with Up, Down, Home and End; an open combo moves its
// highlight with Up and Down, takes the highlighted row with Return and closes with Escape.
// A row a closed combo moves to is the user's choice (Click, then UserPick). These keys
// answer only when no Shift, Ctrl or Alt is held.
void UserPressKey(Control& control, int keyCode, int shift);
// Whether UserPressKey gives the key a response of the control's own (the list above). The
// skin leaves the other keys to its widgets (a move of the focus, a button's press, a
// selection made with Shift).
bool KeyHasResponse(const Control& control, int keyCode, int shift);
// A text box, or a combo whose text can be typed.
bool TakesTyping(const Control& control);

// Text typed into a text box or an editable combo, one key per character, each with its own
// Change. With `replace` the whole old text is selected first, so the first key replaces it
// (an empty text then deletes it). "\n" is the Return key. A character beyond ASCII arrives
// without key events, as an input method gives it. A locked box, or one at its MaxLength,
// takes no characters.
void UserTypeText(Control& box, std::string_view text, bool replace);

// The key code and shift state of the key that types a character on a US keyboard; 0 when no
// key does.
int KeyCodeOfCharacter(char character, int& shift);
// The key code of a key's name ("Return", "F5", "A", "7", "Down", "PageUp"), without regard to
// case; 0 for a name no key has.
int KeyCodeOfName(std::string_view name);

}  // namespace tarvex
