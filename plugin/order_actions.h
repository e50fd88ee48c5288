#pragma once

// The order actions: which form answers which, and what happens to the order when the trader says OK. The
// provider owns them; they outlive it for as long as one of them runs, because what an action calls in the
// host may destroy the provider.

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>

#include "plugin/host_contract/base_view.h"
#include "plugin/host_contract/channel_manager.h"
#include "views/change/change_frame.h"
#include "views/work/work_order_frame.h"

namespace algo::plugin {

/// A dialog form with the frame inside it.
template <class TFrame>
struct THostedFrame {
  std::shared_ptr<forms::TDialogForm> form;
  std::shared_ptr<TFrame> frame;
};

/// One that is kept for the next order.
template <class TFrame>
struct TKeptDialog : THostedFrame<TFrame> {
  bool busy = false;                          ///< from the loading of an order until the form is hidden
  bool gone = false;                          ///< the provider is
  std::optional<std::int32_t> language = {};  ///< to be taken up before the next order is loaded
};

class TOrderActions : public std::enable_shared_from_this<TOrderActions> {
 public:
  /// Gives a frame to the provider's views; false when there is no provider any more.
  using TAddView = std::function<bool(std::shared_ptr<host::TViewFrame>)>;

  TOrderActions(host::TIBaseView& provider, bool showChangeModally, TAddView addView);

  /// Answers what was posted on the order action channel; with no effect on what is not for this module.
  /// Throws what the host's services throw.
  void Take(host::TChannelRecord* record);

  /// Has the kept dialogs take up the language before they show the next order.
  void MarkLanguage(std::int32_t language);
  /// Has the change forms that are open take it up now.
  void SetLanguage(std::int32_t language);

  /// The provider goes: dialogs that show end with Cancel, change forms close, and nothing is answered any
  /// more. Failures of the host are reported.
  void End();

 private:
  void AddOrder(host::TCustomClientOrder& order, host::TOrderTakeActionRecord& record);
  void ChangeOrder(host::TCustomClientOrder& order);
  void AddWorkOrder(host::TCustomClientOrder& order);
  void CreateDefaultView();
  void CreateDefaultWorkView();
  void CreateNonShowModelView(host::TCustomClientOrder& order);
  std::shared_ptr<forms::TDialogForm> MakeForm();
  void OnCloseView(forms::TDialogForm& sender);
  void WorkOrderAlgoTypeChange();

  host::TIBaseView* FProvider;  ///< nullptr once it has gone
  bool FShowChangeModally;
  TAddView FAddView;
  std::shared_ptr<TKeptDialog<views::change::TAlgoOrderChangeFrame>> FChange;
  std::shared_ptr<TKeptDialog<views::work::TAlgoWorkOrderFrame>> FWork;
  std::map<std::string, THostedFrame<views::change::TAlgoOrderChangeFrame>>
      FOpenChanges;  ///< non-modal forms by order key
  bool FMakingChange = false;
  bool FMakingWork = false;
};

}  // namespace algo::plugin
