// The price of an order in the change form: kept to the last bit where the trader did not touch it, and
// divided by what it was shown multiplied with where he did.

#include "tests/views/order_dialogs.h"

namespace algo::tests {
namespace {

using host::TCustomClientOrder;

class KeptPrice : public TOrderDialogTest {
 protected:
  void SetMultiplier(const char* multiplier) {
    Host().SetMarket("0005", 1, {{1504, multiplier}}, terminal::TMarketNotice::None);
  }

  double Untouched(host::TOrderAction action, double price) {
    TCustomClientOrder order = OrderWith("TMLO:AlgoId=CLOSE;");
    order.price = price;
    const auto confirm = [&](forms::TDialogForm&, TChangeFrame& frame) { Click(frame, "btnBuy"); };
    action == host::TOrderAction::New ? Confirm(order, confirm) : Change(order, confirm);
    const double sent = TakenOrder().price;
    Forget();
    return sent;
  }
};

TEST_F(KeptPrice, IsThatOfTheOrderForEveryMultiplier) {
  for (const char* multiplier :
       {"0.001", "0.01", "0.1", "3", "7", "100", "1000", "0", "-0.001", "0.0000001"}) {
    SetMultiplier(multiplier);
    for (const double price : {7.85, 0.01, 60.5, 1234.56, 0.1 + 0.2, 1.0 / 3, 1e-9, 1e15 + 0.5}) {
      EXPECT_EQ(Untouched(host::TOrderAction::New, price), price) << multiplier;
      EXPECT_EQ(Untouched(host::TOrderAction::Change, price), price) << multiplier;
    }
  }
}

TEST_F(KeptPrice, IsShownByTheTestThatDividesIt) {
  SetMultiplier("0");
  TCustomClientOrder order = OrderWith("TMLO:AlgoId=CLOSE;");
  Change(order, [&](forms::TDialogForm&, TChangeFrame& frame) {
    EXPECT_EQ(Spin(frame, "edtPrice").Value(), 60.5);
    Type(frame, "edtPrice", "61.5");
    Click(frame, "btnBuy");
  });
  EXPECT_EQ(TakenOrder().price, 61.5);
}

TEST_F(KeptPrice, ComesBackFromEveryTwoDecimalPriceThatIsTyped) {
  for (const char* multiplier : {"0.001", "0.01", "100"}) {
    SetMultiplier(multiplier);
    const double factor = std::stod(multiplier);
    for (int cents = 101; cents < 9999; cents += 137) {
      const double shown = cents / 100.0;
      TCustomClientOrder order = OrderWith("TMLO:AlgoId=CLOSE;");
      Change(order, [&](forms::TDialogForm&, TChangeFrame& frame) {
        Spin(frame, "edtPrice").SetValue(shown);
        Click(frame, "btnBuy");
      });
      // The same to 15 digits, and no tail of noise behind them.
      EXPECT_NEAR(TakenOrder().price, shown / factor, shown / factor * 1e-15) << multiplier;
      Forget();
    }
  }
}

TEST_F(KeptPrice, IsDividedByWhatItWasShownWithWhateverTheMarketSaysByThen) {
  TCustomClientOrder order = OrderWith("TMLO:AlgoId=CLOSE;");
  order.price = 7.85;
  Change(order, [&](forms::TDialogForm&, TChangeFrame& frame) {
    SetMultiplier("100");
    Type(frame, "edtPrice", "7.9");
    Click(frame, "btnBuy");
  });
  EXPECT_EQ(TakenOrder().price, 7.9);
}

TEST_F(KeptPrice, OfAConfirmedOrderIsTheOneThatWasTyped) {
  SetMultiplier("0.001");
  auto& frame = OpenFilled();
  Data().config["USER"]["ConfirmationPlaceOrd"] = "Y";
  Host().NotifyConfigChanged();
  Type(frame, "edtPrice", "7.85");
  InDialogs({[&](forms::TDialogForm& form) {
    EXPECT_EQ(Named(FrameIn(form), "edtPrice").Text(), "7.85");
    Click(FrameIn(form), "btnBuy");
  }});
  Click(frame, "btnSubmit");
  EXPECT_EQ(TakenOrder().price, 7850);
}

TEST_F(KeptPrice, OfAnEmptiedEditorIsNone) {
  SetMultiplier("100");
  TCustomClientOrder order = OrderWith("TMLO:AlgoId=CLOSE;");
  Change(order, [&](forms::TDialogForm&, TChangeFrame& frame) {
    Type(frame, "edtPrice", "");
    Click(frame, "btnBuy");
  });
  EXPECT_EQ(TakenOrder().price, 0);
}

}  // namespace
}  // namespace algo::tests
