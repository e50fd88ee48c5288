#pragma once

// A story that was played undisturbed: the calls at which something may be done to it, and what it sends.

#include <random>
#include <string>
#include <vector>

#include "tests/reentry/played_story.h"

namespace algo::reentry {

/// A call of a service during a command.
struct TCall {
  TPath command;
  std::string operation;
  int nth;
};

struct TPrepared {
  TStory story;
  std::vector<TCall> calls;
  std::vector<TAnswerJson> answers;  ///< to the undisturbed story
  std::vector<std::string> sent;     ///< the contents of the orders
  std::size_t clicks = 0;            ///< on buttons that may send an order
};

TPrepared Prepared(const TStory& story);

/// What an order that was handed over is apart from the keys that the host gives it.
std::string Content(TAnswerJson sent);

/// A number that the environment sets.
int Setting(const char* name, int otherwise);

/// Some of the stories, drawn and prepared: finding the calls of one takes as long as fifty runs of it.
std::vector<TPrepared> Sample(std::mt19937& random);

}  // namespace algo::reentry
