#pragma once

// Small operations on texts. Letters are compared as ASCII, so the answer depends on no locale.

#include <algorithm>
#include <string_view>

namespace algo::text {

/// Whether the character is a blank or a control character, which trimming takes off.
constexpr bool IsBlank(char character) { return static_cast<unsigned char>(character) <= 0x20; }

/// The text without blanks and control characters in front.
std::string_view TrimLeft(std::string_view text);

/// The text without blanks and control characters at either end.
std::string_view Trim(std::string_view text);

constexpr char ToUpper(char character) {
  return character >= 'a' && character <= 'z' ? static_cast<char>(character - 'a' + 'A') : character;
}

/// Whether the texts are the same apart from letter case.
constexpr bool EqualNoCase(std::string_view left, std::string_view right) {
  return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                    [](char a, char b) { return ToUpper(a) == ToUpper(b); });
}

/// Whether `text` holds `part`, apart from letter case. Linear in the length of `text` for a short `part`.
bool ContainsNoCase(std::string_view text, std::string_view part);

/// Calls `take` with each piece of `text` between separators, in order; an empty text has one empty piece.
template <class TTake>
void ForEachPiece(std::string_view text, char separator, TTake&& take) {
  for (;;) {
    const std::size_t end = text.find(separator);
    if (end == std::string_view::npos) break;
    take(text.substr(0, end));
    text.remove_prefix(end + 1);
  }
  take(text);
}

}  // namespace algo::text
