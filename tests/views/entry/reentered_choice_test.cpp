// A host that, while it is asked what an exchange offers, chooses another exchange or has the lists read
// anew: what is offered afterwards is what the exchange that shows offers, at whichever call it happened.

#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "plugin/host_contract/installed_service.h"
#include "plugin/host_contract/language_manager.h"
#include "plugin/host_contract/order_adapter.h"
#include "tests/views/terminal_fixture.h"

namespace algo::tests {
namespace {

using views::entry::TAlgoOrderEntryFrame;
using views::entry::TField;

/// What the host does at one of the calls that are counted, once.
struct TInterruption {
  int callsBefore = 0;
  std::function<void()> act;

  void Called() {
    if (act && callsBefore-- == 0) std::exchange(act, nullptr)();
  }
};

class TBusyOrders : public host::TCustomOrderAdapter {
 public:
  TBusyOrders(TInterruption& interruption, host::TCustomOrderAdapter& inner)
      : FInterruption(interruption), FInner(inner) {}

  bool GetListSetting(std::string_view key, std::vector<std::string>& values) override {
    FInterruption.Called();
    return FInner.GetListSetting(key, values);
  }
  host::TCustomClientOrder* NewClientOrder() override { return FInner.NewClientOrder(); }
  void FreeClientOrder(host::TCustomClientOrder* order) override { FInner.FreeClientOrder(order); }
  std::size_t OrderCount() override { return FInner.OrderCount(); }
  host::TCustomOrder* OrderAt(std::size_t index) override { return FInner.OrderAt(index); }

 private:
  TInterruption& FInterruption;
  host::TCustomOrderAdapter& FInner;
};

class TBusyTexts : public host::TCustomLanguageManager {
 public:
  explicit TBusyTexts(TInterruption& interruption) : FInterruption(interruption) {}

  std::string GetText(std::string_view /*tag*/, std::string_view id, std::int32_t /*language*/,
                      std::int32_t /*variant*/, std::int32_t /*options*/) override {
    FInterruption.Called();
    return std::string(id);
  }

 private:
  TInterruption& FInterruption;
};

class ReenteredChoice : public TTerminalTest {
 protected:
  using TAct = std::function<void(TAlgoOrderEntryFrame&)>;

  /// Runs `act` on a form at HK once for each call that it makes to the host, `meanwhile` at that call, and
  /// returns how many calls there were.
  int AtEachCall(const TAct& act, const TAct& meanwhile) {
    for (int call = 0;; ++call) {
      SCOPED_TRACE(call);
      auto& frame = OpenFilled();
      TInterruption interruption{.callsBefore = call, .act = [&] { meanwhile(frame); }};
      {
        host::TInstalledService<TBusyOrders> orders(interruption, host::TCustomOrderAdapter::GetInstance());
        host::TInstalledService<TBusyTexts> texts(interruption);
        act(frame);
      }
      const bool happened = !interruption.act;
      ExpectOffersOfTheExchange(frame);
      Provider().CloseInstance(host::HandleOf(frame));
      if (!happened) return call;
    }
  }

  static void ExpectOffersOfTheExchange(TAlgoOrderEntryFrame& frame) {
    const bool us = frame.Combo(TField::cmbExch).Text().starts_with("US");
    EXPECT_EQ(frame.Combo(TField::cmbOrderType).Items().front(),
              us ? "Res_Algo_OrderType_VWAP" : "Res_Algo_OrderType_TVOL");
    EXPECT_EQ(frame.Combo(TField::cmbMType).Items().back(),
              us ? "Res_OrderType_Market" : "Res_OrderType_LOC");
  }
};

TEST_F(ReenteredChoice, OffersWhatTheExchangeThatShowsOffers) {
  const int calls = AtEachCall([this](TAlgoOrderEntryFrame& frame) { Pick(frame, "cmbExch", "US"); },
                               [](TAlgoOrderEntryFrame& frame) { frame.Combo(TField::cmbExch).SetIndex(0); });
  EXPECT_GT(calls, 4);
}

TEST_F(ReenteredChoice, OffersWhatTheExchangeThatShowsOffersAlsoWhileAllListsAreRead) {
  const int calls = AtEachCall([](TAlgoOrderEntryFrame& frame) { frame.SetLanguage(1); },
                               [](TAlgoOrderEntryFrame& frame) { frame.Combo(TField::cmbExch).SetIndex(1); });
  EXPECT_GT(calls, 4);
}

}  // namespace
}  // namespace algo::tests
