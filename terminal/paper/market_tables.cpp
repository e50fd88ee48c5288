#include "terminal/paper/market_tables.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <cmath>

#include "terminal/paper/csv_table.h"
#include "text/date_text.h"
#include "text/text.h"

namespace algo::terminal::paper {

namespace {

using TRow = TCsvTable::TRow;

constexpr std::array<std::string_view, 8> ExchangeColumns{
    "code", "name", "name_hant", "name_hans", "algo_types", "order_types", "open", "close"};
constexpr std::array<std::string_view, 3> SpreadColumns{"spread", "from", "tick"};
constexpr std::array<std::string_view, 11> InstrumentColumns{
    "symbol",         "exchange",         "name",         "name_hant", "name_hans", "lot", "spread",
    "previous_close", "daily_volatility", "daily_volume", "multiplier"};

TPaperName NameOf(const TRow& row) {
  return {row.Given("name"), row.Given("name_hant"), row.Given("name_hans")};
}

std::vector<std::string> ListOf(const TRow& row, std::string_view column) {
  std::vector<std::string> list;
  text::ForEachPiece(row.Given(column), ';',
                     [&](std::string_view piece) { list.emplace_back(text::Trim(piece)); });
  if (std::find(list.begin(), list.end(), "") != list.end()) {
    row.Fail(std::string(column) + " has an empty item; items with a semicolon between them are expected");
  }
  return list;
}

std::chrono::seconds TimeOf(const TRow& row, std::string_view column) {
  constexpr std::string_view SomeDay = "2000-01-01 ";
  const std::string& time = row.Text(column);
  const auto read = text::ParseDateTime(std::string(SomeDay) + time);
  if (!read || time.empty())
    row.Fail(std::string(column) + " is '" + time + "'; a time as 09:30:00 is expected");
  return *read - std::chrono::floor<std::chrono::days>(*read);
}

void AddExchange(TMarketTables& tables, const TRow& row) {
  TPaperExchange exchange{row.Given("code"),          NameOf(row),         ListOf(row, "algo_types"),
                          ListOf(row, "order_types"), TimeOf(row, "open"), TimeOf(row, "close")};
  if (exchange.close <= exchange.open) row.Fail("close is not after open; a later time is expected");
  for (const TPaperExchange& other : tables.exchanges) {
    if (other.code == exchange.code)
      row.Fail("exchange '" + other.code + "' is there already; one is expected");
  }
  tables.exchanges.push_back(std::move(exchange));
}

void AddSpreadStep(TMarketTables& tables, const TRow& row) {
  // Finer prices would be lost in rounding.
  constexpr double FinestTick = 1e-6;
  TSpreadTable& steps = tables.spreads[row.Given("spread")];
  const TSpreadStep step{row.NotNegative("from"), row.Positive("tick")};
  if (step.tick < FinestTick) row.Fail("tick is " + row.Text("tick") + "; 0.000001 or more is expected");
  if (steps.empty() && step.from != 0) row.Fail("the first from of a spread code is not 0; 0 is expected");
  if (!steps.empty() && step.from <= steps.back().from) {
    row.Fail("from is not above the one before; rising prices are expected");
  }
  steps.push_back(step);
}

void AddInstrument(TMarketTables& tables, const TRow& row) {
  TPaperInstrument instrument{row.Given("symbol"),
                              row.Given("exchange"),
                              NameOf(row),
                              row.Positive("lot"),
                              row.Given("spread"),
                              row.Positive("previous_close"),
                              row.NotNegative("daily_volatility"),
                              row.NotNegative("daily_volume"),
                              row.Positive("multiplier")};
  if (instrument.lot != std::floor(instrument.lot)) {
    row.Fail("lot is " + row.Text("lot") + "; a whole number is expected");
  }
  if (tables.IndexOf(instrument.symbol)) {
    row.Fail("symbol '" + instrument.symbol + "' is there already; one is expected");
  }
  const bool known = std::any_of(tables.exchanges.begin(), tables.exchanges.end(),
                                 [&](const auto& exchange) { return exchange.code == instrument.exchange; });
  if (!known)
    row.Fail("exchange '" + instrument.exchange + "' is unknown; a code of exchanges.csv is expected");
  const auto spread = tables.spreads.find(instrument.spreadCode);
  if (spread == tables.spreads.end()) {
    row.Fail("spread '" + instrument.spreadCode + "' is unknown; a code of spreads.csv is expected");
  }
  if (RoundToTick(spread->second, instrument.previousClose) != instrument.previousClose) {
    row.Fail("previous_close " + row.Text("previous_close") + " is off its tick; a price of spread '" +
             instrument.spreadCode + "' is expected");
  }
  tables.instruments.push_back(std::move(instrument));
}

template <class TAdd>
void ForEachRow(const std::filesystem::path& file, std::span<const std::string_view> columns, TAdd&& add) {
  const TCsvTable table(file.string(), ReadTableFile(file), columns);
  for (const TRow& row : table.Rows()) add(row);
}

}  // namespace

std::optional<std::size_t> TMarketTables::IndexOf(std::string_view symbol) const {
  const auto found = std::find_if(instruments.begin(), instruments.end(),
                                  [&](const auto& instrument) { return instrument.symbol == symbol; });
  if (found == instruments.end()) return std::nullopt;
  return static_cast<std::size_t>(found - instruments.begin());
}

const TSpreadTable& TMarketTables::SpreadOf(const TPaperInstrument& instrument) const {
  const auto found = spreads.find(instrument.spreadCode);
  assert(found != spreads.end());
  return found->second;
}

const TPaperExchange& TMarketTables::ExchangeOf(const TPaperInstrument& instrument) const {
  const auto found = std::find_if(exchanges.begin(), exchanges.end(),
                                  [&](const auto& exchange) { return exchange.code == instrument.exchange; });
  assert(found != exchanges.end());
  return *found;
}

TMarketTables LoadMarketTables(const std::filesystem::path& folder) {
  TMarketTables tables;
  ForEachRow(folder / "exchanges.csv", ExchangeColumns, [&](const TRow& row) { AddExchange(tables, row); });
  ForEachRow(folder / "spreads.csv", SpreadColumns, [&](const TRow& row) { AddSpreadStep(tables, row); });
  ForEachRow(folder / "instruments.csv", InstrumentColumns,
             [&](const TRow& row) { AddInstrument(tables, row); });
  return tables;
}

}  // namespace algo::terminal::paper
