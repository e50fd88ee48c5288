#include "terminal/storage/event_rows.h"

namespace algo::terminal::storage {

namespace {

std::string SelectSql(const char* which) {
  return std::string(
             "SELECT sequence, time, who, what, answer, order_key, quantity, filled, price, status FROM "
             "events") +
         which + " ORDER BY sequence";
}

std::vector<TStoredEvent> EventsOf(TRun& run) {
  std::vector<TStoredEvent> events;
  while (run.Next()) {
    TStoredEvent& kept = events.emplace_back();
    run.Take(kept.sequence);
    run.Take(kept.time);
    run.Take(kept.event.who);
    run.Take(kept.event.what);
    run.Take(kept.event.answer);
    run.Take(kept.orderKey);
    run.Take(kept.quantity);
    run.Take(kept.filled);
    run.Take(kept.price);
    run.Take(kept.status);
  }
  return events;
}

}  // namespace

TEventRows::TEventRows(TConnection& connection)
    : FKeep(connection,
            "INSERT INTO events (time, who, what, answer, order_key, quantity, filled, price, status)"
            " VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?)"),
      FAll(connection, SelectSql("")),
      FOf(connection, SelectSql(" WHERE order_key = ?")) {}

void TEventRows::Keep(const std::string& time, const TOrderEvent& event,
                      const host::TCustomClientOrder& order) {
  Run(FKeep, time, event.who, event.what, event.answer, order.key, order.quantity, order.filled, order.price,
      order.status);
}

std::vector<TStoredEvent> TEventRows::All() {
  TRun run(FAll);
  return EventsOf(run);
}

std::vector<TStoredEvent> TEventRows::Of(std::string_view orderKey) {
  TRun run(FOf, orderKey);
  return EventsOf(run);
}

}  // namespace algo::terminal::storage
