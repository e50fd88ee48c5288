#pragma once

// Recorded prices, replayed at any speed.

#include <cstddef>
#include <filesystem>
#include <vector>

#include "terminal/paper/market_tables.h"
#include "terminal/paper/price_source.h"

namespace algo::terminal::paper {

/// One line of a recording: an instrument's quote from that time on, and the volume since its previous line.
struct TRecordedQuote {
  double seconds = 0;  ///< since the recording began
  std::size_t instrument = 0;
  double bid = 0;
  double ask = 0;
  double last = 0;
  double volume = 0;
};

/// In order of time.
using TRecording = std::vector<TRecordedQuote>;

/// Reads a recording of instruments of these tables. Throws EPaperError at the first unusable line.
TRecording LoadRecording(const std::filesystem::path& file, const TMarketTables& tables);

class TRecordedPrices final : public TPriceSource {
 public:
  /// Plays `speed` seconds of the recording per second; above 0.
  TRecordedPrices(TRecording recording, const TMarketTables& tables, double speed);

  /// Without effect once the recording is at its end. A recording has no sizes: either side has as many
  /// shares as the line's volume, but at least one lot.
  void Advance(double seconds, std::span<TQuote> quotes) override;

  /// Whether the whole recording was played.
  bool AtEnd() const { return FNext == FRecording.size(); }

 private:
  TRecording FRecording;
  std::vector<double> FLots;
  double FSpeed;
  double FTime = 0;
  std::size_t FNext = 0;
};

}  // namespace algo::terminal::paper
