// What of the algorithm's part is open, shown and filled in for an order in the change form.

#include <array>

#include "tests/views/order_dialogs.h"
#include "tests/views/table_coverage.h"

namespace algo::tests {
namespace {

using host::TCustomClientOrder;

class ChangeView : public TOrderDialogTest {
 protected:
  /// The algo groups that show in the frame, in the form's order.
  std::string GroupsShowing(TChangeFrame& frame) const {
    std::string showing;
    for (const char* name : {"lgTrading", "lgVol", "lgWOrder", "lgAuc", "lgMinOrder", "lgStyle", "lgSlices",
                             "lgTVOLth", "lgICEBERG", "lgSTOP", "lgPEG", "lgSNIPER", "lgRef", "lgTime"}) {
      if (Element(frame, name).Showing()) showing += std::string(name) + " ";
    }
    return showing;
  }
};

constexpr std::array Amendable{"deSTime",    "edtJoinThr",     "cmbJoin",   "edtJoinQty", "cmbIceberg",
                               "edtTimeOut", "edtRandTimeOut", "cmbRef",    "edtDiffPct", "edtTickDiff",
                               "edtShowQty", "edtStopLossPx",  "cmbFunc",   "cmbOpening", "edtOpenPct",
                               "cmbClosing", "cmbAccuVol",     "edtThrPx1", "edtThrPx2"};

constexpr std::array OtherParameters{
    "deETime",      "edtVolPct",    "edtMaxVolPct", "edtWPx",        "edtClosePct",   "cmbCloseSim",
    "edtMinOrdAmt", "cmbStyle",     "edtSlices",    "edtThrVolPct1", "edtThrVolPct2", "edtMaxShowQty",
    "edtRandPct",   "edtReloadPct", "cmbAllInAuc",  "edtStopQty",    "edtMinQty",     "edtServePct"};

TEST_F(ChangeView, TheTablesNameEveryParameter) {
  std::vector<std::string_view> names(Amendable.begin(), Amendable.end());
  names.insert(names.end(), OtherParameters.begin(), OtherParameters.end());
  ExpectNamesEvery(names, [](const auto& row) { return row.param.has_value(); });
}

TEST_F(ChangeView, OpensEveryAmendableFieldAndClosesNoOther) {
  for (const bool confirming : {false, true}) {
    TCustomClientOrder order = OrderWith("TMLO:AlgoId=PEG;");
    const auto disable = [&](forms::TDialogForm&, TChangeFrame& frame) {
      for (const char* name : Amendable) Named(frame, name).SetEnabled(false);
    };
    const auto look = [&](forms::TDialogForm&, TChangeFrame& frame) {
      for (const char* name : Amendable) EXPECT_TRUE(Named(frame, name).Enabled()) << name;
      for (const char* name : OtherParameters) EXPECT_TRUE(Named(frame, name).Enabled()) << name;
      EXPECT_FALSE(Element(frame, "liCClear").Visible());
      EXPECT_EQ(Element(frame, "liPopup").Visible(), confirming);
    };
    confirming ? Confirm(order, disable) : Change(order, disable);
    confirming ? Confirm(order, look) : Change(order, look);
  }
}

TEST_F(ChangeView, KeepsTheFunctionOfAWorkingIcebergAlone) {
  struct TRow {
    const char* text;
    bool confirming;
    bool open;
  };
  for (const TRow& row : {TRow{"TMLO:AlgoId=ICEBERG,Func=1;", false, false},
                          {"TMLO:AlgoId=iceberg,Func=1;", false, false},
                          {"TMLO:AlgoId=ICEBERG,Func=1;", true, true},
                          {"TMLO:AlgoId=ICEBERG,Func=1;", false, false},
                          {"TMLO:AlgoId=PEG;", false, true}}) {
    TCustomClientOrder order = OrderWith(row.text);
    const auto look = [&](forms::TDialogForm&, TChangeFrame& frame) {
      for (const std::string_view name : Amendable) {
        EXPECT_EQ(Named(frame, name).Enabled(), name != "cmbFunc" || row.open) << name << " " << row.text;
      }
    };
    row.confirming ? Confirm(order, look) : Change(order, look);
  }
}

TEST_F(ChangeView, StartsEachOrderFromAnEmptyAlgoPart) {
  TCustomClientOrder full = OrderWith(
      "TMLO:AlgoId=VWAP,STime=20240115-09:30:00,ETime=20240115-15:00:00,WPx=10.5,Opening=1,MinOrdAmt=5,"
      "Style=5,MaxVolPct=25,OpenPct=10,ClosePct=11,Waves=12;");
  TCustomClientOrder bare = OrderWith("TMLO:AlgoId=VWAP;");
  Change(full, [&](forms::TDialogForm&, TChangeFrame& frame) {
    EXPECT_EQ(Named(frame, "deSTime").Text(), "2024-01-15 09:30:00");
    EXPECT_EQ(Combo(frame, "cmbStyle").Index(), 1);
    EXPECT_EQ(Spin(frame, "edtSlices").Value(), 12.0);
  });
  Change(bare, [&](forms::TDialogForm&, TChangeFrame& frame) {
    for (const char* name : {"deSTime", "deETime", "edtWPx", "edtMinOrdAmt", "edtMaxVolPct", "edtOpenPct",
                             "edtClosePct", "edtSlices"}) {
      EXPECT_EQ(Named(frame, name).Text(), "") << name;
    }
    for (const char* name : {"cmbOpening", "cmbClosing"}) EXPECT_EQ(Combo(frame, name).Index(), 2) << name;
    EXPECT_EQ(Combo(frame, "cmbStyle").Index(), 3);
  });
}

TEST_F(ChangeView, ShowsTheGroupsOfTheOrdersAlgorithm) {
  struct TRow {
    const char* text;
    const char* groups;
  };
  for (const TRow& row : {TRow{"TMLO:AlgoId=STOP;", "lgTrading lgSTOP "},
                          {"TMLO:AlgoId=short sell;", "lgTrading lgRef "},
                          {"TMLO:AlgoId=CLOSE;", ""},
                          {"TMLO:AlgoId=SNIPER;", "lgTrading lgStyle lgSNIPER lgTime "}}) {
    TCustomClientOrder order = OrderWith(row.text);
    Change(order, [&](forms::TDialogForm&, TChangeFrame& frame) {
      EXPECT_EQ(GroupsShowing(frame), row.groups) << row.text;
    });
  }
}

TEST_F(ChangeView, SelectsNothingForAnAlgorithmThatIsNotOffered) {
  for (const char* text : {"TMLO:AlgoId=XYZ,VolPct=20;", "TMLO:AlgoId=;", "", "no such text"}) {
    TCustomClientOrder order = OrderWith(text);
    Change(order, [&](forms::TDialogForm&, TChangeFrame& frame) {
      EXPECT_EQ(Combo(frame, "cmbOrderType").Index(), -1) << text;
      EXPECT_EQ(GroupsShowing(frame), "") << text;
      EXPECT_EQ(Spin(frame, "edtQty").Value(), 1000.0) << text;
    });
    TCustomClientOrder offered = OrderWith("TMLO:AlgoId=TVOL;");
    Change(offered, [&](forms::TDialogForm&, TChangeFrame& frame) {
      EXPECT_EQ(Combo(frame, "cmbOrderType").Text(), "Res_Algo_OrderType_TVOL");
    });
  }
}

TEST_F(ChangeView, SelectsNothingForAnAlgorithmOfAnotherExchange) {
  TCustomClientOrder order = OrderWith("TMLO:AlgoId=PEG;");
  order.exchange = "US";
  Change(order, [&](forms::TDialogForm&, TChangeFrame& frame) {
    EXPECT_EQ(Combo(frame, "cmbExch").Index(), 1);
    EXPECT_EQ(Combo(frame, "cmbOrderType").Index(), -1);
    EXPECT_EQ(GroupsShowing(frame), "");
  });
}

TEST_F(ChangeView, KeepsNoSelectionThroughALanguageSwitch) {
  TCustomClientOrder order = OrderWith("TMLO:AlgoId=XYZ;");
  order.orderTypeFlags = 0x400;
  Change(order, [&](forms::TDialogForm&, TChangeFrame& frame) {
    Data().texts["Res"]["Res_Algo_OrderType_TVOL"] = "Volume";
    EXPECT_TRUE(frame.SetLanguage(2));
    EXPECT_EQ(Combo(frame, "cmbOrderType").Items().front(), "Volume");
    EXPECT_EQ(Combo(frame, "cmbOrderType").Index(), -1);
    EXPECT_EQ(GroupsShowing(frame), "");
    EXPECT_EQ(Combo(frame, "cmbMType").Text(), "Res_OrderType_ELO");
    EXPECT_EQ(Combo(frame, "cmbExch").Index(), 0);
  });
}

TEST_F(ChangeView, HidesTheAlgorithmOfAWorkParentAndEmptiesItsText) {
  for (const bool confirming : {false, true}) {
    TCustomClientOrder parent = OrderWith("TMLO:AlgoId=VWAP,MaxVolPct=25;");
    parent.flags = 0x10000001;
    const auto look = [&](forms::TDialogForm&, TChangeFrame& frame) {
      for (const char* hidden : {"lgOrd", "lgAlgo", "liCClear", "liPopup"}) {
        EXPECT_FALSE(Element(frame, hidden).Visible()) << hidden;
      }
      EXPECT_FALSE(Named(frame, "cmbMType").Enabled());
      EXPECT_EQ(parent.TextProperty(440), "");
    };
    confirming ? Confirm(parent, look) : Change(parent, look);
    TCustomClientOrder order = OrderWith("TMLO:AlgoId=VWAP;");
    Change(order, [&](forms::TDialogForm&, TChangeFrame& frame) {
      for (const char* shown : {"lgOrd", "lgAlgo"}) EXPECT_TRUE(Element(frame, shown).Visible()) << shown;
      EXPECT_EQ(order.TextProperty(440), "TMLO:AlgoId=VWAP;");
    });
  }
}

TEST_F(ChangeView, TakesAnOrderForAWorkParentByBothMarks) {
  struct TRow {
    std::uint32_t flags;
    bool parent;
  };
  for (const TRow& row : {TRow{0, false},
                          {0x1, false},
                          {0x10000000, false},
                          {0x10000001, true},
                          {0x20000001, false},
                          {0x30000001, true}}) {
    TCustomClientOrder order = OrderWith("TMLO:AlgoId=VWAP;");
    order.flags = row.flags;
    EXPECT_EQ(TChangeFrame::GetWorkOrder(order), row.parent) << row.flags;
    Change(order, [&](forms::TDialogForm&, TChangeFrame& frame) {
      EXPECT_EQ(Element(frame, "lgAlgo").Visible(), !row.parent) << row.flags;
    });
    EXPECT_EQ(order.TextProperty(440), row.parent ? "" : "TMLO:AlgoId=VWAP;") << row.flags;
  }
}

TEST_F(ChangeView, FitTheDialogToItsFrame) {
  TCustomClientOrder order = OrderWith("TMLO:AlgoId=CLOSE;");
  forms::TSize small;
  Confirm(order, [&](forms::TDialogForm& form, TChangeFrame& frame) {
    small = form.ClientSize();
    EXPECT_EQ(small.width, frame.GetWidth());
    EXPECT_EQ(small.height, frame.GetHeight());
  });
  order = OrderWith("TMLO:AlgoId=PEG;");
  Confirm(order, [&](forms::TDialogForm& form, TChangeFrame& frame) {
    EXPECT_EQ(form.ClientSize().width, frame.GetWidth());
    EXPECT_EQ(form.ClientSize().height, frame.GetHeight());
    EXPECT_GT(form.ClientSize().width, small.width);
  });
}

TEST_F(ChangeView, KnowsTheTextOfAnAlgorithmByItsFirstPiece) {
  struct TRow {
    const char* text;
    bool known;
  };
  const auto frame = std::make_shared<TChangeFrame>();
  for (const TRow& row : {TRow{"", false},
                          {"TVOL", true},
                          {"TMLO:AlgoId=TVOL Threshold,VolPct=20;", true},
                          {"TMMO:AlgoId=SHORT SELL;", true},
                          {"CLOSE,XYZ", true},
                          {"XYZ,TVOL", false},
                          {"TMLO:AlgoId=XYZ;", false},
                          {",TVOL", false}}) {
    EXPECT_EQ(frame->CheckOrder(row.text), row.known) << row.text;
  }
  frame->Detach();
}

}  // namespace
}  // namespace algo::tests
