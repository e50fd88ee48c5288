#pragma once

// Who the user is and what the user may do.

#include <cstdint>
#include <string>
#include <string_view>

#include "plugin/host_contract/service.h"

namespace algo::host {

class ALGO_SHARED TCustomUserAppProfile : public THostService<TCustomUserAppProfile> {
 public:
  virtual ~TCustomUserAppProfile();

  /// Whether the user holds the right of that name.
  /// [module → host, while a provider lives]
  virtual bool HasRight(std::string_view name) = 0;

  /// The kind of user. A user of kind 2 whose flag is false works on one account, the profile's.
  /// [module → host, while a provider lives]
  virtual std::int32_t UserKind() = 0;
  virtual bool UserFlag() = 0;
  /// The account of such a user.
  /// [module → host, while a provider lives]
  virtual std::string AccountText() = 0;

  /// The identity that a child order carries of the user who cut it.
  /// [module → host, while a provider lives]
  virtual std::string UserIdentity() = 0;
};

}  // namespace algo::host
