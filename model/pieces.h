#pragma once

// The pieces of each algorithm's parameter text, in the order in which they are written, which is the
// engine's and not that of the form.

#include <array>

#include "model/algos.h"

namespace algo::model::pieces {

using enum TParam;

/// A piece that is written whenever it is given: a time or a choice.
constexpr TPiece Given(TParam param) { return {param}; }
/// A number that is written when it is above 0.
constexpr TPiece Positive(TParam param) { return {param, 0}; }
/// A number that is written when it lies strictly between two bounds.
constexpr TPiece Between(double low, TParam param, double high) { return {param, low, high}; }

inline constexpr std::array TVOL{Given(STime),   Given(ETime),   Between(0, VolPct, 80), Positive(WPx),
                                 Given(Opening), Given(Closing), Positive(MinOrdAmt),    Given(Style)};
// The first threshold pair comes before the times, the second at the very end.
inline constexpr std::array TVOLThreshold{Positive(ThrPx1),       Between(0, ThrVolPct1, 100),
                                          Given(STime),           Given(ETime),
                                          Between(0, VolPct, 80), Positive(WPx),
                                          Given(Opening),         Given(Closing),
                                          Positive(MinOrdAmt),    Given(Style),
                                          Positive(ThrPx2),       Between(0, ThrVolPct2, 100)};
inline constexpr std::array TWAP{
    Given(STime),   Given(ETime),        Positive(WPx), Given(Opening),
    Given(Closing), Positive(MinOrdAmt), Given(Style),  Between(0, MaxVolPct, 75)};
inline constexpr std::array VWAP{Given(STime),
                                 Given(ETime),
                                 Positive(WPx),
                                 Given(Opening),
                                 Given(Closing),
                                 Positive(MinOrdAmt),
                                 Given(Style),
                                 Between(0, MaxVolPct, 75),
                                 Between(0, OpenPct, 100),
                                 Between(0, ClosePct, 100),
                                 Positive(Slices)};
inline constexpr std::array ICEBERG{Given(STime),
                                    Given(ETime),
                                    Given(Opening),
                                    Given(Closing),
                                    Positive(MinOrdAmt),
                                    Given(Func),
                                    Positive(ShowQty),
                                    Positive(MaxShowQty),
                                    Between(0, RandPct, 100),
                                    Between(0, ReloadPct, 100),
                                    Given(Style),
                                    Positive(WPx)};
inline constexpr std::array STOP{Given(STime), Given(ETime), Positive(StopLossPx), Positive(StopQty)};
// The closing choice stands in the text twice, as the engine expects it.
inline constexpr std::array PEG{Given(STime),
                                Given(ETime),
                                Given(Closing),
                                Positive(JoinThr),
                                Given(Join),
                                Given(Iceberg),
                                Positive(ShowQty),
                                Between(0, RandTimeOut, 100),
                                Positive(JoinQty),
                                Between(-100, DiffPct, 100),
                                Between(-500, TickDiff, 500),
                                Positive(TimeOut),
                                Given(Ref),
                                Between(0, MaxVolPct, 80),
                                Given(Closing),
                                Given(Style),
                                Positive(WPx),
                                Positive(MinOrdAmt)};
inline constexpr std::array MOC{
    Given(STime), Given(ETime),  Between(0, MaxVolPct, 80), Between(0, ClosePct, 100),
    Given(Style), Positive(WPx), Positive(MinOrdAmt),       Positive(ShowQty)};
inline constexpr std::array SNIPER{
    Given(STime), Given(ETime), Positive(TimeOut), Positive(MinQty), Between(0, ServePct, 100), Given(Style)};
inline constexpr std::array SHORTSELL{Given(STime), Given(ETime), Given(Ref)};

}  // namespace algo::model::pieces
