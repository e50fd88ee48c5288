#pragma once

// The groups and the fields of the entry form as constants, so that the lists about them are made and checked
// while they are compiled.

#include <array>

#include "views/entry/field_rows.h"

namespace algo::views::entry {

namespace field_rows {

using enum TField;
using enum TGroup;
using enum TFieldKind;
using enum forms::TDirection;
using TText = TFieldText::TPlace;
using TSave = TSaved::TKind;

// The three top groups stand side by side: the order's own fields, the algorithm's, and a second column that
// one algorithm needs. lgVWAP is part of the form and is never shown.
// clang-format off
inline constexpr std::array<TGroupRow, GroupCount> Groups{{
    {lgOrder, "lgOrder", TGroup::None, Vertical},
    {lgAlgo, "lgAlgo", TGroup::None, Vertical},
    {lgAlgoRight, "lgAlgoRight", TGroup::None, Vertical},
    {lgAcct, "lgAcct", lgOrder, Horizontal},
    {lgSymbol, "lgSymbol", lgOrder, Horizontal},
    {lgPrice, "lgPrice", lgOrder, Horizontal},
    {lgQty, "lgQty", lgOrder, Horizontal},
    {lgExch, "lgExch", lgOrder, Horizontal},
    {lgOrd, "lgOrd", lgOrder, Horizontal},
    {lgMOrder, "lgMOrder", lgOrder, Horizontal},
    {lgButton, "lgButton", lgOrder, Vertical},
    {lgCheck, "lgCheck", lgButton, Horizontal},
    {lgBtn, "lgBtn", lgButton, Horizontal},
    {lgSubmit, "lgSubmit", lgBtn, Vertical},
    {lgBuy, "lgBuy", lgBtn, Vertical},
    {lgSell, "lgSell", lgBtn, Vertical},
    {lgTrading, "lgTrading", lgAlgo, Vertical, "Res_Algo_Trading", 5},
    {lgVol, "lgVol", lgAlgo, Vertical, "Res_Volume"},
    {lgWOrder, "lgWOrder", lgAlgo, Vertical, "Res_Algo_WOrder", 2},
    {lgAuc, "lgAuc", lgAlgo, Vertical, "Res_Algo_Auc", 3},
    {lgVWAP, "lgVWAP", lgAuc, Vertical, "Res_Algo_VWAP"},
    {lgMinOrder, "lgMinOrder", lgAlgo, Vertical, "Res_Algo_MinOrder", 1},
    {lgStyle, "lgStyle", lgAlgo, Vertical, "Res_Algo_Style", 4},
    {lgSlices, "lgSlices", lgAlgo, Vertical, "Res_Algo_Waves"},
    {lgTVOLth, "lgTVOLth", lgAlgo, Vertical, "Res_Algo_TVOLTH"},
    {lgICEBERG, "lgICEBERG", lgAlgo, Vertical, "Res_Algo_Iceberg"},
    {lgExc, "lgExc", lgICEBERG, Vertical},
    {lgSTOP, "lgSTOP", lgAlgo, Vertical, "Res_Algo_STOP"},
    {lgPEG, "lgPEG", lgAlgo, Vertical, "Res_Algo_PEG"},
    {.group = lgPEGExcept, .name = "lgPEGExcept", .parent = lgPEG, .direction = Vertical, .shownAgain = true},
    {lgSNIPER, "lgSNIPER", lgAlgo, Vertical, "Res_Algo_SNIPER"},
    {lgRef, "lgRef", lgAlgo, Vertical, "Res_Algo_Ref"},
    {lgTime, "lgTime", lgAlgo, Vertical, "Res_Algo_Delay"},
}};
// clang-format on

// Paths of the Enter key that are no rule. That of cmbAccuVol names cmbStyle twice.
inline constexpr std::array FromMType{cmbOrderType};
inline constexpr std::array FromOrderType{edtSlices};
inline constexpr std::array FromETime{btnBuy};
inline constexpr std::array FromAccuVol{
    edtMaxVolPct,  edtMinOrdAmt, edtWPx,        cmbOpening, cmbClosing, edtThrPx1,
    edtThrVolPct1, edtThrPx2,    edtThrVolPct2, edtSlices,  edtOpenPct, cmbCloseSim,
    edtClosePct,   cmbStyle,     edtStopLossPx, edtStopQty, cmbStyle};
inline constexpr std::array FromAllInAuc{edtVolPct, cmbAccuVol};
inline constexpr std::array FromCloseSim{edtClosePct, edtStopLossPx, edtStopQty, cmbStyle};
inline constexpr std::array FromClosing{edtClosePct, cmbStyle, edtStopLossPx, edtStopQty, deSTime, deETime};

// Exit rules, click rules and bounds differ from field to field on purpose.
// clang-format off
inline constexpr std::array Fields = std::to_array<TFieldRow>({
    OfOrder(Edit, edtAccount, "edtAccount", "liAccount", lgAcct, "Res_Account").Text(TText::Placeholder, "Res_Account")
        .HostEditor(THost::Account, 1).Saved(TSave::Account, "Account", 1, 1),
    Lock(cbLockAcct, "cbLockAcct", "liLockAcct", lgAcct, edtAccount).Text(TText::Hint, "Res_Account_Lock")
        .InChange(TInChange::Closes).Saved(TSave::Check, "Account-Lock", 2, 2),
    OfOrder(Edit, edtSymbol, "edtSymbol", "liSymbol", lgSymbol, "Res_Symbol").Text(TText::Placeholder, "Res_Symbol")
        .HostEditor(THost::Symbol, 1).Saved(TSave::Symbol, "Symbol", 3, 3),
    Lock(cbLockSymbol, "cbLockSymbol", "liLockSymbol", lgSymbol, edtSymbol).Text(TText::Hint, "Res_Symbol_Lock")
        .InChange(TInChange::Closes).Saved(TSave::Check, "Symbol-Lock", 4, 4),
    OfOrder(Spin, edtPrice, "edtPrice", "liPrice", lgPrice, "Res_Ticket_Limit_Price_Hint").Format(Figure)
        .Text(TText::Hint, "Res_Ticket_Limit_Price_Hint").HostEditor(THost::Price, 1).Saved(TSave::Price, "Price", 7, 10),
    // Whether a price may be typed depends on the order type too, so its box does not lock it by itself.
    Lock(cbLockPrice, "cbLockPrice", "liLockPrice", lgPrice, {}).Text(TText::Hint, "Res_Price_Lock")
        .InChange(TInChange::Closes).Saved(TSave::Check, "Price-Lock", 8, 11),
    OfOrder(Spin, edtQty, "edtQty", "liQuantity", lgQty, "Res_OrderQty").Format(Figure).HostEditor(THost::Quantity, 1)
        .Saved(TSave::Quantity, "Quantity", 5, 5),
    Lock(cbLockQty, "cbLockQty", "liLockQty", lgQty, edtQty).Text(TText::Hint, "Res_Qty_Lock")
        .InChange(TInChange::Closes).Saved(TSave::Check, "Quantity-Lock", 6, 6),
    OfOrder(Combo, cmbExch, "cmbExch", "liExch", lgExch, "Res_Market").InChange(TInChange::Closes)
        .Saved(TSave::Choice, "Exchange", 12, 7),
    Lock(cbLockExch, "cbLockExch", "liLockExch", lgExch, cmbExch).Text(TText::Hint, "Res_Market_Lock")
        .InChange(TInChange::Closes).Saved(TSave::Check, "Exchange-Lock", 13, 12),
    OfOrder(Combo, cmbMType, "cmbMType", "liMOrder", lgMOrder, "Res_Ticket_OrderType").Saved(TSave::Choice, "Type", 10, 9)
        .Enter({.own = FromMType, .goesOnAs = cmbOrderType}),
    Lock(cbLockMOrder, "cbLockMOrder", "liLockMOrder", lgMOrder, cmbMType),
    OfOrder(Combo, cmbOrderType, "cmbOrderType", "liOrderType", lgOrd, "Res_AlgoOrderType").InChange(TInChange::Closes)
        .Saved(TSave::Choice, "OrderType", 9, 8).Enter({.own = FromOrderType, .goesOnAs = edtSlices}),
    Lock(cbLockOrderType, "cbLockOrderType", "liLockOrderType", lgOrd, cmbOrderType).InChange(TInChange::Closes)
        .Saved(TSave::Check, "OrderType-Lock", 11, 13),
    Param(edtVolPct, model::TParam::VolPct, "liVolPct", lgVol, "Res_Algo_VolPct").Format(Plain)
        .Exit(TExitRule::ZeroOrMax).ClickSelectsAll().KeyInput().SavedAt(41),
    Param(edtMaxVolPct, model::TParam::MaxVolPct, "liMaxVolPct", lgVol, "Res_Algo_MaxVolPct").Format(Plain)
        .Exit(TExitRule::ZeroOrMax).ClickSelectsAll().SavedAt(42),
    Param(cmbAccuVol, model::TParam::AccuVol, "liAccuVol", lgVol, "Res_Algo_AccuVol").StaysHidden()
        .InChange(TInChange::Opens).SavedAt(17).Enter({.outside = true, .own = FromAccuVol}),
    Param(edtThrPx1, model::TParam::ThrPx1, "liThrPx1", lgTVOLth, "Res_Algo_ThrPx1").Format(Figure7)
        .Exit(TExitRule::Zero).KeyInput().HostEditor(THost::Price, 2).InChange(TInChange::Opens).SavedAt(45),
    Param(edtThrVolPct1, model::TParam::ThrVolPct1, "liThrVolPct1", lgTVOLth, "Res_Algo_ThrVolPct1").Format(Plain)
        .Exit(TExitRule::ZeroOrMax).ClickSelectsAll().KeyInput().SavedAt(47),
    Param(edtThrPx2, model::TParam::ThrPx2, "liThrPx2", lgTVOLth, "Res_Algo_ThrPx2").Format(Figure7)
        .Exit(TExitRule::Zero).HostEditor(THost::Price, 3).InChange(TInChange::Opens).SavedAt(46),
    Param(edtThrVolPct2, model::TParam::ThrVolPct2, "liThrVolPct2", lgTVOLth, "Res_Algo_ThrVolPct2").Format(Plain)
        .Exit(TExitRule::ZeroOrMax).ClickSelectsAll().SavedAt(48),
    Param(cmbJoin, model::TParam::Join, "liJoin", lgPEG, "Res_Algo_Join").ShownAgain().InChange(TInChange::Opens)
        .SavedAt(25),
    Param(edtJoinThr, model::TParam::JoinThr, "liJoinThr", lgPEG, "Res_Algo_JoinThr").Format(Figure7)
        .Exit(TExitRule::Zero).ClickSelectsAll().InChange(TInChange::Opens).SavedAt(33),
    // Saved twice, with the same value: whichever of the two a reader takes, it gets the same.
    Param(edtJoinQty, model::TParam::JoinQty, "liJoinQty", lgPEGExcept, "Res_Algo_JoinQty").Format(Figure7)
        .Exit(TExitRule::Zero).HostEditor(THost::Quantity, 5).InChange(TInChange::Opens).SavedAt(34, 37),
    Param(cmbRef, model::TParam::Ref, "liRef", lgRef, "Res_Algo_Ref").InChange(TInChange::Opens).SavedAt(24),
    // Stands before the percentage and is entered after it.
    Param(edtTickDiff, model::TParam::TickDiff, "liTickDiff", lgRef, "Res_Algo_TickDiff").Format(Figure7)
        .Exit(TExitRule::Bounds).ClickSelectsAll().InChange(TInChange::Opens).SavedAt(32)
        .Enter({.standsAfter = edtDiffPct}),
    Param(edtDiffPct, model::TParam::DiffPct, "liDiffPct", lgRef, "Res_Algo_DiffPct").Format(Plain)
        .Exit(TExitRule::Bounds).ClickSelectsAll().InChange(TInChange::Opens).SavedAt(36),
    // Saved workspaces hold the order's quantity under this key, and readers have come to expect it.
    Param(edtMinQty, model::TParam::MinQty, "liMinQty", lgSNIPER, "Res_Algo_MinQty").Format(Figure)
        .Exit(TExitRule::Zero).HostEditor(THost::Quantity, 2, 3).SavedAt(28).SavedTextFrom(edtQty),
    Param(edtServePct, model::TParam::ServePct, "liServePct", lgSNIPER, "Res_Algo_ServePct").Format(Plain)
        .Exit(TExitRule::ZeroOrMax).ClickSelectsAll().SavedAt(29),
    Param(edtTimeOut, model::TParam::TimeOut, "liTimeOut", lgTime, "Res_Algo_Timeout").Format(Figure7)
        .ShownAgain().Exit(TExitRule::Zero).ClickSelectsAll().InChange(TInChange::Opens).SavedAt(31),
    Param(edtRandTimeOut, model::TParam::RandTimeOut, "liRandTimeOut", lgTime, "Res_Algo_RandTimeout").Format(Figure7)
        .Step(0.01).Exit(TExitRule::ZeroOrMax).ClickSelectsAll().InChange(TInChange::Opens).SavedAt(35),
    Param(cmbIceberg, model::TParam::Iceberg, "liIceberg", lgICEBERG, "Res_Algo_Iceberg").InChange(TInChange::Opens)
        .SavedAt(23),
    Param(edtShowQty, model::TParam::ShowQty, "liShowQty", lgICEBERG, "Res_Algo_ShowQty").Format(Figure7)
        .Exit(TExitRule::Zero).HostEditor(THost::Quantity, 4).InChange(TInChange::Opens).SavedAt(30),
    Param(edtMaxShowQty, model::TParam::MaxShowQty, "liMaxShowQty", lgExc, "Res_Algo_MaxShowQty").Format(Figure7)
        .Exit(TExitRule::Zero).HostEditor(THost::Quantity, 6).SavedAt(38),
    Param(edtRandPct, model::TParam::RandPct, "liRandPct", lgExc, "Res_Algo_RandPct").Format(Plain).Step(0.01)
        .Exit(TExitRule::ZeroOrMax).ClickSelectsAll().SavedAt(39),
    Param(edtReloadPct, model::TParam::ReloadPct, "liReloadPct", lgExc, "Res_Algo_ReloadPct").Format(Plain).Step(0.01)
        .Exit(TExitRule::ZeroOrMax).ClickSelectsAll().SavedAt(40),
    Param(cmbFunc, model::TParam::Func, "liFunc", lgExc, "Res_Algo_Func").InChange(TInChange::Opens).SavedAt(21),
    Param(cmbAllInAuc, model::TParam::AllInAuc, "liAllInAuc", lgExc, "Res_Algo_AllInAuc").StaysHidden().SavedAt(22)
        .Enter({.outside = true, .own = FromAllInAuc, .goesOnAs = cmbAccuVol}),
    Param(edtMinOrdAmt, model::TParam::MinOrdAmt, "liMinOrdAmt", lgMinOrder, "Res_Algo_MinOrdAmt").Format(Figure7)
        .Exit(TExitRule::Zero).ClickSelectsAll().SavedAt(43),
    Param(edtWPx, model::TParam::WPx, "liWPx", lgWOrder, "Res_Algo_Wpx").Format(Figure7).Exit(TExitRule::Zero)
        .HostEditor(THost::Price, 5).SavedAt(44),
    Param(cmbOpening, model::TParam::Opening, "liOpening", lgAuc, "Res_Algo_Opening").InChange(TInChange::Opens)
        .SavedAt(18),
    Param(edtOpenPct, model::TParam::OpenPct, "liOpenPct", lgAuc, "Res_Algo_OpenPct").Format(Plain)
        .Exit(TExitRule::ZeroOrMax).ClickSelectsAll().InChange(TInChange::Opens).SavedAt(50),
    Param(cmbClosing, model::TParam::Closing, "liClosing", lgAuc, "Res_Algo_Closing").InChange(TInChange::Opens)
        .SavedAt(19).Enter({.own = FromClosing}),
    Param(edtClosePct, model::TParam::ClosePct, "liClosePct", lgAuc, "Res_Algo_ClosePct").Format(Plain)
        .Exit(TExitRule::ZeroOrMax).ClickSelectsAll().SavedAt(51),
    Param(cmbCloseSim, model::TParam::CloseSim, "liCloseSim", lgVWAP, "Res_Algo_CloseSim").StaysHidden().SavedAt(20)
        .Enter({.outside = true, .own = FromCloseSim}),
    Param(cmbStyle, model::TParam::Style, "liStyle", lgStyle, "Res_Algo_Style").SavedAt(16),
    // Reached from the two type lists alone, and leads on as if it stood right behind them.
    Param(edtSlices, model::TParam::Slices, "liSlices", lgSlices, "Res_Algo_Waves").Format(Figure7)
        .Exit(TExitRule::Zero).ClickSelectsAll().SavedAt(49).Enter({.outside = true, .leadsAs = cmbOrderType}),
    Param(edtStopLossPx, model::TParam::StopLossPx, "liStopLossPx", lgSTOP, "Res_Algo_StopLossPx").Format(Figure7)
        .Exit(TExitRule::Zero).KeyInput().HostEditor(THost::Price, 4).InChange(TInChange::Opens).SavedAt(52),
    Param(edtStopQty, model::TParam::StopQty, "liStopQty", lgSTOP, "Res_Algo_StopQty").Format(Figure7)
        .Exit(TExitRule::Zero).HostEditor(THost::Quantity, 3, 2).SavedAt(53),
    Param(deSTime, model::TParam::STime, "liSTime", lgTrading, "Res_Algo_STime").PickKeepsTime()
        .InChange(TInChange::Opens).SavedAt(26),
    Param(deETime, model::TParam::ETime, "liETime", lgTrading, "Res_Algo_ETime").SavedAt(27).Enter({.own = FromETime}),
    OfOrder(Check, cbClear, "cbClear", "liCClear", lgCheck).Text(TText::Caption, "Res_OrderClear")
        .Saved(TSave::Check, "Clear", 15, 15),
    OfOrder(Check, cbPopup, "cbPopup", "liPopup", lgCheck).Text(TText::Caption, "Res_Ticket_Conf_Off")
        .Saved(TSave::Check, "Popup", 14, 14),
    OfOrder(Button, btnSubmit, "btnSubmit", "liSubmit", lgSubmit).Text(TText::Caption, "Res_Submit"),
    OfOrder(Button, btnClear, "btnClear", "liClear", lgSubmit).Text(TText::Caption, "Res_Clear"),
    OfOrder(Button, btnWork, "btnWork", "liWork", lgSubmit).Text(TText::Caption, "Res_Work"),
    OfOrder(SpeedButton, btnBuy, "btnBuy", "liBuy", lgBuy).Text(TText::Caption, "Res_Side_Buy"),
    OfOrder(SpeedButton, btnSell, "btnSell", "liSell", lgSell).Text(TText::Caption, "Res_Side_Sell"),
});
// clang-format on

}  // namespace field_rows

inline constexpr std::size_t FieldCount = field_rows::Fields.size();

}  // namespace algo::views::entry
