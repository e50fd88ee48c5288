#pragma once

// Comma text: a list of items in one line, separated by commas. An item that is empty, or holds a blank, a
// control character, a comma or a double quote, stands in double quotes with inner ones doubled. Reading
// forgives: blanks around items are skipped, and an unclosed quote reaches to the end of the text.

#include <string>
#include <string_view>

namespace algo::text {

/// Appends `item` to `line`, with a comma before it unless the line is empty.
void AppendCommaItem(std::string& line, std::string_view item);

/// Reads the items of a line one by one, in linear time.
class TCommaReader {
 public:
  explicit TCommaReader(std::string_view line) : FRest(line) {}

  /// Puts the next item into `item`; false at the end of the line. An unquoted item is a part of the line, a
  /// quoted one is valid until the next call.
  bool Next(std::string_view& item);

 private:
  std::string_view ReadQuoted();

  std::string_view FRest;
  std::string FUnquoted;
};

}  // namespace algo::text
