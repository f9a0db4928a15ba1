#pragma once
// Controls that share a name and are told apart by index, such as optColor(0..15). Access
// outside the loaded indexes raises error 9. Option buttons of one array form one group.
#include <iterator>
#include <map>
#include <memory>
#include <string>
#include <type_traits>

#include "common/error.h"
#include "shell/controls/option_button.h"

namespace tarvex {

template <typename T>
class ControlArray {
  public:
    // Elements first..last (inclusive); an empty array when last < first.
    explicit ControlArray(std::string name, int first = 0, int last = -1) : name_(std::move(name)) {
        for (int i = first; i <= last; ++i)
            Load(i);
    }
    // Elements first..last without a name yet: the form names the array when it enters it.
    ControlArray(int first, int last) : ControlArray(std::string(), first, last) {}
    ControlArray(const ControlArray&) = delete;
    ControlArray& operator=(const ControlArray&) = delete;

    const std::string& Name() const { return name_; }
    // Names the array and every element loaded so far.
    void SetName(std::string name) {
        name_ = std::move(name);
        for (auto& [index, item] : items_)
            item->SetIdentity(name_, index);
    }

    T& operator()(int index) { return At(index); }
    const T& operator()(int index) const { return At(index); }
    T& At(int index) {
        auto it = items_.find(index);
        if (it == items_.end()) Raise(kErrSubscript);
        return *it->second;
    }
    const T& At(int index) const {
        auto it = items_.find(index);
        if (it == items_.end()) Raise(kErrSubscript);
        return *it->second;
    }
    bool Exists(int index) const { return items_.count(index) != 0; }

    int Count() const { return static_cast<int>(items_.size()); }
    // Bounds of the loaded indexes; error 9 on an empty array.
    int LBound() const {
        if (items_.empty()) Raise(kErrSubscript);
        return items_.begin()->first;
    }
    int UBound() const {
        if (items_.empty()) Raise(kErrSubscript);
        return items_.rbegin()->first;
    }

    // Creates the element at index; loading an index twice raises error 360 as the desktop's
    // "Object already loaded".
    T& Load(int index) {
        if (index < 0) Raise(kErrSubscript);
        if (items_.count(index) != 0) Raise(360, "Object already loaded");
        auto item = std::make_unique<T>(name_, index);
        T& ref = *item;
        items_[index] = std::move(item);
        if constexpr (std::is_base_of_v<OptionButton, T>) {
            if (!group_) group_ = std::make_shared<OptionGroup>();
            ref.JoinGroup(group_);
        }
        return ref;
    }
    void Unload(int index) {
        if (items_.erase(index) == 0) Raise(kErrSubscript);
    }

    // Iterates the elements in index order, as references.
    class Iterator {
      public:
        using Inner = typename std::map<int, std::unique_ptr<T>>::const_iterator;
        using iterator_category = std::forward_iterator_tag;
        using value_type = T;
        using difference_type = std::ptrdiff_t;
        using pointer = T*;
        using reference = T&;
        explicit Iterator(Inner it) : it_(it) {}
        T& operator*() const { return *it_->second; }
        T* operator->() const { return it_->second.get(); }
        Iterator& operator++() {
            ++it_;
            return *this;
        }
        bool operator==(const Iterator& other) const { return it_ == other.it_; }
        bool operator!=(const Iterator& other) const { return it_ != other.it_; }

      private:
        Inner it_;
    };
    Iterator begin() const { return Iterator(items_.begin()); }
    Iterator end() const { return Iterator(items_.end()); }

  private:
    std::string name_;
    std::map<int, std::unique_ptr<T>> items_;
    std::shared_ptr<OptionGroup> group_;
};

}  // namespace tarvex
