#include "terminal/paper/csv_table.h"

#include <algorithm>
#include <cassert>
#include <fstream>
#include <sstream>
#include <utility>

#include "terminal/paper/csv_scanner.h"
#include "terminal/paper/paper_error.h"
#include "text/number_text.h"

namespace algo::terminal::paper {

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
  // Copying nothing from an empty file would set the stream's failure flag.
  if (stream && stream.peek() != std::ifstream::traits_type::eof()) text << stream.rdbuf();
  if (!stream.is_open() || stream.bad())
    throw EPaperError(file.string(), 1, "cannot be read; a file is expected");
  return text.str();
}

}  // namespace algo::terminal::paper
