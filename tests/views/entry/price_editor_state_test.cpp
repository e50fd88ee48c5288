// Which host order types leave the price editor open, and what its lock adds to that.

#include <string>
#include <vector>

#include "tests/views/table_coverage.h"
#include "tests/views/terminal_fixture.h"

namespace algo::tests {
namespace {

class PriceEditorState : public TTerminalTest {
 protected:
  forms::TCheckBox& Lock(forms::TFrame& frame) const {
    return dynamic_cast<forms::TCheckBox&>(Named(frame, "cbLockPrice"));
  }
};

struct TRow {
  const char* type;
  bool priced;
};

const std::vector<TRow> Rows{
    {"Res_OrderType_Limit", true},       {"Res_OrderType_ELO", true}, {"Res_OrderType_StopLimit", true},
    {"Res_OrderType_ALO", true},         {"Res_OrderType_LOC", true}, {"Res_OrderType_Market", false},
    {"Res_OrderType_StopMarket", false}, {"Res_OrderType_AO", false}, {"Res_OrderType_MOO", false},
    {"Res_OrderType_MOC", false},
};

TEST_F(PriceEditorState, TheTableNamesEveryType) {
  std::vector<std::string_view> ids;
  for (const TRow& row : Rows) ids.emplace_back(row.type);
  ExpectNamesEveryOrderType(ids);
}

TEST_F(PriceEditorState, FollowsTheTypeWhileThePriceIsNotLocked) {
  auto& frame = OpenFilled();
  for (const TRow& row : Rows) {
    // From a type of the other kind, so that each row has something to change.
    Pick(frame, "cmbMType", row.priced ? "Res_OrderType_Market" : "Res_OrderType_Limit");
    ASSERT_NE(Spin(frame, "edtPrice").Enabled(), row.priced);
    Pick(frame, "cmbMType", row.type);
    EXPECT_EQ(Spin(frame, "edtPrice").Enabled(), row.priced) << row.type;
    EXPECT_EQ(Lock(frame).Enabled(), row.priced) << row.type;
  }
}

TEST_F(PriceEditorState, StaysClosedForEveryTypeWhileThePriceIsLocked) {
  auto& frame = OpenFilled();
  Click(frame, "cbLockPrice");
  for (const TRow& row : Rows) {
    Pick(frame, "cmbMType", row.priced ? "Res_OrderType_Market" : "Res_OrderType_Limit");
    Pick(frame, "cmbMType", row.type);
    EXPECT_FALSE(Spin(frame, "edtPrice").Enabled()) << row.type;
    EXPECT_EQ(Lock(frame).Enabled(), row.priced) << row.type;
    EXPECT_TRUE(Lock(frame).Checked()) << row.type;
  }
}

TEST_F(PriceEditorState, OpensAndClosesWithTheLock) {
  auto& frame = OpenFilled();
  Click(frame, "cbLockPrice");
  EXPECT_FALSE(Spin(frame, "edtPrice").Enabled());
  EXPECT_TRUE(Lock(frame).Enabled());
  Click(frame, "cbLockPrice");
  EXPECT_TRUE(Spin(frame, "edtPrice").Enabled());
}

TEST_F(PriceEditorState, IsNotOpenedByALockThatTheProgramTakesOffAMarketOrder) {
  auto& frame = OpenFilled();
  Click(frame, "cbLockPrice");
  Pick(frame, "cmbMType", "Res_OrderType_MOC");
  Lock(frame).SetChecked(false);
  EXPECT_FALSE(Spin(frame, "edtPrice").Enabled());
  EXPECT_FALSE(Lock(frame).Enabled());
}

TEST_F(PriceEditorState, StaysAsItIsWithoutAType) {
  Data().lists.erase("ALGO/OrderType/HK");
  auto& frame = Open();
  ASSERT_EQ(Combo(frame, "cmbMType").Index(), -1);
  Click(frame, "cbLockPrice");
  EXPECT_TRUE(Spin(frame, "edtPrice").Enabled());
  Spin(frame, "edtPrice").SetEnabled(false);
  frame.UpdatePriceEditorState();
  EXPECT_FALSE(Spin(frame, "edtPrice").Enabled());
  EXPECT_TRUE(Lock(frame).Enabled());
}

TEST_F(PriceEditorState, StaysAsItIsWhenTheTypeIsTakenAway) {
  auto& frame = OpenFilled();
  Pick(frame, "cmbMType", "Res_OrderType_Market");
  Combo(frame, "cmbMType").SetIndex(-1);
  EXPECT_FALSE(Spin(frame, "edtPrice").Enabled());
  EXPECT_EQ(Spin(frame, "edtPrice").Value(), 0);
  EXPECT_EQ(Told(), std::vector<std::string>{});
}

}  // namespace
}  // namespace algo::tests
