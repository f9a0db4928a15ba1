#pragma once
// A grid bound to a data source: one row per record plus, when AllowAddNew, the new row at
// the end; columns by number, each bound to a field by DataField.
//
// Row is the record's position from 0 (the new row is RecordCount). Moving to another row
// stores the changed row first (through the source's Validate), then raises RowColChange and
// the source's Reposition. Cell values set by code or typed by the user go into the current
// record's edit; on the new row the first change starts the record and raises OnAddNew.
// The grid shows the rows it read at the source's last refresh; code that changes the
// recordset directly calls Refresh so the grid reads them again.
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "refdata/field_value.h"
#include "refdata/recordset.h"
#include "shell/controls/control.h"
#include "shell/controls/data_source.h"

namespace tarvex {

class DataGrid;

class GridColumn {
  public:
    GridColumn(DataGrid& grid, int index) : grid_(&grid), index_(index) {}

    int ColIndex() const { return index_; }
    const std::string& Caption() const { return caption_; }
    void SetCaption(const std::string& caption);
    const std::string& DataField() const { return dataField_; }
    void SetDataField(const std::string& field);
    bool Locked() const { return locked_; }
    void SetLocked(bool locked);
    float Width() const { return width_; }
    void SetWidth(float width);
    bool Visible() const { return visible_; }
    void SetVisible(bool visible);
    // The column shows a button in its current cell; a press raises ButtonClick.
    bool Button() const { return button_; }
    void SetButton(bool button);
    // Left edge in the grid's map units, after the record selectors and the columns before.
    float Left() const;
    // A mask of common/number_text (such as "0.0") for the numbers the column shows; empty
    // shows them as stored. Values read and typed are not touched.
    const std::string& NumberFormat() const { return numberFormat_; }
    void SetNumberFormat(const std::string& mask);
    // A value as the column shows it.
    std::string Shown(const FieldValue& value) const;

    // The value of this column in the current row (its edit, while one is under way); empty
    // on the new row before anything was entered.
    FieldValue Value() const;
    std::string Text() const { return Value().Text(); }
    // Assigns to the current row. A locked column takes values from code all the same.
    void SetValue(const FieldValue& value);

  private:
    void Changed() const;

    DataGrid* grid_;
    int index_;
    std::string caption_;
    std::string dataField_;
    bool locked_ = false;
    float width_ = 1000;
    bool visible_ = true;
    bool button_ = false;
    std::string numberFormat_;
};

class DataGrid : public Control {
  public:
    explicit DataGrid(std::string name = {}, int index = -1);
    ~DataGrid() override;

    // Binds the grid; the grid follows the source's refreshes from then on.
    void SetDataSource(DataSource& source);
    DataSource* Source() const { return sourceLifetime_.expired() ? nullptr : source_; }

    // Columns: defined by the form, or one per field when none are defined at a refresh.
    GridColumn& AddColumn(const std::string& caption, const std::string& dataField);
    int ColumnCount() const { return static_cast<int>(columns_.size()); }
    GridColumn& Columns(int index);  // out of range: error 9
    const GridColumn& Columns(int index) const;

    bool AllowAddNew() const { return allowAddNew_; }
    void SetAllowAddNew(bool allow);
    int RowCount() const;  // records, without the new row

    int Row() const;
    void SetRow(int row);  // 0..RowCount (the new row when allowed); else error 380
    int Col() const { return col_; }
    void SetCol(int col);  // -1..ColumnCount-1; else error 380
    bool OnNewRow() const;

    // The row-changed mark: the current row has changes not yet stored. Setting it false
    // drops them.
    bool DataChanged() const;
    void SetDataChanged(bool changed);
    // The current cell was typed into; an AfterColUpdate handler that clears it drops the
    // typed value.
    bool CurrentCellModified() const { return currentCellModified_; }
    void SetCurrentCellModified(bool modified) { currentCellModified_ = modified; }

    // Selected rows by bookmark; a change raises SelChange.
    const std::vector<RecordBookmark>& SelBookmarks() const { return selBookmarks_; }
    void AddSelBookmark(RecordBookmark bookmark);
    void RemoveSelBookmark(int index);  // out of range: error 9
    void ClearSelBookmarks();

    // Geometry in map units.
    float RowHeight() const { return rowHeight_; }
    void SetRowHeight(float height);
    float HeaderHeight() const { return rowHeight_; }
    float RecordSelectorWidth() const { return recordSelectorWidth_; }
    int TopRow() const { return topRow_; }
    void SetTopRow(int row);
    float RowTop(int row) const;
    // -1 when the point lies on no row or column.
    int RowContaining(float y) const;
    int ColContaining(float x) const;

    // The text of any shown row (the current one live, others as last read).
    std::string CellText(int row, int col) const;
    // Reads the rows again from the source's recordset.
    void Refresh();

    // The user's actions, from the skin. Failures go to the source's Error event.
    void UserMoveTo(int row, int col);
    void UserEditCell(const std::string& text);
    void UserSelectRow(int row, bool addToSelection);
    // A key pressed in the grid: KeyDown first; unless a handler swallowed it, the arrow keys
    // move the current cell (Down from the last record reaches the new row).
    void UserKeyDown(int keyCode, int shift);
    void UserHeadClick(int col) const {
        if (HeadClick) HeadClick(col);
    }
    void UserButtonClick() const {
        if (ButtonClick) ButtonClick(col_);
    }

    Event<int, int> RowColChange;  // the row and column left
    Event<int> HeadClick;          // the column
    Event<int> AfterColUpdate;     // the column
    Event<> AfterUpdate;
    Event<> OnAddNew;
    Event<int> ButtonClick;  // the column
    Event<> SelChange;

  protected:
    void ListEvents(std::vector<NamedEvent>& out) const override;

  private:
    friend class GridColumn;

    tarvex::Recordset* OpenRecordset() const;
    int FieldIndex(const std::string& field) const;
    FieldValue CurrentValue(int col) const;
    void AssignCurrent(int col, const FieldValue& value);
    // Stores the changed current row; whether anything was stored.
    bool StoreRow();
    void ReadRows();
    void SourceChanged(Aspect aspect);
    void ColumnsChanged() { Notify(Aspect::Rows); }

    DataSource* source_ = nullptr;
    std::weak_ptr<int> sourceLifetime_;
    int sourceListener_ = 0;
    std::vector<std::unique_ptr<GridColumn>> columns_;
    bool autoColumns_ = false;
    bool allowAddNew_ = true;
    bool onNewRow_ = false;
    bool rowChanged_ = false;
    bool currentCellModified_ = false;
    int col_ = 0;
    std::vector<RecordBookmark> selBookmarks_;
    std::vector<RecordBookmark> rowBookmarks_;
    std::vector<std::vector<std::string>> rowTexts_;
    float rowHeight_ = 225;
    float recordSelectorWidth_ = 240;
    int topRow_ = 0;
};

}  // namespace tarvex
