#include "terminal/drive/fault_merge.h"

#include <algorithm>
#include <array>
#include <string>

#include "terminal/drive/operation_argument.h"

namespace algo::terminal::drive {

namespace {

TFaultKind KindOf(const TServiceOperationRow& row, const TCommandJson& value) {
  const auto& text = AsText("as", value);
  const auto kind = FindFaultKind(text);
  if (!kind || !row.CanFailAs(*kind)) {
    throw ECommandError("'" + std::string(row.name) + "' cannot fail as '" + text + "'");
  }
  return *kind;
}

void CheckMembers(const TCommandJson& table) {
  constexpr std::array<std::string_view, 4> Members{"call", "from", "times", "as"};
  for (const auto& [name, value] : table.items()) {
    if (std::ranges::find(Members, name) == Members.end()) {
      throw ECommandError("a failure has no '" + name + "'");
    }
  }
}

TFault FaultOf(std::string_view name, const TCommandJson& value) {
  TFault fault;
  if (value.is_string()) {
    fault.operation = AsServiceOperation(name, value).operation;
    return fault;
  }
  if (!value.is_object()) throw ECommandError("'" + std::string(name) + "' must list names and tables");
  CheckMembers(value);
  const TArguments arguments(value);
  const TServiceOperationRow& row = AsServiceOperation("call", arguments.Required("call"));
  fault.operation = row.operation;
  if (const TCommandJson* from = arguments.Find("from")) fault.from = AsCount("from", *from);
  if (const TCommandJson* times = arguments.Find("times")) fault.times = AsCount("times", *times);
  if (const TCommandJson* kind = arguments.Find("as")) fault.kind = KindOf(row, *kind);
  return fault;
}

}  // namespace

void MergeFaults(std::string_view name, const TCommandJson& value, TFaults& into) {
  if (!value.is_array()) throw ECommandError("'" + std::string(name) + "' must list names and tables");
  std::vector<TFault> faults;
  for (const auto& entry : value) faults.push_back(FaultOf(name, entry));
  into.SetAll(faults);
}

}  // namespace algo::terminal::drive
