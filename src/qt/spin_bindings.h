#pragma once
// Up-down controls: two arrow buttons, or a spin box that shows the value and takes a typed
// one when the model shows its value.
#include <QPointF>

#include "shell/controls/up_down.h"

class QWidget;

namespace tarvex::qt {

class ControlBinding;

ControlBinding* BindUpDown(UpDown& model, QWidget* parent, QPointF origin);

}  // namespace tarvex::qt
