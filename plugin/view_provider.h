#pragma once

// The view provider: what the host sees of the module. It places the algo order entry view in the host's
// menu, makes its instances, and answers the order actions that are posted on the order action channel for
// orders of this module, with the confirmation, the change form or the work order form.

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "plugin/host_contract/base_view.h"
#include "plugin/host_contract/channel_manager.h"
#include "plugin/host_contract/registration.h"
#include "views/change/change_frame.h"
#include "views/work/work_order_frame.h"

namespace algo::plugin {

/// The name under which the class registry knows the provider.
inline constexpr std::string_view ProviderClassName = "TIAlgoEntryOrder";

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

class TIAlgoEntryOrder : public host::TIBaseView {
 public:
  /// Subscribes to the order action channel; throws what the host's services throw.
  explicit TIAlgoEntryOrder(const void* owner);
  ~TIAlgoEntryOrder() override;

  std::string GetName() override;
  std::int32_t GetViewID() override;
  std::int32_t GetMenuLevel() override;
  std::int32_t GetMenuIndex(std::int32_t level) override;
  std::int32_t GetMenuID(std::int32_t level) override;
  std::string GetMenuCaption(std::int32_t level) override;
  std::int32_t GetMenuGroupIndex(std::int32_t level) override;
  bool GetIsVisible() override;
  bool GetDefaultCaption(std::string& caption) override;
  bool GetDefaultSize(std::int32_t& width, std::int32_t& height) override;
  host::TInstanceHandle OpenNewInstance() override;
  void CloseInstance(host::TInstanceHandle instance) override;
  bool SetLanguage(host::TInstanceHandle instance, std::int32_t language) override;

 private:
  void TakeOrderAction(const void* sender, host::TChannelRecord* record);
  void AddOrder(host::TCustomClientOrder& order, host::TOrderTakeActionRecord& record);
  void ChangeOrder(host::TCustomClientOrder& order, host::TOrderTakeActionRecord& record);
  void AddWorkOrder(host::TCustomClientOrder& order, host::TOrderTakeActionRecord& record);
  void CreateDefaultView();
  void CreateDefaultWorkView();
  void CreateNonShowModelView(host::TCustomClientOrder& order);
  void OnCloseView(forms::TDialogForm& sender, forms::TCloseAction& action);
  void WorkOrderAlgoTypeChange();

  // Shared, so that an action that runs can see that the provider went.
  std::shared_ptr<TKeptDialog<views::change::TAlgoOrderChangeFrame>> FChange;
  std::shared_ptr<TKeptDialog<views::work::TAlgoWorkOrderFrame>> FWork;
  std::map<std::string, THostedFrame<views::change::TAlgoOrderChangeFrame>>
      FOpenChanges;  ///< non-modal forms by order key
  /// Up while a dialog is made, which calls into the host; shared, because the provider may go meanwhile.
  std::shared_ptr<bool> FMakingDialog = std::make_shared<bool>(false);
  bool FShowChangeModally = true;
  host::TRegistration FListening;  ///< to the order actions
};

}  // namespace algo::plugin
