// Which view is told that it is the active one.

#include <QTableView>

#include "tests/terminal/desk/talking_view.h"

namespace algo::terminal::desk::tests {
namespace {

using TLog = std::vector<std::string>;

struct TActiveViewTest : TTalkingTest {
  /// Two open views, of which none was told anything yet.
  void OpenTwo() {
    Open();
    Choose("talkingView");
    The("marketTable").setFocus();
    talk.log.clear();
  }
};

TEST_F(TActiveViewTest, TheFirstViewIsActiveOnceItHasTheFocus) {
  Open();
  window->Entries().FocusFirst();
  EXPECT_EQ(talk.Count("view1 active"), 1);
}

TEST_F(TActiveViewTest, TheFormerViewIsToldBeforeTheNewOne) {
  OpenTwo();
  Entry("entry1").raise();
  Enter(Entry("entry1"));
  Entry("entry2").raise();
  Enter(Entry("entry2"));
  EXPECT_EQ(talk.log, (TLog{"view1 active", "view1 inactive", "view2 active"}));
}

TEST_F(TActiveViewTest, AnotherPanelOfTheTerminalTakesTheActivityAway) {
  OpenTwo();
  Enter(Entry("entry2"));
  The("orderTree").setFocus();
  EXPECT_EQ(talk.log, (TLog{"view2 active", "view2 inactive"}));
}

TEST_F(TActiveViewTest, WithinAPanelNothingIsTold) {
  OpenTwo();
  Enter(Entry("entry2"));
  The("linkGroup", &Entry("entry2")).setFocus();
  Enter(Entry("entry2"));
  EXPECT_EQ(talk.log, TLog{"view2 active"});
}

TEST_F(TActiveViewTest, ADialogInFrontLeavesTheViewActive) {
  OpenTwo();
  Enter(Entry("entry2"));
  Choose("settings");
  auto& settings = The<settings::TSettingsPage>("Settings");
  ASSERT_TRUE(QTest::qWaitForWindowActive(&settings));
  settings.reject();
  QTest::qWait(1);
  EXPECT_EQ(talk.log, TLog{"view2 active"});
}

TEST_F(TActiveViewTest, AViewThatClosesIsNotActiveAnyMore) {
  OpenTwo();
  Enter(Entry("entry2"));
  Click(The("close", &Entry("entry2")));
  QTest::qWait(1);
  ASSERT_GE(talk.log.size(), 3U);
  EXPECT_EQ(talk.log[0], "view2 active");
  EXPECT_EQ(talk.log[1], "view2 inactive");
  EXPECT_EQ(talk.Count("view2 closed"), 1);
}

TEST_F(TActiveViewTest, AViewMaySayThatItChangedWhenItClosesAsTheActiveOne) {
  OpenTwo();
  talk.tellsWhenAsked = true;
  Enter(Entry("entry2"));
  Entry("entry2").close();
  QTest::qWait(1);
  EXPECT_EQ(talk.Count("view2 inactive"), 1);
  EXPECT_EQ(talk.Count("view2 active"), 1);
  EXPECT_EQ(talk.Count("view2 closed"), 1);
}

}  // namespace
}  // namespace algo::terminal::desk::tests
