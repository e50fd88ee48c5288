#pragma once

// What each algorithm shows and hides of the form. Groups that an algorithm does not name stay hidden; items
// that it does not name stay shown.

#include <array>
#include <string_view>

namespace algo::model::visibility {

inline constexpr std::array<std::string_view, 6> TVOLGroups{"lgTrading", "lgVol",      "lgWOrder",
                                                            "lgAuc",     "lgMinOrder", "lgStyle"};
inline constexpr std::array<std::string_view, 4> TVOLHidden{"liAccuVol", "liMaxVolPct", "liOpenPct",
                                                            "liClosePct"};
inline constexpr std::array<std::string_view, 7> TVOLThresholdGroups{
    "lgVol", "lgWOrder", "lgAuc", "lgMinOrder", "lgStyle", "lgTrading", "lgTVOLth"};
inline constexpr std::array<std::string_view, 4> TVOLThresholdHidden{"liMaxVolPct", "liOpenPct", "liClosePct",
                                                                     "liAccuVol"};
inline constexpr std::array<std::string_view, 7> WAPGroups{"lgTrading", "lgVol",    "lgWOrder", "lgMinOrder",
                                                           "lgStyle",   "lgSlices", "lgAuc"};
inline constexpr std::array<std::string_view, 5> TWAPHidden{"liAccuVol", "liVolPct", "liCloseSim",
                                                            "liOpenPct", "liClosePct"};
inline constexpr std::array<std::string_view, 3> VWAPHidden{"liAccuVol", "liVolPct", "liCloseSim"};
inline constexpr std::array<std::string_view, 6> ICEBERGGroups{"lgTrading", "lgAuc",    "lgMinOrder",
                                                               "lgICEBERG", "lgWOrder", "lgStyle"};
inline constexpr std::array<std::string_view, 4> ICEBERGHidden{"liIceberg", "liAllInAuc", "liOpenPct",
                                                               "liClosePct"};
inline constexpr std::array<std::string_view, 2> STOPGroups{"lgTrading", "lgSTOP"};
inline constexpr std::array<std::string_view, 10> PEGGroups{"lgTrading",  "lgPEG", "lgRef",   "lgTime",
                                                            "lgICEBERG",  "lgVol", "lgStyle", "lgWOrder",
                                                            "lgMinOrder", "lgAuc"};
inline constexpr std::array<std::string_view, 7> PEGHidden{"lgExc",    "liOpenPct", "liClosePct", "liAccuVol",
                                                           "liVolPct", "liOpening", "liCloseSim"};
inline constexpr std::array<std::string_view, 7> MOCGroups{"lgTrading",  "lgVol",     "lgAuc",  "lgWOrder",
                                                           "lgMinOrder", "lgICEBERG", "lgStyle"};
inline constexpr std::array<std::string_view, 8> MOCHidden{
    "liAccuVol", "liVolPct", "liOpening", "liOpenPct", "liClosing", "liCloseSim", "lgExc", "liIceberg"};
inline constexpr std::array<std::string_view, 4> SNIPERGroups{"lgTrading", "lgSNIPER", "lgTime", "lgStyle"};
inline constexpr std::array<std::string_view, 1> SNIPERHidden{"liRandTimeOut"};
inline constexpr std::array<std::string_view, 2> SHORTSELLGroups{"lgTrading", "lgRef"};
inline constexpr std::array<std::string_view, 2> SHORTSELLHidden{"liTickDiff", "liDiffPct"};

}  // namespace algo::model::visibility
