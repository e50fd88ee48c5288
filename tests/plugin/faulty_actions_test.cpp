// What the trader and the host do with an open form while one of the host's services fails. Each failure is
// reported once.

#include <array>
#include <string>

#include "plugin/host_contract/channel_manager.h"
#include "tests/views/host_faults.h"

namespace algo::tests {
namespace {

class FaultyActions : public HostFaults {};

TEST_F(FaultyActions, AreReportedOnceWhenTheFormIsCleared) {
  const TTexts fails{"profile.data", "editor.symbol", "subscribe.remove", "language.text"};
  AtEachFault(fails, [this](auto& frame) { Click(frame, "btnClear"); }, {"subscribe.remove"});
}

TEST_F(FaultyActions, AreReportedOnceWhenTheLanguageChanges) {
  AtEachFault({"language.text", "orders.list", "profile.right"},
              [this](auto& frame) { Provider().SetLanguage(host::HandleOf(frame), 1); });
}

TEST_F(FaultyActions, AreReportedOnceWhenTheSkinChanges) {
  AtEachFault({"skin.color", "view.notify"},
              [this](auto& frame) { Provider().SetSkin(host::HandleOf(frame), "dark"); });
  AtEachFault({"skin.color", "view.notify"}, [this](auto&) { Host().NotifySkinChanged("dark"); });
}

TEST_F(FaultyActions, AreReportedOnceWhenTheGroupChanges) {
  AtEachFault({"profile.data", "editor.register", "editor.symbol"},
              [this](auto& frame) { Provider().SetGroupID(host::HandleOf(frame), "G1"); });
}

TEST_F(FaultyActions, AreReportedOnceWhenTheMarketMoves) {
  AtEachFault({}, [this](auto&) {
    Host().SetMarket("0005", 1, {{3, "61"}}, terminal::TMarketNotice::Item);
    Host().NotifySpreadChanged(std::array<std::string, 1>{"01"});
  });
}

TEST_F(FaultyActions, AreReportedOnceWhenTheSettingsChange) {
  AtEachFault({"config.read"}, [this](auto&) { Host().NotifyConfigChanged(); });
}

TEST_F(FaultyActions, AreReportedOnceWhenABoxIsClicked) {
  AtEachFault({"config.store"}, [this](auto& frame) { Click(frame, "cbClear"); });
}

TEST_F(FaultyActions, AreReportedOnceWhenAnOrderIsCopied) {
  AtEachFault({"profile.data", "profile.right", "editor.symbol", "subscribe.add", "subscribe.remove",
               "orders.list", "language.text", "view.notify"},
              [this](auto&) { PostCopy(18010); }, {"subscribe.remove"});
}

TEST_F(FaultyActions, AreReportedOnceWhenAPriceIsCopied) {
  AtEachFault({"editor.symbol", "subscribe.add", "subscribe.remove"}, [this](auto&) { PostCopy(18016); },
              {"subscribe.remove"});
}

TEST_F(FaultyActions, AreReportedOnceWhenASymbolIsEntered) {
  AtEachFault({"editor.symbol", "subscribe.add", "subscribe.remove"},
              [this](auto& frame) {
                Type(frame, "edtSymbol", "0700");
                Leave(frame);
              },
              {"subscribe.remove"});
}

TEST_F(FaultyActions, AreReportedOnceWhenAChoiceChanges) {
  AtEachFault({"view.notify", "language.text"},
              [this](auto& frame) { Pick(frame, "cmbOrderType", "Res_Algo_OrderType_VWAP"); });
  AtEachFault({"orders.list", "profile.right", "language.text", "view.notify"},
              [this](auto& frame) { Pick(frame, "cmbExch", "US"); });
  AtEachFault({}, [this](auto& frame) { Pick(frame, "cmbMType", "Res_OrderType_Market"); });
}

TEST_F(FaultyActions, LetNoOldInstrumentServeTheSymbolThatFollows) {
  Prepare();
  Host().SetMarket("0005", 1, {{1504, "100"}}, terminal::TMarketNotice::None);
  for (const char* fault : {"subscribe.add", "subscribe.remove"}) {
    SCOPED_TRACE(fault);
    auto& frame = OpenFilled();
    Data().faults.Set({fault});
    Type(frame, "edtSymbol", "0700");
    Leave(frame);
    Data().faults.Set({});
    Forget();
    Click(frame, "btnSubmit");
    EXPECT_EQ(Told(), TTexts{"DC1000001"});
    EXPECT_TRUE(Seen("take_action").empty());
    // Both can be entered again: the one that was wanted, and the one that was followed before.
    for (const char* symbol : {"0005", "0700", "0005"}) {
      Type(frame, "edtSymbol", symbol);
      Leave(frame);
      Forget();
      Click(frame, "btnSubmit");
      EXPECT_EQ(Told(), TTexts{});
      EXPECT_EQ(TakenOrder().price, symbol == std::string("0700") ? 300 : 60.5);
    }
  }
}

}  // namespace
}  // namespace algo::tests
