// The trader in the work order form: quantity and percentage that go along, the price held to the parent's,
// the Enter key, and clearing.

#include "tests/views/order_dialogs.h"

namespace algo::tests {
namespace {

using host::TCustomClientOrder;

class WorkEntry : public TOrderDialogTest {};

TEST_F(WorkEntry, CutsTheQuantityOfAPercentageToWholeLots) {
  struct TRow {
    const char* lot;  // nullptr for an item without one
    double parent;
    const char* percentage;
    double quantity;
  };
  for (const TRow& row : {TRow{"100", 10000, "33.33", 3300},
                          {"100", 10000, "50", 5000},
                          {"100", 10000, "0.99", 0},
                          {"400", 10000, "100", 10000},
                          {"400", 10000, "99", 9600},
                          {"1", 999, "50", 499},
                          {"0", 999, "50", 499},
                          {"-7", 999, "50", 499},
                          {"2.5", 999, "50", 499},
                          {"lots", 999, "50", 499},
                          {nullptr, 999, "50", 499},
                          {"100", 10000, "", 0}}) {
    const auto lot = row.lot == nullptr ? std::nullopt : std::optional<std::string>(row.lot);
    Host().SetMarket("0005", 1, {{24, lot}}, terminal::TMarketNotice::None);
    TCustomClientOrder parent = ParentOrder();
    parent.quantity = row.parent;
    Work(parent, [&](forms::TDialogForm&, TChangeFrame& frame) {
      Type(frame, "sedtPecentage", row.percentage);
      Leave(frame);
      EXPECT_EQ(Spin(frame, "edtQty").Value(), row.quantity) << row.percentage << " of " << row.parent;
    });
  }
}

TEST_F(WorkEntry, FollowsTheQuantityWithAPercentageThatIsNotRounded) {
  struct TRow {
    const char* quantity;
    double percentage;
  };
  TCustomClientOrder parent = ParentOrder();
  parent.quantity = 3000;
  Work(parent, [&](forms::TDialogForm&, TChangeFrame& frame) {
    for (const TRow& row :
         {TRow{"1,500", 50}, {"1000", 100.0 / 3}, {"1", 100.0 / 3000}, {"", 0}, {"9000", 100}}) {
      Type(frame, "edtQty", row.quantity);
      Leave(frame);
      EXPECT_DOUBLE_EQ(Spin(frame, "sedtPecentage").Value().value_or(-1), row.percentage) << row.quantity;
    }
    EXPECT_EQ(Spin(frame, "edtQty").Value(), 3000.0);
  });
}

TEST_F(WorkEntry, DoesNotFeedThePercentageBackIntoTheQuantity) {
  Host().SetMarket("0005", 1, {{24, "100"}}, terminal::TMarketNotice::None);
  TCustomClientOrder parent = ParentOrder();
  Work(parent, [&](forms::TDialogForm&, TChangeFrame& frame) {
    Type(frame, "edtQty", "150");
    Leave(frame);
    EXPECT_EQ(Spin(frame, "edtQty").Value(), 150.0);
    EXPECT_EQ(Spin(frame, "sedtPecentage").Value(), 1.5);
    Type(frame, "sedtPecentage", "1.75");
    Leave(frame);
    EXPECT_EQ(Spin(frame, "edtQty").Value(), 100.0);
    EXPECT_EQ(Spin(frame, "sedtPecentage").Value(), 1.75);
  });
}

TEST_F(WorkEntry, LeavesThePercentageOfAParentWithoutQuantity) {
  TCustomClientOrder parent = ParentOrder();
  parent.quantity = 0;
  Work(parent, [&](forms::TDialogForm&, TChangeFrame& frame) {
    Spin(frame, "edtQty").SetValue(50);
    EXPECT_EQ(Spin(frame, "sedtPecentage").Value(), 0.0);
  });
}

TEST_F(WorkEntry, CouplesNothingWithoutAParent) {
  TCustomClientOrder parent = ParentOrder();
  std::shared_ptr<forms::TFrame> kept;
  Work(parent, [&](forms::TDialogForm& form, TChangeFrame&) { kept = form.Frame(); });
  Spin(*kept, "edtQty").SetValue(50);
  EXPECT_EQ(Spin(*kept, "sedtPecentage").Value(), 100.0);
  Spin(*kept, "sedtPecentage").SetValue(1);
  EXPECT_EQ(Spin(*kept, "edtQty").Value(), 50.0);
}

TEST_F(WorkEntry, HoldsAChildsPriceWithinItsParents) {
  struct TRow {
    std::int32_t side;
    const char* typed;
    double held;
  };
  for (const TRow& row :
       {TRow{0, "10.6", 10.5}, {0, "10.4", 10.4}, {0, "-3", -3}, {1, "10.4", 10.5}, {1, "10.6", 10.6}}) {
    TCustomClientOrder parent = ParentOrder(row.side);
    Work(parent, [&](forms::TDialogForm&, TChangeFrame& frame) {
      EXPECT_TRUE(frame.Check(views::entry::TField::cbLockPrice).Checked());
      EXPECT_EQ(Spin(frame, "edtPrice").Min(), row.side == 1 ? 10.5 : -2000000000.0);
      EXPECT_EQ(Spin(frame, "edtPrice").Max(), row.side == 0 ? 10.5 : 2000000000.0);
      Type(frame, "edtPrice", row.typed);
      Leave(frame);
      EXPECT_EQ(Spin(frame, "edtPrice").Value(), row.held) << row.side << " " << row.typed;
    });
  }
}

TEST_F(WorkEntry, LetsThePriceGoWithTheLockAndTakesItBack) {
  struct TRow {
    std::int32_t side;
    const char* typed;
    double taken;
  };
  for (const TRow& row : {TRow{0, "99", 99}, {1, "2", 2}, {0, "3000000000", 2000000000}}) {
    TCustomClientOrder parent = ParentOrder(row.side);
    Work(parent, [&](forms::TDialogForm&, TChangeFrame& frame) {
      Click(frame, "cbLockPrice");
      EXPECT_EQ(Spin(frame, "edtPrice").Min(), -2000000000.0);
      EXPECT_EQ(Spin(frame, "edtPrice").Max(), 2000000000.0);
      Type(frame, "edtPrice", row.typed);
      Leave(frame);
      EXPECT_EQ(Spin(frame, "edtPrice").Value(), row.taken);
      Click(frame, "cbLockPrice");
      EXPECT_EQ(Spin(frame, "edtPrice").Value(), 10.5);
      EXPECT_TRUE(Named(frame, "edtPrice").Enabled());
    });
  }
}

TEST_F(WorkEntry, PutsAPriceOutOfTheLimitBackOnLeaving) {
  TCustomClientOrder parent = ParentOrder();
  Work(parent, [&](forms::TDialogForm&, TChangeFrame& frame) {
    Spin(frame, "edtPrice").SetValue(11);
    EXPECT_EQ(Spin(frame, "edtPrice").Value(), 11.0);
    Named(frame, "edtPrice").Commit();
    EXPECT_EQ(Spin(frame, "edtPrice").Value(), 10.5);
  });
}

TEST_F(WorkEntry, LimitsNoPriceForAParentWithoutOne) {
  for (const double price : {0.0, 0.00000005}) {
    TCustomClientOrder parent = ParentOrder(host::SideBuy, price);
    Work(parent, [&](forms::TDialogForm&, TChangeFrame& frame) {
      EXPECT_FALSE(frame.Check(views::entry::TField::cbLockPrice).Checked());
      EXPECT_EQ(Named(frame, "edtPrice").Text(), "");
      for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(Spin(frame, "edtPrice").Min(), -2000000000.0);
        EXPECT_EQ(Spin(frame, "edtPrice").Max(), 2000000000.0);
        Type(frame, "edtPrice", "11");
        Click(frame, "cbLockPrice");
        EXPECT_EQ(Spin(frame, "edtPrice").Value(), 11.0);
      }
    });
  }
}

TEST_F(WorkEntry, ClearsThreeEditorsAndStaysOpen) {
  TCustomClientOrder parent = ParentOrder();
  parent.orderTypeFlags = 0x800;
  Work(parent, [&](forms::TDialogForm& form, TChangeFrame& frame) {
    EXPECT_EQ(Combo(frame, "cmbMType").Text(), "Res_OrderType_StopLimit");
    Click(frame, "btnClear");
    for (const char* editor : {"edtQty", "sedtPecentage", "edtPrice"}) {
      EXPECT_EQ(Named(frame, editor).Text(), "") << editor;
      EXPECT_EQ(Spin(frame, editor).Value(), std::nullopt) << editor;
    }
    EXPECT_EQ(Combo(frame, "cmbMType").Index(), 0);
    EXPECT_EQ(form.ModalResult(), forms::ModalNone);
    EXPECT_EQ(Named(frame, "edtAccount").Text(), "A1");
    EXPECT_EQ(Named(frame, "sedtAvaliQty").Text(), "10,000");
  });
}

TEST_F(WorkEntry, ClearsToTheParentsTypeWhereNoneIsOffered) {
  Data().lists["ALGO/OrderType/HK"] = {};
  TCustomClientOrder parent = ParentOrder();
  Work(parent, [&](forms::TDialogForm&, TChangeFrame& frame) {
    Click(frame, "btnClear");
    EXPECT_EQ(Combo(frame, "cmbMType").Text(), "Res_OrderType_Limit");
    EXPECT_EQ(Named(frame, "edtQty").Text(), "");
  });
  EXPECT_TRUE(Told().empty());
}

TEST_F(WorkEntry, LeadsEnterThroughTheChildsFields) {
  TCustomClientOrder parent = ParentOrder();
  Work(parent, [&](forms::TDialogForm&, TChangeFrame& frame) {
    Pick(frame, "cmbOrderType", "Res_Algo_OrderType_TVOL");
    EXPECT_EQ(Enter(frame, "edtQty"), "sedtPecentage");
    EXPECT_EQ(Enter(frame, "sedtPecentage"), "edtPrice");
    EXPECT_EQ(Enter(frame, "edtPrice"), "cmbOrderType");
    EXPECT_EQ(Enter(frame, "deETime"), "btnSubmit");
  });
}

}  // namespace
}  // namespace algo::tests
