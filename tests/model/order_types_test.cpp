#include "model/order_types.h"

#include <gtest/gtest.h>

#include <limits>
#include <string_view>
#include <vector>

#include "plugin/host_contract/flags/order_flags.h"

namespace algo::model {
namespace {

TEST(OrderTypes, StandInTheCatalogueWithRightFlagsAndPrice) {
  using enum TPriceTold;
  struct TExpected {
    std::string_view code;
    std::string_view right;
    std::string_view resourceId;
    bool keepsPrice;
    TFlagWord word;
    std::uint32_t bits;
    TPriceTold priceTold;
    bool autoTrigger;
    bool marketChildren;
  };
  const std::vector<TExpected> expected{
      {"LO", "", "Res_OrderType_Limit", true, TFlagWord::None, 0, Any, false, false},
      {"MO", "OEMarketOrder", "Res_OrderType_Market", false, TFlagWord::OrderType, 1, Any, false, true},
      {"StopMarket", "OEStopM", "Res_OrderType_StopMarket", false, TFlagWord::OrderType, 4, Any, true, false},
      {"StopLimit", "OEStopL", "Res_OrderType_StopLimit", true, TFlagWord::OrderType, 0x800, Any, true,
       false},
      {"AO", "OEAO", "Res_OrderType_AO", false, TFlagWord::OrderType, 0x200, WithoutPrice, false, false},
      {"ALO", "OEALO", "Res_OrderType_ALO", true, TFlagWord::OrderType, 0x200, WithPrice, false, false},
      {"ELO", "OEEnhanced", "Res_OrderType_ELO", true, TFlagWord::OrderType, 0x400, Any, false, false},
      {"MOO", "OEMarketOnOpen", "Res_OrderType_MOO", false, TFlagWord::Auction, 0x4000, Any, false, false},
      {"MOC", "OEMarketOnClose", "Res_OrderType_MOC", false, TFlagWord::Auction, 0x8000, Any, false, false},
      {"LOC", "OELOC", "Res_OrderType_LOC", true, TFlagWord::Auction, 0x1000, Any, false, false},
  };
  ASSERT_EQ(OrderTypeRows().size(), expected.size());
  for (std::size_t i = 0; i < expected.size(); ++i) {
    const TOrderTypeRow& row = OrderTypeRows()[i];
    EXPECT_EQ(row.code, expected[i].code);
    EXPECT_EQ(row.right, expected[i].right) << row.code;
    EXPECT_EQ(row.resourceId, expected[i].resourceId) << row.code;
    EXPECT_EQ(row.keepsPrice, expected[i].keepsPrice) << row.code;
    EXPECT_EQ(row.word, expected[i].word) << row.code;
    EXPECT_EQ(row.bits, expected[i].bits) << row.code;
    EXPECT_EQ(row.priceTold, expected[i].priceTold) << row.code;
    EXPECT_EQ(row.autoTrigger, expected[i].autoTrigger) << row.code;
    EXPECT_EQ(row.marketChildren, expected[i].marketChildren) << row.code;
  }
}

TEST(OrderTypes, AreFoundWhateverTheLetterCase) {
  EXPECT_EQ(FindOrderTypeByCode("lo")->resourceId, "Res_OrderType_Limit");
  EXPECT_EQ(FindOrderTypeByCode("STOPLIMIT")->code, "StopLimit");
  EXPECT_EQ(FindOrderTypeById("RES_ORDERTYPE_AO")->code, "AO");
  EXPECT_EQ(FindOrderTypeByCode(""), nullptr);
  EXPECT_EQ(FindOrderTypeByCode("FAK"), nullptr);
  EXPECT_EQ(FindOrderTypeById("LO"), nullptr);
}

TEST(OrderTypes, MarkANativeAlgoOrderByOneBit) { EXPECT_EQ(host::flags::NativeAlgo, 0x8000U); }

TEST(AutoTrigger, ComparesTheTriggerWithTheReferencePrice) {
  EXPECT_EQ(AutoTriggerBits(0x800, 10.5, "10", "9", ""), 0x800000U);
  EXPECT_EQ(AutoTriggerBits(0x800, 10, "10", "9", ""), 0x800U);
  EXPECT_EQ(AutoTriggerBits(0x800, 9.5, "10", "9", ""), 0x1000000U);
  EXPECT_EQ(AutoTriggerBits(0x800 | 0x40, 9.5, "10", "9", ""), 0x1000000U);
}

TEST(AutoTrigger, IsForStopLimitOrdersAlone) {
  EXPECT_EQ(AutoTriggerBits(4, 10.5, "10", "9", "8"), 0U);
  EXPECT_EQ(AutoTriggerBits(0, 10.5, "10", "9", "8"), 0U);
  EXPECT_EQ(AutoTriggerBits(~std::uint32_t{0x800}, 10.5, "10", "9", "8"), 0U);
}

TEST(AutoTrigger, FallsBackToTheThirdFieldWhenTheOthersAreZero) {
  EXPECT_EQ(AutoTriggerBits(0x800, 10.5, "0", "0", "11"), 0x1000000U);
  EXPECT_EQ(AutoTriggerBits(0x800, 10.5, "", "", "11"), 0x1000000U);
  EXPECT_EQ(AutoTriggerBits(0x800, 10.5, "n/a", "n/a", "10.5"), 0x800U);
  EXPECT_EQ(AutoTriggerBits(0x800, 10.5, "10", "0", "11"), 0x800000U);
  EXPECT_EQ(AutoTriggerBits(0x800, 10.5, "0", "10", "11"), 0x800000U);
}

TEST(AutoTrigger, GivesNothingWithoutAReadableReferencePrice) {
  EXPECT_EQ(AutoTriggerBits(0x800, 10.5, "", "10", "11"), 0U);
  EXPECT_EQ(AutoTriggerBits(0x800, 10.5, "n/a", "10", "11"), 0U);
  EXPECT_EQ(AutoTriggerBits(0x800, 10.5, "0", "0", ""), 0U);
  EXPECT_EQ(AutoTriggerBits(0x800, 10.5, "", "", "n/a"), 0U);
  EXPECT_EQ(AutoTriggerBits(0x800, std::numeric_limits<double>::quiet_NaN(), "10", "", ""), 0U);
}

TEST(DisplayedOrderType, IsReadFromTheFlags) {
  EXPECT_EQ(DisplayOrderType(0, 0, 10), "Res_OrderType_Limit");
  EXPECT_EQ(DisplayOrderType(1, 0, 0), "Res_OrderType_Market");
  EXPECT_EQ(DisplayOrderType(4, 0, 0), "Res_OrderType_StopMarket");
  EXPECT_EQ(DisplayOrderType(0x800, 0, 10), "Res_OrderType_StopLimit");
  EXPECT_EQ(DisplayOrderType(0x400, 0, 10), "Res_OrderType_ELO");
  EXPECT_EQ(DisplayOrderType(0, 0x4000, 0), "Res_OrderType_MOO");
  EXPECT_EQ(DisplayOrderType(0, 0x8000, 0), "Res_OrderType_MOC");
  EXPECT_EQ(DisplayOrderType(0, 0x1000, 10), "Res_OrderType_LOC");
}

TEST(DisplayedOrderType, TakesTheBasicTypeForANumberAndTheRestForBits) {
  EXPECT_EQ(DisplayOrderType(1 | 0x800, 0, 0), "Res_OrderType_Market");
  EXPECT_EQ(DisplayOrderType(3, 0, 0), "Res_OrderType_Limit");
  EXPECT_EQ(DisplayOrderType(5, 0, 0), "Res_OrderType_Limit");
  EXPECT_EQ(DisplayOrderType(4 | 16, 0, 0), "Res_OrderType_Limit");
  EXPECT_EQ(DisplayOrderType(1 | 32, 0, 0), "Res_OrderType_Market");
  EXPECT_EQ(DisplayOrderType(0x800000 | 0x800, 0, 5), "Res_OrderType_StopLimit");
}

TEST(DisplayedOrderType, TellsTheAuctionTypesApartByThePrice) {
  EXPECT_EQ(DisplayOrderType(0x200, 0, 0), "Res_OrderType_AO");
  EXPECT_EQ(DisplayOrderType(0x200, 0, 0.5), "Res_OrderType_ALO");
  EXPECT_EQ(DisplayOrderType(0x200, 0, -0.5), "Res_OrderType_ALO");
  EXPECT_EQ(DisplayOrderType(0x200, 0, 0.0000001), "Res_OrderType_AO");
  EXPECT_EQ(DisplayOrderType(0x200, 0, 0.0000002), "Res_OrderType_ALO");
}

TEST(DisplayedOrderType, TestsTheFlagsInAFixedOrder) {
  EXPECT_EQ(DisplayOrderType(0x800, 0x4000, 10), "Res_OrderType_StopLimit");
  EXPECT_EQ(DisplayOrderType(0x800 | 0x200 | 0x400, 0xD000, 10), "Res_OrderType_StopLimit");
  EXPECT_EQ(DisplayOrderType(0x200 | 0x400, 0xD000, 10), "Res_OrderType_ALO");
  EXPECT_EQ(DisplayOrderType(0x400, 0xD000, 10), "Res_OrderType_ELO");
  EXPECT_EQ(DisplayOrderType(0, 0xD000, 10), "Res_OrderType_MOO");
  EXPECT_EQ(DisplayOrderType(0, 0x9000, 10), "Res_OrderType_MOC");
}

TEST(DisplayedOrderType, IsTheOneThatMarkedTheOrder) {
  for (const TOrderTypeRow& row : OrderTypeRows()) {
    const std::uint32_t type = row.word == TFlagWord::OrderType ? row.bits : 0;
    const std::uint32_t auction = row.word == TFlagWord::Auction ? row.bits : 0;
    EXPECT_EQ(DisplayOrderType(type, auction, row.keepsPrice ? 10.0 : 0.0), row.resourceId) << row.code;
  }
}

TEST(PriceOfAnOrder, MayBeSetWhereTheTypeHasOne) {
  EXPECT_TRUE(PriceMayBeSet(0, 0, 0));
  EXPECT_TRUE(PriceMayBeSet(0x800, 0, 10));
  EXPECT_TRUE(PriceMayBeSet(0x400, 0, 10));
  EXPECT_TRUE(PriceMayBeSet(0x200, 0, 0.5));
  EXPECT_TRUE(PriceMayBeSet(0, 0x1000, 10));
  EXPECT_FALSE(PriceMayBeSet(1, 0, 0));
  EXPECT_FALSE(PriceMayBeSet(4, 0, 0));
  EXPECT_FALSE(PriceMayBeSet(0x200, 0, 0));
  EXPECT_FALSE(PriceMayBeSet(0, 0x4000, 10));
  EXPECT_FALSE(PriceMayBeSet(0, 0x8000, 10));
}

}  // namespace
}  // namespace algo::model
