// Order actions that fail halfway: one message, no dialog left standing, nothing left behind, and the next
// action works.

#include <stdexcept>

#include "tests/views/order_dialogs.h"

namespace algo::tests {
namespace {

using host::TCustomClientOrder;
using host::TOrderAction;
using TTexts = std::vector<std::string>;

class OrderFailures : public TOrderDialogTest {
 protected:
  /// A parent that every action takes.
  static TCustomClientOrder AnyOrder(std::string_view algoText = "") {
    TCustomClientOrder order = ParentOrder();
    order.flags = 0x10000000;
    order.SetTextProperty(440, std::string(algoText));
    return order;
  }

  /// A new provider, which shows changes beside the other windows or in its dialog, before an instrument
  /// without data.
  void StartAnew(bool beside) {
    DestroyProvider();
    Data().config["USER"]["ChangeOrderShowModel"] = beside ? "N" : "Y";
    Host().SetMarket("0005", 0, {}, terminal::TMarketNotice::None);
    Provider();
    Forget();
  }
};

TEST_F(OrderFailures, AnOrderWithATimeThatCannotBeReadOpensNoDialog) {
  Provider();
  for (const TOrderAction action : AllActions) {
    for (const char* text : {"TMLO:AlgoId=TVOL,STime=tomorrow;", "TMLO:AlgoId=TVOL,STime=20240230-09:30:00;",
                             "TMLO:AlgoId=XYZ,VolPct=20,ETime=9;"}) {
      TCustomClientOrder order = AnyOrder(text);
      Forget();
      EXPECT_FALSE(Post(&order, action));
      EXPECT_EQ(Told().size(), 1U) << text;
      EXPECT_TRUE(Seen("show_modal").empty()) << text;
      EXPECT_EQ(order.TextProperty(440), text);
    }
    TCustomClientOrder sound = AnyOrder("TMLO:AlgoId=TVOL;");
    Forget();
    Post(&sound, action);
    EXPECT_EQ(Seen("show_modal").size(), 1U);
    EXPECT_TRUE(Told().empty());
  }
}

TEST_F(OrderFailures, AnOrderWithATimeThatCannotBeReadOpensNoForm) {
  Data().config["USER"]["ChangeOrderShowModel"] = "N";
  Provider();
  const host::checks::TLeftBehind before = LeftBehind();
  TCustomClientOrder order = AnyOrder("TMLO:AlgoId=TVOL,STime=tomorrow;");
  EXPECT_FALSE(Post(&order, TOrderAction::Change));
  EXPECT_EQ(Told(), TTexts{"'tomorrow' is not a date and time"});
  EXPECT_TRUE(Shown().empty());
  EXPECT_EQ(LeftBehind(), before);
  order.SetTextProperty(440, "TMLO:AlgoId=TVOL;");
  Post(&order, TOrderAction::Change);
  EXPECT_EQ(Shown().size(), 1U);
}

TEST_F(OrderFailures, AHostThatFailsWhileADialogIsMadeIsReportedOnce) {
  for (const TOrderAction action : AllActions) {
    for (const bool beside : {false, true}) {
      for (const char* fault :
           {"form.make", "editor.register", "editor.symbol", "channel.subscribe", "market.listen",
            "market.instrument", "market.item", "language.text", "orders.list", "profile.right",
            "profile.data", "config.read", "skin.color", "view.notify"}) {
        StartAnew(beside);
        const std::size_t ordersBefore = LeftBehind().orders;
        TCustomClientOrder order = AnyOrder();
        Data().faults.Set({fault});
        EXPECT_FALSE(Post(&order, action));
        Data().faults.Set({});
        EXPECT_EQ(Told(), TTexts{"The host fails at " + std::string(fault)});
        EXPECT_TRUE(Seen("show_modal").empty()) << fault;
        EXPECT_TRUE(Shown().empty()) << fault;
        EXPECT_EQ(LeftBehind().orders, ordersBefore) << fault;
        Forget();
        Post(&order, action);
        EXPECT_EQ(Seen("show_modal").size() + Shown().size(), 1U) << fault;
        EXPECT_TRUE(Told().empty()) << fault;
        Shown().clear();
      }
    }
  }
}

TEST_F(OrderFailures, AFormWhoseOrderCannotBeCopiedLeavesNothingBehind) {
  for (const char* fault :
       {"orders.new", "form.make", "editor.symbol", "language.text", "market.instrument"}) {
    StartAnew(true);
    const host::checks::TLeftBehind before = LeftBehind();
    TCustomClientOrder order = AnyOrder();
    Data().faults.Set({fault});
    Post(&order, TOrderAction::Change);
    Data().faults.Set({});
    EXPECT_EQ(Told().size(), 1U) << fault;
    EXPECT_EQ(LeftBehind(), before) << fault;
  }
}

TEST_F(OrderFailures, AChangeThatTheHostFailsAtKeepsFormAndCopy) {
  TCustomClientOrder order = OrderWith("TMLO:AlgoId=TVOL;");
  const auto form = OpenChange(order);
  Type(FrameIn(*form), "edtQty", "70");
  Data().faults.Set({"action.take"});
  for (int attempt = 0; attempt < 2; ++attempt) {
    Forget();
    Click(FrameIn(*form), "btnBuy");
    EXPECT_EQ(Told(), TTexts{"The host fails at action.take"});
    EXPECT_TRUE(form->Showing());
    EXPECT_EQ(LeftBehind().orders, 1U);
  }
  Data().faults.Set({});
  Click(FrameIn(*form), "btnBuy");
  EXPECT_EQ(TakenOrder().quantity, 70);
  EXPECT_FALSE(form->Showing());
  EXPECT_EQ(LeftBehind().orders, 0U);
}

TEST_F(OrderFailures, AnAcceptedDialogWhoseActionFailsIsReportedOnceAndHidden) {
  Provider();
  for (const TOrderAction action : AllActions) {
    TCustomClientOrder order = AnyOrder();
    forms::TDialogForm* dialog = nullptr;
    Forget();
    InDialogs({[&](forms::TDialogForm& form) {
      dialog = &form;
      form.SetModalResult(forms::ModalOk);
      Data().faults.Set({"action.take"});
    }});
    EXPECT_FALSE(Post(&order, action));
    Data().faults.Set({});
    EXPECT_EQ(Told(), TTexts{"The host fails at action.take"});
    ASSERT_NE(dialog, nullptr);
    EXPECT_FALSE(dialog->Showing());
  }
}

TEST_F(OrderFailures, ADialogThatBreaksDownIsReportedOnceAndShowsAgain) {
  Provider();
  for (const TOrderAction action : AllActions) {
    TCustomClientOrder order = AnyOrder();
    Forget();
    InDialogs({[](forms::TDialogForm&) { throw std::runtime_error("The window is lost"); }});
    EXPECT_FALSE(Post(&order, action));
    EXPECT_EQ(Told(), TTexts{"The window is lost"});
    Post(&order, action);
    EXPECT_EQ(Seen("show_modal").size(), 2U);
    EXPECT_TRUE(Seen("take_action").empty());
  }
}

TEST_F(OrderFailures, AChildIsNotCutWhileTheHostFails) {
  TCustomClientOrder parent = ParentOrder();
  Work(parent, [&](forms::TDialogForm& form, TChangeFrame& frame) {
    Pick(frame, "cmbOrderType", "Res_Algo_OrderType_TVOL");
    Type(frame, "edtQty", "400");
    Leave(frame);
    const std::string before = Facts(parent);
    for (const char* fault :
         {"account.known", "orders.count", "orders.at", "subscribe.add", "profile.data"}) {
      TCustomClientOrder child = OrderWith("", fault);
      Store(child);
      Forget();
      Data().faults.Set({fault});
      Click(frame, "btnSubmit");
      Data().faults.Set({});
      EXPECT_EQ(Told(), TTexts{"The host fails at " + std::string(fault)});
      EXPECT_EQ(form.ModalResult(), forms::ModalNone) << fault;
      EXPECT_EQ(parent.quantity, 10000) << fault;
      EXPECT_EQ(parent.user, "") << fault;
    }
    Forget();
    Data().faults.Set({"subscribe.add"});
    Type(frame, "sedtPecentage", "10");
    Leave(frame);
    Data().faults.Set({});
    EXPECT_EQ(Told(), TTexts{"The host fails at subscribe.add"});
    Type(frame, "sedtPecentage", "20");
    Leave(frame);
    EXPECT_EQ(Spin(frame, "edtQty").Value(), 2000.0);
    Click(frame, "btnSubmit");
    EXPECT_EQ(form.ModalResult(), 1);
  });
  EXPECT_EQ(TakenOrder().quantity, 2000);
}

TEST_F(OrderFailures, AMessageThatFailsTooIsDropped) {
  Provider();
  TCustomClientOrder order = AnyOrder("TMLO:AlgoId=TVOL,STime=tomorrow;");
  Data().faults.Set({"message.text"});
  EXPECT_FALSE(Post(&order, TOrderAction::New));
  EXPECT_TRUE(Told().empty());
  EXPECT_TRUE(Seen("show_modal").empty());
}

}  // namespace
}  // namespace algo::tests
