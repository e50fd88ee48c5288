#include "terminal/desk/frames/start_views.h"

#include <cstdint>
#include <map>

namespace algo::terminal::desk::frames {

std::vector<host::TIBaseView*> StartViews(const std::vector<host::TIBaseView*>& providers) {
  // Each is asked for its index once, since what it answers may change from one time to the next.
  std::multimap<std::int32_t, host::TIBaseView*> byIndex;
  for (host::TIBaseView* provider : providers) {
    if (!provider->GetIsDialogViewAfterMainShow() || !provider->GetIsVisible()) continue;
    byIndex.emplace(provider->GetDialogViewIndexAfterMainShow(), provider);
  }
  std::vector<host::TIBaseView*> ordered;
  for (const auto& [index, provider] : byIndex) ordered.push_back(provider);
  return ordered;
}

}  // namespace algo::terminal::desk::frames
