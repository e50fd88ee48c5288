#pragma once

// Splits the text of a CSV file into the fields of its lines, and counts the lines.

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace algo::terminal::paper {

class TCsvScanner {
 public:
  /// Skips a byte-order mark. `file`, the name for messages, and `text` outlive the scanner.
  TCsvScanner(const std::string& file, std::string_view text);

  /// The number of the line at which the next call of ReadFields begins, from 1.
  std::size_t Line() const { return FLine; }

  /// Skips comments and empty lines. Returns whether a line with fields follows.
  bool SkipToFields();

  /// The fields of the line, at least one. Throws EPaperError if its quotes do not match.
  std::vector<std::string> ReadFields();

 private:
  std::string ReadPlain();
  std::string ReadQuoted();
  bool TakeComma();
  void EndLine();

  const std::string& FFile;
  std::string_view FRest;
  std::size_t FLine = 1;
};

}  // namespace algo::terminal::paper
