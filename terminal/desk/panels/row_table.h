#pragma once

// How a table looks in a panel.

#include <QTableView>

namespace algo::terminal::desk::panels {

/// Has the table show its rows as a list: striped, without a grid, and selected as a whole. Tab leaves it.
void ShowRows(QTableView& table);

}  // namespace algo::terminal::desk::panels
