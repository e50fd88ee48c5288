// Following one symbol: what is subscribed and taken back, whom the frame tells of the symbol, and which
// updates of the market it listens to.

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "plugin/host_contract/market_data.h"
#include "tests/views/terminal_fixture.h"

namespace algo::tests {
namespace {

using TTexts = std::vector<std::string>;

/// Stands before the host's subscriptions: notes what comes and goes, and keeps the item and the listener
/// that came last, so that a test can send updates that the host would not.
class TUpdateFeed final : public host::TCustomSubscribeAdapter {
 public:
  TUpdateFeed() : FHost(Install(this)) {}
  ~TUpdateFeed() override { Install(FHost); }

  host::TMarketDataItem* Subscribe(std::string_view symbol, std::string_view dataSet, bool live) override {
    noted.push_back("subscribe " + std::string(symbol));
    return FHost->Subscribe(symbol, dataSet, live);
  }
  void AddListener(host::TMarketDataItem* followed, TListener listener, host::TOwner owner) override {
    item = followed;
    tell = listener;
    FHost->AddListener(followed, std::move(listener), owner);
  }
  void Unsubscribe(host::TMarketDataItem* followed, host::TOwner owner) override {
    noted.push_back("unsubscribe " + std::string(followed->Symbol()));
    FHost->Unsubscribe(followed, owner);
  }

  TTexts noted;
  host::TMarketDataItem* item = nullptr;
  TListener tell;

 private:
  host::TCustomSubscribeAdapter* FHost;
};

/// The same before the spread tables.
class TSpreadFeed final : public host::TCustomMarketAdapter {
 public:
  TSpreadFeed() : FHost(Install(this)) {}
  ~TSpreadFeed() override { Install(FHost); }

  const host::TInstrument* FindInstrument(std::string_view symbol) override {
    return FHost->FindInstrument(symbol);
  }
  void AddSpreadListener(TSpreadListener listener, host::TOwner owner) override {
    tell = listener;
    FHost->AddSpreadListener(std::move(listener), owner);
  }
  void RemoveSpreadListener(host::TOwner owner) override { FHost->RemoveSpreadListener(owner); }

  TSpreadListener tell;

 private:
  host::TCustomMarketAdapter* FHost;
};

/// An item of 10.25 in lots of 50.
class TOtherItem final : public host::TMarketDataItem {
 public:
  std::string_view Symbol() const override { return "0005"; }
  std::int32_t State() const override { return 1; }
  bool HasField(std::int32_t field) const override { return field == 3 || field == 24; }
  double FieldNumber(std::int32_t field) const override { return field == 3 ? 10.25 : 50; }
  std::string_view FieldText(std::int32_t field) const override { return field == 3 ? "10.25" : "50"; }
};

class TUpdate final : public host::TItemDictionary {
 public:
  explicit TUpdate(host::TMarketDataItem* item) : FItem(item) {}
  std::size_t Count() const override { return FItem == nullptr ? 0 : 1; }
  host::TMarketDataItem* Find(std::string_view symbol) const override {
    return FItem != nullptr && symbol == FItem->Symbol() ? FItem : nullptr;
  }

 private:
  host::TMarketDataItem* FItem;
};

class Tracking : public TTerminalTest {
 protected:
  void SetItem(std::string_view symbol, std::int32_t state, const terminal::TFieldChanges& fields,
               bool notify = false) {
    Host().SetMarket(symbol, state, fields,
                     notify ? terminal::TMarketNotice::Item : terminal::TMarketNotice::None);
  }

  void EnterSymbol(forms::TFrame& frame, std::string_view symbol) {
    Type(frame, "edtSymbol", symbol);
    Leave(frame);
  }

  TUpdateFeed feed;
};

TEST_F(Tracking, SubscribesATypedSymbolToThePriceDataSet) {
  auto& frame = Open();
  EnterSymbol(frame, "0005");
  const auto subscribed = Seen("subscribe");
  ASSERT_EQ(subscribed.size(), 1U);
  EXPECT_EQ(subscribed[0].text, "0005");
  EXPECT_EQ(subscribed[0].more, "PRCDDS");
  EXPECT_TRUE(subscribed[0].answer);
  EXPECT_EQ(LeftBehind().subscriptions, 1U);
}

TEST_F(Tracking, TakesTheOldSymbolBackBeforeItSubscribesTheNewOne) {
  auto& frame = Open();
  EnterSymbol(frame, "0005");
  EnterSymbol(frame, "0700");
  EXPECT_EQ(feed.noted, (TTexts{"subscribe 0005", "unsubscribe 0005", "subscribe 0700"}));
  EXPECT_EQ(LeftBehind().subscriptions, 1U);
}

TEST_F(Tracking, KeepsTheSubscriptionOfASymbolEnteredAgainAndPrefillsAnew) {
  auto& frame = Open();
  EnterSymbol(frame, "0005");
  Type(frame, "edtQty", "800");
  Type(frame, "edtPrice", "61");
  EnterSymbol(frame, "0005");
  EXPECT_EQ(feed.noted, (TTexts{"subscribe 0005"}));
  EXPECT_EQ(Spin(frame, "edtQty").Value(), 400);
  EXPECT_EQ(Spin(frame, "edtPrice").Value(), 60.5);
}

TEST_F(Tracking, TellsSymbolsApartByLetterCase) {
  Data().instruments["abc"] = {"abc", "1"};
  Data().instruments["ABC"] = {"ABC", "1"};
  auto& frame = Open();
  EnterSymbol(frame, "abc");
  EnterSymbol(frame, "ABC");
  EXPECT_EQ(feed.noted, (TTexts{"subscribe abc", "unsubscribe abc", "subscribe ABC"}));
}

TEST_F(Tracking, LetsGoOfTheSymbolForAnEmptyOneAndLeavesTheEditors) {
  auto& frame = OpenFilled();
  EnterSymbol(frame, "");
  EXPECT_EQ(feed.noted, (TTexts{"subscribe 0005", "unsubscribe 0005"}));
  EXPECT_EQ(LeftBehind().subscriptions, 0U);
  EXPECT_EQ(Spin(frame, "edtQty").Value(), 800);
  EXPECT_EQ(Spin(frame, "edtPrice").Value(), 60.5);
  SetItem("0005", 1, {{3, "70"}, {24, "100"}}, true);
  EXPECT_EQ(Spin(frame, "edtQty").Value(), 800);
  EXPECT_EQ(Spin(frame, "edtPrice").Value(), 60.5);
}

TEST_F(Tracking, LetsGoOfTheSymbolWhenTheTypedOneIsUnknown) {
  auto& frame = OpenFilled();
  EnterSymbol(frame, "9999");
  EXPECT_EQ(feed.noted, (TTexts{"subscribe 0005", "unsubscribe 0005"}));
  EXPECT_EQ(Named(frame, "edtSymbol").Text(), "9999");
  EXPECT_EQ(Named(frame, "edtSymbol").Hint(), "");
}

TEST_F(Tracking, SettlesTheEditorOnASymbolThatTheProgramSet) {
  auto& frame = Open();
  EnterSymbol(frame, "0005");
  frame.SetSymbol("0700");
  EXPECT_EQ(Named(frame, "edtSymbol").Text(), "0700");
  EXPECT_EQ(Named(frame, "edtSymbol").Hint(), "0700");
  EXPECT_EQ(feed.noted, (TTexts{"subscribe 0005", "unsubscribe 0005", "subscribe 0700"}));
}

TEST_F(Tracking, TellsEveryPriceAndQuantityEditorTheSymbol) {
  auto& frame = Open();
  const TTexts editors{"price edtPrice",         "quantity edtQty",     "quantity edtMinQty",
                       "quantity edtStopQty",    "quantity edtShowQty", "quantity edtJoinQty",
                       "quantity edtMaxShowQty", "price edtThrPx1",     "price edtThrPx2",
                       "price edtStopLossPx",    "price edtWPx"};
  for (const std::string symbol : {"0005", "0005", ""}) {
    Forget();
    EnterSymbol(frame, symbol);
    TTexts told;
    for (const TSeen& seen : Seen("editor_symbol")) {
      told.push_back(seen.text);
      EXPECT_EQ(seen.more, symbol) << seen.text;
    }
    EXPECT_EQ(told, editors) << symbol;
  }
}

TEST_F(Tracking, GivesTheSubscriptionBackWhenTheViewCloses) {
  auto& frame = OpenFilled();
  Provider().CloseInstance(host::HandleOf(frame));
  EXPECT_EQ(feed.noted, (TTexts{"subscribe 0005", "unsubscribe 0005"}));
  SetItem("0005", 1, {{3, "70"}}, true);
  EXPECT_EQ(LeftBehind().subscriptions, 0U);
}

TEST_F(Tracking, IgnoresNewsWithoutItsSymbol) {
  auto& frame = Open();
  SetItem("0005", 0, {});
  EnterSymbol(frame, "0005");
  SetItem("0005", 1, {});
  feed.tell(nullptr, nullptr);
  const TUpdate empty(nullptr);
  feed.tell(nullptr, &empty);
  Host().SetMarket("0005", 1, {}, terminal::TMarketNotice::OtherItems);
  EXPECT_EQ(Spin(frame, "edtQty").Value(), std::nullopt);
  EXPECT_EQ(Spin(frame, "edtPrice").Value(), 0);
  Host().SetMarket("0005", 1, {}, terminal::TMarketNotice::Item);
  EXPECT_EQ(Spin(frame, "edtQty").Value(), 400);
  EXPECT_EQ(Spin(frame, "edtPrice").Value(), 60.5);
}

TEST_F(Tracking, GoesOverToTheItemThatTheNewsBring) {
  auto& frame = Open();
  SetItem("0005", 0, {});
  EnterSymbol(frame, "0005");
  TOtherItem other;
  const TUpdate update(&other);
  feed.tell(nullptr, &update);
  EXPECT_EQ(Spin(frame, "edtQty").Value(), 50);
  EXPECT_EQ(Spin(frame, "edtPrice").Value(), 10.25);
  const TUpdate own(feed.item);
  feed.tell(nullptr, &own);
}

TEST_F(Tracking, ListensToTheSpreadTableOfItsItemAlone) {
  TSpreadFeed spreads;
  auto& frame = Open();
  const std::vector<std::string> others{"02", "03"};
  const std::vector<std::string> own{"02", "01"};
  Host().NotifySpreadChanged(own);  // no symbol yet
  SetItem("0005", 0, {{73, "01"}});
  EnterSymbol(frame, "0005");
  SetItem("0005", 1, {});
  Host().NotifySpreadChanged(others);
  spreads.tell(nullptr, nullptr);
  EXPECT_EQ(Spin(frame, "edtQty").Value(), std::nullopt);
  Host().NotifySpreadChanged(own);
  EXPECT_EQ(Spin(frame, "edtQty").Value(), 400);
  EXPECT_EQ(Spin(frame, "edtPrice").Value(), 60.5);
  EXPECT_EQ(Told(), TTexts{});
}

}  // namespace
}  // namespace algo::tests
