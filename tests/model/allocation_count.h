#pragma once

// Counts what this program takes from the heap, so that a test can say that a call takes nothing.

#include <cstddef>

namespace algo::model {

/// How often memory was taken since the program started.
std::size_t AllocationCount();

/// The size that was taken last.
std::size_t LastAllocationSize();

}  // namespace algo::model
