#pragma once

// How the texts of settings are converted to other values.

#include <cstdint>
#include <string_view>

namespace algo::terminal {

/// Whether the text stands for true: "Y", "y", "1", "true" or "True".
bool IsTrueText(std::string_view text);

/// The 32-bit integer that the text shows; 0 for any other text.
std::int32_t WholeNumberOf(std::string_view text);

}  // namespace algo::terminal
