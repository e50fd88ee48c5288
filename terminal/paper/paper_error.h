#pragma once

// The error of an unusable table of the paper market.

#include <cstddef>
#include <string>

#include "text/errors.h"

namespace algo::terminal::paper {

/// The text is "FILE:LINE: what is wrong and what is expected".
class EPaperError : public EError {
 public:
  EPaperError(const std::string& file, std::size_t line, const std::string& problem)
      : EError(file + ":" + std::to_string(line) + ": " + problem) {}
};

}  // namespace algo::terminal::paper
