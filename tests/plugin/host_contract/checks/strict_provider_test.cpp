// What a host may ask of a provider and when, as the strict host sees it.

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "tests/plugin/host_contract/checks/objection.h"
#include "tests/plugin/host_contract/noting_view.h"

namespace algo::host::checks::tests {
namespace {

using TLog = std::vector<std::string>;
using host::tests::TNotingProvider;

class TStrictProviderTest : public testing::Test {
 protected:
  TStrictProviderTest() { ThrowViolations(strict); }

  TStrictHost strict;
  TLog log;
  std::unique_ptr<TIBaseView> provider = strict.Watch(std::make_unique<TNotingProvider>(log));
};

TEST_F(TStrictProviderTest, EveryCallForAnInstanceNeedsAnOpenOne) {
  struct TRow {
    std::string operation;
    std::function<void(TInstanceHandle)> call;
  };
  provider->InitializeShortcut();
  const std::vector<TRow> rows{
      {"GetWidth", [&](auto instance) { provider->GetWidth(instance); }},
      {"GetHeight", [&](auto instance) { provider->GetHeight(instance); }},
      {"GetViewCaption", [&](auto instance) { provider->GetViewCaption(instance); }},
      {"HandleCaptionButtonClick", [&](auto instance) { provider->HandleCaptionButtonClick(instance, 7); }},
      {"GetViewCaptionButtons", [&](auto instance) { provider->GetViewCaptionButtons(instance); }},
      {"GetViewCaptionButtonImageList",
       [&](auto instance) { provider->GetViewCaptionButtonImageList(instance); }},
      {"GetViewIcon", [&](auto instance) { provider->GetViewIcon(instance); }},
      {"ExecuteShortcutAction", [&](auto instance) { provider->ExecuteShortcutAction(instance, 21); }},
      {"SetSkin", [&](auto instance) { provider->SetSkin(instance, "Dark"); }},
      {"SetLanguage", [&](auto instance) { provider->SetLanguage(instance, 1); }},
      {"SetFont", [&](auto instance) { provider->SetFont(instance, {}); }},
      {"ActiveView", [&](auto instance) { provider->ActiveView(instance); }},
      {"DeactiveView", [&](auto instance) { provider->DeactiveView(instance); }},
      {"GetLayoutData", [&](auto instance) { provider->GetLayoutData(instance); }},
      {"SetLayoutData", [&](auto instance) { provider->SetLayoutData(instance, ""); }},
      {"SetCustomData", [&](auto instance) { provider->SetCustomData(instance, ""); }},
      {"SendMessage", [&](auto instance) { provider->SendMessage(instance, 1, ""); }},
      {"SetGroupID", [&](auto instance) { provider->SetGroupID(instance, "G1"); }},
      {"GetGroupID", [&](auto instance) { provider->GetGroupID(instance); }},
      {"CloseInstance", [&](auto instance) { provider->CloseInstance(instance); }},
  };
  EXPECT_EQ(Objection([&] { provider->ReleaseView(1); }),
            "ReleaseView is called for an instance that is not open");
  const auto open = provider->OpenNewInstance();
  for (const TRow& row : rows) EXPECT_EQ(Objection([&] { row.call(open); }), "") << row.operation;
  for (const TRow& row : rows) {
    EXPECT_EQ(Objection([&] { row.call(open); }),
              row.operation + " is called for an instance that is not open");
    EXPECT_NE(Objection([&] { row.call(1); }), "") << row.operation;
  }
}

TEST_F(TStrictProviderTest, ACallThatIsAllowedReachesTheProviderAsItIs) {
  const auto instance = provider->OpenNewInstance();
  EXPECT_TRUE(provider->ContainView(instance));
  EXPECT_NE(provider->FindView(instance), nullptr);
  EXPECT_EQ(provider->GetWidth(instance), 320);
  EXPECT_EQ(provider->GetViewCaption(instance), "its caption");
  EXPECT_TRUE(provider->SendMessage(instance, 5, "hello"));
  EXPECT_TRUE(provider->GetIsSizeable());
  EXPECT_FALSE(provider->GetIsDialog());
  provider.reset();
  EXPECT_EQ(log, (TLog{"message 5 hello", "closed"}));
}

TEST_F(TStrictProviderTest, ALanguageIsSetForNoInstanceToo) {
  EXPECT_EQ(Objection([&] { provider->SetLanguage(0, 1); }), "");
}

TEST_F(TStrictProviderTest, WhetherAnInstanceIsOpenMayBeAskedOfAnyHandle) {
  EXPECT_EQ(Objection([&] {
              EXPECT_FALSE(provider->ContainView(1));
              EXPECT_EQ(provider->FindView(1), nullptr);
            }),
            "");
}

TEST_F(TStrictProviderTest, OnlyButtonsThatAnInstanceHasAreClicked) {
  const auto instance = provider->OpenNewInstance();
  EXPECT_EQ(Objection([&] { provider->HandleCaptionButtonClick(instance, 9); }),
            "a caption button is clicked that the instance does not have");
  provider->HandleCaptionButtonClick(instance, 8);
  EXPECT_EQ(log, TLog{"button 8"});
}

TEST_F(TStrictProviderTest, ShortcutsAreMadeOnceAndBeforeTheyAreAskedFor) {
  const auto instance = provider->OpenNewInstance();
  EXPECT_EQ(Objection([&] { provider->GetShortCutList(); }),
            "the shortcuts are asked for before InitializeShortcut");
  EXPECT_NE(Objection([&] { provider->ExecuteShortcutAction(instance, 21); }), "");
  provider->InitializeShortcut();
  EXPECT_EQ(Objection([&] { provider->InitializeShortcut(); }), "InitializeShortcut is called twice");
  EXPECT_EQ(provider->GetShortCutList().size(), 1U);
  EXPECT_TRUE(provider->ExecuteShortcutAction(instance, 21));
  EXPECT_EQ(Objection([&] { provider->ExecuteShortcutAction(instance, 22); }),
            "a shortcut is executed that the provider does not have");
  EXPECT_EQ(log, (TLog{"shortcuts", "shortcut 21"}));
}

TEST_F(TStrictProviderTest, AViewThatWasHandedOverIsNoInstanceAnyMore) {
  const auto open = provider->OpenNewInstance();
  const auto view = provider->ReleaseView(open);
  ASSERT_NE(view, nullptr);
  EXPECT_EQ(HandleOf(*view), open);
  EXPECT_FALSE(provider->ContainView(open));
  provider.reset();
  EXPECT_EQ(view->GetGroupID(), "its group");
}

class TLyingProvider final : public host::tests::TSampleProvider {
 public:
  TInstanceHandle OpenNewInstance() override { return 17; }
};

TEST_F(TStrictProviderTest, AProviderHasTheInstanceThatItSaysItOpened) {
  const auto lying = strict.Watch(std::make_unique<TLyingProvider>());
  EXPECT_EQ(Objection([&] { lying->OpenNewInstance(); }),
            "a provider gives the handle of an instance that it does not have");
  const auto failing = strict.Watch(std::make_unique<host::tests::TSampleProvider>());
  EXPECT_EQ(failing->OpenNewInstance(), 0);
}

TEST_F(TStrictProviderTest, AProviderThatWasNotMadeIsNotWatched) {
  EXPECT_EQ(strict.Watch(nullptr), nullptr);
}

}  // namespace
}  // namespace algo::host::checks::tests
