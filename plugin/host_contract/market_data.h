#pragma once

// Market data. An item is the live record of one symbol, read by numeric field id. The subscribe adapter
// hands items out and notifies listeners of updates; the market adapter knows instruments and notifies of
// changed spread tables.

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "plugin/host_contract/service.h"

namespace algo::host {

/// Field ids that the module reads.
inline constexpr std::int32_t PriceField = 3;  ///< price used to prefill
inline constexpr std::int32_t SecondPriceField =
    17;  ///< with the price, tells whether the item has a price at all
inline constexpr std::int32_t LotSizeField = 24;         ///< board lot
inline constexpr std::int32_t ReferencePriceField = 31;  ///< stands in for a missing price
inline constexpr std::int32_t SpreadCodeField = 73;      ///< code of the instrument's spread table
inline constexpr std::int32_t PriceMultiplierField =
    1504;  ///< price shown = price field × this; 1 when unreadable

/// Item states that matter: nothing usable yet, and live data to which the multiplier applies.
inline constexpr std::int32_t ItemEmpty = 0;
inline constexpr std::int32_t ItemLive = 1;

/// The data set of prices.
inline constexpr std::string_view PriceDataSet = "PRCDDS";

/// The live record of one symbol; owned by the subscribe adapter, valid until it is unsubscribed.
class ALGO_SHARED TMarketDataItem {
 public:
  virtual ~TMarketDataItem();

  /// [module → host, while the item is subscribed]
  virtual std::string_view Symbol() const = 0;
  virtual std::int32_t State() const = 0;
  virtual bool HasField(std::int32_t field) const = 0;
  /// The field's number; 0 when the item lacks the field or its text is no number.
  /// [module → host, while the item is subscribed]
  virtual double FieldNumber(std::int32_t field) const = 0;
  /// The field's text, empty when the item lacks it; valid until the item changes.
  /// [module → host, while the item is subscribed]
  virtual std::string_view FieldText(std::int32_t field) const = 0;
};

/// What an update listener is given: the items that changed, by symbol.
class ALGO_SHARED TItemDictionary {
 public:
  virtual ~TItemDictionary();

  /// [module → host, during the notification]
  virtual std::size_t Count() const = 0;
  /// The item of that symbol; nullptr when it is not among them.
  /// [module → host, during the notification]
  virtual TMarketDataItem* Find(std::string_view symbol) const = 0;
};

/// What a spread listener is given: the spread tables that changed, by code.
class ALGO_SHARED TSpreadDictionary {
 public:
  virtual ~TSpreadDictionary();

  /// [module → host, during the notification]
  virtual bool Contains(std::string_view code) const = 0;
};

class ALGO_SHARED TCustomSubscribeAdapter : public THostService<TCustomSubscribeAdapter> {
 public:
  /// [host → module, while it is registered]
  using TListener = std::function<void(const void* sender, const TItemDictionary* data)>;

  virtual ~TCustomSubscribeAdapter();

  /// The item of the symbol in that data set; a symbol without data gives an item in state 0. Asking alone
  /// leaves nothing to give back. `live` asks for updates at once, false for what is at hand.
  /// [module → host, while a provider lives]
  virtual TMarketDataItem* Subscribe(std::string_view symbol, std::string_view dataSet, bool live) = 0;

  /// Calls `listener` whenever the item changed, until the owner unsubscribes it.
  /// [module → host, while the item is subscribed]
  virtual void AddListener(TMarketDataItem* item, TListener listener, TOwner owner) = 0;

  /// Ends the owner's interest in the item, which may be gone afterwards.
  /// [module → host, while it is registered]
  virtual void Unsubscribe(TMarketDataItem* item, TOwner owner) = 0;
};

/// What the market adapter knows of an instrument.
struct TInstrument {
  std::string symbol;
  std::string lotText;  ///< board lot as text; may be empty
};

class ALGO_SHARED TCustomMarketAdapter : public THostService<TCustomMarketAdapter> {
 public:
  /// [host → module, while it is registered]
  using TSpreadListener = std::function<void(const void* sender, const TSpreadDictionary* data)>;

  virtual ~TCustomMarketAdapter();

  /// The record of the symbol, the host's own; nullptr when the host does not know it.
  /// [module → host, while a provider lives]
  virtual const TInstrument* FindInstrument(std::string_view symbol) = 0;

  /// Calls `listener` whenever spread tables changed, until the owner is removed.
  /// [module → host, while a provider lives]
  virtual void AddSpreadListener(TSpreadListener listener, TOwner owner) = 0;
  /// [module → host, while it is registered]
  virtual void RemoveSpreadListener(TOwner owner) = 0;
};

}  // namespace algo::host
