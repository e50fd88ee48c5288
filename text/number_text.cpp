#include "text/number_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include "text/text.h"

namespace algo::text {

namespace {

constexpr bool IsDigit(char character) { return character >= '0' && character <= '9'; }

// A sign before the digits: from_chars knows the minus alone.
std::string_view WithoutPlus(std::string_view text) {
  const bool plus = text.size() > 1 && text[0] == '+' && text[1] != '-' && text[1] != '+';
  return plus ? text.substr(1) : text;
}

void RemoveTrailingZeros(std::string& digits) {
  if (digits.find('.') == std::string::npos) return;
  digits.erase(digits.find_last_not_of('0') + 1);
  if (digits.back() == '.') digits.pop_back();
}

}  // namespace

std::size_t WritePlainNumber(double value, char* out) {
  // Adding zero turns a negative zero into zero.
  const auto end = std::to_chars(out, out + PlainNumberCapacity, value + 0.0, std::chars_format::fixed);
  return static_cast<std::size_t>(end.ptr - out);
}

std::string PlainNumber(double value) {
  if (!std::isfinite(value)) return {};
  std::array<char, PlainNumberCapacity> digits;
  return {digits.data(), WritePlainNumber(value, digits.data())};
}

std::string GroupedNumber(double value, std::int32_t maxDecimals) {
  if (!std::isfinite(value)) return {};
  std::string digits = PlainNumber(std::abs(value));
  const std::size_t point = std::min(digits.find('.'), digits.size());
  if (maxDecimals >= 0 && digits.size() - point > static_cast<std::size_t>(maxDecimals) + 1) {
    std::array<char, PlainNumberCapacity + 64> rounded;
    const auto end = std::to_chars(rounded.data(), rounded.data() + rounded.size(), std::abs(value),
                                   std::chars_format::fixed, maxDecimals);
    digits.assign(rounded.data(), end.ptr);
    RemoveTrailingZeros(digits);
  }
  std::size_t place = std::min(digits.find('.'), digits.size());
  while (place > 3) {
    place -= 3;
    digits.insert(place, 1, ',');
  }
  if (value < 0 && digits != "0") digits.insert(0, 1, '-');
  return digits;
}

std::optional<double> ParseNumber(std::string_view text) {
  text = WithoutPlus(Trim(text));
  // from_chars would read "inf" and "nan" too; they start with no digit, point or minus, or have a letter
  // behind it.
  const std::string_view unsignedText = !text.empty() && text[0] == '-' ? text.substr(1) : text;
  if (unsignedText.empty() || (!IsDigit(unsignedText[0]) && unsignedText[0] != '.')) return std::nullopt;
  double value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc() || end != text.data() + text.size() || !std::isfinite(value)) return std::nullopt;
  return value;
}

double NumberOr(std::string_view text, double fallback) { return ParseNumber(text).value_or(fallback); }

std::optional<std::int64_t> ParseWhole(std::string_view text) {
  text = WithoutPlus(Trim(text));
  std::int64_t value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return value;
}

double RoundToDigits(double value, int digits) {
  if (!std::isfinite(value)) return value;
  std::array<char, 32> text;
  const auto written =
      std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::scientific, digits - 1);
  double rounded = value;
  std::from_chars(text.data(), written.ptr, rounded);
  // The largest numbers can round up beyond themselves.
  return std::isfinite(rounded) ? rounded : value;
}

std::int64_t TruncateToWhole(double value) {
  constexpr double Beyond = 9223372036854775808.0;  // 2 to the 63rd, the first that does not fit
  if (!(value >= -Beyond && value < Beyond)) return 0;
  return static_cast<std::int64_t>(value);
}

}  // namespace algo::text
