#pragma once

// The live record of one symbol, and the collections of such records and of spread codes that listeners are
// notified with.

#include <cstddef>
#include <cstdint>
#include <map>
#include <span>
#include <string>
#include <string_view>

#include "plugin/host_contract/market_data.h"
#include "terminal/host/listeners.h"

namespace algo::terminal {

class TMemoryItem final : public host::TMarketDataItem {
 public:
  using TUpdateListeners = TListeners<const void*, const host::TItemDictionary*>;

  explicit TMemoryItem(std::string_view symbol) : FSymbol(symbol) {}

  std::string_view Symbol() const override { return FSymbol; }
  std::int32_t State() const override { return FState; }
  bool HasField(std::int32_t field) const override { return FFields.contains(field); }
  double FieldNumber(std::int32_t field) const override;
  std::string_view FieldText(std::int32_t field) const override;

  void SetState(std::int32_t state) { FState = state; }
  void SetField(std::int32_t field, std::string_view text);
  void RemoveField(std::int32_t field) { FFields.erase(field); }

  /// The listeners that are notified of updates of this item.
  TUpdateListeners& Listeners() { return FListeners; }

 private:
  // The number is parsed once, when the field is set: a field is read far more often than it changes.
  struct TField {
    std::string text;
    double number = 0;
  };

  std::string FSymbol;
  std::map<std::int32_t, TField> FFields;
  TUpdateListeners FListeners;
  std::int32_t FState = host::ItemEmpty;
};

/// The notification that one item changed.
class TOneItem final : public host::TItemDictionary {
 public:
  explicit TOneItem(TMemoryItem& item) : FItem(item) {}

  std::size_t Count() const override { return 1; }
  host::TMarketDataItem* Find(std::string_view symbol) const override {
    return symbol == FItem.Symbol() ? &FItem : nullptr;
  }

 private:
  TMemoryItem& FItem;
};

/// The notification that the spread tables with some codes changed.
class TSpreadCodes final : public host::TSpreadDictionary {
 public:
  explicit TSpreadCodes(std::span<const std::string> codes) : FCodes(codes) {}

  bool Contains(std::string_view code) const override;

 private:
  std::span<const std::string> FCodes;
};

}  // namespace algo::terminal
