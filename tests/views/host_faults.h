#pragma once

// A host whose services fail one at a time, and what must hold afterwards whatever the frame was asked for:
// the trader is told at most once, the frame can be used, and nothing stays behind in the host.

#include <algorithm>
#include <array>
#include <functional>
#include <string>
#include <vector>

#include "plugin/host_contract/channel_manager.h"
#include "tests/views/terminal_fixture.h"

namespace algo::tests {

/// Operations of the host that are told to fail. The one that leaves something behind comes last, so that the
/// counts of the others start from nothing.
inline constexpr std::array Faults{
    "config.read",   "config.store",      "language.text", "profile.right",     "profile.data",
    "orders.list",   "orders.new",        "orders.count",  "orders.at",         "action.take",
    "channel.post",  "channel.subscribe", "market.listen", "market.instrument", "subscribe.add",
    "skin.color",    "account.known",     "message.text",  "message.code",      "editor.register",
    "editor.symbol", "form.make",         "view.notify",   "market.item",       "subscribe.remove"};

class HostFaults : public TTerminalTest {
 protected:
  using TTexts = std::vector<std::string>;
  using TAct = std::function<void(views::entry::TAlgoOrderEntryFrame&)>;

  /// Opens a filled form, lets the host fail and runs `act`, once for each fault; then checks what must hold
  /// whatever was asked. `fails` are the faults that the act runs into, each of which is told once.
  void AtEachFault(const TTexts& fails, const TAct& act, const TTexts& leavesSubscription = {}) {
    for (const char* fault : Faults) {
      SCOPED_TRACE(fault);
      Prepare();
      auto& frame = OpenFilled();
      Data().faults.Set({fault});
      act(frame);
      const bool runsInto = std::find(fails.begin(), fails.end(), fault) != fails.end();
      const TTexts told = runsInto ? TTexts{"The host fails at " + std::string(fault)} : TTexts{};
      EXPECT_EQ(Told(), told);
      EXPECT_TRUE(Seen("take_action").empty());
      Data().faults.Set({});
      ExpectUsable(frame);
      ExpectNothingLeft(std::find(leavesSubscription.begin(), leavesSubscription.end(), fault) !=
                        leavesSubscription.end());
    }
  }

  void Prepare() {
    Data().config["USER"] = {{"ConfirmationPlaceOrd", "N"}};
    Host().SetMarket("0005", 1, {{3, "60.5"}, {24, "400"}}, terminal::TMarketNotice::None);
    Host().SetMarket("0700", 1, {{3, "300"}, {24, "100"}}, terminal::TMarketNotice::None);
  }

  /// A trader can still enter an order of 0700 from scratch and send it.
  void ExpectUsable(views::entry::TAlgoOrderEntryFrame& frame) {
    Forget();
    Pick(frame, "cmbExch", "US");
    Pick(frame, "cmbExch", "HK");
    Pick(frame, "cmbOrderType", "Res_Algo_OrderType_TVOL");
    Pick(frame, "cmbMType", "Res_OrderType_Limit");
    dynamic_cast<forms::TCheckBox&>(Named(frame, "cbPopup")).SetChecked(true);
    dynamic_cast<forms::TCheckBox&>(Named(frame, "cbClear")).SetChecked(false);
    Type(frame, "edtAccount", "A2");
    Type(frame, "edtSymbol", "0700");
    Leave(frame);
    EXPECT_EQ(Spin(frame, "edtQty").Value(), 100);
    EXPECT_EQ(Spin(frame, "edtPrice").Value(), 300);
    Click(frame, "btnSell");
    Click(frame, "btnSubmit");
    EXPECT_EQ(Told(), TTexts{});
    const auto order = TakenOrder();
    EXPECT_EQ(order.account, "A2");
    EXPECT_EQ(order.symbol, "0700");
    EXPECT_EQ(order.exchange, "HK");
    EXPECT_EQ(order.side, 1);
    EXPECT_EQ(order.quantity, 100);
    EXPECT_EQ(order.price, 300);
    EXPECT_EQ(order.TextProperty(440), "TMLO:AlgoId=TVOL,Closing=0;");
  }

  void ExpectNothingLeft(bool exceptSubscription = false) {
    DestroyProvider();
    host::checks::TLeftBehind expected;
    if (exceptSubscription) expected.subscriptions = 1;
    EXPECT_TRUE(LeftBehind() == expected);
  }

  void PostCopy(std::int32_t channel) {
    host::TCustomClientOrder order;
    order.account = "A2";
    order.symbol = "0700";
    order.exchange = "US";
    order.quantity = 300;
    order.price = 299;
    order.SetTextProperty(440, "TMLO:AlgoId=VWAP,MaxVolPct=20;");
    host::TOrderCopyRecord record;
    record.object = &order;
    Host().PostAsHost(channel, record);
  }
};

}  // namespace algo::tests
