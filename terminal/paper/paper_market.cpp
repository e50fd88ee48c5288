#include "terminal/paper/paper_market.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <span>
#include <utility>

#include "terminal/paper/generated_prices.h"
#include "terminal/paper/market_fields.h"
#include "text/number_text.h"

namespace algo::terminal::paper {

namespace {

struct TPublishedFigure {
  std::int32_t field;
  double TQuote::*figure;
};

// The figures that change during the day. A figure of 0 does not exist yet.
constexpr std::array<TPublishedFigure, 9> Figures{{
    {host::PriceField, &TQuote::last},
    {field::Bid, &TQuote::bid},
    {field::Ask, &TQuote::ask},
    {field::BidSize, &TQuote::bidSize},
    {field::AskSize, &TQuote::askSize},
    {field::Volume, &TQuote::volume},
    {field::Open, &TQuote::open},
    {field::High, &TQuote::high},
    {field::Low, &TQuote::low},
}};

TQuote FirstQuote(const TMarketTables& tables, const TPaperInstrument& instrument) {
  TQuote quote;
  quote.bid = instrument.previousClose;
  quote.ask = MoveTicks(tables.SpreadOf(instrument), quote.bid, 1);
  quote.bidSize = instrument.lot;
  quote.askSize = instrument.lot;
  quote.last = instrument.previousClose;
  return quote;
}

void CountTrades(TQuote& quote) {
  if (quote.stepVolume <= 0) return;
  quote.volume += quote.stepVolume;
  if (quote.open == 0) quote.open = quote.high = quote.low = quote.last;
  quote.high = std::max(quote.high, quote.last);
  quote.low = std::min(quote.low, quote.last);
}

}  // namespace

TPaperMarket::TPaperMarket(TMemoryHost& host, TMarketTables tables, std::uint64_t seed)
    : TPaperMarket(host, std::move(tables), nullptr) {
  FPrices = std::make_unique<TGeneratedPrices>(FTables, seed);
}

TPaperMarket::TPaperMarket(TMemoryHost& host, TMarketTables tables, std::unique_ptr<TPriceSource> prices)
    : FHost(host), FTables(std::move(tables)), FPrices(std::move(prices)) {
  for (const TPaperInstrument& instrument : FTables.instruments) {
    FHost.Data().instruments[instrument.symbol] = {instrument.symbol, text::PlainNumber(instrument.lot)};
    FQuotes.push_back(FirstQuote(FTables, instrument));
    PublishFirst(instrument, FQuotes.back());
  }
  FPublished = FQuotes;
}

void TPaperMarket::Advance(double seconds) {
  assert(seconds >= 0);
  for (TQuote& quote : FQuotes) quote.stepVolume = 0;
  FPrices->Advance(seconds, FQuotes);
  for (TQuote& quote : FQuotes) CountTrades(quote);
  // Published only after all have moved, so that listeners see the market at one moment.
  for (std::size_t i = 0; i < FQuotes.size(); ++i) {
    const TQuote before = std::exchange(FPublished[i], FQuotes[i]);
    PublishChanges(FTables.instruments[i], FQuotes[i], before);
  }
}

const TQuote* TPaperMarket::Quote(std::string_view symbol) const {
  const auto index = FTables.IndexOf(symbol);
  return index ? &FQuotes[*index] : nullptr;
}

void TPaperMarket::PublishFirst(const TPaperInstrument& instrument, const TQuote& quote) {
  const std::string close = text::PlainNumber(instrument.previousClose);
  TFieldChanges fields{
      {host::SecondPriceField, close},
      {host::ReferencePriceField, close},
      {host::LotSizeField, text::PlainNumber(instrument.lot)},
      {host::SpreadCodeField, instrument.spreadCode},
      {field::Name, instrument.name.english},
      {field::NameTraditional, instrument.name.traditional},
      {field::NameSimplified, instrument.name.simplified},
      {field::Exchange, instrument.exchange},
  };
  if (instrument.multiplier != 1) {
    fields[host::PriceMultiplierField] = text::PlainNumber(instrument.multiplier);
  }
  for (const auto& [id, figure] : Figures) {
    if (quote.*figure != 0) fields[id] = text::PlainNumber(quote.*figure);
  }
  FHost.SetMarket(instrument.symbol, host::ItemLive, fields, TMarketNotice::Item);
}

void TPaperMarket::PublishChanges(const TPaperInstrument& instrument, const TQuote& now,
                                  const TQuote& before) {
  std::array<char, Figures.size() * text::PlainNumberCapacity> digits;
  std::array<TFieldText, Figures.size()> changes;
  std::size_t count = 0;
  char* end = digits.data();
  for (const auto& [id, figure] : Figures) {
    if (now.*figure == before.*figure) continue;
    const std::size_t length = text::WritePlainNumber(now.*figure, end);
    changes[count++] = {id, std::string_view(end, length)};
    end += length;
  }
  if (count > 0) FHost.SetMarket(instrument.symbol, std::span(changes).first(count));
}

}  // namespace algo::terminal::paper
