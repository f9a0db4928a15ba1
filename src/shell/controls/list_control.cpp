#include "shell/controls/list_control.h"

#include <algorithm>
#include <cctype>

#include "common/error.h"

namespace tarvex {

namespace {

constexpr int kErrBadArrayIndex = 381;

int FoldCase(char c) {
    return std::tolower(static_cast<unsigned char>(c));
}

}  // namespace

bool ListTextLess(const std::string& a, const std::string& b) {
    return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(),
                                        [](char x, char y) { return FoldCase(x) < FoldCase(y); });
}

void ListControl::CheckRow(int index, int errorNumber) const {
    if (index < 0 || index >= ListCount()) {
        if (errorNumber == kErrBadArrayIndex) Raise(errorNumber, "Invalid property array index");
        Raise(errorNumber);
    }
}

void ListControl::Clear() {
    if (rows_.empty() && listIndex_ == -1) return;
    rows_.clear();
    listIndex_ = -1;
    newIndex_ = -1;
    Notify(Aspect::Rows);
}

std::int32_t ListControl::ItemData(int index) const {
    CheckRow(index, kErrBadArrayIndex);
    return rows_[index].data;
}

void ListControl::SetItemData(int index, std::int32_t data) {
    CheckRow(index, kErrBadArrayIndex);
    rows_[index].data = data;
}

void ListControl::AddItem(const std::string& text, int index) {
    if (index < -1 || index > ListCount()) Raise(kErrInvalidCall);
    int at = index;
    if (at == -1) {
        at = sorted_ ? static_cast<int>(std::upper_bound(rows_.begin(), rows_.end(), text,
                                                         [](const std::string& t, const Row& r) {
                                                             return ListTextLess(t, r.text);
                                                         }) -
                                        rows_.begin())
                     : ListCount();
    }
    rows_.insert(rows_.begin() + at, Row{text, 0, false});
    newIndex_ = at;
    if (listIndex_ >= at) ++listIndex_;
    Notify(Aspect::Rows);
}

void ListControl::RemoveItem(int index) {
    CheckRow(index, kErrInvalidCall);
    rows_.erase(rows_.begin() + index);
    newIndex_ = -1;
    if (listIndex_ == index) {
        listIndex_ = -1;
        SelectedTextChanged();
    } else if (listIndex_ > index) {
        --listIndex_;
    }
    Notify(Aspect::Rows);
}

std::string ListControl::List(int index) const {
    if (index < 0 || index >= ListCount()) return {};
    return rows_[index].text;
}

void ListControl::SetList(int index, const std::string& text) {
    CheckRow(index, kErrBadArrayIndex);
    if (rows_[index].text == text) return;
    rows_[index].text = text;
    if (index == listIndex_) SelectedTextChanged();
    Notify(Aspect::Rows);
}

void ListControl::StoreListIndex(int index) {
    listIndex_ = index;
}

void ListControl::SetListIndex(int index) {
    if (index < -1 || index >= ListCount()) Raise(kErrInvalidProperty);
    if (index == listIndex_) return;
    StoreListIndex(index);
    Notify(Aspect::Selection);
    RaiseClick();
}

void ListControl::SetSorted(bool sorted) {
    if (sorted == sorted_) return;
    sorted_ = sorted;
    if (sorted_ && !rows_.empty()) {
        std::vector<std::size_t> order(rows_.size());
        for (std::size_t i = 0; i < order.size(); ++i)
            order[i] = i;
        std::stable_sort(order.begin(), order.end(), [this](std::size_t a, std::size_t b) {
            return ListTextLess(rows_[a].text, rows_[b].text);
        });
        std::vector<Row> sortedRows;
        sortedRows.reserve(rows_.size());
        int moved = -1;
        for (std::size_t i = 0; i < order.size(); ++i) {
            if (static_cast<int>(order[i]) == listIndex_) moved = static_cast<int>(i);
            sortedRows.push_back(std::move(rows_[order[i]]));
        }
        rows_ = std::move(sortedRows);
        listIndex_ = moved;
        newIndex_ = -1;
    }
    Notify(Aspect::Rows);
}

int ListControl::FindRow(const std::string& text) const {
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        const std::string& row = rows_[i].text;
        if (row.size() == text.size() && !ListTextLess(row, text) && !ListTextLess(text, row))
            return static_cast<int>(i);
    }
    return -1;
}

int ListControl::FindItemData(std::int32_t data) const {
    for (std::size_t i = 0; i < rows_.size(); ++i)
        if (rows_[i].data == data) return static_cast<int>(i);
    return -1;
}

}  // namespace tarvex
