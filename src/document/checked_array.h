#pragma once
// Fixed arrays with inclusive bounds from 0, whose every access is checked: an index outside
// the bounds raises error 9 "Subscript out of range", which the load and save reports print.
#include <array>
#include <cstddef>

#include "common/error.h"

namespace tarvex {

template <typename T, int Upper>
class CheckedArray {
  public:
    static constexpr int kUpper = Upper;

    T& operator()(int i) { return items_[Check(i)]; }
    const T& operator()(int i) const { return items_[Check(i)]; }
    void Fill(const T& value) { items_.fill(value); }

  private:
    static std::size_t Check(int i) {
        if (i < 0 || i > Upper) Raise(kErrSubscript);
        return static_cast<std::size_t>(i);
    }
    std::array<T, Upper + 1> items_{};
};

template <typename T, int Upper1, int Upper2>
class CheckedArray2 {
  public:
    static constexpr int kUpper1 = Upper1;
    static constexpr int kUpper2 = Upper2;

    T& operator()(int i, int j) { return items_[Check(i, j)]; }
    const T& operator()(int i, int j) const { return items_[Check(i, j)]; }
    void Fill(const T& value) { items_.fill(value); }

  private:
    static std::size_t Check(int i, int j) {
        if (i < 0 || i > Upper1 || j < 0 || j > Upper2) Raise(kErrSubscript);
        return static_cast<std::size_t>(i) * (Upper2 + 1) + static_cast<std::size_t>(j);
    }
    std::array<T, (Upper1 + 1) * (Upper2 + 1)> items_{};
};

}  // namespace tarvex
