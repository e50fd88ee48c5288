#pragma once

// What is registered with the host, each with the way to take it back.

#include <functional>
#include <vector>

namespace algo::views {

/// Takes back whatever was registered through it, first registered first, at the latest when it goes.
class TRegistrations {
 public:
  TRegistrations() = default;
  ~TRegistrations();
  TRegistrations(const TRegistrations&) = delete;
  TRegistrations& operator=(const TRegistrations&) = delete;

  /// Runs `enter`, and keeps `leave` for later if that succeeded. Throws what `enter` throws, keeping
  /// nothing.
  void Add(const std::function<void()>& enter, std::function<void()> leave);

  /// Takes everything back. A failure does not spare the others; the first one is thrown when all have been
  /// tried.
  void ReleaseAll();

 private:
  std::vector<std::function<void()>> FLeaves;
};

}  // namespace algo::views
