// What an algorithm shows of the form, and what its fields hold before the trader fills them in.

#include <array>
#include <iterator>

#include "model/algos.h"
#include "text/errors.h"
#include "views/entry/entry_frame.h"

namespace algo::views {

namespace {

// In the order in which they are put behind the algorithm's own groups.
constexpr std::array SharedGroups{TGroup::lgMinOrder, TGroup::lgWOrder, TGroup::lgAuc, TGroup::lgStyle,
                                  TGroup::lgTrading};

// The items whose captions stand out as an algorithm's key inputs.
constexpr std::array KeyInputs{TField::edtVolPct, TField::edtThrPx1, TField::edtThrVolPct1,
                               TField::edtStopLossPx};

constexpr std::array ChoicesResetToLast{TField::cmbJoin,     TField::cmbAccuVol, TField::cmbAllInAuc,
                                        TField::cmbCloseSim, TField::cmbIceberg, TField::cmbOpening};
constexpr std::array ChoicesResetToFirst{TField::cmbClosing, TField::cmbFunc};

constexpr std::array NumbersReset{
    TField::edtThrPx1,     TField::edtThrPx2,      TField::edtStopLossPx, TField::edtWPx,
    TField::edtClosePct,   TField::edtDiffPct,     TField::edtJoinQty,    TField::edtJoinThr,
    TField::edtMaxShowQty, TField::edtMaxVolPct,   TField::edtMinOrdAmt,  TField::edtMinQty,
    TField::edtOpenPct,    TField::edtRandTimeOut, TField::edtServePct,   TField::edtShowQty,
    TField::edtSlices,     TField::edtStopQty,     TField::edtThrVolPct1, TField::edtThrVolPct2,
    TField::edtTickDiff,   TField::edtTimeOut,     TField::edtVolPct,     TField::edtRandPct,
    TField::edtReloadPct,
};

}  // namespace

const model::TAlgoRow* TAlgoOrderEntryFrame::ChosenAlgo() const {
  const std::int32_t index = Combo(TField::cmbOrderType).Index();
  if (index < 0 || index > std::ssize(FAlgoTypeList)) return nullptr;
  // An index just behind the list is let through to the list, which answers with its own error.
  if (index == std::ssize(FAlgoTypeList)) throw EListIndexError(index);
  return model::FindAlgoById(FAlgoTypeList[static_cast<std::size_t>(index)]);
}

void TAlgoOrderEntryFrame::ResetView() {
  for (const std::string_view group : model::AllAlgoGroups) Layout().Find(group)->SetVisible(false);
  for (const std::string_view element : model::ItemsShownAgain) Layout().Find(element)->SetVisible(true);
}

void TAlgoOrderEntryFrame::InitializeView() {
  const model::TAlgoRow* algo = ChosenAlgo();
  if (algo == nullptr) return;
  const auto moveShared = [this](TGroup column) {
    for (const TGroup group : SharedGroups) Layout().Move(Group(group), Group(column));
  };
  moveShared(TGroup::lgAlgo);
  for (const std::string_view group : algo->groups) Layout().Find(group)->SetVisible(true);
  for (const std::string_view item : algo->hiddenItems) Layout().Find(item)->SetVisible(false);
  if (algo->maxVolPctMaximum) Spin(TField::edtMaxVolPct).SetMax(algo->maxVolPctMaximum);
  if (algo->closingNotSet) Combo(TField::cmbClosing).SelectLast();
  if (algo->groupsInRightColumn) moveShared(TGroup::lgAlgoRight);
  FBoldStyle->SetBold(true);
  for (const TField field : KeyInputs) Item(field).SetStyle(FBoldStyle);
}

void TAlgoOrderEntryFrame::ResetInputUI() {
  Date(TField::deSTime).SetText({});
  Date(TField::deETime).SetText({});
  for (const TField choice : ChoicesResetToLast) Combo(choice).SelectLast();
  for (const TField choice : ChoicesResetToFirst) Combo(choice).SelectFirst();
  Combo(TField::cmbRef).SelectLast();
  for (const TField number : NumbersReset) Spin(number).SetValue(std::nullopt);
  const model::TAlgoRow* algo = ChosenAlgo();
  if (algo != nullptr && algo->refillsStyle) FillStyleList();
}

}  // namespace algo::views
