#pragma once

// The layout tree as widgets: a frame with a heading for each group, a row of caption and control for each
// item. The widgets are made once; what is shown, and where, follows the tree.

#include <QBoxLayout>
#include <QLabel>
#include <QWidget>
#include <functional>
#include <unordered_map>
#include <vector>

#include "forms/layout.h"

namespace algo::terminal {

class TLayoutView {
 public:
  /// Gives the widget of a control, made as a child of `parent`.
  using TMakeControl = std::function<QWidget&(forms::TControl& control, QWidget& parent)>;

  /// Builds all of it in `parent`, which gets a layout of its own.
  TLayoutView(const forms::TLayoutControl& layout, QWidget& parent, const TMakeControl& make);

  /// Shows the tree as it is now.
  void Sync();

 private:
  struct TElementView {
    QWidget* whole = nullptr;
    QLabel* caption = nullptr;
    QBoxLayout* body = nullptr;  ///< of groups: where the children stand
  };

  void Build(const forms::TLayoutElement& element, QWidget& parent, const TMakeControl& make);
  void BuildGroup(const forms::TLayoutGroup& group, TElementView& view, const TMakeControl& make);
  void BuildItem(const forms::TLayoutItem& item, TElementView& view, const TMakeControl& make);
  void Place(const forms::TLayoutGroup& group);
  void ShowElement(const forms::TLayoutElement& element);
  void AlignCaptions(const forms::TLayoutGroup& top);
  void CollectCaptions(const forms::TLayoutGroup& group, std::vector<QLabel*>& captions) const;

  const forms::TLayoutControl& FLayout;
  std::unordered_map<const forms::TLayoutElement*, TElementView> FViews;
};

}  // namespace algo::terminal
