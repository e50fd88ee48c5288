#include "terminal/desk/panels/empty_note.h"

#include <QEvent>

namespace algo::terminal::desk::panels {

TEmptyNote::TEmptyNote(QAbstractItemView& view) : QLabel(view.viewport()), FView(view) {
  setObjectName("emptyNote");
  setAlignment(Qt::AlignCenter);
  setAttribute(Qt::WA_TransparentForMouseEvents);
  view.viewport()->installEventFilter(this);
  const QAbstractItemModel* model = view.model();
  connect(model, &QAbstractItemModel::rowsInserted, this, &TEmptyNote::Refresh);
  connect(model, &QAbstractItemModel::rowsRemoved, this, &TEmptyNote::Refresh);
  connect(model, &QAbstractItemModel::modelReset, this, &TEmptyNote::Refresh);
  connect(model, &QAbstractItemModel::layoutChanged, this, &TEmptyNote::Refresh);
  Refresh();
}

bool TEmptyNote::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Resize) Refresh();
  return QLabel::eventFilter(watched, event);
}

void TEmptyNote::Refresh() {
  setGeometry(FView.viewport()->rect());
  setVisible(FView.model()->rowCount() == 0);
}

}  // namespace algo::terminal::desk::panels
