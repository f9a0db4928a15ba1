#pragma once
// Lists and combos: their rows, the selected row or rows and the first row shown follow the
// model; the user's presses, picks and highlights go to the model's user entries.
#include <QPointF>

#include "shell/controls/combo_box.h"
#include "shell/controls/list_box.h"

class QWidget;

namespace tarvex::qt {

class ControlBinding;

ControlBinding* BindList(ListBox& model, QWidget* parent, QPointF origin);
ControlBinding* BindCombo(ComboBox& model, QWidget* parent, QPointF origin);

}  // namespace tarvex::qt
