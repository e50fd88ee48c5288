#include "terminal/desk/session/desk_events.h"

#include "plugin/host_contract/view_functions.h"
#include "terminal/render/qt_text.h"

namespace algo::terminal::desk {

class TDeskEvents::TReceiver final : public THostEvents {
 public:
  explicit TReceiver(TDeskEvents& events) : FEvents(events) {}

  void MessageShown(std::string_view text) override { emit FEvents.MessageShown(render::ToQt(text)); }
  void ErrorCodeShown(std::string_view code) override { emit FEvents.ErrorCodeShown(render::ToQt(code)); }
  void ViewNotified(const host::TViewFrame& view, std::int32_t code) override {
    if (code == host::ViewChanged) emit FEvents.ViewChanged(view);
  }
  void EditorRegistered(TEditorKind kind, const forms::TControl& control,
                        std::string_view /*groupId*/) override {
    emit FEvents.EditorRegistered(kind, control);
  }
  void EditorRemoved(TEditorKind /*kind*/, const forms::TControl& control) override {
    emit FEvents.EditorRemoved(control);
  }
  // Along which grid an editor steps, the host tells the editor itself.
  void EditorSymbolSet(TEditorKind /*kind*/, const forms::TControl& /*control*/,
                       std::string_view /*symbol*/) override {}
  void FormShown(forms::TDialogForm& form) override { emit FEvents.FormShown(form); }
  void FormBroughtToFront(forms::TDialogForm& form) override { emit FEvents.FormBroughtToFront(form); }
  void FormClosed(forms::TDialogForm& form) override { emit FEvents.FormClosed(form); }
  void FormAppearanceChanged(forms::TDialogForm& form) override { emit FEvents.FormAppearanceChanged(form); }
  void RunModal(forms::TDialogForm& form) override {
    emit FEvents.ModalFormShown(form);
    // A question that nobody showed counts as answered with no.
    if (form.ModalResult() == forms::ModalNone) form.SetModalResult(forms::ModalCancel);
  }

  // The desktop shows nothing of these.
  void ActionTaken(const host::TCustomClientOrder& /*order*/, host::TOrderAction /*action*/,
                   std::int32_t /*argument*/, bool /*answer*/) override {}
  void Posted(std::int32_t /*channel*/, const host::TChannelRecord& /*record*/) override {}
  void Stored(std::string_view /*section*/, std::string_view /*key*/, std::string_view /*value*/,
              bool /*writeThrough*/) override {}
  void Subscribed(std::string_view /*symbol*/, std::string_view /*dataSet*/, bool /*live*/) override {}
  void Unsubscribed(std::string_view /*symbol*/) override {}
  void LayoutAccountSet(const forms::TControl& /*control*/, std::string_view /*account*/) override {}

 private:
  TDeskEvents& FEvents;
};

TDeskEvents::TDeskEvents() : FReceiver(std::make_unique<TReceiver>(*this)) {}

TDeskEvents::~TDeskEvents() = default;

THostEvents& TDeskEvents::Receiver() { return *FReceiver; }

}  // namespace algo::terminal::desk
