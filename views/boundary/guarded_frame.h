#pragma once

// A view frame whose every entrance is a boundary: its handlers let no error out, are dead once the frame has
// given everything back, and keep it in memory while they run.

#include <functional>
#include <memory>

#include "plugin/host_contract/registration.h"
#include "plugin/host_contract/view_frame.h"
#include "views/boundary/boundary.h"

namespace algo::views {

class TGuardedFrame : public host::TViewFrame {
 public:
  using TViewFrame::TViewFrame;
  ~TGuardedFrame() override;

  /// Gives back what is registered, in the order of registering, and lets nothing in any more.
  void Detach() override;

  std::int32_t GetWidth() const override;
  std::int32_t GetHeight() const override;

 protected:
  /// A handler for control events: a boundary around the method.
  template <class TFrameClass, class... TArguments>
  std::function<void(TArguments...)> Handler(void (TFrameClass::*method)(TArguments...)) {
    return [this, method, alive = std::weak_ptr<const bool>(FAlive)](TArguments... arguments) {
      if (alive.expired()) return;
      const auto held = KeepAlive();
      AtBoundary([&] { (static_cast<TFrameClass*>(this)->*method)(arguments...); });
    };
  }

  /// A handler for the host's notifications: the same, with no error out of it ever.
  template <class TFrameClass, class... TArguments>
  std::function<void(TArguments...)> HostHandler(void (TFrameClass::*method)(TArguments...)) {
    return [handler = Handler(method)](TArguments... arguments) {
      AtHostBoundary([&] { handler(arguments...); });
    };
  }

  /// Whether the frame has given everything back and lives on only because a handler of it runs.
  bool Detached() const { return !FAlive; }

  void RunInput(const std::function<void()>& input) override;
  void Failed(const std::exception_ptr& failure) override;

  /// Tells the host that the view changed its size or its looks; with no effect once it is detached.
  void NotifyViewChanged();

  /// What is registered with the host for the life of the frame.
  host::TRegistrations& Registrations() { return FRegistrations; }

 private:
  std::shared_ptr<const bool> FAlive = std::make_shared<const bool>(true);
  host::TRegistrations FRegistrations;
};

}  // namespace algo::views
