// What it costs to compose the longest parameter text and to check an order, beside the least that the same
// bytes can cost: code that knows the pieces beforehand and writes them one after the other.

#include <benchmark/benchmark.h>

#include <array>
#include <atomic>
#include <charconv>
#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <new>
#include <string>
#include <string_view>

#include "model/parameter_text.h"
#include "model/rules.h"
#include "text/date_text.h"

namespace {

std::atomic<std::int64_t> Allocations = 0;

}  // namespace

// Not inlined: the compiler takes the inner calls for a mismatched pair otherwise.
[[gnu::noinline]] void* operator new(std::size_t size) {
  Allocations.fetch_add(1, std::memory_order_relaxed);
  void* memory = std::malloc(size == 0 ? 1 : size);
  if (memory == nullptr) throw std::bad_alloc();
  return memory;
}
[[gnu::noinline]] void operator delete(void* memory) noexcept { std::free(memory); }
[[gnu::noinline]] void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }

namespace {

using algo::model::TParam;
using algo::text::TDateTime;

// The entries of an order with every field of the algorithm of the most pieces.
struct TEntries {
  TDateTime start{std::chrono::seconds(1705311000)};
  TDateTime end{std::chrono::seconds(1705330800)};
  double joinThr = 1000;
  double showQty = 500;
  double randTimeOut = 30.25;
  double joinQty = 200;
  double diffPct = -5.5;
  double tickDiff = 2;
  double timeOut = 60;
  double maxVolPct = 20;
  double wPx = 10.55;
  double minOrdAmt = 50000;
};

algo::model::TParamValues Values(const TEntries& entries) {
  algo::model::TParamValues values;
  values.SetTime(TParam::STime, entries.start);
  values.SetTime(TParam::ETime, entries.end);
  values.SetChoice(TParam::Closing, 1);
  values.SetNumber(TParam::JoinThr, entries.joinThr);
  values.SetChoice(TParam::Join, 1);
  values.SetChoice(TParam::Iceberg, 0);
  values.SetNumber(TParam::ShowQty, entries.showQty);
  values.SetNumber(TParam::RandTimeOut, entries.randTimeOut);
  values.SetNumber(TParam::JoinQty, entries.joinQty);
  values.SetNumber(TParam::DiffPct, entries.diffPct);
  values.SetNumber(TParam::TickDiff, entries.tickDiff);
  values.SetNumber(TParam::TimeOut, entries.timeOut);
  values.SetChoice(TParam::Ref, 1);
  values.SetNumber(TParam::MaxVolPct, entries.maxVolPct);
  values.SetChoice(TParam::Style, 1);
  values.SetNumber(TParam::WPx, entries.wPx);
  values.SetNumber(TParam::MinOrdAmt, entries.minOrdAmt);
  return values;
}

std::string StraightLine(const TEntries& entries) {
  std::array<char, 1024> buffer;
  char* end = buffer.data();
  const auto put = [&end](std::string_view text) {
    std::memcpy(end, text.data(), text.size());
    end += text.size();
  };
  const auto number = [&](double value) {
    end = std::to_chars(end, buffer.data() + buffer.size(), value, std::chars_format::fixed).ptr;
  };
  const auto digits = [&end](std::int32_t value, std::int32_t count) {
    for (std::int32_t i = count; i-- > 0; value /= 10) end[i] = static_cast<char>('0' + value % 10);
    end += count;
  };
  const auto time = [&](TDateTime value) {
    const auto day = std::chrono::floor<std::chrono::days>(value);
    const std::chrono::year_month_day date(day);
    const std::chrono::hh_mm_ss clock(value - day);
    digits(static_cast<std::int32_t>(date.year()), 4);
    digits(static_cast<std::int32_t>(static_cast<std::uint32_t>(date.month())), 2);
    digits(static_cast<std::int32_t>(static_cast<std::uint32_t>(date.day())), 2);
    put("-");
    digits(static_cast<std::int32_t>(clock.hours().count()), 2);
    put(":");
    digits(static_cast<std::int32_t>(clock.minutes().count()), 2);
    put(":");
    digits(static_cast<std::int32_t>(clock.seconds().count()), 2);
  };
  put("TMLO:AlgoId=PEG,STime=");
  time(entries.start);
  put(",ETime=");
  time(entries.end);
  put(",Closing=1,JoinThr=");
  number(entries.joinThr);
  put(",Join=1,Iceberg=0,ShowQty=");
  number(entries.showQty);
  put(",RandTimeout=");
  number(entries.randTimeOut);
  put(",JoinQty=");
  number(entries.joinQty);
  put(",DiffPct=");
  number(entries.diffPct);
  put(",TickDiff=");
  number(entries.tickDiff);
  put(",Timeout=");
  number(entries.timeOut);
  put(",Ref=2,MaxVolPct=");
  number(entries.maxVolPct);
  put(",Closing=1,Style=5,WPx=");
  number(entries.wPx);
  put(",MinOrdAmt=");
  number(entries.minOrdAmt);
  put(";");
  return {buffer.data(), static_cast<std::size_t>(end - buffer.data())};
}

template <class TRun>
void Measure(benchmark::State& state, TRun run) {
  const std::int64_t before = Allocations;
  for ([[maybe_unused]] auto turn : state) run();
  state.counters["allocations"] =
      benchmark::Counter(static_cast<double>(Allocations - before), benchmark::Counter::kAvgIterations);
}

void ComposeLongest(benchmark::State& state) {
  const auto values = Values({});
  const auto* row = algo::model::FindAlgoByCode("PEG");
  if (algo::model::ComposeText(false, row->code, row, values) != StraightLine({})) {
    state.SkipWithError("the two texts differ");
  }
  Measure(state, [&] { benchmark::DoNotOptimize(algo::model::ComposeText(false, row->code, row, values)); });
}
BENCHMARK(ComposeLongest);

void ComposeInAStraightLine(benchmark::State& state) {
  TEntries entries;
  Measure(state, [&] {
    benchmark::DoNotOptimize(entries);
    benchmark::DoNotOptimize(StraightLine(entries));
  });
}
BENCHMARK(ComposeInAStraightLine);

// Both in turn, so that whatever else the machine does weighs on both alike; the ratio is the number to look
// at.
void ComposeAgainstTheStraightLine(benchmark::State& state) {
  constexpr std::int32_t Turns = 1000;
  TEntries entries;
  const auto values = Values(entries);
  const auto* row = algo::model::FindAlgoByCode("PEG");
  std::clock_t composed = 0;
  std::clock_t straight = 0;
  for ([[maybe_unused]] auto turn : state) {
    const auto start = std::clock();
    for (std::int32_t i = 0; i < Turns; ++i) {
      benchmark::DoNotOptimize(algo::model::ComposeText(false, row->code, row, values));
    }
    const auto middle = std::clock();
    for (std::int32_t i = 0; i < Turns; ++i) {
      benchmark::DoNotOptimize(entries);
      benchmark::DoNotOptimize(StraightLine(entries));
    }
    composed += middle - start;
    straight += std::clock() - middle;
  }
  state.counters["ratio"] = static_cast<double>(composed) / static_cast<double>(straight);
}
BENCHMARK(ComposeAgainstTheStraightLine);

void SplitAndDecode(benchmark::State& state) {
  const std::string text = StraightLine({});
  Measure(state, [&] {
    const auto split = algo::model::SplitText(text);
    for (const auto& row : algo::model::ParamRows()) {
      const auto value = algo::model::PieceValue(split.pieces, row.key);
      if (value) benchmark::DoNotOptimize(algo::model::DecodeValue(row.param, *value));
    }
  });
}
BENCHMARK(SplitAndDecode);

void ValidateOrder(benchmark::State& state) {
  const auto values = Values({});
  const auto* row = algo::model::FindAlgoByCode("PEG");
  const algo::model::TNewOrder order{
      0, "A1", [](std::string_view account) { return account == "A1"; }, "0005", true, 100, true};
  Measure(state, [&] {
    benchmark::DoNotOptimize(algo::model::CheckCommonRules(order));
    benchmark::DoNotOptimize(algo::model::CheckTimes(values));
    benchmark::DoNotOptimize(algo::model::CheckAlgoRules(*row, values));
  });
}
BENCHMARK(ValidateOrder);

}  // namespace
