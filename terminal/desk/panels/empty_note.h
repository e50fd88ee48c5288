#pragma once

// A line in the middle of a list that shows while the list is empty.

#include <QAbstractItemView>
#include <QLabel>

namespace algo::terminal::desk::panels {

class TEmptyNote final : public QLabel {
  Q_OBJECT
 public:
  /// The view, which has its model already, outlives the note.
  explicit TEmptyNote(QAbstractItemView& view);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Refresh();

  QAbstractItemView& FView;
};

}  // namespace algo::terminal::desk::panels
