// What the host sees of the provider: its place in the menu, its class, its instances.

#include <array>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "plugin/host_contract/class_registry.h"
#include "plugin/host_contract/module_entry.h"
#include "tests/views/terminal_fixture.h"

extern "C" const algo::host::TModuleEntry* AlgoOrderEntryModule();

namespace algo::tests {
namespace {

using TTexts = std::vector<std::string>;

using ProviderTest = TTerminalTest;

TEST_F(ProviderTest, TellsItsNameAndItsPlaceInTheMenu) {
  struct TRow {
    std::int32_t level;
    std::int32_t id;
    std::int32_t index;
    std::string caption;
  };
  const std::array<TRow, 6> rows{{{0, 101, 1100, "Orders"},
                                  {1, 426, 1750, "Algo entry"},
                                  {2, -1, 0, ""},
                                  {-1, -1, 0, ""},
                                  {3, -1, 0, ""},
                                  {426, -1, 0, ""}}};
  Data().texts["Res"] = {{"Res_Order", "Orders"}, {"Res_AlgoOrderEntry", "Algo entry"}};
  auto& provider = Provider();
  EXPECT_EQ(provider.GetViewID(), 426);
  EXPECT_EQ(provider.GetName(), "AlgoOrderEntry_426");
  EXPECT_EQ(provider.GetMenuLevel(), 2);
  for (const TRow& row : rows) {
    EXPECT_EQ(provider.GetMenuID(row.level), row.id) << row.level;
    EXPECT_EQ(provider.GetMenuIndex(row.level), row.index) << row.level;
    EXPECT_EQ(provider.GetMenuCaption(row.level), row.caption) << row.level;
    EXPECT_EQ(provider.GetMenuGroupIndex(row.level), 0) << row.level;
  }
}

TEST_F(ProviderTest, GivesNewInstancesACaptionAndLeavesTheirSizeToTheHost) {
  Data().texts["Res"]["Res_AlgoOrderEntry"] = "Algo entry";
  std::string caption = "before";
  EXPECT_TRUE(Provider().GetDefaultCaption(caption));
  EXPECT_EQ(caption, "Algo entry");
  std::int32_t width = 123;
  std::int32_t height = 45;
  EXPECT_TRUE(Provider().GetDefaultSize(width, height));
  EXPECT_EQ(width, 123);
  EXPECT_EQ(height, 45);
  EXPECT_FALSE(Provider().GetIsWindow());
}

TEST_F(ProviderTest, OpensPanelsWithoutDecorationsAndHasNoShortcuts) {
  auto& provider = Provider();
  const auto instance = provider.OpenNewInstance();
  provider.InitializeShortcut();
  EXPECT_FALSE(provider.GetIsDialog());
  EXPECT_TRUE(provider.GetIsSizeable());
  EXPECT_TRUE(provider.GetCanDock());
  EXPECT_EQ(provider.GetDockPosition(), host::TDockPosition::HostsChoice);
  EXPECT_EQ(provider.GetPreferenceView(), nullptr);
  EXPECT_FALSE(provider.GetIsDialogViewAfterMainShow());
  EXPECT_TRUE(provider.GetShortCutList().empty());
  EXPECT_EQ(provider.GetViewCaption(instance), "");
  EXPECT_TRUE(provider.GetViewCaptionButtons(instance).empty());
  EXPECT_EQ(provider.GetViewIcon(instance), host::TImage());
  EXPECT_FALSE(provider.SetCustomData(instance, "data"));
  EXPECT_FALSE(provider.SendMessage(instance, 1, "text"));
}

TEST_F(ProviderTest, IsVisibleToUsersWithTheRightAlone) {
  EXPECT_TRUE(Provider().GetIsVisible());
  Data().rights.erase("AlgoTabOrderEntry");
  EXPECT_FALSE(Provider().GetIsVisible());
}

TEST_F(ProviderTest, AnswersAndTellsTheTraderWhenTheHostFails) {
  auto& provider = Provider();
  Data().faults.Set({"language.text", "profile.right"});
  std::string caption = "before";
  EXPECT_EQ(provider.GetMenuCaption(0), "");
  EXPECT_FALSE(provider.GetDefaultCaption(caption));
  EXPECT_EQ(caption, "before");
  EXPECT_FALSE(provider.GetIsVisible());
  EXPECT_EQ(Told(), (TTexts{"The host fails at language.text", "The host fails at language.text",
                            "The host fails at profile.right"}));
}

TEST_F(ProviderTest, ListensToTheOrderActionsFromItsMakingToItsEnd) {
  EXPECT_EQ(LeftBehind(), host::checks::TLeftBehind());
  Provider();
  EXPECT_EQ(LeftBehind(), host::checks::TLeftBehind{.channels = 1});
  DestroyProvider();
  EXPECT_EQ(LeftBehind(), host::checks::TLeftBehind());
}

TEST_F(ProviderTest, OpensAFrameOfItsOwnForEachInstance) {
  auto& provider = Provider();
  const auto first = provider.OpenNewInstance();
  const auto second = provider.OpenNewInstance();
  EXPECT_NE(first, 0);
  EXPECT_NE(second, 0);
  EXPECT_NE(first, second);
  EXPECT_TRUE(provider.ContainView(first));
  EXPECT_TRUE(provider.ContainView(second));
  const auto frame = provider.FindView(first);
  EXPECT_EQ(frame->ClassName(), "TAlgoOrderEntryFrame");
  EXPECT_EQ(host::HandleOf(*frame), first);
  EXPECT_EQ(provider.GetWidth(first), frame->GetWidth());
  EXPECT_EQ(provider.GetHeight(first), frame->GetHeight());
  EXPECT_GT(provider.GetWidth(first), 0);
}

TEST_F(ProviderTest, PassesWhatTheHostAsksOnToTheInstanceThatItNames) {
  auto& provider = Provider();
  const auto first = provider.OpenNewInstance();
  const auto second = provider.OpenNewInstance();
  EXPECT_TRUE(provider.SetGroupID(first, "G1"));
  EXPECT_EQ(provider.GetGroupID(first), "G1");
  EXPECT_EQ(provider.GetGroupID(second), "");
  auto& quantity = Spin(*provider.FindView(second), "edtQty");
  quantity.SetValue(300);
  EXPECT_TRUE(provider.SetLayoutData(first, provider.GetLayoutData(second)));
  EXPECT_EQ(Spin(*provider.FindView(first), "edtQty").Text(), "300");
  Forget();
  provider.SetSkin(second, "Dark");
  EXPECT_EQ(Seen("view_notify").size(), 1U);
  Data().texts["Res"]["Res_Submit"] = "Send";
  EXPECT_TRUE(provider.SetLanguage(second, 1));
  EXPECT_EQ(Named(*provider.FindView(second), "btnSubmit").Caption(), "Send");
  EXPECT_EQ(Named(*provider.FindView(first), "btnSubmit").Caption(), "Res_Submit");
}

TEST_F(ProviderTest, AnUnknownHandleIsAnsweredWithNothing) {
  auto& provider = Provider();
  const auto closed = provider.OpenNewInstance();
  provider.CloseInstance(closed);
  for (const host::TInstanceHandle handle : {closed, host::TInstanceHandle{0}, host::TInstanceHandle{1}}) {
    EXPECT_FALSE(provider.ContainView(handle));
    EXPECT_EQ(provider.FindView(handle), nullptr);
    EXPECT_EQ(provider.GetWidth(handle), 0);
    EXPECT_EQ(provider.GetHeight(handle), 0);
    EXPECT_FALSE(provider.SetGroupID(handle, "G1"));
    EXPECT_EQ(provider.GetGroupID(handle), "");
    EXPECT_EQ(provider.GetLayoutData(handle), "");
    EXPECT_FALSE(provider.SetLayoutData(handle, "Quantity=1"));
    provider.SetSkin(handle, "Dark");
    provider.CloseInstance(handle);
  }
  EXPECT_EQ(Told(), TTexts());
}

TEST_F(ProviderTest, AChangeOfLanguageIsDoneWhateverTheHandleNames) {
  EXPECT_TRUE(Provider().SetLanguage(0, 1));
}

TEST_F(ProviderTest, AnInstanceThatFailsToOpenIsReportedOnceAndLeavesNothingBehind) {
  for (const std::string operation :
       {"config.read", "language.text", "profile.right", "profile.data", "orders.list", "channel.subscribe",
        "market.listen", "skin.color", "editor.register", "view.notify"}) {
    auto& provider = Provider();
    Forget();
    Data().faults.Set({operation});
    EXPECT_EQ(provider.OpenNewInstance(), 0) << operation;
    EXPECT_EQ(Told(), TTexts{"The host fails at " + operation});
    EXPECT_EQ(LeftBehind(), host::checks::TLeftBehind{.channels = 1}) << operation;
    Data().faults.Set({});
    EXPECT_NE(provider.OpenNewInstance(), 0) << operation;
    DestroyProvider();
  }
}

TEST_F(ProviderTest, AFailureThatCannotBeReportedIsDropped) {
  auto& provider = Provider();
  Data().faults.Set({"language.text", "message.text"});
  EXPECT_EQ(provider.OpenNewInstance(), 0);
  EXPECT_EQ(provider.GetMenuCaption(0), "");
  EXPECT_EQ(Told(), TTexts());
  EXPECT_EQ(LeftBehind(), host::checks::TLeftBehind{.channels = 1});
}

TEST_F(ProviderTest, AProviderThatCannotListenIsNotMadeAndLeavesNothingBehind) {
  Data().faults.Set({"channel.subscribe"});
  EXPECT_THROW(Provider(), terminal::EHostFault);
  Data().faults.Set({"config.read"});
  EXPECT_THROW(Provider(), terminal::EHostFault);
  Data().faults.Set({});
  EXPECT_EQ(LeftBehind(), host::checks::TLeftBehind());
}

TEST_F(ProviderTest, ClosesWhatIsOpenWhenItGoes) {
  OpenFilled();
  Open();
  Open();
  EXPECT_EQ(LeftBehind().editors, 39U);
  DestroyProvider();
  EXPECT_EQ(LeftBehind(), host::checks::TLeftBehind());
}

TEST_F(ProviderTest, TheModuleMakesItsClassKnownForAsLongAsItIsStarted) {
  auto& registry = host::TClassRegistry::GetInstance();
  const auto* module = AlgoOrderEntryModule();
  EXPECT_EQ(registry.Find("TIAlgoEntryOrder"), nullptr);
  module->stop();  // nothing was started
  module->start();
  module->start();
  ASSERT_NE(registry.Find("TIAlgoEntryOrder"), nullptr);
  {
    const auto provider = (*registry.Find("TIAlgoEntryOrder"))(this);
    EXPECT_EQ(provider->GetViewID(), 426);
    EXPECT_NE(provider->OpenNewInstance(), 0);
  }
  EXPECT_EQ(LeftBehind(), host::checks::TLeftBehind());
  module->stop();
  EXPECT_NE(registry.Find("TIAlgoEntryOrder"), nullptr);
  module->stop();
  EXPECT_EQ(registry.Find("TIAlgoEntryOrder"), nullptr);
}

}  // namespace
}  // namespace algo::tests
