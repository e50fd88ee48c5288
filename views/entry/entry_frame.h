#pragma once

// The algo order entry frame: the form in which a trader fills in an algorithmic order and sends it. One
// instance stands in each open view. The change frame and the work order frame derive from it and use the
// same form.
//
// The header is long because the operations of the frame that are known by name are all methods of this one
// class; what they do stands in the sources below. What the frame knows stands in members of their own: the
// form from its tables (entry_form.h), the pick lists, the followed symbol and the layout text. Its own
// sources: entry_frame.cpp (making, unmaking, what the host asks of a view), host_link.cpp (what is
// registered with the host), events.cpp (what the controls set off), captions.cpp, choosing.cpp (what follows
// from a choice), submit.cpp (from the click to the host), work_parent.cpp and copying.cpp.

#include <cstdint>
#include <exception>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "model/rules.h"
#include "plugin/host_contract/channel_manager.h"
#include "plugin/host_contract/language_manager.h"
#include "plugin/host_contract/orders.h"
#include "views/boundary/flag_scope.h"
#include "views/boundary/guarded_frame.h"
#include "views/entry/entry_form.h"
#include "views/entry/followed_symbol.h"
#include "views/entry/frame_purpose.h"
#include "views/entry/layout_text.h"
#include "views/entry/pick_lists.h"

namespace algo::views::entry {

/// The view id under which the entry view posts its orders.
inline constexpr std::int32_t AlgoEntryViewID = 426;

/// What orders of this module carry in their text property "Original".
inline constexpr std::string_view AlgoEntryOrigin = "AlgoEntry";

/// A side that is not chosen.
inline constexpr std::int32_t SideNotChosen = 3;

class TAlgoOrderEntryFrame : public TGuardedFrame {
 public:
  explicit TAlgoOrderEntryFrame(const TFramePurpose& purpose = EntryPurpose);

  // What the host asks of an open view. All of these are boundaries: they report errors and let none out.

  bool SetLanguage(std::int32_t language) override;
  void SetSkin(std::string_view name) override;
  bool SetGroupID(std::string_view id) override;
  std::string GetGroupID() const override { return FGroupID; }
  std::string GetLayoutData() override;
  bool SetLayoutData(std::string_view text) override;

  // Controls and layout by name on the form.

  forms::TTextEdit& Edit(TField field) const { return FForm.Edit(field); }
  forms::TSpinEdit& Spin(TField field) const { return FForm.Spin(field); }
  forms::TComboBox& Combo(TField field) const { return FForm.Combo(field); }
  forms::TDateEdit& Date(TField field) const { return FForm.Date(field); }
  forms::TCheckBox& Check(TField field) const { return FForm.Check(field); }
  forms::TSpeedButton& SideButton(TField field) const { return FForm.SideButton(field); }
  forms::TControl& Control(TField field) const { return FForm.Control(field); }
  forms::TLayoutItem& Item(TField field) const { return FForm.Item(field); }
  forms::TLayoutGroup& Group(TGroup group) const { return FForm.Group(group); }

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
  void SetSymbol(std::string_view symbol) { FSymbol.SetSymbol(symbol); }

  /// Fills quantity and price from the market, each once for a symbol; with no effect without usable data or
  /// while something is being copied into the form.
  void UpdateSymbolInfo() { FSymbol.UpdateSymbolInfo(); }

  /// Enables the price editor and its lock by the chosen host order type; with no effect when none is chosen.
  void UpdatePriceEditorState();

  /// Puts the market price into the price editors of the algo fields, whatever they hold.
  void UpdatePrice() { FSymbol.UpdatePrice(); }

 protected:
  /// The resource text of the id, in the user's language.
  std::string GetResource(std::string_view id) const { return host::ResourceText(id); }

  /// What the first failed rule of the times and of the chosen algorithm says.
  std::optional<model::TRuleFailure> CheckAlgoFields() const;

  /// Tells the trader what a failed rule says.
  void Tell(const model::TRuleFailure& failure) const;

  /// Runs one click that sends something. A further one that comes before this one has its answer, from
  /// inside a dialog or from the host, does nothing: one click is one order.
  template <class TSend>
  void OneAtATime(TSend&& send) {
    if (FSending) return;
    const TFlagScope sending(FSending);
    send();
  }

  /// Registers a quantity editor of its own with the host for the life of the frame.
  void RegisterQuantityEditor(forms::TSpinEdit& control);

  TPickLists& Lists() { return FLists; }
  const TPickLists& Lists() const { return FLists; }

  /// Run after the algorithm was changed, and with it the size of the form.
  std::function<void()> FOnAlgoTypeChange;

  /// Registers the editors in the group that GetGroupID names, and tells them their symbol.
  virtual void JoinGroup();

  /// Registers an editor anew, which moves it to another group; taken back where the frame went meanwhile.
  /// False then.
  bool Rejoin(host::TRegistration registration);

  /// The symbol of the order that the frame shows; empty where it shows none.
  virtual std::string ShownSymbol() const { return {}; }

  virtual void cbLockPriceChange();
  virtual void cbPopupClick();
  virtual void btnBuyClick();
  virtual void btnSellClick();
  virtual void btnSubmitClick();
  virtual void btnClearClick();

 private:
  // host_link.cpp
  void RegisterWithHost();
  void TellEditorsOfGroup(const std::string& symbol);
  void SymbolUpdate(const void* sender, const host::TItemDictionary* data);
  void SpreadUpdate(const void* sender, const host::TSpreadDictionary* data);
  void SkinChanged(std::string_view name);
  void ShowSkin();
  void ConfigUpdate();
  void UpdateScale();
  bool WorksOnProfileAccount() const;

  // choosing.cpp
  void InitializeList();
  void InitExchangeList() { FLists.InitExchangeList(); }
  void InitializeOrderType(std::int32_t exchangeIndex) { FLists.InitializeOrderType(exchangeIndex); }
  void ResetView() { FForm.HideAlgo(); }
  void InitializeView();
  void LayOutAlgo();
  void AlgoShown();
  void AlgoHidden();
  void cmbExchChange();
  void cmbOrderTypeChange();
  void cmbMOrderTypeChange();

  /// Notifies the host when the frame needs another size than at the beginning: by Send, or on the way out
  /// where something failed before it.
  class TSizeNotice {
   public:
    explicit TSizeNotice(TAlgoOrderEntryFrame& frame)
        : FFrame(frame), FWidth(frame.TViewFrame::GetWidth()), FHeight(frame.TViewFrame::GetHeight()) {}
    ~TSizeNotice();
    TSizeNotice(const TSizeNotice&) = delete;
    TSizeNotice& operator=(const TSizeNotice&) = delete;
    void Send() const;

   private:
    TAlgoOrderEntryFrame& FFrame;
    std::int32_t FWidth;
    std::int32_t FHeight;
    int FFailures = std::uncaught_exceptions();
  };

  // captions.cpp
  void SetCaptions();
  void FitSideButtons();

  // events.cpp
  void WireEvents();
  void FieldLeft(TField field) { FForm.ApplyExitRule(field); }
  void EnterPressed(TField field);
  void edtAccountExit();
  void edtSymbolExit();
  void AccountEditorFailed();
  void SymbolEditorFailed();
  void SubmitPressed();
  void WorkPressed();
  void cbClearClick();
  void StoreSetting(std::string_view key, bool value) const;

  // submit.cpp
  /// What an order is made of besides its algorithm, as the form has it.
  struct TEntries {
    std::int32_t side;
    std::string account;
    std::string symbol;
    const host::TMarketDataItem* item;
    std::int64_t quantity;
    std::int32_t algoIndex;
    bool operator==(const TEntries&) const = default;
  };
  TEntries Entries() const;
  std::optional<model::TRuleFailure> CheckCommon(const TEntries& entries) const;
  bool Passes(bool algoToo);
  void FillCommonFields(host::TCustomClientOrder& order) const;

  // copying.cpp
  void CopyOrder(const void* sender, host::TChannelRecord* record);
  void CopyPrice(const void* sender, host::TChannelRecord* record);
  const host::TCustomClientOrder* OrderForThisView(const host::TChannelRecord* record) const;
  void CopySymbol(const std::string& symbol);
  void DoCopyOrder(const host::TCustomClientOrder& order);
  void DoCopyPrice(const host::TCustomClientOrder& order);

  // work_parent.cpp
  void btnWorkClick();
  bool GetWorkOrder(host::TCustomClientOrder& order);
  void WorkOrder(host::TCustomClientOrder& order) const;

  const TFramePurpose& FPurpose;
  std::string FGroupID;
  std::int32_t FOrderType = SideNotChosen;  ///< the side, despite its name
  std::string FCurrentAccount;
  std::int32_t FGlobalValueUpdateMode = -1;
  bool FSending = false;  ///< a click that sends something has no answer yet
  bool FMade = false;     ///< from the end of the construction on
  TEntryForm FForm;
  TPickLists FLists;
  TFollowedSymbol FSymbol;
  TLayoutText FLayoutText;

  /// Takes back what is registered before the members go that it refers to, also where the making failed.
  host::TRegistration FRelease{[this] { Registrations().ReleaseAll(); }};
};

}  // namespace algo::views::entry
