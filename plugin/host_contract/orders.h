#pragma once

// The host's order objects and the records in which they travel. A module reads and writes properties; where
// an order is kept, and what its numbers mean to a market, is the host's own business.

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <string_view>

#include "forms/export.h"

namespace algo::host {

/// Order sides as orders carry them.
inline constexpr std::int32_t SideBuy = 0;
inline constexpr std::int32_t SideSell = 1;

/// Order marks, in the order's property `flags`.
inline constexpr std::uint32_t WorkMark = 0x00000001;        ///< set together with WorkParentMark
inline constexpr std::uint32_t WorkParentMark = 0x10000000;  ///< children are cut from the order
inline constexpr std::uint32_t WorkChildMark = 0x20000000;   ///< the order was cut from a parent

/// The numbered text property that holds the algo parameter text.
inline constexpr std::int32_t AlgoTextProperty = 440;

/// The named text property that says where an order was entered.
inline constexpr std::string_view OriginalProperty = "Original";

class ALGO_SHARED TCustomOrder {
 public:
  virtual ~TCustomOrder();

  std::string key;       ///< the order's identifying text in the host
  std::string orderNo;   ///< the order number
  std::string parentNo;  ///< the order number of the parent of a child order; else empty
  std::string account;
  std::string symbol;
  std::string exchange;
  std::string user;             ///< the identity of the user who cut a child order
  std::int32_t side = SideBuy;  ///< 0 buy, 1 sell
  double quantity = 0;          ///< total, in shares or contracts
  double filled = 0;            ///< executed so far
  double committed = 0;         ///< the second committed quantity: held back for other uses than children
  double price = 0;             ///< as the market knows it, not multiplied for display; 0 for none
  double stopPrice = 0;         ///< trigger price of a stop order
  std::int32_t status = 0;      ///< host status code
  std::uint32_t orderTypeFlags = 0;  ///< basic type number in the low five bits, and type bits
  std::uint32_t auctionFlags = 0;    ///< orders at the open and at the close
  std::uint32_t algoFlags = 0;       ///< 0x8000 marks a native algo order
  std::uint32_t flags = 0;           ///< order marks, see above

  /// The numbered text property; empty when it was never set.
  /// [either side, while the order lives]
  std::string TextProperty(std::int32_t number) const;
  void SetTextProperty(std::int32_t number, std::string text);

  /// The named text property; empty when it was never set.
  /// [either side, while the order lives]
  std::string NamedText(std::string_view name) const;
  void SetNamedText(std::string_view name, std::string text);

  /// The text properties that were set, by number and by name; empty ones included.
  /// [either side, while the order lives]
  const std::map<std::int32_t, std::string>& NumberedTexts() const { return FNumberedTexts; }
  const std::map<std::string, std::string, std::less<>>& NamedTexts() const { return FNamedTexts; }

  /// Copies every property of `other` into this order.
  /// [either side, while the order lives]
  void AssignContent(const TCustomOrder& other);

 protected:
  TCustomOrder() = default;
  TCustomOrder(const TCustomOrder&) = default;
  TCustomOrder& operator=(const TCustomOrder&) = default;

 private:
  std::map<std::int32_t, std::string> FNumberedTexts;
  std::map<std::string, std::string, std::less<>> FNamedTexts;
};

/// An order of a client, the only class of order that the module handles; it checks the class before use.
class ALGO_SHARED TCustomClientOrder : public TCustomOrder {
 public:
  TCustomClientOrder() = default;
  TCustomClientOrder(const TCustomClientOrder&) = default;
  TCustomClientOrder& operator=(const TCustomClientOrder&) = default;
  ~TCustomClientOrder() override;
};

/// What can be asked of the order action manager; also the action code of an action record.
enum class TOrderAction : std::int32_t { New = 1, Change = 2, Work = 42 };

}  // namespace algo::host
