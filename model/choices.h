#pragma once

// The fixed pick lists of the algo fields: how each item is called, shown and written in the parameter text.
// The last item of each list is the not-set item, which is never written.

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

namespace algo::model {

struct TChoiceItem {
  std::string_view entry;         ///< what lists and saved workspaces call the item
  std::string_view code;          ///< what the parameter text writes; empty for the not-set item alone
  std::string_view textId = {};   ///< resource id of the text that is shown; empty where the entry is the id
  std::string_view levelId = {};  ///< resource id of a text that is shown right behind it; empty for none
};

using TChoiceList = std::span<const TChoiceItem>;

inline constexpr std::array OpenCloseChoices{TChoiceItem{"Res_No", "0"}, TChoiceItem{"Res_Yes", "1"},
                                             TChoiceItem{"Res_NA", ""}};

inline constexpr std::array AccuVolChoices{TChoiceItem{"Res_No", "N"}, TChoiceItem{"Res_Yes", "Y"},
                                           TChoiceItem{"Res_NA", ""}};

// The misspelt id is the one that the resources have.
inline constexpr std::array FuncChoices{
    TChoiceItem{"Res_Algo_Func_Config", "0"}, TChoiceItem{"Res_Algo_Func_Native", "1"},
    TChoiceItem{"Res_Algo_Func_Simualted", "2"}, TChoiceItem{"Res_NA", ""}};

inline constexpr std::array StyleChoices{TChoiceItem{"Res_Algo_Normal", "3"},
                                         TChoiceItem{"Res_Algo_Aggressive", "5"},
                                         TChoiceItem{"Res_Algo_Passive", "1"}, TChoiceItem{"Res_NA", ""}};

// The gaps at 6, 7 and 12 are the engine's. Levels behind the best are shown as the side's text and the
// level's.
inline constexpr std::array RefChoices{
    TChoiceItem{"OrderSide", "1", "Res_OrderSide"},
    TChoiceItem{"Opposite", "2", "Res_Opposite"},
    TChoiceItem{"Last", "3", "Res_Last"},
    TChoiceItem{"Bid", "4", "Res_Bid"},
    TChoiceItem{"Ask", "5", "Res_Ask"},
    TChoiceItem{"Low", "8", "Res_LowPrice"},
    TChoiceItem{"High", "9", "Res_HighPrice"},
    TChoiceItem{"VWAP", "10", "Res_Algo_VWAP"},
    TChoiceItem{"Mid", "11", "Res_Mid"},
    TChoiceItem{"Bid2", "13", "Res_Bid", "Res_Num2"},
    TChoiceItem{"Bid3", "14", "Res_Bid", "Res_Num3"},
    TChoiceItem{"Bid4", "15", "Res_Bid", "Res_Num4"},
    TChoiceItem{"Bid5", "16", "Res_Bid", "Res_Num5"},
    TChoiceItem{"Ask2", "17", "Res_Ask", "Res_Num2"},
    TChoiceItem{"Ask3", "18", "Res_Ask", "Res_Num3"},
    TChoiceItem{"Ask4", "19", "Res_Ask", "Res_Num4"},
    TChoiceItem{"Ask5", "20", "Res_Ask", "Res_Num5"},
    TChoiceItem{"N\\A", "", "Res_NA"},
};

/// The text written for the item; empty for the not-set item and for an index that the list does not have.
std::string_view ChoiceText(TChoiceList choices, std::int32_t index);

/// The item whose code stands for the same as `text`: letters as they are, numbers by their value. Nothing
/// for a text that stands for no item.
std::optional<std::int32_t> ChoiceIndex(TChoiceList choices, std::string_view text);

}  // namespace algo::model
