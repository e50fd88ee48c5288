#pragma once

// A line in the middle of a list that shows while the list has no rows.

#include <QAbstractItemView>
#include <QLabel>

namespace algo::terminal {

class TEmptyNote final : public QLabel {
  Q_OBJECT
 public:
  /// The view, which has its model already, outlives the note.
  explicit TEmptyNote(QAbstractItemView& view);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Follow();

  QAbstractItemView& FView;
};

}  // namespace algo::terminal
