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

std::string KeepSql() {
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
    : FKeep(connection, KeepSql()),
      FForgetNumbered(connection, "DELETE FROM numbered_texts WHERE place = ?"),
      FForgetNamed(connection, "DELETE FROM named_texts WHERE place = ?"),
      FKeepNumbered(connection, "INSERT INTO numbered_texts (place, number, text) VALUES (?, ?, ?)"),
      FKeepNamed(connection, "INSERT INTO named_texts (place, name, text) VALUES (?, ?, ?)"),
      FAll(connection, "SELECT place, " + ColumnNames() + " FROM orders ORDER BY place"),
      FNumbered(connection, "SELECT number, text FROM numbered_texts WHERE place = ?"),
      FNamed(connection, "SELECT name, text FROM named_texts WHERE place = ?") {}

void TOrderRows::Keep(const TOrder& order) {
  std::int64_t place = 0;
  {
    TRun run(FKeep);
    for (const TColumn& column : Columns) {
      std::visit([&](auto property) { run.Put(order.*property); }, column.property);
    }
    while (run.Next()) run.Take(place);
  }
  Run(FForgetNumbered, place);
  Run(FForgetNamed, place);
  for (const auto& [number, text] : order.NumberedTexts()) Run(FKeepNumbered, place, number, text);
  for (const auto& [name, text] : order.NamedTexts()) Run(FKeepNamed, place, name, text);
}

std::vector<std::unique_ptr<TOrder>> TOrderRows::All() {
  std::vector<std::unique_ptr<TOrder>> orders;
  std::string text;
  for (TRun run(FAll); run.Next();) {
    TOrder& order = *orders.emplace_back(std::make_unique<TOrder>());
    std::int64_t place = 0;
    run.Take(place);
    for (const TColumn& column : Columns) {
      std::visit([&](auto property) { run.Take(order.*property); }, column.property);
    }
    std::int32_t number = 0;
    for (TRun numbered(FNumbered, place); numbered.Next();) {
      numbered.Take(number);
      numbered.Take(text);
      order.SetTextProperty(number, text);
    }
    std::string name;
    for (TRun named(FNamed, place); named.Next();) {
      named.Take(name);
      named.Take(text);
      order.SetNamedText(name, text);
    }
  }
  return orders;
}

}  // namespace algo::terminal::storage
