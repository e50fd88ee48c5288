#pragma once

// Keeps two coupled fields from feeding each other.

#include <utility>

namespace algo::views {

/// Holds a flag up for the life of the object and puts back what it was.
class TUpdating {
 public:
  explicit TUpdating(bool& flag) : FFlag(flag), FBefore(std::exchange(flag, true)) {}
  ~TUpdating() { FFlag = FBefore; }
  TUpdating(const TUpdating&) = delete;
  TUpdating& operator=(const TUpdating&) = delete;

 private:
  bool& FFlag;
  bool FBefore;
};

}  // namespace algo::views
