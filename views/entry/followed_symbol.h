#pragma once

// The one symbol that a form follows: its subscription, and what its market data fills into the form, each
// once for a symbol. What the trader typed meanwhile is left alone.

#include <cstdint>
#include <string>
#include <string_view>

#include "plugin/host_contract/market_data.h"
#include "views/entry/entry_form.h"

namespace algo::views::entry {

class TFollowedSymbol {
 public:
  /// Subscribes in the name of `owner`, with a listener that leads to SymbolUpdate. The form outlives the
  /// object.
  TFollowedSymbol(TEntryForm& form, host::TOwner owner, host::TCustomSubscribeAdapter::TListener listener);

  /// The symbol; empty for none.
  const std::string& Symbol() const { return FCurrentSymbol; }
  /// Its market data, owned by the host; nullptr while nothing is followed.
  const host::TMarketDataItem* Item() const { return FCurrentItem; }

  /// Follows the symbol (empty for none), tells the editors of it, and prefills quantity and price from its
  /// market data anew.
  void SetSymbol(std::string_view symbol);

  /// Ends the subscription for good: no symbol is followed from now on, even when the host fails at it.
  void End();

  /// Leaves no symbol, with the editor's code emptied; a failure of the host is dropped.
  void Forget();

  /// Market data came: what belongs to the symbol is taken up, everything else passed over.
  void SymbolUpdate(const host::TItemDictionary* data);
  void SpreadUpdate(const host::TSpreadDictionary* data);

  /// Fills quantity and price from the market, each once for a symbol; with no effect without usable data or
  /// while something is being copied into the form.
  void UpdateSymbolInfo();

  /// Puts the market price into the price editors of the algo fields, whatever they hold.
  void UpdatePrice();

  // Whether price and quantity were filled for this symbol, by whatever means; market data leaves them alone
  // then.

  void SetPriceFilled(bool filled) { FPriceSet = filled; }
  void SetQuantityFilled(bool filled) { FQtySet = filled; }

  /// Up while something is being copied into the form.
  bool& Copying() { return FCopying; }

 private:
  void Unfollow();
  bool Follow(const std::string& symbol);
  void Prefill();
  void TellEditors() const;
  void PrefillQuantity();
  void PrefillPrice();
  void MovePriceCarets() const;

  TEntryForm& FForm;
  host::TOwner FOwner;
  host::TCustomSubscribeAdapter::TListener FListener;
  std::string FCurrentSymbol;
  host::TMarketDataItem* FCurrentItem = nullptr;
  std::uint32_t FTurn = 0;  ///< counts the changes of symbol, so that one inside another is noticed
  bool FListening = false;  ///< to the item
  bool FEnded = false;
  bool FPriceSet = false;
  bool FQtySet = false;
  std::int32_t FLotSize = 0;
  bool FCopying = false;
};

}  // namespace algo::views::entry
