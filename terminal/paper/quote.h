#pragma once

// The paper market's figures of an instrument at one moment.

namespace algo::terminal::paper {

struct TQuote {
  double bid = 0;
  double ask = 0;
  double bidSize = 0;  ///< shares wanted at the bid
  double askSize = 0;
  double last = 0;        ///< the price of the last trade; before the first one, the previous close
  double stepVolume = 0;  ///< shares traded in the last step
  double volume = 0;      ///< shares traded since the market began
  double open = 0;        ///< the first trade's price; 0 before it, as high and low
  double high = 0;
  double low = 0;
};

}  // namespace algo::terminal::paper
