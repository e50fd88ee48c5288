#pragma once

// Where Enter leads from each field. A field's candidates stand in two runs, tried one after the other; the
// first candidate that can take the focus gets it.

#include <span>

#include "views/entry/fields.h"

namespace algo::views {

struct TEnterRow {
  TField field;
  std::span<const TField> first;
  std::span<const TField> then = {};
};

/// The row of the field; nullptr for a field in which Enter moves nothing.
const TEnterRow* FindEnterRow(TField field);

}  // namespace algo::views
