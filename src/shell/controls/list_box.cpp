#include "shell/controls/list_box.h"

#include <algorithm>
#include <cmath>

#include "common/error.h"

namespace tarvex {

namespace {
constexpr int kErrBadArrayIndex = 381;
}

void ListBox::StoreListIndex(int index) {
    listIndex_ = index;
    anchor_ = index;
    if (MultiSelecting()) {
        if (index >= 0) rows_[index].selected = true;
    } else {
        for (std::size_t i = 0; i < rows_.size(); ++i)
            rows_[i].selected = static_cast<int>(i) == index;
    }
}

void ListBox::SelectedTextChanged() {
    // The selected row went away: in single selection no row is selected any more.
    if (!MultiSelecting() && listIndex_ == -1)
        for (Row& row : rows_)
            row.selected = false;
}

void ListBox::Clear() {
    topIndex_ = 0;
    ListControl::Clear();
}

void ListBox::SetMultiSelect(int mode) {
    if (mode < kMultiSelectNone || mode > kMultiSelectExtended) Raise(kErrInvalidProperty);
    if (mode == multiSelect_) return;
    multiSelect_ = mode;
    for (std::size_t i = 0; i < rows_.size(); ++i)
        rows_[i].selected = static_cast<int>(i) == listIndex_;
    Notify(Aspect::Selection);
}

bool ListBox::Selected(int index) const {
    if (index < 0 || index >= ListCount()) Raise(kErrBadArrayIndex, "Invalid property array index");
    if (!MultiSelecting()) return index == listIndex_;
    return rows_[index].selected;
}

void ListBox::SetSelected(int index, bool selected) {
    if (index < 0 || index >= ListCount()) Raise(kErrBadArrayIndex, "Invalid property array index");
    if (!MultiSelecting()) {
        if (selected) {
            SetListIndex(index);
        } else if (index == listIndex_) {
            SetListIndex(-1);
        }
        return;
    }
    if (rows_[index].selected == selected) return;
    rows_[index].selected = selected;
    Notify(Aspect::Selection);
    RaiseClick();
}

int ListBox::SelCount() const {
    if (!MultiSelecting()) return listIndex_ >= 0 ? 1 : 0;
    return static_cast<int>(
        std::count_if(rows_.begin(), rows_.end(), [](const Row& r) { return r.selected; }));
}

std::vector<int> ListBox::SelectedRows() const {
    std::vector<int> rows;
    for (int i = 0; i < ListCount(); ++i)
        if (Selected(i)) rows.push_back(i);
    return rows;
}

void ListBox::SetSelection(const std::vector<int>& rows, int focusRow) {
    if (focusRow < -1 || focusRow >= ListCount()) Raise(kErrInvalidProperty);
    for (int row : rows)
        if (row < 0 || row >= ListCount()) Raise(kErrInvalidProperty);
    if (!MultiSelecting()) {
        SetListIndex(rows.empty() ? -1 : rows.back());
        return;
    }
    bool changed = focusRow != listIndex_;
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        const bool want = std::find(rows.begin(), rows.end(), static_cast<int>(i)) != rows.end();
        if (rows_[i].selected != want) {
            rows_[i].selected = want;
            changed = true;
        }
    }
    listIndex_ = focusRow;
    if (!changed) return;
    Notify(Aspect::Selection);
    RaiseClick();
}

int ListBox::TopIndex() const {
    return std::min(topIndex_, std::max(0, ListCount() - 1));
}

void ListBox::SetTopIndex(int index) {
    index = std::clamp(index, 0, std::max(0, ListCount() - 1));
    if (index == topIndex_) return;
    topIndex_ = index;
    Notify(Aspect::Selection);
}

void ListBox::SetRowHeight(float height) {
    if (height < 0) Raise(kErrInvalidProperty);
    if (height == rowHeight_) return;
    rowHeight_ = height;
    Notify(Aspect::Appearance);
}

int ListBox::RowAt(float y) const {
    if (rowHeight_ <= 0) return -1;
    return TopIndex() + static_cast<int>(std::floor(y / rowHeight_));
}

}  // namespace tarvex
