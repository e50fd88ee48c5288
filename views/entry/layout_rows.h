#pragma once

// The items of the layout text, one row each, in the order in which they are written.

#include <array>
#include <cstdint>
#include <string_view>

#include "views/entry/fields.h"

namespace algo::views {

enum class TLayoutKind : std::uint8_t {
  Account,   ///< the frame's account; always written and always read
  Symbol,    ///< the frame's symbol; always written and always read
  Check,     ///< 0 or 1; always written
  Quantity,  ///< a whole number above 0
  Price,     ///< a number other than 0, read only into a price that may be typed
  Choice,    ///< the chosen entry of the list behind the combo box
  Time,      ///< the text as shown
  Number,    ///< a number; 0 is written and not read back
};

struct TLayoutRow {
  std::string_view key;
  TLayoutKind kind;
  TField field;     ///< the control that decides whether the item is written, and into which it is read
  TField textFrom;  ///< the control whose text is written
};

constexpr TLayoutRow LayoutRow(std::string_view key, TLayoutKind kind, TField field) {
  return {key, kind, field, field};
}

inline constexpr std::array LayoutRows{
    LayoutRow("Account", TLayoutKind::Account, TField::edtAccount),
    LayoutRow("Account-Lock", TLayoutKind::Check, TField::cbLockAcct),
    LayoutRow("Symbol", TLayoutKind::Symbol, TField::edtSymbol),
    LayoutRow("Symbol-Lock", TLayoutKind::Check, TField::cbLockSymbol),
    LayoutRow("Quantity", TLayoutKind::Quantity, TField::edtQty),
    LayoutRow("Quantity-Lock", TLayoutKind::Check, TField::cbLockQty),
    LayoutRow("Price", TLayoutKind::Price, TField::edtPrice),
    LayoutRow("Price-Lock", TLayoutKind::Check, TField::cbLockPrice),
    LayoutRow("OrderType", TLayoutKind::Choice, TField::cmbOrderType),
    LayoutRow("Type", TLayoutKind::Choice, TField::cmbMType),
    LayoutRow("OrderType-Lock", TLayoutKind::Check, TField::cbLockOrderType),
    LayoutRow("Exchange", TLayoutKind::Choice, TField::cmbExch),
    LayoutRow("Exchange-Lock", TLayoutKind::Check, TField::cbLockExch),
    LayoutRow("Popup", TLayoutKind::Check, TField::cbPopup),
    LayoutRow("Clear", TLayoutKind::Check, TField::cbClear),
    LayoutRow("Style", TLayoutKind::Choice, TField::cmbStyle),
    LayoutRow("AccuVol", TLayoutKind::Choice, TField::cmbAccuVol),
    LayoutRow("Opening", TLayoutKind::Choice, TField::cmbOpening),
    LayoutRow("Closing", TLayoutKind::Choice, TField::cmbClosing),
    LayoutRow("CloseSim", TLayoutKind::Choice, TField::cmbCloseSim),
    LayoutRow("Func", TLayoutKind::Choice, TField::cmbFunc),
    LayoutRow("AllInAuc", TLayoutKind::Choice, TField::cmbAllInAuc),
    LayoutRow("Iceberg", TLayoutKind::Choice, TField::cmbIceberg),
    LayoutRow("Ref", TLayoutKind::Choice, TField::cmbRef),
    LayoutRow("Join", TLayoutKind::Choice, TField::cmbJoin),
    LayoutRow("STime", TLayoutKind::Time, TField::deSTime),
    LayoutRow("ETime", TLayoutKind::Time, TField::deETime),
    // Saved workspaces hold the order's quantity under this key, and readers have come to expect it.
    TLayoutRow{"MinQty", TLayoutKind::Number, TField::edtMinQty, TField::edtQty},
    LayoutRow("ServePct", TLayoutKind::Number, TField::edtServePct),
    LayoutRow("ShowQty", TLayoutKind::Number, TField::edtShowQty),
    LayoutRow("Timeout", TLayoutKind::Number, TField::edtTimeOut),
    LayoutRow("TickDiff", TLayoutKind::Number, TField::edtTickDiff),
    LayoutRow("JoinThr", TLayoutKind::Number, TField::edtJoinThr),
    LayoutRow("JoinQty", TLayoutKind::Number, TField::edtJoinQty),
    LayoutRow("RandTimeout", TLayoutKind::Number, TField::edtRandTimeOut),
    LayoutRow("DiffPct", TLayoutKind::Number, TField::edtDiffPct),
    // Written a second time, with the same value: whichever of the two a reader takes, it gets the same.
    LayoutRow("JoinQty", TLayoutKind::Number, TField::edtJoinQty),
    LayoutRow("MaxShowQty", TLayoutKind::Number, TField::edtMaxShowQty),
    LayoutRow("RandPct", TLayoutKind::Number, TField::edtRandPct),
    LayoutRow("ReloadPct", TLayoutKind::Number, TField::edtReloadPct),
    LayoutRow("VolPct", TLayoutKind::Number, TField::edtVolPct),
    LayoutRow("MaxVolPct", TLayoutKind::Number, TField::edtMaxVolPct),
    LayoutRow("MinOrdAmt", TLayoutKind::Number, TField::edtMinOrdAmt),
    LayoutRow("WPx", TLayoutKind::Number, TField::edtWPx),
    LayoutRow("ThrPx1", TLayoutKind::Number, TField::edtThrPx1),
    LayoutRow("ThrPx2", TLayoutKind::Number, TField::edtThrPx2),
    LayoutRow("ThrVolPct1", TLayoutKind::Number, TField::edtThrVolPct1),
    LayoutRow("ThrVolPct2", TLayoutKind::Number, TField::edtThrVolPct2),
    LayoutRow("Waves", TLayoutKind::Number, TField::edtSlices),
    LayoutRow("OpenPct", TLayoutKind::Number, TField::edtOpenPct),
    LayoutRow("ClosePct", TLayoutKind::Number, TField::edtClosePct),
    LayoutRow("StopLossPx", TLayoutKind::Number, TField::edtStopLossPx),
    LayoutRow("StopQty", TLayoutKind::Number, TField::edtStopQty),
};
static_assert(LayoutRows.size() == 53);

/// The keys that are read first, because what they choose decides what the others find. The rest follows in
/// the order in which it is written.
inline constexpr std::array<std::string_view, 15> ReadFirst{
    "Account",       "Account-Lock",  "Symbol",         "Symbol-Lock", "Quantity",
    "Quantity-Lock", "Exchange",      "OrderType",      "Type",        "Price",
    "Price-Lock",    "Exchange-Lock", "OrderType-Lock", "Popup",       "Clear",
};

}  // namespace algo::views
