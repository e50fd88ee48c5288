// Views that are closed at odd moments: from inside a notification, by a host that fails at it, and with
// notifications still to come.

#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "tests/views/terminal_fixture.h"

namespace algo::tests {
namespace {

using TTexts = std::vector<std::string>;
using views::entry::TField;

class ClosingTest : public TTerminalTest {
 protected:
  std::function<void()> OnNotice;  ///< what the host does when it is notified that a view changed, once
  int Notices = 0;

 private:
  void ViewNotified(const host::TViewFrame& /*view*/, std::int32_t /*code*/) override {
    ++Notices;
    if (const auto act = std::exchange(OnNotice, {})) act();
  }
};

TEST_F(ClosingTest, AViewMayBeClosedWhileItTellsTheHostOfItsSkin) {
  auto& provider = Provider();
  const auto first = provider.OpenNewInstance();
  const auto second = provider.OpenNewInstance();
  OnNotice = [&] { provider.CloseInstance(first); };
  Notices = 0;
  Host().NotifySkinChanged("Dark");
  EXPECT_EQ(Notices, 2);
  EXPECT_FALSE(provider.ContainView(first));
  EXPECT_TRUE(provider.ContainView(second));
}

TEST_F(ClosingTest, AViewThatAnotherOneHasClosedMeanwhileIsNotNotified) {
  auto& provider = Provider();
  provider.OpenNewInstance();
  const auto second = provider.OpenNewInstance();
  OnNotice = [&] { provider.CloseInstance(second); };
  Notices = 0;
  Host().NotifySkinChanged("Dark");
  EXPECT_EQ(Notices, 1);
  EXPECT_FALSE(provider.ContainView(second));
}

TEST_F(ClosingTest, AViewMayBeClosedByThePickThatChangesIt) {
  auto& frame = OpenFilled();
  OnNotice = [&] { Provider().CloseInstance(host::HandleOf(frame)); };
  Pick(frame, "cmbOrderType", "Res_Algo_OrderType_PEG");
  EXPECT_EQ(LeftBehind(), host::checks::TLeftBehind{.channels = 1});
}

TEST_F(ClosingTest, AViewThatWasClosedTakesNoMoreNotifications) {
  auto& provider = Provider();
  const auto handle = host::HandleOf(OpenFilled());
  const auto frame = provider.FindView(handle);  // held on to, as a handler that runs would
  auto& quantity = Spin(*frame, "edtQty");
  provider.CloseInstance(handle);
  quantity.SetValue(1);
  Data().config["USER"]["ClearOrd"] = "Y";
  Notices = 0;
  Host().NotifyConfigChanged();
  Host().NotifySkinChanged("Dark");
  Host().SetMarket("0005", 1, {{24, "100"}}, terminal::TMarketNotice::Item);
  frame->InputPick(Named(*frame, "cmbExch"), 1);
  EXPECT_FALSE(dynamic_cast<forms::TCheckBox&>(Named(*frame, "cbClear")).Checked());
  EXPECT_EQ(Combo(*frame, "cmbExch").Text(), "HK");
  EXPECT_EQ(quantity.Value(), 1.0);
  EXPECT_EQ(Notices, 0);
}

TEST_F(ClosingTest, AFailureToLeaveOneServiceIsReportedOnceAndSparesNoOther) {
  const auto handle = host::HandleOf(OpenFilled());
  Data().faults.Set({"subscribe.remove"});
  Provider().CloseInstance(handle);
  EXPECT_EQ(Told(), TTexts{"The host fails at subscribe.remove"});
  EXPECT_FALSE(Provider().ContainView(handle));
  EXPECT_EQ(LeftBehind(), (host::checks::TLeftBehind{.channels = 1, .subscriptions = 1}));
  // The host still has the listener of a frame that is gone.
  Data().faults.Set({});
  Forget();
  Host().SetMarket("0005", 1, {{24, "100"}}, terminal::TMarketNotice::Item);
  EXPECT_EQ(Told(), TTexts());
}

}  // namespace
}  // namespace algo::tests
