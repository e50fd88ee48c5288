// Settings, market data and orders that hold what nobody expects: they are passed over or refused, never
// sent.

#include <cmath>
#include <limits>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "plugin/host_contract/channel_manager.h"
#include "plugin/host_contract/market_data.h"
#include "tests/views/terminal_fixture.h"

namespace algo::tests {
namespace {

using TTexts = std::vector<std::string>;

constexpr double NotANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double Infinite = std::numeric_limits<double>::infinity();

/// An item of 0005 whose numbers may be anything.
class TWildItem final : public host::TMarketDataItem {
 public:
  std::string_view Symbol() const override { return "0005"; }
  std::int32_t State() const override { return 1; }
  bool HasField(std::int32_t field) const override { return field == 3 || field == 24; }
  double FieldNumber(std::int32_t field) const override { return field == 3 ? price : lot; }
  std::string_view FieldText(std::int32_t) const override { return "wild"; }

  double price = 60.5;
  double lot = 400;
};

/// Hands out the wild item for every symbol.
class TWildMarket final : public host::TCustomSubscribeAdapter {
 public:
  TWildMarket() : FHost(Install(this)) {}
  ~TWildMarket() override { Install(FHost); }
  host::TMarketDataItem* Subscribe(std::string_view, std::string_view, bool) override { return &item; }
  void AddListener(host::TMarketDataItem*, TListener, host::TOwner) override {}
  void Unsubscribe(host::TMarketDataItem*, host::TOwner) override {}

  TWildItem item;

 private:
  host::TCustomSubscribeAdapter* FHost;
};

class BadInput : public TTerminalTest {
 protected:
  BadInput() { Data().config["USER"]["ConfirmationPlaceOrd"] = "N"; }

  void EnterSymbol(forms::TFrame& frame, std::string_view symbol) {
    Type(frame, "edtSymbol", symbol);
    Leave(frame);
  }

  TTexts Submit(forms::TFrame& frame) {
    Forget();
    Click(frame, "btnSubmit");
    return Told();
  }
};

TEST_F(BadInput, PassesOverCodesThatNobodyKnows) {
  Data().lists["ALGO/Exchange"] = {"", "HK", "", "XX"};
  Data().lists["ALGO/ALGOType/HK"] = {"NOSUCH", "", "tvol THRESHOLD", " TVOL", "VWAP;", "Twap"};
  Data().lists["ALGO/OrderType/HK"] = {"XX", "", "mo", "LIMIT", "lo"};
  auto& frame = Open();
  EXPECT_EQ(Combo(frame, "cmbExch").Items(), (TTexts{"HK", "XX"}));
  EXPECT_EQ(Combo(frame, "cmbOrderType").Items(),
            (TTexts{"Res_Algo_OrderType_TVOLTH", "Res_Algo_OrderType_TWAP"}));
  EXPECT_EQ(Combo(frame, "cmbMType").Items(), (TTexts{"Res_OrderType_Market", "Res_OrderType_Limit"}));
  EXPECT_EQ(Told(), TTexts{});
}

TEST_F(BadInput, WritesTheCodeOfTheCatalogueWhateverTheSettingsSpell) {
  Data().lists["ALGO/ALGOType/HK"] = {"tvol THRESHOLD"};
  auto& frame = OpenFilled();
  EXPECT_EQ(Submit(frame), TTexts{});
  EXPECT_EQ(TakenOrder().TextProperty(440), "TMLO:AlgoId=TVOL Threshold,Closing=0;");
}

TEST_F(BadInput, OffersNothingWhereTheListsAreMissing) {
  for (const TTexts& missing : std::vector<TTexts>{{"ALGO/Exchange"},
                                                   {"ALGO/ALGOType/HK", "ALGO/OrderType/HK"},
                                                   {"ALGO/Exchange", "ALGO/ALGOType/HK"}}) {
    const auto lists = Data().lists;
    for (const std::string& key : missing) Data().lists.erase(key);
    auto& frame = OpenFilled();
    EXPECT_EQ(Combo(frame, "cmbOrderType").Count(), 0);
    EXPECT_EQ(Combo(frame, "cmbMType").Count(), 0);
    EXPECT_EQ(Combo(frame, "cmbOrderType").Index(), -1);
    EXPECT_EQ(Submit(frame), TTexts{"Res_MarketMiss"});
    EXPECT_TRUE(Seen("take_action").empty());
    Forget();
    Click(frame, "btnClear");
    EXPECT_EQ(Told(), TTexts{});
    EXPECT_EQ(Combo(frame, "cmbOrderType").Index(), -1);
    EXPECT_EQ(Combo(frame, "cmbMType").Index(), -1);
    EXPECT_TRUE(Provider().SetLanguage(host::HandleOf(frame), 1));
    EXPECT_EQ(Told(), TTexts{});
    Data().lists = lists;
  }
}

TEST_F(BadInput, OpensOnSettingsThatAreNoNumbers) {
  for (const char* text : {"abc", "99999999999999999999", "-", "1.5", ""}) {
    Data().config["VANTORIX_PLATFORM"] = {{"DefaultGroupDataMode", text}, {"ScaleSize", text}};
    Data().config["USER"] = {{"ConfirmationPlaceOrd", text}, {"ClearOrd", text}, {"ForceConfirmBox", text}};
    auto& frame = OpenFilled();
    EXPECT_EQ(Submit(frame), TTexts{}) << text;
    EXPECT_EQ(Seen("take_action").size(), 1U) << text;
  }
}

TEST_F(BadInput, ReadsMarketTextsThatAreNoNumbersAsZeroOrAsNoMultiplier) {
  struct TRow {
    std::int32_t field;
    const char* text;
    std::optional<double> price;
    std::optional<double> quantity;
  };
  const std::vector<TRow> rows{{3, "abc", 0, 400},       {3, "nan", 0, 400},       {3, "inf", 0, 400},
                               {3, "-1.5", -1.5, 400},   {3, "1,5", 0, 400},       {3, "", 0, 400},
                               {24, "abc", 60.5, 0},     {24, "nan", 60.5, 0},     {24, "", 60.5, 0},
                               {24, "-400", 60.5, -400}, {1504, "nan", 60.5, 400}, {1504, "inf", 60.5, 400},
                               {1504, "1,5", 60.5, 400}, {1504, "-1", -60.5, 400}};
  auto& frame = OpenFilled();
  for (const TRow& row : rows) {
    SCOPED_TRACE(std::to_string(row.field) + "=" + row.text);
    terminal::TFieldChanges fields{{3, "60.5"}, {24, "400"}, {1504, std::nullopt}};
    fields[row.field] = row.text;
    Host().SetMarket("0005", 1, fields, terminal::TMarketNotice::None);
    EnterSymbol(frame, "0005");
    EXPECT_EQ(Spin(frame, "edtPrice").Value(), row.price);
    EXPECT_EQ(Spin(frame, "edtQty").Value(), row.quantity);
    const bool refused = row.quantity.value_or(0) < 1;
    EXPECT_EQ(Submit(frame), refused ? TTexts{"DC1004001"} : TTexts{});
    EXPECT_EQ(Seen("take_action").size(), refused ? 0U : 1U);
  }
}

TEST_F(BadInput, ShowsNoPriceThatIsNotFinite) {
  auto& frame = OpenFilled();
  Host().SetMarket("0005", 1, {{3, "1e300"}, {1504, "1e300"}}, terminal::TMarketNotice::None);
  EnterSymbol(frame, "0005");
  EXPECT_EQ(Spin(frame, "edtPrice").Value(), std::nullopt);
  EXPECT_EQ(Spin(frame, "edtPrice").Text(), "");
  frame.UpdatePrice();
  EXPECT_EQ(Spin(frame, "edtWPx").Text(), "");
}

TEST_F(BadInput, TakesAPriceOrLotSizeThatIsNotFiniteForNotGiven) {
  TWildMarket market;
  auto& frame = Open();
  Click(frame, "btnBuy");
  Type(frame, "edtAccount", "A1");
  for (const double wild : {NotANumber, Infinite, -Infinite, 1e300, -1e300, 2147483648.0}) {
    SCOPED_TRACE(wild);
    market.item.lot = wild;
    Spin(frame, "edtQty").SetValue(7);
    EnterSymbol(frame, "0005");
    EXPECT_EQ(Spin(frame, "edtQty").Value(), 7);
    EXPECT_EQ(Spin(frame, "edtPrice").Value(), 60.5);
  }
  for (const double wild : {NotANumber, Infinite, -Infinite}) {
    SCOPED_TRACE(wild);
    market.item.price = wild;
    EnterSymbol(frame, "0005");
    EXPECT_EQ(Spin(frame, "edtPrice").Value(), std::nullopt);
    EXPECT_EQ(Spin(frame, "edtPrice").Text(), "");
    EXPECT_EQ(Submit(frame), TTexts{});
    EXPECT_EQ(TakenOrder().price, 0);
  }
  DestroyProvider();
}

TEST_F(BadInput, CopiesWhatIsNoNumberAsNotGiven) {
  struct TRow {
    double price;
    double quantity;
    std::optional<double> priceShown;
    std::optional<double> quantityShown;
  };
  const std::vector<TRow> rows{{NotANumber, 400, std::nullopt, 400},
                               {Infinite, 400, std::nullopt, 400},
                               {60, NotANumber, 60, 0},
                               {60, -Infinite, 60, 0},
                               {60, 1e300, 60, 0},
                               {-60, -400, -60, -400}};
  auto& frame = OpenFilled();
  for (const TRow& row : rows) {
    SCOPED_TRACE(std::to_string(row.price) + " " + std::to_string(row.quantity));
    host::TCustomClientOrder order;
    order.account = "A1";
    order.symbol = "0005";
    order.exchange = "NOSUCH";
    order.price = row.price;
    order.quantity = row.quantity;
    order.side = 77;
    order.SetTextProperty(440, "TMLO:AlgoId=TVOL,VolPct=1e999,WPx=nan,MinOrdAmt=-,Style=9,Closing=;");
    host::TOrderCopyRecord record;
    record.object = &order;
    Forget();
    Host().PostAsHost(18010, record);
    EXPECT_EQ(Told(), TTexts{});
    EXPECT_EQ(Spin(frame, "edtPrice").Value(), row.priceShown);
    EXPECT_EQ(Spin(frame, "edtQty").Value(), row.quantityShown);
    for (const char* name : {"edtVolPct", "edtWPx", "edtMinOrdAmt"}) {
      EXPECT_EQ(Spin(frame, name).Value(), 0) << name;
    }
  }
}

TEST_F(BadInput, TellsATimeThatCannotBeReadOnceWhenItIsCopied) {
  auto& frame = OpenFilled();
  host::TCustomClientOrder order;
  order.account = "A1";
  order.symbol = "0700";
  order.quantity = 300;
  order.price = 299;
  order.SetTextProperty(440, "TMLO:AlgoId=VWAP,STime=20240115-09:30:00,ETime=soon,MaxVolPct=20;");
  host::TOrderCopyRecord record;
  record.object = &order;
  Host().PostAsHost(18010, record);
  EXPECT_EQ(Told(), TTexts{"'soon' is not a date and time"});
  EXPECT_EQ(Named(frame, "deSTime").Text(), "2024-01-15 09:30:00");
  EXPECT_EQ(Spin(frame, "edtMaxVolPct").Value(), std::nullopt);
  // The copy is over: the market fills in what it knows when a symbol is entered.
  EnterSymbol(frame, "0005");
  EXPECT_EQ(Spin(frame, "edtQty").Value(), 400);
}

TEST_F(BadInput, TakesBlanksForNoAccountAndNoSymbol) {
  auto& frame = OpenFilled();
  Type(frame, "edtAccount", "   ");
  EXPECT_EQ(Submit(frame), TTexts{"DC10013001"});
  Type(frame, "edtAccount", "A1");
  EnterSymbol(frame, "   ");
  EXPECT_EQ(Submit(frame), TTexts{"DC1000001"});
  EXPECT_TRUE(Seen("take_action").empty());
}

}  // namespace
}  // namespace algo::tests
