#pragma once

// What every service of the host works with: the host's data, the receiver of its events, and the storage;
// and the one point that each call of a service passes.

#include <cstdint>
#include <type_traits>
#include <utility>

#include "terminal/host/fault_answers.h"
#include "terminal/host/host_data.h"
#include "terminal/host/host_events.h"
#include "terminal/host/order_storage.h"
#include "terminal/host/service_operations.h"

namespace algo::terminal {

struct THostContext {
  THostData& data;
  THostEvents& events;
  TOrderStorage& storage;
  bool ownCalls = false;  ///< while the host's own layers call its services, which passes no point

  /// Does the work of a service operation and returns its answer. On the way the receiver of the events is
  /// told, if it wants to be, before the work and after it, and a failure that is set strikes in its place.
  /// While there is neither, this costs two tests.
  template <class TWork>
  std::invoke_result_t<TWork&> Call(TServiceOperation operation, TWork&& work) const {
    if (!data.faults.Any() && !events.WatchesCalls()) [[likely]]
      return work();
    return CallWatched(operation, work);
  }

 private:
  template <class TWork>
  std::invoke_result_t<TWork&> CallWatched(TServiceOperation operation, TWork& work) const {
    using TAnswer = std::invoke_result_t<TWork&>;
    if (ownCalls) return work();
    const bool watched = events.WatchesCalls();
    const std::uint32_t number = watched ? events.CallBegins(operation) : 0;
    const auto fault = data.faults.Strike(operation);
    if constexpr (std::is_void_v<TAnswer>) {
      work();
      if (watched) events.CallEnds(operation, number);
    } else {
      if (fault) return WrongAnswer<TAnswer>(*fault);
      TAnswer answer = work();
      if (watched) events.CallEnds(operation, number);
      return answer;
    }
  }
};

}  // namespace algo::terminal
