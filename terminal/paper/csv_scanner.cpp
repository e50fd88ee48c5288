#include "terminal/paper/csv_scanner.h"

#include <algorithm>

#include "terminal/paper/paper_error.h"

namespace algo::terminal::paper {

TCsvScanner::TCsvScanner(const std::string& file, std::string_view text) : FFile(file), FRest(text) {
  constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";
  if (FRest.starts_with(ByteOrderMark)) FRest.remove_prefix(ByteOrderMark.size());
}

bool TCsvScanner::SkipToFields() {
  while (FRest.starts_with('#') || FRest.starts_with('\n') || FRest.starts_with("\r\n")) {
    FRest.remove_prefix(std::min(FRest.find('\n'), FRest.size() - 1) + 1);
    ++FLine;
  }
  return !FRest.empty();
}

std::vector<std::string> TCsvScanner::ReadFields() {
  std::vector<std::string> fields;
  do {
    fields.push_back(FRest.starts_with('"') ? ReadQuoted() : ReadPlain());
  } while (TakeComma());
  EndLine();
  return fields;
}

std::string TCsvScanner::ReadPlain() {
  const std::size_t end = std::min(FRest.find_first_of(",\n"), FRest.size());
  std::string field(FRest.substr(0, end));
  FRest.remove_prefix(end);
  const bool lastOfLine = FRest.empty() || FRest[0] == '\n';
  if (lastOfLine && field.ends_with('\r')) field.pop_back();
  return field;
}

std::string TCsvScanner::ReadQuoted() {
  const std::size_t begin = FLine;
  std::string field;
  FRest.remove_prefix(1);
  for (;;) {
    const std::size_t quote = FRest.find('"');
    if (quote == std::string_view::npos) {
      throw EPaperError(FFile, begin, "a quoted field does not end; a closing quote is expected");
    }
    const std::string_view part = FRest.substr(0, quote);
    field += part;
    FLine += static_cast<std::size_t>(std::count(part.begin(), part.end(), '\n'));
    FRest.remove_prefix(quote + 1);
    // Two quotes stand for one; a lone one ends the field.
    if (!FRest.starts_with('"')) return field;
    field += '"';
    FRest.remove_prefix(1);
  }
}

bool TCsvScanner::TakeComma() {
  if (!FRest.starts_with(',')) return false;
  FRest.remove_prefix(1);
  return true;
}

void TCsvScanner::EndLine() {
  if (FRest.starts_with('\r')) FRest.remove_prefix(1);
  if (!FRest.empty() && FRest[0] != '\n') {
    throw EPaperError(FFile, FLine, "text after a closing quote; a comma or the line's end is expected");
  }
  if (!FRest.empty()) FRest.remove_prefix(1);
  ++FLine;
}

}  // namespace algo::terminal::paper
