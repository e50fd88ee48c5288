#pragma once

// A story played from the start in a terminal of its own, and what is to be said of it afterwards.

#include <string>
#include <vector>

#include "tests/reentry/stories.h"

namespace algo::reentry {

struct TPlayed {
  std::vector<TAnswerJson> answers;  ///< of the story's commands
  std::vector<TAnswerJson> sent;     ///< the events of orders that were handed over, in their order
  std::vector<std::string> broken;   ///< exceptions and violations of the contract that came to the host
  std::string left;                  ///< what the module left behind; empty for nothing
};

/// Plays the story and unloads the module.
TPlayed Play(const TStory& story);

}  // namespace algo::reentry
