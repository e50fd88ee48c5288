// What must hold between the rows of the parameters, checked while they are compiled.

#include "model/parameters.h"

#include <algorithm>

namespace algo::model {

namespace {

constexpr bool InOrder() {
  for (std::size_t i = 0; i < ParamCount; ++i) {
    if (IndexOf(ParamRows()[i].param) != i) return false;
  }
  return true;
}

constexpr bool NamesAreUnique() {
  for (std::size_t i = 0; i < ParamCount; ++i) {
    for (std::size_t j = i + 1; j < ParamCount; ++j) {
      if (ParamRows()[i].key == ParamRows()[j].key || ParamRows()[i].control == ParamRows()[j].control)
        return false;
    }
  }
  return true;
}

// Choices have a list and are reset to an item of it; the other kinds have none and are emptied.
constexpr bool ColumnsFitTheKind() {
  return std::all_of(ParamRows().begin(), ParamRows().end(), [](const TParamRow& row) {
    const bool choice = row.kind == TValueKind::Choice;
    const bool bounded = row.bounds.min || row.bounds.max;
    return choice == !row.choices.empty() && choice == (row.reset != TReset::Empty) &&
           (!bounded || IsNumber(row.kind));
  });
}

static_assert(InOrder(), "the rows stand in another order than TParam");
static_assert(NamesAreUnique(), "two parameters share a key or a control");
static_assert(ColumnsFitTheKind(), "a row has columns of another kind");

}  // namespace

}  // namespace algo::model
