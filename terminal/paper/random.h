#pragma once

// Random numbers that are the same for the same seed on any machine. The standard distributions differ from
// library to library, so they are implemented here.

#include <cstdint>
#include <random>

namespace algo::terminal::paper {

class TRandom {
 public:
  explicit TRandom(std::uint64_t seed) : FBits(seed) {}

  /// Uniformly distributed from 0 to below 1.
  double Uniform();

  /// Approximately normal, with mean 0 and standard deviation 1, never beyond ±6.
  double Normal();

 private:
  std::mt19937_64 FBits;
};

}  // namespace algo::terminal::paper
