// The fields that an order gets of the form, and the small helpers beside them.

#include <optional>
#include <string>
#include <vector>

#include "forms/dialog_form.h"
#include "tests/views/terminal_fixture.h"
#include "text/errors.h"

namespace algo::tests {
namespace {

using TTexts = std::vector<std::string>;

class BuiltOrder : public TTerminalTest {
 protected:
  BuiltOrder() { Data().config["USER"]["ConfirmationPlaceOrd"] = "N"; }
};

TEST_F(BuiltOrder, DividesThePriceByTheMultiplierOfALiveItem) {
  struct TRow {
    std::int32_t state;
    std::optional<std::string> multiplier;
    std::optional<double> shown;
    double written;
  };
  const std::vector<TRow> rows{{1, "100", 1.5, 0.015},
                               {1, "0", 1.5, 1.5},
                               {1, "0.0000001", 1.5, 1.5},
                               {1, "-0.0000001", 1.5, 1.5},
                               {1, "0.0000002", 1.5, 1.5 / 0.0000002},
                               {1, "-2", 1.5, -0.75},
                               {1, "abc", 1.5, 1.5},
                               {1, "", 1.5, 1.5},
                               {1, std::nullopt, 1.5, 1.5},
                               {1, "100", std::nullopt, 0},
                               {2, "100", 1.5, 1.5},
                               {0, "100", 1.5, 1.5}};
  auto& frame = OpenFilled();
  for (const TRow& row : rows) {
    Host().SetMarket("0005", row.state, {{1504, row.multiplier}}, terminal::TMarketNotice::None);
    Spin(frame, "edtPrice").SetValue(row.shown);
    Forget();
    Click(frame, "btnSubmit");
    EXPECT_EQ(TakenOrder().price, row.written)
        << row.state << " with " << row.multiplier.value_or("none") << " at " << row.shown.value_or(-999);
  }
}

TEST_F(BuiltOrder, IsNotSentWithAPriceThatIsNoNumberAfterTheDivision) {
  auto& frame = OpenFilled();
  Host().SetMarket("0005", 1, {{1504, "0.001"}}, terminal::TMarketNotice::None);
  Spin(frame, "edtPrice").SetValue(1e308);
  host::TCustomClientOrder order;
  order.account = "kept";
  EXPECT_ANY_THROW(frame.GetOrder(order));
  EXPECT_EQ(order.account, "kept");
  Click(frame, "btnSubmit");
  EXPECT_EQ(Told().size(), 1U);
  EXPECT_TRUE(Seen("take_action").empty());
  EXPECT_TRUE(Seen("post").empty());
  EXPECT_EQ(LeftBehind().orders, 0U);
  Spin(frame, "edtPrice").SetValue(60.5);
  Click(frame, "btnSubmit");
  EXPECT_EQ(Seen("take_action").size(), 1U);
}

TEST_F(BuiltOrder, CarriesTheQuantityAsAWholeNumber) {
  struct TRow {
    double entered;
    double written;
  };
  auto& frame = OpenFilled();
  for (const TRow& row : std::vector<TRow>{{800, 800}, {800.999, 800}, {1.5, 1}, {4e15, 4e15}}) {
    Spin(frame, "edtQty").SetValue(row.entered);
    Forget();
    Click(frame, "btnSubmit");
    EXPECT_EQ(TakenOrder().quantity, row.written) << row.entered;
  }
}

TEST_F(BuiltOrder, CarriesTheCodeOfTheChosenExchange) {
  Data().texts["Exchange"]["US"] = "New York";
  auto& frame = OpenFilled();
  Pick(frame, "cmbExch", "US(New York)");
  Click(frame, "btnSubmit");
  EXPECT_EQ(TakenOrder().exchange, "US");
}

TEST_F(BuiltOrder, CarriesNoExchangeWhereNoneIsChosen) {
  auto& frame = OpenFilled();
  Combo(frame, "cmbExch").SetIndex(-1);
  Click(frame, "btnSubmit");
  EXPECT_EQ(TakenOrder().exchange, "");
}

TEST_F(BuiltOrder, CarriesTheResolvedSymbolAndTheAccountTaken) {
  auto& frame = OpenFilled();
  // What is shown may differ from what was taken: the texts alone were changed.
  dynamic_cast<forms::TEditor&>(Named(frame, "edtSymbol")).SetText("something");
  dynamic_cast<forms::TEditor&>(Named(frame, "edtAccount")).SetText("something");
  host::TCustomClientOrder order;
  EXPECT_TRUE(frame.GetOrder(order));
  EXPECT_EQ(order.symbol, "0005");
  EXPECT_EQ(order.account, "A1");
}

TEST_F(BuiltOrder, OfAMarketTypeHasNoPrice) {
  auto& frame = OpenFilled();
  Pick(frame, "cmbMType", "Res_OrderType_Market");
  Spin(frame, "edtPrice").SetValue(60.5);
  Click(frame, "btnSubmit");
  EXPECT_EQ(TakenOrder().price, 0);
  EXPECT_EQ(TakenOrder().orderTypeFlags, 1U);
}

TEST_F(BuiltOrder, WithoutAChosenHostOrderTypeIsALimitOrder) {
  auto& frame = OpenFilled();
  Combo(frame, "cmbMType").SetIndex(-1);
  Click(frame, "btnSubmit");
  const auto order = TakenOrder();
  EXPECT_EQ(order.price, 60.5);
  EXPECT_EQ(order.orderTypeFlags, 0U);
  EXPECT_EQ(order.auctionFlags, 0U);
  EXPECT_EQ(order.TextProperty(440), "TMLO:AlgoId=TVOL,Closing=0;");
}

TEST_F(BuiltOrder, IsGivenBackWhenARuleFails) {
  auto& frame = OpenFilled();
  Type(frame, "edtQty", "0");
  Click(frame, "btnSubmit");
  EXPECT_EQ(Told(), TTexts{"DC1004001"});
  EXPECT_EQ(LeftBehind().orders, 0U);
}

TEST_F(BuiltOrder, KeepsItsParameterTextWhereNoAlgorithmIsChosen) {
  auto& frame = OpenFilled();
  Combo(frame, "cmbOrderType").SetIndex(-1);
  host::TCustomClientOrder order;
  order.SetTextProperty(440, "kept");
  EXPECT_THROW(frame.SetOrderAlgo(order), EListIndexError);
  EXPECT_EQ(order.TextProperty(440), "kept");
}

TEST_F(BuiltOrder, WhoseAlgorithmIsNotOfferedIsRefusedOnceAndNotChanged) {
  host::TCustomClientOrder order;
  order.key = "K1";
  order.symbol = "0005";
  order.quantity = 800;
  order.SetNamedText("Original", "AlgoEntry");
  order.SetTextProperty(440, "TMLO:AlgoId=NOSUCH,VolPct=20;");
  auto& stored = Store(order);
  Provider();
  InDialogs({[this](forms::TDialogForm& form) {
    EXPECT_EQ(Combo(*form.Frame(), "cmbOrderType").Index(), -1);
    Click(*form.Frame(), "btnBuy");
    EXPECT_EQ(Told(), TTexts{"List index out of bounds (-1)"});
    EXPECT_EQ(form.ModalResult(), forms::ModalNone);
  }});
  Post(&stored, host::TOrderAction::Change);
  EXPECT_EQ(Seen("show_modal").size(), 1U);
  EXPECT_EQ(Told().size(), 1U);
  EXPECT_TRUE(Seen("take_action").empty());
  EXPECT_EQ(stored.TextProperty(440), "TMLO:AlgoId=NOSUCH,VolPct=20;");
}

TEST_F(BuiltOrder, IsRecognisedByTheWordOriginalInOneOfItsPieces) {
  struct TRow {
    const char* text;
    bool recognised;
  };
  const std::vector<TRow> rows{{"", false},
                               {"Original", true},
                               {"first;Original=AlgoEntry;last", true},
                               {"first;original=algoentry;last", false},
                               {"first;ORIGINAL;last", false},
                               {"first;last", false},
                               {";;;", false},
                               {"first;NotOriginalAtAll", true},
                               {"Orig;inal", false}};
  for (const TRow& row : rows) {
    EXPECT_EQ(views::entry::TAlgoOrderEntryFrame::CheckTheOrder(row.text), row.recognised) << row.text;
  }
}

TEST_F(BuiltOrder, MessagesAreTheTextsOfTheirIds) {
  Data().texts["Res"]["Res_Known"] = "A known text";
  auto& frame = Open();
  frame.PopupMsg("Res_Known");
  frame.PopupMsg("Res_Unknown");
  ASSERT_EQ(Seen("message").size(), 2U);
  EXPECT_EQ(Told(), (TTexts{"A known text", "Res_Unknown"}));
}

}  // namespace
}  // namespace algo::tests
