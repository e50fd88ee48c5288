#include <gtest/gtest.h>

#include "tests/forms/sample_form.h"

namespace algo::forms::tests {
namespace {

struct TObserver final : TFrameObserver {
  void ControlChanged(const TControl& control) override { changed.push_back(control.Name()); }
  void LayoutChanged() override { ++layouts; }
  void FocusChanged() override { ++focuses; }

  TNotes changed;
  int layouts = 0;
  int focuses = 0;
};

struct TLayoutTest : testing::Test {
  TSampleFrame frame;
  TLayoutControl& layout = frame.Layout();
  TTextEdit& edit = frame.Place<TTextEdit>("edit");
  TTextEdit& second = frame.Place<TTextEdit>("second");
  TLayoutElement& item = *layout.Find("liedit");
};

TEST_F(TLayoutTest, FindsElementsAndControlsByName) {
  EXPECT_EQ(layout.Find("lgTop"), &frame.top);
  EXPECT_EQ(layout.Find("nothing"), nullptr);
  EXPECT_EQ(frame.FindControl("second"), &second);
  EXPECT_EQ(frame.FindControl("liedit"), nullptr);
  EXPECT_EQ(edit.Item(), &item);
}

TEST_F(TLayoutTest, AnElementShowsWithAllItsParents) {
  EXPECT_TRUE(edit.Showing());
  frame.top.SetVisible(false);
  EXPECT_TRUE(item.Visible());
  EXPECT_FALSE(item.Showing());
  EXPECT_FALSE(edit.Showing());
  frame.top.SetVisible(true);
  item.SetVisible(false);
  EXPECT_FALSE(edit.Showing());
  EXPECT_TRUE(second.Showing());
}

TEST_F(TLayoutTest, MovingMakesAnElementTheLastOfItsNewParent) {
  auto& group = layout.AddGroup("lgOther", nullptr, TDirection::Horizontal);
  EXPECT_EQ(layout.Position(*second.Item()), 1U);
  layout.Move(item, frame.top);
  EXPECT_EQ(layout.Position(item), 1U);
  EXPECT_EQ(layout.Position(*second.Item()), 0U);
  layout.Move(item, group);
  EXPECT_EQ(item.Parent(), &group);
  EXPECT_EQ(frame.top.Children(), (std::vector<TLayoutElement*>{second.Item()}));
  EXPECT_EQ(layout.Position(group), 1U);
}

TEST_F(TLayoutTest, ATopGroupThatMovesIntoAnotherIsNoTopGroupAnyMore) {
  auto& group = layout.AddGroup("lgOther", nullptr, TDirection::Horizontal);
  layout.Move(group, frame.top);
  EXPECT_EQ(group.Parent(), &frame.top);
  EXPECT_EQ(layout.TopGroups(), (std::vector<TLayoutGroup*>{&frame.top}));
}

TEST_F(TLayoutTest, AStyleGivesItsFontToAllItsElements) {
  auto& style = layout.AddStyle("bold");
  item.SetStyle(&style);
  second.Item()->SetStyle(&style);
  style.SetBold(true);
  style.SetSize(12);
  EXPECT_EQ(item.Font(), (TFont{12, true}));
  EXPECT_EQ(second.Item()->Font(), (TFont{12, true}));
  EXPECT_EQ(frame.top.Font(), (TFont{8, false}));
}

TEST_F(TLayoutTest, TheContentSizeIsWhatTheVisibleElementsNeed) {
  edit.SetSize({100, 20});
  second.SetSize({60, 30});
  // The group's children one below the other with a gap of 4 after each, and a margin of 4 around.
  EXPECT_EQ(layout.ContentSize(), (TSize{108, 66}));
  second.SetVisible(false);
  EXPECT_EQ(layout.ContentSize(), (TSize{108, 32}));
  frame.top.SetVisible(false);
  EXPECT_EQ(layout.ContentSize(), (TSize{0, 0}));
}

TEST_F(TLayoutTest, CaptionsTakeRoomBesideTheirControls) {
  edit.SetSize({100, 20});
  second.SetVisible(false);
  // 5 characters of 0.6 times 8 points, and a gap.
  item.SetCaption("Price");
  EXPECT_DOUBLE_EQ(layout.ContentSize().width, 108 + 5 * 0.6 * 8 + 4);
}

TEST_F(TLayoutTest, CharactersAreMeasuredNotBytes) {
  EXPECT_EQ(TToolkit::Current().MeasureText("\xE4\xBB\xB7\xE6\xA0\xBC", TFont{10, false}), (TSize{12, 12}));
}

TEST_F(TLayoutTest, TopGroupsStandSideBySide) {
  edit.SetSize({100, 20});
  second.SetVisible(false);
  auto& group = layout.AddGroup("lgOther", nullptr, TDirection::Horizontal);
  layout.AddItem("lithird", group, frame.Add<TTextEdit>("third")).Control().SetSize({50, 40});
  EXPECT_EQ(layout.ContentSize(), (TSize{108 + 62, 48}));
}

TEST_F(TLayoutTest, AnUpdateTellsOnceAtItsOutermostEnd) {
  TObserver observer;
  frame.AddObserver(observer);
  {
    const TLayoutUpdate outer(layout);
    {
      const TLayoutUpdate inner(layout);
      item.SetVisible(false);
      frame.top.SetCaption("Top");
    }
    EXPECT_EQ(observer.layouts, 0);
  }
  EXPECT_EQ(observer.layouts, 1);
  { const TLayoutUpdate nothing(layout); }
  EXPECT_EQ(observer.layouts, 1);
  frame.RemoveObserver(observer);
}

TEST_F(TLayoutTest, ObserversAreToldOfControlsAndFocusUntilTheyAreRemoved) {
  TObserver observer;
  frame.AddObserver(observer);
  edit.SetHint("h");
  edit.SetHint("h");
  edit.SetEnabled(false);
  frame.InputClick(second);
  EXPECT_EQ(observer.changed, (TNotes{"edit", "edit"}));
  EXPECT_EQ(observer.focuses, 1);
  frame.RemoveObserver(observer);
  edit.SetHint("other");
  EXPECT_EQ(observer.changed.size(), 2U);
}

TEST_F(TLayoutTest, AnObserverSeesTheChangeBeforeTheChangeHandlerRuns) {
  TObserver observer;
  frame.AddObserver(observer);
  std::size_t seen = 0;
  edit.OnChange = [&] { seen = observer.changed.size(); };
  edit.SetText("x");
  EXPECT_EQ(seen, 1U);
  frame.RemoveObserver(observer);
}

}  // namespace
}  // namespace algo::forms::tests
