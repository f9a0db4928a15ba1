#pragma once
// The controls that show a caption: labels, frames, command buttons, check boxes and option
// buttons. A press on a button kind is the model's UserClick; the model's value shows as the
// widget's check mark.
#include <QPointF>

#include "shell/controls/check_box.h"
#include "shell/controls/option_button.h"
#include "shell/controls/simple_controls.h"

class QWidget;

namespace tarvex::qt {

class ControlBinding;

ControlBinding* BindLabel(Label& model, QWidget* parent, QPointF origin);
ControlBinding* BindFrame(Frame& model, QWidget* parent, QPointF origin);
ControlBinding* BindButton(CommandButton& model, QWidget* parent, QPointF origin);
ControlBinding* BindCheck(CheckBox& model, QWidget* parent, QPointF origin);
ControlBinding* BindOption(OptionButton& model, QWidget* parent, QPointF origin);

}  // namespace tarvex::qt
