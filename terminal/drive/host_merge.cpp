#include "terminal/drive/host_merge.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <utility>

#include "terminal/drive/fault_merge.h"
#include "text/date_text.h"

namespace algo::terminal::drive {

namespace {

using TTextSet = std::set<std::string, std::less<>>;

std::int32_t WholeNumber(std::string_view text, int base) {
  std::int32_t number = 0;
  const auto end = std::from_chars(text.data(), text.data() + text.size(), number, base);
  if (end.ec != std::errc() || end.ptr != text.data() + text.size()) {
    throw ECommandError("'" + std::string(text) + "' is not a whole number");
  }
  return number;
}

// One overload for each kind of value. Structures and tables come last, since they merge their members with
// the others.

void Merge(std::string_view name, const TCommandJson& value, std::string& into) {
  into = AsText(name, value);
}

void Merge(std::string_view name, const TCommandJson& value, bool& into) { into = AsBoolean(name, value); }

void Merge(std::string_view name, const TCommandJson& value, std::int32_t& into) {
  into = AsInteger(name, value);
}

void Merge(std::string_view name, const TCommandJson& value, forms::TColor& into) {
  const auto& text = AsText(name, value);
  const bool isColor = text.size() == 7 && text[0] == '#' &&
                       text.find_first_not_of("0123456789abcdefABCDEF", 1) == std::string::npos;
  if (!isColor) throw ECommandError("'" + std::string(name) + "' must be a colour as #rrggbb");
  into = static_cast<forms::TColor>(WholeNumber(std::string_view(text).substr(1), 16));
}

void Merge(std::string_view name, const TCommandJson& value, std::vector<std::string>& into) {
  into = AsTexts(name, value);
}

void Merge(std::string_view name, const TCommandJson& value, TTextSet& into) {
  const auto texts = AsTexts(name, value);
  into = TTextSet(texts.begin(), texts.end());
}

void Merge(std::string_view name, const TCommandJson& value, TFaults& into) {
  MergeFaults(name, value, into);
}

/// A member of a structure by the name that scripts use for it.
template <class TOwner>
struct TMember {
  std::string_view name;
  void (*merge)(std::string_view name, const TCommandJson& value, TOwner& owner);
};

/// Merges one member; null restores the value that a new owner has.
template <auto Member, class TOwner>
void MergeMember(std::string_view name, const TCommandJson& value, TOwner& owner);

template <class TOwner, std::size_t Count>
void MergeMembers(const std::array<TMember<TOwner>, Count>& members, const TCommandJson& table,
                  TOwner& owner) {
  for (const auto& [name, value] : table.items()) {
    const auto member = std::ranges::find(members, std::string_view(name), &TMember<TOwner>::name);
    if (member == members.end()) throw ECommandError("a host has no '" + name + "'");
    member->merge(name, value, owner);
  }
}

void Merge(std::string_view name, const TCommandJson& value, TProfile& into) {
  constexpr std::array Members{
      TMember<TProfile>{"kind", MergeMember<&TProfile::kind>},
      TMember<TProfile>{"flag", MergeMember<&TProfile::flag>},
      TMember<TProfile>{"account", MergeMember<&TProfile::account>},
      TMember<TProfile>{"user", MergeMember<&TProfile::user>},
  };
  MergeMembers(Members, AsTable(name, value), into);
}

void Merge(std::string_view symbol, const TCommandJson& value, host::TInstrument& into) {
  constexpr std::array Members{
      TMember<host::TInstrument>{"lot", MergeMember<&host::TInstrument::lotText>},
  };
  MergeMembers(Members, AsTable(symbol, value), into);
  into.symbol = symbol;
}

void Merge(std::string_view name, const TCommandJson& value, std::chrono::local_days& into) {
  std::string text;
  Merge(name, value, text);
  const auto day = text::ParseDateTime(text);
  if (!day || text.size() != std::string_view("YYYY-MM-DD").size()) {
    throw ECommandError("'" + std::string(name) + "' must be a day like \"2024-01-15\"");
  }
  into = std::chrono::floor<std::chrono::days>(*day);
}

void KeyOf(const std::string& name, std::string& key) { key = name; }

void KeyOf(const std::string& name, std::int32_t& key) { key = WholeNumber(name, 10); }

template <class TKey, class TValue, class TLess>
void Merge(std::string_view name, const TCommandJson& value, std::map<TKey, TValue, TLess>& into) {
  for (const auto& [key, member] : AsTable(name, value).items()) {
    TKey place{};
    KeyOf(key, place);
    if (member.is_null()) {
      into.erase(place);
    } else {
      Merge(key, member, into[place]);
    }
  }
}

template <auto Member, class TOwner>
void MergeMember(std::string_view name, const TCommandJson& value, TOwner& owner) {
  if (value.is_null()) {
    owner.*Member = TOwner().*Member;
  } else {
    Merge(name, value, owner.*Member);
  }
}

}  // namespace

void MergeHostData(const TCommandJson& changes, THostData& data) {
  constexpr std::array Members{
      TMember<THostData>{"section", MergeMember<&THostData::section>},
      TMember<THostData>{"config", MergeMember<&THostData::config>},
      TMember<THostData>{"texts", MergeMember<&THostData::texts>},
      TMember<THostData>{"rights", MergeMember<&THostData::rights>},
      TMember<THostData>{"profile", MergeMember<&THostData::profile>},
      TMember<THostData>{"accounts", MergeMember<&THostData::accounts>},
      TMember<THostData>{"lists", MergeMember<&THostData::lists>},
      TMember<THostData>{"instruments", MergeMember<&THostData::instruments>},
      TMember<THostData>{"colors", MergeMember<&THostData::colors>},
      TMember<THostData>{"accept", MergeMember<&THostData::accept>},
      TMember<THostData>{"today", MergeMember<&THostData::today>},
      TMember<THostData>{"throw", MergeMember<&THostData::faults>},
  };
  THostData changed = data;
  MergeMembers(Members, changes, changed);
  data = std::move(changed);
}

}  // namespace algo::terminal::drive
