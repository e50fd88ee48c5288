// The fixed choices, and what is chosen.

#include "views/entry/pick_lists.h"

#include <algorithm>
#include <type_traits>
#include <utility>

#include "plugin/host_contract/language_manager.h"
#include "text/errors.h"
#include "text/text.h"

namespace algo::views::entry {

namespace {

std::string ItemText(const model::TChoiceItem& item) {
  std::string text = host::ResourceText(item.textId.empty() ? item.entry : item.textId);
  if (!item.levelId.empty()) text += host::ResourceText(item.levelId);
  return text;
}

// What a reset gives a choice.
std::int32_t ResetIndex(const model::TParamRow& param) {
  return param.reset == model::TReset::FirstItem ? 0 : static_cast<std::int32_t>(param.choices.size()) - 1;
}

}  // namespace

TPickLists::TPickLists(TEntryForm& form, TOwnType ownType, THandlers handlers)
    : FForm(form), FHandlers(std::move(handlers)), FOwnType(ownType) {}

auto TPickLists::Chosen() const -> TChosen {
  return {std::string(ChosenEntry(TField::cmbExch)), std::string(ChosenEntry(TField::cmbOrderType)),
          std::string(ChosenEntry(TField::cmbMType))};
}

std::string_view TPickLists::ChosenEntry(TField combo) const {
  return EntryAt(combo, FForm.Combo(combo).Index());
}

std::string_view TPickLists::EntryAt(TField combo, std::int32_t index) const {
  const auto at = [index](const auto& list) -> std::string_view {
    const bool inRange = index >= 0 && static_cast<std::size_t>(index) < list.size();
    if (!inRange) return {};
    const auto& entry = list[static_cast<std::size_t>(index)];
    if constexpr (std::is_same_v<std::decay_t<decltype(entry)>, model::TChoiceItem>) {
      return entry.entry;
    } else {
      return entry;
    }
  };
  if (combo == TField::cmbExch) return at(FAlgoExchList);
  if (combo == TField::cmbOrderType) return at(FAlgoTypeList);
  if (combo == TField::cmbMType) return at(FOrderTypeList);
  const model::TParamRow& param = model::ParamRow(*Row(combo).param);
  if (param.reset == model::TReset::Refilled && !FStylesListed) return {};
  return at(param.choices);
}

void TPickLists::SelectEntry(TField combo, std::string_view entry) {
  for (std::int32_t index = 0; index < FForm.Combo(combo).Count(); ++index) {
    if (EntryAt(combo, index) == entry) return FForm.Combo(combo).SetIndex(index);
  }
}

const model::TAlgoRow* TPickLists::ChosenAlgo() const {
  const std::int32_t index = FForm.Combo(TField::cmbOrderType).Index();
  if (index < 0 || index > std::ssize(FAlgoTypeList)) return nullptr;
  // An index just behind the list is let through to the list, which answers with its own error.
  if (index == std::ssize(FAlgoTypeList)) throw EListIndexError(index);
  return model::FindAlgoById(FAlgoTypeList[static_cast<std::size_t>(index)]);
}

const std::string& TPickLists::ChosenAlgoCode() const {
  const std::int32_t index = FForm.Combo(TField::cmbOrderType).Index();
  if (index < 0 || index >= std::ssize(FOrderTypeConstList)) throw EListIndexError(index);
  return FOrderTypeConstList[static_cast<std::size_t>(index)];
}

const model::TOrderTypeRow* TPickLists::ChosenOrderType() const {
  return model::FindOrderTypeById(Chosen().orderType);
}

// The host is asked for all texts of a list first: it may choose something else, or have the list read anew,
// while it is asked.

void TPickLists::FillChoices(const model::TParamRow& param) {
  std::vector<std::string> items;
  items.reserve(param.choices.size());
  for (const model::TChoiceItem& item : param.choices) items.push_back(ItemText(item));
  auto& combo = FForm.Combo(FieldOf(param.param));
  const bool reset = param.reset == model::TReset::Refilled || (combo.Index() < 0 && param.alwaysChosen);
  combo.Refill(std::move(items), reset ? ResetIndex(param) : combo.Index());
}

void TPickLists::FillPickLists() {
  for (const model::TParamRow& row : model::ParamRows()) {
    if (row.kind == model::TValueKind::Choice && row.reset != model::TReset::Refilled) FillChoices(row);
  }
  const std::vector<std::string> ids = FAlgoTypeList;
  std::vector<std::string> texts;
  texts.reserve(ids.size());
  for (const std::string& id : ids) texts.push_back(host::ResourceText(id));
  auto& combo = FForm.Combo(TField::cmbOrderType);
  if (ids == FAlgoTypeList) combo.Refill(std::move(texts), combo.Index());
}

void TPickLists::FillStyleList() {
  FStylesListed = true;
  FillChoices(model::ParamRow(model::TParam::Style));
}

std::int32_t TPickLists::IndexOfAlgo(std::string_view code) const {
  const auto found = std::find_if(FOrderTypeConstList.begin(), FOrderTypeConstList.end(),
                                  [code](const std::string& each) { return text::EqualNoCase(each, code); });
  return found == FOrderTypeConstList.end() ? -1
                                            : static_cast<std::int32_t>(found - FOrderTypeConstList.begin());
}

void TPickLists::SelectAlgo(std::string_view code) {
  FForm.Combo(TField::cmbOrderType).SetIndex(IndexOfAlgo(code));
}

void TPickLists::ChooseNothing() {
  auto& combo = FForm.Combo(TField::cmbOrderType);
  combo.Refill(combo.Items(), -1);
  FHandled.algoType.clear();
}

void TPickLists::SelectNoAlgo() {
  FAlgoMayStandIn = false;
  FForm.Combo(TField::cmbOrderType).SetIndex(-1);
}

}  // namespace algo::views::entry
