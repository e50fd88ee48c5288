// Entry views, and orders on their way from one to the blotter, by mouse and keys.

#include <QScrollBar>
#include <QTreeView>

#include "tests/terminal/desk/desk_fixture.h"

namespace algo::terminal::desk::tests {
namespace {

struct TEntryTest : TDeskTest {};

TEST_F(TEntryTest, AFirstStartOpensOneEntryView) {
  Open();
  EXPECT_EQ(window->findChildren<frames::TEntryPanel*>().size(), 1);
  EXPECT_EQ(Entry().windowTitle(), "Algo order entry");
  EXPECT_TRUE(Entry().isVisible());
}

TEST_F(TEntryTest, AConfirmedOrderIsInTheBlotterAndOnRecord) {
  Open();
  FillEntry(Entry().View());
  QString caption;
  WhenModal([&](QWidget& dialog) {
    caption = dialog.windowTitle();
    EXPECT_EQ(Text(FrameIn(dialog), "edtQty"), "400");
    Click(Input(FrameIn(dialog), "btnBuy"));
  });
  Click(Input(Entry().View(), "btnSubmit"));
  EXPECT_EQ(caption, "Confirm new order");
  ASSERT_EQ(Orders().size(), 1U);
  EXPECT_EQ(Orders()[0]->account, "SAMPLE-01");
  EXPECT_EQ(Orders()[0]->symbol, "0005");
  EXPECT_EQ(Orders()[0]->quantity, 400);
  EXPECT_EQ(Orders()[0]->TextProperty(440), "TMLO:AlgoId=TVOL,VolPct=20,Closing=0;");
  auto& tree = The<QTreeView>("orderTree");
  ASSERT_EQ(tree.model()->rowCount(), 1);
  EXPECT_EQ(tree.model()->index(0, 2).data().toString(), "0005");
  const auto events = desk->Storage().EventsOf("N1");
  ASSERT_EQ(events.size(), 1U);
  EXPECT_EQ(events[0].event.what, "new");
}

TEST_F(TEntryTest, SeveralEntryViewsAreOpenAtOnce) {
  Open();
  Choose("AlgoOrderEntry_426");
  Choose("AlgoOrderEntry_426");
  EXPECT_EQ(window->findChildren<frames::TEntryPanel*>().size(), 3);
  EXPECT_EQ(Entry("entry3").windowTitle(), "Algo order entry 3");
  Type(Entry("entry3").View(), "edtQty", "700");
  EXPECT_EQ(Text(Entry("entry3").View(), "edtQty"), "700");
  EXPECT_EQ(Text(Entry("entry1").View(), "edtQty"), "");
}

TEST_F(TEntryTest, ClosingAPanelClosesItsView) {
  Open();
  const auto instance = Entry().Instance();
  EXPECT_TRUE(desk->Provider().ContainView(instance));
  Click(The("close", &Entry()));
  QTest::qWait(10);
  EXPECT_TRUE(window->findChildren<frames::TEntryPanel*>().isEmpty());
  EXPECT_FALSE(desk->Provider().ContainView(instance));
}

TEST_F(TEntryTest, TheViewsThatAreLeftAreNumberedAnew) {
  Open();
  Choose("AlgoOrderEntry_426");
  Choose("AlgoOrderEntry_426");
  Click(The("close", &Entry("entry1")));
  QTest::qWait(10);
  EXPECT_EQ(Entry("entry2").windowTitle(), "Algo order entry");
  EXPECT_EQ(Entry("entry3").windowTitle(), "Algo order entry 2");
}

TEST_F(TEntryTest, AFloatingPanelFollowsTheSizeOfItsForm) {
  Open();
  Click(The("float", &Entry()));
  ASSERT_TRUE(Entry().isFloating());
  const auto pick = [&](Qt::Key key, const char* algorithm) {
    auto& box = dynamic_cast<QComboBox&>(Input(Entry().View(), "cmbOrderType"));
    box.setFocus();
    QTest::keyClick(&box, key);
    QApplication::processEvents();
    EXPECT_EQ(box.currentText(), algorithm);
    return Entry().size();
  };
  const QSize small = pick(Qt::Key_End, "Short sell");
  const QSize large = pick(Qt::Key_Home, "Target volume");
  EXPECT_NE(small, large);
  const auto& pane = The<frames::TFramePane>("pane", &Entry());
  EXPECT_FALSE(pane.horizontalScrollBar()->isVisible());
  EXPECT_FALSE(pane.verticalScrollBar()->isVisible());
}

}  // namespace
}  // namespace algo::terminal::desk::tests
