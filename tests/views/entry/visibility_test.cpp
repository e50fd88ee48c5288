// What each algorithm shows of the form, element by element, whatever was shown before it.

#include <algorithm>
#include <array>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "tests/views/table_coverage.h"
#include "tests/views/terminal_fixture.h"

namespace algo::tests {
namespace {

struct TShownRow {
  std::string_view code;
  std::set<std::string_view> groups;
  std::set<std::string_view> items;
};

// Everything below the algorithms' columns that shows; what is not named must not.
// clang-format off
const std::vector<TShownRow> ShownRows{
    {"TVOL",
     {"lgTrading", "lgVol", "lgWOrder", "lgAuc", "lgMinOrder", "lgStyle"},
     {"liSTime", "liETime", "liVolPct", "liWPx", "liOpening", "liClosing", "liMinOrdAmt", "liStyle"}},
    {"TVOL Threshold",
     {"lgTrading", "lgVol", "lgWOrder", "lgAuc", "lgMinOrder", "lgStyle", "lgTVOLth"},
     {"liSTime", "liETime", "liVolPct", "liWPx", "liOpening", "liClosing", "liMinOrdAmt", "liStyle",
      "liThrPx1", "liThrVolPct1", "liThrPx2", "liThrVolPct2"}},
    {"TWAP",
     {"lgTrading", "lgVol", "lgWOrder", "lgMinOrder", "lgStyle", "lgSlices", "lgAuc"},
     {"liSTime", "liETime", "liMaxVolPct", "liWPx", "liOpening", "liClosing", "liMinOrdAmt", "liStyle",
      "liSlices"}},
    {"VWAP",
     {"lgTrading", "lgVol", "lgWOrder", "lgMinOrder", "lgStyle", "lgSlices", "lgAuc"},
     {"liSTime", "liETime", "liMaxVolPct", "liWPx", "liOpening", "liOpenPct", "liClosing", "liClosePct",
      "liMinOrdAmt", "liStyle", "liSlices"}},
    {"CLOSE", {}, {}},
    {"OPEN", {}, {}},
    {"ICEBERG",
     {"lgTrading", "lgAuc", "lgMinOrder", "lgICEBERG", "lgExc", "lgWOrder", "lgStyle"},
     {"liSTime", "liETime", "liOpening", "liClosing", "liMinOrdAmt", "liShowQty", "liMaxShowQty",
      "liRandPct", "liReloadPct", "liFunc", "liWPx", "liStyle"}},
    {"STOP", {"lgTrading", "lgSTOP"}, {"liSTime", "liETime", "liStopLossPx", "liStopQty"}},
    {"PEG",
     {"lgTrading", "lgPEG", "lgPEGExcept", "lgRef", "lgTime", "lgICEBERG", "lgVol", "lgStyle", "lgWOrder",
      "lgMinOrder", "lgAuc"},
     {"liSTime", "liETime", "liJoin", "liJoinThr", "liJoinQty", "liRef", "liTickDiff", "liDiffPct",
      "liTimeOut", "liRandTimeOut", "liIceberg", "liShowQty", "liMaxVolPct", "liStyle", "liWPx",
      "liMinOrdAmt", "liClosing"}},
    {"MOC",
     {"lgTrading", "lgVol", "lgAuc", "lgWOrder", "lgMinOrder", "lgICEBERG", "lgStyle"},
     {"liSTime", "liETime", "liMaxVolPct", "liClosePct", "liWPx", "liMinOrdAmt", "liShowQty", "liStyle"}},
    {"SNIPER",
     {"lgTrading", "lgSNIPER", "lgTime", "lgStyle"},
     {"liSTime", "liETime", "liMinQty", "liServePct", "liTimeOut", "liStyle"}},
    {"SHORT SELL", {"lgTrading", "lgRef"}, {"liSTime", "liETime", "liRef"}},
};

// All that stands in the algorithms' columns; the group and the item that never show are in it too.
const std::set<std::string_view> AllGroups{
    "lgTrading", "lgVol", "lgWOrder", "lgAuc", "lgVWAP", "lgMinOrder", "lgStyle", "lgSlices", "lgTVOLth",
    "lgICEBERG", "lgExc", "lgSTOP", "lgPEG", "lgPEGExcept", "lgSNIPER", "lgRef", "lgTime"};
const std::set<std::string_view> AllItems{
    "liSTime", "liETime", "liVolPct", "liMaxVolPct", "liAccuVol", "liWPx", "liOpening", "liOpenPct",
    "liClosing", "liClosePct", "liCloseSim", "liMinOrdAmt", "liStyle", "liSlices", "liThrPx1",
    "liThrVolPct1", "liThrPx2", "liThrVolPct2", "liIceberg", "liShowQty", "liMaxShowQty", "liRandPct",
    "liReloadPct", "liFunc", "liAllInAuc", "liStopLossPx", "liStopQty", "liJoin", "liJoinThr", "liJoinQty",
    "liMinQty", "liServePct", "liRef", "liTickDiff", "liDiffPct", "liTimeOut", "liRandTimeOut"};
// clang-format on

class VisibilityTest : public TTerminalTest {
 protected:
  void ExpectShown(views::entry::TAlgoOrderEntryFrame& frame, const TShownRow& row, std::string_view before) {
    for (const std::string_view group : AllGroups) {
      EXPECT_EQ(Element(frame, group).Showing(), row.groups.contains(group))
          << group << " for " << row.code << " after " << before;
    }
    for (const std::string_view item : AllItems) {
      EXPECT_EQ(Element(frame, item).Showing(), row.items.contains(item))
          << item << " for " << row.code << " after " << before;
    }
  }

  std::vector<std::string> ChildrenOf(forms::TFrame& frame, std::string_view group) {
    std::vector<std::string> names;
    for (const auto* child : dynamic_cast<forms::TLayoutGroup&>(Element(frame, group)).Children()) {
      names.push_back(child->Name());
    }
    return names;
  }
};

bool StandsBelow(const forms::TLayoutElement& element, std::string_view group) {
  for (const auto* parent = element.Parent(); parent != nullptr; parent = parent->Parent()) {
    if (parent->Name() == group) return true;
  }
  return false;
}

TEST_F(VisibilityTest, TheTableNamesEveryAlgorithm) {
  std::vector<std::string_view> codes;
  for (const TShownRow& row : ShownRows) codes.push_back(row.code);
  ExpectNamesEveryAlgo(codes);
}

TEST_F(VisibilityTest, TheTablesNameEveryElementOfTheAlgorithmsColumns) {
  auto& frame = Open();
  for (const auto& element : frame.Layout().Elements()) {
    if (!StandsBelow(*element, "lgAlgo") && !StandsBelow(*element, "lgAlgoRight")) continue;
    EXPECT_TRUE(AllGroups.contains(element->Name()) || AllItems.contains(element->Name())) << element->Name();
  }
}

TEST_F(VisibilityTest, EveryAlgorithmShowsItsOwnElementsAndNoOthersAfterAnyOther) {
  auto& frame = Open();
  for (const TShownRow& before : ShownRows) {
    for (const TShownRow& row : ShownRows) {
      ChooseAlgo(frame, before.code);
      ChooseAlgo(frame, row.code);
      ExpectShown(frame, row, before.code);
    }
  }
}

TEST_F(VisibilityTest, ANewFormShowsTheFirstAlgorithmOfTheExchange) {
  for (const TShownRow& row : ShownRows) {
    Data().lists["ALGO/ALGOType/HK"] = {std::string(row.code)};
    ExpectShown(Open(), row, "nothing");
  }
}

TEST_F(VisibilityTest, AnExchangeWithoutAlgorithmsLeavesTheAlgoAreaAsItIs) {
  auto& frame = Open();
  Data().lists.erase("ALGO/ALGOType/US");
  Forget();
  Pick(frame, "cmbExch", "US");
  EXPECT_EQ(Combo(frame, "cmbOrderType").Index(), -1);
  ExpectShown(frame, ShownRows[0], "TVOL");
  EXPECT_TRUE(Seen("view_notify").empty());

  Pick(frame, "cmbExch", "HK");
  ExpectShown(frame, ShownRows[0], "no algorithm");
}

TEST_F(VisibilityTest, AFormThatOpensWithoutAlgorithmsShowsNoAlgorithmGroup) {
  Data().lists.erase("ALGO/ALGOType/HK");
  ExpectShown(Open(), {"no algorithm", {}, {}}, "nothing");
}

TEST_F(VisibilityTest, OnlyPegPutsTheSharedGroupsIntoTheRightColumn) {
  using TNames = std::vector<std::string>;
  const TNames shared{"lgMinOrder", "lgWOrder", "lgAuc", "lgStyle", "lgTrading"};
  auto& frame = Open();
  for (const TShownRow& row : ShownRows) {
    ChooseAlgo(frame, row.code);
    const TNames left = ChildrenOf(frame, "lgAlgo");
    const TNames right = ChildrenOf(frame, "lgAlgoRight");
    ASSERT_GE(left.size(), 5U) << row.code;
    if (row.code == "PEG") {
      EXPECT_EQ(right, shared);
      for (const std::string& name : shared) {
        EXPECT_EQ(std::count(left.begin(), left.end(), name), 0) << name;
      }
    } else {
      EXPECT_EQ(right, TNames()) << row.code;
      EXPECT_EQ(TNames(left.end() - 5, left.end()), shared) << row.code;
    }
  }
}

TEST_F(VisibilityTest, TheCaptionsOfTheKeyInputsAreBoldForEveryAlgorithm) {
  const std::set<std::string_view> keyInputs{"liVolPct", "liThrPx1", "liThrVolPct1", "liStopLossPx"};
  auto& frame = Open();
  for (const TShownRow& row : ShownRows) {
    ChooseAlgo(frame, row.code);
    for (const std::string_view item : AllItems) {
      EXPECT_EQ(Element(frame, item).Font().bold, keyInputs.contains(item)) << item << " for " << row.code;
    }
  }
}

TEST_F(VisibilityTest, ChoosingMocHidesTheSlicesAndShowsOnlyTheShownQuantityOfTheIcebergGroup) {
  auto& frame = Open();
  ChooseAlgo(frame, "TWAP");
  ASSERT_TRUE(Element(frame, "lgSlices").Showing());
  ChooseAlgo(frame, "MOC");
  EXPECT_FALSE(Element(frame, "lgSlices").Visible());
  EXPECT_TRUE(Element(frame, "lgICEBERG").Visible());
  for (const std::string_view item :
       {"liShowQty", "liIceberg", "liMaxShowQty", "liRandPct", "liReloadPct", "liFunc", "liAllInAuc"}) {
    EXPECT_EQ(Element(frame, item).Showing(), item == "liShowQty") << item;
  }
}

class TLayoutCounter : public forms::TFrameObserver {
 public:
  void ControlChanged(const forms::TControl& /*control*/) override {}
  void LayoutChanged() override { ++changes; }
  void FocusChanged() override {}

  int changes = 0;
};

TEST_F(VisibilityTest, AnAlgorithmIsShownInOneLayoutUpdateAndTheHostIsToldToFitTheView) {
  auto& frame = Open();
  TLayoutCounter counter;
  frame.AddObserver(counter);
  Forget();
  ChooseAlgo(frame, "PEG");
  frame.RemoveObserver(counter);
  EXPECT_EQ(counter.changes, 1);
  const auto notices = Seen("view_notify");
  ASSERT_EQ(notices.size(), 1U);
  EXPECT_EQ(notices[0].number, 1025);
}

TEST_F(VisibilityTest, TheSizeOfTheViewFollowsWhatIsVisible) {
  auto& frame = Open();
  ChooseAlgo(frame, "CLOSE");
  const auto height = frame.GetHeight();
  const auto width = frame.GetWidth();
  ChooseAlgo(frame, "PEG");
  EXPECT_GT(frame.GetHeight(), height);
  EXPECT_GT(frame.GetWidth(), width);
  ChooseAlgo(frame, "OPEN");
  EXPECT_EQ(frame.GetHeight(), height);
  EXPECT_EQ(frame.GetWidth(), width);
}

}  // namespace
}  // namespace algo::tests
