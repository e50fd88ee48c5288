// The keys of views.

#include <QTableView>

#include "tests/terminal/desk/talking_view.h"

namespace algo::terminal::desk::tests {
namespace {

struct TViewShortcutsTest : TTalkingTest {
  TViewShortcutsTest() { talk.shortcuts = {{21, "Send it", "Ctrl+Alt+O"}, {22, "Help me", ""}}; }

  void PressKeys(QWidget& widget) {
    QTest::keyClick(&widget, Qt::Key_O, Qt::ControlModifier | Qt::AltModifier);
  }
  QString KeysOf(const char* name) {
    for (const QAction* action : window->actions()) {
      if (action->objectName() == name) return action->shortcut().toString();
    }
    throw EError(std::string("there is no ") + name);
  }
};

TEST_F(TViewShortcutsTest, TheyAreMadeReadyOnceAndBeforeTheyAreAskedFor) {
  Open();
  Choose("zh_Hant");
  Choose("talkingView");
  EXPECT_EQ(talk.Count("shortcuts"), 1);
  EXPECT_EQ(talk.log.front(), "shortcuts");
}

TEST_F(TViewShortcutsTest, TheirKeysReachTheActiveView) {
  Open();
  Choose("talkingView");
  Enter(Entry("entry2"));
  PressKeys(Input(Entry("entry2").View(), "edit"));
  EXPECT_EQ(talk.Count("view2 shortcut 21"), 1);
  EXPECT_EQ(talk.Count("view1 shortcut 21"), 0);
}

TEST_F(TViewShortcutsTest, TheyReachAViewThatFloats) {
  Open();
  Entry().setFloating(true);
  Entry().activateWindow();
  ASSERT_TRUE(QTest::qWaitFor([this] { return QApplication::activeWindow() == &Entry(); }));
  Enter(Entry());
  PressKeys(Input(Entry().View(), "edit"));
  EXPECT_EQ(talk.Count("view1 shortcut 21"), 1);
}

TEST_F(TViewShortcutsTest, WithoutAnActiveViewTheyDoNothing) {
  Open();
  The("marketTable").setFocus();
  PressKeys(The("marketTable"));
  EXPECT_EQ(talk.Count("view1 shortcut 21"), 0);
}

TEST_F(TViewShortcutsTest, KeysThatTheTerminalHasStayWithIt) {
  talk.shortcuts = {{1, "", "Ctrl+S"}, {2, "", "Ctrl+N, X"}, {3, "", "Alt+F"},     {4, "", "F7"},
                    {5, "", "F7"},     {6, "", "no keys"},   {7, "", "Ctrl+Alt+P"}};
  Open();
  EXPECT_EQ(KeysOf("viewShortcut1"), "");
  EXPECT_EQ(KeysOf("viewShortcut2"), "");
  EXPECT_EQ(KeysOf("viewShortcut3"), "");
  EXPECT_EQ(KeysOf("viewShortcut4"), "F7");
  EXPECT_EQ(KeysOf("viewShortcut5"), "");
  EXPECT_EQ(KeysOf("viewShortcut6"), "");
  EXPECT_EQ(KeysOf("viewShortcut7"), "Ctrl+Alt+P");
}

TEST_F(TViewShortcutsTest, ALanguageLeavesTheKeysAndAsksForTheCaptionsAnew) {
  Open();
  talk.shortcuts[0].caption = "送出";
  Choose("zh_Hant");
  QMenu* menu = Menu(Entry());
  ASSERT_NE(menu, nullptr);
  EXPECT_EQ(The<QAction>("viewShortcut21Entry", menu).text().section('\t', 0, 0), "送出");
  EXPECT_EQ(KeysOf("viewShortcut21"), "Ctrl+Alt+O");
}

TEST_F(TViewShortcutsTest, ThePanelsMenuDoesThemForItsOwnView) {
  Open();
  Choose("talkingView");
  Enter(Entry("entry2"));
  QMenu* menu = Menu(Entry("entry1"));
  ASSERT_NE(menu, nullptr);
  The<QAction>("viewShortcut22Entry", menu).trigger();
  EXPECT_EQ(talk.Count("view1 shortcut 22"), 1);
}

}  // namespace
}  // namespace algo::terminal::desk::tests
