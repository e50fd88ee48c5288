// Between the chosen host order type and an order's flag words, both ways, through the form.

#include <limits>
#include <optional>
#include <string>
#include <vector>

#include "tests/views/table_coverage.h"
#include "tests/views/terminal_fixture.h"

namespace algo::tests {
namespace {

class OrderTypeMapping : public TTerminalTest {
 protected:
  void SetItem(const terminal::TFieldChanges& fields) {
    Host().SetMarket("0005", 1, fields, terminal::TMarketNotice::None);
  }
};

struct TRow {
  const char* type;
  bool keepsPrice;
  std::uint32_t typeFlags;
  std::uint32_t auctionFlags;
};

// A stop limit order of trigger price 0 lies below every price, which is what 0x1000000 says.
const std::vector<TRow> Rows{
    {"Res_OrderType_Limit", true, 0, 0},
    {"Res_OrderType_Market", false, 1, 0},
    {"Res_OrderType_StopLimit", true, 0x800 | 0x1000000, 0},
    {"Res_OrderType_StopMarket", false, 4, 0},
    {"Res_OrderType_AO", false, 0x200, 0},
    {"Res_OrderType_ALO", true, 0x200, 0},
    {"Res_OrderType_ELO", true, 0x400, 0},
    {"Res_OrderType_MOO", false, 0, 0x4000},
    {"Res_OrderType_MOC", false, 0, 0x8000},
    {"Res_OrderType_LOC", true, 0, 0x1000},
};

TEST_F(OrderTypeMapping, TheTableNamesEveryType) {
  std::vector<std::string_view> ids;
  for (const TRow& row : Rows) ids.emplace_back(row.type);
  ExpectNamesEveryOrderType(ids);
}

TEST_F(OrderTypeMapping, WritesTheChosenTypeIntoTheOrder) {
  auto& frame = OpenFilled();
  for (const TRow& row : Rows) {
    Pick(frame, "cmbMType", row.type);
    host::TCustomClientOrder order;
    order.price = 12.5;
    frame.SetOrderType(order);
    EXPECT_EQ(order.price, row.keepsPrice ? 12.5 : 0) << row.type;
    EXPECT_EQ(order.orderTypeFlags, row.typeFlags) << row.type;
    EXPECT_EQ(order.auctionFlags, row.auctionFlags) << row.type;
    EXPECT_EQ(order.algoFlags, 0U) << row.type;
    EXPECT_EQ(order.flags, 0U) << row.type;
  }
}

TEST_F(OrderTypeMapping, OnlyEverAddsBits) {
  auto& frame = OpenFilled();
  for (const TRow& row : Rows) {
    Pick(frame, "cmbMType", row.type);
    host::TCustomClientOrder order;
    order.orderTypeFlags = 0x40000002;
    order.auctionFlags = 0x00000010;
    order.algoFlags = 0x4;
    frame.SetOrderType(order);
    EXPECT_EQ(order.orderTypeFlags, 0x40000002 | row.typeFlags) << row.type;
    EXPECT_EQ(order.auctionFlags, 0x00000010 | row.auctionFlags) << row.type;
    EXPECT_EQ(order.algoFlags, 0x4U) << row.type;
  }
}

TEST_F(OrderTypeMapping, LeavesTheOrderWithoutAChosenType) {
  auto& frame = OpenFilled();
  Combo(frame, "cmbMType").SetIndex(-1);
  host::TCustomClientOrder order;
  order.price = 12.5;
  frame.SetOrderType(order);
  EXPECT_EQ(order.price, 12.5);
  EXPECT_EQ(order.orderTypeFlags, 0U);
  EXPECT_EQ(order.auctionFlags, 0U);
}

TEST_F(OrderTypeMapping, TellsTheTriggerDirectionFromTheReferencePrice) {
  using TText = std::optional<std::string>;
  struct TTrigger {
    double stopPrice;
    TText price;
    TText second;
    TText reference;
    std::uint32_t bits;
  };
  const std::vector<TTrigger> rows{
      {61, "60.5", {}, {}, 0x800000},
      {60.5, "60.5", {}, {}, 0x800},
      {60, "60.5", {}, {}, 0x1000000},
      {0, "60.5", {}, {}, 0x1000000},
      // Both prices are 0: the third field is the reference.
      {61, "0", "0", "62", 0x1000000},
      {63, "0", "0", "62", 0x800000},
      {62, "0.0", "0", "62", 0x800},
      {62, {}, {}, "62", 0x800},
      {63, "", "", "62", 0x800000},
      // One of the two is not 0: the first field is the reference, whatever it is.
      {61, "0", "60", "62", 0x800000},
      {61, "62", "0", "60", 0x1000000},
      // No number at all counts as 0 in the zero test and gives no bits as reference.
      {61, "n/a", "60", "62", 0},
      {61, "n/a", "n/a", "62", 0x1000000},
      {61, "0", "0", "n/a", 0},
      {61, {}, {}, {}, 0},
      {61, "", "60", {}, 0},
      {61, "nan", "60", {}, 0},
      {std::numeric_limits<double>::quiet_NaN(), "60.5", {}, {}, 0},
  };
  auto& frame = OpenFilled();
  for (const TTrigger& row : rows) {
    SetItem({{3, row.price}, {17, row.second}, {31, row.reference}});
    host::TCustomClientOrder order;
    order.orderTypeFlags = 0x800;
    order.stopPrice = row.stopPrice;
    const std::string where = std::to_string(row.stopPrice) + " at " + row.price.value_or("-") + " " +
                              row.second.value_or("-") + " " + row.reference.value_or("-");
    EXPECT_EQ(frame.GetAutoTrigger(order), row.bits) << where;

    Pick(frame, "cmbMType", "Res_OrderType_StopLimit");
    order.orderTypeFlags = 0;
    frame.SetOrderType(order);
    EXPECT_EQ(order.orderTypeFlags, 0x800 | row.bits) << where;
  }
}

TEST_F(OrderTypeMapping, GivesTriggerBitsToStopLimitOrdersAlone) {
  auto& frame = OpenFilled();
  host::TCustomClientOrder order;
  order.stopPrice = 61;
  for (const std::uint32_t flags : {0U, 1U, 4U, 0x200U, 0x400U, 0x800000U, 0x1000000U}) {
    order.orderTypeFlags = flags;
    EXPECT_EQ(frame.GetAutoTrigger(order), 0U) << flags;
  }
  order.orderTypeFlags = 0x804;
  EXPECT_EQ(frame.GetAutoTrigger(order), 0x800000U);
}

TEST_F(OrderTypeMapping, GivesNoTriggerBitsWithoutASymbol) {
  auto& frame = Open();
  host::TCustomClientOrder order;
  order.orderTypeFlags = 0x800;
  order.stopPrice = 61;
  EXPECT_EQ(frame.GetAutoTrigger(order), 0U);
  Pick(frame, "cmbMType", "Res_OrderType_StopLimit");
  order.orderTypeFlags = 0;
  frame.SetOrderType(order);
  EXPECT_EQ(order.orderTypeFlags, 0x800U);
}

TEST_F(OrderTypeMapping, MarksNativeAlgoOrdersBesideTheirOtherMarks) {
  auto& frame = Open();
  host::TCustomClientOrder order;
  order.algoFlags = 0x3;
  frame.SetNativeAlgo(&order);
  EXPECT_EQ(order.algoFlags, 0x8003U);
  frame.SetNativeAlgo(nullptr);
}

TEST_F(OrderTypeMapping, StampsTheOrigin) {
  auto& frame = Open();
  host::TCustomClientOrder order;
  order.SetNamedText("Original", "Elsewhere");
  frame.SetAlgoOrder(order);
  EXPECT_EQ(order.NamedText("Original"), "AlgoEntry");
}

struct TShown {
  std::uint32_t typeFlags;
  std::uint32_t auctionFlags;
  double price;
  const char* type;
};

const std::vector<TShown> ShownRows{
    {0, 0, 10, "Res_OrderType_Limit"},
    {1, 0, 0, "Res_OrderType_Market"},
    {0x20 | 1, 0, 0, "Res_OrderType_Market"},
    {1 | 0x800 | 0x400, 0x4000, 10, "Res_OrderType_Market"},
    {4, 0, 0, "Res_OrderType_StopMarket"},
    {4 | 0x800, 0x8000, 0, "Res_OrderType_StopMarket"},
    // The low five bits are one number: 5 is neither of the two.
    {5, 0, 10, "Res_OrderType_Limit"},
    {0x10 | 1, 0, 10, "Res_OrderType_Limit"},
    {2 | 0x800, 0, 10, "Res_OrderType_StopLimit"},
    {0x800, 0x4000, 10, "Res_OrderType_StopLimit"},
    {0x800 | 0x200 | 0x400, 0, 0, "Res_OrderType_StopLimit"},
    {0x800 | 0x800000, 0, 10, "Res_OrderType_StopLimit"},
    {0x200, 0, 0, "Res_OrderType_AO"},
    {0x200, 0, 0.0000001, "Res_OrderType_AO"},
    {0x200, 0, -0.0000001, "Res_OrderType_AO"},
    {0x200, 0, 0.5, "Res_OrderType_ALO"},
    {0x200, 0, 0.0000002, "Res_OrderType_ALO"},
    {0x200, 0, -0.5, "Res_OrderType_ALO"},
    {0x200 | 0x400, 0x8000, 0, "Res_OrderType_AO"},
    {0x400, 0, 10, "Res_OrderType_ELO"},
    {0x400, 0x4000, 10, "Res_OrderType_ELO"},
    {0, 0x4000, 0, "Res_OrderType_MOO"},
    {0, 0x4000 | 0x8000 | 0x1000, 0, "Res_OrderType_MOO"},
    {0, 0x8000, 0, "Res_OrderType_MOC"},
    {0, 0x8000 | 0x1000, 0, "Res_OrderType_MOC"},
    {0, 0x1000, 10, "Res_OrderType_LOC"},
    {0x800000, 0x2000, 10, "Res_OrderType_Limit"},
};

TEST_F(OrderTypeMapping, ShowsTheTypeThatAnOrdersFlagsTell) {
  auto& frame = OpenFilled();
  for (const TShown& row : ShownRows) {
    host::TCustomClientOrder order;
    order.orderTypeFlags = row.typeFlags;
    order.auctionFlags = row.auctionFlags;
    order.price = row.price;
    Combo(frame, "cmbMType").SetIndex(-1);
    frame.SetDisplayOrderType(order);
    EXPECT_EQ(Combo(frame, "cmbMType").Text(), row.type)
        << std::hex << row.typeFlags << " " << row.auctionFlags << " " << row.price;
  }
}

TEST_F(OrderTypeMapping, ShowsTheFirstTypeForOneThatIsNotOffered) {
  Data().lists["ALGO/OrderType/HK"] = {"MO", "ELO"};
  auto& frame = OpenFilled();
  host::TCustomClientOrder order;
  order.auctionFlags = 0x1000;
  Pick(frame, "cmbMType", "Res_OrderType_ELO");
  frame.SetDisplayOrderType(order);
  EXPECT_EQ(Combo(frame, "cmbMType").Text(), "Res_OrderType_Market");
}

TEST_F(OrderTypeMapping, ShowsNothingWhereNoTypeIsOffered) {
  Data().lists.erase("ALGO/OrderType/HK");
  auto& frame = OpenFilled();
  frame.SetDisplayOrderType(host::TCustomClientOrder());
  EXPECT_EQ(Combo(frame, "cmbMType").Index(), -1);
}

}  // namespace
}  // namespace algo::tests
