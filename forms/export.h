#pragma once

// Host and module are separate shared objects that exchange objects of these classes, so their type
// information has to be one and the same in both: the classes are marked as visible even where everything
// else is hidden.

#define ALGO_SHARED __attribute__((visibility("default")))
