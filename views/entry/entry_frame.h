#pragma once

// The algo order entry frame: the form in which a trader fills in an algorithmic order and sends it. One
// instance stands in each open view. The change frame and the work order frame derive from it and use the
// same form.
//
// One source per concern: entry_frame.cpp (making, unmaking, configuration), form.cpp (the form from its
// tables), pick_lists.cpp (exchanges, algorithms, order types), algo_view.cpp (what an algorithm shows and
// resets), captions.cpp, field_rules.cpp (exit, click and Enter), tracking.cpp (symbol and prices),
// order_type.cpp, submit.cpp, load_parameters.cpp, copying.cpp, layout_text.cpp and work_parent.cpp.

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "forms/frame.h"
#include "model/algos.h"
#include "model/rules.h"
#include "model/values.h"
#include "plugin/host_contract/channel_manager.h"
#include "plugin/host_contract/market_data.h"
#include "plugin/host_contract/orders.h"
#include "plugin/host_contract/registration.h"
#include "plugin/host_contract/view_frame.h"
#include "views/boundary/boundary.h"
#include "views/entry/fields.h"

namespace algo::views {

struct TLayoutRow;

/// The view id under which the entry view posts its orders.
inline constexpr std::int32_t AlgoEntryViewID = 426;

/// What orders of this module carry in their text property "Original".
inline constexpr std::string_view AlgoEntryOrigin = "AlgoEntry";

/// A side that is not chosen.
inline constexpr std::int32_t SideNotChosen = 3;

class TAlgoOrderEntryFrame : public host::TViewFrame {
 public:
  explicit TAlgoOrderEntryFrame(std::string className = "TAlgoOrderEntryFrame");
  ~TAlgoOrderEntryFrame() override;

  // What the host asks of an open view. All of these are boundaries: they report errors and let none out.

  bool SetLanguage(std::int32_t language) override;
  void SetSkin(std::string_view name) override;
  bool SetGroupID(std::string_view id) override;
  std::string GetGroupID() const override { return FGroupID; }
  std::string GetLayoutData() override;
  bool SetLayoutData(std::string_view text) override;
  void Detach() override;

  // Controls and layout by name on the form.

  forms::TTextEdit& Edit(TField field) const { return static_cast<forms::TTextEdit&>(Control(field)); }
  forms::TSpinEdit& Spin(TField field) const { return static_cast<forms::TSpinEdit&>(Control(field)); }
  forms::TComboBox& Combo(TField field) const { return static_cast<forms::TComboBox&>(Control(field)); }
  forms::TDateEdit& Date(TField field) const { return static_cast<forms::TDateEdit&>(Control(field)); }
  forms::TCheckBox& Check(TField field) const { return static_cast<forms::TCheckBox&>(Control(field)); }
  forms::TSpeedButton& SideButton(TField field) const {
    return static_cast<forms::TSpeedButton&>(Control(field));
  }
  forms::TControl& Control(TField field) const { return *FControls[IndexOf(field)]; }
  forms::TLayoutItem& Item(TField field) const { return *Control(field).Item(); }
  forms::TLayoutGroup& Group(TGroup group) const { return *FGroups[IndexOf(group)]; }

  // Orders.

  /// Checks the entries and writes account, symbol, exchange, quantity, side and price into the order. False,
  /// with the order untouched, when a rule failed; its message has then been shown.
  bool GetOrder(host::TCustomClientOrder& order);

  /// Adds the bits of the chosen host order type to the order, and takes its price away where the type has
  /// none. With no effect when no type is chosen.
  void SetOrderType(host::TCustomClientOrder& order) const;

  /// The trigger bits that a stop limit order gets from the market: 0 without live data or for another order.
  std::uint32_t GetAutoTrigger(const host::TCustomClientOrder& order) const;

  /// Marks the order as a native algo order; with no effect on nullptr.
  void SetNativeAlgo(host::TCustomClientOrder* order) const;

  /// Stamps the order as entered through this view.
  void SetAlgoOrder(host::TCustomClientOrder& order) const;

  /// Writes the algo parameter text that the entries give into the order. Throws EListIndexError, with no
  /// effect on the order, when no algorithm is chosen.
  void SetOrderAlgo(host::TCustomClientOrder& order) const;

  /// Chooses the host order type that the order's flags show; the first one when it is not offered.
  void SetDisplayOrderType(const host::TCustomOrder& order);

  /// Hands the order to the host, directly or through the confirmation, and clears the form afterwards when
  /// that is wanted and the order was accepted.
  void SubmitOrder(host::TCustomClientOrder& order);

  /// Chooses the algorithm of that name, where it may be changed, and puts the parameters of `pieces`
  /// ("key=value" each) into their editors. Throws EConversionError at a time that cannot be read, keeping
  /// what was loaded before it.
  void InitializeConfirmView(std::string_view algoName, const std::vector<std::string_view>& pieces);

  /// Shows a resource text to the trader.
  void PopupMsg(std::string_view resourceId) const;

  /// Whether one of the pieces of `text`, split at ";", contains "Original".
  static bool CheckTheOrder(std::string_view text);

  // The form.

  /// Empties the form; fields that are locked keep what they hold, and so does the side.
  void ClearOrder();

  /// Empties every algo field and puts the choices to where a new form has them.
  void ResetInputUI();

  /// Follows the symbol (empty for none) and prefills quantity and price from its market data anew.
  void SetSymbol(std::string_view symbol);

  /// Fills quantity and price from the market, each once for a symbol; with no effect without usable data or
  /// while something is being copied into the form.
  void UpdateSymbolInfo();

  /// Enables the price editor and its lock by the chosen host order type; with no effect for a type without a
  /// rule.
  void UpdatePriceEditorState();

  /// Puts the market price into the price editors of the algo fields, whatever they hold.
  void UpdatePrice();

 protected:
  /// The resource text of the id, in the user's language.
  std::string GetResource(std::string_view id) const;

  /// The chosen algorithm's row: nullptr when none is chosen or its id is not in the catalogue. Throws
  /// EListIndexError when the choice lies just behind the list.
  const model::TAlgoRow* ChosenAlgo() const;

  /// The entries of the algo fields as values.
  model::TParamValues Values() const;

  /// What the first failed rule of the times and of the chosen algorithm complains of.
  std::optional<model::TRuleFailure> CheckAlgoFields() const;

  /// A text to be shown names an algorithm that is not offered. The entry frame keeps its own choice.
  virtual void AlgoNotOffered() {}

  /// Whether a refill of the algorithms chooses the first one where none was chosen before.
  virtual bool FirstAlgoStandsIn() const { return true; }

  /// Whether orders and prices picked in other views may be copied into the form.
  virtual bool TakesCopies() const { return true; }

  /// Chooses the exchange of that code; the first one when it is not there.
  void SelectExchange(const std::string& code);

  /// The algorithm was changed: shows its fields, emptied.
  virtual void cmbOrderTypeChange();
  virtual void cbLockPriceChange();
  virtual void cbPopupClick();
  virtual void btnBuyClick();
  virtual void btnSellClick();
  virtual void btnSubmitClick();
  virtual void btnClearClick();

  /// Tells the trader what a rule complains of.
  void Tell(const model::TRuleFailure& complaint) const;

  /// The price to write into an order for a price as shown: divided by `item`'s multiplier where it has one.
  /// Throws EConversionError when that gives no finite number.
  static double PriceForOrder(double shown, const host::TMarketDataItem* item);

  /// The price to show for a price as the market has it.
  static double PriceToShow(double raw, const host::TMarketDataItem* item);

  /// The item's price multiplier; nothing when the item is not live or has none.
  static std::optional<double> PriceMultiplier(const host::TMarketDataItem* item);

  /// A handler for control events and host notifications: a boundary around the method, dead once the frame
  /// is detached.
  template <class TFrameClass, class... TArguments>
  std::function<void(TArguments...)> Handler(void (TFrameClass::*method)(TArguments...)) {
    return [this, method, alive = std::weak_ptr<const bool>(FAlive)](TArguments... arguments) {
      if (alive.expired()) return;
      const auto kept = KeepAlive();
      AtBoundary([&] { (static_cast<TFrameClass*>(this)->*method)(arguments...); });
    };
  }

  /// Whether the frame has given everything back and lives on only because a handler of it runs.
  bool Detached() const { return !FAlive; }

  void RunInput(const std::function<void()>& input) override;

  /// Registers an editor with the host for the life of the frame.
  void RegisterQuantityEditor(forms::TSpinEdit& control);

  /// Moves the focus to the first of the controls that can take it; it stays where none can.
  void FocusNext(std::span<const TField> candidates, std::span<const TField> then = {});

  std::vector<std::string> FAlgoExchList;        ///< exchange codes, parallel to cmbExch
  std::vector<std::string> FAlgoTypeList;        ///< algorithm resource ids, parallel to cmbOrderType
  std::vector<std::string> FOrderTypeConstList;  ///< algorithm codes, parallel to cmbOrderType
  std::vector<std::string> FOrderTypeList;       ///< host order type resource ids, parallel to cmbMType
  std::string FCurrentAccount;
  std::string FCurrentSymbol;
  host::TMarketDataItem* FCurrentItem = nullptr;  ///< the followed symbol's, owned by the host

 private:
  /// While refills last, choices change silently; at the end of the outermost one the change handler of each
  /// list whose chosen entry is another than before runs once.
  class TRefill;
  /// Marks a copy into the frame for the life of the object.
  class TCopying;
  /// The entries for which the change handlers ran last.
  struct TChosen {
    std::string exchange;
    std::string algoType;
    std::string orderType;
  };

  /// What a refill puts into a combo box and the lists beside it.
  struct TPickList {
    std::vector<std::string> ids;
    std::vector<std::string> codes;
    std::vector<std::string> texts;
  };

  // form.cpp
  void MakeForm();
  void WireEvents();

  // entry_frame.cpp
  void RegisterWithHost();
  void TellEditorsOfGroup();
  void SkinChanged(std::string_view name);
  void ConfigUpdate();
  bool WorksOnProfileAccount() const;
  void UpdateScale();

  // pick_lists.cpp
  void InitializeList();
  void InitExchangeList();
  void InitializeOrderType(std::int32_t exchangeIndex);
  void OfferNothing();
  void RefillOrderLists();
  TPickList AlgoTypesOf(const std::string& exchange) const;
  TPickList OrderTypesOf(const std::string& exchange) const;
  void FillPickLists();
  void FillStyleList();
  void FillRefList();
  const std::vector<std::string>& ListOf(TField combo) const;
  TChosen Chosen() const;
  void cmbExchChange();
  void cmbMOrderTypeChange();

  // algo_view.cpp
  void ResetView();
  void InitializeView();

  // captions.cpp
  void SetCaptions();
  void FitSideButtons();

  // field_rules.cpp
  void ApplyExitRule(TField field);
  void FocusAfter(TField field);
  void edtAccountExit();
  void edtSymbolExit();

  // load_parameters.cpp
  void ChooseAlgo(std::string_view algoName);
  void LoadParameter(model::TParam param, const std::vector<std::string_view>& pieces);

  // submit.cpp
  void cbClearClick();
  void StoreSetting(std::string_view key, bool value) const;

  // tracking.cpp
  void SymbolUpdate(const void* sender, const host::TItemDictionary* data);
  void SpreadUpdate(const void* sender, const host::TSpreadDictionary* data);
  void UnfollowSymbol();
  void PrefillQuantity();
  void PrefillPrice();

  // copying.cpp
  void CopyOrder(const void* sender, host::TChannelRecord* record);
  void CopyPrice(const void* sender, host::TChannelRecord* record);
  const host::TCustomClientOrder* OrderForThisView(const host::TChannelRecord* record) const;
  void CopySymbol(const std::string& symbol);
  void DoCopyOrder(const host::TCustomClientOrder& order);
  void DoCopyPrice(const host::TCustomClientOrder& order);

  // layout_text.cpp
  std::optional<std::string> LayoutValue(const TLayoutRow& row) const;
  void ApplyLayoutValue(const TLayoutRow& row, const std::string& value);

  // work_parent.cpp
  void btnWorkClick();
  bool GetWorkOrder(host::TCustomClientOrder& order);
  void WorkOrder(host::TCustomClientOrder& order) const;

  std::optional<model::TRuleFailure> CheckCommon() const;
  void FillCommonFields(host::TCustomClientOrder& order) const;

  std::string FGroupID;
  std::int32_t FOrderType = SideNotChosen;  ///< the side, despite its name
  std::vector<std::string> FOpenCloseList;
  std::vector<std::string> FStyleList;
  std::vector<std::string> FFuncList;
  std::vector<std::string> FRefList;
  std::vector<std::int32_t> FRefValList;  ///< codes, parallel to FRefList without its last entry
  bool FPriceSet = false;  ///< the price was filled for this symbol; market data leaves it alone
  bool FQtySet = false;    ///< the lot size was taken for this symbol
  std::int32_t FLotSize = 0;
  bool FCopying = false;
  std::int32_t FGlobalValueUpdateMode = -1;

  std::array<forms::TControl*, FieldCount> FControls{};
  std::array<forms::TLayoutGroup*, GroupCount> FGroups{};
  forms::TCaptionStyle* FBoldStyle = nullptr;
  TChosen FAnnounced;
  std::int32_t FRefillDepth = 0;
  std::shared_ptr<const bool> FAlive = std::make_shared<const bool>(true);
  host::TRegistrations FRegistrations;
};

}  // namespace algo::views
