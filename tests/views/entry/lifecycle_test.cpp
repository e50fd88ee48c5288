// How a frame comes to life and goes: what it registers with the host and gives back, in which order.

#include <algorithm>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "plugin/host_contract/installed_service.h"
#include "tests/views/noted_services.h"
#include "tests/views/terminal_fixture.h"

namespace algo::tests {
namespace {

using TTexts = std::vector<std::string>;
using views::entry::TField;

/// Keeps one log of what the fixture would sort by event.
class LifecycleTest : public TTerminalTest {
 protected:
  /// The open view's own entries of the log, as they are made from now on.
  TTexts& Log() { return FLog; }

  std::string StartHint;  ///< what the symbol editor puts into its hint when it is registered

 private:
  void EditorRegistered(terminal::TEditorKind kind, const forms::TControl& control,
                        std::string_view groupId) override {
    FLog.push_back(Kind(kind) + " editor " + control.Name() + (groupId.empty() ? "" : " in ") +
                   std::string(groupId));
    // A symbol editor may know a symbol to start with.
    if (kind == terminal::TEditorKind::Symbol) const_cast<forms::TControl&>(control).SetHint(StartHint);
  }
  void EditorRemoved(terminal::TEditorKind kind, const forms::TControl& control) override {
    FLog.push_back("no " + Kind(kind) + " editor " + control.Name());
  }
  void EditorSymbolSet(terminal::TEditorKind kind, const forms::TControl& control,
                       std::string_view symbol) override {
    FLog.push_back(Kind(kind) + " symbol " + control.Name() + " " + std::string(symbol));
  }
  void ViewNotified(const host::TViewFrame& /*view*/, std::int32_t code) override {
    FLog.push_back("notify " + std::to_string(code));
  }
  void Subscribed(std::string_view symbol, std::string_view dataSet, bool live) override {
    FLog.push_back("subscribe " + std::string(symbol) + " " + std::string(dataSet) + (live ? " live" : ""));
  }
  void Unsubscribed(std::string_view symbol) override {
    FLog.push_back("unsubscribe " + std::string(symbol));
  }

  static std::string Kind(terminal::TEditorKind kind) {
    using enum terminal::TEditorKind;
    return kind == Account ? "account" : kind == Symbol ? "symbol" : kind == Price ? "price" : "quantity";
  }

  TTexts FLog;
  host::TInstalledService<TNotedConfig> FConfig{host::TCustomConfigManager::GetInstance(), FLog};
  host::TInstalledService<TNotedChannels> FChannels{host::TCustomGlobalChannelManager::GetInstance(), FLog};
  host::TInstalledService<TNotedMarket> FMarket{host::TCustomMarketAdapter::GetInstance(), FLog};
  host::TInstalledService<TNotedSkins> FSkins{host::TCustomLookAndFeelService::GetInstance(), FLog};
};

TEST_F(LifecycleTest, ANewFrameRegistersItsEditorsThenItsListenersThenPutsTheSkinOn) {
  Provider();
  Log().clear();
  Open();
  EXPECT_EQ(Log(), (TTexts{"account editor edtAccount",
                           "symbol editor edtSymbol",
                           "price editor edtPrice",
                           "quantity editor edtQty",
                           "quantity editor edtMinQty",
                           "quantity editor edtStopQty",
                           "quantity editor edtShowQty",
                           "quantity editor edtJoinQty",
                           "quantity editor edtMaxShowQty",
                           "price editor edtThrPx1",
                           "price editor edtThrPx2",
                           "price editor edtStopLossPx",
                           "price editor edtWPx",
                           "listen to settings",
                           "listen to channel 18016",
                           "listen to channel 18010",
                           "listen to spreads",
                           "listen to skins",
                           "notify 1025",
                           "colour 7",
                           "colour 9",
                           "notify 1025"}));
}

TEST_F(LifecycleTest, AFrameThatGoesTakesBackEverythingInTheOrderOfItsMaking) {
  auto& frame = OpenFilled();
  Log().clear();
  Provider().CloseInstance(host::HandleOf(frame));
  ASSERT_EQ(Log().size(), 19U);
  const std::set<std::string> editors(Log().begin(), Log().begin() + 13);
  EXPECT_EQ(editors,
            (std::set<std::string>{
                "no account editor edtAccount", "no symbol editor edtSymbol", "no price editor edtPrice",
                "no quantity editor edtQty", "no quantity editor edtMinQty", "no quantity editor edtStopQty",
                "no quantity editor edtShowQty", "no quantity editor edtJoinQty",
                "no quantity editor edtMaxShowQty", "no price editor edtThrPx1", "no price editor edtThrPx2",
                "no price editor edtStopLossPx", "no price editor edtWPx"}));
  EXPECT_EQ(TTexts(Log().begin() + 13, Log().end()),
            (TTexts{"leave settings", "leave channel 18016", "leave channel 18010", "leave spreads",
                    "leave skins", "unsubscribe 0005"}));
}

TEST_F(LifecycleTest, AFrameWithoutASymbolHasNothingToUnsubscribe) {
  auto& frame = Open();
  Log().clear();
  Provider().CloseInstance(host::HandleOf(frame));
  EXPECT_EQ(Log().size(), 18U);
  EXPECT_EQ(Log().back(), "leave skins");
}

TEST_F(LifecycleTest, ANewLinkGroupRegistersTheEditorsAgainAndTellsThemTheSymbol) {
  auto& frame = OpenFilled();
  Log().clear();
  EXPECT_TRUE(frame.SetGroupID("G1"));
  EXPECT_EQ(frame.GetGroupID(), "G1");
  EXPECT_EQ(Log(), (TTexts{"account editor edtAccount in G1",     "price editor edtPrice in G1",
                           "quantity editor edtQty in G1",        "symbol editor edtSymbol in G1",
                           "quantity editor edtMinQty in G1",     "quantity editor edtStopQty in G1",
                           "quantity editor edtShowQty in G1",    "quantity editor edtJoinQty in G1",
                           "quantity editor edtMaxShowQty in G1", "price editor edtThrPx1 in G1",
                           "price editor edtThrPx2 in G1",        "price editor edtStopLossPx in G1",
                           "price editor edtWPx in G1",           "price symbol edtPrice 0005",
                           "price symbol edtThrPx1 0005",         "price symbol edtThrPx2 0005",
                           "price symbol edtStopLossPx 0005",     "price symbol edtWPx 0005",
                           "quantity symbol edtQty 0005",         "quantity symbol edtStopQty 0005",
                           "quantity symbol edtMinQty 0005",      "quantity symbol edtShowQty 0005",
                           "quantity symbol edtJoinQty 0005",     "quantity symbol edtMaxShowQty 0005"}));
}

TEST_F(LifecycleTest, TheSameLinkGroupAgainDoesNothing) {
  auto& frame = Open();
  EXPECT_EQ(frame.GetGroupID(), "");
  Log().clear();
  EXPECT_TRUE(frame.SetGroupID(""));
  EXPECT_EQ(Log(), TTexts());
  EXPECT_TRUE(frame.SetGroupID("G1"));
  Log().clear();
  EXPECT_TRUE(frame.SetGroupID("G1"));
  EXPECT_EQ(Log(), TTexts());
  EXPECT_TRUE(frame.SetGroupID(""));
  EXPECT_EQ(frame.GetGroupID(), "");
  EXPECT_EQ(Log().size(), 24U);
}

TEST_F(LifecycleTest, AUserOfOneAccountKeepsTheAccountEditorOfTheFormerGroup) {
  Data().profile = {2, false, "OWN", ""};
  auto& frame = Open();
  EXPECT_EQ(std::count(Log().begin(), Log().end(), "account editor edtAccount"), 1);
  Log().clear();
  EXPECT_TRUE(frame.SetGroupID("G1"));
  EXPECT_EQ(Log().size(), 23U);
  EXPECT_EQ(Log().front(), "price editor edtPrice in G1");
  Provider().CloseInstance(host::HandleOf(frame));
  EXPECT_EQ(LeftBehind().editors, 0U);
}

TEST_F(LifecycleTest, ASymbolThatTheFormBringsIsFollowedFromTheStart) {
  StartHint = " 0005 ";
  auto& frame = Open();
  EXPECT_EQ(std::count(Log().begin(), Log().end(), "subscribe 0005 PRCDDS live"), 1);
  EXPECT_EQ(frame.Edit(TField::edtSymbol).Text(), "0005");
  EXPECT_EQ(frame.Spin(TField::edtPrice).Text(), "60.5");
  EXPECT_EQ(frame.Spin(TField::edtQty).Text(), "400");
  EXPECT_EQ(LeftBehind().subscriptions, 1U);
}

TEST_F(LifecycleTest, BlanksInTheSymbolEditorsHintAreNoStartSymbol) {
  StartHint = "  ";
  Open();
  EXPECT_EQ(LeftBehind().subscriptions, 0U);
}

TEST_F(LifecycleTest, ASkinGivesTheSideButtonsItsColoursAndTellsTheHost) {
  auto& frame = Open();
  Data().colors = {{7, 0x112233}, {9, 0x445566}};
  const auto expectSkin = [&](forms::TColor buy, forms::TColor sell) {
    EXPECT_EQ(Log(), (TTexts{"colour 7", "colour 9", "notify 1025"}));
    EXPECT_EQ(frame.SideButton(TField::btnBuy).Colors(), (std::map<std::int32_t, forms::TColor>{{7, buy}}));
    EXPECT_EQ(frame.SideButton(TField::btnSell).Colors(), (std::map<std::int32_t, forms::TColor>{{7, sell}}));
  };
  Log().clear();
  frame.SetSkin("Dark");
  expectSkin(0x112233, 0x445566);

  Data().colors = {{7, 0xabcdef}, {9, 0xfedcba}};
  Log().clear();
  Host().NotifySkinChanged("Light");
  expectSkin(0xabcdef, 0xfedcba);
}

}  // namespace
}  // namespace algo::tests
