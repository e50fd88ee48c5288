#include <gtest/gtest.h>

#include <optional>
#include <string_view>

#include "model/rules.h"
#include "tests/model/sample_values.h"

namespace algo::model {
namespace {

bool Known(std::string_view account) { return account == "A1"; }

// An order to which nothing is to be said.
TNewOrder GoodOrder() { return {0, "A1", Known, "0005", true, 100, true}; }

TRuleFailure Resource(std::string_view id) { return {TMessageSource::Resource, id}; }
TRuleFailure HostCode(std::string_view id) { return {TMessageSource::HostCode, id}; }

TEST(CommonRules, PassAnOrderThatIsComplete) {
  EXPECT_EQ(CheckCommonRules(GoodOrder()), std::nullopt);
  TNewOrder sell = GoodOrder();
  sell.side = 1;
  EXPECT_EQ(CheckCommonRules(sell), std::nullopt);
}

TEST(CommonRules, AskForASide) {
  for (const std::int32_t side : {3, 2, -1}) {
    TNewOrder order = GoodOrder();
    order.side = side;
    EXPECT_EQ(CheckCommonRules(order), Resource("Res_BuySellMiss")) << side;
  }
}

TEST(CommonRules, AskForAnAccountThatTheHostKnows) {
  TNewOrder order = GoodOrder();
  order.account = "";
  EXPECT_EQ(CheckCommonRules(order), HostCode("DC10013001"));
  order.account = "A2";
  EXPECT_EQ(CheckCommonRules(order), HostCode("DC10013002"));
}

TEST(CommonRules, AskForASymbolWithItsInstrument) {
  TNewOrder order = GoodOrder();
  order.symbol = "";
  EXPECT_EQ(CheckCommonRules(order), HostCode("DC1000001"));
  order = GoodOrder();
  order.hasInstrument = false;
  EXPECT_EQ(CheckCommonRules(order), HostCode("DC1000001"));
}

TEST(CommonRules, AskForAQuantityOfAtLeastOne) {
  TNewOrder order = GoodOrder();
  for (const std::int64_t quantity : {0, -1, -100}) {
    order.quantity = quantity;
    EXPECT_EQ(CheckCommonRules(order), HostCode("DC1004001")) << quantity;
  }
  order.quantity = 1;
  EXPECT_EQ(CheckCommonRules(order), std::nullopt);
}

TEST(CommonRules, AskForAnAlgorithm) {
  TNewOrder order = GoodOrder();
  order.algoChosen = false;
  EXPECT_EQ(CheckCommonRules(order), Resource("Res_MarketMiss"));
}

TEST(CommonRules, TellTheFirstThingThatIsMissingAlone) {
  TNewOrder order{3, "", Known, "", false, 0, false};
  EXPECT_EQ(CheckCommonRules(order), Resource("Res_BuySellMiss"));
  order.side = 1;
  EXPECT_EQ(CheckCommonRules(order), HostCode("DC10013001"));
  order.account = "A2";
  EXPECT_EQ(CheckCommonRules(order), HostCode("DC10013002"));
  order.account = "A1";
  EXPECT_EQ(CheckCommonRules(order), HostCode("DC1000001"));
  order.symbol = "0005";
  EXPECT_EQ(CheckCommonRules(order), HostCode("DC1000001"));
  order.hasInstrument = true;
  EXPECT_EQ(CheckCommonRules(order), HostCode("DC1004001"));
  order.quantity = 1;
  EXPECT_EQ(CheckCommonRules(order), Resource("Res_MarketMiss"));
  order.algoChosen = true;
  EXPECT_EQ(CheckCommonRules(order), std::nullopt);
}

std::int32_t Asked = 0;

TEST(CommonRules, AskTheHostAboutTheAccountOnlyWhenItsTurnComes) {
  Asked = 0;
  TNewOrder order = GoodOrder();
  order.accountKnown = [](std::string_view) { return ++Asked > 0; };
  order.side = 3;
  CheckCommonRules(order);
  EXPECT_EQ(Asked, 0);
  order.side = 0;
  order.account = "";
  CheckCommonRules(order);
  EXPECT_EQ(Asked, 0);
  order.account = "A1";
  CheckCommonRules(order);
  EXPECT_EQ(Asked, 1);
}

TEST(Times, MayBeEqualButNotTurnedRound) {
  TParamValues values;
  values.SetTime(TParam::STime, At(9, 30));
  values.SetTime(TParam::ETime, At(9, 30));
  EXPECT_EQ(CheckTimes(values), std::nullopt);
  values.SetTime(TParam::STime, At(9, 30) + std::chrono::seconds(1));
  EXPECT_EQ(CheckTimes(values), Resource("Res_DateFalse"));
  values.SetTime(TParam::ETime, At(15, 0));
  EXPECT_EQ(CheckTimes(values), std::nullopt);
}

TEST(Times, AreComparedOnlyWhenBothAreGiven) {
  TParamValues values;
  EXPECT_EQ(CheckTimes(values), std::nullopt);
  values.SetTime(TParam::STime, At(23, 0));
  EXPECT_EQ(CheckTimes(values), std::nullopt);
  values.SetTime(TParam::STime, std::nullopt);
  values.SetTime(TParam::ETime, At(0, 0));
  EXPECT_EQ(CheckTimes(values), std::nullopt);
}

}  // namespace
}  // namespace algo::model
