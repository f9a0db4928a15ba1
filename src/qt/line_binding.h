#pragma once
// A line drawn over its container, in the container's map units.
#include <QPointF>

#include "shell/controls/simple_controls.h"

class QWidget;

namespace tarvex::qt {

class ControlBinding;

ControlBinding* BindLine(LineControl& model, QWidget* parent, QPointF origin);

}  // namespace tarvex::qt
