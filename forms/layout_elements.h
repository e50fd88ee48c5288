#pragma once

// What a layout is made of: groups of elements, items that carry one control each, and the caption styles
// that several of them share.

#include <cstdint>
#include <string>
#include <vector>

#include "forms/export.h"
#include "forms/toolkit.h"

namespace algo::forms {

class TControl;
class TLayoutControl;
class TLayoutGroup;

/// The font that the captions of several layout elements share: whoever changes it changes the caption of
/// each of them.
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

}  // namespace algo::forms
