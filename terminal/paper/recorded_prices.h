#pragma once

// Prices as they were once recorded, played again at any speed.

#include <cstddef>
#include <filesystem>
#include <vector>

#include "terminal/paper/market_tables.h"
#include "terminal/paper/price_source.h"

namespace algo::terminal::paper {

/// One line of a recording: what an instrument quoted from that time on, and what had traded since its line
/// before.
struct TRecordedQuote {
  double seconds = 0;  ///< since the recording began
  std::size_t instrument = 0;
  double bid = 0;
  double ask = 0;
  double last = 0;
  double volume = 0;
};

/// By rising time.
using TRecording = std::vector<TRecordedQuote>;

/// Reads a recording of instruments of these tables. Throws EPaperError at the first line that cannot be
/// used.
TRecording LoadRecording(const std::filesystem::path& file, const TMarketTables& tables);

class TRecordedPrices final : public TPriceSource {
 public:
  /// Plays `speed` seconds of the recording for each second; above 0.
  TRecordedPrices(TRecording recording, const TMarketTables& tables, double speed);

  /// With no effect once the recording is at its end. A recording has no sizes: there are as many shares at
  /// either side as the line says that traded, and one lot at least.
  void Advance(double seconds, std::span<TQuote> quotes) override;

  /// Whether all of the recording was played.
  bool AtEnd() const { return FNext == FRecording.size(); }

 private:
  TRecording FRecording;
  std::vector<double> FLots;
  double FSpeed;
  double FTime = 0;
  std::size_t FNext = 0;
};

}  // namespace algo::terminal::paper
