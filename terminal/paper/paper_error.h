#pragma once

// What stops the loading of the paper market's tables.

#include <cstddef>
#include <string>

#include "text/errors.h"

namespace algo::terminal::paper {

/// A table that cannot be used as it is. The text is "FILE:LINE: what is wrong and what is expected".
class EPaperError : public EError {
 public:
  EPaperError(const std::string& file, std::size_t line, const std::string& problem)
      : EError(file + ":" + std::to_string(line) + ": " + problem) {}
};

}  // namespace algo::terminal::paper
