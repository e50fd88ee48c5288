// algo-killed-writer FILE: enters and changes orders until it is killed.
//
// Every order takes the way of a trader's order, through the host's order actions, and is stored in the
// database FILE. For each accepted action the program writes one line: the order's key and, after a blank,
// the number of actions on it so far, which is also its quantity.

#include <unistd.h>

#include <exception>
#include <iostream>
#include <string>

#include "plugin/host_contract/order_action_manager.h"
#include "terminal/host/memory_host.h"
#include "terminal/storage/sqlite_storage.h"
#include "tests/terminal/host/event_notes.h"

namespace {

namespace host = algo::host;
namespace terminal = algo::terminal;

// Long enough to spread an order over many pages, so that a write can be torn, and so that the log is
// checkpointed into the database every few orders.
const std::string LongText(100000, 'x');

constexpr int ActionsOnAnOrder = 3;

void Say(const std::string& line) {
  if (write(STDOUT_FILENO, line.data(), line.size()) < 0) throw algo::EError("nobody listens");
}

void EnterOrders(terminal::TMemoryHost& host) {
  auto& actions = host::TCustomOrderActionManager::GetInstance();
  for (;;) {
    host::TCustomClientOrder order;
    auto action = host::TOrderAction::New;
    for (int count = 1; count <= ActionsOnAnOrder; ++count) {
      order.quantity = count;
      order.SetTextProperty(count, LongText);
      if (!actions.TakeAction(nullptr, &order, action, 1)) throw algo::EError("an action was refused");
      order.key = host.Orders().All().back()->key;
      action = host::TOrderAction::Change;
      Say(order.key + " " + std::to_string(count) + "\n");
    }
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: algo-killed-writer FILE\n";
    return 2;
  }
  try {
    terminal::storage::TSqliteStorage storage(argv[1]);
    terminal::tests::TEventNotes notes;
    terminal::TMemoryHost host(notes, storage);
    storage.LoadInto(host.Data(), host.Orders());
    EnterOrders(host);
  } catch (const std::exception& error) {
    std::cerr << "algo-killed-writer: " << error.what() << "\n";
  }
  return 1;
}
