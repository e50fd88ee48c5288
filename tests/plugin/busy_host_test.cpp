// A host that does things of its own while it is called: it closes forms, destroys the provider and sends
// notifications.

#include <utility>

#include "plugin/host_contract/installed_service.h"
#include "plugin/host_contract/language_manager.h"
#include "plugin/host_contract/message_box.h"
#include "plugin/host_contract/order_action_manager.h"
#include "tests/views/order_dialogs.h"

namespace algo::tests {
namespace {

using host::TCustomClientOrder;
using host::TOrderAction;

/// A host that does something of its own while it takes an action.
class TBusyActions : public host::TCustomOrderActionManager {
 public:
  bool TakeAction(const void* /*sender*/, TCustomClientOrder* order, TOrderAction /*action*/,
                  std::int32_t /*argument*/) override {
    keys.push_back(order->key);
    if (meanwhile) meanwhile();
    return true;
  }

  std::vector<std::string> keys;
  std::function<void()> meanwhile;
};

/// A host that does something of its own while it shows a message.
class TBusyMessages : public host::TCustomMessageBoxCtrl {
 public:
  void ShowText(std::string_view /*text*/) override {
    ++shown;
    if (meanwhile) meanwhile();
  }
  void ShowErrorCode(std::string_view code) override { ShowText(code); }

  int shown = 0;
  std::function<void()> meanwhile;
};

/// A host that does something of its own while it looks a text up.
class TBusyLanguage : public host::TCustomLanguageManager {
 public:
  std::string GetText(std::string_view /*tag*/, std::string_view id, std::int32_t /*language*/,
                      std::int32_t /*variant*/, std::int32_t /*options*/) override {
    if (meanwhile) std::exchange(meanwhile, nullptr)();
    return "new " + std::string(id);
  }

  std::function<void()> meanwhile;
};

class BusyHost : public TOrderDialogTest {
 protected:
  std::function<void()> FOnEditorRemoved;

 private:
  void EditorRemoved(terminal::TEditorKind /*kind*/, const forms::TControl& /*control*/) override {
    if (FOnEditorRemoved) FOnEditorRemoved();
  }
};

TEST_F(BusyHost, AFormMayBeClosedWhileItsOwnActionIsTaken) {
  for (const bool withProvider : {false, true}) {
    for (const bool kept : {false, true}) {
      host::TInstalledService<TBusyActions> actions;
      TCustomClientOrder order = OrderWith("TMLO:AlgoId=TVOL;");
      auto form = OpenChange(order);
      auto& frame = FrameIn(*form);
      Shown().clear();
      actions->meanwhile = [&] {
        withProvider ? DestroyProvider() : form->Close();
        if (!kept) form.reset();
      };
      frame.InputClick(Named(frame, "btnBuy"));
      EXPECT_EQ(actions->keys, std::vector<std::string>{"K1"});
      EXPECT_TRUE(Told().empty());
      EXPECT_EQ(LeftBehind().orders, 0U);
      EXPECT_EQ(LeftBehind().forms, kept ? 1U : 0U);
    }
  }
}

TEST_F(BusyHost, TheProviderMayGoWhileAnActionIsTaken) {
  for (const TOrderAction action : AllActions) {
    host::TInstalledService<TBusyActions> actions;
    actions->meanwhile = [this] { DestroyProvider(); };
    TCustomClientOrder order = ParentOrder();
    Provider();
    InDialogs({[](forms::TDialogForm& form) { form.SetModalResult(forms::ModalOk); }});
    EXPECT_EQ(Post(&order, action), action == TOrderAction::New);
    EXPECT_EQ(actions->keys, std::vector<std::string>{"P1"});
    EXPECT_EQ(LeftBehind(), host::checks::TLeftBehind());
  }
}

TEST_F(BusyHost, AFormMayBeClosedWhileItsMessageShows) {
  host::TInstalledService<TBusyMessages> messages;
  TCustomClientOrder order = OrderWith("TMLO:AlgoId=TVOL;");
  OpenChange(order);
  auto& frame = FrameIn(*Shown().front());
  Spin(frame, "edtVolPct").SetValue(80);
  messages->meanwhile = [&] {
    const auto form = Shown().front();
    Shown().clear();
    form->Close();
  };
  frame.InputClick(Named(frame, "btnBuy"));
  EXPECT_EQ(messages->shown, 1);
  EXPECT_TRUE(Seen("take_action").empty());
  EXPECT_EQ(LeftBehind().orders, 0U);
  EXPECT_EQ(LeftBehind().forms, 0U);
}

TEST_F(BusyHost, AFormMayBeClosedByAnEditorOfItsOwn) {
  TCustomClientOrder order = OrderWith("TMLO:AlgoId=TVOL;");
  OpenChange(order);
  auto& frame = FrameIn(*Shown().front());
  Named(frame, "edtQty").OnChange = [form = std::weak_ptr(Shown().front())] {
    if (const auto open = form.lock()) open->Close();
  };
  Shown().clear();
  frame.InputText(Named(frame, "edtQty"), "70");
  frame.InputClick(Named(frame, "btnBuy"));
  EXPECT_TRUE(Seen("take_action").empty());
  EXPECT_EQ(LeftBehind().forms, 0U);
}

TEST_F(BusyHost, AFormThatGoesTakesNoMoreNotifications) {
  TCustomClientOrder order = OrderWith("TMLO:AlgoId=TVOL;");
  const auto form = OpenChange(order);
  auto& frame = FrameIn(*form);
  EXPECT_TRUE(frame.Check(views::entry::TField::cbPopup).Checked());
  Data().config["USER"]["ConfirmationPlaceOrd"] = "Y";
  Forget();
  int removed = 0;
  FOnEditorRemoved = [&] {
    ++removed;
    Host().NotifyConfigChanged();
    Host().NotifySkinChanged("dark");
    Host().SetMarket("0005", 1, {{3, "61"}}, terminal::TMarketNotice::Item);
    TCustomClientOrder picked = OrderWith("TMLO:AlgoId=STOP;", "X");
    picked.symbol = "";
    host::TOrderCopyRecord copy;
    copy.object = &picked;
    Host().PostAsHost(18010, copy);
    Host().PostAsHost(18016, copy);
    frame.InputClick(Named(frame, "btnBuy"));
  };
  form->Close();
  FOnEditorRemoved = nullptr;
  EXPECT_EQ(removed, 13);
  EXPECT_TRUE(frame.Check(views::entry::TField::cbPopup).Checked());
  EXPECT_EQ(Named(frame, "edtSymbol").Text(), "0005");
  EXPECT_TRUE(Seen("view_notify").empty());
  EXPECT_TRUE(Seen("take_action").empty());
  EXPECT_EQ(LeftBehind().editors, 0U);
}

TEST_F(BusyHost, FormsMayBeClosedWhileTheirLanguageChanges) {
  TCustomClientOrder first = OrderWith("TMLO:AlgoId=TVOL;", "K1");
  TCustomClientOrder second = OrderWith("TMLO:AlgoId=VWAP;", "K2");
  OpenChange(first);
  Post(&second, TOrderAction::Change);
  host::TInstalledService<TBusyLanguage> language;
  language->meanwhile = [this] {
    for (const auto& form : std::exchange(Shown(), {})) form->Close();
  };
  EXPECT_TRUE(Provider().SetLanguage(0, 2));
  EXPECT_EQ(Closed(), 2);
  EXPECT_EQ(LeftBehind().forms, 0U);
  EXPECT_EQ(LeftBehind().orders, 0U);
  Post(&second, TOrderAction::Change);
  ASSERT_EQ(Shown().size(), 1U);
  EXPECT_EQ(Shown().front()->Caption(), "new Res_Conf_ChangeOrder");
}

}  // namespace
}  // namespace algo::tests
