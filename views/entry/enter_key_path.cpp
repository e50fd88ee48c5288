#include "views/entry/enter_key_path.h"

#include <algorithm>
#include <array>

namespace algo::views {

namespace {

using enum TField;

// The order in which a form is filled in; most fields lead to what is left of it behind them.
constexpr std::array MainOrder{
    edtAccount, edtSymbol,      edtPrice,   edtQty,        cmbExch,       cmbMType,      cmbOrderType,
    edtVolPct,  edtMaxVolPct,   edtThrPx1,  edtThrVolPct1, edtThrPx2,     edtThrVolPct2, cmbJoin,
    edtJoinThr, edtJoinQty,     cmbRef,     edtDiffPct,    edtTickDiff,   edtMinQty,     edtServePct,
    edtTimeOut, edtRandTimeOut, cmbIceberg, edtShowQty,    edtMaxShowQty, edtRandPct,    edtReloadPct,
    cmbFunc,    edtMinOrdAmt,   edtWPx,     cmbOpening,    edtOpenPct,    cmbClosing,    edtClosePct,
    cmbStyle,   edtStopLossPx,  edtStopQty, deSTime,       deETime,       btnBuy,
};

constexpr std::span<const TField> From(TField field) {
  const auto* found = std::find(MainOrder.data(), MainOrder.data() + MainOrder.size(), field);
  return {found, MainOrder.data() + MainOrder.size()};
}

constexpr std::span<const TField> AfterToBuy(TField field) { return From(field).subspan(1); }

// The parameter fields lead to the times at last, and only the end time leads on to the side buttons.
constexpr std::span<const TField> AfterToTimes(TField field) {
  const auto rest = AfterToBuy(field);
  return rest.first(rest.size() - 1);
}

constexpr std::array FromMType{cmbOrderType, edtSlices};
constexpr std::array FromOrderType{edtSlices};
constexpr std::array FromSTime{deETime};
constexpr std::array FromETime{btnBuy};
// The four below run in an order of their own; that of cmbAccuVol names cmbStyle twice.
constexpr std::array FromAccuVol{edtMaxVolPct, edtMinOrdAmt,  edtWPx,      cmbOpening,    cmbClosing,
                                 edtThrPx1,    edtThrVolPct1, edtThrPx2,   edtThrVolPct2, edtSlices,
                                 edtOpenPct,   cmbCloseSim,   edtClosePct, cmbStyle,      edtStopLossPx,
                                 edtStopQty,   cmbStyle};
constexpr std::array FromAllInAuc{edtVolPct, cmbAccuVol};
constexpr std::array FromCloseSim{edtClosePct, edtStopLossPx, edtStopQty, cmbStyle};
constexpr std::array FromClosing{edtClosePct, cmbStyle, edtStopLossPx, edtStopQty, deSTime, deETime};

constexpr std::array Rows{
    TEnterRow{edtAccount, AfterToBuy(edtAccount)},
    TEnterRow{edtSymbol, AfterToBuy(edtSymbol)},
    TEnterRow{edtPrice, AfterToBuy(edtPrice)},
    TEnterRow{edtQty, AfterToBuy(edtQty)},
    TEnterRow{cmbExch, AfterToBuy(cmbExch)},
    // The slices are reached from the two type lists alone.
    TEnterRow{cmbMType, FromMType, From(edtVolPct)},
    TEnterRow{cmbOrderType, FromOrderType, From(edtVolPct)},
    TEnterRow{edtSlices, From(edtVolPct)},
    TEnterRow{edtVolPct, AfterToTimes(edtVolPct)},
    TEnterRow{edtMaxVolPct, AfterToTimes(edtMaxVolPct)},
    TEnterRow{edtThrPx1, AfterToTimes(edtThrPx1)},
    TEnterRow{edtThrVolPct1, AfterToTimes(edtThrVolPct1)},
    TEnterRow{edtThrPx2, AfterToTimes(edtThrPx2)},
    TEnterRow{edtThrVolPct2, AfterToTimes(edtThrVolPct2)},
    TEnterRow{cmbJoin, AfterToTimes(cmbJoin)},
    TEnterRow{edtJoinThr, AfterToTimes(edtJoinThr)},
    TEnterRow{edtJoinQty, AfterToTimes(edtJoinQty)},
    TEnterRow{cmbRef, AfterToTimes(cmbRef)},
    TEnterRow{edtDiffPct, AfterToTimes(edtDiffPct)},
    TEnterRow{edtTickDiff, AfterToTimes(edtTickDiff)},
    TEnterRow{edtMinQty, AfterToTimes(edtMinQty)},
    TEnterRow{edtServePct, AfterToTimes(edtServePct)},
    TEnterRow{edtTimeOut, AfterToTimes(edtTimeOut)},
    TEnterRow{edtRandTimeOut, AfterToTimes(edtRandTimeOut)},
    TEnterRow{cmbIceberg, AfterToTimes(cmbIceberg)},
    TEnterRow{edtShowQty, AfterToTimes(edtShowQty)},
    TEnterRow{edtMaxShowQty, AfterToTimes(edtMaxShowQty)},
    TEnterRow{edtRandPct, AfterToTimes(edtRandPct)},
    TEnterRow{edtReloadPct, AfterToTimes(edtReloadPct)},
    TEnterRow{cmbFunc, AfterToTimes(cmbFunc)},
    TEnterRow{edtMinOrdAmt, AfterToTimes(edtMinOrdAmt)},
    TEnterRow{edtWPx, AfterToTimes(edtWPx)},
    TEnterRow{cmbOpening, AfterToTimes(cmbOpening)},
    TEnterRow{edtOpenPct, AfterToTimes(edtOpenPct)},
    TEnterRow{cmbClosing, FromClosing},
    TEnterRow{edtClosePct, AfterToTimes(edtClosePct)},
    TEnterRow{cmbStyle, AfterToTimes(cmbStyle)},
    TEnterRow{edtStopLossPx, AfterToTimes(edtStopLossPx)},
    TEnterRow{edtStopQty, AfterToTimes(edtStopQty)},
    TEnterRow{deSTime, FromSTime},
    TEnterRow{deETime, FromETime},
    TEnterRow{cmbAccuVol, FromAccuVol},
    TEnterRow{cmbAllInAuc, FromAllInAuc, FromAccuVol},
    TEnterRow{cmbCloseSim, FromCloseSim},
};

}  // namespace

const TEnterRow* FindEnterRow(TField field) {
  const auto found =
      std::find_if(Rows.begin(), Rows.end(), [field](const TEnterRow& row) { return row.field == field; });
  return found == Rows.end() ? nullptr : &*found;
}

}  // namespace algo::views
