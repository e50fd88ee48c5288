#include "terminal/host/host_data.h"

namespace algo::terminal {

std::string THostData::Setting(std::string_view wantedSection, std::string_view key) const {
  const auto table = config.find(wantedSection);
  if (table == config.end()) return {};
  const auto found = table->second.find(key);
  return found == table->second.end() ? std::string() : found->second;
}

}  // namespace algo::terminal
