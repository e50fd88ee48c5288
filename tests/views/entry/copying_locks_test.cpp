// Which copies are for a form, what its locks keep out of it, and what is left of a copy that fails.

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "tests/views/terminal_fixture.h"

namespace algo::tests {
namespace {

using std::string_view;

struct TOtherOrder : host::TCustomOrder {};

class CopyingLocks : public TTerminalTest {
 protected:
  static constexpr std::int32_t Order = 18010;
  static constexpr std::int32_t Price = 18016;

  static host::TCustomClientOrder Picked(string_view algoText = "TMLO:AlgoId=TWAP,WPx=10.5;") {
    host::TCustomClientOrder order;
    order.account = "A2";
    order.symbol = "0005";
    order.exchange = "HK";
    order.quantity = 1200;
    order.price = 12.5;
    order.SetTextProperty(440, std::string(algoText));
    return order;
  }
  void Post(std::int32_t channel, host::TCustomOrder* object, string_view group = "") {
    host::TOrderCopyRecord record;
    record.object = object;
    record.groupId = group;
    Host().PostAsHost(channel, record);
  }
  void Copy(std::int32_t channel, host::TCustomClientOrder order, string_view group = "") {
    Post(channel, &order, group);
  }
  static std::string Text(const forms::TFrame& frame, string_view control) {
    return frame.FindControl(control)->Text();
  }
};

TEST_F(CopyingLocks, TakeCopiesOfTheOwnGroupOrOfAllOfThem) {
  struct TRow {
    const char* mode;
    const char* group;
    const char* sender;
    bool copied;
  };
  for (const TRow& row : {
           TRow{"0", "A", "B", false},
           TRow{"0", "A", "A", true},
           TRow{"0", "A", "a", false},
           TRow{"0", "A", "", false},
           TRow{"0", "", "B", true},
           TRow{"0", "", "", true},
           TRow{"2", "A", "B", false},
           TRow{" 1 ", "A", "B", false},
           TRow{"-1", "A", "B", true},
           TRow{"-1", "A", "A", true},
           TRow{"", "A", "B", true},
           TRow{"many", "A", "B", true},
       }) {
    Data().config["VANTORIX_PLATFORM"]["DefaultGroupDataMode"] = row.mode;
    for (const std::int32_t channel : {Order, Price}) {
      auto& frame = Open();
      frame.SetGroupID(row.group);
      Copy(channel, Picked(), row.sender);
      EXPECT_EQ(Text(frame, "edtPrice"), row.copied ? "12.5" : "0")
          << row.mode << " " << row.group << " " << row.sender;
    }
  }
  EXPECT_TRUE(Told().empty());
}

TEST_F(CopyingLocks, GoByTheGroupSettingAsItIsNow) {
  auto& frame = Open();
  frame.SetGroupID("A");
  Data().config["VANTORIX_PLATFORM"]["DefaultGroupDataMode"] = "0";
  Host().NotifyConfigChanged();
  Copy(Price, Picked(), "B");
  EXPECT_EQ(Text(frame, "edtPrice"), "0");
  frame.SetGroupID("B");
  Copy(Price, Picked(), "B");
  EXPECT_EQ(Text(frame, "edtPrice"), "12.5");
}

TEST_F(CopyingLocks, PassOverWhatIsNoOrderOfAClient) {
  auto& frame = OpenFilled();
  const std::string before = frame.GetLayoutData();
  TOtherOrder other;
  other.symbol = "0700";
  host::TOrderTakeActionRecord foreign;
  for (const std::int32_t channel : {Order, Price}) {
    Post(channel, nullptr);
    Post(channel, &other);
    Host().PostAsHost(channel, foreign);
  }
  EXPECT_EQ(frame.GetLayoutData(), before);
  EXPECT_TRUE(Told().empty());
}

TEST_F(CopyingLocks, KeepAnotherSymbolOutAltogether) {
  auto& frame = OpenFilled();
  Click(frame, "cbLockSymbol");
  const std::string before = frame.GetLayoutData();
  for (const string_view symbol : {"0700", "", "0005 "}) {
    host::TCustomClientOrder order = Picked();
    order.symbol = symbol;
    Copy(Order, order);
    Copy(Price, order);
    EXPECT_EQ(frame.GetLayoutData(), before) << symbol;
  }
  EXPECT_TRUE(Told().empty());
}

TEST_F(CopyingLocks, LetTheLockedSymbolItselfIn) {
  auto& frame = OpenFilled();
  Click(frame, "cbLockSymbol");
  Copy(Price, Picked());
  EXPECT_EQ(Text(frame, "edtPrice"), "12.5");
  EXPECT_EQ(Text(frame, "edtQty"), "1,200");
  host::TCustomClientOrder order = Picked();
  order.price = 13;
  Copy(Order, order);
  EXPECT_EQ(Text(frame, "edtPrice"), "13");
  EXPECT_EQ(Text(frame, "edtSymbol"), "0005");
}

TEST_F(CopyingLocks, KeepTheAccount) {
  auto& frame = OpenFilled();
  Click(frame, "cbLockAcct");
  Copy(Order, Picked());
  EXPECT_EQ(Text(frame, "edtAccount"), "A1");
  EXPECT_TRUE(frame.GetLayoutData().starts_with("Account=A1,"));
}

TEST_F(CopyingLocks, KeepTheQuantity) {
  for (const std::int32_t channel : {Order, Price}) {
    auto& frame = OpenFilled();
    Click(frame, "cbLockQty");
    Copy(channel, Picked());
    EXPECT_EQ(Text(frame, "edtQty"), "800");
    EXPECT_EQ(Text(frame, "edtPrice"), "12.5");
  }
}

TEST_F(CopyingLocks, KeepThePrice) {
  for (const std::int32_t channel : {Order, Price}) {
    auto& frame = OpenFilled();
    Click(frame, "cbLockPrice");
    Copy(channel, Picked());
    EXPECT_EQ(Text(frame, "edtPrice"), "60.5");
    EXPECT_EQ(Text(frame, "edtQty"), "1,200");
    Host().SetMarket("0005", 1, {{3, "70"}}, terminal::TMarketNotice::Item);
    Click(frame, "cbLockPrice");
    Host().SetMarket("0005", 1, {{3, "71"}}, terminal::TMarketNotice::Item);
    EXPECT_EQ(Text(frame, "edtPrice"), "60.5");
    Host().SetMarket("0005", 1, {{3, "60.5"}}, terminal::TMarketNotice::None);
  }
}

TEST_F(CopyingLocks, KeepTheAlgorithmWhileItsParametersAreLoaded) {
  auto& frame = OpenFilled();
  ChooseAlgo(frame, "PEG");
  Click(frame, "cbLockOrderType");
  Copy(Order, Picked());
  EXPECT_EQ(Text(frame, "cmbOrderType"), "Res_Algo_OrderType_PEG");
  EXPECT_EQ(Text(frame, "edtWPx"), "10.5");
}

TEST_F(CopyingLocks, ChooseTheExchangeOfTheOrderWhateverIsLocked) {
  auto& frame = OpenFilled();
  for (const char* lock : {"cbLockExch", "cbLockOrderType", "cbLockMOrder"}) Click(frame, lock);
  host::TCustomClientOrder order = Picked();
  order.exchange = "US";
  Copy(Order, order);
  EXPECT_EQ(Text(frame, "cmbExch"), "US");
  EXPECT_EQ(Text(frame, "cmbOrderType"), "Res_Algo_OrderType_TWAP");
  for (const char* lock : {"cbLockOrderType", "cbLockMOrder"}) {
    EXPECT_FALSE(dynamic_cast<forms::TCheckBox&>(Named(frame, lock)).Checked()) << lock;
  }
}

TEST_F(CopyingLocks, AreForEachOpenFormByItself) {
  auto& locked = OpenFilled();
  Click(locked, "cbLockSymbol");
  auto& open = Open();
  host::TCustomClientOrder order = Picked();
  order.symbol = "0700";
  Copy(Order, order);
  EXPECT_EQ(Text(locked, "edtSymbol"), "0005");
  EXPECT_EQ(Text(open, "edtSymbol"), "0700");
}

TEST_F(CopyingLocks, LoadATextUpToTheTimeThatCannotBeRead) {
  auto& frame = Open();
  Copy(Order, Picked("TMLO:AlgoId=PEG,STime=20240115-09:30:00,ETime=20241315-09:30:00,Timeout=60;"));
  EXPECT_EQ(Told().size(), 1U);
  EXPECT_EQ(Text(frame, "cmbOrderType"), "Res_Algo_OrderType_PEG");
  EXPECT_EQ(Text(frame, "deSTime"), "2024-01-15 09:30:00");
  EXPECT_EQ(Text(frame, "deETime"), "");
  EXPECT_EQ(Text(frame, "edtTimeOut"), "");
  EXPECT_EQ(Text(frame, "edtPrice"), "12.5");
}

TEST_F(CopyingLocks, LetTheMarketFillTheFormAgainAfterACopyThatFailed) {
  const auto expectPrefill = [this](views::entry::TAlgoOrderEntryFrame& frame, const char* what) {
    EXPECT_EQ(Told().size(), 1U) << what;
    Type(frame, "edtSymbol", "0005");
    Leave(frame);
    EXPECT_EQ(Text(frame, "edtQty"), "400") << what;
    EXPECT_EQ(Text(frame, "edtPrice"), "60.5") << what;
    Forget();
  };
  {
    auto& frame = Open();
    Copy(Order, Picked("TMLO:AlgoId=PEG,STime=never;"));
    expectPrefill(frame, "a time that cannot be read");
  }
  for (const std::int32_t channel : {Order, Price}) {
    for (const char* fault : {"subscribe.add", "editor.symbol"}) {
      DestroyProvider();
      auto& frame = Open();
      Forget();
      Data().faults.Set({fault});
      Copy(channel, Picked());
      Data().faults.Set({});
      expectPrefill(frame, fault);
    }
  }
}

TEST_F(CopyingLocks, ATextWithoutAnIdLoadsNoParameter) {
  auto& frame = Open();
  Copy(Order, Picked("WPx=10.5,VolPct=20;"));
  EXPECT_EQ(Text(frame, "edtWPx"), "");
  EXPECT_EQ(Text(frame, "edtVolPct"), "");
  EXPECT_EQ(Text(frame, "cmbOrderType"), "Res_Algo_OrderType_TVOL");
  EXPECT_TRUE(Told().empty());
}

}  // namespace
}  // namespace algo::tests
