#include "terminal/host/market_item.h"

#include <algorithm>

#include "text/number_text.h"

namespace algo::terminal {

double TMemoryItem::FieldNumber(std::int32_t field) const {
  const auto found = FFields.find(field);
  return found == FFields.end() ? 0 : found->second.number;
}

std::string_view TMemoryItem::FieldText(std::int32_t field) const {
  const auto found = FFields.find(field);
  return found == FFields.end() ? std::string_view() : found->second.text;
}

void TMemoryItem::SetField(std::int32_t field, std::string_view text) {
  TField& changed = FFields[field];
  changed.text = text;  // reuses its capacity
  changed.number = text::NumberOr(text, 0);
}

bool TSpreadCodes::Contains(std::string_view code) const {
  return std::find(FCodes.begin(), FCodes.end(), code) != FCodes.end();
}

}  // namespace algo::terminal
