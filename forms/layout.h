#pragma once

// The layout of a form: a tree of groups whose leaves are items, each of which carries one control with its
// caption. The tree says what stands beside what and what is shown; where the pixels are is the renderer's
// business. The content size is worked out here, so that a host can size its window before anything is drawn.

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "forms/toolkit.h"

namespace algo::forms {

class TControl;
class TLayoutControl;
class TLayoutGroup;

/// A caption look that several layout elements share: whoever changes it changes the caption of each of them.
class ALGO_SHARED TCaptionStyle {
 public:
  TCaptionStyle(TLayoutControl& layout, std::string name);

  const std::string& Name() const { return FName; }
  const TFont& Font() const { return FFont; }
  void SetBold(bool bold);
  void SetSize(std::int32_t size);

 private:
  TLayoutControl& FLayout;
  std::string FName;
  TFont FFont;
};

/// What groups and items have in common.
class ALGO_SHARED TLayoutElement {
 public:
  TLayoutElement(TLayoutControl& layout, std::string name);
  virtual ~TLayoutElement();
  TLayoutElement(const TLayoutElement&) = delete;
  TLayoutElement& operator=(const TLayoutElement&) = delete;

  const std::string& Name() const { return FName; }

  /// The group that this element stands in; nullptr for a top group.
  TLayoutGroup* Parent() const { return FParent; }

  /// Whether this element itself is shown; its parents may still hide it.
  bool Visible() const { return FVisible; }
  void SetVisible(bool visible);

  /// A disabled element takes the input away from every control below it.
  bool Enabled() const { return FEnabled; }
  void SetEnabled(bool enabled);

  /// Visible itself, and all its parents visible.
  bool Showing() const;

  /// Enabled itself, and all its parents enabled.
  bool Usable() const;

  const std::string& Caption() const { return FCaption; }
  void SetCaption(std::string caption);

  /// The font of the caption: that of the shared style, where one was given.
  const TFont& Font() const;
  void SetStyle(const TCaptionStyle* style);

 protected:
  TLayoutControl& Layout() const { return FLayout; }

 private:
  friend class TLayoutControl;

  TLayoutControl& FLayout;
  std::string FName;
  std::string FCaption;
  TLayoutGroup* FParent = nullptr;
  const TCaptionStyle* FStyle = nullptr;
  bool FVisible = true;
  bool FEnabled = true;
};

enum class TDirection : std::uint8_t { Vertical, Horizontal };

/// A group of elements, one below or one beside the other.
class ALGO_SHARED TLayoutGroup : public TLayoutElement {
 public:
  TLayoutGroup(TLayoutControl& layout, std::string name, TDirection direction);
  ~TLayoutGroup() override;

  TDirection Direction() const { return FDirection; }

  /// The elements in the order in which they are drawn.
  const std::vector<TLayoutElement*>& Children() const { return FChildren; }

 private:
  friend class TLayoutControl;

  std::vector<TLayoutElement*> FChildren;
  TDirection FDirection;
};

/// The place of one control, with its caption.
class ALGO_SHARED TLayoutItem : public TLayoutElement {
 public:
  TLayoutItem(TLayoutControl& layout, std::string name, TControl& control);
  ~TLayoutItem() override;

  TControl& Control() const { return FControl; }

 private:
  TControl& FControl;
};

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

  /// Between the two calls changes are gathered, so that a renderer is told once, at the outermost end.
  void BeginUpdate();
  void EndUpdate();

  /// Notes a change of what is shown; tells the frame at once or at the end of the running update.
  void Changed();

  /// The room that everything visible needs. Top groups stand side by side.
  TSize ContentSize() const;

 private:
  friend class TFrame;

  std::string FName;
  std::vector<std::unique_ptr<TLayoutElement>> FElements;
  std::vector<std::unique_ptr<TCaptionStyle>> FStyles;
  std::vector<TLayoutGroup*> FTopGroups;
  class TFrame* FFrame = nullptr;
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
