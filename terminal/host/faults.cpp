#include "terminal/host/faults.h"

#include <cassert>

namespace algo::terminal {

namespace {

constexpr int ThrownNumber = 17;

}  // namespace

void TFaults::Set(const std::set<std::string, std::less<>>& operations) {
  std::vector<TFault> faults;
  for (const auto& name : operations) {
    const TServiceOperationRow* row = FindServiceOperation(name);
    assert(row != nullptr);
    if (row == nullptr) continue;
    TFault& fault = faults.emplace_back();
    fault.operation = row->operation;
  }
  SetAll(faults);
}

void TFaults::SetAll(const std::vector<TFault>& faults) {
  FFaults.clear();
  for (const auto& fault : faults) FFaults.push_back({fault, 0, 0});
}

std::optional<TFaultAnswer> TFaults::Strike(TServiceOperation operation) {
  std::optional<TFaultAnswer> answer;
  for (auto& fault : FFaults) {
    if (fault.operation != operation) continue;
    ++fault.calls;
    const bool strikes =
        fault.calls >= fault.from && (!fault.times || fault.calls - fault.from < *fault.times);
    if (strikes && !answer) answer = TFaultAnswer{fault.kind, fault.struck++};
  }
  if (!answer) return answer;
  if (answer->kind == TFaultKind::Exception) {
    throw EHostFault("The host fails at " + std::string(RowOf(operation).name));
  }
  // What a host in another language lets out need not be an exception of this one.
  if (answer->kind == TFaultKind::Int) throw ThrownNumber;  // NOLINT(hicpp-exception-baseclass)
  return answer;
}

}  // namespace algo::terminal
