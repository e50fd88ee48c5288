// Where new views stand.

#include "terminal/desk/frames/view_place.h"

#include "terminal/desk/frames/start_views.h"
#include "tests/terminal/desk/talking_view.h"

namespace algo::terminal::desk::tests {
namespace {

struct TViewPlaceTest : TTalkingTest {
  Qt::DockWidgetArea Side(const char* panel) { return window->dockWidgetArea(&Entry(panel)); }
};

TEST_F(TViewPlaceTest, ASideThatTheViewDoesNotChooseIsTheLeftOneWithFurtherViewsAsTabs) {
  Open();
  Choose("talkingView");
  EXPECT_EQ(Side("entry1"), Qt::LeftDockWidgetArea);
  EXPECT_EQ(window->tabifiedDockWidgets(&Entry("entry1")), QList<QDockWidget*>{&Entry("entry2")});
}

TEST_F(TViewPlaceTest, AViewDocksAtTheSideThatItChooses) {
  const std::pair<host::TDockPosition, Qt::DockWidgetArea> rows[] = {
      {host::TDockPosition::Left, Qt::LeftDockWidgetArea},
      {host::TDockPosition::Top, Qt::TopDockWidgetArea},
      {host::TDockPosition::Right, Qt::RightDockWidgetArea},
      {host::TDockPosition::Bottom, Qt::BottomDockWidgetArea}};
  for (const auto& [position, side] : rows) {
    const QTemporaryDir empty;
    options.dataFolder = empty.path().toStdString();
    talk.side = position;
    Open();
    EXPECT_EQ(Side("entry1"), side);
    Choose("talkingView");
    EXPECT_EQ(Side("entry2"), side);
    EXPECT_EQ(window->tabifiedDockWidgets(&Entry("entry1")).size(), 1);
    Close();
  }
}

TEST_F(TViewPlaceTest, TheChosenSideIsTakenEvenWhereTheLastViewStandsElsewhere) {
  talk.side = host::TDockPosition::Bottom;
  Open();
  window->addDockWidget(Qt::LeftDockWidgetArea, &Entry("entry1"));
  Choose("talkingView");
  EXPECT_EQ(Side("entry1"), Qt::LeftDockWidgetArea);
  EXPECT_EQ(Side("entry2"), Qt::BottomDockWidgetArea);
}

TEST_F(TViewPlaceTest, AViewThatDoesNotDockFloatsForGood) {
  talk.docks = false;
  Open();
  Choose("talkingView");
  for (const char* panel : {"entry1", "entry2"}) {
    EXPECT_TRUE(Entry(panel).isVisible());
    EXPECT_TRUE(Entry(panel).isFloating());
    EXPECT_EQ(Entry(panel).allowedAreas(), Qt::NoDockWidgetArea);
    EXPECT_FALSE(The("float", &Entry(panel)).isVisible());
  }
}

TEST_F(TViewPlaceTest, AViewThatDocksNoMoreFloatsWhereverTheWorkspaceHasIt) {
  Open();
  ASSERT_FALSE(Entry().isFloating());
  Close();
  talk.docks = false;
  Open();
  EXPECT_TRUE(Entry().isFloating());
  EXPECT_TRUE(Entry().isVisible());
}

TEST_F(TViewPlaceTest, ADialogFloatsInTheMiddleOfTheWindow) {
  talk.isDialog = true;
  Open();
  Choose("talkingView");
  EXPECT_TRUE(Entry("entry2").isFloating());
  EXPECT_EQ(Entry("entry2").allowedAreas(), Qt::NoDockWidgetArea);
  const QPoint away = Entry("entry2").geometry().center() - window->geometry().center();
  EXPECT_LE(away.manhattanLength(), 4);
}

TEST_F(TViewPlaceTest, AWindowFloatsAtFirstAndMayDock) {
  talk.isWindow = true;
  Open();
  EXPECT_TRUE(Entry().isFloating());
  Click(The("float", &Entry()));
  EXPECT_FALSE(Entry().isFloating());
}

TEST_F(TViewPlaceTest, AViewThatIsNotSizeableHasOneSizeWhileItFloats) {
  talk.sizeable = false;
  Open();
  EXPECT_LT(Entry().minimumWidth(), Entry().maximumWidth());
  Click(The("float", &Entry()));
  ASSERT_TRUE(Entry().isFloating());
  EXPECT_EQ(Entry().minimumSize(), Entry().maximumSize());
  EXPECT_EQ(Entry().size(), Entry().sizeHint());
  Click(The("float", &Entry()));
  EXPECT_EQ(Entry().maximumWidth(), QWIDGETSIZE_MAX);
}

TEST_F(TViewPlaceTest, ANewViewHasTheSizeThatItsProviderGives) {
  talk.isWindow = true;
  Open();
  const QSize own = The("pane", &Entry()).size();
  talk.width = own.width() + 60;
  Choose("talkingView");
  EXPECT_EQ(The("pane", &Entry("entry2")).size(), own + QSize(60, 0));
  talk.width = 1'000'000;
  talk.height = 1'000'000;
  Choose("talkingView");
  EXPECT_LE(The("pane", &Entry("entry3")).width(), window->screen()->availableSize().width());
}

struct TStartProvider : host::tests::TSampleProvider {
  TStartProvider(bool opens, bool offered, std::int32_t index)
      : FOpens(opens), FOffered(offered), FIndex(index) {}
  bool GetIsVisible() override { return FOffered; }
  bool GetIsDialogViewAfterMainShow() override { return FOpens; }
  std::int32_t GetDialogViewIndexAfterMainShow() override { return FIndex; }
  bool FOpens;
  bool FOffered;
  std::int32_t FIndex;
};

TEST(StartViews, OpenInTheOrderOfTheirIndexes) {
  TStartProvider third(true, true, 5);
  TStartProvider quiet(false, true, 1);
  TStartProvider first(true, true, -2);
  TStartProvider forbidden(true, false, 0);
  TStartProvider second(true, true, 3);
  EXPECT_EQ(frames::StartViews({&third, &quiet, &first, &forbidden, &second}),
            (std::vector<host::TIBaseView*>{&first, &second, &third}));
}

}  // namespace
}  // namespace algo::terminal::desk::tests
