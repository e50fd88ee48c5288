// From Submit to the host: directly or through the confirmation, what comes of either answer, and the two
// boxes that steer it.

#include <functional>
#include <string>
#include <vector>

#include "forms/dialog_form.h"
#include "plugin/host_contract/channel_manager.h"
#include "tests/views/terminal_fixture.h"

namespace algo::tests {
namespace {

using TTexts = std::vector<std::string>;

class Submit : public TTerminalTest {
 protected:
  forms::TCheckBox& Box(forms::TFrame& frame, std::string_view name) const {
    return dynamic_cast<forms::TCheckBox&>(Named(frame, name));
  }

  /// The settings under which a frame opens.
  void Settings(const char* confirmation, const char* clear, const char* forced = "") {
    auto& user = Data().config["USER"];
    user["ConfirmationPlaceOrd"] = confirmation;
    user["ClearOrd"] = clear;
    user["ForceConfirmBox"] = forced;
  }

  void ExpectFilled(forms::TFrame& frame) {
    EXPECT_EQ(Named(frame, "edtAccount").Text(), "A1");
    EXPECT_EQ(Named(frame, "edtSymbol").Hint(), "0005");
    EXPECT_EQ(Spin(frame, "edtQty").Value(), 800);
    EXPECT_EQ(Spin(frame, "edtPrice").Value(), 60.5);
  }

  void ExpectCleared(forms::TFrame& frame) {
    EXPECT_EQ(Named(frame, "edtAccount").Text(), "");
    EXPECT_EQ(Named(frame, "edtSymbol").Hint(), "");
    EXPECT_EQ(Spin(frame, "edtQty").Text(), "");
    EXPECT_EQ(Spin(frame, "edtPrice").Text(), "");
  }

  static void SayOk(forms::TDialogForm& form) { form.SetModalResult(forms::ModalOk); }
};

TEST_F(Submit, SendsAnOrderStraightToTheActionManager) {
  Settings("N", "");
  auto& frame = OpenFilled();
  Click(frame, "btnSubmit");
  const auto taken = Seen("take_action");
  ASSERT_EQ(taken.size(), 1U);
  EXPECT_EQ(taken[0].number, 1);
  EXPECT_EQ(taken[0].more, "1");
  EXPECT_TRUE(Seen("post").empty());
  EXPECT_TRUE(Seen("show_modal").empty());
  EXPECT_EQ(Told(), TTexts{});
  EXPECT_EQ(LeftBehind().orders, 0U);
}

TEST_F(Submit, SendsTheFinishedOrder) {
  Settings("N", "");
  auto& frame = OpenFilled();
  ChooseAlgo(frame, "STOP");
  Type(frame, "edtStopLossPx", "59.5");
  Pick(frame, "cmbMType", "Res_OrderType_StopLimit");
  Click(frame, "btnSubmit");
  const auto order = TakenOrder();
  EXPECT_EQ(order.account, "A1");
  EXPECT_EQ(order.symbol, "0005");
  EXPECT_EQ(order.exchange, "HK");
  EXPECT_EQ(order.quantity, 800);
  EXPECT_EQ(order.side, 0);
  EXPECT_EQ(order.price, 60.5);
  EXPECT_EQ(order.orderTypeFlags, 0x800U | 0x1000000U);
  EXPECT_EQ(order.auctionFlags, 0U);
  EXPECT_EQ(order.algoFlags, 0x8000U);
  EXPECT_EQ(order.flags, 0U);
  EXPECT_EQ(order.TextProperty(440), "TMLO:AlgoId=STOP,StopLossPx=59.5;");
  EXPECT_EQ(order.NamedText("Original"), "AlgoEntry");
}

TEST_F(Submit, PostsAnOrderThatIsToBeConfirmed) {
  Settings("Y", "");
  auto& frame = OpenFilled();
  struct TPosted {
    std::int32_t action = 0;
    std::int32_t view = 0;
    bool result = true;
    std::string original;
    std::string text;
  };
  std::vector<TPosted> posted;
  auto& channels = host::TCustomGlobalChannelManager::GetInstance();
  channels.Subscribe(
      18011,
      [&posted](const void*, host::TChannelRecord* data) {
        const auto& record = dynamic_cast<host::TOrderTakeActionRecord&>(*data);
        posted.push_back({record.action, record.viewId, record.result, record.order->NamedText("Original"),
                          record.order->TextProperty(440)});
      },
      this);
  Click(frame, "btnSubmit");
  channels.Unsubscribe(18011, this);
  ASSERT_EQ(posted.size(), 1U);
  EXPECT_EQ(posted[0].action, 1);
  EXPECT_EQ(posted[0].view, 426);
  EXPECT_FALSE(posted[0].result);
  EXPECT_EQ(posted[0].original, "AlgoEntry");
  EXPECT_EQ(posted[0].text, "TMLO:AlgoId=TVOL,Closing=0;");
  ASSERT_EQ(Seen("post").size(), 1U);
  EXPECT_EQ(Seen("post")[0].number, 18011);
  EXPECT_EQ(LeftBehind().orders, 0U);
}

TEST_F(Submit, TakesTheActionOnceTheOrderIsConfirmed) {
  Settings("Y", "");
  auto& frame = OpenFilled();
  InDialogs({SayOk});
  Click(frame, "btnSubmit");
  ASSERT_EQ(Seen("show_modal").size(), 1U);
  EXPECT_EQ(TakenOrder().account, "A1");
  ASSERT_EQ(Seen("post").size(), 1U);
  EXPECT_TRUE(Seen("post")[0].answer);
}

TEST_F(Submit, SendsNothingWhenTheConfirmationIsCancelled) {
  Settings("Y", "Y");
  auto& frame = OpenFilled();
  Click(frame, "btnSubmit");
  ASSERT_EQ(Seen("show_modal").size(), 1U);
  EXPECT_TRUE(Seen("take_action").empty());
  ASSERT_EQ(Seen("post").size(), 1U);
  EXPECT_FALSE(Seen("post")[0].answer);
  ExpectFilled(frame);
  EXPECT_EQ(LeftBehind().orders, 0U);
}

TEST_F(Submit, ClearsTheFormOnlyAfterSuccessAndOnlyWhenAsked) {
  struct TRow {
    const char* confirmation;
    const char* clear;
    bool accept;
    bool clears;
  };
  const std::vector<TRow> rows{{"N", "Y", true, true},   {"N", "N", true, false}, {"N", "Y", false, false},
                               {"N", "N", false, false}, {"Y", "Y", true, true},  {"Y", "N", true, false},
                               {"Y", "Y", false, false}};
  for (const TRow& row : rows) {
    SCOPED_TRACE(std::string(row.confirmation) + row.clear + (row.accept ? " accepted" : " refused"));
    Settings(row.confirmation, row.clear);
    Data().accept = row.accept;
    auto& frame = OpenFilled();
    InDialogs({SayOk});
    Click(frame, "btnSubmit");
    EXPECT_EQ(Seen("take_action").size(), 1U);
    EXPECT_EQ(Told(), TTexts{});
    if (row.clears) {
      ExpectCleared(frame);
    } else {
      ExpectFilled(frame);
    }
  }
}

TEST_F(Submit, ConfirmsEveryOrderWhereThatIsForced) {
  // Checked or not: a box that cannot be changed never skips the confirmation.
  for (const char* confirmation : {"Y", "N"}) {
    Settings(confirmation, "", "Y");
    auto& frame = OpenFilled();
    EXPECT_EQ(Box(frame, "cbPopup").Checked(), confirmation == std::string("N"));
    EXPECT_FALSE(Box(frame, "cbPopup").Enabled());
    EXPECT_EQ(frame.InputClick(Named(frame, "cbPopup")), forms::TInputResult::Disabled);
    Click(frame, "btnSubmit");
    EXPECT_EQ(Seen("show_modal").size(), 1U) << confirmation;
    EXPECT_TRUE(Seen("take_action").empty()) << confirmation;
    EXPECT_TRUE(Seen("store").empty()) << confirmation;
  }
}

TEST_F(Submit, KeepsTheSideForTheNextOrder) {
  Settings("N", "Y");
  auto& frame = OpenFilled();
  const auto pressed = [&](const char* name) {
    return dynamic_cast<forms::TSpeedButton&>(Named(frame, name)).Pressed();
  };
  Click(frame, "btnSell");
  EXPECT_TRUE(pressed("btnSell"));
  EXPECT_FALSE(pressed("btnBuy"));
  Click(frame, "btnSubmit");
  EXPECT_EQ(TakenOrder().side, 1);
  Click(frame, "btnClear");
  EXPECT_TRUE(pressed("btnSell"));
  Type(frame, "edtAccount", "A2");
  Type(frame, "edtSymbol", "0005");
  Type(frame, "edtQty", "400");
  Forget();
  Click(frame, "btnSubmit");
  EXPECT_EQ(TakenOrder().side, 1);
  Click(frame, "btnBuy");
  EXPECT_TRUE(pressed("btnBuy"));
  EXPECT_FALSE(pressed("btnSell"));
}

TEST_F(Submit, StoresTheBoxesWhenTheTraderClicksThem) {
  Data().section = "DESK";
  Data().config["DESK"] = {{"ConfirmationPlaceOrd", "Y"}, {"ClearOrd", "N"}};
  auto& frame = Open();
  ASSERT_FALSE(Box(frame, "cbPopup").Checked());
  ASSERT_FALSE(Box(frame, "cbClear").Checked());
  EXPECT_TRUE(Seen("store").empty());
  struct TRow {
    const char* box;
    const char* key;
    const char* value;
  };
  const std::vector<TRow> rows{{"cbPopup", "DESK/ConfirmationPlaceOrd", "N"},
                               {"cbPopup", "DESK/ConfirmationPlaceOrd", "Y"},
                               {"cbClear", "DESK/ClearOrd", "Y"},
                               {"cbClear", "DESK/ClearOrd", "N"}};
  for (const TRow& row : rows) {
    Forget();
    Click(frame, row.box);
    const auto stored = Seen("store");
    ASSERT_EQ(stored.size(), 1U) << row.box;
    EXPECT_EQ(stored[0].text, row.key);
    EXPECT_EQ(stored[0].more, row.value);
    EXPECT_TRUE(stored[0].answer);
  }
}

TEST_F(Submit, StoresNothingWhenTheSettingsAreRead) {
  auto& frame = Open();
  Settings("Y", "Y");
  Forget();
  Host().NotifyConfigChanged();
  EXPECT_FALSE(Box(frame, "cbPopup").Checked());
  EXPECT_TRUE(Box(frame, "cbClear").Checked());
  Settings("N", "N");
  Host().NotifyConfigChanged();
  EXPECT_TRUE(Box(frame, "cbPopup").Checked());
  EXPECT_FALSE(Box(frame, "cbClear").Checked());
  EXPECT_TRUE(Seen("store").empty());
}

}  // namespace
}  // namespace algo::tests
