#pragma once

// A small market whose every step is written by the test, and the orders in it.

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "terminal/host/order_status.h"
#include "terminal/paper/paper_engine.h"
#include "tests/terminal/host/event_notes.h"

namespace algo::terminal::paper::tests {

/// The folder of the tables that come with the project.
inline std::filesystem::path ExampleFolder() { return std::filesystem::path(ALGO_EXAMPLES) / "market"; }

/// One exchange, open from 09:30 to 16:00, and two instruments in lots of 100 and 400.
inline TMarketTables SampleTables() {
  TMarketTables tables;
  tables.exchanges.push_back({"HKG",
                              {"Hong Kong", "", ""},
                              {"TVOL"},
                              {"LO"},
                              std::chrono::minutes(9 * 60 + 30),
                              std::chrono::hours(16)});
  tables.spreads["S"] = {{0, 0.01}, {10, 0.02}, {20, 0.05}};
  tables.instruments.push_back({"AAA", "HKG", {"Sample A", "", ""}, 100, "S", 10, 0.02, 23'400'000, 1});
  tables.instruments.push_back({"BBB", "HKG", {"Sample B", "", ""}, 400, "S", 60.5, 0.03, 9'360'000, 1});
  return tables;
}

/// The market-data item of the symbol in the installed host.
inline const host::TMarketDataItem& ItemOf(std::string_view symbol) {
  return *host::TCustomSubscribeAdapter::GetInstance().Subscribe(symbol, host::PriceDataSet, true);
}

/// The moment of the tests' day at which the clock shows "HH:MM:SS".
inline text::TDateTime At(std::string_view time) {
  return text::ParseDateTime("2026-11-20 " + std::string(time)).value();
}

/// Prices that the test sets before each step.
class TScriptedPrices final : public TPriceSource {
 public:
  explicit TScriptedPrices(std::vector<TQuote>& next) : FNext(next) {}
  void Advance(double /*seconds*/, std::span<TQuote> quotes) override {
    for (std::size_t i = 0; i < quotes.size(); ++i) quotes[i] = FNext[i];
  }

 private:
  std::vector<TQuote>& FNext;
};

/// Collects what a journal records, a line each.
class TNotingStorage final : public TOrderStorage {
 public:
  void StoreOrder(const TOrderEvent& event, const host::TCustomClientOrder& order) override {
    if (failing) throw EError("the disk is full");
    StoreEvent(event, order);
  }
  void StoreEvent(const TOrderEvent& event, const host::TCustomClientOrder& order) override {
    lines.push_back(order.key + ": " + event.who + " " + event.what + " " + event.answer);
  }

  bool failing = false;
  std::vector<std::string> lines;
};

/// The order as a sale.
inline host::TCustomClientOrder Selling(host::TCustomClientOrder order) {
  order.side = host::SideSell;
  return order;
}

/// The order with that price limit.
inline host::TCustomClientOrder Limited(host::TCustomClientOrder order, double price) {
  order.price = price;
  return order;
}

class TPaperTest : public testing::Test {
 protected:
  /// An order for 1,000 AAA as a trader would send it.
  static host::TCustomClientOrder Ordered(std::string text) {
    host::TCustomClientOrder order;
    order.symbol = "AAA";
    order.exchange = "HKG";
    order.quantity = 1000;
    order.SetTextProperty(host::AlgoTextProperty, std::move(text));
    return order;
  }

  /// Sends the order; returns it as it stands in the store.
  const host::TCustomClientOrder& Send(host::TCustomClientOrder order) {
    order.key = order.orderNo = host.Orders().NextFreeKey();
    host.Journal().Record({"trader", "new", "accepted"}, order);
    return *host.Orders().Find(order.key);
  }
  const host::TCustomClientOrder& Send(std::string text) { return Send(Ordered(std::move(text))); }

  const host::TCustomClientOrder& SendChild(const host::TCustomClientOrder& parent, std::string text,
                                            double quantity) {
    host::TCustomClientOrder child = Ordered(std::move(text));
    child.quantity = quantity;
    child.parentNo = parent.orderNo;
    child.flags = host::WorkChildMark;
    return Send(child);
  }

  const host::TCustomClientOrder& SendParent(double quantity) {
    host::TCustomClientOrder parent = Ordered("");
    parent.quantity = quantity;
    parent.flags = host::WorkMark | host::WorkParentMark;
    return Send(parent);
  }

  /// Changes an order as a form does: on a copy.
  void Change(const host::TCustomClientOrder& changed) {
    host.Journal().Record({"trader", "change", "accepted"}, changed);
  }

  /// What AAA shows from the next step on.
  void Quote(double bid, double ask, double last, double volume, double bidSize = 10000,
             double askSize = 10000) {
    next[0].bid = bid;
    next[0].ask = ask;
    next[0].last = last;
    next[0].stepVolume = volume;
    next[0].bidSize = bidSize;
    next[0].askSize = askSize;
  }

  /// A step of so many seconds that ends at that time of day.
  void Step(std::string_view end, double seconds = 60) {
    market.Advance(seconds);
    engine.Advance(At(end), seconds);
  }

  static std::string Average(const host::TCustomClientOrder& order) {
    return order.NamedText(AveragePriceProperty);
  }

  terminal::tests::TEventNotes notes;
  TNotingStorage storage;
  TMemoryHost host{notes, storage};
  std::vector<TQuote> next{2};
  TPaperMarket market{host, SampleTables(), std::make_unique<TScriptedPrices>(next)};
  TPaperEngine engine{host, market, 1};
};

}  // namespace algo::terminal::paper::tests
