#include "shell/controls/data_grid.h"

#include <algorithm>
#include <cctype>

#include "common/error.h"
#include "common/number_text.h"
#include "refdata/database_errors.h"

namespace tarvex {

namespace {

bool SameName(const std::string& a, const std::string& b) {
    return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) {
               return std::tolower(static_cast<unsigned char>(x)) ==
                      std::tolower(static_cast<unsigned char>(y));
           });
}

}  // namespace

// ---- Columns -------------------------------------------------------------------------------

void GridColumn::Changed() const {
    grid_->ColumnsChanged();
}

void GridColumn::SetCaption(const std::string& caption) {
    if (caption == caption_) return;
    caption_ = caption;
    Changed();
}

void GridColumn::SetDataField(const std::string& field) {
    if (field == dataField_) return;
    dataField_ = field;
    Changed();
}

void GridColumn::SetLocked(bool locked) {
    if (locked == locked_) return;
    locked_ = locked;
    Changed();
}

void GridColumn::SetWidth(float width) {
    if (width < 0) Raise(kErrInvalidProperty);
    if (width == width_) return;
    width_ = width;
    Changed();
}

void GridColumn::SetVisible(bool visible) {
    if (visible == visible_) return;
    visible_ = visible;
    Changed();
}

void GridColumn::SetButton(bool button) {
    if (button == button_) return;
    button_ = button;
    Changed();
}

void GridColumn::SetNumberFormat(const std::string& mask) {
    if (mask == numberFormat_) return;
    numberFormat_ = mask;
    Changed();
}

std::string GridColumn::Shown(const FieldValue& value) const {
    const bool number =
        value.GetKind() == FieldValue::Kind::Integer || value.GetKind() == FieldValue::Kind::Real;
    return number && !numberFormat_.empty() ? Format(value.Double(), numberFormat_) : value.Text();
}

float GridColumn::Left() const {
    float left = grid_->RecordSelectorWidth();
    for (int i = 0; i < index_; ++i)
        if (grid_->Columns(i).Visible()) left += grid_->Columns(i).Width();
    return left;
}

FieldValue GridColumn::Value() const {
    return grid_->CurrentValue(index_);
}

void GridColumn::SetValue(const FieldValue& value) {
    grid_->AssignCurrent(index_, value);
}

// ---- Binding -------------------------------------------------------------------------------

DataGrid::DataGrid(std::string name, int index) : Control(std::move(name), index) {}

DataGrid::~DataGrid() {
    if (Source() != nullptr) source_->RemoveListener(sourceListener_);
}

void DataGrid::SetDataSource(DataSource& source) {
    if (Source() != nullptr) source_->RemoveListener(sourceListener_);
    source_ = &source;
    sourceLifetime_ = source.Lifetime();
    sourceListener_ = source.AddListener([this](Aspect aspect) { SourceChanged(aspect); });
    ReadRows();
}

void DataGrid::SourceChanged(Aspect aspect) {
    if (aspect == Aspect::Rows) {
        rowChanged_ = false;
        currentCellModified_ = false;
        ReadRows();
    } else if (aspect == Aspect::Selection) {
        Notify(Aspect::Selection);
    }
}

Recordset* DataGrid::OpenRecordset() const {
    if (Source() == nullptr || !source_->HasRecordset()) return nullptr;
    return &source_->Recordset();
}

int DataGrid::FieldIndex(const std::string& field) const {
    const Recordset* rs = OpenRecordset();
    if (rs == nullptr || field.empty()) return -1;
    for (int i = 0; i < rs->FieldCount(); ++i)
        if (SameName(rs->FieldName(i), field)) return i;
    return -1;
}

// ---- Columns of the grid -------------------------------------------------------------------

GridColumn& DataGrid::AddColumn(const std::string& caption, const std::string& dataField) {
    if (autoColumns_) {
        columns_.clear();
        autoColumns_ = false;
    }
    auto column = std::make_unique<GridColumn>(*this, ColumnCount());
    column->SetCaption(caption);
    column->SetDataField(dataField);
    columns_.push_back(std::move(column));
    Notify(Aspect::Rows);
    return *columns_.back();
}

GridColumn& DataGrid::Columns(int index) {
    if (index < 0 || index >= ColumnCount()) Raise(kErrSubscript);
    return *columns_[index];
}

const GridColumn& DataGrid::Columns(int index) const {
    if (index < 0 || index >= ColumnCount()) Raise(kErrSubscript);
    return *columns_[index];
}

void DataGrid::SetAllowAddNew(bool allow) {
    if (allow == allowAddNew_) return;
    allowAddNew_ = allow;
    Notify(Aspect::Rows);
}

// ---- Position ------------------------------------------------------------------------------

int DataGrid::RowCount() const {
    const Recordset* rs = OpenRecordset();
    return rs == nullptr ? 0 : rs->RecordCount();
}

bool DataGrid::OnNewRow() const {
    const Recordset* rs = OpenRecordset();
    return rs != nullptr && rs->GetEditMode() == EditMode::Add;
}

int DataGrid::Row() const {
    const Recordset* rs = OpenRecordset();
    if (rs == nullptr) return -1;
    if (rs->GetEditMode() == EditMode::Add) return rs->RecordCount();
    return rs->AbsolutePosition();
}

void DataGrid::SetRow(int row) {
    if (Source() == nullptr) Raise(91, "Object variable or With block variable not set");
    Recordset& rs = source_->Recordset();
    const int count = rs.RecordCount();
    if (row < 0 || row > count || (row == count && !allowAddNew_)) Raise(kErrInvalidProperty);
    if (row == Row()) return;
    const int lastRow = Row();
    StoreRow();
    // A row that was entered but not changed is left without storing anything.
    if (rs.GetEditMode() != EditMode::None) rs.CancelUpdate();
    rowChanged_ = false;
    currentCellModified_ = false;
    if (row == count) {
        source_->MoveToNewRow();
    } else {
        source_->MoveTo(row);
    }
    Notify(Aspect::Selection);
    if (RowColChange) RowColChange(lastRow, col_);
}

void DataGrid::SetCol(int col) {
    if (col < -1 || col >= ColumnCount()) Raise(kErrInvalidProperty);
    if (col == col_) return;
    const int lastCol = col_;
    col_ = col;
    currentCellModified_ = false;
    Notify(Aspect::Selection);
    if (RowColChange) RowColChange(Row(), lastCol);
}

// ---- Editing -------------------------------------------------------------------------------

FieldValue DataGrid::CurrentValue(int col) const {
    const Recordset* rs = OpenRecordset();
    const int field = FieldIndex(Columns(col).DataField());
    if (rs == nullptr || field < 0) return {};
    if (rs->GetEditMode() == EditMode::None && rs->AbsolutePosition() < 0) return {};
    return rs->Value(field);
}

void DataGrid::AssignCurrent(int col, const FieldValue& value) {
    if (Source() == nullptr) Raise(91, "Object variable or With block variable not set");
    Recordset& rs = source_->Recordset();
    const int field = FieldIndex(Columns(col).DataField());
    if (field < 0) Raise(kErrItemNotFound, "Item not found in this collection.");
    if (rs.GetEditMode() == EditMode::None) rs.Edit();
    rs.SetValue(field, value);
    const bool startsNewRecord = rs.GetEditMode() == EditMode::Add && !rowChanged_;
    rowChanged_ = true;
    Notify(Aspect::Rows);
    if (startsNewRecord && OnAddNew) OnAddNew();
}

bool DataGrid::DataChanged() const {
    const Recordset* rs = OpenRecordset();
    return rowChanged_ && rs != nullptr && rs->GetEditMode() != EditMode::None;
}

void DataGrid::SetDataChanged(bool changed) {
    if (changed) {
        rowChanged_ = OpenRecordset() != nullptr;
        return;
    }
    Recordset* rs = OpenRecordset();
    if (rs != nullptr && rs->GetEditMode() == EditMode::InProgress) rs->CancelUpdate();
    if (rs != nullptr && rs->GetEditMode() == EditMode::Add && rowChanged_) {
        // The new row stays open, emptied.
        rs->CancelUpdate();
        rs->AddNew();
    }
    rowChanged_ = false;
    currentCellModified_ = false;
    Notify(Aspect::Rows);
}

bool DataGrid::StoreRow() {
    if (!DataChanged()) return false;
    source_->UpdateRecord();
    rowChanged_ = false;
    if (AfterUpdate) AfterUpdate();
    return true;
}

// ---- Selection -----------------------------------------------------------------------------

void DataGrid::AddSelBookmark(RecordBookmark bookmark) {
    if (std::find(selBookmarks_.begin(), selBookmarks_.end(), bookmark) != selBookmarks_.end())
        return;
    selBookmarks_.push_back(bookmark);
    Notify(Aspect::Selection);
    if (SelChange) SelChange();
}

void DataGrid::RemoveSelBookmark(int index) {
    if (index < 0 || index >= static_cast<int>(selBookmarks_.size())) Raise(kErrSubscript);
    selBookmarks_.erase(selBookmarks_.begin() + index);
    Notify(Aspect::Selection);
    if (SelChange) SelChange();
}

void DataGrid::ClearSelBookmarks() {
    if (selBookmarks_.empty()) return;
    selBookmarks_.clear();
    Notify(Aspect::Selection);
    if (SelChange) SelChange();
}

// ---- Geometry ------------------------------------------------------------------------------

void DataGrid::SetRowHeight(float height) {
    if (height <= 0) Raise(kErrInvalidProperty);
    if (height == rowHeight_) return;
    rowHeight_ = height;
    Notify(Aspect::Geometry);
}

void DataGrid::SetTopRow(int row) {
    row = std::clamp(row, 0, std::max(0, RowCount()));
    if (row == topRow_) return;
    topRow_ = row;
    Notify(Aspect::Selection);
}

float DataGrid::RowTop(int row) const {
    return HeaderHeight() + static_cast<float>(row - topRow_) * rowHeight_;
}

int DataGrid::RowContaining(float y) const {
    if (y < HeaderHeight() || y >= Height()) return -1;
    const int row = topRow_ + static_cast<int>((y - HeaderHeight()) / rowHeight_);
    const int shown = RowCount() + (allowAddNew_ ? 1 : 0);
    return row < shown ? row : -1;
}

int DataGrid::ColContaining(float x) const {
    for (int i = 0; i < ColumnCount(); ++i) {
        const GridColumn& column = *columns_[i];
        if (!column.Visible()) continue;
        const float left = column.Left();
        if (x >= left && x < left + column.Width()) return i;
    }
    return -1;
}

// ---- Rows as shown -------------------------------------------------------------------------

std::string DataGrid::CellText(int row, int col) const {
    if (col < 0 || col >= ColumnCount()) return {};
    if (row == Row()) return Columns(col).Shown(CurrentValue(col));
    if (row < 0 || row >= static_cast<int>(rowTexts_.size())) return {};
    const auto& texts = rowTexts_[row];
    return col < static_cast<int>(texts.size()) ? texts[col] : std::string();
}

void DataGrid::Refresh() {
    ReadRows();
}

void DataGrid::ReadRows() {
    Recordset* rs = OpenRecordset();
    if (rs == nullptr) {
        rowTexts_.clear();
        rowBookmarks_.clear();
        Notify(Aspect::Rows);
        return;
    }
    if (columns_.empty() || autoColumns_) {
        columns_.clear();
        for (int i = 0; i < rs->FieldCount(); ++i) {
            auto column = std::make_unique<GridColumn>(*this, i);
            column->SetCaption(rs->FieldName(i));
            column->SetDataField(rs->FieldName(i));
            columns_.push_back(std::move(column));
        }
        autoColumns_ = true;
    }
    // Walking the rows would end an edit, and a deleted current row can't be returned to:
    // then the rows shown stay as they were until the next refresh.
    const int position = rs->AbsolutePosition();
    const bool atEnd = rs->Eof();
    const bool atStart = rs->Bof();
    if (rs->GetEditMode() == EditMode::None && (position >= 0 || atEnd || atStart)) {
        std::vector<int> fields;
        for (const auto& column : columns_)
            fields.push_back(FieldIndex(column->DataField()));
        const auto shown = [&](size_t c, int field) {
            return field < 0 ? std::string() : columns_[c]->Shown(rs->Value(field));
        };
        rowTexts_.clear();
        rowBookmarks_.clear();
        const int count = rs->RecordCount();
        for (int i = 0; i < count; ++i) {
            rs->SetAbsolutePosition(i);
            rowBookmarks_.push_back(rs->Bookmark());
            std::vector<std::string> texts;
            for (size_t c = 0; c < fields.size(); ++c)
                texts.push_back(shown(c, fields[c]));
            rowTexts_.push_back(std::move(texts));
        }
        if (position >= 0) {
            rs->SetAbsolutePosition(position);
        } else if (count > 0 && atEnd) {
            rs->MoveLast();
            rs->MoveNext();
        } else if (count > 0 && atStart) {
            rs->MoveFirst();
            rs->MovePrevious();
        }
    }
    Notify(Aspect::Rows);
}

// ---- The user's actions --------------------------------------------------------------------

void DataGrid::UserMoveTo(int row, int col) {
    try {
        if (row != Row()) SetRow(row);
        SetCol(col);
    } catch (const AppError& error) {
        if (Source() == nullptr) throw;
        source_->ReportUserError(error);
    }
}

void DataGrid::UserEditCell(const std::string& text) {
    if (col_ < 0 || col_ >= ColumnCount() || Columns(col_).Locked()) return;
    try {
        const int col = col_;
        const FieldValue before = CurrentValue(col);
        AssignCurrent(col, FieldValue(text));
        currentCellModified_ = true;
        if (AfterColUpdate) AfterColUpdate(col);
        // The handler refused the value: the cell goes back to what it held.
        if (!currentCellModified_ && OpenRecordset() != nullptr &&
            OpenRecordset()->GetEditMode() != EditMode::None)
            OpenRecordset()->SetValue(FieldIndex(Columns(col).DataField()), before);
        currentCellModified_ = false;
        Notify(Aspect::Rows);
    } catch (const AppError& error) {
        if (Source() == nullptr) throw;
        source_->ReportUserError(error);
    }
}

void DataGrid::UserKeyDown(int keyCode, int shift) {
    keyCode = RaiseKeyDown(keyCode, shift);
    const int row = Row();
    const int lastRow = RowCount() - (allowAddNew_ ? 0 : 1);
    switch (keyCode) {
        case kKeyDown:
            if (row < lastRow) UserMoveTo(row + 1, col_);
            break;
        case kKeyUp:
            if (row > 0) UserMoveTo(row - 1, col_);
            break;
        case kKeyLeft:
            if (col_ > 0) UserMoveTo(row, col_ - 1);
            break;
        case kKeyRight:
            if (col_ + 1 < ColumnCount()) UserMoveTo(row, col_ + 1);
            break;
        default:
            break;
    }
}

void DataGrid::UserSelectRow(int row, bool addToSelection) {
    UserMoveTo(row, col_);
    Recordset* rs = OpenRecordset();
    if (rs == nullptr || rs->AbsolutePosition() < 0) return;
    const RecordBookmark bookmark = rs->Bookmark();
    if (addToSelection) {
        const auto it = std::find(selBookmarks_.begin(), selBookmarks_.end(), bookmark);
        if (it != selBookmarks_.end()) {
            selBookmarks_.erase(it);
        } else {
            selBookmarks_.push_back(bookmark);
        }
    } else {
        selBookmarks_.assign(1, bookmark);
    }
    Notify(Aspect::Selection);
    // Raised for every press, also on the row already selected: the forms tell a second
    // press on the same row by the position.
    if (SelChange) SelChange();
}

void DataGrid::ListEvents(std::vector<NamedEvent>& out) const {
    Control::ListEvents(out);
    out.push_back({"RowColChange", &RowColChange});
    out.push_back({"HeadClick", &HeadClick});
    out.push_back({"AfterColUpdate", &AfterColUpdate});
    out.push_back({"AfterUpdate", &AfterUpdate});
    out.push_back({"OnAddNew", &OnAddNew});
    out.push_back({"ButtonClick", &ButtonClick});
    out.push_back({"SelChange", &SelChange});
}

}  // namespace tarvex
