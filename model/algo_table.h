#pragma once

// The catalogue of algorithms as constants, one row each, so that whatever is made of it can be made and
// checked while it is compiled. Groups that an algorithm does not name stay hidden; items that it does not
// name stay shown.
//
// The order of the pieces is the engine's and not that of the form. The bounds differ between the algorithms
// on purpose: the volume percent ends at 80 but the maximum one at 75 or 80; the threshold algorithm lets 0
// pass as worst price, minimum amount and second threshold, every other one refuses it.
//
// One table is longer than a file should be; cut in two it would tell half of each algorithm.

#include <array>

#include "model/algo_rows.h"

namespace algo::model {

namespace algo_rows {

using enum TParam;

// clang-format off
inline constexpr std::array Table{
    TAlgoRow{
        .code = "TVOL",
        .resourceId = "Res_Algo_OrderType_TVOL",
        .groups = {"lgTrading", "lgVol", "lgWOrder", "lgAuc", "lgMinOrder", "lgStyle"},
        .hiddenItems = {"liAccuVol", "liMaxVolPct", "liOpenPct", "liClosePct"},
        .pieces = {Given(STime), Given(ETime), Between(0, VolPct, 80), Positive(WPx), Given(Opening), Given(Closing),
                   Positive(MinOrdAmt), Given(Style)},
        .rules = {Fails(VolPct, Equal(0), "Res_VolPctMiss"),
                  Fails(VolPct, Below(0), AtLeast(80), "Res_VolumePctFalse"),
                  Fails(WPx, AtMost(0), "Res_WpxFalse"),
                  Fails(MinOrdAmt, AtMost(0), "Res_MinordamtFalse")}},
    // The first threshold pair is written before the times, the second at the very end.
    TAlgoRow{
        .code = "TVOL Threshold",
        .resourceId = "Res_Algo_OrderType_TVOLTH",
        .groups = {"lgVol", "lgWOrder", "lgAuc", "lgMinOrder", "lgStyle", "lgTrading", "lgTVOLth"},
        .hiddenItems = {"liMaxVolPct", "liOpenPct", "liClosePct", "liAccuVol"},
        .pieces = {Positive(ThrPx1), Between(0, ThrVolPct1, 100), Given(STime), Given(ETime), Between(0, VolPct, 80),
                   Positive(WPx), Given(Opening), Given(Closing), Positive(MinOrdAmt), Given(Style), Positive(ThrPx2),
                   Between(0, ThrVolPct2, 100)},
        .rules = {Fails(VolPct, Equal(0), "Res_VolPctMiss"),
                  Fails(VolPct, Below(0), AtLeast(80), "Res_VolumePctFalse"),
                  Fails(WPx, Below(0), "Res_WpxFalse"),
                  Fails(MinOrdAmt, Below(0), "Res_MinordamtFalse"),
                  Fails(ThrPx1, Equal(0), "Res_ThrPx1Miss"),
                  Fails(ThrPx1, Below(0), "Res_ThrPx1False"),
                  Fails(ThrVolPct1, Equal(0), "Res_ThrVolPct1Miss"),
                  Fails(ThrVolPct1, Below(0), AtLeast(100), "Res_ThrVolPct1False"),
                  Fails(ThrPx2, Below(0), "Res_Thrpx2False"),
                  Fails(ThrVolPct2, Below(0), AtLeast(100), "Res_ThrVolPct2False")}},
    TAlgoRow{
        .code = "TWAP",
        .resourceId = "Res_Algo_OrderType_TWAP",
        .groups = {"lgTrading", "lgVol", "lgWOrder", "lgMinOrder", "lgStyle", "lgSlices", "lgAuc"},
        .hiddenItems = {"liAccuVol", "liVolPct", "liCloseSim", "liOpenPct", "liClosePct"},
        .maximums = {{MaxVolPct, 75}},
        .pieces = {Given(STime), Given(ETime), Positive(WPx), Given(Opening), Given(Closing), Positive(MinOrdAmt),
                   Given(Style), Between(0, MaxVolPct, 75)},
        .rules = {Fails(WPx, AtMost(0), "Res_WpxFalse"),
                  Fails(MinOrdAmt, AtMost(0), "Res_MinordamtFalse"),
                  Fails(MaxVolPct, AtMost(0), AtLeast(75), "Res_MaxVolPctFalse"),
                  Fails(Slices, AtMost(0), "Res_SlicesFalse")}},
    TAlgoRow{
        .code = "VWAP",
        .resourceId = "Res_Algo_OrderType_VWAP",
        .groups = {"lgTrading", "lgVol", "lgWOrder", "lgMinOrder", "lgStyle", "lgSlices", "lgAuc"},
        .hiddenItems = {"liAccuVol", "liVolPct", "liCloseSim"},
        .maximums = {{MaxVolPct, 75}},
        .notSetAtFirst = {Closing},
        .pieces = {Given(STime), Given(ETime), Positive(WPx), Given(Opening), Given(Closing), Positive(MinOrdAmt),
                   Given(Style), Between(0, MaxVolPct, 75), Between(0, OpenPct, 100), Between(0, ClosePct, 100),
                   Positive(Slices)},
        .rules = {Fails(WPx, AtMost(0), "Res_WpxFalse"),
                  Fails(MinOrdAmt, AtMost(0), "Res_MinordamtFalse"),
                  Fails(MaxVolPct, AtMost(0), AtLeast(75), "Res_MaxVolPctFalse"),
                  Fails(OpenPct, AtMost(0), AtLeast(100), "Res_OpenPctFalse"),
                  Fails(ClosePct, AtMost(0), AtLeast(100), "Res_ClosePctFalse"),
                  Fails(Slices, AtMost(0), "Res_SlicesFalse")}},
    TAlgoRow{.code = "CLOSE", .resourceId = "Res_Algo_OrderType_CLOSE"},
    TAlgoRow{.code = "OPEN", .resourceId = "Res_Algo_OrderType_OPEN"},
    // A working iceberg keeps the way in which it is shown.
    TAlgoRow{
        .code = "ICEBERG",
        .resourceId = "Res_Algo_OrderType_ICEBERG",
        .groups = {"lgTrading", "lgAuc", "lgMinOrder", "lgICEBERG", "lgWOrder", "lgStyle"},
        .hiddenItems = {"liIceberg", "liAllInAuc", "liOpenPct", "liClosePct"},
        .fixedWhileWorking = {Func},
        .pieces = {Given(STime), Given(ETime), Given(Opening), Given(Closing), Positive(MinOrdAmt), Given(Func),
                   Positive(ShowQty), Positive(MaxShowQty), Between(0, RandPct, 100), Between(0, ReloadPct, 100),
                   Given(Style), Positive(WPx)},
        .rules = {Fails(MinOrdAmt, AtMost(0), "Res_MinordamtFalse"),
                  Fails(ShowQty, AtMost(0), "Res_ShowQtyFalse"),
                  Fails(MaxShowQty, AtMost(0), "Res_MaxShowQtyFalse"),
                  Fails(RandPct, AtLeast(100), AtMost(0), "Res_RandPctFalse"),
                  Fails(ReloadPct, AtMost(0), AtLeast(100), "Res_ReloadPctFalse"),
                  Fails(WPx, AtMost(0), "Res_WpxFalse")}},
    TAlgoRow{
        .code = "STOP",
        .resourceId = "Res_Algo_OrderType_STOP",
        .groups = {"lgTrading", "lgSTOP"},
        .pieces = {Given(STime), Given(ETime), Positive(StopLossPx), Positive(StopQty)},
        .rules = {Fails(StopLossPx, Equal(0), "Res_StopLossPxMiss"),
                  Fails(StopLossPx, Below(0), "Res_StopLossFalse"),
                  Fails(StopQty, Below(0), "Res_StopQtyFalse")}},
    // The closing choice stands in the text twice, as the engine expects it.
    TAlgoRow{
        .code = "PEG",
        .resourceId = "Res_Algo_OrderType_PEG",
        .groups = {"lgTrading", "lgPEG", "lgRef", "lgTime", "lgICEBERG", "lgVol", "lgStyle", "lgWOrder", "lgMinOrder",
                   "lgAuc"},
        .hiddenItems = {"lgExc", "liOpenPct", "liClosePct", "liAccuVol", "liVolPct", "liOpening", "liCloseSim"},
        .maximums = {{MaxVolPct, 80}},
        .groupsInRightColumn = true,
        .pieces = {Given(STime), Given(ETime), Given(Closing), Positive(JoinThr), Given(Join), Given(Iceberg),
                   Positive(ShowQty), Between(0, RandTimeOut, 100), Positive(JoinQty), Between(-100, DiffPct, 100),
                   Between(-500, TickDiff, 500), Positive(TimeOut), Given(Ref), Between(0, MaxVolPct, 80),
                   Given(Closing), Given(Style), Positive(WPx), Positive(MinOrdAmt)},
        .rules = {Fails(MaxVolPct, AtMost(0), AtLeast(80), "Res_MaxVolPctFalse"),
                  Fails(JoinThr, AtMost(0), "Res_JoinThrFalse"),
                  Fails(ShowQty, AtMost(0), "Res_ShowQtyFalse"),
                  Fails(RandTimeOut, AtLeast(100), AtMost(0), "Res_RandTimeoutFalse"),
                  Fails(JoinQty, AtMost(0), "Res_JoinQtyFalse"),
                  Fails(DiffPct, AtMost(-100), AtLeast(100), "Res_DiffPctFalse"),
                  Fails(TickDiff, AtMost(-500), AtLeast(500), "Res_TickDiffFalse"),
                  Fails(TimeOut, AtMost(0), "Res_TimeoutFalse"),
                  Fails(WPx, AtMost(0), "Res_WpxFalse"),
                  Fails(MinOrdAmt, AtMost(0), "Res_MinordamtFalse")}},
    TAlgoRow{
        .code = "MOC",
        .resourceId = "Res_Algo_OrderType_MOC",
        .groups = {"lgTrading", "lgVol", "lgAuc", "lgWOrder", "lgMinOrder", "lgICEBERG", "lgStyle"},
        .hiddenItems = {"liAccuVol", "liVolPct", "liOpening", "liOpenPct", "liClosing", "liCloseSim", "lgExc",
                        "liIceberg"},
        .maximums = {{MaxVolPct, 80}},
        .pieces = {Given(STime), Given(ETime), Between(0, MaxVolPct, 80), Between(0, ClosePct, 100), Given(Style),
                   Positive(WPx), Positive(MinOrdAmt), Positive(ShowQty)},
        .rules = {Fails(MaxVolPct, AtMost(0), AtLeast(80), "Res_MaxVolPctFalse"),
                  Fails(WPx, AtMost(0), "Res_WpxFalse"),
                  Fails(MinOrdAmt, AtMost(0), "Res_MinordamtFalse"),
                  Fails(ClosePct, AtMost(0), AtLeast(100), "Res_ClosePctFalse"),
                  Fails(ShowQty, AtMost(0), "Res_ShowQtyFalse")}},
    TAlgoRow{
        .code = "SNIPER",
        .resourceId = "Res_Algo_OrderType_SNIPER",
        .groups = {"lgTrading", "lgSNIPER", "lgTime", "lgStyle"},
        .hiddenItems = {"liRandTimeOut"},
        .pieces = {Given(STime), Given(ETime), Positive(TimeOut), Positive(MinQty), Between(0, ServePct, 100),
                   Given(Style)},
        .rules = {Fails(TimeOut, AtMost(0), "Res_TimeoutFalse"),
                  Fails(MinQty, AtMost(0), "Res_MinQtyFalse"),
                  Fails(ServePct, AtMost(0), AtLeast(100), "Res_ServePctFalse")}},
    TAlgoRow{
        .code = "SHORT SELL",
        .resourceId = "Res_Algo_OrderType_SHORTSELL",
        .groups = {"lgTrading", "lgRef"},
        .hiddenItems = {"liTickDiff", "liDiffPct"},
        .pieces = {Given(STime), Given(ETime), Given(Ref)}},
};
// clang-format on

}  // namespace algo_rows

/// All algorithms, in the order of the catalogue.
inline constexpr const auto& AlgoTable = algo_rows::Table;

}  // namespace algo::model
