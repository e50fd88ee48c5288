#pragma once

// Members of answers as text for people. Answers come from outside, so every function copes with a member
// that is missing or has another type.

#include <nlohmann/json.hpp>
#include <string>
#include <string_view>

namespace algo::terminal::report {

/// How a number or a text is written for people.
enum class TWriting { Plain, Quantity, Flags, Side };

/// The member as text; empty if it is missing, empty, or a 0 that means nothing.
std::string MemberText(const nlohmann::json& object, std::string_view name,
                       TWriting writing = TWriting::Plain);

/// The member, or an empty list if it is missing or not a list.
const nlohmann::json& MemberList(const nlohmann::json& object, std::string_view name);

/// The member as true or false; false if it is missing.
bool MemberFlag(const nlohmann::json& object, std::string_view name);

}  // namespace algo::terminal::report
