// The host order types that the form offers by the user's rights, and what each does to the price.

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "tests/views/table_coverage.h"
#include "tests/views/terminal_fixture.h"

namespace algo::tests {
namespace {

using TTexts = std::vector<std::string>;
using views::entry::TField;

struct TTypeRow {
  std::string code;
  std::string right;  ///< empty for a type that everybody may use
  std::string id;
  bool priced;
};

const std::vector<TTypeRow> TypeRows{
    {"LO", "", "Res_OrderType_Limit", true},
    {"MO", "OEMarketOrder", "Res_OrderType_Market", false},
    {"StopMarket", "OEStopM", "Res_OrderType_StopMarket", false},
    {"StopLimit", "OEStopL", "Res_OrderType_StopLimit", true},
    {"AO", "OEAO", "Res_OrderType_AO", false},
    {"ALO", "OEALO", "Res_OrderType_ALO", true},
    {"ELO", "OEEnhanced", "Res_OrderType_ELO", true},
    {"MOO", "OEMarketOnOpen", "Res_OrderType_MOO", false},
    {"MOC", "OEMarketOnClose", "Res_OrderType_MOC", false},
    {"LOC", "OELOC", "Res_OrderType_LOC", true},
};

class OrderTypesViewTest : public TTerminalTest {
 protected:
  const TTexts& Offered() { return Combo(Open(), "cmbMType").Items(); }

  /// What the price editor shows and allows.
  void ExpectPrice(views::entry::TAlgoOrderEntryFrame& frame, std::string_view text, bool enabled,
                   bool lockEnabled, const std::string& when) {
    EXPECT_EQ(frame.Spin(TField::edtPrice).Text(), text) << when;
    EXPECT_EQ(frame.Spin(TField::edtPrice).Enabled(), enabled) << when;
    EXPECT_EQ(frame.Check(TField::cbLockPrice).Enabled(), lockEnabled) << when;
  }
};

TEST_F(OrderTypesViewTest, TheTableNamesEveryType) {
  std::vector<std::string_view> ids;
  for (const TTypeRow& row : TypeRows) ids.push_back(row.id);
  ExpectNamesEveryOrderType(ids);
}

TEST_F(OrderTypesViewTest, AUserWithoutRightsIsOfferedTheLimitTypeAlone) {
  Data().rights.clear();
  EXPECT_EQ(Offered(), TTexts{"Res_OrderType_Limit"});
  EXPECT_EQ(Told(), TTexts());
}

TEST_F(OrderTypesViewTest, EachRightGrantsItsOwnTypeAndNoOther) {
  for (const TTypeRow& granted : TypeRows) {
    Data().rights.clear();
    if (!granted.right.empty()) Data().rights.insert(granted.right);
    TTexts expected{"Res_OrderType_Limit"};
    if (granted.code != "LO") expected.push_back(granted.id);
    EXPECT_EQ(Offered(), expected) << granted.code;
  }
}

TEST_F(OrderTypesViewTest, EachRightThatIsWithheldTakesItsOwnTypeAndNoOther) {
  for (const TTypeRow& withheld : TypeRows) {
    Data().rights.clear();
    TTexts expected;
    for (const TTypeRow& row : TypeRows) {
      const bool granted = row.code == "LO" || row.code != withheld.code;
      if (granted && !row.right.empty()) Data().rights.insert(row.right);
      if (granted) expected.push_back(row.id);
    }
    EXPECT_EQ(Offered(), expected) << withheld.code;
  }
}

TEST_F(OrderTypesViewTest, ARightForATypeThatTheExchangeDoesNotHaveOffersNothing) {
  Data().lists["ALGO/OrderType/HK"] = {"LO", "ALO"};
  EXPECT_EQ(Offered(), (TTexts{"Res_OrderType_Limit", "Res_OrderType_ALO"}));
}

TEST_F(OrderTypesViewTest, KnowsTheCodesInAnyLetterCaseInTheConfiguredOrderAndSkipsAllOthers) {
  Data().lists["ALGO/OrderType/HK"] = {"loc", "FAK", "stoplimit", "", "Lo", "mO", "LIMIT", "Elo"};
  EXPECT_EQ(Offered(), (TTexts{"Res_OrderType_LOC", "Res_OrderType_StopLimit", "Res_OrderType_Limit",
                               "Res_OrderType_Market", "Res_OrderType_ELO"}));
  EXPECT_EQ(Told(), TTexts());
}

TEST_F(OrderTypesViewTest, AnExchangeWithoutOrderTypesOffersNone) {
  Data().lists.erase("ALGO/OrderType/HK");
  auto& frame = Open();
  EXPECT_EQ(Combo(frame, "cmbMType").Items(), TTexts());
  EXPECT_EQ(Combo(frame, "cmbMType").Index(), -1);
  ExpectPrice(frame, "0", true, true, "without a type");
}

TEST_F(OrderTypesViewTest, ATypeWithoutAPriceShowsZeroAndLocksTheField) {
  for (const TTypeRow& row : TypeRows) {
    if (row.priced) continue;
    auto& frame = OpenFilled();
    Type(frame, "edtPrice", "61.25");
    Leave(frame);
    Pick(frame, "cmbMType", row.id);
    ExpectPrice(frame, "0", false, false, row.code);
    EXPECT_EQ(frame.Spin(TField::edtPrice).Value(), 0.0) << row.code;
  }
}

TEST_F(OrderTypesViewTest, ATypeWithAPriceKeepsTheOneThatWasTyped) {
  for (const TTypeRow& row : TypeRows) {
    if (!row.priced || row.code == "LO") continue;
    auto& frame = OpenFilled();
    Type(frame, "edtPrice", "61.25");
    Leave(frame);
    Pick(frame, "cmbMType", row.id);
    ExpectPrice(frame, "61.25", true, true, row.code);
    Pick(frame, "cmbMType", "Res_OrderType_Limit");
    ExpectPrice(frame, "61.25", true, true, "LO after " + row.code);
  }
}

TEST_F(OrderTypesViewTest, ATypeWithAPriceTakesOneFromTheMarketWhereThereIsNone) {
  // What stands in the price editor when the type is chosen, and what stands there afterwards.
  struct TRow {
    std::optional<double> before;
    std::string_view after;
  };
  const std::array<TRow, 6> rows{{{std::nullopt, "60.5"},
                                  {0.0, "60.5"},
                                  {-1.0, "60.5"},
                                  {0.00000009, "60.5"},
                                  {0.0000001, "0.0000001"},
                                  {0.01, "0.01"}}};
  for (const TTypeRow& type : TypeRows) {
    if (!type.priced) continue;
    for (const TRow& row : rows) {
      auto& frame = OpenFilled();
      if (type.code == "LO") Pick(frame, "cmbMType", "Res_OrderType_ALO");
      frame.Spin(TField::edtPrice).SetValue(row.before);
      Pick(frame, "cmbMType", type.id);
      EXPECT_EQ(frame.Spin(TField::edtPrice).Text(), row.after) << type.code;
    }
  }
}

TEST_F(OrderTypesViewTest, ATypeWithAPriceAfterOneWithoutTakesThePriceOfTheMarketAgain) {
  for (const TTypeRow& unpriced : TypeRows) {
    if (unpriced.priced) continue;
    for (const TTypeRow& priced : TypeRows) {
      if (!priced.priced) continue;
      auto& frame = OpenFilled();
      Pick(frame, "cmbMType", unpriced.id);
      Pick(frame, "cmbMType", priced.id);
      ExpectPrice(frame, "60.5", true, true, priced.code + " after " + unpriced.code);
    }
  }
}

TEST_F(OrderTypesViewTest, WithoutASymbolATypeWithAPriceLeavesTheFieldAsItIs) {
  auto& frame = Open();
  Pick(frame, "cmbMType", "Res_OrderType_AO");
  Pick(frame, "cmbMType", "Res_OrderType_ALO");
  ExpectPrice(frame, "0", true, true, "ALO");
}

TEST_F(OrderTypesViewTest, ThePriceLockHoldsTheFieldUnderEveryTypeWithAPrice) {
  for (const TTypeRow& row : TypeRows) {
    auto& frame = OpenFilled();
    Click(frame, "cbLockPrice");
    ASSERT_FALSE(frame.Spin(TField::edtPrice).Enabled());
    Pick(frame, "cmbMType", row.id);
    ExpectPrice(frame, row.priced ? "60.5" : "0", false, row.priced, row.code);
    if (!row.priced) continue;
    Click(frame, "cbLockPrice");
    ExpectPrice(frame, "60.5", true, true, row.code + " unlocked");
  }
}

TEST_F(OrderTypesViewTest, ALockedPriceIsNotFilledAgainAfterATypeWithoutOne) {
  auto& frame = OpenFilled();
  Click(frame, "cbLockPrice");
  Pick(frame, "cmbMType", "Res_OrderType_Market");
  Pick(frame, "cmbMType", "Res_OrderType_Limit");
  ExpectPrice(frame, "0", false, true, "locked");
}

TEST_F(OrderTypesViewTest, ChoosingNoTypeAtAllChangesNothing) {
  auto& frame = OpenFilled();
  Pick(frame, "cmbMType", "Res_OrderType_Market");
  frame.Combo(TField::cmbMType).SetIndex(-1);
  ExpectPrice(frame, "0", false, false, "no type");
  Pick(frame, "cmbMType", "Res_OrderType_Limit");
  Type(frame, "edtPrice", "");
  Leave(frame);
  frame.Combo(TField::cmbMType).SetIndex(-1);
  ExpectPrice(frame, "", true, true, "no type");
}

}  // namespace
}  // namespace algo::tests
