#include "terminal/storage/order_rows.h"

#include <array>
#include <cstdint>
#include <string>
#include <variant>

namespace algo::terminal::storage {

namespace {

using TOrder = host::TCustomClientOrder;
using TProperty =
    std::variant<std::string TOrder::*, double TOrder::*, std::int32_t TOrder::*, std::uint32_t TOrder::*>;

struct TColumn {
  const char* name;
  TProperty property;
};

constexpr std::array Columns{
    TColumn{"key", &TOrder::key},
    TColumn{"order_no", &TOrder::orderNo},
    TColumn{"parent_no", &TOrder::parentNo},
    TColumn{"account", &TOrder::account},
    TColumn{"symbol", &TOrder::symbol},
    TColumn{"exchange", &TOrder::exchange},
    TColumn{"user", &TOrder::user},
    TColumn{"side", &TOrder::side},
    TColumn{"quantity", &TOrder::quantity},
    TColumn{"filled", &TOrder::filled},
    TColumn{"committed", &TOrder::committed},
    TColumn{"price", &TOrder::price},
    TColumn{"stop_price", &TOrder::stopPrice},
    TColumn{"status", &TOrder::status},
    TColumn{"order_type_flags", &TOrder::orderTypeFlags},
    TColumn{"auction_flags", &TOrder::auctionFlags},
    TColumn{"algo_flags", &TOrder::algoFlags},
    TColumn{"flags", &TOrder::flags},
};

std::string ColumnNames() {
  std::string names;
  for (const TColumn& column : Columns) names.append(names.empty() ? "" : ", ").append(column.name);
  return names;
}

std::string StoreSql() {
  std::string marks;
  std::string changes;
  for (const TColumn& column : Columns) {
    marks.append(marks.empty() ? "?" : ", ?");
    changes.append(changes.empty() ? "" : ", ")
        .append(column.name)
        .append(" = excluded.")
        .append(column.name);
  }
  return "INSERT INTO orders (" + ColumnNames() + ") VALUES (" + marks +
         ") ON CONFLICT (key) DO UPDATE SET " + changes + " RETURNING place";
}

}  // namespace

TOrderRows::TOrderRows(TConnection& connection)
    : FStore(connection, StoreSql()),
      FDeleteNumbered(connection, "DELETE FROM numbered_texts WHERE place = ?"),
      FDeleteNamed(connection, "DELETE FROM named_texts WHERE place = ?"),
      FStoreNumbered(connection, "INSERT INTO numbered_texts (place, number, text) VALUES (?, ?, ?)"),
      FStoreNamed(connection, "INSERT INTO named_texts (place, name, text) VALUES (?, ?, ?)"),
      FAll(connection, "SELECT place, " + ColumnNames() + " FROM orders ORDER BY place"),
      FNumbered(connection, "SELECT number, text FROM numbered_texts WHERE place = ?"),
      FNamed(connection, "SELECT name, text FROM named_texts WHERE place = ?") {}

void TOrderRows::Store(const TOrder& order) {
  std::int64_t place = 0;
  {
    TQuery query(FStore);
    for (const TColumn& column : Columns) {
      std::visit([&](auto property) { query.Bind(order.*property); }, column.property);
    }
    while (query.Next()) query.Read(place);
  }
  Execute(FDeleteNumbered, place);
  Execute(FDeleteNamed, place);
  for (const auto& [number, text] : order.NumberedTexts()) Execute(FStoreNumbered, place, number, text);
  for (const auto& [name, text] : order.NamedTexts()) Execute(FStoreNamed, place, name, text);
}

std::vector<std::unique_ptr<TOrder>> TOrderRows::All() {
  std::vector<std::unique_ptr<TOrder>> orders;
  std::string text;
  for (TQuery query(FAll); query.Next();) {
    TOrder& order = *orders.emplace_back(std::make_unique<TOrder>());
    std::int64_t place = 0;
    query.Read(place);
    for (const TColumn& column : Columns) {
      std::visit([&](auto property) { query.Read(order.*property); }, column.property);
    }
    std::int32_t number = 0;
    for (TQuery numbered(FNumbered, place); numbered.Next();) {
      numbered.Read(number);
      numbered.Read(text);
      order.SetTextProperty(number, text);
    }
    std::string name;
    for (TQuery named(FNamed, place); named.Next();) {
      named.Read(name);
      named.Read(text);
      order.SetNamedText(name, text);
    }
  }
  return orders;
}

}  // namespace algo::terminal::storage
