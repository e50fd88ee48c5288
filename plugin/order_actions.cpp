// The order actions: which form answers which, and what happens to the order when the trader says OK.

#include <memory>
#include <optional>
#include <string_view>
#include <utility>

#include "plugin/host_contract/language_manager.h"
#include "plugin/host_contract/order_action_manager.h"
#include "plugin/host_contract/view_functions.h"
#include "plugin/view_provider.h"
#include "views/boundary/boundary.h"

namespace algo::plugin {

namespace {

bool TakeAction(host::TCustomClientOrder& order, host::TOrderAction action) {
  return host::TCustomOrderActionManager::GetInstance().TakeAction(nullptr, &order, action, 1);
}

void FitToFrame(forms::TDialogForm& form, const host::TViewFrame& frame) {
  form.SetClientSize({static_cast<double>(frame.GetWidth()), static_cast<double>(frame.GetHeight())});
}

/// What the trader says in the form; it is hidden afterwards. True for OK.
bool SaysOk(forms::TDialogForm& form, const host::TViewFrame& frame, std::string_view captionId) {
  struct THide {
    forms::TDialogForm& form;
    ~THide() { form.Hide(); }
  };
  const THide hide{form};
  form.SetCaption(host::ResourceText(captionId));
  FitToFrame(form, frame);
  const views::TNestedLoopScope modalLoop;
  return form.ShowModal() == forms::ModalOk;
}

/// One order action that the trader is asked about in a dialog.
template <class TFrame>
struct TQuestion {
  void (TFrame::*load)(host::TCustomClientOrder*);
  std::string_view captionId;
  host::TOrderAction action;
};

/// Loads the order into the frame, asks the trader, and takes the action when the answer is OK. Gives what
/// the host says to it; nothing when no action was taken, because of another answer or because the form shows
/// already.
template <class TFrame>
std::optional<bool> Ask(const TQuestion<TFrame>& question, const THostedFrame<TFrame>& dialog,
                        host::TCustomClientOrder& order) {
  const auto [form, frame] = dialog;  // copies, because the provider may go meanwhile
  if (form->Showing()) return std::nullopt;
  const views::change::TOrderLoad load(*frame);
  (*frame.*question.load)(&order);
  if (!SaysOk(*form, *frame, question.captionId)) return std::nullopt;
  return TakeAction(order, question.action);
}

using TChangeFrame = views::change::TAlgoOrderChangeFrame;
using TWorkFrame = views::work::TAlgoWorkOrderFrame;
using enum host::TOrderAction;

constexpr TQuestion<TChangeFrame> AskNew{&TChangeFrame::AddOrder, "Res_Conf_Caption", New};
constexpr TQuestion<TChangeFrame> AskChange{&TChangeFrame::ChangeOrder, "Res_Conf_ChangeOrder", Change};
constexpr TQuestion<TWorkFrame> AskWork{&TWorkFrame::WorkOrder, "Res_Conf_WorkOrder", Work};

}  // namespace

void TIAlgoEntryOrder::TakeOrderAction(const void* /*sender*/, host::TChannelRecord* record) {
  auto* action = dynamic_cast<host::TOrderTakeActionRecord*>(record);
  if (action == nullptr) return;
  auto* order = dynamic_cast<host::TCustomClientOrder*>(action->order);
  // Orders from elsewhere are left to whoever else listens.
  if (order == nullptr || order->NamedText(host::OriginalProperty) != views::entry::AlgoEntryOrigin) return;
  switch (static_cast<host::TOrderAction>(action->action)) {
    case New:
      return AddOrder(*order, *action);
    case Change:
      return ChangeOrder(*order, *action);
    case Work:
      return AddWorkOrder(*order, *action);
  }
}

void TIAlgoEntryOrder::AddOrder(host::TCustomClientOrder& order, host::TOrderTakeActionRecord& record) {
  CreateDefaultView();
  if (const auto accepted = Ask(AskNew, FChange, order)) record.result = *accepted;
}

void TIAlgoEntryOrder::ChangeOrder(host::TCustomClientOrder& order,
                                   host::TOrderTakeActionRecord& /*record*/) {
  if (!FShowChangeModally) return CreateNonShowModelView(order);
  CreateDefaultView();
  Ask(AskChange, FChange, order);
}

void TIAlgoEntryOrder::AddWorkOrder(host::TCustomClientOrder& order,
                                    host::TOrderTakeActionRecord& /*record*/) {
  if ((order.flags & host::WorkParentMark) == 0) return;
  CreateDefaultWorkView();
  Ask(AskWork, FWork, order);
}

void TIAlgoEntryOrder::CreateDefaultView() {
  if (FChange.form) return;
  THostedFrame<TChangeFrame> made{nullptr, std::make_shared<TChangeFrame>()};
  made.frame->SetShownModally(true);
  made.form = host::GetDialogForm(*this);
  made.form->SetFrame(made.frame);
  AddView(made.frame);
  FChange = std::move(made);
}

void TIAlgoEntryOrder::CreateDefaultWorkView() {
  if (FWork.form) return;
  THostedFrame<TWorkFrame> made{host::GetDialogForm(*this), std::make_shared<TWorkFrame>()};
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
  THostedFrame<TChangeFrame> made{nullptr, std::make_shared<TChangeFrame>()};
  made.form = host::GetDialogForm(*this);
  made.form->OnClose = [this](forms::TDialogForm& sender, forms::TCloseAction& action) {
    OnCloseView(sender, action);
  };
  made.form->SetFrame(made.frame);
  made.frame->ChangeOrder(&order);
  // Loading calls into the host, which may have asked for the same order meanwhile.
  if (FOpenChanges.contains(key)) return;
  made.form->SetCaption(host::ResourceText("Res_Conf_ChangeOrder"));
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
