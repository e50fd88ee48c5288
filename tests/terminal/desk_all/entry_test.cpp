// Orders on their way from an entry view to the blotter, by mouse and keys.

#include <QMessageBox>
#include <QScrollBar>
#include <QTreeView>

#include "plugin/host_contract/view_functions.h"
#include "tests/terminal/desk_all/desk_fixture.h"

namespace algo::terminal::tests {
namespace {

struct TEntryTest : TDeskTest {
  TFrameView& FrameIn(QWidget& dialog) { return The<TFrameView>("frame", &dialog); }
  const std::vector<std::unique_ptr<host::TCustomClientOrder>>& Orders() {
    return desk->Host().Orders().All();
  }
};

TEST_F(TEntryTest, AFirstStartOpensOneEntryView) {
  Open();
  EXPECT_EQ(window->findChildren<TEntryPanel*>().size(), 1);
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
  const auto events = desk->Keeper().EventsOf("N1");
  ASSERT_EQ(events.size(), 1U);
  EXPECT_EQ(events[0].event.what, "new");
}

TEST_F(TEntryTest, EscapeInTheConfirmationSendsNothing) {
  Open();
  FillEntry(Entry().View());
  WhenModal([&](QWidget& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
  Click(Input(Entry().View(), "btnSubmit"));
  EXPECT_TRUE(Orders().empty());
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(TEntryTest, EnterInADialogPressesNoButtonByItself) {
  Open();
  FillEntry(Entry().View());
  WhenModal([&](QWidget& dialog) {
    QTest::keyClick(&dialog, Qt::Key_Return);
    QTest::keyClick(&dialog, Qt::Key_Enter, Qt::ShiftModifier);
    EXPECT_TRUE(Orders().empty());
    EXPECT_TRUE(dialog.isVisible());
    QTest::keyClick(&dialog, Qt::Key_Escape);
  });
  Click(Input(Entry().View(), "btnSubmit"));
  EXPECT_TRUE(Orders().empty());
}

TEST_F(TEntryTest, AMistakeShowsABoxAndALineInTheLog) {
  Open();
  Type(Entry().View(), "edtSymbol", "0005");
  Click(Input(Entry().View(), "btnBuy"));
  Click(Input(Entry().View(), "btnSubmit"));
  auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
  ASSERT_NE(box, nullptr);
  EXPECT_EQ(box->text(), "Enter an account.");
  const QAbstractItemModel& log = *The<QTableView>("messageTable").model();
  ASSERT_EQ(log.rowCount(), 1);
  EXPECT_EQ(log.index(0, 1).data().toString(), "Enter an account.");
  Click(*box->button(QMessageBox::Ok));
  QApplication::processEvents();
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(TEntryTest, MessagesWaitForTheirTurn) {
  Open();
  desk->Events().MessageShown("first");
  desk->Events().MessageShown("second");
  desk->Events().MessageShown("second");
  for (const char* text : {"first", "second"}) {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(box->text(), text);
    Click(*box->button(QMessageBox::Ok));
    QTest::qWait(10);
  }
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
  EXPECT_EQ(The<QTableView>("messageTable").model()->rowCount(), 3);
}

TEST_F(TEntryTest, AMessageInADialogStandsInFrontOfIt) {
  Open();
  FillEntry(Entry().View());
  WhenModal([&](QWidget& dialog) {
    desk->Events().MessageShown("wait");
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(box->parentWidget(), &dialog);
    Click(*box->button(QMessageBox::Ok));
    QTest::keyClick(&dialog, Qt::Key_Escape);
  });
  Click(Input(Entry().View(), "btnSubmit"));
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(TEntryTest, ClosingTheProgramDismissesADialogFirst) {
  Open();
  FillEntry(Entry().View());
  bool stayed = false;
  WhenModal([&](QWidget&) {
    window->close();
    stayed = window->isVisible();
  });
  Click(Input(Entry().View(), "btnSubmit"));
  EXPECT_TRUE(stayed);
  EXPECT_TRUE(Orders().empty());
  QTest::qWait(10);
  EXPECT_FALSE(window->isVisible());
}

TEST_F(TEntryTest, DialogsNest) {
  Open();
  FillEntry(Entry().View());
  int depth = 0;
  WhenModal([&](QWidget& outer) {
    auto inner = host::GetDialogForm(desk->Provider());
    inner->SetFrame(std::make_shared<forms::TFrame>("TInner", "layout"));
    inner->SetClientSize({200, 100});
    WhenModal([&](QWidget& dialog) {
      EXPECT_NE(&dialog, &outer);
      EXPECT_EQ(dialog.size(), QSize(200, 100));
      ++depth;
      QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    EXPECT_EQ(inner->ShowModal(), 2);
    inner->Hide();
    EXPECT_EQ(QApplication::activeModalWidget(), &outer);
    ++depth;
    Click(Input(FrameIn(outer), "btnBuy"));
  });
  Click(Input(Entry().View(), "btnSubmit"));
  EXPECT_EQ(depth, 2);
  EXPECT_EQ(Orders().size(), 1U);
}

TEST_F(TEntryTest, SeveralEntryViewsAreOpenAtOnce) {
  Open();
  Choose("AlgoOrderEntry_426");
  Choose("AlgoOrderEntry_426");
  EXPECT_EQ(window->findChildren<TEntryPanel*>().size(), 3);
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
  EXPECT_TRUE(window->findChildren<TEntryPanel*>().isEmpty());
  EXPECT_FALSE(desk->Provider().ContainView(instance));
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
  const auto& pane = The<TFramePane>("pane", &Entry());
  EXPECT_FALSE(pane.horizontalScrollBar()->isVisible());
  EXPECT_FALSE(pane.verticalScrollBar()->isVisible());
}

}  // namespace
}  // namespace algo::terminal::tests
