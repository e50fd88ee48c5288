// A parent in the work order form: what is shown of it, what a child starts with, the form's own controls,
// captions and settings.

#include "tests/views/order_dialogs.h"

namespace algo::tests {
namespace {

using host::TCustomClientOrder;

class WorkFrame : public TOrderDialogTest {
 protected:
  /// Puts a child of the parent into the store.
  void AddChild(const char* key, double quantity, double filled, std::int32_t status) {
    TCustomClientOrder child = OrderWith("", key);
    child.parentNo = "NoP1";
    child.quantity = quantity;
    child.filled = filled;
    child.status = status;
    child.flags = 0x20000000;
    Store(child);
  }
};

TEST_F(WorkFrame, ShowsTheParentReadOnly) {
  TCustomClientOrder parent = ParentOrder();
  Work(parent, [&](forms::TDialogForm&, TChangeFrame& frame) {
    EXPECT_EQ(frame.ClassName(), "TAlgoWorkOrderFrame");
    EXPECT_EQ(Named(frame, "edtAccount").Text(), "A1");
    EXPECT_EQ(Named(frame, "edtSymbol").Text(), "0005");
    EXPECT_EQ(Named(frame, "tedtOrderNum").Text(), "NoP1");
    EXPECT_EQ(Named(frame, "cbSide").Text(), "Res_AMSPrice_Buy");
    for (const char* control : {"edtAccount", "edtSymbol", "tedtOrderNum", "cbSide", "sedtAvaliQty"}) {
      EXPECT_TRUE(Named(frame, control).ReadOnly()) << control;
      EXPECT_FALSE(Named(frame, control).CanFocus()) << control;
    }
    for (const char* item : {"liAccount", "liSymbol", "liOrderNum", "liSide", "liAvaliQty"}) {
      EXPECT_FALSE(Element(frame, item).Enabled()) << item;
      EXPECT_TRUE(Element(frame, item).Showing()) << item;
    }
  });
}

TEST_F(WorkFrame, HidesTheButtonsOfTheOtherFormsAndKeepsItsOwnRow) {
  TCustomClientOrder parent = ParentOrder();
  Work(parent, [&](forms::TDialogForm&, TChangeFrame& frame) {
    for (const char* hidden : {"btnBuy", "btnSell", "btnWork", "cbPopup", "cbClear"}) {
      EXPECT_FALSE(Named(frame, hidden).Showing()) << hidden;
    }
    EXPECT_FALSE(Element(frame, "lgSubmit").Visible());
    for (const char* shown : {"btnSubmit", "btnClear"}) {
      EXPECT_TRUE(Named(frame, shown).CanFocus()) << shown;
      EXPECT_EQ(Named(frame, shown).Item()->Parent()->Name(), "lgClear") << shown;
    }
    const auto* row = dynamic_cast<forms::TLayoutGroup*>(&Element(frame, "lgClear"));
    ASSERT_NE(row, nullptr);
    EXPECT_EQ(row->Direction(), forms::TDirection::Horizontal);
    EXPECT_EQ(row->Caption(), "");
  });
}

TEST_F(WorkFrame, NamesTheSideOfTheParent) {
  for (const std::int32_t side : {0, 1, 3, 0}) {
    TCustomClientOrder parent = ParentOrder(side);
    Work(parent, [&](forms::TDialogForm&, TChangeFrame& frame) {
      EXPECT_EQ(Combo(frame, "cbSide").Items(),
                (std::vector<std::string>{"Res_AMSPrice_Buy", "Res_AMSPrice_Sell"}));
      EXPECT_EQ(Combo(frame, "cbSide").Index(), side == 0 ? 0 : 1) << side;
    });
  }
}

TEST_F(WorkFrame, HoldsItsControlsInTheOrdersColumn) {
  TCustomClientOrder parent = ParentOrder();
  Work(parent, [&](forms::TDialogForm&, TChangeFrame& frame) {
    for (const char* item : {"liOrderNum", "liSide", "liAvaliQty", "liPer", "lgClear"}) {
      EXPECT_EQ(Element(frame, item).Parent()->Name(), "lgOrder") << item;
    }
    const forms::TNumberFormat seven{.whole = false, .grouped = true, .decimals = 7};
    const forms::TNumberFormat two{.whole = false, .grouped = true, .decimals = 2};
    EXPECT_EQ(Spin(frame, "sedtAvaliQty").Format(), seven);
    EXPECT_EQ(Spin(frame, "edtQty").Format(), seven);
    EXPECT_EQ(Spin(frame, "sedtPecentage").Format(), two);
    EXPECT_EQ(Spin(frame, "sedtPecentage").Step(), 0.01);
    Click(frame, "sedtPecentage");
    EXPECT_EQ(Spin(frame, "sedtPecentage").SelectedText(), "100");
  });
}

TEST_F(WorkFrame, CaptionsItsControlsInTheUsersLanguage) {
  struct TRow {
    const char* item;
    const char* id;
  };
  constexpr TRow items[] = {{"liOrderNum", "Res_OrderNo"},      {"liSide", "Res_Side"},
                            {"liAvaliQty", "Res_AvailableQty"}, {"liPer", "Res_Percentage"},
                            {"liSubmit", "Res_Submit"},         {"liClear", "Res_Clear"}};
  TCustomClientOrder parent = ParentOrder(host::SideSell);
  Work(parent, [&](forms::TDialogForm&, TChangeFrame& frame) {
    for (const TRow& row : items) EXPECT_EQ(Element(frame, row.item).Caption(), row.id);
    EXPECT_EQ(Named(frame, "cbLockPrice").Caption(), "Res_OrderPrice");
    Data().texts["Res"] = {{"Res_OrderNo", "Nr"},           {"Res_Side", "Seite"},
                           {"Res_AvailableQty", "Frei"},    {"Res_Percentage", "Anteil"},
                           {"Res_OrderPrice", "Preis"},     {"Res_AMSPrice_Buy", "Kauf"},
                           {"Res_AMSPrice_Sell", "Verkauf"}};
    EXPECT_TRUE(frame.SetLanguage(2));
    EXPECT_EQ(Element(frame, "liOrderNum").Caption(), "Nr");
    EXPECT_EQ(Element(frame, "liSide").Caption(), "Seite");
    EXPECT_EQ(Element(frame, "liAvaliQty").Caption(), "Frei");
    EXPECT_EQ(Element(frame, "liPer").Caption(), "Anteil");
    EXPECT_EQ(Named(frame, "cbLockPrice").Caption(), "Preis");
    EXPECT_EQ(Combo(frame, "cbSide").Items(), (std::vector<std::string>{"Kauf", "Verkauf"}));
    EXPECT_EQ(Named(frame, "cbSide").Text(), "Verkauf");
    EXPECT_EQ(Spin(frame, "edtQty").Value(), 10000.0);
    EXPECT_EQ(Spin(frame, "edtPrice").Value(), 10.5);
  });
}

TEST_F(WorkFrame, OpensAtWhatTheParentHasLeft) {
  AddChild("C1", 3000, 0, 1);
  AddChild("C2", 2000, 500, 4);
  TCustomClientOrder parent = ParentOrder();
  Work(parent, [&](forms::TDialogForm&, TChangeFrame& frame) {
    EXPECT_EQ(Named(frame, "sedtAvaliQty").Text(), "6,500");
    EXPECT_EQ(Spin(frame, "edtQty").Value(), 6500.0);
    EXPECT_EQ(Spin(frame, "edtQty").Min(), 0.0);
    EXPECT_EQ(Spin(frame, "edtQty").Max(), 6500.0);
    EXPECT_EQ(Spin(frame, "sedtPecentage").Value(), 65.0);
    EXPECT_EQ(Spin(frame, "sedtPecentage").Min(), 0.0);
    EXPECT_EQ(Spin(frame, "sedtPecentage").Max(), 65.0);
  });
}

TEST_F(WorkFrame, OpensAtExactlyTheFreeQuantityWithTheShareCutToAWholeNumber) {
  AddChild("C1", 3450, 0, 1);
  TCustomClientOrder parent = ParentOrder();
  Work(parent, [&](forms::TDialogForm&, TChangeFrame& frame) {
    EXPECT_EQ(Spin(frame, "edtQty").Value(), 6550.0);
    EXPECT_EQ(Spin(frame, "sedtPecentage").Value(), 65.0);
    EXPECT_DOUBLE_EQ(Spin(frame, "sedtPecentage").Max().value_or(0), 65.5);
  });
}

TEST_F(WorkFrame, ShowsEachParentsOwnFiguresOneAfterTheOther) {
  TCustomClientOrder small = ParentOrder();
  small.quantity = 400;
  small.price = 3;
  TCustomClientOrder large = ParentOrder(host::SideSell, 200);
  large.quantity = 50000;
  TCustomClientOrder none = ParentOrder();
  none.quantity = 0;
  for (TCustomClientOrder* parent : {&small, &large, &none, &small}) {
    Work(*parent, [&](forms::TDialogForm&, TChangeFrame& frame) {
      EXPECT_EQ(Spin(frame, "edtQty").Value(), parent->quantity);
      EXPECT_EQ(Spin(frame, "edtQty").Max(), parent->quantity);
      EXPECT_EQ(Spin(frame, "edtPrice").Value(), parent->price);
      EXPECT_EQ(Spin(frame, "sedtPecentage").Value(), parent->quantity == 0 ? 0.0 : 100.0);
      EXPECT_EQ(Spin(frame, "sedtPecentage").Max(), parent->quantity == 0 ? 0.0 : 100.0);
    });
  }
}

TEST_F(WorkFrame, OpensEmptyForTheSettingZeroAlone) {
  struct TRow {
    const char* setting;
    bool filled;
  };
  for (const TRow& row :
       {TRow{"0", false}, {"", true}, {"1", true}, {"00", true}, {" 0", true}, {"N", true}}) {
    DestroyProvider();
    Data().config["USER"]["WorkOrderQtyOut"] = row.setting;
    TCustomClientOrder parent = ParentOrder();
    Work(parent, [&](forms::TDialogForm&, TChangeFrame& frame) {
      EXPECT_EQ(Named(frame, "edtQty").Text(), row.filled ? "10,000" : "") << row.setting;
      EXPECT_EQ(Named(frame, "sedtAvaliQty").Text(), "10,000") << row.setting;
      EXPECT_EQ(Spin(frame, "edtQty").Max(), 10000.0) << row.setting;
      EXPECT_EQ(Spin(frame, "sedtPecentage").Value(), 100.0) << row.setting;
    });
  }
}

TEST_F(WorkFrame, ShowsTheRawPriceWhateverTheMultiplier) {
  Host().SetMarket("0005", 1, {{1504, "100"}}, terminal::TMarketNotice::None);
  TCustomClientOrder parent = ParentOrder();
  Work(parent,
       [&](forms::TDialogForm&, TChangeFrame& frame) { EXPECT_EQ(Spin(frame, "edtPrice").Value(), 10.5); });
}

TEST_F(WorkFrame, LetsTheAlgorithmBeChosenWithItsFieldsShown) {
  TCustomClientOrder parent = ParentOrder();
  Work(parent, [&](forms::TDialogForm&, TChangeFrame& frame) {
    EXPECT_TRUE(Element(frame, "lgOrd").Visible());
    EXPECT_TRUE(Element(frame, "lgAlgo").Visible());
    EXPECT_FALSE(Named(frame, "cmbMType").Enabled());
    EXPECT_FALSE(Named(frame, "cmbExch").Enabled());
    Pick(frame, "cmbOrderType", "Res_Algo_OrderType_STOP");
    EXPECT_TRUE(Element(frame, "lgSTOP").Showing());
  });
}

TEST_F(WorkFrame, OpensPriceAndLockByTheOrdersFlags) {
  struct TRow {
    std::uint32_t typeFlags;
    std::uint32_t auctionFlags;
    double price;
    bool open;
  };
  for (const TRow& row : {TRow{0, 0, 10.5, true},
                          {0, 0, 0, true},
                          {1, 0, 10.5, false},
                          {4, 0, 10.5, false},
                          {0x24, 0, 10.5, false},
                          {5, 0, 10.5, true},
                          {0x200, 0, 0, false},
                          {0x200, 0, 0.00000005, false},
                          {0x200, 0, 10.5, true},
                          {0x800, 0, 10.5, true},
                          {0, 0x4000, 10.5, false},
                          {0, 0x8000, 10.5, false},
                          {0, 0x1000, 10.5, true},
                          {0x400, 0xC000, 10.5, false}}) {
    TCustomClientOrder parent = ParentOrder(host::SideBuy, row.price);
    parent.orderTypeFlags = row.typeFlags;
    parent.auctionFlags = row.auctionFlags;
    Work(parent, [&](forms::TDialogForm&, TChangeFrame& frame) {
      for (const char* control : {"edtPrice", "cbLockPrice"}) {
        EXPECT_EQ(Named(frame, control).Enabled(), row.open)
            << control << " " << row.typeFlags << " " << row.auctionFlags << " " << row.price;
      }
    });
  }
}

}  // namespace
}  // namespace algo::tests
