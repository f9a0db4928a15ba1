#include "qt/grid_view.h"

#include <QApplication>
#include <QHeaderView>
#include <QScrollBar>

#include "qt/binding.h"

namespace tarvex::qt {

namespace {

class GridBinding : public ControlBinding {
  public:
    GridBinding(DataGrid& model, GridView* view, QPointF origin)
        : ControlBinding(model, view, origin), view_(view) {
        WatchChild(view->viewport());
    }

  protected:
    bool PaintsBackColour() const override { return true; }
    void Sync(Aspect aspect) override {
        if (aspect == Aspect::Rows || aspect == Aspect::Text) view_->SyncRows();
        if (aspect == Aspect::Rows || aspect == Aspect::Selection || aspect == Aspect::Value)
            view_->SyncCurrent();
        ControlBinding::Sync(aspect);
    }

  private:
    GridView* view_;
};

}  // namespace

GridView::GridView(DataGrid& model, QWidget* parent) : QTableWidget(parent), model_(model) {
    setSelectionBehavior(QAbstractItemView::SelectItems);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed |
                    QAbstractItemView::AnyKeyPressed);
    // Rows and the head as the model measures them, so that what the model lays over a cell
    // (a browse button, a pick list) stands on it.
    const int rowHeight = Px(model.RowHeight()) + 2;
    verticalHeader()->setMinimumSectionSize(rowHeight);
    verticalHeader()->setDefaultSectionSize(rowHeight);
    horizontalHeader()->setFixedHeight(rowHeight);
    Guarded([&] { model.SetRowHeight(Twips(rowHeight)); });
    connect(this, &QTableWidget::currentCellChanged, this, [this](int row, int col, int, int) {
        if (filling_ || row < 0) return;
        Guarded([&] { model_.UserMoveTo(row, col); });
    });
    connect(this, &QTableWidget::cellChanged, this, [this](int row, int col) {
        if (filling_) return;
        const QString text = item(row, col) ? item(row, col)->text() : QString();
        Guarded([&] {
            if (model_.Row() != row || model_.Col() != col) model_.UserMoveTo(row, col);
            model_.UserEditCell(text.toStdString());
        });
        SyncRows();
        SyncCurrent();
    });
    connect(horizontalHeader(), &QHeaderView::sectionClicked, this,
            [this](int col) { Guarded([&] { model_.UserHeadClick(col); }); });
    // The model places what lies over the grid (a browse button, a pick list) by its top row.
    // The grid also scrolls while it shows the model's current row.
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this,
            [this](int top) { Guarded([&] { model_.SetTopRow(top); }); });
    // A click on the current cell of a column with a button presses the button.
    connect(this, &QTableWidget::cellClicked, this, [this](int row, int col) {
        Guarded([&] { model_.RaiseClick(); });
        if (col < model_.ColumnCount() && model_.Columns(col).Button() && row == model_.Row())
            Guarded([&] { model_.UserButtonClick(); });
    });
    // The row headers are the record selectors: a press selects the row, with Ctrl one more.
    connect(verticalHeader(), &QHeaderView::sectionClicked, this, [this](int row) {
        const bool add = QApplication::keyboardModifiers() & Qt::ControlModifier;
        Guarded([&] { model_.UserSelectRow(row, add); });
        SyncCurrent();
    });
}

ControlBinding* GridView::Bind(QPointF origin) {
    return new GridBinding(model_, this, origin);
}

void GridView::SyncRows() {
    filling_ = true;
    const QSignalBlocker blocker(this);
    const int columns = model_.ColumnCount();
    const int rows = model_.RowCount() + (model_.AllowAddNew() ? 1 : 0);
    setColumnCount(columns);
    setRowCount(rows);
    QStringList headers;
    for (int col = 0; col < columns; ++col) {
        const GridColumn& column = model_.Columns(col);
        headers << QString::fromStdString(column.Caption());
        setColumnWidth(col, std::max(8, Px(column.Width())));
        setColumnHidden(col, !column.Visible());
    }
    setHorizontalHeaderLabels(headers);
    for (int row = 0; row < rows; ++row) {
        setVerticalHeaderItem(row, new QTableWidgetItem(row == model_.RowCount() ? "*" : ""));
        for (int col = 0; col < columns; ++col) {
            auto* cell = new QTableWidgetItem(QString::fromStdString(model_.CellText(row, col)));
            if (model_.Columns(col).Locked()) cell->setFlags(cell->flags() & ~Qt::ItemIsEditable);
            setItem(row, col, cell);
        }
    }
    filling_ = false;
}

void GridView::SyncCurrent() {
    filling_ = true;
    const QSignalBlocker blocker(this);
    if (model_.Row() >= 0 && model_.Row() < rowCount())
        setCurrentCell(model_.Row(), std::max(0, model_.Col()));
    filling_ = false;
}

}  // namespace tarvex::qt
