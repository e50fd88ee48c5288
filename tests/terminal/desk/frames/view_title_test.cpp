// What a view has for the title bar of its panel.

#include "tests/terminal/desk/talking_view.h"

namespace algo::terminal::desk::tests {
namespace {

const host::TImage Blue{2, 1, {0xFF0000FF, 0xFF0000FF}};

struct TViewTitleTest : TTalkingTest {
  QLabel& Icon() { return The<QLabel>("viewIcon", &Entry()); }
  QToolButton& Button(const char* name) { return The<QToolButton>(name, &Entry()); }
};

TEST_F(TViewTitleTest, AViewWithNothingToSayHasTheCaptionOfItsKindAndNothingElse) {
  Open();
  Choose("talkingView");
  EXPECT_EQ(Entry("entry1").windowTitle(), "Talking view");
  EXPECT_EQ(Entry("entry2").windowTitle(), "Talking view 2");
  EXPECT_FALSE(Icon().isVisible());
  EXPECT_TRUE(Entry().windowIcon().isNull());
  EXPECT_FALSE(The("viewButtons", &Entry()).isVisible());
  EXPECT_TRUE(Button("float").isVisible());
}

TEST_F(TViewTitleTest, TheCaptionOfTheViewGoesBeforeTheOneOfItsKind) {
  talk.caption = "Orders of Ms. Wong";
  Open();
  Choose("talkingView");
  EXPECT_EQ(Entry("entry2").windowTitle(), "Orders of Ms. Wong");
  EXPECT_EQ(The<QLabel>("caption", &Entry("entry2")).text(), "Orders of Ms. Wong");
  EXPECT_EQ(Entry("entry2").accessibleName(), "Orders of Ms. Wong");
}

TEST_F(TViewTitleTest, AViewThatChangedIsAskedAnew) {
  Open();
  talk.caption = "Another";
  talk.icon = Blue;
  talk.buttons = {{7, "Pin", -1}};
  Change(Entry());
  EXPECT_EQ(Entry().windowTitle(), "Another");
  EXPECT_TRUE(Icon().isVisible());
  EXPECT_TRUE(Button("viewButton7").isVisible());
  talk.caption.clear();
  talk.icon = {};
  talk.buttons.clear();
  Change(Entry());
  EXPECT_EQ(Entry().windowTitle(), "Talking view");
  EXPECT_FALSE(Icon().isVisible());
  EXPECT_EQ(Entry().findChild<QToolButton*>("viewButton7"), nullptr);
}

TEST_F(TViewTitleTest, TheIconIsThePanelsToo) {
  talk.icon = Blue;
  Open();
  EXPECT_TRUE(Icon().isVisible());
  EXPECT_EQ(Entry().windowIcon().pixmap(2, 1).toImage().pixelColor(1, 0), QColor(0, 0, 255));
}

TEST_F(TViewTitleTest, ButtonsShowTheirPicturesOrElseTheirHints) {
  talk.buttons = {{7, "Pin", 0}, {8, "Help", -1}, {9, "", 3}};
  talk.images = {Blue};
  Open();
  EXPECT_FALSE(Button("viewButton7").icon().isNull());
  EXPECT_EQ(Button("viewButton7").toolTip(), "Pin");
  EXPECT_EQ(Button("viewButton7").accessibleName(), "Pin");
  EXPECT_EQ(Button("viewButton8").text(), "Help");
  EXPECT_EQ(Button("viewButton9").accessibleName(), "9");
  EXPECT_LT(Button("viewButton7").x(), Button("viewButton8").x());
}

TEST_F(TViewTitleTest, AClickReachesTheViewWhichMayHaveAnotherTitleThen) {
  talk.buttons = {{7, "Pin", -1}, {8, "Help", -1}};
  Open();
  Choose("talkingView");
  Click(The("viewButton8", &Entry("entry2")));
  EXPECT_TRUE(talk.Noted("view2 button 8"));
  EXPECT_EQ(Entry("entry2").windowTitle(), "Clicked 8");
  EXPECT_FALSE(talk.Noted("view1 button 8"));
}

TEST_F(TViewTitleTest, AButtonThatStaysKeepsTheFocus) {
  talk.buttons = {{7, "Pin", -1}};
  Open();
  Button("viewButton7").setFocus();
  QTest::keyClick(&Button("viewButton7"), Qt::Key_Space);
  EXPECT_TRUE(talk.Noted("view1 button 7"));
  EXPECT_TRUE(Button("viewButton7").hasFocus());
}

TEST_F(TViewTitleTest, AViewMaySayThatItChangedWhileItIsAsked) {
  talk.tellsWhenAsked = true;
  talk.caption = "Restless";
  Open();
  EXPECT_EQ(Entry().windowTitle(), "Restless");
}

}  // namespace
}  // namespace algo::terminal::desk::tests
