#pragma once

// The controls that are picked or pressed: fixed-list combo boxes, check boxes, buttons and speed buttons.

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "forms/control.h"

namespace algo::forms {

/// A fixed list of which one item, or none, is picked.
class ALGO_SHARED TComboBox : public TControl {
 public:
  TComboBox(TFrame& frame, std::string name);

  const std::vector<std::string>& Items() const { return FItems; }
  std::int32_t Count() const { return static_cast<std::int32_t>(FItems.size()); }

  /// The picked item's place, -1 for none.
  std::int32_t Index() const { return FIndex; }
  /// Picks an item; -1 picks none. Throws EListIndexError for any other index that the list does not have.
  void SetIndex(std::int32_t index);
  void SelectFirst() { SetIndex(FItems.empty() ? -1 : 0); }
  void SelectLast() { SetIndex(Count() - 1); }

  /// What the last choice should have led to did not happen: the next one counts as another choice, also when
  /// it is of the same item.
  void Unsettle() { FUnsettled = true; }

  /// Puts a new list in place with `index` picked, with no change event: a refill is not a choice.
  void Refill(std::vector<std::string> items, std::int32_t index);

  /// The picked item's text; empty when none is.
  std::string Text() const override;

 private:
  std::vector<std::string> FItems;
  std::int32_t FIndex = -1;
  bool FUnsettled = false;
};

class ALGO_SHARED TCheckBox : public TControl {
 public:
  TCheckBox(TFrame& frame, std::string name);

  bool Checked() const { return FChecked; }
  void SetChecked(bool checked);

 private:
  bool FChecked = false;
};

class ALGO_SHARED TButton : public TControl {
 public:
  TButton(TFrame& frame, std::string name);

  /// Looks of the button by slot, as skins number them. A slot without a colour is the toolkit's to choose.
  const std::map<std::int32_t, TColor>& Colors() const { return FColors; }
  void SetColor(std::int32_t slot, TColor color);

 private:
  std::map<std::int32_t, TColor> FColors;
};

/// A button that stays down. Of the buttons of one group (above 0) at most one is down.
class ALGO_SHARED TSpeedButton : public TButton {
 public:
  TSpeedButton(TFrame& frame, std::string name, std::int32_t group);

  bool Pressed() const { return FPressed; }
  /// Presses or releases the button; pressing releases the others of its group.
  void SetPressed(bool pressed);

 private:
  std::int32_t FGroup;
  bool FPressed = false;
};

}  // namespace algo::forms
