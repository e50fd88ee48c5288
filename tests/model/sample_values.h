#pragma once

// Values for tests: one in range for every parameter, so that an algorithm's whole text shows.

#include <chrono>
#include <cstdint>

#include "model/values.h"

namespace algo::model {

inline text::TDateTime At(std::int32_t hour, std::int32_t minute) {
  using std::chrono::year;
  return std::chrono::local_days(year(2024) / 1 / 15) + std::chrono::hours(hour) +
         std::chrono::minutes(minute);
}

/// Every parameter given, every choice chosen, every number written by whichever algorithm has it.
inline TParamValues EverythingGiven() {
  TParamValues values;
  values.SetTime(TParam::STime, At(9, 30));
  values.SetTime(TParam::ETime, At(15, 0));
  values.SetNumber(TParam::VolPct, 20);
  values.SetNumber(TParam::WPx, 10.5);
  values.SetChoice(TParam::Opening, 1);
  values.SetChoice(TParam::Closing, 0);
  values.SetNumber(TParam::MinOrdAmt, 50000);
  values.SetChoice(TParam::Style, 1);
  values.SetNumber(TParam::ThrPx1, 10.2);
  values.SetNumber(TParam::ThrVolPct1, 30);
  values.SetNumber(TParam::ThrPx2, 10.8);
  values.SetNumber(TParam::ThrVolPct2, 5);
  values.SetNumber(TParam::MaxVolPct, 25);
  values.SetNumber(TParam::OpenPct, 11);
  values.SetNumber(TParam::ClosePct, 12.25);
  values.SetNumber(TParam::Slices, 13);
  values.SetChoice(TParam::Func, 2);
  values.SetNumber(TParam::ShowQty, 2000);
  values.SetNumber(TParam::MaxShowQty, 5000);
  values.SetNumber(TParam::RandPct, 21);
  values.SetNumber(TParam::ReloadPct, 50);
  values.SetNumber(TParam::StopLossPx, 9.8);
  values.SetNumber(TParam::StopQty, 4000);
  values.SetNumber(TParam::JoinThr, 1000);
  values.SetChoice(TParam::Join, 1);
  values.SetChoice(TParam::Iceberg, 0);
  values.SetNumber(TParam::RandTimeOut, 31);
  values.SetNumber(TParam::JoinQty, 200);
  values.SetNumber(TParam::DiffPct, -5);
  values.SetNumber(TParam::TickDiff, 2);
  values.SetNumber(TParam::TimeOut, 60);
  values.SetChoice(TParam::Ref, 8);
  values.SetNumber(TParam::MinQty, 700);
  values.SetNumber(TParam::ServePct, 40);
  values.SetChoice(TParam::AccuVol, 1);
  values.SetChoice(TParam::CloseSim, 1);
  values.SetChoice(TParam::AllInAuc, 1);
  return values;
}

}  // namespace algo::model
