#include "terminal/host/user_services.h"

namespace algo::terminal {

std::string TMemoryLanguageManager::GetText(std::string_view tag, std::string_view id,
                                            std::int32_t /*language*/, std::int32_t /*variant*/,
                                            std::int32_t /*options*/) {
  FHost.Check("language.text");
  if (const auto table = FHost.data.texts.find(tag); table != FHost.data.texts.end()) {
    if (const auto text = table->second.find(id); text != table->second.end()) return text->second;
  }
  return tag == host::Const_ResourceStringTag ? std::string(id) : std::string();
}

bool TMemoryUserAppProfile::HasRight(std::string_view name) {
  FHost.Check("profile.right");
  return FHost.data.rights.contains(name);
}

const TProfile& TMemoryUserAppProfile::Profile() const {
  FHost.Check("profile.data");
  return FHost.data.profile;
}

bool TMemoryAccountAdapter::IsKnown(std::string_view account) {
  FHost.Check("account.known");
  return FHost.data.accounts.contains(account);
}

}  // namespace algo::terminal
