// Menus that views of modules describe.

#include "terminal/desk/window/provider_menu.h"

#include <gtest/gtest.h>

#include <QMenu>

#include "tests/terminal/desk/window/menu_captions.h"

namespace algo::terminal::desk::tests {
namespace {

struct TSampleView : host::TIBaseView {
  TSampleView(std::int32_t id, std::int32_t index) : TIBaseView(nullptr), FId(id), FIndex(index) {}
  std::string GetName() override { return "view" + std::to_string(FId); }
  std::int32_t GetViewID() override { return FId; }
  std::int32_t GetMenuLevel() override { return 3; }
  std::int32_t GetMenuIndex(std::int32_t level) override { return level == 2 ? FIndex : 10; }
  std::int32_t GetMenuID(std::int32_t level) override { return level == 2 ? FId : 50 + level; }
  std::string GetMenuCaption(std::int32_t level) override {
    return "Level " + std::to_string(level) + (level == 2 ? " view " + std::to_string(FId) : "");
  }
  std::int32_t GetMenuGroupIndex(std::int32_t) override { return 0; }
  bool GetIsVisible() override { return true; }
  bool GetDefaultCaption(std::string&) override { return false; }
  bool GetDefaultSize(std::int32_t&, std::int32_t&) override { return false; }
  host::TInstanceHandle OpenNewInstance() override { return 0; }
  std::int32_t FId;
  std::int32_t FIndex;
};

TEST(ProviderMenu, ViewsShareTheMenusOnTheirWayAndStandByTheirIndexes) {
  QMenuBar bar;
  window::MenuIn(bar, {1, 20}, "Last");
  TSampleView late(7, 300);
  TSampleView early(8, 200);
  ASSERT_NE(window::AddViewEntry(bar, late), nullptr);
  ASSERT_NE(window::AddViewEntry(bar, early), nullptr);
  EXPECT_EQ(Captions(bar), (QStringList{"Level 0", "Last"}));
  const QMenu& first = *bar.actions()[0]->menu();
  EXPECT_EQ(Captions(first), QStringList{"Level 1"});
  EXPECT_EQ(Captions(*first.actions()[0]->menu()), (QStringList{"Level 2 view 8", "Level 2 view 7"}));
}

}  // namespace
}  // namespace algo::terminal::desk::tests
