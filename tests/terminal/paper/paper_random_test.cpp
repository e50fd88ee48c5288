// What must hold for any order in any market: checked with a thousand random ones by what the journal
// records.

#include <cmath>
#include <map>

#include "terminal/paper/random.h"
#include "tests/terminal/paper/sample_market.h"
#include "text/number_text.h"

namespace algo::terminal::paper::tests {
namespace {

struct TReportedFill {
  std::string key;
  double quantity = 0;
  double price = 0;
};

/// Collects the fills, parsed from the text in which they are reported.
class TFillStorage final : public TOrderStorage {
 public:
  void StoreOrder(const TOrderEvent& event, const host::TCustomClientOrder& order) override {
    log += order.key + " " + event.who + " " + event.what + " " + event.answer + " " +
           text::PlainNumber(order.filled) + " " + order.NamedText("AveragePrice") + " " +
           std::to_string(order.status) + "\n";
    const std::size_t at = event.answer.find(" at ");
    if (event.what != "fill" || at == std::string::npos) return;
    fills.push_back({order.key, text::ParseNumber(event.answer.substr(0, at)).value(),
                     text::ParseNumber(event.answer.substr(at + 4)).value()});
  }

  std::string log;
  std::vector<TReportedFill> fills;  ///< since they were last cleared
};

double Between(TRandom& random, double least, double most) {
  return least + std::floor(random.Uniform() * (most - least + 1));
}

bool Perhaps(TRandom& random) { return random.Uniform() < 0.5; }

std::string Clock(double minutesAfterTen) {
  const text::TDateTime time = At("10:00:00") + std::chrono::minutes(static_cast<int>(minutesAfterTen));
  std::string clock(text::CompactDateTimeLength, ' ');
  text::WriteCompactDateTime(time, clock.data());
  return clock;
}

/// An order with all of its bounds.
struct TBoundOrder {
  host::TCustomClientOrder order;
  double percent = 0;  ///< of the volume; 0 if the algorithm takes what is on offer
  double limit = 0;
  text::TDateTime start;
  text::TDateTime end;
  double shown = 0;  ///< the most in one step; 0 for no bound
};

TBoundOrder AnyOrder(TRandom& random, const TMarketTables& tables) {
  static const std::vector<std::string> byVolume{"TVOL", "TWAP", "VWAP", "ICEBERG", "PEG", "TVOL Threshold"};
  static const std::vector<std::string> byOffer{"STOP", "SNIPER"};
  const auto pick = [&](const auto& list) {
    return list[static_cast<std::size_t>(Between(random, 0, static_cast<double>(list.size()) - 1))];
  };
  TBoundOrder bound;
  const TPaperInstrument instrument = pick(tables.instruments);
  const double reference = instrument.previousClose;
  bound.order.symbol = instrument.symbol;
  bound.order.side = Perhaps(random) ? host::SideBuy : host::SideSell;
  bound.order.quantity = Between(random, 1, 100'000);
  if (Perhaps(random)) bound.order.price = reference * (0.995 + 0.01 * random.Uniform());
  bound.limit = bound.order.price;

  const bool goesByVolume = random.Uniform() < 0.75;
  const std::string algo = pick(goesByVolume ? byVolume : byOffer);
  const double start = Between(random, 0, 30);
  const double end = start + Between(random, 1, 30);
  bound.start = At("10:00:00") + std::chrono::minutes(static_cast<int>(start));
  bound.end = At("10:00:00") + std::chrono::minutes(static_cast<int>(end));
  std::string text = "TMLO:AlgoId=" + algo + ",STime=" + Clock(start) + ",ETime=" + Clock(end);
  if (goesByVolume) {
    bound.percent = Between(random, 1, 60);
    const bool calledMaximum = algo != "TVOL" && algo != "TVOL Threshold";
    text += (calledMaximum ? ",MaxVolPct=" : ",VolPct=") + text::PlainNumber(bound.percent);
  }
  if (algo == "ICEBERG" || algo == "PEG") {
    const double lots = Between(random, 1, 9);
    bound.shown = lots * instrument.lot;
    text += ",ShowQty=" + text::PlainNumber(bound.shown);
  }
  if (algo == "PEG") {
    text += ",Ref=" + text::PlainNumber(Between(random, 1, 11)) +
            ",TickDiff=" + text::PlainNumber(Between(random, -3, 3));
  }
  if (algo == "VWAP") text += ",Waves=" + text::PlainNumber(Between(random, 1, 9)) + ",OpenPct=30";
  if (algo == "STOP") text += ",StopLossPx=" + text::PlainNumber(reference);
  if (Perhaps(random)) {
    const double limit = reference * (0.995 + 0.01 * random.Uniform());
    text += ",WPx=" + text::PlainNumber(limit);
    const bool buy = bound.order.side == host::SideBuy;
    const bool alone = bound.limit == 0;
    bound.limit = alone ? limit : buy ? std::min(bound.limit, limit) : std::max(bound.limit, limit);
  }
  bound.order.SetTextProperty(440, text + ";");
  return bound;
}

/// One random market of an hour with one random order in it, checked against its bounds after each step.
class TRun {
 public:
  explicit TRun(std::uint64_t seed) : FRandom(seed), FMarket(FHost, SampleTables(), seed) {}

  void Play() {
    TBoundOrder bound = AnyOrder(FRandom, FMarket.Tables());
    bound.order.key = bound.order.orderNo = "X";
    FHost.Journal().Record({"trader", "new", "accepted"}, bound.order);
    const double cancelAt = Between(FRandom, 0, 240);
    const double changeAt = Between(FRandom, 0, 240);
    for (int step = 1; step <= 122; ++step) {
      const text::TDateTime now = At("10:00:00") + std::chrono::seconds(30 * step);
      FMarket.Advance(30);
      FEngine.Advance(now, 30);
      ASSERT_NO_FATAL_FAILURE(CheckStep(bound, now));
      if (step == cancelAt) FEngine.Cancel("X", "trader");
      if (step == changeAt) ChangeQuantity();
    }
    EXPECT_TRUE(IsDone(Order().status)) << Order().status;
  }

  bool Traded() const { return FFilled > 0; }

 private:
  const host::TCustomClientOrder& Order() { return *FHost.Orders().Find("X"); }

  void ChangeQuantity() {
    host::TCustomClientOrder changed(Order());
    changed.quantity = Between(FRandom, 1, 100'000);
    FHost.Journal().Record({"trader", "change", "accepted"}, changed);
  }

  void CheckStep(const TBoundOrder& bound, text::TDateTime now) {
    const auto index = FMarket.Tables().IndexOf(bound.order.symbol).value();
    const double lot = FMarket.Tables().instruments[index].lot;
    const TQuote& quote = FMarket.Quote(index);
    const bool buy = bound.order.side == host::SideBuy;
    if (now > bound.start && now <= bound.end) FVolume += quote.stepVolume;
    ASSERT_LE(FStorage.fills.size(), 1u);
    for (const TReportedFill& fill : FStorage.fills) {
      FFilled += fill.quantity;
      FValue += fill.quantity * fill.price;
      ASSERT_GT(now, bound.start);
      ASSERT_LE(now, bound.end);
      ASSERT_GT(fill.quantity, 0);
      ASSERT_EQ(std::fmod(fill.quantity, lot), 0);
      if (bound.limit > 0) {
        ASSERT_TRUE(buy ? fill.price <= bound.limit : fill.price >= bound.limit) << fill.price;
      }
      if (bound.percent > 0) {
        ASSERT_LE(FFilled, FVolume * bound.percent / 100 + 1e-6);
      } else {
        ASSERT_LE(fill.quantity, buy ? quote.askSize : quote.bidSize);
      }
      if (bound.shown > 0) {
        ASSERT_LE(fill.quantity, bound.shown);
      }
    }
    FStorage.fills.clear();
    ASSERT_EQ(Order().filled, FFilled);
    ASSERT_LE(Order().filled, Order().quantity);
    if (FFilled > 0) {
      ASSERT_NEAR(text::ParseNumber(Order().NamedText("AveragePrice")).value(), FValue / FFilled, 1e-9);
    }
  }

  terminal::tests::TEventNotes FNotes;
  TFillStorage FStorage;
  TMemoryHost FHost{FNotes, FStorage};
  TRandom FRandom;
  TPaperMarket FMarket;
  TPaperEngine FEngine{FHost, FMarket, 1};
  double FVolume = 0;
  double FFilled = 0;
  double FValue = 0;
};

TEST(RandomOrders, KeepLimitVolumeLotsTimesAndQuantity) {
  int traded = 0;
  for (std::uint64_t seed = 0; seed < 1000; ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    TRun run(seed);
    ASSERT_NO_FATAL_FAILURE(run.Play());
    if (run.Traded()) ++traded;
  }
  EXPECT_GT(traded, 500) << "or these runs say little";
}

/// Everything that the journal records in a day of random orders, changes and cancels.
std::string DayOf(std::uint64_t seed) {
  terminal::tests::TEventNotes notes;
  TFillStorage storage;
  TMemoryHost host(notes, storage);
  TPaperMarket market(host, LoadMarketTables(ExampleFolder()), seed);
  TPaperEngine engine(host, market, seed);
  TRandom random(seed);
  for (int second = 0; second <= 6 * 3600 + 1800; ++second) {
    if (second % 300 == 0) {
      host::TCustomClientOrder order = AnyOrder(random, market.Tables()).order;
      order.key = order.orderNo = host.Orders().NextFreeKey();
      host.Journal().Record({"trader", "new", "accepted"}, order);
    }
    if (second % 1700 == 0) engine.Cancel("N" + std::to_string(second / 600), "trader");
    market.Advance(1);
    engine.Advance(At("09:30:00") + std::chrono::seconds(second), 1);
  }
  return storage.log;
}

TEST(RandomOrders, AWholeDayIsTheSameForTheSameSeed) {
  const std::string day = DayOf(11);
  EXPECT_NE(day.find(" paper fill "), std::string::npos);
  EXPECT_NE(day.find(" paper expire "), std::string::npos);
  EXPECT_NE(day.find(" trader cancel "), std::string::npos);
  EXPECT_EQ(day, DayOf(11));
  EXPECT_NE(day, DayOf(12));
}

}  // namespace
}  // namespace algo::terminal::paper::tests
