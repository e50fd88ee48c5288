#include "terminal/host/user_services.h"

namespace algo::terminal {

std::string TMemoryLanguageManager::GetText(std::string_view tag, std::string_view id,
                                            std::int32_t /*language*/, std::int32_t /*variant*/,
                                            std::int32_t /*options*/) {
  return FHost.Call(TServiceOperation::LanguageText, [&] {
    if (const auto table = FHost.data.texts.find(tag); table != FHost.data.texts.end()) {
      if (const auto text = table->second.find(id); text != table->second.end()) return text->second;
    }
    return tag == host::Const_ResourceStringTag ? std::string(id) : std::string();
  });
}

bool TMemoryUserAppProfile::HasRight(std::string_view name) {
  return FHost.Call(TServiceOperation::ProfileRight, [&] { return FHost.data.rights.contains(name); });
}

template <class TValue>
TValue TMemoryUserAppProfile::Read(TValue TProfile::*value) const {
  return FHost.Call(TServiceOperation::ProfileData, [&] { return FHost.data.profile.*value; });
}

std::int32_t TMemoryUserAppProfile::UserKind() { return Read(&TProfile::kind); }

bool TMemoryUserAppProfile::UserFlag() { return Read(&TProfile::flag); }

std::string TMemoryUserAppProfile::AccountText() { return Read(&TProfile::account); }

std::string TMemoryUserAppProfile::UserIdentity() { return Read(&TProfile::user); }

bool TMemoryAccountAdapter::IsKnown(std::string_view account) {
  return FHost.Call(TServiceOperation::AccountKnown, [&] { return FHost.data.accounts.contains(account); });
}

}  // namespace algo::terminal
