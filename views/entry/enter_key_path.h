#pragma once

// Where Enter leads from each field.

#include <vector>

#include "views/entry/fields.h"

namespace algo::views::entry {

/// The candidates in the order in which they are tried; the first that can take the focus gets it. Empty for
/// a field in which Enter moves nothing.
std::vector<TField> EnterPath(TField field);

}  // namespace algo::views::entry
