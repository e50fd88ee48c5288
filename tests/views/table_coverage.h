#pragma once

// Whether a table of a test names every field that it is about. What the fields are is asked of the form's
// own rows; what is true of each the test says itself.

#include <gtest/gtest.h>

#include <algorithm>
#include <string_view>
#include <vector>

#include "model/algos.h"
#include "model/order_types.h"
#include "views/entry/fields.h"

namespace algo::tests {

/// Fails for each field for which `isMeant` holds and that `names` lacks, and for each name that is no such
/// field.
template <class TIsMeant>
void ExpectNamesEvery(std::vector<std::string_view> names, TIsMeant&& isMeant) {
  for (const auto& row : views::entry::FieldRows()) {
    const auto found = std::find(names.begin(), names.end(), row.name);
    EXPECT_EQ(found != names.end(), isMeant(row)) << row.name;
    if (found != names.end()) names.erase(found);
  }
  for (const std::string_view name : names) ADD_FAILURE() << name << " is no field, or stands twice";
}

/// What the field holds for an algorithm.
inline bool HoldsNumber(const views::entry::TFieldRow& row) {
  return row.param && model::IsNumber(model::ParamRow(*row.param).kind);
}
inline bool HoldsChoice(const views::entry::TFieldRow& row) {
  return row.param && model::ParamRow(*row.param).kind == model::TValueKind::Choice;
}

/// Fails for each algorithm of the catalogue whose code `codes` lacks or has twice.
inline void ExpectNamesEveryAlgo(const std::vector<std::string_view>& codes) {
  EXPECT_EQ(codes.size(), model::AlgoRows().size());
  for (const auto& row : model::AlgoRows()) {
    EXPECT_EQ(std::count(codes.begin(), codes.end(), row.code), 1) << row.code;
  }
}

/// Fails for each host order type whose resource id `ids` lacks or has twice.
inline void ExpectNamesEveryOrderType(const std::vector<std::string_view>& ids) {
  EXPECT_EQ(ids.size(), model::OrderTypeRows().size());
  for (const auto& row : model::OrderTypeRows()) {
    EXPECT_EQ(std::count(ids.begin(), ids.end(), row.resourceId), 1) << row.code;
  }
}

}  // namespace algo::tests
