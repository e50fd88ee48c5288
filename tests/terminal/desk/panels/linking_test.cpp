// Link groups, and prices on their way from the market watch to entry views.

#include <QComboBox>
#include <QMimeData>
#include <QTableView>

#include "tests/terminal/desk/desk_fixture.h"

namespace algo::terminal::desk::tests {
namespace {

struct TLinkingTest : TDeskTest {
  QTableView& Market() { return The<QTableView>("marketTable"); }

  void DoubleClick(int row, int column) {
    const QPoint place = Market().visualRect(Market().model()->index(row, column)).center();
    QTest::mouseClick(Market().viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(Market().viewport(), Qt::LeftButton, {}, place);
  }

  /// Chooses a group by keys, counted from None.
  void ChooseGroup(QWidget& panel, int group) {
    auto& box = The<QComboBox>("linkGroup", &panel);
    QTest::keyClick(&box, Qt::Key_Home);
    for (int i = 0; i < group; ++i) QTest::keyClick(&box, Qt::Key_Down);
    EXPECT_EQ(box.currentIndex(), group);
  }

  std::string Symbol(const char* entry) { return Text(Entry(entry).View(), "edtSymbol"); }
};

TEST_F(TLinkingTest, AChosenGroupIsTheViewsGroup) {
  Open();
  ChooseGroup(Entry(), 3);
  EXPECT_EQ(desk->Provider().GetGroupID(Entry().Instance()), "Blue");
  ChooseGroup(Entry(), 0);
  EXPECT_EQ(desk->Provider().GetGroupID(Entry().Instance()), "");
}

TEST_F(TLinkingTest, ADoubleClickPicksSymbolAndPrice) {
  Open();
  DoubleClick(1, 3);
  EXPECT_EQ(Symbol("entry1"), "0388");
  EXPECT_EQ(Text(Entry().View(), "edtPrice"), "318.4");
}

TEST_F(TLinkingTest, EnterPicksTheCurrentRow) {
  Open();
  Market().setFocus();
  Market().setCurrentIndex(Market().model()->index(0, 0));
  QTest::keyClick(&Market(), Qt::Key_Return);
  EXPECT_EQ(Symbol("entry1"), "0005");
}

TEST_F(TLinkingTest, APriceGoesToTheGroupOfTheWatchAlone) {
  Open();
  Choose("AlgoOrderEntry_426");
  ChooseGroup(Entry("entry1"), 1);
  ChooseGroup(Entry("entry2"), 2);
  ChooseGroup(The<panels::TPanel>("marketWatch"), 1);
  DoubleClick(0, 0);
  EXPECT_EQ(Symbol("entry1"), "0005");
  EXPECT_EQ(Symbol("entry2"), "");
}

TEST_F(TLinkingTest, ADroppedRowIsPicked) {
  Open();
  const std::unique_ptr<QMimeData> data(Market().model()->mimeData({Market().model()->index(2, 0)}));
  const QPoint place(30, 60);
  QDragEnterEvent enter(place, Qt::CopyAction, data.get(), Qt::LeftButton, {});
  QApplication::sendEvent(&Entry(), &enter);
  EXPECT_TRUE(enter.isAccepted());
  QDropEvent drop(place, Qt::CopyAction, data.get(), Qt::LeftButton, {});
  QApplication::sendEvent(&Entry(), &drop);
  EXPECT_EQ(Symbol("entry1"), "0700");
}

TEST_F(TLinkingTest, OtherThingsAreNotDropped) {
  Open();
  QMimeData data;
  data.setText("0700");
  QDragEnterEvent enter({30, 60}, Qt::CopyAction, &data, Qt::LeftButton, {});
  enter.ignore();
  QApplication::sendEvent(&Entry(), &enter);
  EXPECT_FALSE(enter.isAccepted());
}

}  // namespace
}  // namespace algo::terminal::desk::tests
