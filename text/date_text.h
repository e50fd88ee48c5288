#pragma once

// Date-times as text, in the two forms that the system knows: "YYYY-MM-DD HH:MM:SS", which people see, and
// "YYYYMMDD-HH:MM:SS", which travels in the parameter text. Both are the same in every locale; years run from
// 1 to 9999.

#include <chrono>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace algo::text {

/// A date with a time of day, to the second, in the trader's local time.
using TDateTime = std::chrono::local_seconds;

/// The date-time as "YYYY-MM-DD HH:MM:SS".
std::string DateTimeText(TDateTime value);

/// The date-time that "YYYY-MM-DD HH:MM:SS" shows, blanks around it allowed; a lone date means midnight.
/// Nothing for any other text and for a date or a time that does not exist.
std::optional<TDateTime> ParseDateTime(std::string_view text);

inline constexpr std::size_t CompactDateTimeLength = 17;

/// Writes "YYYYMMDD-HH:MM:SS" to `out`, which must have room for CompactDateTimeLength characters; returns
/// that length.
std::size_t WriteCompactDateTime(TDateTime value, char* out);

/// The date-time that "YYYYMMDD-HH:MM:SS" shows, also with a blank in place of the hyphen and with blanks or
/// hyphens behind; a lone date means midnight. Nothing for any other text and for a date or time that does
/// not exist.
std::optional<TDateTime> ParseCompactDateTime(std::string_view text);

/// The time of day that "HH:MM" or "HH:MM:SS" shows, blanks around it allowed; nothing for any other text.
std::optional<std::chrono::seconds> ParseTimeOfDay(std::string_view text);

}  // namespace algo::text
