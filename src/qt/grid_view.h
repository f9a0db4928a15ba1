#pragma once
// A grid over its data source: the columns and rows the model read, the current cell, and
// the user's moves and cell edits forwarded to the model.
#include <QTableWidget>

#include "shell/controls/data_grid.h"

namespace tarvex::qt {

class ControlBinding;

class GridView : public QTableWidget {
  public:
    GridView(DataGrid& model, QWidget* parent);
    ControlBinding* Bind(QPointF origin);
    void SyncRows();
    void SyncCurrent();

  private:
    DataGrid& model_;
    bool filling_ = false;
};

}  // namespace tarvex::qt
