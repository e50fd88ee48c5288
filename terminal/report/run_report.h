#pragma once

// A report on a run of the scripted host, for people: the orders that were sent to the terminal, field by
// field with their parameters, the messages that the trader saw, and the commands that were refused.

#include <cstdint>
#include <iosfwd>
#include <nlohmann/json.hpp>
#include <string_view>

namespace algo::terminal::report {

class TRunReport {
 public:
  /// `out` outlives the report.
  explicit TRunReport(std::ostream& out) : FOut(out) {}

  /// Reports on one line of answers. A line that is not an answer is reported as such and counts as refused.
  void AddLine(std::string_view line);

  /// Writes the closing line.
  void Finish();

  /// Whether every answer was ok.
  bool AllOk() const { return FRefused == 0; }

 private:
  void AddAnswer(const nlohmann::json& answer);
  void AddEvent(const nlohmann::json& event);
  void AddOrder(const nlohmann::json& event);

  std::ostream& FOut;
  std::int64_t FLines = 0;
  std::int64_t FOrders = 0;
  std::int64_t FRefused = 0;
};

}  // namespace algo::terminal::report
