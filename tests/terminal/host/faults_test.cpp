// How services fail: which calls, and with which answers.

#include "terminal/host/faults.h"

#include <gtest/gtest.h>

#include <limits>

#include "plugin/host_contract/account_adapter.h"
#include "plugin/host_contract/config_manager.h"
#include "plugin/host_contract/language_manager.h"
#include "plugin/host_contract/look_and_feel_service.h"
#include "plugin/host_contract/order_action_manager.h"
#include "plugin/host_contract/order_adapter.h"
#include "plugin/host_contract/user_app_profile.h"
#include "plugin/host_contract/view_functions.h"
#include "terminal/host/memory_host.h"
#include "tests/terminal/host/event_notes.h"
#include "tests/terminal/host/sample_view.h"

namespace algo::terminal::tests {
namespace {

using enum TServiceOperation;

struct TFaultsTest : testing::Test {
  TFaultsTest() {
    THostData& data = memory.Data();
    data.config["USER"]["k"] = "5";
    data.texts["Res"]["id"] = "text";
    data.profile = {.kind = 2, .flag = true, .account = "A1", .user = "U1"};
    data.rights = {"R"};
    data.accounts = {"A1"};
    data.lists["L"] = {"a"};
    data.instruments["S"] = {"S", "100"};
    data.colors[7] = 0x010203;
  }

  void Fail(TServiceOperation operation, TFaultKind kind) {
    memory.Data().faults.SetAll({{operation, 1, {}, kind}});
  }

  TEventNotes events;
  TMemoryHost memory{events};
  const std::string wild = std::string(1000, 'x');
};

TEST_F(TFaultsTest, CountFromWhenTheyAreSet) {
  TFaults faults;
  faults.SetAll({{OrdersAt, 3, 2, TFaultKind::Null}});
  std::string struck;
  for (int i = 0; i < 6; ++i) struck += faults.Strike(OrdersAt) ? '!' : '.';
  EXPECT_EQ(struck, "..!!..");
  EXPECT_FALSE(faults.Strike(OrdersCount));
  faults.SetAll({{OrdersAt, 2, {}, TFaultKind::Null}});
  struck.clear();
  for (int i = 0; i < 4; ++i) struck += faults.Strike(OrdersAt) ? '!' : '.';
  EXPECT_EQ(struck, ".!!!");
}

TEST_F(TFaultsTest, OfOneOperationStrikeInTheOrderOfTheList) {
  TFaults faults;
  faults.SetAll({{ConfigRead, 2, 1, TFaultKind::Empty}, {ConfigRead, 1, 3, TFaultKind::Wild}});
  std::vector<TFaultKind> kinds;
  for (int i = 0; i < 3; ++i) kinds.push_back(faults.Strike(ConfigRead).value().kind);
  EXPECT_EQ(kinds, (std::vector{TFaultKind::Wild, TFaultKind::Empty, TFaultKind::Wild}));
  EXPECT_FALSE(faults.Strike(ConfigRead));
}

TEST_F(TFaultsTest, GiveTextsThatAreEmptyOrMuchTooLong) {
  auto& config = host::TCustomConfigManager::GetInstance();
  auto& language = host::TCustomLanguageManager::GetInstance();
  auto& profile = host::TCustomUserAppProfile::GetInstance();
  for (const auto& [kind, text] : {std::pair{TFaultKind::Empty, std::string()}, {TFaultKind::Wild, wild}}) {
    Fail(ConfigRead, kind);
    EXPECT_EQ(config.ReadText("USER", "k"), text);
    EXPECT_EQ(config.ReadInteger("USER", "k"), 0);
    EXPECT_FALSE(config.ReadBoolean("USER", "k"));
    Fail(LanguageText, kind);
    EXPECT_EQ(language.GetText("Res", "id", 3, 0, 0), text);
    Fail(ProfileData, kind);
    EXPECT_EQ(profile.AccountText(), text);
    EXPECT_EQ(profile.UserIdentity(), text);
    EXPECT_EQ(profile.UserKind(), 0);
    EXPECT_FALSE(profile.UserFlag());
  }
}

TEST_F(TFaultsTest, AnswerNo) {
  Fail(ProfileRight, TFaultKind::False);
  EXPECT_FALSE(host::TCustomUserAppProfile::GetInstance().HasRight("R"));
  Fail(AccountKnown, TFaultKind::False);
  EXPECT_FALSE(host::TCustomAccountAdapter::GetInstance().IsKnown("A1"));
  Fail(ActionTake, TFaultKind::False);
  host::TCustomClientOrder order;
  EXPECT_FALSE(
      host::TCustomOrderActionManager::GetInstance().TakeAction(nullptr, &order, host::TOrderAction::New, 1));
  EXPECT_TRUE(memory.Orders().All().empty());
  EXPECT_EQ(events.lines, TNotes{});
}

TEST_F(TFaultsTest, GiveListsThatAreNotThereOrEmptyOrWild) {
  auto& orders = host::TCustomOrderAdapter::GetInstance();
  std::vector<std::string> values{"before"};
  Fail(OrdersList, TFaultKind::Null);
  EXPECT_FALSE(orders.GetListSetting("L", values));
  EXPECT_TRUE(values.empty());
  values = {"before"};
  Fail(OrdersList, TFaultKind::Empty);
  EXPECT_TRUE(orders.GetListSetting("L", values));
  EXPECT_TRUE(values.empty());
  Fail(OrdersList, TFaultKind::Wild);
  EXPECT_TRUE(orders.GetListSetting("L", values));
  ASSERT_EQ(values.size(), 1001U);
  EXPECT_EQ(values[0], "x0");
  EXPECT_EQ(values[999], "x999");
  EXPECT_EQ(values[1000], "");
}

TEST_F(TFaultsTest, GiveNoObject) {
  auto& orders = host::TCustomOrderAdapter::GetInstance();
  auto& items = host::TCustomSubscribeAdapter::GetInstance();
  host::tests::TSampleProvider provider;
  memory.Orders().Add(std::make_unique<host::TCustomClientOrder>());
  Fail(OrdersNew, TFaultKind::Null);
  EXPECT_EQ(orders.NewClientOrder(), nullptr);
  Fail(OrdersAt, TFaultKind::Null);
  EXPECT_EQ(orders.OrderAt(0), nullptr);
  Fail(MarketItem, TFaultKind::Null);
  EXPECT_EQ(items.Subscribe("S", "PRCDDS", false), nullptr);
  EXPECT_NE(items.Subscribe("S", "PRCDDS", true), nullptr);
  events.lines.clear();
  Fail(SubscribeAdd, TFaultKind::Null);
  EXPECT_EQ(items.Subscribe("S", "PRCDDS", true), nullptr);
  EXPECT_EQ(events.lines, TNotes{});
  Fail(MarketInstrument, TFaultKind::Null);
  EXPECT_EQ(host::TCustomMarketAdapter::GetInstance().FindInstrument("S"), nullptr);
  Fail(FormMake, TFaultKind::Null);
  EXPECT_EQ(host::TCustomViewService::GetInstance().MakeDialogForm(provider), nullptr);
}

TEST_F(TFaultsTest, GiveCountsAndColoursOutOfAllBounds) {
  auto& orders = host::TCustomOrderAdapter::GetInstance();
  Fail(OrdersCount, TFaultKind::Wild);
  EXPECT_EQ(orders.OrderCount(), std::numeric_limits<std::size_t>::max());
  EXPECT_EQ(orders.OrderCount(), 2147483647U);
  EXPECT_EQ(orders.OrderCount(), std::numeric_limits<std::size_t>::max());
  Fail(SkinColor, TFaultKind::Wild);
  EXPECT_EQ(host::TCustomLookAndFeelService::GetInstance().ColorOf(7, 0), 4294967295U);
}

TEST_F(TFaultsTest, LeaveAFormThatFailsAsItWas) {
  host::tests::TSampleProvider provider;
  const auto form = host::GetDialogForm(provider);
  int asked = 0;
  form->OnClose = [&asked](forms::TDialogForm& /*sender*/, forms::TCloseAction& action) {
    ++asked;
    action = forms::TCloseAction::Free;
  };
  form->SetCaption("first");
  Fail(FormCaption, TFaultKind::Exception);
  EXPECT_THROW(form->SetCaption("second"), EHostFault);
  EXPECT_EQ(form->Caption(), "first");
  Fail(FormShow, TFaultKind::Exception);
  EXPECT_THROW(form->Show(), EHostFault);
  EXPECT_FALSE(form->Showing());
  EXPECT_THROW(form->ShowModal(), EHostFault);
  EXPECT_FALSE(form->Showing());
  memory.Data().faults.Set({});
  form->Show();
  events.lines.clear();
  Fail(FormClose, TFaultKind::Exception);
  EXPECT_THROW(form->Close(), EHostFault);
  EXPECT_TRUE(form->Showing());
  EXPECT_EQ(asked, 0);
  memory.Data().faults.Set({});
  form->Close();
  EXPECT_FALSE(form->Showing());
  EXPECT_EQ(asked, 1);
  EXPECT_EQ(events.lines, TNotes{"close first"});
}

TEST_F(TFaultsTest, StrikeACaptionThatIsSetAnewBeforeEachShowing) {
  host::tests::TSampleProvider provider;
  const auto form = host::GetDialogForm(provider);
  for (int showing = 0; showing < 2; ++showing) {
    form->SetCaption("same");
    form->SetClientSize({300, 200});
    form->ShowModal();
    form->Hide();
  }
  Fail(FormCaption, TFaultKind::Exception);
  EXPECT_THROW(form->SetCaption("same"), EHostFault);
  EXPECT_THROW(form->SetCaption("same"), EHostFault);
  memory.Data().faults.Set({});
  form->SetCaption("same");
  Fail(FormCaption, TFaultKind::Exception);
  form->SetClientSize({300, 200});
}

}  // namespace
}  // namespace algo::terminal::tests
