#pragma once

// For tests that look at fields whatever the chosen algorithm shows of them.

#include <string_view>

#include "forms/frame.h"

namespace algo::tests {

/// Shows every group and item of the form and enables every control.
inline void ShowWholeForm(forms::TFrame& frame) {
  for (const auto& element : frame.Layout().Elements()) {
    element->SetVisible(true);
    element->SetEnabled(true);
  }
  for (const auto& control : frame.Controls()) {
    control->SetVisible(true);
    control->SetEnabled(true);
  }
}

}  // namespace algo::tests
