// An order shown in the change form: its identity locked, its price, order type, side and lot.

#include <algorithm>
#include <array>

#include "tests/views/order_dialogs.h"

namespace algo::tests {
namespace {

using host::TCustomClientOrder;

class ChangeFrame : public TOrderDialogTest {};

constexpr std::array LotEditors{"edtQty",     "edtStopQty", "edtMinQty",
                                "edtShowQty", "edtJoinQty", "edtMaxShowQty"};

TEST_F(ChangeFrame, ShowsTheOrdersIdentityLocked) {
  TCustomClientOrder order = OrderWith("TMLO:AlgoId=TVOL,VolPct=20;");
  Change(order, [&](forms::TDialogForm&, TChangeFrame& frame) {
    EXPECT_EQ(Named(frame, "edtAccount").Text(), "A1");
    EXPECT_EQ(Named(frame, "edtSymbol").Text(), "0005");
    EXPECT_EQ(Spin(frame, "edtQty").Value(), 1000.0);
    EXPECT_EQ(Spin(frame, "edtPrice").Value(), 60.5);
    EXPECT_EQ(Combo(frame, "cmbOrderType").Text(), "Res_Algo_OrderType_TVOL");
    EXPECT_EQ(Spin(frame, "edtVolPct").Value(), 20.0);
    for (const char* locked :
         {"edtAccount", "edtSymbol", "cmbExch", "cmbOrderType", "cmbMType", "cbLockAcct", "cbLockSymbol",
          "cbLockExch", "cbLockOrderType", "cbLockMOrder", "cbLockPrice", "cbLockQty"}) {
      EXPECT_FALSE(Named(frame, locked).Enabled()) << locked;
    }
    EXPECT_TRUE(Named(frame, "edtQty").Enabled());
    EXPECT_TRUE(Named(frame, "edtPrice").Enabled());
    EXPECT_FALSE(Element(frame, "lgSubmit").Visible());
  });
}

TEST_F(ChangeFrame, TellsThePriceEditorsTheSymbol) {
  TCustomClientOrder order = OrderWith("TMLO:AlgoId=CLOSE;");
  order.symbol = "0700";
  Change(order, [](forms::TDialogForm&, TChangeFrame&) {});
  for (const char* editor :
       {"price edtPrice", "price edtThrPx1", "price edtThrPx2", "price edtStopLossPx", "price edtWPx"}) {
    const auto told = Seen("editor_symbol");
    EXPECT_TRUE(std::any_of(told.begin(), told.end(), [&](const TSeen& seen) {
      return seen.text == editor && seen.more == "0700";
    })) << editor;
  }
}

TEST_F(ChangeFrame, LooksTheSymbolUpWithoutFollowingIt) {
  TCustomClientOrder order = OrderWith("TMLO:AlgoId=CLOSE;");
  Change(order, [&](forms::TDialogForm&, TChangeFrame&) { EXPECT_EQ(LeftBehind().subscriptions, 0U); });
  ASSERT_FALSE(Seen("subscribe").empty());
  for (const TSeen& asked : Seen("subscribe")) {
    EXPECT_EQ(asked.text, "0005");
    EXPECT_EQ(asked.more, "PRCDDS");
    EXPECT_FALSE(asked.answer);
  }
}

TEST_F(ChangeFrame, SelectsTheOrdersExchangeOrElseTheFirst) {
  struct TRow {
    const char* exchange;
    std::int32_t index;
  };
  for (const TRow& row : {TRow{"US", 1}, {"XX", 0}, {"HK", 0}, {"US", 1}, {"", 0}}) {
    TCustomClientOrder order = OrderWith("TMLO:AlgoId=VWAP;");
    order.exchange = row.exchange;
    Change(order, [&](forms::TDialogForm&, TChangeFrame& frame) {
      EXPECT_EQ(Combo(frame, "cmbExch").Index(), row.index) << row.exchange;
      EXPECT_EQ(Combo(frame, "cmbOrderType").Text(), "Res_Algo_OrderType_VWAP") << row.exchange;
    });
  }
}

TEST_F(ChangeFrame, OpensThePriceByTheOrdersFlags) {
  struct TRow {
    std::uint32_t typeFlags;
    std::uint32_t auctionFlags;
    double price;
    bool open;
  };
  for (const TRow& row : {TRow{0, 0, 60.5, true},
                          {0, 0, 0, true},
                          {1, 0, 60.5, false},
                          {4, 0, 60.5, false},
                          {0x21, 0, 60.5, false},
                          {0x24, 0, 60.5, false},
                          {2, 0, 60.5, true},
                          {5, 0, 60.5, true},
                          {0x200, 0, 0, false},
                          {0x200, 0, 0.00000005, false},
                          {0x200, 0, 60.5, true},
                          {0x400, 0, 0, true},
                          {0x800, 0, 60.5, true},
                          {0x800, 0x4000, 60.5, false},
                          {0, 0x4000, 60.5, false},
                          {0, 0x8000, 60.5, false},
                          {0, 0x1000, 60.5, true}}) {
    TCustomClientOrder order = OrderWith("TMLO:AlgoId=CLOSE;");
    order.orderTypeFlags = row.typeFlags;
    order.auctionFlags = row.auctionFlags;
    order.price = row.price;
    Change(order, [&](forms::TDialogForm&, TChangeFrame& frame) {
      EXPECT_EQ(Named(frame, "edtPrice").Enabled(), row.open)
          << row.typeFlags << " " << row.auctionFlags << " " << row.price;
      EXPECT_FALSE(Named(frame, "cbLockPrice").Enabled());
      EXPECT_EQ(Spin(frame, "edtPrice").Value(), row.price);
    });
  }
}

TEST_F(ChangeFrame, KeepsThePriceOfATypeThatIsNotOfferedClosed) {
  Data().rights.erase("OEMarketOrder");
  TCustomClientOrder order = OrderWith("TMLO:AlgoId=CLOSE;");
  order.orderTypeFlags = 1;
  Change(order, [&](forms::TDialogForm&, TChangeFrame& frame) {
    EXPECT_EQ(Combo(frame, "cmbMType").Text(), "Res_OrderType_Market");
    EXPECT_FALSE(Named(frame, "edtPrice").Enabled());
  });
}

TEST_F(ChangeFrame, ShowsTheHostOrderType) {
  struct TRow {
    std::uint32_t typeFlags;
    std::uint32_t auctionFlags;
    double price;
    const char* text;
  };
  for (const TRow& row : {TRow{1, 0, 0, "Res_OrderType_Market"},
                          {4, 0, 0, "Res_OrderType_StopMarket"},
                          {0x800, 0, 10, "Res_OrderType_StopLimit"},
                          {0x200, 0, 0.5, "Res_OrderType_ALO"},
                          {0x200, 0, 0, "Res_OrderType_AO"},
                          {0x400, 0, 10, "Res_OrderType_ELO"},
                          {0, 0x4000, 0, "Res_OrderType_MOO"},
                          {0, 0x8000, 0, "Res_OrderType_MOC"},
                          {0, 0x1000, 10, "Res_OrderType_LOC"},
                          {0, 0, 10, "Res_OrderType_Limit"},
                          {0x800, 0x4000, 10, "Res_OrderType_StopLimit"}}) {
    TCustomClientOrder order = OrderWith("TMLO:AlgoId=CLOSE;");
    order.orderTypeFlags = row.typeFlags;
    order.auctionFlags = row.auctionFlags;
    order.price = row.price;
    Change(order, [&](forms::TDialogForm&, TChangeFrame& frame) {
      EXPECT_EQ(Combo(frame, "cmbMType").Text(), row.text);
    });
  }
}

TEST_F(ChangeFrame, ShowsTheSideButtonOfTheOrder) {
  struct TRow {
    std::int32_t side;
    bool buy;
    bool sell;
  };
  for (const TRow& row :
       {TRow{0, true, false}, {1, false, true}, {2, false, false}, {3, false, false}, {0, true, false}}) {
    TCustomClientOrder order = OrderWith("TMLO:AlgoId=CLOSE;");
    order.side = row.side;
    Change(order, [&](forms::TDialogForm&, TChangeFrame& frame) {
      EXPECT_EQ(Element(frame, "liBuy").Showing(), row.buy) << row.side;
      EXPECT_EQ(Element(frame, "liSell").Showing(), row.sell) << row.side;
    });
  }
}

TEST_F(ChangeFrame, StepsTheQuantitiesByTheLot) {
  struct TRow {
    std::int32_t state;
    const char* field;       // nullptr for an item without a lot
    const char* instrument;  // nullptr for a symbol that is no known instrument
    double step;
  };
  for (const TRow& row : {TRow{1, "400", "100", 400},
                          {1, "1", "100", 1},
                          {1, "0", "100", 1},
                          {1, "-5", "100", 1},
                          {1, "2.5", "100", 1},
                          {1, "lots", "100", 1},
                          {1, nullptr, "100", 1},
                          {0, "400", "100", 100},
                          {2, "400", "100", 100},
                          {0, nullptr, "0", 1},
                          {0, nullptr, "x", 1},
                          {0, nullptr, "", 1},
                          {0, nullptr, nullptr, 1}}) {
    Data().instruments.erase("0700");
    if (row.instrument != nullptr) Data().instruments["0700"] = {"0700", row.instrument};
    const auto lot = row.field == nullptr ? std::nullopt : std::optional<std::string>(row.field);
    Host().SetMarket("0700", row.state, {{24, lot}}, terminal::TMarketNotice::None);
    TCustomClientOrder order = OrderWith("TMLO:AlgoId=ICEBERG;");
    order.symbol = "0700";
    Change(order, [&](forms::TDialogForm&, TChangeFrame& frame) {
      for (const char* editor : LotEditors) {
        EXPECT_EQ(Spin(frame, editor).Step(), row.step) << editor << " " << row.state << " " << row.step;
        EXPECT_EQ(Spin(frame, editor).Min(), 0.0) << editor;
      }
    });
  }
}

}  // namespace
}  // namespace algo::tests
