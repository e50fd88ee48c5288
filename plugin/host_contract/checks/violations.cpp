#include "plugin/host_contract/checks/violations.h"

#include <cstdio>
#include <cstdlib>

namespace algo::host::checks {

void TViolations::Report(const std::string& what) const {
  if (FHandler) FHandler(what);
  const std::string line = "contract violated: " + what + "\n";
  std::fputs(line.c_str(), stderr);
  std::abort();
}

}  // namespace algo::host::checks
