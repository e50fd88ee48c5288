#pragma once

// Holds a flag up for as long as something lasts.

#include <utility>

namespace algo::views {

/// Holds the flag up for the life of the object and puts back what it was.
class TFlagScope {
 public:
  explicit TFlagScope(bool& flag) : FFlag(flag), FBefore(std::exchange(flag, true)) {}
  ~TFlagScope() { FFlag = FBefore; }
  TFlagScope(const TFlagScope&) = delete;
  TFlagScope& operator=(const TFlagScope&) = delete;

 private:
  bool& FFlag;
  bool FBefore;
};

}  // namespace algo::views
