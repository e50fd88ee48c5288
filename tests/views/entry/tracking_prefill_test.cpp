// What the market fills in for a symbol: the lot size and a price, each once, into editors that are open.

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "tests/views/terminal_fixture.h"

namespace algo::tests {
namespace {

class Prefill : public TTerminalTest {
 protected:
  void SetItem(std::int32_t state, const terminal::TFieldChanges& fields, bool notify = true) {
    Host().SetMarket("0005", state, fields,
                     notify ? terminal::TMarketNotice::Item : terminal::TMarketNotice::None);
  }

  void EnterSymbol(forms::TFrame& frame, std::string_view symbol) {
    Type(frame, "edtSymbol", symbol);
    Leave(frame);
  }
};

TEST_F(Prefill, RoundsTheLotSizeWithHalvesToEven) {
  const std::vector<std::pair<std::string, double>> rows{
      {"2.5", 2},   {"3.5", 4},   {"2.49", 2},
      {"2.51", 3},  {"0.5", 0},   {"1.5", 2},
      {"-2.5", -2}, {"400", 400}, {"2147483647", 2147483647}};
  auto& frame = Open();
  for (const auto& [text, lot] : rows) {
    SetItem(1, {{24, text}});
    EnterSymbol(frame, "0005");
    EXPECT_EQ(Spin(frame, "edtQty").Value(), lot) << text;
  }
}

TEST_F(Prefill, MultipliesThePriceOnlyInStateOne) {
  struct TRow {
    std::int32_t state;
    std::optional<std::string> multiplier;
    double shown;
  };
  const std::vector<TRow> rows{{1, std::nullopt, 60.5},
                               {1, "100", 6050},
                               {1, "0.001", 60.5 * 0.001},
                               {1, "0", 0},
                               {1, "-2", -121},
                               {1, "abc", 60.5},
                               {1, "", 60.5},
                               {2, "0.001", 60.5},
                               {2, std::nullopt, 60.5},
                               {-1, "100", 60.5}};
  auto& frame = Open();
  for (const TRow& row : rows) {
    SetItem(row.state, {{1504, row.multiplier}});
    EnterSymbol(frame, "0005");
    EXPECT_EQ(Spin(frame, "edtPrice").Value(), row.shown)
        << row.state << " with " << row.multiplier.value_or("none");
  }
}

TEST_F(Prefill, WaitsForAnItemThatIsNotLoaded) {
  auto& frame = Open();
  SetItem(0, {}, false);
  EnterSymbol(frame, "0005");
  SetItem(0, {{3, "61"}});
  EXPECT_EQ(Spin(frame, "edtQty").Value(), std::nullopt);
  EXPECT_EQ(Spin(frame, "edtPrice").Value(), 0);
  SetItem(1, {});
  EXPECT_EQ(Spin(frame, "edtQty").Value(), 400);
  EXPECT_EQ(Spin(frame, "edtPrice").Value(), 61);
}

TEST_F(Prefill, LeavesTheEntriesAloneWhilePricesMove) {
  auto& frame = OpenFilled();
  Type(frame, "edtPrice", "59.9");
  Leave(frame);
  SetItem(1, {{3, "62"}, {24, "100"}});
  EXPECT_EQ(Spin(frame, "edtQty").Value(), 800);
  EXPECT_EQ(Spin(frame, "edtPrice").Value(), 59.9);
}

TEST_F(Prefill, AsksAnItemForItsLotSizeOnceForASymbol) {
  auto& frame = Open();
  SetItem(1, {{24, std::nullopt}}, false);
  EnterSymbol(frame, "0005");
  EXPECT_EQ(Spin(frame, "edtQty").Value(), std::nullopt);
  SetItem(1, {{24, "400"}});
  EXPECT_EQ(Spin(frame, "edtQty").Value(), std::nullopt);
  EnterSymbol(frame, "0005");
  EXPECT_EQ(Spin(frame, "edtQty").Value(), 400);
}

TEST_F(Prefill, LeavesTheQuantityWhereTheItemHasNoLotSize) {
  auto& frame = OpenFilled();
  SetItem(1, {{24, std::nullopt}});
  EnterSymbol(frame, "0005");
  EXPECT_EQ(Spin(frame, "edtQty").Value(), 800);
  EXPECT_EQ(Spin(frame, "edtPrice").Value(), 60.5);
}

TEST_F(Prefill, TakesAMissingPriceForZero) {
  auto& frame = OpenFilled();
  SetItem(1, {{3, std::nullopt}});
  EnterSymbol(frame, "0005");
  EXPECT_EQ(Spin(frame, "edtPrice").Value(), 0);
}

TEST_F(Prefill, LeavesALockedQuantityAlone) {
  auto& frame = OpenFilled();
  Click(frame, "cbLockQty");
  EnterSymbol(frame, "0005");
  EXPECT_EQ(Spin(frame, "edtQty").Value(), 800);
  EXPECT_EQ(Spin(frame, "edtPrice").Value(), 60.5);
}

TEST_F(Prefill, LeavesALockedPriceAlone) {
  auto& frame = OpenFilled();
  Type(frame, "edtPrice", "59.9");
  Click(frame, "cbLockPrice");
  EXPECT_FALSE(Spin(frame, "edtPrice").Enabled());
  EnterSymbol(frame, "0005");
  SetItem(1, {{3, "62"}});
  EXPECT_EQ(Spin(frame, "edtPrice").Value(), 59.9);
  EXPECT_EQ(Spin(frame, "edtQty").Value(), 400);
}

TEST_F(Prefill, GivesAMarketOrderTheLotSizeButNoPrice) {
  auto& frame = Open();
  Pick(frame, "cmbMType", "Res_OrderType_Market");
  EnterSymbol(frame, "0005");
  EXPECT_EQ(Spin(frame, "edtQty").Value(), 400);
  EXPECT_EQ(Spin(frame, "edtPrice").Value(), 0);
  EXPECT_FALSE(Spin(frame, "edtPrice").Enabled());
}

TEST_F(Prefill, FillsThePriceWhenAPricedTypeFollowsAMarketType) {
  auto& frame = OpenFilled();
  for (const char* type : {"Res_OrderType_Limit", "Res_OrderType_StopLimit", "Res_OrderType_ALO",
                           "Res_OrderType_ELO", "Res_OrderType_LOC"}) {
    Pick(frame, "cmbMType", "Res_OrderType_Market");
    EXPECT_EQ(Spin(frame, "edtPrice").Value(), 0) << type;
    EXPECT_EQ(Spin(frame, "edtPrice").Text(), "0") << type;
    Pick(frame, "cmbMType", type);
    EXPECT_EQ(Spin(frame, "edtPrice").Value(), 60.5) << type;
    EXPECT_EQ(Spin(frame, "edtQty").Value(), 800) << type;
  }
}

TEST_F(Prefill, FillsThePriceOnAChangeOfTypeOnlyWhereItIsEmptyOrNearlyZero) {
  struct TRow {
    std::optional<double> before;
    double after;
  };
  const std::vector<TRow> rows{{std::nullopt, 60.5},   {0, 60.5}, {0.00000009, 60.5}, {-1, 60.5},
                               {0.0000001, 0.0000001}, {0.5, 0.5}};
  auto& frame = OpenFilled();
  for (const TRow& row : rows) {
    Pick(frame, "cmbMType", "Res_OrderType_Limit");
    Spin(frame, "edtPrice").SetValue(row.before);
    Pick(frame, "cmbMType", "Res_OrderType_ELO");
    EXPECT_EQ(Spin(frame, "edtPrice").Value(), row.after) << row.before.value_or(0);
  }
}

TEST_F(Prefill, PutsTheCaretBehindTheTextOfEveryEditorOfTheSymbol) {
  const std::vector<std::string> quantities{"edtQty",     "edtMinQty",  "edtStopQty",
                                            "edtShowQty", "edtJoinQty", "edtMaxShowQty"};
  const std::vector<std::string> prices{"edtPrice", "edtThrPx1", "edtThrPx2", "edtStopLossPx", "edtWPx"};
  auto& frame = OpenFilled();
  const auto selected = [&](const std::string& name) { return !Spin(frame, name).SelectedText().empty(); };
  const auto selectAll = [&] {
    for (const auto* names : {&quantities, &prices}) {
      for (const std::string& name : *names) {
        Spin(frame, name).SetValue(7);
        Spin(frame, name).SelectAll();
        ASSERT_TRUE(selected(name)) << name;
      }
    }
  };
  Click(frame, "cbLockPrice");
  selectAll();
  EnterSymbol(frame, "0005");
  for (const std::string& name : quantities) EXPECT_FALSE(selected(name)) << name;
  for (const std::string& name : prices) EXPECT_FALSE(selected(name)) << name;

  // Without a lot size there is nothing to move the quantities' carets for.
  selectAll();
  SetItem(1, {{24, std::nullopt}}, false);
  EnterSymbol(frame, "0005");
  for (const std::string& name : quantities) EXPECT_TRUE(selected(name)) << name;
  for (const std::string& name : prices) EXPECT_FALSE(selected(name)) << name;
}

TEST_F(Prefill, PutsTheMarketPriceIntoTheAlgoPricesOnRequest) {
  struct TRow {
    std::int32_t state;
    std::optional<std::string> multiplier;
    double shown;
  };
  const std::vector<TRow> rows{
      {1, std::nullopt, 60.5}, {1, "100", 6050}, {1, "x", 60.5}, {2, "100", 0}, {0, std::nullopt, 0}};
  auto& frame = OpenFilled();
  Spin(frame, "edtThrPx1").SetEnabled(false);
  for (const TRow& row : rows) {
    SetItem(row.state, {{1504, row.multiplier}});
    for (const char* name : {"edtThrPx1", "edtThrPx2", "edtStopLossPx", "edtWPx", "edtPrice"}) {
      Spin(frame, name).SetValue(7);
      Spin(frame, name).SelectAll();
    }
    frame.UpdatePrice();
    for (const char* name : {"edtThrPx1", "edtThrPx2", "edtStopLossPx", "edtWPx"}) {
      EXPECT_EQ(Spin(frame, name).Value(), row.shown) << name << " in state " << row.state;
      EXPECT_EQ(Spin(frame, name).SelectedText(), "") << name;
    }
    EXPECT_EQ(Spin(frame, "edtPrice").Value(), 7);
    EXPECT_EQ(Spin(frame, "edtPrice").SelectedText(), "");
  }
}

TEST_F(Prefill, PutsNoPriceAnywhereWithoutASymbol) {
  auto& frame = Open();
  Spin(frame, "edtWPx").SetValue(7);
  frame.UpdatePrice();
  EXPECT_EQ(Spin(frame, "edtWPx").Value(), 7);
}

}  // namespace
}  // namespace algo::tests
