#pragma once

// The fixed pick lists of the algo fields, and how a choice is written in the parameter text. The last item
// of each list is the not-set item, which is never written.

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

namespace algo::model {

inline constexpr std::array<std::string_view, 3> OpenCloseList{"Res_No", "Res_Yes", "Res_NA"};

// The misspelt id is the one that the resources have.
inline constexpr std::array<std::string_view, 4> FuncList{"Res_Algo_Func_Config", "Res_Algo_Func_Native",
                                                          "Res_Algo_Func_Simualted", "Res_NA"};

inline constexpr std::array<std::string_view, 4> StyleList{"Res_Algo_Normal", "Res_Algo_Aggressive",
                                                           "Res_Algo_Passive", "Res_NA"};

inline constexpr std::array<std::string_view, 18> RefList{
    "OrderSide", "Opposite", "Last", "Bid",  "Ask",  "Low",  "High", "VWAP", "Mid",
    "Bid2",      "Bid3",     "Bid4", "Bid5", "Ask2", "Ask3", "Ask4", "Ask5", "N\\A"};

// The gaps at 6, 7 and 12 are the engine's.
inline constexpr std::array<std::int32_t, 17> RefValues{1,  2,  3,  4,  5,  8,  9,  10, 11,
                                                        13, 14, 15, 16, 17, 18, 19, 20};

/// How the choices of one list are written: the text for each item but the last.
struct TChoiceCode {
  std::span<const std::string_view> texts;
};

extern const TChoiceCode OpenCloseCode;  ///< 0, 1
extern const TChoiceCode FuncCode;       ///< 0, 1, 2
extern const TChoiceCode StyleCode;      ///< 3, 5, 1
extern const TChoiceCode RefCode;        ///< RefValues
extern const TChoiceCode AccuVolCode;    ///< N, Y

/// The text written for the item; empty for the not-set item and for no choice.
std::string_view ChoiceText(const TChoiceCode& code, std::int32_t index);

/// The item whose text stands for the same as `text`: letters as they are, numbers by their value. Nothing
/// for a text that stands for no item.
std::optional<std::int32_t> ChoiceIndex(const TChoiceCode& code, std::string_view text);

}  // namespace algo::model
