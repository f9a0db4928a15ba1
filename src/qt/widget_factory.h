#pragma once
// The one place that knows which widget shows which kind of control model.
#include <QPointF>

class QWidget;

namespace tarvex {
class Control;
}

namespace tarvex::qt {

// Creates the widget for a control model under parent and binds it. Picture surfaces, grids,
// tab strips and the rest each get their kind of widget; nullptr for models that are not
// shown (data sources).
QWidget* CreateControlWidget(Control& control, QWidget* parent, QPointF origin);

// The widget of a tab strip's page n; nullptr when the widget is no tab strip.
QWidget* TabPage(QWidget* tabWidget, int page);

}  // namespace tarvex::qt
