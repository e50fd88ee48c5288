#include "text/text.h"

namespace algo::text {

std::string_view TrimLeft(std::string_view text) {
  const auto first = std::find_if_not(text.begin(), text.end(), IsBlank);
  return text.substr(static_cast<std::size_t>(first - text.begin()));
}

std::string_view Trim(std::string_view text) {
  text = TrimLeft(text);
  while (!text.empty() && IsBlank(text.back())) text.remove_suffix(1);
  return text;
}

bool ContainsNoCase(std::string_view text, std::string_view part) {
  const auto found = std::search(text.begin(), text.end(), part.begin(), part.end(),
                                 [](char a, char b) { return ToUpper(a) == ToUpper(b); });
  return found != text.end() || part.empty();
}

}  // namespace algo::text
