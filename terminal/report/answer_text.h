#pragma once

// Members of answers as text for people. Answers come from outside, so every reader copes with a member that
// is missing or of another type.

#include <nlohmann/json.hpp>
#include <string>
#include <string_view>

namespace algo::terminal::report {

/// How a number or a text is written for people.
enum class TWriting { Plain, Quantity, Flags, Side };

/// The member as text; empty when there is nothing worth writing: it is missing, empty, or a 0 that says
/// nothing.
std::string MemberText(const nlohmann::json& object, std::string_view name,
                       TWriting writing = TWriting::Plain);

/// The member, or an empty list when it is missing or no list.
const nlohmann::json& MemberList(const nlohmann::json& object, std::string_view name);

/// The member as true or false; false when it is missing.
bool MemberFlag(const nlohmann::json& object, std::string_view name);

}  // namespace algo::terminal::report
