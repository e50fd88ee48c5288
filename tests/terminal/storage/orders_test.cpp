// Orders come back as they were stored.

#include <cmath>
#include <limits>
#include <string>

#include "tests/terminal/storage/storage_fixture.h"

namespace algo::terminal::storage::tests {
namespace {

using namespace std::string_literals;

using TNumbered = std::map<std::int32_t, std::string>;
using TNamed = std::map<std::string, std::string, std::less<>>;

const TOrderEvent New{"me", "new", "accepted"};
const TOrderEvent Change{"me", "change", "accepted"};

struct TStoredOrders : TStorageTest {};

TEST_F(TStoredOrders, EveryPropertyComesBack) {
  host::TCustomClientOrder order;
  order.key = "K-1";
  order.orderNo = "000123";
  order.parentNo = "000007";
  order.account = "A'1\";DROP TABLE orders;--";
  order.symbol = "0005";
  order.exchange = "HK";
  order.user = "M\xC3\xBCller \xE6\xB8\xAF";
  order.side = 1;
  order.quantity = 400;
  order.filled = 0.1;
  order.committed = 1e-300;
  order.price = 60.550000000000004;
  order.stopPrice = -0.30000000000000004;
  order.status = -1;
  order.orderTypeFlags = 4294967295U;
  order.auctionFlags = 3;
  order.algoFlags = 0x8000;
  order.flags = 0x90000001;
  order.SetTextProperty(440, "TMLO:AlgoId=TVOL,VolPct=20;");
  order.SetTextProperty(-5, "");
  order.SetNamedText("Original", "AlgoEntry");
  order.SetNamedText("", "no name");
  Open()->StoreOrder(New, order);

  Load();
  ASSERT_EQ(orders.All().size(), 1U);
  const auto& stored = *orders.Find("K-1");
  EXPECT_EQ(stored.key, "K-1");
  EXPECT_EQ(stored.orderNo, "000123");
  EXPECT_EQ(stored.parentNo, "000007");
  EXPECT_EQ(stored.account, "A'1\";DROP TABLE orders;--");
  EXPECT_EQ(stored.symbol, "0005");
  EXPECT_EQ(stored.exchange, "HK");
  EXPECT_EQ(stored.user, "M\xC3\xBCller \xE6\xB8\xAF");
  EXPECT_EQ(stored.side, 1);
  EXPECT_EQ(stored.quantity, 400);
  EXPECT_EQ(stored.filled, 0.1);
  EXPECT_EQ(stored.committed, 1e-300);
  EXPECT_EQ(stored.price, 60.550000000000004);
  EXPECT_EQ(stored.stopPrice, -0.30000000000000004);
  EXPECT_EQ(stored.status, -1);
  EXPECT_EQ(stored.orderTypeFlags, 4294967295U);
  EXPECT_EQ(stored.auctionFlags, 3U);
  EXPECT_EQ(stored.algoFlags, 0x8000U);
  EXPECT_EQ(stored.flags, 0x90000001U);
  EXPECT_EQ(stored.NumberedTexts(), (TNumbered{{-5, ""}, {440, "TMLO:AlgoId=TVOL,VolPct=20;"}}));
  EXPECT_EQ(stored.NamedTexts(), (TNamed{{"", "no name"}, {"Original", "AlgoEntry"}}));
}

TEST_F(TStoredOrders, TextsKeepEveryByte) {
  host::TCustomClientOrder order;
  order.key = "a\0b"s;
  order.account = "\0"s;
  order.symbol = "not UTF-8: \xFF\xC3";
  order.SetTextProperty(440, "one\0two"s);
  order.SetNamedText("na\0me"s, "\0\0"s);
  {
    const auto storage = Open();
    storage->StoreOrder(New, order);
    storage->StoreOrder(New, OrderWithKey("a"));
  }

  Load();
  ASSERT_EQ(LoadedKeys(), (std::vector<std::string>{"a\0b"s, "a"}));
  const auto& stored = *orders.Find("a\0b"s);
  EXPECT_EQ(stored.account, "\0"s);
  EXPECT_EQ(stored.symbol, "not UTF-8: \xFF\xC3");
  EXPECT_EQ(stored.exchange, "");
  EXPECT_EQ(stored.NumberedTexts(), (TNumbered{{440, "one\0two"s}}));
  EXPECT_EQ(stored.NamedTexts(), (TNamed{{"na\0me"s, "\0\0"s}}));
}

TEST_F(TStoredOrders, FiguresAtTheEdgesComeBack) {
  auto order = OrderWithKey("K");
  order.quantity = std::numeric_limits<double>::quiet_NaN();
  order.filled = std::numeric_limits<double>::infinity();
  order.committed = std::numeric_limits<double>::max();
  order.price = std::numeric_limits<double>::denorm_min();
  order.stopPrice = 9007199254740993.0;
  order.side = std::numeric_limits<std::int32_t>::min();
  order.status = std::numeric_limits<std::int32_t>::max();
  Open()->StoreOrder(New, order);

  Load();
  const auto& stored = *orders.Find("K");
  EXPECT_TRUE(std::isnan(stored.quantity));
  EXPECT_EQ(stored.filled, std::numeric_limits<double>::infinity());
  EXPECT_EQ(stored.committed, std::numeric_limits<double>::max());
  EXPECT_EQ(stored.price, std::numeric_limits<double>::denorm_min());
  EXPECT_EQ(stored.stopPrice, 9007199254740992.0);
  EXPECT_EQ(stored.side, -2147483647 - 1);
  EXPECT_EQ(stored.status, 2147483647);
  ASSERT_EQ(events.size(), 1U);
  EXPECT_TRUE(std::isnan(events[0].quantity));
}

TEST_F(TStoredOrders, ComeBackInTheOrderInWhichTheyCame) {
  {
    const auto storage = Open();
    for (const char* key : {"N2", "N10", "A", "N1"}) storage->StoreOrder(New, OrderWithKey(key));
    storage->StoreOrder(Change, OrderWithKey("N10", 7));
  }
  Open()->StoreOrder(New, OrderWithKey("0"));
  Load();
  EXPECT_EQ(LoadedKeys(), (std::vector<std::string>{"N2", "N10", "A", "N1", "0"}));
  EXPECT_EQ(orders.Find("N10")->quantity, 7);
}

TEST_F(TStoredOrders, AChangedOrderHasNothingOfTheFormerOneLeft) {
  auto order = OrderWithKey("K", 400);
  order.account = "A1";
  order.SetTextProperty(440, "old");
  order.SetTextProperty(441, "gone");
  order.SetNamedText("Gone", "gone");
  const auto storage = Open();
  storage->StoreOrder(New, order);
  storage->StoreOrder(New, order);

  auto changed = OrderWithKey("K", 300);
  changed.SetTextProperty(440, "new");
  storage->StoreOrder(Change, changed);
  storage->LoadInto(data, orders);
  ASSERT_EQ(LoadedKeys(), (std::vector<std::string>{"K"}));
  const auto& stored = *orders.Find("K");
  EXPECT_EQ(stored.quantity, 300);
  EXPECT_EQ(stored.account, "");
  EXPECT_EQ(stored.NumberedTexts(), (TNumbered{{440, "new"}}));
  EXPECT_EQ(stored.NamedTexts(), TNamed{});
}

TEST_F(TStoredOrders, AnOrderWithoutItsEventIsNotStored) {
  bool clockStands = true;
  {
    TSqliteStorage storage(file, [&clockStands] {
      if (clockStands) throw EError("the clock stands still");
      return std::string(FixedTime);
    });
    EXPECT_THROW(storage.StoreOrder(New, OrderWithKey("K", 1)), EError);
    EXPECT_TRUE(storage.AllEvents().empty());
    clockStands = false;
    storage.StoreOrder(New, OrderWithKey("L", 2));
  }
  Load();
  EXPECT_EQ(LoadedKeys(), (std::vector<std::string>{"L"}));
  EXPECT_EQ(events.size(), 1U);
}

TEST_F(TStoredOrders, AnEventAloneStoresNoOrder) {
  Open()->StoreEvent({"me", "new", "refused"}, OrderWithKey("K"));
  Load();
  EXPECT_EQ(LoadedKeys(), (std::vector<std::string>{}));
  EXPECT_EQ(events.size(), 1U);
}

}  // namespace
}  // namespace algo::terminal::storage::tests
