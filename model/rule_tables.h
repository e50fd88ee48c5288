#pragma once

// The rules of each algorithm, in the order in which they are applied. The bounds differ between the
// algorithms on purpose: the volume percent ends at 80 but the maximum one at 75 or 80; the threshold
// algorithm lets 0 pass as worst price, minimum amount and second threshold, every other one refuses it.

#include <array>

#include "model/algos.h"

namespace algo::model::rule_tables {

using enum TParam;
using enum TComparison;

constexpr TRule Fails(TParam param, TTest test, std::string_view message) {
  return {param, test, {}, message};
}
constexpr TRule Fails(TParam param, TTest first, TTest second, std::string_view message) {
  return {param, first, second, message};
}

inline constexpr std::array TVOL{Fails(VolPct, TTest{Equal, 0}, "Res_VolPctMiss"),
                                 Fails(VolPct, TTest{Below, 0}, TTest{AtLeast, 80}, "Res_VolumePctFalse"),
                                 Fails(WPx, TTest{AtMost, 0}, "Res_WpxFalse"),
                                 Fails(MinOrdAmt, TTest{AtMost, 0}, "Res_MinordamtFalse")};

inline constexpr std::array TVOLThreshold{
    Fails(VolPct, TTest{Equal, 0}, "Res_VolPctMiss"),
    Fails(VolPct, TTest{Below, 0}, TTest{AtLeast, 80}, "Res_VolumePctFalse"),
    Fails(WPx, TTest{Below, 0}, "Res_WpxFalse"),
    Fails(MinOrdAmt, TTest{Below, 0}, "Res_MinordamtFalse"),
    Fails(ThrPx1, TTest{Equal, 0}, "Res_ThrPx1Miss"),
    Fails(ThrPx1, TTest{Below, 0}, "Res_ThrPx1False"),
    Fails(ThrVolPct1, TTest{Equal, 0}, "Res_ThrVolPct1Miss"),
    Fails(ThrVolPct1, TTest{Below, 0}, TTest{AtLeast, 100}, "Res_ThrVolPct1False"),
    Fails(ThrPx2, TTest{Below, 0}, "Res_Thrpx2False"),
    Fails(ThrVolPct2, TTest{Below, 0}, TTest{AtLeast, 100}, "Res_ThrVolPct2False")};

inline constexpr std::array TWAP{Fails(WPx, TTest{AtMost, 0}, "Res_WpxFalse"),
                                 Fails(MinOrdAmt, TTest{AtMost, 0}, "Res_MinordamtFalse"),
                                 Fails(MaxVolPct, TTest{AtMost, 0}, TTest{AtLeast, 75}, "Res_MaxVolPctFalse"),
                                 Fails(Slices, TTest{AtMost, 0}, "Res_SlicesFalse")};

inline constexpr std::array VWAP{Fails(WPx, TTest{AtMost, 0}, "Res_WpxFalse"),
                                 Fails(MinOrdAmt, TTest{AtMost, 0}, "Res_MinordamtFalse"),
                                 Fails(MaxVolPct, TTest{AtMost, 0}, TTest{AtLeast, 75}, "Res_MaxVolPctFalse"),
                                 Fails(OpenPct, TTest{AtMost, 0}, TTest{AtLeast, 100}, "Res_OpenPctFalse"),
                                 Fails(ClosePct, TTest{AtMost, 0}, TTest{AtLeast, 100}, "Res_ClosePctFalse"),
                                 Fails(Slices, TTest{AtMost, 0}, "Res_SlicesFalse")};

inline constexpr std::array ICEBERG{
    Fails(MinOrdAmt, TTest{AtMost, 0}, "Res_MinordamtFalse"),
    Fails(ShowQty, TTest{AtMost, 0}, "Res_ShowQtyFalse"),
    Fails(MaxShowQty, TTest{AtMost, 0}, "Res_MaxShowQtyFalse"),
    Fails(RandPct, TTest{AtLeast, 100}, TTest{AtMost, 0}, "Res_RandPctFalse"),
    Fails(ReloadPct, TTest{AtMost, 0}, TTest{AtLeast, 100}, "Res_ReloadPctFalse"),
    Fails(WPx, TTest{AtMost, 0}, "Res_WpxFalse")};

inline constexpr std::array STOP{Fails(StopLossPx, TTest{Equal, 0}, "Res_StopLossPxMiss"),
                                 Fails(StopLossPx, TTest{Below, 0}, "Res_StopLossFalse"),
                                 Fails(StopQty, TTest{Below, 0}, "Res_StopQtyFalse")};

inline constexpr std::array PEG{
    Fails(MaxVolPct, TTest{AtMost, 0}, TTest{AtLeast, 80}, "Res_MaxVolPctFalse"),
    Fails(JoinThr, TTest{AtMost, 0}, "Res_JoinThrFalse"),
    Fails(ShowQty, TTest{AtMost, 0}, "Res_ShowQtyFalse"),
    Fails(RandTimeOut, TTest{AtLeast, 100}, TTest{AtMost, 0}, "Res_RandTimeoutFalse"),
    Fails(JoinQty, TTest{AtMost, 0}, "Res_JoinQtyFalse"),
    Fails(DiffPct, TTest{AtMost, -100}, TTest{AtLeast, 100}, "Res_DiffPctFalse"),
    Fails(TickDiff, TTest{AtMost, -500}, TTest{AtLeast, 500}, "Res_TickDiffFalse"),
    Fails(TimeOut, TTest{AtMost, 0}, "Res_TimeoutFalse"),
    Fails(WPx, TTest{AtMost, 0}, "Res_WpxFalse"),
    Fails(MinOrdAmt, TTest{AtMost, 0}, "Res_MinordamtFalse")};

inline constexpr std::array MOC{Fails(MaxVolPct, TTest{AtMost, 0}, TTest{AtLeast, 80}, "Res_MaxVolPctFalse"),
                                Fails(WPx, TTest{AtMost, 0}, "Res_WpxFalse"),
                                Fails(MinOrdAmt, TTest{AtMost, 0}, "Res_MinordamtFalse"),
                                Fails(ClosePct, TTest{AtMost, 0}, TTest{AtLeast, 100}, "Res_ClosePctFalse"),
                                Fails(ShowQty, TTest{AtMost, 0}, "Res_ShowQtyFalse")};

inline constexpr std::array SNIPER{
    Fails(TimeOut, TTest{AtMost, 0}, "Res_TimeoutFalse"), Fails(MinQty, TTest{AtMost, 0}, "Res_MinQtyFalse"),
    Fails(ServePct, TTest{AtMost, 0}, TTest{AtLeast, 100}, "Res_ServePctFalse")};

}  // namespace algo::model::rule_tables
