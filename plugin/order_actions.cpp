// The order actions: which form answers which, and what happens to the order when the trader says OK.

#include <algorithm>
#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>
#include <utility>

#include "plugin/host_contract/language_manager.h"
#include "plugin/host_contract/order_action_manager.h"
#include "plugin/host_contract/view_functions.h"
#include "plugin/view_provider.h"
#include "views/boundary/boundary.h"
#include "views/boundary/flag_scope.h"

namespace algo::plugin {

namespace {

bool TakeAction(host::TCustomClientOrder& order, host::TOrderAction action) {
  return host::TCustomOrderActionManager::GetInstance().TakeAction(nullptr, &order, action, 1);
}

/// Shows the form until the trader has answered; true for OK.
bool SaysOk(forms::TDialogForm& form) {
  const views::TNestedLoopScope modalLoop;
  return form.ShowModal() == forms::ModalOk;
}

void FitToFrame(forms::TDialogForm& form, const host::TViewFrame& frame) {
  form.SetClientSize({static_cast<double>(frame.GetWidth()), static_cast<double>(frame.GetHeight())});
}

/// When the form of an order action gets its caption.
enum class TCaptioned : std::uint8_t { BeforeLoading, AfterLoading };

/// One order action that the trader is asked about in a dialog.
template <class TFrame>
struct TQuestion {
  void (TFrame::*load)(host::TCustomClientOrder*);
  std::string_view captionId;
  TCaptioned captioned;
  host::TOrderAction action;
};

/// Hides the form for certain, also where something else failed before.
class THideScope {
 public:
  explicit THideScope(std::shared_ptr<forms::TDialogForm> form) : FForm(std::move(form)) {}
  ~THideScope() {
    if (!FForm) return;
    try {
      FForm->Hide();
    } catch (...) {  // NOLINT(bugprone-empty-catch): the failure that led here is the one to report
    }
  }
  THideScope(const THideScope&) = delete;
  THideScope& operator=(const THideScope&) = delete;

  void Hide() { std::exchange(FForm, nullptr)->Hide(); }

 private:
  std::shared_ptr<forms::TDialogForm> FForm;
};

/// Loads the order into the frame, asks the trader, and takes the action when the answer is OK. Returns what
/// the host says to it; nothing when no action was taken, because of another answer or because the dialog is
/// busy with another order.
template <class TFrame>
std::optional<bool> Ask(const TQuestion<TFrame>& question, const std::shared_ptr<TKeptDialog<TFrame>>& kept,
                        host::TCustomClientOrder& order) {
  // Held here, because the provider, and with it the kept one, may go meanwhile.
  const auto dialog = kept;  // NOLINT(performance-unnecessary-copy-initialization)
  const auto form = dialog->form;
  const auto frame = dialog->frame;
  if (dialog->busy || form->Showing()) return std::nullopt;
  const views::TFlagScope busy(dialog->busy);
  const views::change::TOrderLoad load(*frame);
  if (const auto language = std::exchange(dialog->language, std::nullopt)) frame->SetLanguage(*language);
  if (question.captioned == TCaptioned::BeforeLoading)
    form->SetCaption(host::ResourceText(question.captionId));
  (*frame.*question.load)(&order);
  if (question.captioned == TCaptioned::AfterLoading)
    form->SetCaption(host::ResourceText(question.captionId));
  FitToFrame(*form, *frame);
  if (dialog->gone) return std::nullopt;
  THideScope shown(form);
  std::optional<bool> answer;
  if (SaysOk(*form)) answer = TakeAction(order, question.action);
  shown.Hide();
  return answer;
}

using TChangeFrame = views::change::TAlgoOrderChangeFrame;
using TWorkFrame = views::work::TAlgoWorkOrderFrame;
using enum host::TOrderAction;

constexpr TQuestion<TChangeFrame> AskNew{&TChangeFrame::AddOrder, "Res_Conf_Caption",
                                         TCaptioned::AfterLoading, New};
constexpr TQuestion<TChangeFrame> AskChange{&TChangeFrame::ChangeOrder, "Res_Conf_ChangeOrder",
                                            TCaptioned::AfterLoading, Change};
constexpr TQuestion<TWorkFrame> AskWork{&TWorkFrame::WorkOrder, "Res_Conf_WorkOrder",
                                        TCaptioned::BeforeLoading, Work};

}  // namespace

void TIAlgoEntryOrder::TakeOrderAction(const void* /*sender*/, host::TChannelRecord* record) {
  auto* action = dynamic_cast<host::TOrderTakeActionRecord*>(record);
  if (action == nullptr) return;
  auto* order = dynamic_cast<host::TCustomClientOrder*>(action->order);
  // Orders from elsewhere are left to whoever else listens.
  if (order == nullptr || order->NamedText(host::OriginalProperty) != views::entry::AlgoEntryOrigin) return;
  // A dialog that is still being made can take no order.
  if (*FMakingDialog) return;
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
  if (FChange) return;
  const auto making = FMakingDialog;
  const views::TFlagScope scope(*making);
  auto made = std::make_shared<TKeptDialog<TChangeFrame>>();
  made->frame = std::make_shared<TChangeFrame>();
  made->frame->SetShownModally(true);
  AddView(made->frame);
  try {
    made->form = host::GetDialogForm(*this);
    made->form->SetFrame(made->frame);
  } catch (...) {
    TIBaseView::CloseInstance(host::HandleOf(*made->frame));
    throw;
  }
  FChange = std::move(made);
}

void TIAlgoEntryOrder::CreateDefaultWorkView() {
  if (FWork) return;
  const auto making = FMakingDialog;
  const views::TFlagScope scope(*making);
  auto made = std::make_shared<TKeptDialog<TWorkFrame>>();
  made->form = host::GetDialogForm(*this);
  made->frame = std::make_shared<TWorkFrame>();
  made->form->SetFrame(made->frame);
  made->frame->SetOnAlgoTypeChange([this] { WorkOrderAlgoTypeChange(); });
  AddView(made->frame);
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
  try {
    form->Show();
  } catch (...) {
    // An order whose form does not show can be changed again.
    FOpenChanges.erase(key);
    throw;
  }
}

void TIAlgoEntryOrder::OnCloseView(forms::TDialogForm& sender, forms::TCloseAction& action) {
  action = forms::TCloseAction::Free;
  const auto open = std::find_if(FOpenChanges.begin(), FOpenChanges.end(),
                                 [&sender](const auto& each) { return each.second.form.get() == &sender; });
  if (open == FOpenChanges.end()) return;
  // Out of the list before the host is called, which may ask for the same order.
  const auto closed = FOpenChanges.extract(open);
  closed.mapped().frame->Detach();
}

void TIAlgoEntryOrder::WorkOrderAlgoTypeChange() {
  if (FWork && FWork->form) FitToFrame(*FWork->form, *FWork->frame);
}

}  // namespace algo::plugin
