#pragma once

// Numbers as text, the same in every locale: a point before the decimals, commas only where grouping is asked
// for.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace algo::text {

/// Room enough for the plain text of any finite number.
inline constexpr std::size_t PlainNumberCapacity = 352;

/// Writes the shortest text without exponent that reads back as the same number ("12.5", "-3", never "-0")
/// and returns its length. `value` must be finite, `out` must have room for PlainNumberCapacity characters.
std::size_t WritePlainNumber(double value, char* out);

/// The same as a string; empty for a number that is not finite.
std::string PlainNumber(double value);

/// The number with thousands separators and at most `maxDecimals` decimals, trailing zeros left out; all
/// decimals of the plain text when `maxDecimals` is negative. Empty for a number that is not finite.
std::string GroupedNumber(double value, std::int32_t maxDecimals);

/// The number that the text shows: an optional sign, digits with at most one point, an optional exponent,
/// blanks around them. Nothing for any other text, and for a number too large or too near to zero to be told.
std::optional<double> ParseNumber(std::string_view text);

/// The number that the text shows, or `fallback`.
double NumberOr(std::string_view text, double fallback);

/// The whole number that the text shows: an optional sign and digits, blanks around them. Nothing for any
/// other text and for a number that does not fit 64 bits.
std::optional<std::int64_t> ParseWhole(std::string_view text);

/// The number rounded to that many significant decimal digits, 17 at most; numbers that are not finite stay
/// as they are.
double RoundToDigits(double value, int digits);

/// The number truncated towards zero; 0 when it is not finite or does not fit 64 bits.
std::int64_t TruncateToWhole(double value);

}  // namespace algo::text
