#pragma once
// How large the skin shows things: the scale of a form view, the scale at which a form fits the
// room it is given, and the steps of the maps' zoom. Views only: map units and drawing are the
// same at any scale.

class QWidget;

namespace tarvex::qt {

// The scale of the form view a widget lies in: 1 unless the view was scaled.
double ScaleOf(const QWidget* widget);
// Marks a widget as the root of a scaled view: the widgets inside take this scale.
void SetViewScale(QWidget* root, double scale);

// The largest scale, in steps of 1/16, at which a form of formWidth by formHeight fits the
// room whole (all in map units); never below half the normal size.
double FitScale(double roomWidth, double roomHeight, double formWidth, double formHeight);

// The zoom after `steps` steps in (positive) or out (negative) from `zoom`, each step a
// quarter larger, kept between half and eight times the normal size.
double NextZoom(double zoom, int steps);

}  // namespace tarvex::qt
