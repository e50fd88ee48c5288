// A host whose services fail while views and orders come and go.

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "forms/dialog_form.h"
#include "tests/views/host_faults.h"

namespace algo::tests {
namespace {

TEST_F(HostFaults, LetNoProviderBeMadeThatCouldNotListen) {
  for (const char* fault : Faults) {
    SCOPED_TRACE(fault);
    Data().faults.Set({fault});
    const bool needed = fault == std::string("channel.subscribe") || fault == std::string("config.read");
    if (needed) {
      EXPECT_ANY_THROW(Provider());
    } else {
      EXPECT_NO_THROW(Provider());
    }
    Data().faults.Set({});
    ExpectNothingLeft();
  }
}

TEST_F(HostFaults, LeaveNothingOfAViewThatDidNotOpen) {
  const TTexts fails{"config.read",       "language.text", "profile.right", "profile.data",    "orders.list",
                     "channel.subscribe", "market.listen", "skin.color",    "editor.register", "view.notify"};
  for (const char* fault : Faults) {
    SCOPED_TRACE(fault);
    Prepare();
    auto& provider = Provider();
    const auto before = LeftBehind();
    Forget();
    Data().faults.Set({fault});
    const auto handle = provider.OpenNewInstance();
    if (std::find(fails.begin(), fails.end(), fault) != fails.end()) {
      EXPECT_EQ(handle, 0);
      EXPECT_EQ(Told(), TTexts{"The host fails at " + std::string(fault)});
      EXPECT_TRUE(LeftBehind() == before);
    } else {
      EXPECT_TRUE(provider.ContainView(handle));
      EXPECT_EQ(Told(), TTexts{});
    }
    Data().faults.Set({});
    ExpectUsable(OpenFilled());
    ExpectNothingLeft();
  }
}

class FaultySubmits : public HostFaults {
 protected:
  /// Submits a filled form at each fault. `fails` are the faults that keep the order from being sent.
  void SubmitAtEachFault(const TTexts& fails, const std::string& confirmed) {
    for (const char* fault : Faults) {
      SCOPED_TRACE(fault);
      Prepare();
      Data().config["USER"]["ConfirmationPlaceOrd"] = confirmed;
      auto& frame = OpenFilled();
      InDialogs({[this](forms::TDialogForm& form) { Click(*form.Frame(), "btnBuy"); }});
      Data().faults.Set({fault});
      Click(frame, "btnSubmit");
      const bool failed = std::find(fails.begin(), fails.end(), fault) != fails.end();
      EXPECT_EQ(Told(), failed ? TTexts{"The host fails at " + std::string(fault)} : TTexts{});
      EXPECT_EQ(Seen("take_action").size(), failed ? 0U : 1U);
      EXPECT_EQ(LeftBehind().orders, 0U);
      Data().faults.Set({});
      InDialogs({});
      ExpectUsable(frame);
      ExpectNothingLeft();
    }
  }
};

TEST_F(FaultySubmits, SendNoOrderThatRunsIntoAFault) {
  SubmitAtEachFault({"orders.new", "account.known", "action.take"}, "N");
}

TEST_F(FaultySubmits, SendNoOrderWhoseConfirmationRunsIntoAFault) {
  SubmitAtEachFault(
      {"config.read", "language.text", "profile.right", "profile.data", "orders.list", "orders.new",
       "action.take", "channel.post", "skin.color", "account.known", "channel.subscribe", "market.listen",
       "market.instrument", "market.item", "editor.register", "editor.symbol", "form.make", "view.notify"},
      "Y");
}

TEST_F(HostFaults, ReportARefusedOrderAtMostOnce) {
  // The message box itself may fail: then the failure is reported through what is left of it, or not at all.
  struct TRow {
    const char* fault;
    const char* quantity;
    const char* percent;
    TTexts told;
  };
  const std::vector<TRow> rows{{"message.code", "0", "", {"The host fails at message.code"}},
                               {"message.text", "0", "", {"DC1004001"}},
                               {"message.text", "800", "80", {}},
                               {"message.code", "800", "80", {"Res_VolumePctFalse"}},
                               {"language.text", "800", "80", {"The host fails at language.text"}}};
  for (const TRow& row : rows) {
    SCOPED_TRACE(std::string(row.fault) + " " + row.quantity);
    Prepare();
    auto& frame = OpenFilled();
    Type(frame, "edtQty", row.quantity);
    Spin(frame, "edtVolPct").SetText(row.percent);
    Data().faults.Set({row.fault});
    Click(frame, "btnSubmit");
    EXPECT_EQ(Told(), row.told);
    EXPECT_TRUE(Seen("take_action").empty());
    Data().faults.Set({});
    Spin(frame, "edtVolPct").SetText("");
    ExpectUsable(frame);
    ExpectNothingLeft();
  }
}

TEST_F(HostFaults, LetAViewGoAllTheSame) {
  for (const char* fault : Faults) {
    SCOPED_TRACE(fault);
    Prepare();
    auto& frame = OpenFilled();
    const auto handle = host::HandleOf(frame);
    Data().faults.Set({fault});
    Provider().CloseInstance(handle);
    EXPECT_FALSE(Provider().ContainView(handle));
    const bool refused = fault == std::string("subscribe.remove");
    EXPECT_EQ(Told(), refused ? TTexts{"The host fails at subscribe.remove"} : TTexts{});
    host::checks::TLeftBehind expected;
    expected.channels = 1;  // the provider's own
    expected.subscriptions = refused ? 1 : 0;
    EXPECT_TRUE(LeftBehind() == expected);
    // A notification for the view that is gone, where the host still has its listener.
    Host().SetMarket("0005", 1, {{3, "61"}}, terminal::TMarketNotice::Item);
    Data().faults.Set({});
    ExpectNothingLeft(refused);
  }
}

TEST_F(HostFaults, LetAProviderGoAllTheSame) {
  for (const char* fault : Faults) {
    SCOPED_TRACE(fault);
    Prepare();
    OpenFilled();
    Data().faults.Set({fault});
    DestroyProvider();
    EXPECT_LE(Told().size(), 1U);
    Data().faults.Set({});
    ExpectNothingLeft(fault == std::string("subscribe.remove"));
  }
}

}  // namespace
}  // namespace algo::tests
