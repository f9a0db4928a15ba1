#pragma once
// Text boxes: a line edit, or a plain text edit for a multi-line box. The text, the caret and
// the selection go both ways.
#include <QPointF>

#include "shell/controls/text_box.h"

class QWidget;

namespace tarvex::qt {

class ControlBinding;

ControlBinding* BindTextBox(TextBox& model, QWidget* parent, QPointF origin);

}  // namespace tarvex::qt
