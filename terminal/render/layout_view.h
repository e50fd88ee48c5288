#pragma once

// The layout tree as widgets: a box with a heading for each group, a row of caption and control for each
// item. The widgets are created once; what is shown, and where, follows the tree.

#include <QBoxLayout>
#include <QLabel>
#include <QWidget>
#include <functional>
#include <unordered_map>
#include <vector>

#include "forms/layout.h"

namespace algo::terminal::render {

class TLayoutView {
 public:
  /// Creates the widget of a control as a child of `parent`.
  using TMakeControl = std::function<QWidget&(forms::TControl& control, QWidget& parent)>;

  /// Fills `parent`, which gets a layout of its own and shows nothing yet.
  TLayoutView(const forms::TLayoutControl& layout, QWidget& parent, TMakeControl make);

  /// Shows the tree as it is now.
  void Sync();

 private:
  struct TElementView {
    QWidget* whole = nullptr;
    QLabel* caption = nullptr;
    QBoxLayout* body = nullptr;  ///< of groups: the children's layout
  };

  /// Updates the element and what is below it, and creates its widgets if it is visible for the first time.
  void SyncElement(const forms::TLayoutElement& element, QWidget& parent);
  void SyncChildren(const forms::TLayoutGroup& group);
  TElementView& Build(const forms::TLayoutElement& element, QWidget& parent);
  void BuildGroup(const forms::TLayoutGroup& group, TElementView& view);
  void BuildItem(const forms::TLayoutItem& item, TElementView& view);
  void AlignCaptions(const forms::TLayoutGroup& top);
  void CollectCaptions(const forms::TLayoutGroup& group, std::vector<QLabel*>& captions) const;

  const forms::TLayoutControl& FLayout;
  QWidget& FParent;
  QBoxLayout& FColumns;
  TMakeControl FMake;
  std::unordered_map<const forms::TLayoutElement*, TElementView> FViews;
};

}  // namespace algo::terminal::render
