// What the main window has views take up as it starts, ends, and changes its font.

#include "tests/terminal/desk/talking_view.h"

namespace algo::terminal::desk::tests {
namespace {

struct TViewStartTest : TTalkingTest {
  std::optional<window::TWorkspace> Stored() {
    return window::ParseWorkspace(*desk->Storage().Workspace("default"));
  }
};

TEST_F(TViewStartTest, AViewThatOpensByItselfIsADialogOnceTheWindowShows) {
  talk.opensAtStart = true;
  Open();
  EXPECT_FALSE(Entry("entry1").isFloating());
  EXPECT_TRUE(Entry("start1").isVisible());
  EXPECT_TRUE(Entry("start1").isFloating());
  EXPECT_EQ(Entry("start1").allowedAreas(), Qt::NoDockWidgetArea);
}

TEST_F(TViewStartTest, ItOpensOnceAtEachStart) {
  talk.opensAtStart = true;
  Open();
  window->hide();
  window->show();
  QApplication::processEvents();
  EXPECT_EQ(window->findChildren<frames::TEntryPanel*>().size(), 2);
  Close();
  Open();
  EXPECT_EQ(window->findChildren<frames::TEntryPanel*>().size(), 2);
}

TEST_F(TViewStartTest, CustomDataComesBackWithTheWorkspace) {
  Open();
  Choose("talkingView");
  Entry("entry2").SetCustomData("known");
  Close();
  talk.log.clear();
  Open();
  EXPECT_EQ(talk.Count("view2 data known"), 1);
  EXPECT_EQ(talk.Count("view1 data "), 0);
}

TEST_F(TViewStartTest, CustomDataThatTheViewDoesNotKnowIsStoredAllTheSame) {
  Open();
  Entry().SetCustomData("of another version");
  Choose("saveWorkspace");
  EXPECT_EQ(Stored()->entries.at(0).data, "of another version");
}

TEST_F(TViewStartTest, ANewViewIsToldTheFont) {
  Open();
  EXPECT_EQ(talk.Count("view1 font 8"), 1);
}

TEST_F(TViewStartTest, ViewsAreToldOfAnotherFontOnce) {
  Open();
  Choose("talkingView");
  const QFont before = QApplication::font();
  QFont bold = before;
  bold.setBold(true);
  QApplication::setFont(bold);
  QApplication::processEvents();
  EXPECT_EQ(talk.Count("view1 font 8 bold"), 1);
  EXPECT_EQ(talk.Count("view2 font 8 bold"), 1);
  EXPECT_TRUE(Input(Entry().View(), "button").font().bold());
  Choose("dark");
  EXPECT_EQ(talk.Count("view1 font 8 bold"), 1);
  QApplication::setFont(before);
  QApplication::processEvents();
}

}  // namespace
}  // namespace algo::terminal::desk::tests
