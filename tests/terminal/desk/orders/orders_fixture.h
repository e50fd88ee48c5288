#pragma once

// Orders on a host without a module.

#include <gtest/gtest.h>

#include <QModelIndex>
#include <QString>
#include <string>

#include "terminal/desk/appearance/texts.h"
#include "terminal/host/memory_host.h"
#include "tests/terminal/host/event_notes.h"

namespace algo::terminal::desk::tests {

inline host::TCustomClientOrder SampleOrder(const std::string& key, const std::string& parent = {}) {
  host::TCustomClientOrder order;
  order.key = key;
  order.orderNo = key;
  order.parentNo = parent;
  order.account = "A1";
  order.symbol = "0005";
  order.quantity = 12000;
  order.price = 60.5;
  return order;
}

struct TOrdersTest : testing::Test {
  void Record(const host::TCustomClientOrder& order) {
    host.Journal().Record({"test", "test", "test"}, order);
  }
  QString Cell(const QModelIndex& row, int column) { return row.siblingAtColumn(column).data().toString(); }

  terminal::tests::TEventNotes events;
  TMemoryHost host{events};
  appearance::TTexts texts{appearance::TLanguage::English};
};

}  // namespace algo::terminal::desk::tests
