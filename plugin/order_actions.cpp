// The order actions: which form answers which, and what happens to the order when the trader says OK.

#include <utility>

#include "plugin/host_contract/language_manager.h"
#include "plugin/host_contract/order_action_manager.h"
#include "plugin/host_contract/view_functions.h"
#include "plugin/view_provider.h"
#include "views/boundary/boundary.h"

namespace algo::plugin {

namespace {

std::string Resource(std::string_view id) {
  return host::TCustomLanguageManager::GetInstance().GetText(host::Const_ResourceStringTag, id, 3, 0, 0);
}

bool TakeAction(host::TCustomClientOrder& order, host::TOrderAction action) {
  return host::TCustomOrderActionManager::GetInstance().TakeAction(nullptr, &order, action, 1);
}

void FitToFrame(forms::TDialogForm& form, const host::TViewFrame& frame) {
  form.SetClientSize({static_cast<double>(frame.GetWidth()), static_cast<double>(frame.GetHeight())});
}

}  // namespace

void TIAlgoEntryOrder::TakeOrderAction(const void* /*sender*/, host::TChannelRecord* record) {
  auto* action = dynamic_cast<host::TOrderTakeActionRecord*>(record);
  if (action == nullptr) return;
  auto* order = dynamic_cast<host::TCustomClientOrder*>(action->order);
  // Orders from elsewhere are left to whoever else listens.
  if (order == nullptr || order->NamedText(host::OriginalProperty) != views::AlgoEntryOrigin) return;
  switch (static_cast<host::TOrderAction>(action->action)) {
    case host::TOrderAction::New:
      return AddOrder(*order, *action);
    case host::TOrderAction::Change:
      return ChangeOrder(*order, *action);
    case host::TOrderAction::Work:
      return AddWorkOrder(*order, *action);
  }
}

template <class TFrame>
bool TIAlgoEntryOrder::Confirmed(const THosted<TFrame>& dialog, std::string_view captionId) {
  struct THide {
    forms::TDialogForm& form;
    ~THide() { form.Hide(); }
  };
  const auto [form, frame] = dialog;
  const THide hide{*form};
  form->SetCaption(Resource(captionId));
  FitToFrame(*form, *frame);
  const views::TNestedLoopScope modalLoop;
  return form->ShowModal() == forms::ModalOk;
}

void TIAlgoEntryOrder::AddOrder(host::TCustomClientOrder& order, host::TOrderTakeActionRecord& record) {
  CreateDefaultView();
  if (FChange.form->Showing()) return;
  const auto frame = FChange.frame;
  const views::TOrderLoad load(*frame);
  frame->AddOrder(&order);
  if (Confirmed(FChange, "Res_Conf_Caption")) record.result = TakeAction(order, host::TOrderAction::New);
}

void TIAlgoEntryOrder::ChangeOrder(host::TCustomClientOrder& order,
                                   host::TOrderTakeActionRecord& /*record*/) {
  if (!FShowChangeModally) return CreateNonShowModelView(order);
  CreateDefaultView();
  if (FChange.form->Showing()) return;
  const auto frame = FChange.frame;
  const views::TOrderLoad load(*frame);
  frame->ChangeOrder(&order);
  if (Confirmed(FChange, "Res_Conf_ChangeOrder")) TakeAction(order, host::TOrderAction::Change);
}

void TIAlgoEntryOrder::AddWorkOrder(host::TCustomClientOrder& order,
                                    host::TOrderTakeActionRecord& /*record*/) {
  if ((order.flags & host::WorkParentMark) == 0) return;
  CreateDefaultWorkView();
  if (FWork.form->Showing()) return;
  const auto frame = FWork.frame;
  const views::TOrderLoad load(*frame);
  frame->WorkOrder(&order);
  if (Confirmed(FWork, "Res_Conf_WorkOrder")) TakeAction(order, host::TOrderAction::Work);
}

void TIAlgoEntryOrder::CreateDefaultView() {
  if (FChange.form) return;
  THosted<views::TAlgoOrderChangeFrame> made{nullptr, std::make_shared<views::TAlgoOrderChangeFrame>()};
  made.frame->SetShownModally(true);
  made.form = host::GetDialogForm(*this);
  made.form->SetFrame(made.frame);
  AddView(made.frame);
  FChange = std::move(made);
}

void TIAlgoEntryOrder::CreateDefaultWorkView() {
  if (FWork.form) return;
  THosted<views::TAlgoWorkOrderFrame> made{host::GetDialogForm(*this),
                                           std::make_shared<views::TAlgoWorkOrderFrame>()};
  made.form->SetFrame(made.frame);
  made.frame->SetOnAlgoTypeChange([this] { WorkOrderAlgoTypeChange(); });
  AddView(made.frame);
  FWork = std::move(made);
}

void TIAlgoEntryOrder::CreateNonShowModelView(host::TCustomClientOrder& order) {
  const std::string key = order.key;
  if (const auto open = FOpenChanges.find(key); open != FOpenChanges.end()) {
    return open->second.form->BringToFront();
  }
  THosted<views::TAlgoOrderChangeFrame> made{nullptr, std::make_shared<views::TAlgoOrderChangeFrame>()};
  made.form = host::GetDialogForm(*this);
  made.form->OnClose = [this](forms::TDialogForm& sender, forms::TCloseAction& action) {
    OnCloseView(sender, action);
  };
  made.form->SetFrame(made.frame);
  made.frame->ChangeOrder(&order);
  // Loading calls into the host, which may have asked for the same order meanwhile.
  if (FOpenChanges.contains(key)) return;
  made.form->SetCaption(Resource("Res_Conf_ChangeOrder"));
  FitToFrame(*made.form, *made.frame);
  made.form->SetStaysOnTop(true);
  const auto form = made.form;
  FOpenChanges.insert_or_assign(key, std::move(made));
  form->Show();
}

void TIAlgoEntryOrder::OnCloseView(forms::TDialogForm& sender, forms::TCloseAction& action) {
  std::erase_if(FOpenChanges, [&sender](const auto& open) { return open.second.form.get() == &sender; });
  action = forms::TCloseAction::Free;
}

void TIAlgoEntryOrder::WorkOrderAlgoTypeChange() {
  if (FWork.form) FitToFrame(*FWork.form, *FWork.frame);
}

}  // namespace algo::plugin
