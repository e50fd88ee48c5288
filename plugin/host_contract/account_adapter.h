#pragma once

// Accounts, as far as the module asks: whether one is known.

#include <string_view>

#include "plugin/host_contract/service.h"

namespace algo::host {

class ALGO_SHARED TCustomAccountAdapter : public THostService<TCustomAccountAdapter> {
 public:
  virtual ~TCustomAccountAdapter();

  /// Whether the host knows the account code. How codes are compared is the host's rule.
  /// [module → host, while a provider lives]
  virtual bool IsKnown(std::string_view account) = 0;
};

}  // namespace algo::host
