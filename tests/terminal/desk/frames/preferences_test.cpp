// The user's settings of the module's views.

#include "terminal/desk/frames/preference_window.h"
#include "tests/terminal/desk/talking_view.h"

namespace algo::terminal::desk::tests {
namespace {

struct TPreferencesTest : TTalkingTest {
  void OpenPreferences() {
    QMenu* menu = Menu(Entry());
    ASSERT_NE(menu, nullptr);
    The<QAction>("openPreferences", menu).trigger();
    menu->close();
    QApplication::processEvents();
  }
};

TEST_F(TPreferencesTest, AViewWithNothingToSetHasNoMenuOfItsOwn) {
  Open();
  EXPECT_EQ(Menu(Entry()), nullptr);
}

TEST_F(TPreferencesTest, ThePanelsMenuHasThoseOfTheWindowAndTheSettings) {
  talk.hasPreferences = true;
  Open();
  QMenu* menu = Menu(Entry());
  ASSERT_NE(menu, nullptr);
  EXPECT_EQ(menu->actions().last()->text(), "View settings…");
  EXPECT_TRUE(menu->actions().contains(The<panels::TPanel>("orders").toggleViewAction()));
}

TEST_F(TPreferencesTest, TheSettingsOpenInADialogAndGiveBackWhatTheyHold) {
  talk.hasPreferences = true;
  Open();
  OpenPreferences();
  auto& dialog = The<frames::TPreferenceWindow>("preferences");
  EXPECT_TRUE(dialog.isVisible());
  EXPECT_EQ(dialog.windowTitle(), "View settings");
  Type(FrameIn(dialog), "edit", "42");
  EXPECT_EQ(Text(FrameIn(dialog), "edit"), "42");
  EXPECT_FALSE(talk.Noted("preferences closed"));
  Click(The("closePreferences", &dialog));
  QTest::qWait(1);
  EXPECT_EQ(window->findChild<QDialog*>("preferences"), nullptr);
  EXPECT_EQ(talk.Count("preferences closed"), 1);
}

TEST_F(TPreferencesTest, SettingsThatNobodyOpenedAreGivenBackWithTheMenu) {
  talk.hasPreferences = true;
  Open();
  Menu(Entry())->close();
  QTest::qWait(1);
  EXPECT_EQ(talk.Count("preferences closed"), 1);
}

TEST_F(TPreferencesTest, TheDeskEndsWithThemOpen) {
  talk.hasPreferences = true;
  Open();
  OpenPreferences();
  Close();
  EXPECT_EQ(talk.Count("preferences closed"), 1);
}

}  // namespace
}  // namespace algo::terminal::desk::tests
