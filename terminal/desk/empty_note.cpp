#include "terminal/desk/empty_note.h"

#include <QEvent>

namespace algo::terminal {

TEmptyNote::TEmptyNote(QAbstractItemView& view) : QLabel(view.viewport()), FView(view) {
  setObjectName("emptyNote");
  setAlignment(Qt::AlignCenter);
  setAttribute(Qt::WA_TransparentForMouseEvents);
  view.viewport()->installEventFilter(this);
  const QAbstractItemModel* model = view.model();
  connect(model, &QAbstractItemModel::rowsInserted, this, &TEmptyNote::Follow);
  connect(model, &QAbstractItemModel::rowsRemoved, this, &TEmptyNote::Follow);
  connect(model, &QAbstractItemModel::modelReset, this, &TEmptyNote::Follow);
  connect(model, &QAbstractItemModel::layoutChanged, this, &TEmptyNote::Follow);
  Follow();
}

bool TEmptyNote::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Resize) Follow();
  return QLabel::eventFilter(watched, event);
}

void TEmptyNote::Follow() {
  setGeometry(FView.viewport()->rect());
  setVisible(FView.model()->rowCount() == 0);
}

}  // namespace algo::terminal
