#pragma once

// Order routing: where a finished order goes.

#include <cstdint>

#include "plugin/host_contract/orders.h"
#include "plugin/host_contract/service.h"

namespace algo::host {

class ALGO_SHARED TCustomOrderActionManager : public THostService<TCustomOrderActionManager> {
 public:
  virtual ~TCustomOrderActionManager();

  /// Takes the action on the order; true when the host accepted the request. The host copies what it needs
  /// and keeps no reference to `order`. The module passes no sender (nullptr) and always 1 as `argument`.
  /// [module → host, while a provider lives]
  virtual bool TakeAction(const void* sender, TCustomClientOrder* order, TOrderAction action,
                          std::int32_t argument) = 0;
};

}  // namespace algo::host
