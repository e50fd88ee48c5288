#pragma once

// The layout of a form: a tree of groups whose leaves are items, each of which carries one control with its
// caption. The tree says what stands beside what and what is shown; where the pixels are is the renderer's
// business. The content size is worked out here, so that a host can size its window before anything is drawn.

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "forms/layout_elements.h"

namespace algo::forms {

class TControl;
class TFrame;

enum class TTabDirection : std::uint8_t { Forward, Backward };

/// The tree itself. It owns its groups, items and caption styles; a frame has one.
class ALGO_SHARED TLayoutControl {
 public:
  explicit TLayoutControl(std::string name);
  ~TLayoutControl();
  TLayoutControl(const TLayoutControl&) = delete;
  TLayoutControl& operator=(const TLayoutControl&) = delete;

  const std::string& Name() const { return FName; }

  /// Adds an element as the last child of `parent` (nullptr: as a top group). Names are unique within the
  /// layout.
  TLayoutGroup& AddGroup(std::string name, TLayoutGroup* parent, TDirection direction);
  TLayoutItem& AddItem(std::string name, TLayoutGroup& parent, TControl& control);
  TCaptionStyle& AddStyle(std::string name);

  /// Makes `element` the last child of `parent`, wherever it stood before.
  void Move(TLayoutElement& element, TLayoutGroup& parent);

  /// The group or item of that name; nullptr when there is none.
  TLayoutElement* Find(std::string_view name) const;

  /// The place of `element` among its siblings, from 0.
  std::size_t Position(const TLayoutElement& element) const;

  const std::vector<std::unique_ptr<TLayoutElement>>& Elements() const { return FElements; }
  const std::vector<TLayoutGroup*>& TopGroups() const { return FTopGroups; }

  /// The controls in the order in which Tab visits them: depth first through the top groups and their
  /// children, each level in the order in which it is drawn. Tab passes over a control that cannot take the
  /// focus at the time.
  std::vector<TControl*> TabOrder() const;

  /// Where Tab, or Shift+Tab for Backward, goes from `control`: the nearest control of the tab order that can
  /// take the focus. nullptr behind the last one, where Tab leaves the frame. From nullptr it enters the
  /// frame, at the first control or the last.
  TControl* NextInTabOrder(const TControl* control, TTabDirection direction) const;

  /// Between the two calls changes are gathered, so that a renderer is notified once, at the outermost end.
  /// Before that, a control that has the focus and can take it no longer is left, and nothing has it then.
  void BeginUpdate();
  void EndUpdate();

  /// Notes a change of what is shown; notifies the frame at once or at the end of the running update.
  void Changed();

  /// The room that everything visible needs. Top groups stand side by side.
  TSize ContentSize() const;

 private:
  friend class TFrame;

  std::string FName;
  std::vector<std::unique_ptr<TLayoutElement>> FElements;
  std::vector<std::unique_ptr<TCaptionStyle>> FStyles;
  std::vector<TLayoutGroup*> FTopGroups;
  TFrame* FFrame = nullptr;
  std::int32_t FUpdateDepth = 0;
  bool FChangePending = false;
};

/// Holds a layout update open for the life of the object, also when an error ends the block.
class TLayoutUpdate {
 public:
  explicit TLayoutUpdate(TLayoutControl& layout) : FLayout(layout) { FLayout.BeginUpdate(); }
  ~TLayoutUpdate() { FLayout.EndUpdate(); }
  TLayoutUpdate(const TLayoutUpdate&) = delete;
  TLayoutUpdate& operator=(const TLayoutUpdate&) = delete;

 private:
  TLayoutControl& FLayout;
};

}  // namespace algo::forms
