// Orders, forms, views and the provider itself that go while something of them still runs.

#include "tests/views/order_dialogs.h"

namespace algo::tests {
namespace {

using host::TCustomClientOrder;
using host::TOrderAction;

class Lifetimes : public TOrderDialogTest {
 protected:
  /// Sends everything that a host sends on its own.
  void NotifyAll() {
    Host().NotifyConfigChanged();
    Host().NotifySkinChanged("dark");
    const std::string codes[] = {"", "01"};
    Host().NotifySpreadChanged(codes);
    Host().SetMarket("0005", 1, {{3, "61"}}, terminal::TMarketNotice::Item);
    for (const char* symbol : {"", "0700"}) {
      TCustomClientOrder picked = OrderWith("TMLO:AlgoId=STOP,StopQty=9;", "X");
      picked.symbol = symbol;
      picked.quantity = 7;
      host::TOrderCopyRecord copy;
      copy.object = &picked;
      Host().PostAsHost(18010, copy);
      Host().PostAsHost(18016, copy);
    }
  }
};

TEST_F(Lifetimes, AnOrderMayGoAsSoonAsItsPostReturns) {
  for (const TOrderAction action : AllActions) {
    for (const bool confirmed : {false, true}) {
      auto order = std::make_unique<TCustomClientOrder>(ParentOrder());
      std::shared_ptr<forms::TFrame> frame;
      Provider();
      InDialogs({[&](forms::TDialogForm& form) {
        frame = form.Frame();
        if (confirmed) form.SetModalResult(forms::ModalOk);
      }});
      Post(order.get(), action);
      order.reset();
      NotifyAll();
      auto& view = dynamic_cast<TChangeFrame&>(*frame);
      EXPECT_TRUE(view.SetLanguage(2));
      EXPECT_TRUE(view.SetGroupID("G"));
      Forget();
      for (const char* button : {"btnBuy", "btnSell", "btnSubmit"}) {
        for (const char* group : {"lgSubmit", "liBuy", "liSell"}) Element(view, group).SetVisible(true);
        view.InputClick(Named(view, button));
      }
      EXPECT_TRUE(Seen("take_action").empty());
    }
  }
}

TEST_F(Lifetimes, AChangeBesideTheOtherWindowsOutlivesTheHostsOrder) {
  auto order = std::make_unique<TCustomClientOrder>(OrderWith("TMLO:AlgoId=TVOL;"));
  const auto form = OpenChange(*order);
  order.reset();
  NotifyAll();
  EXPECT_EQ(Spin(FrameIn(*form), "edtQty").Value(), 1000.0);
  Click(FrameIn(*form), "btnBuy");
  EXPECT_EQ(TakenOrder().key, "K1");
}

TEST_F(Lifetimes, NothingPickedElsewhereReachesAFormWithAnOrder) {
  TCustomClientOrder order = OrderWith("TMLO:AlgoId=TVOL,VolPct=20;");
  const auto look = [&](TChangeFrame& frame) {
    NotifyAll();
    EXPECT_EQ(Named(frame, "edtSymbol").Text(), "0005");
    EXPECT_EQ(Spin(frame, "edtQty").Value(), 1000.0);
    EXPECT_EQ(Spin(frame, "edtPrice").Value(), 60.5);
    EXPECT_EQ(Spin(frame, "edtVolPct").Value(), 20.0);
    EXPECT_EQ(Combo(frame, "cmbOrderType").Text(), "Res_Algo_OrderType_TVOL");
  };
  Change(order, [&](forms::TDialogForm&, TChangeFrame& frame) { look(frame); });
  Confirm(order, [&](forms::TDialogForm&, TChangeFrame& frame) { look(frame); });
  DestroyProvider();
  look(FrameIn(*OpenChange(order)));
}

TEST_F(Lifetimes, AnEntryViewMayBeClosedWhileItsConfirmationShows) {
  Data().config["USER"]["ConfirmationPlaceOrd"] = "Y";
  Data().config["USER"]["ClearOrd"] = "Y";
  for (const char* button : {"btnSubmit", "btnWork"}) {
    for (const bool kept : {false, true}) {
      auto& entry = OpenFilled();
      const auto handle = host::HandleOf(entry);
      const auto held = kept ? Provider().FindView(handle) : nullptr;
      InDialogs({[&](forms::TDialogForm& form) {
        Provider().CloseInstance(handle);
        EXPECT_FALSE(Provider().ContainView(handle));
        Click(FrameIn(form), "btnBuy");
      }});
      entry.InputClick(Named(entry, button));
      EXPECT_EQ(Seen("take_action").size(), 1U) << button;
      EXPECT_EQ(LeftBehind().orders, 0U);
      EXPECT_EQ(LeftBehind().subscriptions, 0U);
      EXPECT_EQ(LeftBehind().configListeners, 1U);
      if (kept) {
        EXPECT_EQ(Named(*held, "edtQty").Text(), "800");
      }
    }
  }
}

TEST_F(Lifetimes, ADialogThatShowsTakesNoFurtherOrder) {
  TCustomClientOrder first = OrderWith("TMLO:AlgoId=TVOL;", "K1");
  TCustomClientOrder second = OrderWith("TMLO:AlgoId=VWAP;", "K2");
  TCustomClientOrder parent = ParentOrder();
  EXPECT_TRUE(Confirm(first, [&](forms::TDialogForm&, TChangeFrame& frame) {
    EXPECT_FALSE(Post(&second, TOrderAction::New));
    EXPECT_FALSE(Post(&second, TOrderAction::Change));
    EXPECT_EQ(Seen("show_modal").size(), 1U);
    // The work order form is another dialog.
    InDialogs({[&](forms::TDialogForm& work) {
      EXPECT_EQ(work.Caption(), "Res_Conf_WorkOrder");
      EXPECT_FALSE(Post(&parent, TOrderAction::Work));
      EXPECT_FALSE(Post(&second, TOrderAction::New));
    }});
    EXPECT_FALSE(Post(&parent, TOrderAction::Work));
    EXPECT_EQ(Seen("show_modal").size(), 2U);
    EXPECT_EQ(Combo(frame, "cmbOrderType").Text(), "Res_Algo_OrderType_TVOL");
    Click(frame, "btnBuy");
  }));
  EXPECT_EQ(TakenOrder().key, "K1");
  EXPECT_TRUE(Confirm(second, [&](forms::TDialogForm&, TChangeFrame& frame) { Click(frame, "btnBuy"); }));
}

TEST_F(Lifetimes, AChangeBesideTheOtherWindowsOpensWhileADialogShows) {
  Data().config["USER"]["ChangeOrderShowModel"] = "N";
  TCustomClientOrder first = OrderWith("TMLO:AlgoId=TVOL;", "K1");
  TCustomClientOrder second = OrderWith("TMLO:AlgoId=VWAP;", "K2");
  Confirm(first, [&](forms::TDialogForm&, TChangeFrame&) {
    Post(&second, TOrderAction::Change);
    ASSERT_EQ(Shown().size(), 1U);
    Click(FrameIn(*Shown().front()), "btnBuy");
  });
  EXPECT_EQ(TakenOrder().key, "K2");
}

TEST_F(Lifetimes, TheProviderMayGoWhileADialogShows) {
  for (const TOrderAction action : AllActions) {
    for (const bool confirmed : {false, true}) {
      TCustomClientOrder order = ParentOrder();
      Provider();
      Forget();
      InDialogs({[&](forms::TDialogForm& form) {
        DestroyProvider();
        FrameIn(form).InputClick(Named(FrameIn(form), "btnBuy"));
        EXPECT_EQ(form.ModalResult(), forms::ModalCancel);
        if (confirmed) form.SetModalResult(forms::ModalOk);
      }});
      Post(&order, action);
      EXPECT_EQ(Seen("take_action").size(), 0U) << "nobody is there to answer for it";
      EXPECT_EQ(LeftBehind(), host::checks::TLeftBehind());
    }
  }
}

TEST_F(Lifetimes, TheProviderLeavesNothingBehind) {
  TCustomClientOrder first = OrderWith("TMLO:AlgoId=TVOL;", "K1");
  TCustomClientOrder second = OrderWith("TMLO:AlgoId=VWAP;", "K2");
  TCustomClientOrder parent = ParentOrder();
  OpenChange(first);
  Post(&second, TOrderAction::Change);
  Confirm(first, [](forms::TDialogForm&, TChangeFrame&) {});
  Work(parent, [](forms::TDialogForm&, TChangeFrame&) {});
  OpenFilled();
  EXPECT_EQ(LeftBehind().orders, 2U);
  EXPECT_EQ(LeftBehind().forms, 4U);
  EXPECT_EQ(LeftBehind().configListeners, 5U);
  const auto kept = Shown().front();
  Shown().clear();
  DestroyProvider();
  EXPECT_EQ(Closed(), 2);
  host::checks::TLeftBehind left;
  left.forms = 1;
  EXPECT_EQ(LeftBehind(), left);
  NotifyAll();
  kept->Close();
  FrameIn(*kept).InputClick(Named(FrameIn(*kept), "btnBuy"));
  EXPECT_TRUE(Told().empty());
}

TEST_F(Lifetimes, AModalDialogKeepsItsAnswerWhenItIsClosed) {
  TCustomClientOrder order = OrderWith("TMLO:AlgoId=TVOL;");
  EXPECT_FALSE(Confirm(order, [](forms::TDialogForm& form, TChangeFrame&) {
    form.Close();
    EXPECT_EQ(form.ModalResult(), forms::ModalCancel);
  }));
  EXPECT_TRUE(Seen("take_action").empty());
  EXPECT_TRUE(Confirm(order, [&](forms::TDialogForm& form, TChangeFrame& frame) {
    Click(frame, "btnBuy");
    form.Close();
  }));
}

}  // namespace
}  // namespace algo::tests
