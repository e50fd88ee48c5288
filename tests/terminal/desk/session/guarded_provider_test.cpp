// The layer that lets no exception of a view into the desktop.

#include "terminal/desk/session/guarded_provider.h"

#include "tests/terminal/desk/throwing_provider.h"

namespace algo::terminal::desk::tests {
namespace {

struct TGuardedProviderTest : testing::Test {
  TGuardedProviderTest() {
    QObject::connect(&events, &TDeskEvents::MessageShown, &events,
                     [this](const QString& text) { shown.push_back(text.toStdString()); });
  }

  TTalk talk;
  TDeskEvents events;
  std::vector<std::string> shown;
  TGuardedProvider throwing{std::make_unique<TThrowingProvider>(talk, std::set<std::string>()), events};
};

TEST_F(TGuardedProviderTest, EachOperationThatThrowsAnswersNeutrallyAndTheTraderIsTold) {
  std::int32_t width = 3;
  std::int32_t height = 4;
  std::string caption;
  const std::pair<const char*, std::function<bool()>> rows[] = {
      {"GetName", [&] { return throwing.GetName().empty(); }},
      {"GetViewID", [&] { return throwing.GetViewID() == 0; }},
      {"GetMenuLevel", [&] { return throwing.GetMenuLevel() == 0; }},
      {"GetMenuIndex", [&] { return throwing.GetMenuIndex(0) == 0; }},
      {"GetMenuID", [&] { return throwing.GetMenuID(0) == 0; }},
      {"GetMenuCaption", [&] { return throwing.GetMenuCaption(0).empty(); }},
      {"GetMenuGroupIndex", [&] { return throwing.GetMenuGroupIndex(0) == 0; }},
      {"GetIsVisible", [&] { return !throwing.GetIsVisible(); }},
      {"GetIsWindow", [&] { return !throwing.GetIsWindow(); }},
      {"OpenNewInstance", [&] { return throwing.OpenNewInstance() == 0; }},
      {"CloseInstance", [&] { return throwing.CloseInstance(1), true; }},
      {"GetWidth", [&] { return throwing.GetWidth(1) == 0; }},
      {"GetHeight", [&] { return throwing.GetHeight(1) == 0; }},
      {"GetViewCaption", [&] { return throwing.GetViewCaption(1).empty(); }},
      {"HandleCaptionButtonClick", [&] { return throwing.HandleCaptionButtonClick(1, 1), true; }},
      {"GetViewCaptionButtons", [&] { return throwing.GetViewCaptionButtons(1).empty(); }},
      {"GetViewCaptionButtonImageList", [&] { return throwing.GetViewCaptionButtonImageList(1).empty(); }},
      {"GetViewIcon", [&] { return throwing.GetViewIcon(1) == host::TImage{}; }},
      {"GetPreferenceView", [&] { return throwing.GetPreferenceView() == nullptr; }},
      {"GetIsDialog", [&] { return !throwing.GetIsDialog(); }},
      {"GetIsSizeable", [&] { return throwing.GetIsSizeable(); }},
      {"GetCanDock", [&] { return throwing.GetCanDock(); }},
      {"GetDockPosition", [&] { return throwing.GetDockPosition() == host::TDockPosition::HostsChoice; }},
      {"GetShortCutList", [&] { return throwing.GetShortCutList().empty(); }},
      {"ExecuteShortcutAction", [&] { return !throwing.ExecuteShortcutAction(1, 1); }},
      {"SetSkin", [&] { return throwing.SetSkin(1, "dark"), true; }},
      {"SetLanguage", [&] { return !throwing.SetLanguage(1, 1); }},
      {"SetFont", [&] { return throwing.SetFont(1, {}), true; }},
      {"ActiveView", [&] { return throwing.ActiveView(1), true; }},
      {"DeactiveView", [&] { return throwing.DeactiveView(1), true; }},
      {"GetLayoutData", [&] { return throwing.GetLayoutData(1).empty(); }},
      {"SetLayoutData", [&] { return !throwing.SetLayoutData(1, "x"); }},
      {"SetCustomData", [&] { return !throwing.SetCustomData(1, "x"); }},
      {"ContainView", [&] { return !throwing.ContainView(1); }},
      {"SendMessage", [&] { return !throwing.SendMessage(1, 1, "x"); }},
      {"SetGroupID", [&] { return !throwing.SetGroupID(1, "x"); }},
      {"GetGroupID", [&] { return throwing.GetGroupID(1).empty(); }},
      {"GetIsDialogViewAfterMainShow", [&] { return !throwing.GetIsDialogViewAfterMainShow(); }},
      {"GetDialogViewIndexAfterMainShow", [&] { return throwing.GetDialogViewIndexAfterMainShow() == 0; }},
      {"GetDefaultSize", [&] { return !throwing.GetDefaultSize(width, height); }},
      {"GetDefaultCaption", [&] { return !throwing.GetDefaultCaption(caption); }},
      {"InitializeShortcut", [&] { return throwing.InitializeShortcut(), true; }},
      {"FindView", [&] { return throwing.FindView(1) == nullptr; }},
  };
  for (const auto& [operation, neutral] : rows) {
    shown.clear();
    EXPECT_TRUE(neutral()) << operation;
    EXPECT_EQ(shown, std::vector{std::string(operation) + " failed"});
  }
}

TEST_F(TGuardedProviderTest, WhatIsAnsweredComesThroughAsItIs) {
  talk.docks = false;
  talk.width = 90;
  TGuardedProvider talking(std::make_unique<TTalkingProvider>(talk), events);
  const auto instance = talking.OpenNewInstance();
  EXPECT_TRUE(talking.ContainView(instance));
  EXPECT_NE(talking.FindView(instance), nullptr);
  EXPECT_FALSE(talking.GetCanDock());
  EXPECT_TRUE(talking.GetIsSizeable());
  std::int32_t width = 1;
  std::int32_t height = 2;
  EXPECT_TRUE(talking.GetDefaultSize(width, height));
  EXPECT_EQ(width, 90);
  EXPECT_EQ(height, 2);
  EXPECT_TRUE(talking.SetCustomData(instance, "known"));
  EXPECT_FALSE(talking.SetCustomData(instance, "else"));
  EXPECT_TRUE(shown.empty());
}

}  // namespace
}  // namespace algo::terminal::desk::tests
