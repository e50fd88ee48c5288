#include "text/comma_text.h"

#include <algorithm>

#include "text/text.h"

namespace algo::text {

namespace {

bool NeedsQuotes(std::string_view item) {
  return item.empty() || std::any_of(item.begin(), item.end(), [](char character) {
           const auto code = static_cast<unsigned char>(character);
           return code <= 0x20 || code == 0x7F || character == ',' || character == '"';
         });
}

}  // namespace

void AppendCommaItem(std::string& line, std::string_view item) {
  if (!line.empty()) line += ',';
  if (!NeedsQuotes(item)) {
    line += item;
    return;
  }
  line += '"';
  for (const char character : item) {
    if (character == '"') line += '"';
    line += character;
  }
  line += '"';
}

bool TCommaReader::Next(std::string_view& item) {
  FRest = TrimLeft(FRest);
  if (FRest.empty()) return false;
  if (FRest.front() == '"') {
    item = ReadQuoted();
    FRest = TrimLeft(FRest);
    if (!FRest.empty() && FRest.front() == ',') FRest.remove_prefix(1);
    return true;
  }
  const std::size_t end = std::min(FRest.find(','), FRest.size());
  item = Trim(FRest.substr(0, end));
  FRest.remove_prefix(std::min(end + 1, FRest.size()));
  return true;
}

std::string_view TCommaReader::ReadQuoted() {
  FUnquoted.clear();
  FRest.remove_prefix(1);
  while (!FRest.empty()) {
    const std::size_t quote = std::min(FRest.find('"'), FRest.size());
    FUnquoted += FRest.substr(0, quote);
    FRest.remove_prefix(std::min(quote + 1, FRest.size()));
    if (FRest.empty() || FRest.front() != '"') break;
    FUnquoted += '"';
    FRest.remove_prefix(1);
  }
  return FUnquoted;
}

}  // namespace algo::text
