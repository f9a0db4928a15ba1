#include "qt/input_codes.h"

#include <QMimeData>
#include <QUrl>

namespace tarvex::qt {

int ButtonOf(Qt::MouseButtons buttons) {
    int result = 0;
    if (buttons & Qt::LeftButton) result |= kLeftButton;
    if (buttons & Qt::RightButton) result |= kRightButton;
    if (buttons & Qt::MiddleButton) result |= kMiddleButton;
    return result;
}

int ShiftOf(Qt::KeyboardModifiers modifiers) {
    int result = 0;
    if (modifiers & Qt::ShiftModifier) result |= kShiftMask;
    if (modifiers & Qt::ControlModifier) result |= kCtrlMask;
    if (modifiers & Qt::AltModifier) result |= kAltMask;
    return result;
}

int KeyCodeOf(int key) {
    if (key >= Qt::Key_A && key <= Qt::Key_Z) return 'A' + (key - Qt::Key_A);
    if (key >= Qt::Key_0 && key <= Qt::Key_9) return '0' + (key - Qt::Key_0);
    if (key >= Qt::Key_F1 && key <= Qt::Key_F12) return 112 + (key - Qt::Key_F1);
    switch (key) {
        case Qt::Key_Backspace:
            return kKeyBack;
        case Qt::Key_Tab:
            return kKeyTab;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return kKeyReturn;
        case Qt::Key_Shift:
            return kKeyShift;
        case Qt::Key_Control:
            return kKeyControl;
        case Qt::Key_Alt:
            return 18;
        case Qt::Key_Escape:
            return kKeyEscape;
        case Qt::Key_Space:
            return 32;
        case Qt::Key_PageUp:
            return 33;
        case Qt::Key_PageDown:
            return 34;
        case Qt::Key_End:
            return 35;
        case Qt::Key_Home:
            return 36;
        case Qt::Key_Left:
            return kKeyLeft;
        case Qt::Key_Up:
            return kKeyUp;
        case Qt::Key_Right:
            return kKeyRight;
        case Qt::Key_Down:
            return kKeyDown;
        case Qt::Key_Insert:
            return 45;
        case Qt::Key_Delete:
            return kKeyDelete;
        default:
            return 0;
    }
}

DragData DragDataOf(const QMimeData* mime) {
    DragData data;
    if (mime && mime->hasUrls()) {
        for (const QUrl& url : mime->urls())
            if (url.isLocalFile()) data.files.push_back(url.toLocalFile().toStdString());
        data.hasFiles = !data.files.empty();
    }
    return data;
}

}  // namespace tarvex::qt
