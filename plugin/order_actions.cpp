#include "plugin/order_actions.h"

#include <algorithm>
#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>
#include <utility>

#include "plugin/host_contract/language_manager.h"
#include "plugin/host_contract/order_action_manager.h"
#include "plugin/host_contract/registration.h"
#include "plugin/host_contract/view_functions.h"
#include "views/boundary/boundary.h"
#include "views/boundary/flag_scope.h"

namespace algo::plugin {

namespace {

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

/// Loads the order into the frame, asks the trader, and takes the action when the answer is OK. `answered` is
/// given what the host says to it, at once; it is not called when no action was taken, because of another
/// answer or because the dialog is busy with another order.
template <class TFrame>
void Ask(const TQuestion<TFrame>& question, const std::shared_ptr<TKeptDialog<TFrame>>& kept,
         host::TCustomClientOrder& order, const std::function<void(bool)>& answered = {}) {
  // Held here, because the provider, and with it the kept one, may go meanwhile.
  const auto dialog = kept;  // NOLINT(performance-unnecessary-copy-initialization)
  const auto form = dialog->form;
  const auto frame = dialog->frame;
  if (dialog->busy || form->Showing()) return;
  const views::TFlagScope busy(dialog->busy);
  const views::change::TOrderLoad load(*frame);
  if (const auto language = dialog->language) {
    frame->SetLanguage(*language);
    // Only now: a language that could not be taken up is tried again with the next order.
    if (dialog->language == language) dialog->language.reset();
  }
  const auto caption = [&] { form->SetCaption(host::ResourceText(question.captionId)); };
  if (question.captioned == TCaptioned::BeforeLoading) caption();
  (*frame.*question.load)(&order);
  if (question.captioned == TCaptioned::AfterLoading) caption();
  FitToFrame(*form, *frame);
  if (dialog->gone) return;
  // Hidden for certain, also where something else failed before.
  host::TRegistration shown([form] { form->Hide(); });
  if (SaysOk(*form) && !dialog->gone) {
    auto& actions = host::TCustomOrderActionManager::GetInstance();
    const bool accepted = actions.TakeAction(nullptr, &order, question.action, 1);
    // Before the form is hidden, which may fail: an order that the host took must not look refused.
    if (answered) answered(accepted);
  }
  shown.Release();
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

TOrderActions::TOrderActions(host::TIBaseView& provider, bool showChangeModally, TAddView addView)
    : FProvider(&provider), FShowChangeModally(showChangeModally), FAddView(std::move(addView)) {}

void TOrderActions::Take(host::TChannelRecord* record) {
  auto* action = dynamic_cast<host::TOrderTakeActionRecord*>(record);
  if (action == nullptr || FProvider == nullptr) return;
  auto* order = dynamic_cast<host::TCustomClientOrder*>(action->order);
  // Orders from elsewhere are left to whoever else listens.
  if (order == nullptr || order->NamedText(host::OriginalProperty) != views::entry::AlgoEntryOrigin) return;
  switch (static_cast<host::TOrderAction>(action->action)) {
    case New:
      return AddOrder(*order, *action);
    case Change:
      return ChangeOrder(*order);
    case Work:
      return AddWorkOrder(*order);
  }
}

void TOrderActions::AddOrder(host::TCustomClientOrder& order, host::TOrderTakeActionRecord& record) {
  CreateDefaultView();
  if (FChange) Ask(AskNew, FChange, order, [&record](bool accepted) { record.result = accepted; });
}

void TOrderActions::ChangeOrder(host::TCustomClientOrder& order) {
  if (!FShowChangeModally) return CreateNonShowModelView(order);
  CreateDefaultView();
  if (FChange) Ask(AskChange, FChange, order);
}

void TOrderActions::AddWorkOrder(host::TCustomClientOrder& order) {
  if ((order.flags & host::WorkParentMark) == 0) return;
  CreateDefaultWorkView();
  if (FWork) Ask(AskWork, FWork, order);
}

// Making a dialog calls into the host, which may ask for the same dialog or destroy the provider meanwhile:
// what was made is kept only where it is still wanted.

void TOrderActions::CreateDefaultView() {
  if (FChange || FMakingChange) return;
  const views::TFlagScope making(FMakingChange);
  auto made = std::make_shared<TKeptDialog<TChangeFrame>>();
  made->frame = std::make_shared<TChangeFrame>();
  made->frame->SetShownModally(true);
  if (!FAddView(made->frame)) return;
  try {
    made->form = MakeForm();
    if (made->form) made->form->SetFrame(made->frame);
  } catch (...) {
    if (FProvider != nullptr) FProvider->CloseInstance(host::HandleOf(*made->frame));
    throw;
  }
  if (FProvider != nullptr) FChange = std::move(made);
}

void TOrderActions::CreateDefaultWorkView() {
  if (FWork || FMakingWork) return;
  const views::TFlagScope making(FMakingWork);
  auto made = std::make_shared<TKeptDialog<TWorkFrame>>();
  made->form = MakeForm();
  if (!made->form) return;
  made->frame = std::make_shared<TWorkFrame>();
  made->form->SetFrame(made->frame);
  made->frame->SetOnAlgoTypeChange([self = weak_from_this()] {
    if (const auto actions = self.lock()) actions->WorkOrderAlgoTypeChange();
  });
  if (FAddView(made->frame)) FWork = std::move(made);
}

void TOrderActions::CreateNonShowModelView(host::TCustomClientOrder& order) {
  const std::string key = order.key;
  if (const auto open = FOpenChanges.find(key); open != FOpenChanges.end()) {
    const auto form = open->second.form;
    return form->BringToFront();
  }
  THostedFrame<TChangeFrame> made{nullptr, std::make_shared<TChangeFrame>()};
  // Goes with everything that it has registered, wherever the making ends.
  host::TRegistration unshown([frame = made.frame] { frame->Detach(); });
  made.form = MakeForm();
  if (!made.form) return;
  made.form->OnClose = [self = weak_from_this()](forms::TDialogForm& sender, forms::TCloseAction& action) {
    action = forms::TCloseAction::Free;
    if (const auto actions = self.lock()) views::AtBoundary([&] { actions->OnCloseView(sender); });
  };
  made.form->SetFrame(made.frame);
  made.frame->ChangeOrder(&order);
  if (FProvider == nullptr) return;
  made.form->SetCaption(host::ResourceText("Res_Conf_ChangeOrder"));
  FitToFrame(*made.form, *made.frame);
  made.form->SetStaysOnTop(true);
  // Asked again: the host may have shown the same order meanwhile.
  if (FProvider == nullptr || FOpenChanges.contains(key)) return;
  const auto form = made.form;
  FOpenChanges.insert_or_assign(key, std::move(made));
  try {
    form->Show();
  } catch (...) {
    // An order whose form does not show can be changed again.
    FOpenChanges.erase(key);
    form->OnClose = nullptr;
    throw;
  }
  unshown.Dismiss();
}

std::shared_ptr<forms::TDialogForm> TOrderActions::MakeForm() {
  if (FProvider == nullptr) return nullptr;
  auto form = host::GetDialogForm(*FProvider);
  return FProvider == nullptr ? nullptr : form;
}

void TOrderActions::OnCloseView(forms::TDialogForm& sender) {
  const auto open = std::find_if(FOpenChanges.begin(), FOpenChanges.end(),
                                 [&sender](const auto& each) { return each.second.form.get() == &sender; });
  if (open == FOpenChanges.end()) return;
  // Out of the list before the host is called, which may ask for the same order.
  const auto closed = FOpenChanges.extract(open);
  closed.mapped().frame->Detach();
}

void TOrderActions::WorkOrderAlgoTypeChange() {
  if (FWork && FWork->form) FitToFrame(*FWork->form, *FWork->frame);
}

void TOrderActions::MarkLanguage(std::int32_t language) {
  if (FChange) FChange->language = language;
  if (FWork) FWork->language = language;
}

void TOrderActions::SetLanguage(std::int32_t language) {
  // A copy: what the frames set off may close a form.
  for (const auto& [key, open] : std::map(FOpenChanges)) {
    open.frame->SetLanguage(language);
    if (open.frame->Form() != nullptr)
      open.frame->Form()->SetCaption(host::ResourceText("Res_Conf_ChangeOrder"));
  }
}

void TOrderActions::End() {
  FProvider = nullptr;
  const auto endDialog = [](auto kept) {
    if (!kept) return;
    kept->gone = true;
    // One that shows ends with Cancel, whatever it was answered.
    views::AtBoundary([&] {
      if (kept->form->Modal()) kept->form->SetModalResult(forms::ModalCancel);
    });
    kept->form.reset();
  };
  endDialog(std::exchange(FChange, nullptr));
  while (!FOpenChanges.empty()) {
    // Out of the list first: closing calls back and looks for the form there.
    const auto open = FOpenChanges.extract(FOpenChanges.begin());
    views::AtBoundary([&] { open.mapped().form->Close(); });
  }
  endDialog(std::exchange(FWork, nullptr));
}

}  // namespace algo::plugin
