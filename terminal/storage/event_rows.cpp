#include "terminal/storage/event_rows.h"

namespace algo::terminal::storage {

namespace {

std::string SelectSql(const char* which) {
  return std::string(
             "SELECT sequence, time, who, what, answer, order_key, quantity, filled, price, status FROM "
             "events") +
         which + " ORDER BY sequence";
}

std::vector<TStoredEvent> EventsOf(TQuery& query) {
  std::vector<TStoredEvent> events;
  while (query.Next()) {
    TStoredEvent& stored = events.emplace_back();
    query.Read(stored.sequence);
    query.Read(stored.time);
    query.Read(stored.event.who);
    query.Read(stored.event.what);
    query.Read(stored.event.answer);
    query.Read(stored.orderKey);
    query.Read(stored.quantity);
    query.Read(stored.filled);
    query.Read(stored.price);
    query.Read(stored.status);
  }
  return events;
}

}  // namespace

TEventRows::TEventRows(TConnection& connection)
    : FAdd(connection,
           "INSERT INTO events (time, who, what, answer, order_key, quantity, filled, price, status)"
           " VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?)"),
      FAll(connection, SelectSql("")),
      FOf(connection, SelectSql(" WHERE order_key = ?")) {}

void TEventRows::Add(const std::string& time, const TOrderEvent& event,
                     const host::TCustomClientOrder& order) {
  Execute(FAdd, time, event.who, event.what, event.answer, order.key, order.quantity, order.filled,
          order.price, order.status);
}

std::vector<TStoredEvent> TEventRows::All() {
  TQuery query(FAll);
  return EventsOf(query);
}

std::vector<TStoredEvent> TEventRows::Of(std::string_view orderKey) {
  TQuery query(FOf, orderKey);
  return EventsOf(query);
}

}  // namespace algo::terminal::storage
