#pragma once

// What was registered with a service of the host and has to be taken back: an object for each registration,
// and a list of them that is released in order. listen.h makes them.

#include <functional>
#include <utility>
#include <vector>

#include "forms/export.h"

namespace algo::host {

/// One registration, taken back when the object goes. It can be handed on, and is then empty.
class ALGO_SHARED TRegistration {
 public:
  /// An empty one: nothing is registered.
  TRegistration() = default;
  /// For something that is registered now; `release` takes it back.
  explicit TRegistration(std::function<void()> release) : FRelease(std::move(release)) {}
  /// Takes the registration back. A failure is dropped: there is nobody to report it to.
  ~TRegistration();
  TRegistration(TRegistration&& other) noexcept;
  /// Takes back what was registered here, as the destructor does, and takes over the other one's.
  TRegistration& operator=(TRegistration&& other) noexcept;

  /// Takes the registration back; with no effect on an empty one. Throws what the service throws. Empty
  /// afterwards in any case: a service that failed is not asked again.
  void Release();

  /// Leaves what is registered as it is: something else takes it back.
  void Dismiss() { FRelease = nullptr; }

  /// Whether something is registered.
  bool Active() const { return FRelease != nullptr; }

 private:
  std::function<void()> FRelease;
};

/// Registrations that end together, the first one first, at the latest when the list goes.
class ALGO_SHARED TRegistrations {
 public:
  TRegistrations() = default;
  /// Releases all; failures are dropped.
  ~TRegistrations();
  TRegistrations(const TRegistrations&) = delete;
  TRegistrations& operator=(const TRegistrations&) = delete;

  void Add(TRegistration registration) { FRegistrations.push_back(std::move(registration)); }

  /// Releases all. A failure does not spare the others; the first one is thrown when all have been tried.
  void ReleaseAll();

 private:
  std::vector<TRegistration> FRegistrations;
};

}  // namespace algo::host
