// What an algorithm shows of the form, and what its fields hold before the trader fills them in.

#include "views/entry/entry_form.h"
#include "views/entry/field_lists.h"

namespace algo::views::entry {

namespace {

// What the row of an algorithm names, looked up once while it is compiled.
struct TAlgoView {
  model::TInlineList<TGroup, model::MaxGroups> groups;
  model::TInlineList<TGroup, model::MaxHiddenItems> hiddenGroups;
  model::TInlineList<TField, model::MaxHiddenItems> hiddenItems;
};

constexpr auto Views = [] {
  std::array<TAlgoView, model::AlgoTable.size()> views{};
  for (std::size_t i = 0; i < views.size(); ++i) {
    for (const std::string_view name : model::AlgoTable[i].groups) {
      views[i].groups.Add(*field_lists::FindGroup(name));
    }
    for (const std::string_view name : model::AlgoTable[i].hiddenItems) {
      if (const auto group = field_lists::FindGroup(name)) {
        views[i].hiddenGroups.Add(*group);
      } else {
        views[i].hiddenItems.Add(*field_lists::FindItem(name));
      }
    }
  }
  return views;
}();

const TAlgoView& ViewOf(const model::TAlgoRow& algo) {
  return Views[static_cast<std::size_t>(&algo - model::AlgoTable.data())];
}

}  // namespace

void TEntryForm::HideAlgo() {
  for (const TGroup group : AllAlgoGroups) Group(group).SetVisible(false);
  for (const TGroup group : GroupsShownAgain) Group(group).SetVisible(true);
  for (const TField field : ItemsShownAgain) Item(field).SetVisible(true);
}

void TEntryForm::ShowAlgo(const model::TAlgoRow& algo) {
  const auto moveShared = [this](TGroup column) {
    for (const TGroup group : GroupsThatMove) Layout().Move(Group(group), Group(column));
  };
  moveShared(TGroup::lgAlgo);
  const TAlgoView& view = ViewOf(algo);
  for (const TGroup group : view.groups) Group(group).SetVisible(true);
  for (const TGroup group : view.hiddenGroups) Group(group).SetVisible(false);
  for (const TField field : view.hiddenItems) Item(field).SetVisible(false);
  for (const auto& [param, maximum] : algo.maximums) Spin(FieldOf(param)).SetMax(maximum);
  for (const model::TParam param : algo.notSetAtFirst) Combo(FieldOf(param)).SelectLast();
  if (algo.groupsInRightColumn) moveShared(TGroup::lgAlgoRight);
  FKeyCaptions->SetBold(true);
  for (const TField field : KeyInputs) Item(field).SetStyle(FKeyCaptions);
}

void TEntryForm::EmptyAlgoFields() {
  for (const model::TParamRow& row : model::ParamRows()) {
    const TField field = FieldOf(row.param);
    switch (row.reset) {
      case model::TReset::Empty:
        static_cast<forms::TEditor&>(Control(field)).SetText({});
        break;
      case model::TReset::FirstItem:
        Combo(field).SelectFirst();
        break;
      case model::TReset::LastItem:
        Combo(field).SelectLast();
        break;
      case model::TReset::Refilled:
        break;
    }
  }
}

}  // namespace algo::views::entry
