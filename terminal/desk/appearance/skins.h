#pragma once

// The skins. A skin is a table of colours, from which come the palette of the widgets, the outlines of
// fields, and the colours that the module asks its host for.
//
// Buying is blue and selling red or orange, which nearly everyone can tell apart, unlike red and green.

#include <QPalette>
#include <array>
#include <string_view>

#include "forms/control.h"
#include "terminal/host/host_data.h"

namespace algo::terminal::desk::appearance {

struct TSkin {
  std::string_view name;     ///< in settings, on the command line, and to the module
  std::string_view textKey;  ///< of its name among the desktop's texts

  forms::TColor window;         ///< behind captions
  forms::TColor base;           ///< behind what is typed, lists and tables
  forms::TColor alternate;      ///< behind every other row
  forms::TColor button;         ///< behind buttons and headers
  forms::TColor text;           ///< on all of these
  forms::TColor faint;          ///< the same, for explanations, empty fields and what cannot be changed now
  forms::TColor border;         ///< around fields
  forms::TColor highlight;      ///< behind what is selected, around what has the focus
  forms::TColor highlightText;  ///< on it
  forms::TColor buy;            ///< of text on base, or behind text
  forms::TColor sell;
  std::array<forms::TColor, 4> links;  ///< of the link groups: red, green, blue, yellow

  /// Replaces those of the data's colours that the module asks for.
  void FillInto(THostData& data) const;
};

inline constexpr std::array<TSkin, 3> Skins{{
    {.name = "light",
     .textKey = "Light",
     .window = 0xF3F4F6,
     .base = 0xFFFFFF,
     .alternate = 0xEEF1F5,
     .button = 0xE4E7EB,
     .text = 0x1A1D21,
     .faint = 0x565E6B,
     .border = 0x7A828E,
     .highlight = 0x1F5FBF,
     .highlightText = 0xFFFFFF,
     .buy = 0x0B5CAD,
     .sell = 0xB3261E,
     .links = {0xD32F2F, 0x2E7D32, 0x1565C0, 0x8F6B00}},
    {.name = "dark",
     .textKey = "Dark",
     .window = 0x202327,
     .base = 0x17191C,
     .alternate = 0x1E2125,
     .button = 0x2E3238,
     .text = 0xE6E8EB,
     .faint = 0xA6AEB9,
     .border = 0x7D8794,
     .highlight = 0x2F6FC9,
     .highlightText = 0xFFFFFF,
     .buy = 0x6CB6FF,
     .sell = 0xFF7B72,
     .links = {0xFF6B6B, 0x57C06B, 0x6CA8FF, 0xF2C94C}},
    {.name = "high-contrast",
     .textKey = "High contrast",
     .window = 0x000000,
     .base = 0x000000,
     .alternate = 0x1A1A1A,
     .button = 0x2A2A2A,
     .text = 0xFFFFFF,
     .faint = 0xD0D0D0,
     .border = 0xFFFFFF,
     .highlight = 0xFFFF00,
     .highlightText = 0x000000,
     .buy = 0x5CC8FF,
     .sell = 0xFFB000,
     .links = {0xFF8080, 0x00FF7F, 0x66B3FF, 0xFFFF00}},
}};

/// The skin of that name; none for any other text.
const TSkin* SkinNamed(std::string_view name);

/// The palette of the widgets. What is disabled stays readable: a locked field goes into the order all the
/// same.
QPalette PaletteOf(const TSkin& skin);

/// Shows the whole application, which is there by then, in the skin: open windows as well. The module is told
/// by whoever runs the host (TMemoryHost::NotifySkinChanged).
void ApplySkin(const TSkin& skin);

}  // namespace algo::terminal::desk::appearance
