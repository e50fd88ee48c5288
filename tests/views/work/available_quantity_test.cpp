// How much of a parent is left for new children, against a plain count over the same orders.

#include "views/work/available_quantity.h"

#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <random>
#include <vector>

#include "plugin/host_contract/checks/null_host.h"
#include "plugin/host_contract/installed_service.h"
#include "plugin/host_contract/order_adapter.h"

namespace algo::tests {
namespace {

using host::TCustomClientOrder;
using views::work::GetWorkParentOrderAvailableQty;

/// A store whose orders a test sets, and which may change while it is looked through.
class TTestStore : public host::TCustomOrderAdapter {
 public:
  bool GetListSetting(std::string_view /*key*/, std::vector<std::string>& values) override {
    values.clear();
    return false;
  }
  TCustomClientOrder* NewClientOrder() override { return nullptr; }
  void FreeClientOrder(TCustomClientOrder* /*order*/) override {}
  std::size_t OrderCount() override { return orders.size(); }
  host::TCustomOrder* OrderAt(std::size_t index) override {
    if (onLook) onLook(index);
    return index < orders.size() ? &orders[index] : nullptr;
  }

  std::vector<TCustomClientOrder> orders;
  std::function<void(std::size_t index)> onLook;
};

class AvailableQuantity : public testing::Test {
 protected:
  static TCustomClientOrder Parent(double quantity) {
    TCustomClientOrder parent;
    parent.orderNo = "P";
    parent.quantity = quantity;
    parent.flags = 0x10000001;
    return parent;
  }
  static TCustomClientOrder Child(double quantity, double filled, std::int32_t status) {
    TCustomClientOrder child;
    child.orderNo = "C";
    child.parentNo = "P";
    child.quantity = quantity;
    child.filled = filled;
    child.status = status;
    child.flags = 0x20000000;
    return child;
  }

  std::vector<TCustomClientOrder>& Orders() { return FStore->orders; }
  void OnLook(std::function<void(std::size_t)> look) { FStore->onLook = std::move(look); }

 private:
  host::checks::TNullHost FHost;
  host::TInstalledService<TTestStore> FStore;
};

TEST_F(AvailableQuantity, IsNothingWithoutAParent) { EXPECT_EQ(GetWorkParentOrderAvailableQty(nullptr), 0); }

TEST_F(AvailableQuantity, LeavesOutWhatLiveChildrenHoldAndDoneOnesHadFilled) {
  Orders() = {Child(3000, 0, 1), Child(2000, 500, 4), Child(1000, 0, 1)};
  Orders()[2].flags = 0;
  const TCustomClientOrder parent = Parent(10000);
  EXPECT_EQ(GetWorkParentOrderAvailableQty(&parent), 6500);
}

TEST_F(AvailableQuantity, CountsAChildByItsStatus) {
  struct TRow {
    std::int32_t status;
    double free;
  };
  for (const TRow& row : {TRow{-1, 700},
                          {3, 700},
                          {4, 700},
                          {7, 700},
                          {0, 0},
                          {1, 0},
                          {2, 0},
                          {5, 0},
                          {6, 0},
                          {8, 0},
                          {-2, 0},
                          {35, 0},
                          {36, 0},
                          {-29, 0},
                          {255, 0},
                          {1031, 0}}) {
    Orders() = {Child(1000, 300, row.status)};
    const TCustomClientOrder parent = Parent(1000);
    EXPECT_EQ(GetWorkParentOrderAvailableQty(&parent), row.free) << row.status;
  }
}

TEST_F(AvailableQuantity, CountsTheParentsOwnChildrenAlone) {
  struct TRow {
    const char* orderNo;
    const char* parentNo;
    std::uint32_t flags;
    double free;
  };
  for (const TRow& row : {TRow{"C", "P", 0x20000000, 900},
                          {"C", "P", 0x30000001, 900},
                          {"C", "p", 0x20000000, 1000},
                          {"C", "P ", 0x20000000, 1000},
                          {"C", "", 0x20000000, 1000},
                          {"C", "P", 0x10000001, 1000},
                          {"C", "P", 0, 1000},
                          {"P", "P", 0x20000000, 1000}}) {
    Orders() = {Child(100, 0, 1)};
    Orders()[0].orderNo = row.orderNo;
    Orders()[0].parentNo = row.parentNo;
    Orders()[0].flags = row.flags;
    const TCustomClientOrder parent = Parent(1000);
    EXPECT_EQ(GetWorkParentOrderAvailableQty(&parent), row.free) << row.orderNo << " of " << row.parentNo;
  }
}

TEST_F(AvailableQuantity, IsNeverNegative) {
  Orders() = {Child(700, 0, 1), Child(700, 0, 1)};
  const TCustomClientOrder parent = Parent(1000);
  EXPECT_EQ(GetWorkParentOrderAvailableQty(&parent), 0);
}

TEST_F(AvailableQuantity, TakesOtherOrdersByTheirOwnFigures) {
  struct TRow {
    std::uint32_t flags;
    double filled;
    double committed;
    double free;
  };
  Orders() = {Child(4000, 0, 1)};
  for (const TRow& row : {TRow{0, 1000, 1500, 2500},
                          {0x1, 1000, 1500, 2500},
                          {0x20000000, 0, 0, 5000},
                          {0, 4000, 1500, 0},
                          {0x10000000, 1000, 1500, 1000},
                          {0x10000001, 1000, 1500, 1000}}) {
    TCustomClientOrder order = Parent(5000);
    order.flags = row.flags;
    order.filled = row.filled;
    order.committed = row.committed;
    EXPECT_EQ(GetWorkParentOrderAvailableQty(&order), row.free) << row.flags;
  }
}

TEST_F(AvailableQuantity, LooksThroughTheStoreAnewEachTime) {
  const TCustomClientOrder parent = Parent(1000);
  EXPECT_EQ(GetWorkParentOrderAvailableQty(&parent), 1000);
  Orders() = {Child(400, 100, 1)};
  EXPECT_EQ(GetWorkParentOrderAvailableQty(&parent), 600);
  Orders()[0].status = 4;
  EXPECT_EQ(GetWorkParentOrderAvailableQty(&parent), 900);
  Orders().clear();
  EXPECT_EQ(GetWorkParentOrderAvailableQty(&parent), 1000);
}

TEST_F(AvailableQuantity, PassesOverPlacesThatGoWhileItLooks) {
  Orders() = {Child(100, 0, 1), Child(200, 0, 1), Child(400, 0, 1)};
  OnLook([this](std::size_t index) {
    if (index == 1) Orders().pop_back();
  });
  const TCustomClientOrder parent = Parent(1000);
  EXPECT_EQ(GetWorkParentOrderAvailableQty(&parent), 700);
  OnLook({});
  EXPECT_EQ(GetWorkParentOrderAvailableQty(&parent), 700);
}

// The same question answered in the plainest way, over the orders as they are.
double PlainCount(const TCustomClientOrder& parent, const std::vector<TCustomClientOrder>& orders) {
  double used = 0;
  if (!(parent.flags & 0x10000000)) {
    used = parent.filled + parent.committed;
  } else {
    for (std::size_t i = 0; i < orders.size(); ++i) {
      const TCustomClientOrder& each = orders[i];
      if (each.parentNo != parent.orderNo) continue;
      if (!(each.flags & 0x20000000)) continue;
      if (each.orderNo == parent.orderNo) continue;
      switch (each.status) {
        case -1:
        case 3:
        case 4:
        case 7:
          used += each.filled;
          break;
        default:
          used += each.quantity;
      }
    }
  }
  return parent.quantity - used > 0 ? parent.quantity - used : 0;
}

TEST_F(AvailableQuantity, AgreesWithAPlainCountOverTenThousandStoresThatChangeInBetween) {
  std::mt19937 random(20240115);
  const auto below = [&random](std::uint32_t bound) { return static_cast<std::uint32_t>(random() % bound); };
  constexpr const char* numbers[] = {"P", "Q", "C1", "C2", ""};
  constexpr std::uint32_t marks[] = {0, 0x1, 0x10000000, 0x10000001, 0x20000000, 0x20000000, 0x30000001};
  const auto anyOrder = [&] {
    TCustomClientOrder order;
    order.orderNo = numbers[below(5)];
    order.parentNo = numbers[below(3) == 0 ? below(5) : 0];
    order.quantity = below(40) * 50;
    order.filled = below(20) * 25;
    order.committed = below(10) * 10;
    order.status = static_cast<std::int32_t>(below(12)) - 2;
    order.flags = marks[below(7)];
    return order;
  };
  int above = 0;
  for (int store = 0; store < 10000; ++store) {
    Orders().clear();
    for (std::uint32_t i = below(13); i > 0; --i) Orders().push_back(anyOrder());
    TCustomClientOrder parent = anyOrder();
    parent.quantity = below(20) * 500;
    if (below(4) != 0) parent.flags |= 0x10000000;
    const double first = GetWorkParentOrderAvailableQty(&parent);
    ASSERT_EQ(first, PlainCount(parent, Orders())) << "store " << store;
    above += first > 0 && first < parent.quantity ? 1 : 0;
    // The host changes its orders while they are looked through: behind the place that is asked for, so that
    // the plain count over what stands there afterwards is the same question.
    OnLook([&](std::size_t index) {
      if (index == 0) Orders().back() = anyOrder();
    });
    if (Orders().size() > 1) {
      const double second = GetWorkParentOrderAvailableQty(&parent);
      ASSERT_EQ(second, PlainCount(parent, Orders())) << "changed store " << store;
    }
    OnLook({});
  }
  EXPECT_GT(above, 1000);
}

}  // namespace
}  // namespace algo::tests
