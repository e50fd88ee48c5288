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
    std::string_view code;
    std::string_view resourceId;
  };
  const std::vector<TExpected> expected{
      {"TVOL", "Res_Algo_OrderType_TVOL"},       {"TVOL Threshold", "Res_Algo_OrderType_TVOLTH"},
      {"TWAP", "Res_Algo_OrderType_TWAP"},       {"VWAP", "Res_Algo_OrderType_VWAP"},
      {"CLOSE", "Res_Algo_OrderType_CLOSE"},     {"OPEN", "Res_Algo_OrderType_OPEN"},
      {"ICEBERG", "Res_Algo_OrderType_ICEBERG"}, {"STOP", "Res_Algo_OrderType_STOP"},
      {"PEG", "Res_Algo_OrderType_PEG"},         {"MOC", "Res_Algo_OrderType_MOC"},
      {"SNIPER", "Res_Algo_OrderType_SNIPER"},   {"SHORT SELL", "Res_Algo_OrderType_SHORTSELL"},
  };
  ASSERT_EQ(AlgoRows().size(), expected.size());
  for (std::size_t i = 0; i < expected.size(); ++i) {
    EXPECT_EQ(AlgoRows()[i].code, expected[i].code);
    EXPECT_EQ(AlgoRows()[i].resourceId, expected[i].resourceId);
  }
}

TEST(Algos, AreFoundWhateverTheLetterCase) {
  ASSERT_NE(FindAlgoByCode("tvol THRESHOLD"), nullptr);
  EXPECT_EQ(FindAlgoByCode("tvol THRESHOLD")->code, "TVOL Threshold");
  EXPECT_EQ(FindAlgoByCode("TVOL")->code, "TVOL");
  EXPECT_EQ(FindAlgoByCode("Short Sell")->code, "SHORT SELL");
  EXPECT_EQ(FindAlgoById("res_algo_ordertype_tvolth")->code, "TVOL Threshold");
  EXPECT_EQ(FindAlgoById("Res_Algo_OrderType_PEG")->code, "PEG");
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
  bool hasStyles = true;
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
  ASSERT_EQ(AllViews.size(), AlgoRows().size());
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
    ASSERT_EQ(row->maximums.size(), view.maxVolPctMaximum ? 1U : 0U) << view.code;
    if (view.maxVolPctMaximum) {
      EXPECT_EQ(row->maximums[0].param, TParam::MaxVolPct) << view.code;
      EXPECT_EQ(row->maximums[0].maximum, *view.maxVolPctMaximum) << view.code;
    }
    ASSERT_EQ(row->notSetAtFirst.size(), view.closingNotSet ? 1U : 0U) << view.code;
    if (view.closingNotSet) {
      EXPECT_EQ(row->notSetAtFirst[0], TParam::Closing) << view.code;
    }
    EXPECT_EQ(row->groupsInRightColumn, view.groupsInRightColumn) << view.code;
    EXPECT_EQ(Writes(*row, TParam::Style), view.hasStyles) << view.code;
  }
}

TEST(Algos, OnlyAWorkingIcebergHasAFieldThatAChangeLeavesAlone) {
  for (const TAlgoRow& row : AlgoRows()) {
    const std::vector<TParam> fixed(row.fixedWhileWorking.begin(), row.fixedWhileWorking.end());
    EXPECT_EQ(fixed, row.code == "ICEBERG" ? std::vector{TParam::Func} : std::vector<TParam>()) << row.code;
  }
}

}  // namespace
}  // namespace algo::model
