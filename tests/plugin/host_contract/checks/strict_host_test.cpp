#include "plugin/host_contract/checks/strict_host.h"

#include <gtest/gtest.h>

#include "plugin/host_contract/channel_manager.h"
#include "plugin/host_contract/checks/null_host.h"
#include "plugin/host_contract/config_manager.h"
#include "plugin/host_contract/editor_manager.h"
#include "plugin/host_contract/language_manager.h"
#include "plugin/host_contract/look_and_feel_service.h"
#include "plugin/host_contract/market_data.h"
#include "plugin/host_contract/order_action_manager.h"
#include "plugin/host_contract/order_adapter.h"
#include "plugin/host_contract/view_functions.h"
#include "tests/plugin/host_contract/checks/objection.h"
#include "tests/terminal/host/sample_view.h"

namespace algo::host::checks::tests {
namespace {

struct TStrictHostTest : testing::Test {
  TStrictHostTest() { ThrowViolations(strict); }

  TNullHost null;
  TStrictHost strict;
  int owner = 0;
  int otherOwner = 0;
  host::tests::TSampleView view;
  forms::TTextEdit& edit = view.Add<forms::TTextEdit>("edtAccount");
  forms::TSpinEdit& spin = view.Add<forms::TSpinEdit>("edtPrice");

  TCustomGlobalChannelManager& channels = TCustomGlobalChannelManager::GetInstance();
  TCustomOrderAdapter& orders = TCustomOrderAdapter::GetInstance();
  TCustomOrderActionManager& actions = TCustomOrderActionManager::GetInstance();
  TCustomSubscribeAdapter& subscriptions = TCustomSubscribeAdapter::GetInstance();
  TEditorManager& editors = TEditorManager::GetInstance();
  TCustomGlobalChannelManager::THandler handler = [](const void*, TChannelRecord*) {};
  TCustomSubscribeAdapter::TListener itemListener = [](const void*, const TItemDictionary*) {};
};

TEST_F(TStrictHostTest, AnOwnerHasOneHandlerOnAChannel) {
  channels.Subscribe(18011, handler, &owner);
  EXPECT_EQ(Objection([&] { channels.Subscribe(18011, handler, &owner); }),
            "an owner listens to channel 18011 twice");
  channels.Subscribe(18010, handler, &owner);
  channels.Subscribe(18011, handler, &otherOwner);
  EXPECT_EQ(strict.LeftBehind().channels, 3U);
  channels.Unsubscribe(18011, &owner);
  EXPECT_EQ(strict.LeftBehind().channels, 2U);
  channels.Subscribe(18011, handler, &owner);
  EXPECT_EQ(strict.LeftBehind().channels, 3U);
}

TEST_F(TStrictHostTest, WhoDidNotSubscribeCannotUnsubscribe) {
  channels.Subscribe(18011, handler, &owner);
  EXPECT_EQ(Objection([&] { channels.Unsubscribe(18010, &owner); }),
            "an owner stops listening to channel 18010 without having listened");
  EXPECT_NE(Objection([&] { channels.Unsubscribe(18011, &otherOwner); }), "");
  channels.Unsubscribe(18011, &owner);
  EXPECT_NE(Objection([&] { channels.Unsubscribe(18011, &owner); }), "");
}

TEST_F(TStrictHostTest, AHandlerHasAnOwnerAndIsNotEmpty) {
  EXPECT_EQ(Objection([&] { channels.Subscribe(18011, handler, nullptr); }),
            "a listener to channel 18011 has no owner");
  EXPECT_EQ(Objection([&] { channels.Subscribe(18011, {}, &owner); }),
            "a listener to channel 18011 is empty");
  EXPECT_EQ(strict.LeftBehind(), TLeftBehind{});
}

TEST_F(TStrictHostTest, APostCarriesTheRecordOfItsChannel) {
  TOrderTakeActionRecord action;
  TOrderCopyRecord copy;
  EXPECT_EQ(Objection([&] { channels.Post(18011, &action); }), "");
  EXPECT_EQ(Objection([&] { channels.Post(18010, &copy); }), "");
  EXPECT_EQ(Objection([&] { channels.Post(18016, &copy); }), "");
  EXPECT_NE(Objection([&] { channels.Post(18011, &copy); }), "");
  EXPECT_NE(Objection([&] { channels.Post(18010, &action); }), "");
  EXPECT_EQ(Objection([&] { channels.Post(18011, nullptr); }), "a post has no record");
}

TEST_F(TStrictHostTest, AnOrderIsGivenBackOnceToWhoMadeIt) {
  TCustomClientOrder own;
  EXPECT_EQ(Objection([&] { orders.FreeClientOrder(&own); }),
            "an order is given back that the adapter did not make");
  EXPECT_NE(Objection([&] { orders.FreeClientOrder(nullptr); }), "");
  TCustomClientOrder* order = orders.NewClientOrder();
  EXPECT_EQ(strict.LeftBehind().orders, 1U);
  orders.FreeClientOrder(order);
  EXPECT_EQ(strict.LeftBehind().orders, 0U);
  EXPECT_EQ(Objection([&] { orders.FreeClientOrder(order); }), "an order is given back twice");
}

TEST_F(TStrictHostTest, AnOrderThatWasGivenBackIsUsedNoMore) {
  TCustomClientOrder* order = orders.NewClientOrder();
  EXPECT_EQ(Objection([&] { actions.TakeAction(nullptr, order, TOrderAction::New, 1); }), "");
  orders.FreeClientOrder(order);
  EXPECT_EQ(Objection([&] { actions.TakeAction(nullptr, order, TOrderAction::New, 1); }),
            "an action is to be taken on an order that was given back");
  TOrderTakeActionRecord record;
  record.order = order;
  EXPECT_EQ(Objection([&] { channels.Post(18011, &record); }), "a post carries an order that was given back");
}

TEST_F(TStrictHostTest, OrdersMadeLaterAreNotTakenForThoseGivenBack) {
  for (int i = 0; i < 1000; ++i) {
    const TOwnedOrder made = MakeClientOrder();
    const auto own = std::make_unique<TCustomClientOrder>();
    ASSERT_EQ(Objection([&] { actions.TakeAction(nullptr, made.get(), TOrderAction::New, 1); }), "");
    ASSERT_EQ(Objection([&] { actions.TakeAction(nullptr, own.get(), TOrderAction::Work, 1); }), "");
  }
  EXPECT_EQ(strict.LeftBehind().orders, 0U);
}

TEST_F(TStrictHostTest, AnActionHasNoSenderTheArgumentOneAndAnOrder) {
  TCustomClientOrder order;
  EXPECT_EQ(Objection([&] { actions.TakeAction(&owner, &order, TOrderAction::New, 1); }),
            "an order action names a sender");
  EXPECT_EQ(Objection([&] { actions.TakeAction(nullptr, &order, TOrderAction::New, 0); }),
            "an order action has another argument than 1");
  EXPECT_EQ(Objection([&] { actions.TakeAction(nullptr, nullptr, TOrderAction::New, 1); }),
            "an order action has no order");
}

TEST_F(TStrictHostTest, TextsAndColoursAreAskedForWithTheirTrailingArguments) {
  auto& language = TCustomLanguageManager::GetInstance();
  EXPECT_EQ(language.GetText("Res", "Res_Order", 3, 0, 0), "Res_Order");
  EXPECT_NE(Objection([&] { language.GetText("Res", "Res_Order", 1, 0, 0); }), "");
  EXPECT_NE(Objection([&] { language.GetText("Res", "Res_Order", 3, 1, 0); }), "");
  EXPECT_NE(Objection([&] { language.GetText("Res", "Res_Order", 3, 0, 1); }), "");
  EXPECT_NE(Objection([&] { TCustomLookAndFeelService::GetInstance().ColorOf(7, 1); }), "");
}

TEST_F(TStrictHostTest, ListenersForSettingsSkinsAndSpreadTablesAreCounted) {
  auto& config = TCustomConfigManager::GetInstance();
  auto& skins = TCustomLookAndFeelService::GetInstance();
  auto& market = TCustomMarketAdapter::GetInstance();
  config.AddListener([] {}, &owner);
  skins.AddListener([](std::string_view) {}, &owner);
  market.AddSpreadListener([](const void*, const TSpreadDictionary*) {}, &owner);
  EXPECT_EQ(strict.LeftBehind(),
            (TLeftBehind{.configListeners = 1, .marketListeners = 1, .skinListeners = 1}));
  EXPECT_EQ(Objection([&] { config.AddListener([] {}, &owner); }), "an owner listens to the settings twice");
  config.RemoveListener(&owner);
  skins.RemoveListener(&owner);
  market.RemoveSpreadListener(&owner);
  EXPECT_EQ(strict.LeftBehind(), TLeftBehind{});
  EXPECT_NE(Objection([&] { config.RemoveListener(&owner); }), "");
  EXPECT_NE(Objection([&] { skins.RemoveListener(&owner); }), "");
  EXPECT_NE(Objection([&] { market.RemoveSpreadListener(&owner); }), "");
}

TEST_F(TStrictHostTest, AnItemIsUsedBetweenItsSubscriptionAndItsEnd) {
  TMarketDataItem* item = subscriptions.Subscribe("S", PriceDataSet, true);
  EXPECT_EQ(strict.LeftBehind().subscriptions, 0U);
  subscriptions.AddListener(item, itemListener, &owner);
  subscriptions.AddListener(item, itemListener, &otherOwner);
  EXPECT_EQ(strict.LeftBehind().subscriptions, 1U);
  subscriptions.Unsubscribe(item, &owner);
  EXPECT_NE(Objection([&] { subscriptions.Unsubscribe(item, &owner); }), "");
  EXPECT_EQ(strict.LeftBehind().subscriptions, 1U);
  subscriptions.Unsubscribe(item, &otherOwner);
  EXPECT_EQ(strict.LeftBehind().subscriptions, 0U);
  EXPECT_EQ(Objection([&] { subscriptions.AddListener(item, itemListener, &owner); }),
            "a listener is for an item that was not subscribed");
}

TEST_F(TStrictHostTest, AnEditorIsRegisteredBeforeItIsUsedOrRemoved) {
  EXPECT_EQ(Objection([&] { editors.SetPriceSymbol(spin, "S"); }),
            "edtPrice is used as an editor that it is not registered as");
  EXPECT_NE(Objection([&] { editors.SetAccountLayoutAccount(edit, "A"); }), "");
  editors.RegisterPriceEditor(spin, "G1");
  editors.SetPriceSymbol(spin, "S");
  EXPECT_NE(Objection([&] { editors.SetQuantitySymbol(spin, "S"); }), "");
  EXPECT_NE(Objection([&] { editors.RemoveQuantityEditor(spin); }), "");
  editors.RemovePriceEditor(spin);
  EXPECT_EQ(Objection([&] { editors.RemovePriceEditor(spin); }),
            "an editor is removed that is not registered");
}

TEST_F(TStrictHostTest, AnEditorMayMoveToAnotherGroupAndCountsOnce) {
  editors.RegisterAccountEditor(edit, "G1", 0, 1);
  editors.RegisterAccountEditor(edit, "G2", 0, 1);
  editors.RegisterQuantityEditor(spin, "G1");
  EXPECT_EQ(strict.LeftBehind().editors, 2U);
  editors.RemoveAccountEditor(edit);
  EXPECT_EQ(strict.LeftBehind().editors, 1U);
}

TEST_F(TStrictHostTest, LookUpEditorsHaveTheirTwoArguments) {
  EXPECT_NE(Objection([&] { editors.RegisterAccountEditor(edit, "", 1, 1); }), "");
  EXPECT_NE(Objection([&] { editors.RegisterSymbolEditor(edit, "", 0, 0); }), "");
  EXPECT_EQ(strict.LeftBehind().editors, 0U);
}

TEST_F(TStrictHostTest, FormsCountAsLongAsSomebodyHoldsThem) {
  host::tests::TSampleProvider provider;
  auto form = GetDialogForm(provider);
  EXPECT_EQ(strict.LeftBehind().forms, 1U);
  form.reset();
  EXPECT_EQ(strict.LeftBehind().forms, 0U);
}

TEST(StrictHost, PutsTheServicesBackAndLeavesMissingOnesMissing) {
  {
    const TStrictHost nothingToWrap;
    EXPECT_THROW(TCustomConfigManager::GetInstance(), EServiceMissing);
  }
  const TNullHost null;
  auto& before = TCustomConfigManager::GetInstance();
  {
    const TStrictHost strict;
    EXPECT_NE(&TCustomConfigManager::GetInstance(), &before);
  }
  EXPECT_EQ(&TCustomConfigManager::GetInstance(), &before);
}

TEST(StrictHostDeathTest, WithoutAHandlerAViolationEndsTheProgramWithOneLine) {
  const TNullHost null;
  const TStrictHost strict;
  EXPECT_DEATH(TCustomConfigManager::GetInstance().RemoveListener(&null),
               "contract violated: an owner stops listening to the settings without having listened\n");
}

}  // namespace
}  // namespace algo::host::checks::tests
