#include "model/parameters.h"

#include <algorithm>

#include "model/parameter_table.h"

namespace algo::model {

namespace {

constexpr bool InOrder() {
  for (std::size_t i = 0; i < ParamTable.size(); ++i) {
    if (IndexOf(ParamTable[i].param) != i) return false;
  }
  return true;
}

constexpr bool NamesAreUnique() {
  for (std::size_t i = 0; i < ParamTable.size(); ++i) {
    for (std::size_t j = i + 1; j < ParamTable.size(); ++j) {
      if (ParamTable[i].key == ParamTable[j].key || ParamTable[i].control == ParamTable[j].control)
        return false;
    }
  }
  return true;
}

constexpr bool KeysAreShort() {
  return std::all_of(ParamTable.begin(), ParamTable.end(),
                     [](const TParamRow& row) { return row.key.size() <= MaxKeyLength; });
}

static_assert(InOrder() && NamesAreUnique() && KeysAreShort());

}  // namespace

std::span<const TParamRow> ParamRows() { return ParamTable; }

}  // namespace algo::model
