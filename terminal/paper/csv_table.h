#pragma once

// Tables of comma-separated values, read as a whole. The first line names the columns, which may be in any
// order. A field in double quotes may contain commas, line ends and doubled quotes; lines that begin with #
// and empty lines are skipped; lines end with LF or CRLF, and a leading byte-order mark is skipped.

#include <cstddef>
#include <filesystem>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace algo::terminal::paper {

class TCsvTable {
 public:
  /// One line of the table. Valid while the table lives.
  class TRow {
   public:
    /// The field in that column, which must be one of the wanted columns.
    const std::string& Text(std::string_view column) const;
    /// The same; throws EPaperError if it is empty.
    const std::string& Given(std::string_view column) const;
    /// The field as a number; throws EPaperError if it is not one.
    double Number(std::string_view column) const;
    /// The same; throws EPaperError unless it is above 0.
    double Positive(std::string_view column) const;
    /// The same; throws EPaperError if it is below 0.
    double NotNegative(std::string_view column) const;
    /// Throws EPaperError with file and line of the row.
    [[noreturn]] void Fail(const std::string& problem) const;

   private:
    friend class TCsvTable;
    const TCsvTable* FTable = nullptr;
    std::size_t FLine = 0;
    std::vector<std::string> FFields;
  };

  /// Reads `text`; `file` is its name for messages. Throws EPaperError if one of the wanted columns is
  /// missing or a line does not have as many fields as the first one.
  TCsvTable(std::string file, std::string_view text, std::span<const std::string_view> wanted);
  TCsvTable(const TCsvTable&) = delete;
  TCsvTable& operator=(const TCsvTable&) = delete;

  /// The lines after the first, in their order.
  const std::vector<TRow>& Rows() const { return FRows; }

 private:
  void TakeRow(TRow row);

  std::string FFile;
  std::vector<std::string> FColumns;
  std::vector<TRow> FRows;
};

/// The content of the file; throws EPaperError if it cannot be read.
std::string ReadTableFile(const std::filesystem::path& file);

}  // namespace algo::terminal::paper
