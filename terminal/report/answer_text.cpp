#include "terminal/report/answer_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>

#include "text/number_text.h"

namespace algo::terminal::report {

namespace {

const nlohmann::json* Find(const nlohmann::json& object, std::string_view name) {
  if (!object.is_object()) return nullptr;
  const auto found = object.find(name);
  return found == object.end() ? nullptr : &*found;
}

/// Flags as a hexadecimal number; a number that cannot be 32 bits of flags is written as it is.
std::string FlagsText(double number) {
  if (number < 0 || number > static_cast<double>(UINT32_MAX) || std::trunc(number) != number) {
    return text::PlainNumber(number);
  }
  std::array<char, 8> digits{};
  const auto end =
      std::to_chars(digits.data(), digits.data() + digits.size(), static_cast<std::uint32_t>(number), 16);
  return "0x" + std::string(digits.data(), end.ptr);
}

std::string NumberText(double number, TWriting writing) {
  if (writing == TWriting::Side) {
    constexpr std::array<std::string_view, 2> Sides{"buy", "sell"};
    if (number == 0 || number == 1) return std::string(Sides[static_cast<std::size_t>(number)]);
    return text::PlainNumber(number);
  }
  if (number == 0) return {};
  if (writing == TWriting::Flags) return FlagsText(number);
  return writing == TWriting::Quantity ? text::GroupedNumber(number, -1) : text::PlainNumber(number);
}

/// The text on one line: line breaks and other control characters become blanks.
std::string OneLine(std::string text) {
  const auto isControl = [](char character) {
    return static_cast<unsigned char>(character) < 0x20 || character == 0x7F;
  };
  std::replace_if(text.begin(), text.end(), isControl, ' ');
  return text;
}

}  // namespace

std::string MemberText(const nlohmann::json& object, std::string_view name, TWriting writing) {
  const nlohmann::json* member = Find(object, name);
  if (member == nullptr) return {};
  if (member->is_string()) return OneLine(member->get<std::string>());
  if (member->is_number()) return NumberText(member->get<double>(), writing);
  return {};
}

const nlohmann::json& MemberList(const nlohmann::json& object, std::string_view name) {
  static const nlohmann::json none = nlohmann::json::array();
  const nlohmann::json* member = Find(object, name);
  return member != nullptr && member->is_array() ? *member : none;
}

bool MemberFlag(const nlohmann::json& object, std::string_view name) {
  const nlohmann::json* member = Find(object, name);
  return member != nullptr && member->is_boolean() && member->get<bool>();
}

}  // namespace algo::terminal::report
