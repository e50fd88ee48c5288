#pragma once

// The arguments of one command, read by name and type. Every reader throws ECommandError, naming the
// argument, if a value has the wrong type or a required one is missing. Handlers read all of their arguments
// before they do anything, so that a refused command changes nothing.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "terminal/drive/json.h"

namespace algo::terminal::drive {

/// The value as the given type. Each throws ECommandError, with `name` in the text, for a value of another
/// type, the integers also for one that does not fit.
const std::string& AsText(std::string_view name, const TCommandJson& value);
bool AsBoolean(std::string_view name, const TCommandJson& value);
double AsNumber(std::string_view name, const TCommandJson& value);
std::int32_t AsInteger(std::string_view name, const TCommandJson& value);
std::uint32_t AsFlags(std::string_view name, const TCommandJson& value);
std::vector<std::string> AsTexts(std::string_view name, const TCommandJson& value);
const TCommandJson& AsTable(std::string_view name, const TCommandJson& value);

class TArguments {
 public:
  /// `command` is a JSON object that outlives the arguments.
  explicit TArguments(const TCommandJson& command) : FCommand(command) {}

  /// The value with that name; nullptr if it was not given.
  const TCommandJson* Find(std::string_view name) const;
  bool Has(std::string_view name) const { return Find(name) != nullptr; }

  /// The value with that name. Throws ECommandError if it was not given.
  const TCommandJson& Required(std::string_view name) const;

  const std::string& Text(std::string_view name) const { return AsText(name, Required(name)); }
  std::int32_t Integer(std::string_view name) const { return AsInteger(name, Required(name)); }

  /// The same with a default for an argument that was not given.
  std::string TextOr(std::string_view name, std::string_view otherwise) const;
  std::int32_t IntegerOr(std::string_view name, std::int32_t otherwise) const;
  bool BooleanOr(std::string_view name, bool otherwise) const;

  /// The whole command.
  const TCommandJson& All() const { return FCommand; }

 private:
  const TCommandJson& FCommand;
};

}  // namespace algo::terminal::drive
