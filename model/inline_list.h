#pragma once

// A short list that stands inside its owner, so that a row of a table can hold lists of different lengths and
// still be one constant.

#include <array>
#include <cstddef>
#include <initializer_list>

namespace algo::model {

template <class TItem, std::size_t Capacity>
class TInlineList {
 public:
  constexpr TInlineList() = default;
  /// Holds `items`; more than the capacity do not compile in a constant.
  constexpr TInlineList(std::initializer_list<TItem> items) {
    for (const TItem& item : items) Add(item);
  }

  /// Adds the item. Throws std::out_of_range when the list is full.
  constexpr void Add(const TItem& item) { FItems.at(FCount++) = item; }

  constexpr const TItem* begin() const { return FItems.data(); }
  constexpr const TItem* end() const { return FItems.data() + FCount; }
  constexpr std::size_t size() const { return FCount; }
  constexpr bool empty() const { return FCount == 0; }
  constexpr const TItem& operator[](std::size_t index) const { return FItems[index]; }

 private:
  std::array<TItem, Capacity> FItems{};
  std::size_t FCount = 0;
};

}  // namespace algo::model
