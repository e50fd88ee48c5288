#pragma once

// The services that answer from the host data alone: texts, the user's rights and profile, accounts.

#include <cstdint>
#include <string>
#include <string_view>

#include "plugin/host_contract/account_adapter.h"
#include "plugin/host_contract/language_manager.h"
#include "plugin/host_contract/user_app_profile.h"
#include "terminal/host/host_context.h"

namespace algo::terminal {

class TMemoryLanguageManager final : public host::TCustomLanguageManager {
 public:
  explicit TMemoryLanguageManager(const THostContext& host) : FHost(host) {}

  /// A resource id without a text yields the id itself, any other id an empty text.
  std::string GetText(std::string_view tag, std::string_view id, std::int32_t language, std::int32_t variant,
                      std::int32_t options) override;

 private:
  const THostContext& FHost;
};

class TMemoryUserAppProfile final : public host::TCustomUserAppProfile {
 public:
  explicit TMemoryUserAppProfile(const THostContext& host) : FHost(host) {}

  bool HasRight(std::string_view name) override;
  std::int32_t UserKind() override;
  bool UserFlag() override;
  std::string AccountText() override;
  std::string UserIdentity() override;

 private:
  template <class TValue>
  TValue Read(TValue TProfile::*value) const;

  const THostContext& FHost;
};

class TMemoryAccountAdapter final : public host::TCustomAccountAdapter {
 public:
  explicit TMemoryAccountAdapter(const THostContext& host) : FHost(host) {}

  /// Codes are compared exactly.
  bool IsKnown(std::string_view account) override;

 private:
  const THostContext& FHost;
};

}  // namespace algo::terminal
