#include "views/boundary/registrations.h"

#include <exception>
#include <utility>

namespace algo::views {

TRegistrations::~TRegistrations() {
  try {
    ReleaseAll();
  } catch (...) {  // NOLINT(bugprone-empty-catch): an object that goes has nobody to tell
  }
}

void TRegistrations::Add(const std::function<void()>& enter, std::function<void()> leave) {
  FLeaves.reserve(FLeaves.size() + 1);
  enter();
  FLeaves.push_back(std::move(leave));
}

void TRegistrations::ReleaseAll() {
  std::exception_ptr first;
  for (const auto& leave : std::exchange(FLeaves, {})) {
    try {
      leave();
    } catch (...) {
      if (!first) first = std::current_exception();
    }
  }
  if (first) std::rethrow_exception(first);
}

}  // namespace algo::views
