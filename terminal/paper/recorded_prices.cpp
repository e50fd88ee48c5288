#include "terminal/paper/recorded_prices.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <utility>

#include "terminal/paper/csv_table.h"

namespace algo::terminal::paper {

namespace {

constexpr std::array<std::string_view, 6> Columns{"seconds", "symbol", "bid", "ask", "last", "volume"};

double PriceOn(const TSpreadTable& spread, const TCsvTable::TRow& row, std::string_view column) {
  const double price = row.Positive(column);
  if (RoundToTick(spread, price) != price) {
    row.Fail(std::string(column) + " " + row.Text(column) +
             " is off its tick; a price of its spread is expected");
  }
  return price;
}

}  // namespace

TRecording LoadRecording(const std::filesystem::path& file, const TMarketTables& tables) {
  const TCsvTable table(file.string(), ReadTableFile(file), Columns);
  TRecording recording;
  recording.reserve(table.Rows().size());
  for (const auto& row : table.Rows()) {
    const auto instrument = tables.IndexOf(row.Given("symbol"));
    if (!instrument) {
      row.Fail("symbol '" + row.Text("symbol") + "' is unknown; a symbol of instruments.csv is expected");
    }
    const TSpreadTable& spread = tables.SpreadOf(tables.instruments[*instrument]);
    const TRecordedQuote quote{row.NotNegative("seconds"),   *instrument,
                               PriceOn(spread, row, "bid"),  PriceOn(spread, row, "ask"),
                               PriceOn(spread, row, "last"), row.NotNegative("volume")};
    if (quote.ask <= quote.bid) row.Fail("ask is not above bid; a higher price is expected");
    if (!recording.empty() && quote.seconds < recording.back().seconds) {
      row.Fail("seconds are below those of the line before; rising times are expected");
    }
    recording.push_back(quote);
  }
  return recording;
}

TRecordedPrices::TRecordedPrices(TRecording recording, const TMarketTables& tables, double speed)
    : FRecording(std::move(recording)), FSpeed(speed) {
  assert(speed > 0);
  for (const TPaperInstrument& instrument : tables.instruments) FLots.push_back(instrument.lot);
}

void TRecordedPrices::Advance(double seconds, std::span<TQuote> quotes) {
  assert(quotes.size() == FLots.size());
  // Ten steps of a tenth add up to a little less than one; a line due at 1 is nevertheless due then.
  constexpr double Slack = 1e-6;
  FTime += seconds * FSpeed;
  for (; !AtEnd() && FRecording[FNext].seconds <= FTime + Slack; ++FNext) {
    const TRecordedQuote& line = FRecording[FNext];
    TQuote& quote = quotes[line.instrument];
    quote.bid = line.bid;
    quote.ask = line.ask;
    quote.last = line.last;
    quote.stepVolume += line.volume;
    quote.bidSize = std::max(line.volume, FLots[line.instrument]);
    quote.askSize = quote.bidSize;
  }
}

}  // namespace algo::terminal::paper
