// Parents and the children that are cut from them.

#include "terminal/paper/paper_engine.h"
#include "tests/terminal/paper/sample_market.h"

namespace algo::terminal::paper::tests {
namespace {

using Parents = TPaperTest;

constexpr const char* Tvol = "TMLO:AlgoId=TVOL,VolPct=20;";

TEST_F(Parents, AParentShowsTheSumOfItsChildren) {
  const auto& parent = SendParent(2000);
  const auto& first = SendChild(parent, "TMLO:AlgoId=TVOL,VolPct=20;", 1000);
  const auto& second = SendChild(parent, "TMLO:AlgoId=TVOL,VolPct=40;", 1000);
  Quote(10, 10.02, 10, 1000);
  Step("10:01:00");
  EXPECT_EQ(first.filled, 200);
  EXPECT_EQ(second.filled, 400);
  EXPECT_EQ(parent.filled, 600);
  EXPECT_EQ(parent.status, 2);
  EXPECT_EQ(Average(parent), "10.02");
  Quote(10, 10.12, 10, 100000);
  Step("10:02:00");
  EXPECT_EQ(parent.filled, 2000);
  EXPECT_EQ(parent.status, 3);
  EXPECT_EQ(Average(parent), "10.09") << "600 at 10.02 and 1,400 at 10.12";
}

TEST_F(Parents, AParentCountsWhatOthersFilledOfAChild) {
  const auto& parent = SendParent(2000);
  const auto& child = SendChild(parent, "", 1000);
  Step("10:01:00");
  host::TCustomClientOrder filled(child);
  filled.filled = 500;
  filled.SetNamedText("AveragePrice", "9.9");
  host.Journal().Record({"somebody", "fill", "500"}, filled);
  Step("10:02:00");
  EXPECT_EQ(parent.filled, 500);
  EXPECT_EQ(Average(parent), "9.9");
}

TEST_F(Parents, AParentIsNotWorkedItself) {
  host::TCustomClientOrder wanted = Ordered(Tvol);
  wanted.flags = host::WorkMark | host::WorkParentMark;
  const auto& parent = Send(wanted);
  Quote(10, 10.02, 10, 100000);
  Step("10:01:00");
  Step("17:00:00");
  EXPECT_EQ(parent.filled, 0);
  EXPECT_EQ(parent.status, 0);
}

TEST_F(Parents, OrdersThatOnlyNameAParentAreNotItsChildren) {
  const auto& parent = SendParent(2000);
  host::TCustomClientOrder stranger = Ordered(Tvol);
  stranger.parentNo = parent.orderNo;
  Send(stranger);
  Quote(10, 10.02, 10, 1000);
  Step("10:01:00");
  EXPECT_EQ(parent.filled, 0);
}

TEST_F(Parents, AChildDoesNotInheritTheAverageOfItsParent) {
  const auto& parent = SendParent(2000);
  SendChild(parent, Tvol, 500);
  Quote(10, 10.02, 10, 1000);
  Step("10:01:00");
  host::TCustomClientOrder copy(parent);
  copy.filled = 0;
  copy.flags = host::WorkChildMark;
  copy.parentNo = parent.orderNo;
  copy.quantity = 500;
  copy.SetTextProperty(host::AlgoTextProperty, "TMLO:AlgoId=TVOL,STime=20261120-15:00:00;");
  const auto& child = Send(copy);
  EXPECT_EQ(Average(child), "10.02");
  Step("10:02:00");
  EXPECT_EQ(Average(child), "");
}

TEST_F(Parents, CancellingAParentCancelsItsChildrenThatAreNotDone) {
  const auto& parent = SendParent(3000);
  const auto& done = SendChild(parent, "TMLO:AlgoId=TVOL,VolPct=50;", 200);
  const auto& live = SendChild(parent, Tvol, 1000);
  const auto& other = Send(Tvol);
  Quote(10, 10.02, 10, 1000);
  Step("10:01:00");
  storage.lines.clear();
  EXPECT_TRUE(engine.Cancel(parent.key, "dealer1"));
  EXPECT_EQ(storage.lines, (std::vector<std::string>{
                               "N3: dealer1 cancel accepted",
                               "N1: dealer1 cancel accepted",
                           }));
  EXPECT_EQ(done.status, 3);
  EXPECT_EQ(live.status, 4);
  EXPECT_EQ(parent.status, 4);
  EXPECT_EQ(other.status, 2);
  Step("10:02:00");
  EXPECT_EQ(parent.filled, 400);
  EXPECT_EQ(parent.status, 4);
}

TEST_F(Parents, AChildThatIsCutFromACancelledParentIsRejected) {
  const auto& parent = SendParent(3000);
  engine.Cancel(parent.key, "dealer1");
  const auto& child = SendChild(parent, Tvol, 1000);
  Quote(10, 10.02, 10, 1000);
  Step("10:01:00");
  EXPECT_EQ(child.status, -1);
  EXPECT_EQ(storage.lines.back(), "N2: paper reject the parent order is done");
}

TEST_F(Parents, AParentChangedBelowWhatIsFilledIsFilled) {
  const auto& parent = SendParent(2000);
  SendChild(parent, "TMLO:AlgoId=TVOL,VolPct=40;", 1000);
  Quote(10, 10.02, 10, 1000);
  Step("10:01:00");
  host::TCustomClientOrder changed(parent);
  changed.quantity = 300;
  Change(changed);
  Quote(10, 10.02, 10, 0);
  Step("10:02:00");
  EXPECT_EQ(parent.status, 3);
  EXPECT_EQ(parent.filled, 400);
  EXPECT_EQ(parent.quantity, 400);
}

}  // namespace
}  // namespace algo::terminal::paper::tests
