// The dialogs that the provider keeps for the next order: one action at a time, in the stated order of steps,
// in the language of the day, and nothing left standing by a host that fails or answers nothing.

#include "plugin/host_contract/installed_service.h"
#include "plugin/host_contract/order_action_manager.h"
#include "plugin/host_contract/view_functions.h"
#include "tests/views/order_dialogs.h"

namespace algo::tests {
namespace {

using host::TCustomClientOrder;
using host::TOrderAction;
using TTexts = std::vector<std::string>;

class KeptDialog : public TOrderDialogTest {
 protected:
  std::function<void()> FOnNotify;

 private:
  void ViewNotified(const host::TViewFrame& view, std::int32_t code) override {
    TOrderDialogTest::ViewNotified(view, code);
    if (auto meanwhile = std::exchange(FOnNotify, nullptr)) meanwhile();
  }
};

TEST_F(KeptDialog, IsLeftAloneByAnActionThatComesWhileItLoads) {
  TCustomClientOrder first = OrderWith("TMLO:AlgoId=TVOL,VolPct=20;", "K1");
  TCustomClientOrder second = OrderWith("TMLO:AlgoId=TWAP,MaxVolPct=30;", "K2");
  Provider();
  bool secondTaken = true;
  int shown = 0;
  InDialogs({[&](forms::TDialogForm& form) {
    ++shown;
    EXPECT_EQ(Combo(FrameIn(form), "cmbOrderType").Text(), "Res_Algo_OrderType_TVOL");
    EXPECT_EQ(Spin(FrameIn(form), "edtVolPct").Value(), 20);
    Click(FrameIn(form), "btnBuy");
  }});
  // The first loading makes the frame; the notice comes while its algorithm is laid out.
  FOnNotify = [&] { secondTaken = Post(&second, TOrderAction::New); };
  EXPECT_TRUE(Post(&first, TOrderAction::New));
  EXPECT_FALSE(secondTaken);
  EXPECT_EQ(shown, 1);
  EXPECT_EQ(TakenOrder().key, "K1");
}

TEST_F(KeptDialog, IsHiddenAfterTheActionWasTaken) {
  class TActions : public host::TCustomOrderActionManager {
   public:
    bool TakeAction(const void*, TCustomClientOrder*, TOrderAction, std::int32_t) override {
      showing = form->Showing();
      return true;
    }
    forms::TDialogForm* form = nullptr;
    bool showing = false;
  };
  for (const TOrderAction action : AllActions) {
    host::TInstalledService<TActions> actions;
    TCustomClientOrder order = ParentOrder();
    Provider();
    InDialogs({[&](forms::TDialogForm& form) {
      actions->form = &form;
      form.SetModalResult(forms::ModalOk);
    }});
    Post(&order, action);
    EXPECT_TRUE(actions->showing);
    EXPECT_FALSE(actions->form->Showing());
  }
}

TEST_F(KeptDialog, TakesUpALanguageThatChangedBeforeItsNextOrder) {
  TCustomClientOrder order = OrderWith("TMLO:AlgoId=VWAP,Style=5;");
  Confirm(order, [](forms::TDialogForm&, TChangeFrame&) {});
  Data().texts["Res"]["Res_Account"] = "Konto";
  Provider().SetLanguage(0, 1);
  Confirm(order, [&](forms::TDialogForm&, TChangeFrame& frame) {
    EXPECT_EQ(Element(frame, "liAccount").Caption(), "Konto");
    EXPECT_EQ(Combo(frame, "cmbStyle").Index(), 1);
  });
}

/// A host that answers nothing where an object is asked for.
class TNoForms : public host::TCustomViewService {
 public:
  std::shared_ptr<forms::TDialogForm> MakeDialogForm(host::TIBaseView& /*provider*/) override {
    return nullptr;
  }
  void Notify(host::TViewFrame& /*view*/, std::int32_t /*code*/) override {}
};

TEST_F(KeptDialog, IsAFailureWhereTheHostGivesNoForm) {
  for (const TOrderAction action : AllActions) {
    DestroyProvider();
    Provider();
    const auto before = LeftBehind();
    TCustomClientOrder order = ParentOrder();
    {
      host::TInstalledService<TNoForms> none;
      Forget();
      EXPECT_FALSE(Post(&order, action));
      EXPECT_EQ(Told(), TTexts{"The host gave no dialog form"});
    }
    EXPECT_EQ(LeftBehind(), before);
    InDialogs({[](forms::TDialogForm& form) { form.SetModalResult(forms::ModalOk); }});
    Forget();
    Post(&order, action);
    EXPECT_EQ(Seen("take_action").size(), 1U) << "the next action works";
  }
}

TEST_F(KeptDialog, AChangeBesideTheOthersSurvivesAHostThatFailsToTakeIt) {
  TCustomClientOrder order = OrderWith("TMLO:AlgoId=TVOL,VolPct=20;");
  const auto form = OpenChange(order);
  auto& frame = FrameIn(*form);
  Data().faults.Set({"action.take"});
  Click(frame, "btnBuy");
  Data().faults.Set({});
  EXPECT_TRUE(form->Showing());
  Forget();
  Click(frame, "btnBuy");
  EXPECT_EQ(TakenOrder().key, "K1");
  EXPECT_EQ(LeftBehind().orders, 0U);
}

}  // namespace
}  // namespace algo::tests
