#include "terminal/drive/arguments.h"

#include <limits>

namespace algo::terminal::drive {

namespace {

[[noreturn]] void Refuse(std::string_view name, std::string_view wanted) {
  throw ECommandError("'" + std::string(name) + "' must be " + std::string(wanted));
}

/// A whole number that fits the type; 2.0 counts as 2.
template <class TNumber>
TNumber AsWhole(std::string_view name, const TCommandJson& value) {
  using TLimits = std::numeric_limits<TNumber>;
  if (!value.is_number()) Refuse(name, "a whole number");
  // Every 32-bit number is exact as a double, and what is too large stays too large.
  const double number = value.get<double>();
  if (std::trunc(number) != number) Refuse(name, "a whole number");
  if (number < static_cast<double>(TLimits::min()) || number > static_cast<double>(TLimits::max())) {
    Refuse(name, "a number that fits 32 bits");
  }
  return static_cast<TNumber>(number);
}

}  // namespace

const std::string& AsText(std::string_view name, const TCommandJson& value) {
  if (!value.is_string()) Refuse(name, "a text");
  return value.get_ref<const std::string&>();
}

bool AsBoolean(std::string_view name, const TCommandJson& value) {
  if (!value.is_boolean()) Refuse(name, "true or false");
  return value.get<bool>();
}

double AsNumber(std::string_view name, const TCommandJson& value) {
  if (!value.is_number()) Refuse(name, "a number");
  return value.get<double>();
}

std::int32_t AsInteger(std::string_view name, const TCommandJson& value) {
  return AsWhole<std::int32_t>(name, value);
}

std::uint32_t AsFlags(std::string_view name, const TCommandJson& value) {
  return AsWhole<std::uint32_t>(name, value);
}

std::vector<std::string> AsTexts(std::string_view name, const TCommandJson& value) {
  if (!value.is_array()) Refuse(name, "a list of texts");
  std::vector<std::string> texts;
  texts.reserve(value.size());
  for (const auto& item : value) {
    if (!item.is_string()) Refuse(name, "a list of texts");
    texts.push_back(item.get<std::string>());
  }
  return texts;
}

const TCommandJson& AsTable(std::string_view name, const TCommandJson& value) {
  if (!value.is_object()) Refuse(name, "a table");
  return value;
}

const TCommandJson* TArguments::Find(std::string_view name) const {
  const auto found = FCommand.find(name);
  return found == FCommand.end() ? nullptr : &*found;
}

const TCommandJson& TArguments::Required(std::string_view name) const {
  const TCommandJson* value = Find(name);
  if (value == nullptr) throw ECommandError("'" + std::string(name) + "' is missing");
  return *value;
}

std::string TArguments::TextOr(std::string_view name, std::string_view otherwise) const {
  const TCommandJson* value = Find(name);
  return value == nullptr ? std::string(otherwise) : AsText(name, *value);
}

std::int32_t TArguments::IntegerOr(std::string_view name, std::int32_t otherwise) const {
  const TCommandJson* value = Find(name);
  return value == nullptr ? otherwise : AsInteger(name, *value);
}

bool TArguments::BooleanOr(std::string_view name, bool otherwise) const {
  const TCommandJson* value = Find(name);
  return value == nullptr ? otherwise : AsBoolean(name, *value);
}

}  // namespace algo::terminal::drive
