// The main window's menus, and what they open.

#include <QMenu>
#include <QMessageBox>

#include "tests/terminal/desk/desk_fixture.h"
#include "tests/terminal/desk/window/menu_captions.h"

namespace algo::terminal::desk::tests {
namespace {

struct TMenusTest : TDeskTest {
  QStringList Menu(int place) { return Captions(*window->menuBar()->actions()[place]->menu()); }
};

TEST_F(TMenusTest, TheModulesMenuStandsAfterFile) {
  Open();
  EXPECT_EQ(Captions(*window->menuBar()),
            (QStringList{"&File", "Order", "&View", "Language", "Skin", "&Help"}));
  EXPECT_EQ(Menu(1), QStringList{"Algo order entry"});
  EXPECT_EQ(Menu(2), (QStringList{"Market watch", "Orders", "Messages"}));
  EXPECT_EQ(Menu(3), (QStringList{"English", "繁體中文", "简体中文"}));
  EXPECT_EQ(Menu(4), (QStringList{"Light", "Dark", "High contrast"}));
}

TEST_F(TMenusTest, WithoutTheRightThereIsNoEntry) {
  Open();
  desk->Host().Data().rights.erase("AlgoTabOrderEntry");
  desk->SetLanguage(appearance::TLanguage::English);
  EXPECT_EQ(Captions(*window->menuBar()), (QStringList{"&File", "&View", "Language", "Skin", "&Help"}));
}

TEST_F(TMenusTest, ThePanelsAreShownAndHiddenByTheirMenu) {
  Open();
  EXPECT_TRUE(The("marketWatch").isVisible());
  Choose("show_marketWatch");
  EXPECT_FALSE(The("marketWatch").isVisible());
  Choose("show_marketWatch");
  EXPECT_TRUE(The("marketWatch").isVisible());
}

TEST_F(TMenusTest, AboutSaysThatItIsPaperTrading) {
  Open();
  Choose("about");
  auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
  ASSERT_NE(box, nullptr);
  EXPECT_TRUE(box->text().contains("Paper trading: no order leaves this machine"));
  Click(*box->button(QMessageBox::Ok));
}

TEST_F(TMenusTest, TheSettingsPageFollowsTheLanguageAndIsOpenOnce) {
  Open();
  Choose("settings");
  Choose("settings");
  EXPECT_EQ(window->findChildren<settings::TSettingsPage*>().size(), 1);
  desk->SetLanguage(appearance::TLanguage::SimplifiedChinese);
  EXPECT_EQ(The<settings::TSettingsPage>("Settings").windowTitle(), desk->Texts().Desk("Settings"));
  The<settings::TSettingsPage>("Settings").reject();
  QTest::qWait(1);
  EXPECT_EQ(window->findChildren<settings::TSettingsPage*>().size(), 0);
}

}  // namespace
}  // namespace algo::terminal::desk::tests
