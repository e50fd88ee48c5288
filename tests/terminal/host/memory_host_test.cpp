#include "terminal/host/memory_host.h"

#include <gtest/gtest.h>

#include "plugin/host_contract/account_adapter.h"
#include "plugin/host_contract/config_manager.h"
#include "plugin/host_contract/language_manager.h"
#include "plugin/host_contract/look_and_feel_service.h"
#include "plugin/host_contract/message_box.h"
#include "plugin/host_contract/user_app_profile.h"
#include "plugin/host_contract/view_functions.h"
#include "tests/terminal/host/event_notes.h"
#include "tests/terminal/host/sample_view.h"

namespace algo::terminal::tests {
namespace {

struct TMemoryHostTest : testing::Test {
  TEventNotes events;
  TMemoryHost host{events};
  THostData& data = host.Data();
  int owner = 0;
};

TEST_F(TMemoryHostTest, StartsWithOneRightAndNothingElse) {
  EXPECT_EQ(host::TCustomConfigManager::GetInstance().CurrentSection(), "USER");
  auto& profile = host::TCustomUserAppProfile::GetInstance();
  EXPECT_TRUE(profile.HasRight("AlgoTabOrderEntry"));
  EXPECT_FALSE(profile.HasRight("OEFAK"));
  EXPECT_EQ(profile.UserKind(), 0);
  EXPECT_FALSE(profile.UserFlag());
  EXPECT_EQ(profile.AccountText(), "");
  EXPECT_TRUE(data.accept);
  EXPECT_TRUE(host.Orders().All().empty());
}

TEST_F(TMemoryHostTest, ReadsSettingsAsTextsNumbersAndBooleans) {
  data.config["USER"] = {{"a", "Y"}, {"b", "12"}};
  auto& config = host::TCustomConfigManager::GetInstance();
  EXPECT_EQ(config.ReadText("USER", "a"), "Y");
  EXPECT_TRUE(config.ReadBoolean("USER", "a"));
  EXPECT_EQ(config.ReadInteger("USER", "a"), 0);
  EXPECT_EQ(config.ReadInteger("USER", "b"), 12);
  EXPECT_FALSE(config.ReadBoolean("USER", "b"));
  EXPECT_EQ(config.ReadText("USER", "c"), "");
  EXPECT_EQ(config.ReadText("OTHER", "a"), "");
  EXPECT_FALSE(config.ReadBoolean("OTHER", "a"));
}

TEST_F(TMemoryHostTest, WhatIsStoredIsReadFromThenOn) {
  auto& config = host::TCustomConfigManager::GetInstance();
  config.Store("USER", "ClearOrd", "Y", true);
  config.Store("USER", "ClearOrd", "N", false);
  EXPECT_EQ(config.ReadText("USER", "ClearOrd"), "N");
  EXPECT_EQ(events.lines, (TNotes{"store USER ClearOrd Y at once", "store USER ClearOrd N later"}));
}

TEST_F(TMemoryHostTest, NotifiesSettingsListenersUntilTheyAreRemoved) {
  int notified = 0;
  auto& config = host::TCustomConfigManager::GetInstance();
  config.AddListener([&] { ++notified; }, &owner);
  host.NotifyConfigChanged();
  config.RemoveListener(&owner);
  host.NotifyConfigChanged();
  EXPECT_EQ(notified, 1);
}

TEST_F(TMemoryHostTest, AResourceWithoutATextIsItsIdAndAnExchangeWithoutANameIsEmpty) {
  data.texts["Res"]["Res_Order"] = "Order";
  data.texts["Exchange"]["HK"] = "Hong Kong";
  auto& language = host::TCustomLanguageManager::GetInstance();
  EXPECT_EQ(language.GetText("Res", "Res_Order", 3, 0, 0), "Order");
  EXPECT_EQ(language.GetText("Res", "Res_NA", 3, 0, 0), "Res_NA");
  EXPECT_EQ(language.GetText("Exchange", "HK", 3, 0, 0), "Hong Kong");
  EXPECT_EQ(language.GetText("Exchange", "CN", 3, 0, 0), "");
}

TEST_F(TMemoryHostTest, AnswersFromTheProfileAndTheAccounts) {
  data.profile = {.kind = 2, .flag = true, .account = "A1", .user = "me"};
  data.accounts = {"A1"};
  auto& profile = host::TCustomUserAppProfile::GetInstance();
  EXPECT_EQ(profile.UserKind(), 2);
  EXPECT_TRUE(profile.UserFlag());
  EXPECT_EQ(profile.AccountText(), "A1");
  EXPECT_EQ(profile.UserIdentity(), "me");
  auto& accounts = host::TCustomAccountAdapter::GetInstance();
  EXPECT_TRUE(accounts.IsKnown("A1"));
  EXPECT_FALSE(accounts.IsKnown("a1"));
  EXPECT_FALSE(accounts.IsKnown("A1 "));
}

TEST_F(TMemoryHostTest, ShowsMessagesAsEvents) {
  host::TCustomMessageBoxCtrl::GetInstance().ShowText("Hello");
  host::TCustomMessageBoxCtrl::GetInstance().ShowErrorCode("DC1004001");
  EXPECT_EQ(events.lines, (TNotes{"message Hello", "error code DC1004001"}));
}

TEST_F(TMemoryHostTest, SkinsHaveColoursAndListeners) {
  data.colors[7] = 0x00AA10;
  auto& skins = host::TCustomLookAndFeelService::GetInstance();
  EXPECT_EQ(skins.ColorOf(7, 0), 0x00AA10U);
  EXPECT_EQ(skins.ColorOf(9, 0), 0U);
  std::string worn;
  skins.AddListener([&](std::string_view skin) { worn = skin; }, &owner);
  host.NotifySkinChanged("dark");
  skins.RemoveListener(&owner);
  host.NotifySkinChanged("light");
  EXPECT_EQ(worn, "dark");
}

TEST_F(TMemoryHostTest, AViewMayTellThatItChanged) {
  host::tests::TSampleView view;
  host::SendViewNotify(view, 1025);
  EXPECT_EQ(events.lines, (TNotes{"notify TSampleView 1025"}));
}

TEST_F(TMemoryHostTest, AnOperationThatIsToldToFailNamesItselfAndLeavesNoTrace) {
  data.faults.Set({"config.store", "message.text"});
  auto& config = host::TCustomConfigManager::GetInstance();
  try {
    config.Store("USER", "ClearOrd", "Y", true);
    FAIL();
  } catch (const EHostFault& fault) {
    EXPECT_NE(std::string(fault.what()).find("config.store"), std::string::npos);
  }
  EXPECT_THROW(host::TCustomMessageBoxCtrl::GetInstance().ShowText("x"), EHostFault);
  EXPECT_EQ(config.ReadText("USER", "ClearOrd"), "");
  EXPECT_EQ(events.lines, TNotes{});
  data.faults.Set({});
  config.Store("USER", "ClearOrd", "Y", true);
  EXPECT_EQ(config.ReadText("USER", "ClearOrd"), "Y");
}

TEST(MemoryHost, PutsBackWhatWasInstalledBefore) {
  TEventNotes events;
  const TMemoryHost outer(events);
  auto& before = host::TCustomConfigManager::GetInstance();
  {
    const TMemoryHost inner(events);
    EXPECT_NE(&host::TCustomConfigManager::GetInstance(), &before);
  }
  EXPECT_EQ(&host::TCustomConfigManager::GetInstance(), &before);
}

}  // namespace
}  // namespace algo::terminal::tests
