#include "terminal/paper/paper_algos.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "text/text.h"

namespace algo::terminal::paper {

namespace {

// The smaller of two figures; 0 means not given.
double SmallerGiven(double left, double right) {
  if (left <= 0) return right;
  return right <= 0 ? left : std::min(left, right);
}

double GivenOr(double figure, double fallback) { return figure > 0 ? figure : fallback; }

// When an order begins.

bool AtOnce(const TStepView&) { return true; }

// Once the last price has reached the stop price; an order without one never begins.
bool AtStop(const TStepView& view) {
  if (view.plan.stopPrice <= 0) return false;
  return view.buy ? view.quote.last >= view.plan.stopPrice : view.quote.last <= view.plan.stopPrice;
}

// What an order wants.

double Remaining(const TStepView& view) { return view.quantity - view.filled; }

// How far the filled quantity lags behind the part `due` of what remained when the window began.
double Behind(const TStepView& view, double due) {
  return view.filledBefore + (view.quantity - view.filledBefore) * due - view.filled;
}

// Evenly over the window.
double EvenlyInTime(const TStepView& view) { return Behind(view, view.passed); }

// In waves at equal intervals. The first and the last may have a percentage of their own; the others share
// the remainder equally.
double InWaves(const TStepView& view) {
  constexpr double UsualWaves = 12;
  const double waves = std::max(1.0, std::floor(GivenOr(view.plan.waves, UsualWaves)));
  const double begun = std::min(waves, std::floor(view.passed * waves) + 1);
  if (begun == waves) return Remaining(view);

  const double open = view.plan.openPct / 100;
  const double close = view.plan.closePct / 100;
  const double others = waves - (open > 0 ? 1 : 0) - (close > 0 ? 1 : 0);
  const double each = others > 0 ? std::max(0.0, 1 - open - close) / others : 0;
  const double due = open > 0 ? open + (begun - 1) * each : begun * each;
  return Behind(view, std::min(1.0, due));
}

double StopQuantity(const TStepView& view) { return GivenOr(view.plan.stopQty, view.quantity) - view.filled; }

// Its part of what is on offer, if that is enough.
double PartOfOffer(const TStepView& view) {
  if (view.OnOffer() < view.plan.minQty) return 0;
  return view.OnOffer() * GivenOr(view.plan.servePct, 100) / 100;
}

// What an order may take.

double OfVolume(const TStepView& view, double percent) {
  return view.volume * GivenOr(SmallerGiven(view.plan.volPct, view.plan.maxVolPct), percent) / 100;
}

double OfClosingVolume(const TStepView& view, double percent) {
  return view.volume * GivenOr(SmallerGiven(view.plan.closePct, view.plan.maxVolPct), percent) / 100;
}

// The first threshold applies where the price is good, the second where it is bad.
double OfVolumeByPrice(const TStepView& view, double percent) {
  const TAlgoPlan& plan = view.plan;
  const auto isAsGood = [&](double price) {
    return view.buy ? view.quote.last <= price : view.quote.last >= price;
  };
  const auto isAsBad = [&](double price) {
    return view.buy ? view.quote.last >= price : view.quote.last <= price;
  };
  double part = GivenOr(plan.volPct, percent);
  if (plan.thresholdPrice1 > 0 && isAsGood(plan.thresholdPrice1)) {
    part = plan.thresholdPct1;
  } else if (plan.thresholdPrice2 > 0 && isAsBad(plan.thresholdPrice2)) {
    part = plan.thresholdPct2;
  }
  return view.volume * part / 100;
}

double OfOffer(const TStepView& view, double) { return view.OnOffer(); }

using enum TPhase;
using enum TPricing;

constexpr std::array<TPaperAlgo, 12> Algos{{
    {"TVOL", Day, Take, 10, AtOnce, Remaining, OfVolume},
    {"TVOL Threshold", Day, Take, 10, AtOnce, Remaining, OfVolumeByPrice},
    {"TWAP", Day, Take, 30, AtOnce, EvenlyInTime, OfVolume},
    {"VWAP", Day, Take, 30, AtOnce, InWaves, OfVolume},
    {"CLOSE", Closing, Take, 0, AtOnce, Remaining, OfOffer},
    {"OPEN", Opening, Take, 0, AtOnce, Remaining, OfOffer},
    {"ICEBERG", Day, Rest, 20, AtOnce, Remaining, OfVolume},
    {"STOP", Day, Take, 0, AtStop, StopQuantity, OfOffer},
    {"PEG", Day, Rest, 20, AtOnce, Remaining, OfVolume},
    {"MOC", Closing, Take, 25, AtOnce, Remaining, OfClosingVolume},
    {"SNIPER", Day, Take, 0, AtOnce, PartOfOffer, OfOffer},
    {"SHORT SELL", Day, Rest, 20, AtOnce, Remaining, OfVolume},
}};

}  // namespace

const TPaperAlgo* FindPaperAlgo(std::string_view code) {
  const auto row = std::find_if(Algos.begin(), Algos.end(), [code](const TPaperAlgo& algo) {
    return text::EqualNoCase(algo.code, code);
  });
  return row == Algos.end() ? nullptr : &*row;
}

}  // namespace algo::terminal::paper
