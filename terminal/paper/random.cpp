#include "terminal/paper/random.h"

#include <cmath>

namespace algo::terminal::paper {

double TRandom::Uniform() {
  constexpr int Digits = 53;
  return std::ldexp(static_cast<double>(FBits() >> (64 - Digits)), -Digits);
}

double TRandom::Normal() {
  // The sum of twelve numbers between 0 and 1 has mean 6 and variance 1, and needs no function whose results
  // differ between machines.
  double sum = -6;
  for (int i = 0; i < 12; ++i) sum += Uniform();
  return sum;
}

}  // namespace algo::terminal::paper
