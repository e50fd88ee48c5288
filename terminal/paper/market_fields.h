#pragma once

// The fields of a market-data item that the paper market publishes beyond those that a module reads.

#include <cstdint>

namespace algo::terminal::paper::field {

inline constexpr std::int32_t Bid = 2001;
inline constexpr std::int32_t Ask = 2002;
inline constexpr std::int32_t BidSize = 2003;  ///< shares
inline constexpr std::int32_t AskSize = 2004;  ///< shares
inline constexpr std::int32_t Volume = 2005;   ///< shares traded since the market began
inline constexpr std::int32_t Open = 2006;     ///< the item lacks open, high and low before the first trade
inline constexpr std::int32_t High = 2007;
inline constexpr std::int32_t Low = 2008;
inline constexpr std::int32_t Name = 2009;             ///< in English
inline constexpr std::int32_t NameTraditional = 2010;  ///< in traditional Chinese
inline constexpr std::int32_t NameSimplified = 2011;   ///< in simplified Chinese
inline constexpr std::int32_t Exchange = 2012;         ///< the exchange's code

}  // namespace algo::terminal::paper::field
