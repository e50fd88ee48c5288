#include "model/algos.h"

#include <gtest/gtest.h>

#include <string_view>
#include <vector>

namespace algo::model {
namespace {

using TNames = std::vector<std::string_view>;

template <class TList>
TNames Names(const TList& list) {
  return {list.begin(), list.end()};
}

TEST(Algos, StandInTheCatalogueWithCodeAndResourceId) {
  struct TExpected {
    TAlgo algo;
    std::string_view code;
    std::string_view resourceId;
  };
  const std::vector<TExpected> expected{
      {TAlgo::TVOL, "TVOL", "Res_Algo_OrderType_TVOL"},
      {TAlgo::TVOLThreshold, "TVOL Threshold", "Res_Algo_OrderType_TVOLTH"},
      {TAlgo::TWAP, "TWAP", "Res_Algo_OrderType_TWAP"},
      {TAlgo::VWAP, "VWAP", "Res_Algo_OrderType_VWAP"},
      {TAlgo::CLOSE, "CLOSE", "Res_Algo_OrderType_CLOSE"},
      {TAlgo::OPEN, "OPEN", "Res_Algo_OrderType_OPEN"},
      {TAlgo::ICEBERG, "ICEBERG", "Res_Algo_OrderType_ICEBERG"},
      {TAlgo::STOP, "STOP", "Res_Algo_OrderType_STOP"},
      {TAlgo::PEG, "PEG", "Res_Algo_OrderType_PEG"},
      {TAlgo::MOC, "MOC", "Res_Algo_OrderType_MOC"},
      {TAlgo::SNIPER, "SNIPER", "Res_Algo_OrderType_SNIPER"},
      {TAlgo::SHORTSELL, "SHORT SELL", "Res_Algo_OrderType_SHORTSELL"},
  };
  ASSERT_EQ(AlgoRows().size(), expected.size());
  for (std::size_t i = 0; i < expected.size(); ++i) {
    EXPECT_EQ(AlgoRows()[i].algo, expected[i].algo);
    EXPECT_EQ(AlgoRows()[i].code, expected[i].code);
    EXPECT_EQ(AlgoRows()[i].resourceId, expected[i].resourceId);
  }
}

TEST(Algos, AreFoundWhateverTheLetterCase) {
  ASSERT_NE(FindAlgoByCode("tvol THRESHOLD"), nullptr);
  EXPECT_EQ(FindAlgoByCode("tvol THRESHOLD")->algo, TAlgo::TVOLThreshold);
  EXPECT_EQ(FindAlgoByCode("TVOL")->algo, TAlgo::TVOL);
  EXPECT_EQ(FindAlgoByCode("Short Sell")->algo, TAlgo::SHORTSELL);
  EXPECT_EQ(FindAlgoById("res_algo_ordertype_tvolth")->algo, TAlgo::TVOLThreshold);
  EXPECT_EQ(FindAlgoById("Res_Algo_OrderType_PEG")->algo, TAlgo::PEG);
}

TEST(Algos, AreNotFoundByAnythingElse) {
  for (const std::string_view name :
       {"", "TVOLTH", "TVOL ", "SHORTSELL", "ARRIVAL", "Res_Algo_OrderType_TVOL"}) {
    EXPECT_EQ(FindAlgoByCode(name), nullptr) << name;
  }
  for (const std::string_view name : {"", "TVOL", "Res_Algo_OrderType_", "Res_Algo_OrderType_ARRIVAL"}) {
    EXPECT_EQ(FindAlgoById(name), nullptr) << name;
  }
}

struct TView {
  std::string_view code;
  TNames groups;
  TNames hidden;
  std::optional<double> maxVolPctMaximum = {};
  bool closingNotSet = false;
  bool groupsInRightColumn = false;
  bool refillsStyle = true;
};

const std::vector<TView> AllViews{
    {"TVOL",
     {"lgTrading", "lgVol", "lgWOrder", "lgAuc", "lgMinOrder", "lgStyle"},
     {"liAccuVol", "liMaxVolPct", "liOpenPct", "liClosePct"}},
    {"TVOL Threshold",
     {"lgVol", "lgWOrder", "lgAuc", "lgMinOrder", "lgStyle", "lgTrading", "lgTVOLth"},
     {"liMaxVolPct", "liOpenPct", "liClosePct", "liAccuVol"}},
    {"TWAP",
     {"lgTrading", "lgVol", "lgWOrder", "lgMinOrder", "lgStyle", "lgSlices", "lgAuc"},
     {"liAccuVol", "liVolPct", "liCloseSim", "liOpenPct", "liClosePct"},
     75.0},
    {"VWAP",
     {"lgTrading", "lgVol", "lgWOrder", "lgMinOrder", "lgStyle", "lgSlices", "lgAuc"},
     {"liAccuVol", "liVolPct", "liCloseSim"},
     75.0,
     true},
    {"CLOSE", {}, {}, {}, false, false, false},
    {"OPEN", {}, {}, {}, false, false, false},
    {"ICEBERG",
     {"lgTrading", "lgAuc", "lgMinOrder", "lgICEBERG", "lgWOrder", "lgStyle"},
     {"liIceberg", "liAllInAuc", "liOpenPct", "liClosePct"}},
    {"STOP", {"lgTrading", "lgSTOP"}, {}, {}, false, false, false},
    {"PEG",
     {"lgTrading", "lgPEG", "lgRef", "lgTime", "lgICEBERG", "lgVol", "lgStyle", "lgWOrder", "lgMinOrder",
      "lgAuc"},
     {"lgExc", "liOpenPct", "liClosePct", "liAccuVol", "liVolPct", "liOpening", "liCloseSim"},
     80.0,
     false,
     true},
    {"MOC",
     {"lgTrading", "lgVol", "lgAuc", "lgWOrder", "lgMinOrder", "lgICEBERG", "lgStyle"},
     {"liAccuVol", "liVolPct", "liOpening", "liOpenPct", "liClosing", "liCloseSim", "lgExc", "liIceberg"},
     80.0},
    {"SNIPER", {"lgTrading", "lgSNIPER", "lgTime", "lgStyle"}, {"liRandTimeOut"}},
    {"SHORT SELL", {"lgTrading", "lgRef"}, {"liTickDiff", "liDiffPct"}, {}, false, false, false},
};

TEST(Algos, ShowTheirGroupsAndHideTheItemsThatTheyDoNotUse) {
  ASSERT_EQ(AllViews.size(), 12U);
  for (const TView& view : AllViews) {
    const TAlgoRow* row = FindAlgoByCode(view.code);
    ASSERT_NE(row, nullptr) << view.code;
    EXPECT_EQ(Names(row->groups), view.groups) << view.code;
    EXPECT_EQ(Names(row->hiddenItems), view.hidden) << view.code;
  }
}

TEST(Algos, AdaptTheFormToThemselves) {
  for (const TView& view : AllViews) {
    const TAlgoRow* row = FindAlgoByCode(view.code);
    ASSERT_NE(row, nullptr) << view.code;
    EXPECT_EQ(row->maxVolPctMaximum, view.maxVolPctMaximum) << view.code;
    EXPECT_EQ(row->closingNotSet, view.closingNotSet) << view.code;
    EXPECT_EQ(row->groupsInRightColumn, view.groupsInRightColumn) << view.code;
    EXPECT_EQ(row->refillsStyle, view.refillsStyle) << view.code;
  }
}

TEST(Algos, StartFromAFormWithoutAnyAlgoGroup) {
  EXPECT_EQ(Names(AllAlgoGroups),
            (TNames{"lgVol", "lgWOrder", "lgStyle", "lgMinOrder", "lgAuc", "lgRef", "lgTime", "lgTrading",
                    "lgSlices", "lgTVOLth", "lgICEBERG", "lgSNIPER", "lgSTOP", "lgPEG"}));
  EXPECT_EQ(Names(ItemsShownAgain), (TNames{"liOpenPct", "liClosePct", "liTickDiff", "liDiffPct", "liClosing",
                                            "liRandTimeOut", "liTimeOut", "liIceberg", "lgExc", "liOpening",
                                            "liMaxVolPct", "liJoin", "liVolPct", "lgPEGExcept"}));
}

}  // namespace
}  // namespace algo::model
