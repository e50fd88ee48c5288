#pragma once

// Messages to the trader.

#include <string_view>

#include "plugin/host_contract/service.h"

namespace algo::host {

class ALGO_SHARED TCustomMessageBoxCtrl : public THostService<TCustomMessageBoxCtrl> {
 public:
  virtual ~TCustomMessageBoxCtrl();

  /// Shows the text as it stands, in a box of the host's own making.
  /// [module → host, while a provider lives]
  virtual void ShowText(std::string_view text) = 0;

  /// Shows the host's own text for an error code such as "DC1004001".
  /// [module → host, while a provider lives]
  virtual void ShowErrorCode(std::string_view code) = 0;
};

}  // namespace algo::host
