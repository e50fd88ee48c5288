#include "terminal/drive/operation_argument.h"

#include <string>

namespace algo::terminal::drive {

const TServiceOperationRow& AsServiceOperation(std::string_view name, const TCommandJson& value) {
  const auto& text = AsText(name, value);
  const TServiceOperationRow* row = FindServiceOperation(text);
  if (row == nullptr) throw ECommandError("no service has an operation '" + text + "'");
  return *row;
}

std::uint32_t AsCount(std::string_view name, const TCommandJson& value) {
  const std::uint32_t count = AsFlags(name, value);
  if (count == 0) throw ECommandError("'" + std::string(name) + "' must be at least 1");
  return count;
}

}  // namespace algo::terminal::drive
