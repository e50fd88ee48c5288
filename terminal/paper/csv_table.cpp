#include "terminal/paper/csv_table.h"

#include <algorithm>
#include <cassert>
#include <fstream>
#include <sstream>
#include <utility>

#include "terminal/paper/paper_error.h"
#include "text/number_text.h"

namespace algo::terminal {

namespace {

// Takes a text apart into fields, and counts the lines.
class TCsvScanner {
 public:
  TCsvScanner(const std::string& file, std::string_view text) : FFile(file), FRest(text) {
    constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";
    if (FRest.starts_with(ByteOrderMark)) FRest.remove_prefix(ByteOrderMark.size());
  }

  /// The line that the next call of ReadFields begins at.
  std::size_t Line() const { return FLine; }

  /// Whether there is one more line with fields; passes over those without.
  bool SkipToFields() {
    while (!FRest.empty() && (FRest[0] == '#' || FRest[0] == '\n' || FRest.starts_with("\r\n"))) {
      FRest.remove_prefix(std::min(FRest.find('\n'), FRest.size() - 1) + 1);
      ++FLine;
    }
    return !FRest.empty();
  }

  std::vector<std::string> ReadFields() {
    std::vector<std::string> fields;
    do {
      fields.push_back(FRest.starts_with('"') ? ReadQuoted() : ReadPlain());
    } while (TakeComma());
    EndLine();
    return fields;
  }

 private:
  std::string ReadPlain() {
    const std::size_t end = std::min(FRest.find_first_of(",\n"), FRest.size());
    std::string field(FRest.substr(0, end));
    FRest.remove_prefix(end);
    const bool lastOfLine = FRest.empty() || FRest[0] == '\n';
    if (lastOfLine && field.ends_with('\r')) field.pop_back();
    return field;
  }

  std::string ReadQuoted() {
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
      if (!FRest.starts_with('"')) return field;
      field += '"';
      FRest.remove_prefix(1);
    }
  }

  bool TakeComma() {
    if (!FRest.starts_with(',')) return false;
    FRest.remove_prefix(1);
    return true;
  }

  void EndLine() {
    if (FRest.starts_with('\r')) FRest.remove_prefix(1);
    if (!FRest.empty() && FRest[0] != '\n') {
      throw EPaperError(FFile, FLine, "text after a closing quote; a comma or the line's end is expected");
    }
    if (!FRest.empty()) FRest.remove_prefix(1);
    ++FLine;
  }

  const std::string& FFile;
  std::string_view FRest;
  std::size_t FLine = 1;
};

}  // namespace

TCsvTable::TCsvTable(std::string file, std::string_view text, std::span<const std::string_view> wanted)
    : FFile(std::move(file)) {
  TCsvScanner scanner(FFile, text);
  if (!scanner.SkipToFields())
    throw EPaperError(FFile, 1, "the file is empty; a line of column names is expected");
  const std::size_t headLine = scanner.Line();
  FColumns = scanner.ReadFields();
  for (const std::string_view column : wanted) {
    const auto count = std::count(FColumns.begin(), FColumns.end(), column);
    if (count == 1) continue;
    throw EPaperError(FFile, headLine,
                      "column '" + std::string(column) + "' is " + (count == 0 ? "missing" : "there twice") +
                          "; one is expected");
  }
  while (scanner.SkipToFields()) {
    TRow row;
    row.FLine = scanner.Line();
    row.FFields = scanner.ReadFields();
    TakeRow(std::move(row));
  }
}

void TCsvTable::TakeRow(TRow row) {
  row.FTable = this;
  if (row.FFields.size() != FColumns.size()) {
    row.Fail(std::to_string(row.FFields.size()) + " fields; " + std::to_string(FColumns.size()) +
             " are expected, as in the first line");
  }
  FRows.push_back(std::move(row));
}

const std::string& TCsvTable::TRow::Text(std::string_view column) const {
  const auto& columns = FTable->FColumns;
  const auto found = std::find(columns.begin(), columns.end(), column);
  assert(found != columns.end());
  return FFields[static_cast<std::size_t>(found - columns.begin())];
}

const std::string& TCsvTable::TRow::Given(std::string_view column) const {
  const std::string& text = Text(column);
  if (text.empty()) Fail(std::string(column) + " is empty; a text is expected");
  return text;
}

double TCsvTable::TRow::Number(std::string_view column) const {
  const auto number = text::ParseNumber(Text(column));
  if (!number) Fail(std::string(column) + " is '" + Text(column) + "'; a number is expected");
  return *number;
}

double TCsvTable::TRow::Positive(std::string_view column) const {
  const double number = Number(column);
  if (number <= 0) Fail(std::string(column) + " is " + Text(column) + "; a number above 0 is expected");
  return number;
}

double TCsvTable::TRow::NotNegative(std::string_view column) const {
  const double number = Number(column);
  if (number < 0) Fail(std::string(column) + " is " + Text(column) + "; 0 or more is expected");
  return number;
}

void TCsvTable::TRow::Fail(const std::string& problem) const {
  throw EPaperError(FTable->FFile, FLine, problem);
}

std::string ReadTableFile(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  std::ostringstream text;
  // An empty file leaves nothing to copy, which the stream takes for a failure.
  if (stream && stream.peek() != std::ifstream::traits_type::eof()) text << stream.rdbuf();
  if (!stream.is_open() || stream.bad())
    throw EPaperError(file.string(), 1, "cannot be read; a file is expected");
  return text.str();
}

}  // namespace algo::terminal
