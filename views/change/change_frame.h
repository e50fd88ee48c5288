#pragma once

// The order change frame: the entry form around an order that exists already. It confirms a new order before
// it is sent and changes a working one. The order's identity is locked; pressing the side button says OK.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "plugin/host_contract/order_adapter.h"
#include "views/entry/entry_frame.h"

namespace algo::views::change {

// The frame speaks of the entry form's own controls.
using entry::TAlgoOrderEntryFrame;
using entry::TField;
using entry::TGroup;

/// What the loaded order is to be used for.
enum class TOperatorMode : std::int32_t { Add = 0, Change = 1, Work = 2 };

class TAlgoOrderChangeFrame : public TAlgoOrderEntryFrame {
 public:
  explicit TAlgoOrderChangeFrame(const entry::TFramePurpose& purpose = entry::ChangePurpose);

  /// Says whether the frame sits in a dialog that waits for the answer. If it does not, the frame owns a copy
  /// of the order that it changes, sends the change itself and closes its form.
  void SetShownModally(bool modal) { FIsChangeOrderShowModalView = modal; }

  /// Loads a new order for confirmation. Throws what loading throws; the order is used until ReleaseOrder.
  void AddOrder(host::TCustomClientOrder* order);

  /// Loads a working order to be changed; a frame that is not shown modally takes a copy.
  void ChangeOrder(host::TCustomClientOrder* order);

  /// Forgets the order; a copy of the frame's own is given back.
  void ReleaseOrder();

  /// Checks the times and the chosen algorithm's fields; false when a rule failed, whose message has then
  /// been shown. With no effect on the form and the order.
  bool CheckOrderValid() const;

  /// Whether the first comma-separated piece of `text` holds the code of an algorithm.
  bool CheckOrder(std::string_view text) const;

  /// Whether the order is one from which children are cut.
  static bool GetWorkOrder(const host::TCustomOrder& order);

  void Detach() override;

 protected:
  std::string ShownSymbol() const override { return FMyOrder != nullptr ? FMyOrder->symbol : std::string(); }

  virtual void InitializeViewbyOrder(host::TCustomClientOrder& order);

  /// Whether an order with these flags has a price that may be set.
  static bool PriceMayBeSet(const host::TCustomOrder& order);

  void btnBuyClick() override;
  void btnSellClick() override;
  void cbPopupClick() override;

  host::TCustomClientOrder* FMyOrder = nullptr;
  TOperatorMode FOrderOperatorMode = TOperatorMode::Add;

 private:
  void Confirm();
  double ChangedPrice() const;
  void SubmitChange();
  void SendChange();
  void ShowIdentity(const host::TCustomClientOrder& order, const host::TMarketDataItem* item);
  void LockIdentity();
  void StepByLot(const host::TMarketDataItem* item, const host::TInstrument* instrument);
  void SetChangeViewVisible(std::string_view algoId);
  void SetConfirmViewVisible();
  void EnableAmendable();
  void ShowAlgoPart(host::TCustomClientOrder& order);

  std::vector<std::string> FOrderConstList;  ///< the algorithms' codes
  bool FIsChangeOrderShowModalView = false;
  host::TOwnedOrder FOwnOrder;          ///< the copy that a non-modal change works on
  std::optional<double> FShownPrice;    ///< what loading put into the price editor
  std::optional<double> FPriceDivisor;  ///< by which the price was multiplied for it
};

/// Has a frame release its order at the end of the block, however it ends.
class TOrderLoad {
 public:
  explicit TOrderLoad(TAlgoOrderChangeFrame& frame) : FFrame(frame) {}
  ~TOrderLoad() { FFrame.ReleaseOrder(); }
  TOrderLoad(const TOrderLoad&) = delete;
  TOrderLoad& operator=(const TOrderLoad&) = delete;

 private:
  TAlgoOrderChangeFrame& FFrame;
};

}  // namespace algo::views::change
