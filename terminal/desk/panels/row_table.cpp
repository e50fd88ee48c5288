#include "terminal/desk/panels/row_table.h"

#include <QHeaderView>

namespace algo::terminal::desk::panels {

void ShowRows(QTableView& table) {
  constexpr int RowMargin = 6;
  table.setSelectionBehavior(QAbstractItemView::SelectRows);
  table.setAlternatingRowColors(true);
  table.setShowGrid(false);
  table.setTabKeyNavigation(false);
  table.verticalHeader()->hide();
  table.verticalHeader()->setDefaultSectionSize(table.fontMetrics().height() + RowMargin);
}

}  // namespace algo::terminal::desk::panels
