#pragma once

// The errors that are thrown inside the system. They run up to the boundary where the outside called in and
// are shown there once, so their texts are written for the person in front of the form.

#include <cstdint>
#include <stdexcept>
#include <string>

namespace algo {

/// What every thrown error of the system derives from.
class EError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// An index that a list does not have.
class EListIndexError : public EError {
 public:
  explicit EListIndexError(std::int64_t index)
      : EError("List index out of bounds (" + std::to_string(index) + ")") {}
};

/// A text that is not what it should be read as; `text` is quoted in the message, cut to 40 characters.
class EConversionError : public EError {
 public:
  EConversionError(const std::string& text, const std::string& wanted)
      : EError("'" + text.substr(0, 40) + "' is not " + wanted) {}
};

}  // namespace algo
