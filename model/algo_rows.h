#pragma once

// The words in which the rows of the algorithms are written.

#include "model/algos.h"

namespace algo::model::algo_rows {

// Pieces of the parameter text.

/// A time or a choice, written whenever it is given.
constexpr TPiece Given(TParam param) { return {param}; }
/// A number that is written when it is above 0.
constexpr TPiece Positive(TParam param) { return {param, 0}; }
/// A number that is written when it lies strictly between two bounds.
constexpr TPiece Between(double low, TParam param, double high) { return {param, low, high}; }

// Rules.

constexpr TTest Equal(double bound) { return {TComparison::Equal, bound}; }
constexpr TTest Below(double bound) { return {TComparison::Below, bound}; }
constexpr TTest AtMost(double bound) { return {TComparison::AtMost, bound}; }
constexpr TTest AtLeast(double bound) { return {TComparison::AtLeast, bound}; }
constexpr TTest Above(double bound) { return {TComparison::Above, bound}; }

constexpr TRule Fails(TParam param, TTest test, std::string_view message) {
  return {param, test, {}, message};
}
constexpr TRule Fails(TParam param, TTest first, TTest second, std::string_view message) {
  return {param, first, second, message};
}

}  // namespace algo::model::algo_rows
