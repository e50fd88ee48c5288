#include <gtest/gtest.h>

#include <memory>
#include <set>

#include "model/order_types.h"
#include "model/parameter_text.h"
#include "model/rules.h"
#include "tests/model/allocation_count.h"
#include "tests/model/sample_values.h"

namespace algo::model {
namespace {

TEST(Allocation, IsCounted) {
  const std::size_t before = AllocationCount();
  const auto kept = std::make_unique<double>(1);
  EXPECT_EQ(AllocationCount(), before + 1);
  EXPECT_EQ(LastAllocationSize(), sizeof(double));
}

TEST(Allocation, IsTheResultAloneWhenATextIsComposed) {
  const TParamValues values = EverythingGiven();
  for (const TAlgoRow& row : AlgoRows()) {
    const std::size_t before = AllocationCount();
    const std::string text = ComposeText(false, row.code, &row, values);
    const std::size_t taken = AllocationCount() - before;
    EXPECT_EQ(taken, 1U) << row.code;
    EXPECT_EQ(LastAllocationSize(), text.capacity() + 1) << row.code;
  }
}

TEST(Allocation, IsNotNeededToCheckAnOrder) {
  TParamValues values = EverythingGiven();
  values.SetNumber(TParam::MinOrdAmt, -1);
  const TNewOrder order{0, "A1", [](std::string_view) { return true; }, "0005", true, 100, true};
  const TNewOrder nothing{3, "", [](std::string_view) { return false; }, "", false, 0, false};
  std::set<bool> ownResults;
  for (const TAlgoRow& row : AlgoRows()) {
    const std::size_t before = AllocationCount();
    const auto common = CheckCommonRules(order);
    const auto refused = CheckCommonRules(nothing);
    const auto times = CheckTimes(values);
    const auto own = CheckAlgoRules(row, values);
    const std::size_t after = AllocationCount();
    EXPECT_EQ(after, before) << row.code;
    EXPECT_FALSE(common || times);
    EXPECT_TRUE(refused.has_value());
    ownResults.insert(own.has_value());
  }
  EXPECT_EQ(ownResults, (std::set{false, true})) << "both ways through the rules are to be measured";
}

TEST(Allocation, IsNotNeededToReadAValueOrAnOrderType) {
  const std::string_view pieces[] = {"TMLO:AlgoId=TVOL", "VolPct=20", "STime=20240115-09:30:00"};
  const std::size_t before = AllocationCount();
  const TDecoded number = DecodeValue(TParam::VolPct, *PieceValue(pieces, "VolPct"));
  const TDecoded time = DecodeValue(TParam::STime, *PieceValue(pieces, "STime"));
  const TParamValues copy = EverythingGiven();
  const auto* type = FindOrderTypeByCode("stoplimit");
  const std::uint32_t bits = AutoTriggerBits(0x800, 10, "9", "", "");
  const std::size_t after = AllocationCount();
  EXPECT_EQ(after, before);
  EXPECT_EQ(number.number, 20);
  EXPECT_EQ(time.time, At(9, 30));
  EXPECT_EQ(copy.Number(TParam::VolPct), 20);
  EXPECT_EQ(type->code, "StopLimit");
  EXPECT_EQ(bits, 0x800000U);
}

}  // namespace
}  // namespace algo::model
