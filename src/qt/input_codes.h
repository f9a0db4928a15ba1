#pragma once
// The desktop's codes of the user's input, from Qt's: mouse buttons, the shift state, key codes
// and the files a drag carries.
#include <Qt>

#include "shell/controls/control.h"

class QMimeData;

namespace tarvex::qt {

// kLeftButton, kRightButton and kMiddleButton of the buttons given.
int ButtonOf(Qt::MouseButtons buttons);
// kShiftMask, kCtrlMask and kAltMask of the modifiers held.
int ShiftOf(Qt::KeyboardModifiers modifiers);
// The desktop's key code of a Qt key; 0 for keys the program never tests.
int KeyCodeOf(int qtKey);
// The local files a drag carries.
DragData DragDataOf(const QMimeData* mime);

}  // namespace tarvex::qt
