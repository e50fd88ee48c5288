#include "text/date_text.h"

#include <cassert>
#include <cstdint>

#include "text/text.h"

namespace algo::text {

namespace {

using std::chrono::hours;
using std::chrono::minutes;
using std::chrono::seconds;

// A form of date-time: letters stand for the digits of year, month, day, hour, minute and second, all else
// for itself.
constexpr std::string_view ShownForm = "YYYY-MM-DD hh:mm:ss";
constexpr std::string_view ShownDateForm = "YYYY-MM-DD";
constexpr std::string_view CompactForm = "YYYYMMDD-hh:mm:ss";
constexpr std::string_view CompactBlankForm = "YYYYMMDD hh:mm:ss";
constexpr std::string_view CompactDateForm = "YYYYMMDD";
constexpr std::string_view TimeForm = "hh:mm:ss";
constexpr std::string_view ShortTimeForm = "hh:mm";
static_assert(CompactForm.size() == CompactDateTimeLength);

struct TParts {
  std::int32_t year = 0;
  std::int32_t month = 0;
  std::int32_t day = 0;
  std::int32_t hour = 0;
  std::int32_t minute = 0;
  std::int32_t second = 0;
};

constexpr std::int32_t* PartOf(TParts& parts, char letter) {
  switch (letter) {
    case 'Y':
      return &parts.year;
    case 'M':
      return &parts.month;
    case 'D':
      return &parts.day;
    case 'h':
      return &parts.hour;
    case 'm':
      return &parts.minute;
    case 's':
      return &parts.second;
    default:
      return nullptr;
  }
}

std::optional<TParts> ReadForm(std::string_view text, std::string_view form) {
  if (text.size() != form.size()) return std::nullopt;
  TParts parts;
  for (std::size_t i = 0; i < form.size(); ++i) {
    std::int32_t* part = PartOf(parts, form[i]);
    if (part == nullptr) {
      if (text[i] != form[i]) return std::nullopt;
      continue;
    }
    if (text[i] < '0' || text[i] > '9') return std::nullopt;
    *part = *part * 10 + (text[i] - '0');
  }
  return parts;
}

std::optional<TDateTime> ToDateTime(const std::optional<TParts>& parts) {
  if (!parts) return std::nullopt;
  const std::chrono::year_month_day date{std::chrono::year(parts->year),
                                         std::chrono::month(static_cast<std::uint32_t>(parts->month)),
                                         std::chrono::day(static_cast<std::uint32_t>(parts->day))};
  if (!date.ok() || parts->year < 1 || parts->hour > 23 || parts->minute > 59 || parts->second > 59) {
    return std::nullopt;
  }
  return std::chrono::local_days(date) + hours(parts->hour) + minutes(parts->minute) + seconds(parts->second);
}

void WriteForm(TDateTime value, std::string_view form, char* out) {
  const auto day = std::chrono::floor<std::chrono::days>(value);
  const std::chrono::year_month_day date(day);
  const std::chrono::hh_mm_ss time(value - day);
  TParts parts{static_cast<std::int32_t>(date.year()),
               static_cast<std::int32_t>(static_cast<std::uint32_t>(date.month())),
               static_cast<std::int32_t>(static_cast<std::uint32_t>(date.day())),
               static_cast<std::int32_t>(time.hours().count()),
               static_cast<std::int32_t>(time.minutes().count()),
               static_cast<std::int32_t>(time.seconds().count())};
  assert(parts.year >= 1 && parts.year <= 9999);
  // From the end, so that each part gives its last digit first.
  for (std::size_t i = form.size(); i-- > 0;) {
    std::int32_t* part = PartOf(parts, form[i]);
    if (part == nullptr) {
      out[i] = form[i];
    } else {
      out[i] = static_cast<char>('0' + *part % 10);
      *part /= 10;
    }
  }
}

}  // namespace

std::string DateTimeText(TDateTime value) {
  std::string text(ShownForm.size(), ' ');
  WriteForm(value, ShownForm, text.data());
  return text;
}

std::optional<TDateTime> ParseDateTime(std::string_view text) {
  text = Trim(text);
  const bool dateAlone = text.size() == ShownDateForm.size();
  return ToDateTime(ReadForm(text, dateAlone ? ShownDateForm : ShownForm));
}

std::size_t WriteCompactDateTime(TDateTime value, char* out) {
  WriteForm(value, CompactForm, out);
  return CompactForm.size();
}

std::optional<TDateTime> ParseCompactDateTime(std::string_view text) {
  // A hyphen parts date and time as a blank does, and both may stand behind.
  while (!text.empty() && std::string_view(" -\t").find(text.back()) != std::string_view::npos) {
    text.remove_suffix(1);
  }
  for (const std::string_view form : {CompactForm, CompactBlankForm, CompactDateForm}) {
    if (const auto time = ToDateTime(ReadForm(text, form))) return time;
  }
  return std::nullopt;
}

std::optional<seconds> ParseTimeOfDay(std::string_view text) {
  text = Trim(text);
  for (const std::string_view form : {TimeForm, ShortTimeForm}) {
    const auto parts = ReadForm(text, form);
    if (parts && parts->hour < 24 && parts->minute < 60 && parts->second < 60) {
      return hours(parts->hour) + minutes(parts->minute) + seconds(parts->second);
    }
  }
  return std::nullopt;
}

}  // namespace algo::text
