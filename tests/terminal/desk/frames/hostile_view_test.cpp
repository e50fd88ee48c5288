// A day with views that throw: the desktop goes on.

#include <QMessageBox>

#include "tests/terminal/desk/throwing_provider.h"

namespace algo::terminal::desk::tests {
namespace {

struct THostileViewTest : TTalkingTest {
  /// Has all operations throw but these.
  void Spare(std::set<std::string> operations) {
    options.layer = [this, operations](auto) {
      return std::make_unique<TThrowingProvider>(talk, operations);
    };
  }

  /// What the trader was told, with the message boxes closed.
  QStringList Told() {
    QApplication::processEvents();
    while (auto* box = window->findChild<QMessageBox*>("messageBox")) {
      box->close();
      QApplication::sendPostedEvents(box, QEvent::DeferredDelete);
      QApplication::processEvents();
    }
    const QAbstractItemModel& lines = *The<QTableView>("messageTable").model();
    QStringList told;
    for (int row = 0; row < lines.rowCount(); ++row) told.append(lines.index(row, 1).data().toString());
    return told;
  }

  /// Gives the keys back to the window after a message.
  void Activate() {
    window->activateWindow();
    EXPECT_TRUE(QTest::qWaitFor([this] { return QApplication::activeWindow() == window.get(); }));
  }

  const std::set<std::string> menu{"GetName",      "GetIsVisible",   "GetMenuLevel",     "GetMenuID",
                                   "GetMenuIndex", "GetMenuCaption", "GetDefaultCaption"};
};

TEST_F(THostileViewTest, WithoutAnyAnswerTheDeskOpensWithoutTheView) {
  Spare({});
  TDeskTest::Open();
  EXPECT_TRUE(window->findChildren<frames::TEntryPanel*>().isEmpty());
  EXPECT_TRUE(The("orders").isVisible());
  EXPECT_TRUE(Told().contains("InitializeShortcut failed"));
  EXPECT_TRUE(Told().contains("GetIsVisible failed"));
  EXPECT_TRUE(window->close());
}

TEST_F(THostileViewTest, AViewThatDoesNotOpenLeavesTheOthersAlone) {
  Spare(menu);
  TDeskTest::Open();
  Choose("talkingView");
  EXPECT_TRUE(window->findChildren<frames::TEntryPanel*>().isEmpty());
  EXPECT_EQ(Told().count("OpenNewInstance failed"), 2);
}

TEST_F(THostileViewTest, AViewWithoutAFrameIsNotShown) {
  std::set<std::string> spared = menu;
  spared.insert({"OpenNewInstance", "CloseInstance"});
  Spare(spared);
  TDeskTest::Open();
  EXPECT_TRUE(window->findChildren<frames::TEntryPanel*>().isEmpty());
  EXPECT_TRUE(Told().contains("FindView failed"));
}

TEST_F(THostileViewTest, AViewThatThrowsAtEverythingElseShowsIsStoredAndCloses) {
  std::set<std::string> spared = menu;
  spared.insert({"OpenNewInstance", "FindView", "GetShortCutList", "GetViewCaptionButtons"});
  Spare(spared);
  talk.shortcuts = {{21, "Send it", "Ctrl+Alt+O"}};
  talk.buttons = {{7, "Pin", -1}};
  TDeskTest::Open();
  Told();
  EXPECT_EQ(Entry().windowTitle(), "Talking view");
  EXPECT_FALSE(Entry().isFloating());
  Choose("talkingView");
  Told();
  Click(The("viewButton7", &Entry("entry2")));
  EXPECT_TRUE(Told().contains("HandleCaptionButtonClick failed"));
  QMenu* entries = Menu(Entry("entry2"));
  ASSERT_NE(entries, nullptr);
  The<QAction>("viewShortcut21Entry", entries).trigger();
  entries->close();
  EXPECT_TRUE(Told().contains("ExecuteShortcutAction failed"));
  EXPECT_TRUE(Told().contains("GetPreferenceView failed"));
  Entry("entry2").SetCustomData("its data");
  QTest::keyClick(&The("linkGroup", &Entry("entry2")), Qt::Key_End);
  Choose("zh_Hant");
  Choose("saveWorkspace");
  Told();
  const auto stored = window::ParseWorkspace(*desk->Storage().Workspace("default"));
  ASSERT_TRUE(stored.has_value());
  ASSERT_EQ(stored->entries.size(), 2U);
  EXPECT_EQ(stored->entries[1].data, "its data");
  Entry("entry2").close();
  QTest::qWait(1);
  EXPECT_EQ(window->findChildren<frames::TEntryPanel*>().size(), 1);
  EXPECT_TRUE(Told().contains("CloseInstance failed"));
  EXPECT_TRUE(window->close());
}

TEST_F(THostileViewTest, AMessageAboutAFailedActivationLeadsToNoOther) {
  std::set<std::string> spared = menu;
  spared.insert({"OpenNewInstance", "FindView"});
  Spare(spared);
  Open();
  Told();
  Activate();
  The("marketTable").setFocus();
  Told();
  Activate();
  const auto before = Told().count("ActiveView failed");
  Enter(Entry());
  EXPECT_EQ(Told().count("ActiveView failed"), before + 1);
  Activate();
  EXPECT_TRUE(Entry().isAncestorOf(QApplication::focusWidget()));
  QTest::qWait(20);
  EXPECT_EQ(Told().count("ActiveView failed"), before + 1);
}

}  // namespace
}  // namespace algo::terminal::desk::tests
