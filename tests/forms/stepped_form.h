#pragma once

// A spin edit that is stepped, and a line beside it.

#include <gtest/gtest.h>

#include <optional>

#include "tests/forms/sample_form.h"

namespace algo::forms::tests {

struct TStepTest : testing::Test {
  TSampleFrame frame;
  TSpinEdit& spin = frame.Place<TSpinEdit>("spin");
  TTextEdit& line = frame.Place<TTextEdit>("line");

  std::string Stepped(std::int32_t steps) {
    EXPECT_EQ(frame.InputStep(spin, steps), TInputResult::Taken);
    return spin.Text();
  }
  std::optional<double> Left() {
    frame.InputLeave();
    return spin.Value();
  }
};

}  // namespace algo::forms::tests
