#pragma once

// The account of a run of the scripted host, for people: the orders that were handed to the terminal, field
// by field with their parameters, what the trader was told on the way, and which commands were refused.

#include <cstdint>
#include <iosfwd>
#include <nlohmann/json.hpp>
#include <string_view>

namespace algo::terminal::report {

class TRunReport {
 public:
  /// `out` outlives the account.
  explicit TRunReport(std::ostream& out) : FOut(out) {}

  /// Writes what there is to tell of one line of answers. A line that is no answer is told as such and counts
  /// as one that was not ok.
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
