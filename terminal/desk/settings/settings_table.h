#pragma once

// The settings of the settings page, one row a setting: its section, the texts it may have and how the module
// reads them. The desktop's texts have its name under "Setting." and its key, and its explanation under
// "Setting.", its key and ".Why".

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

#include "terminal/host/setting_text.h"

namespace algo::terminal::desk::settings {

/// The section of a setting: that of the current user, or that of the whole terminal.
enum class TSettingSection : std::uint8_t { User, Platform };

/// A text that a setting may have, and the key of what the trader reads for it.
struct TSettingChoice {
  std::string_view value;
  std::string_view textKey;
};

struct TSettingRow {
  std::string_view group;  ///< the text key of the heading under which it stands
  std::string_view key;
  TSettingSection section;
  /// A choice between these, of which the first is taken where nothing is set. Or no and yes, in this order.
  std::span<const TSettingChoice> choices;
  /// Whether the module takes the text for yes; none for a setting that is a choice.
  bool (*isYes)(std::string_view text);
};

inline constexpr std::array<TSettingChoice, 2> NoYes{{{"N", ""}, {"Y", ""}}};
inline constexpr std::array<TSettingChoice, 2> ZeroOne{{{"0", ""}, {"1", ""}}};
inline constexpr std::array<TSettingChoice, 2> Copies{{{"-1", "Copies.All"}, {"0", "Copies.Own"}}};
inline constexpr std::array<TSettingChoice, 5> Scales{
    {{"100", "100 %"}, {"115", "115 %"}, {"125", "125 %"}, {"135", "135 %"}, {"150", "150 %"}}};

constexpr bool IsNotNo(std::string_view text) { return !text.starts_with('N') && !text.starts_with('n'); }
constexpr bool IsNotZero(std::string_view text) { return text != "0"; }

inline constexpr std::array<TSettingRow, 8> SettingsTable{{
    {"New orders", "ConfirmationPlaceOrd", TSettingSection::User, NoYes, IsTrueText},
    {"New orders", "ForceConfirmBox", TSettingSection::User, NoYes, IsTrueText},
    {"New orders", "ClearOrd", TSettingSection::User, NoYes, IsTrueText},
    {"Working orders", "ChangeOrderShowModel", TSettingSection::User, NoYes, IsNotNo},
    {"Working orders", "WorkOrderQtyOut", TSettingSection::User, ZeroOne, IsNotZero},
    {"Working orders", "ConfirmationWorkOrdPri", TSettingSection::User, NoYes, IsTrueText},
    {"Forms", "DefaultGroupDataMode", TSettingSection::Platform, Copies, nullptr},
    {"Forms", "ScaleSize", TSettingSection::Platform, Scales, nullptr},
}};

}  // namespace algo::terminal::desk::settings
