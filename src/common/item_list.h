#pragma once
// The part of a list or combo that filling from a query needs: rows of text and item data.
#include <cstdint>
#include <string>

namespace tarvex {

class ItemList {
  public:
    virtual ~ItemList() = default;
    virtual void Clear() = 0;
    virtual void AddItem(const std::string& text) = 0;
    virtual int ListCount() const = 0;
    virtual std::int32_t ItemData(int index) const = 0;
    virtual void SetItemData(int index, std::int32_t data) = 0;
};

}  // namespace tarvex
