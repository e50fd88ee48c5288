#pragma once

// Arguments about service operations.

#include <cstdint>
#include <string_view>

#include "terminal/drive/arguments.h"
#include "terminal/host/service_operations.h"

namespace algo::terminal::drive {

/// The service operation that the value names. Throws ECommandError if it is no text or names none.
const TServiceOperationRow& AsServiceOperation(std::string_view name, const TCommandJson& value);

/// The value as a number of calls, or as the place of one among them. Throws ECommandError if it is no whole
/// number, or below 1.
std::uint32_t AsCount(std::string_view name, const TCommandJson& value);

}  // namespace algo::terminal::drive
