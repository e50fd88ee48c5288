#include "plugin/host_contract/registration.h"

#include <exception>

namespace algo::host {

TRegistration::~TRegistration() {
  try {
    Release();
  } catch (...) {  // NOLINT(bugprone-empty-catch): see the contract
  }
}

TRegistration::TRegistration(TRegistration&& other) noexcept
    : FRelease(std::exchange(other.FRelease, nullptr)) {}

TRegistration& TRegistration::operator=(TRegistration&& other) noexcept {
  // By way of a third one, which releases the former registration when it goes, and not before.
  TRegistration taken(std::move(other));
  std::swap(FRelease, taken.FRelease);
  return *this;
}

void TRegistration::Release() {
  if (const auto release = std::exchange(FRelease, nullptr)) release();
}

TRegistrations::~TRegistrations() {
  try {
    ReleaseAll();
  } catch (...) {  // NOLINT(bugprone-empty-catch): see the contract
  }
}

void TRegistrations::ReleaseAll() {
  std::exception_ptr first;
  // Out of the object first: a service that is called here may lead back to it.
  for (auto& registration : std::exchange(FRegistrations, {})) {
    try {
      registration.Release();
    } catch (...) {
      if (!first) first = std::current_exception();
    }
  }
  if (first) std::rethrow_exception(first);
}

}  // namespace algo::host
