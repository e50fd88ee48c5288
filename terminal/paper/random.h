#pragma once

// Random numbers that are the same for the same seed on any machine. The distributions of the standard
// library differ from one library to the next, so they are made here.

#include <cstdint>
#include <random>

namespace algo::terminal::paper {

class TRandom {
 public:
  explicit TRandom(std::uint64_t seed) : FBits(seed) {}

  /// Evenly from 0 to below 1.
  double Uniform();

  /// About normal, with mean 0 and deviation 1, never beyond 6.
  double Normal();

 private:
  std::mt19937_64 FBits;
};

}  // namespace algo::terminal::paper
