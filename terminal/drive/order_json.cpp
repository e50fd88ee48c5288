#include "terminal/drive/order_json.h"

#include <array>
#include <variant>

namespace algo::terminal::drive {

namespace {

using host::TCustomOrder;

/// A field in one of the order's two lists of text properties.
struct TNumberedText {
  std::int32_t number;
};
struct TNamedText {
  std::string_view name;
};

/// Where a field is in the order; the kind of place is the type that its value must have.
using TPlace = std::variant<std::string TCustomOrder::*, double TCustomOrder::*, std::int32_t TCustomOrder::*,
                            std::uint32_t TCustomOrder::*, TNumberedText, TNamedText>;

struct TField {
  std::string_view name;
  TPlace place;
};

const std::array Fields{
    TField{"key", &TCustomOrder::key},
    TField{"order_no", &TCustomOrder::orderNo},
    TField{"parent_no", &TCustomOrder::parentNo},
    TField{"account", &TCustomOrder::account},
    TField{"symbol", &TCustomOrder::symbol},
    TField{"exchange", &TCustomOrder::exchange},
    TField{"side", &TCustomOrder::side},
    TField{"quantity", &TCustomOrder::quantity},
    TField{"filled", &TCustomOrder::filled},
    TField{"committed", &TCustomOrder::committed},
    TField{"price", &TCustomOrder::price},
    TField{"stop_price", &TCustomOrder::stopPrice},
    TField{"status", &TCustomOrder::status},
    TField{"type_flags", &TCustomOrder::orderTypeFlags},
    TField{"auction_flags", &TCustomOrder::auctionFlags},
    TField{"algo_flags", &TCustomOrder::algoFlags},
    TField{"flags", &TCustomOrder::flags},
    TField{"algo_text", TNumberedText{host::AlgoTextProperty}},
    TField{"original", TNamedText{host::OriginalProperty}},
    TField{"user", &TCustomOrder::user},
};

/// Reads or writes a field, one overload for each kind of place.
struct TReader {
  const TCustomOrder& order;

  TAnswerJson operator()(std::string TCustomOrder::*place) const { return order.*place; }
  TAnswerJson operator()(double TCustomOrder::*place) const { return NumberJson(order.*place); }
  TAnswerJson operator()(std::int32_t TCustomOrder::*place) const { return order.*place; }
  TAnswerJson operator()(std::uint32_t TCustomOrder::*place) const { return order.*place; }
  TAnswerJson operator()(TNumberedText place) const { return order.TextProperty(place.number); }
  TAnswerJson operator()(TNamedText place) const { return order.NamedText(place.name); }
};

struct TWriter {
  TCustomOrder& order;
  std::string_view name;
  const TCommandJson& value;

  void operator()(std::string TCustomOrder::*place) const { order.*place = AsText(name, value); }
  void operator()(double TCustomOrder::*place) const { order.*place = AsNumber(name, value); }
  void operator()(std::int32_t TCustomOrder::*place) const { order.*place = AsInteger(name, value); }
  void operator()(std::uint32_t TCustomOrder::*place) const { order.*place = AsFlags(name, value); }
  void operator()(TNumberedText place) const { order.SetTextProperty(place.number, AsText(name, value)); }
  void operator()(TNamedText place) const { order.SetNamedText(place.name, AsText(name, value)); }
};

}  // namespace

TAnswerJson OrderJson(const TCustomOrder& order) {
  TAnswerJson fields = TAnswerJson::object();
  for (const auto& field : Fields) {
    fields[std::string(field.name)] = std::visit(TReader{order}, field.place);
  }
  return fields;
}

TAnswerJson OrderJson(const TCustomOrder* order) {
  return order == nullptr ? TAnswerJson(nullptr) : OrderJson(*order);
}

void ApplyOrderFields(const TArguments& arguments, host::TCustomClientOrder& order) {
  host::TCustomClientOrder changed = order;
  for (const auto& field : Fields) {
    if (const TCommandJson* value = arguments.Find(field.name)) {
      std::visit(TWriter{changed, field.name, *value}, field.place);
    }
  }
  order.AssignContent(changed);
}

}  // namespace algo::terminal::drive
