// What the trader is told: boxes, one at a time, and lines in the log.

#include <QMessageBox>
#include <QTableView>

#include "tests/terminal/desk/desk_fixture.h"

namespace algo::terminal::desk::tests {
namespace {

struct TMessagesTest : TDeskTest {};

TEST_F(TMessagesTest, AMistakeShowsABoxAndALineInTheLog) {
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

TEST_F(TMessagesTest, MessagesWaitForTheirTurn) {
  Open();
  emit desk->Events().MessageShown("first");
  emit desk->Events().MessageShown("second");
  emit desk->Events().MessageShown("second");
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

TEST_F(TMessagesTest, AMessageInADialogStandsInFrontOfIt) {
  Open();
  FillEntry(Entry().View());
  WhenModal([&](QWidget& dialog) {
    emit desk->Events().MessageShown("wait");
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(box->parentWidget(), &dialog);
    Click(*box->button(QMessageBox::Ok));
    QTest::keyClick(&dialog, Qt::Key_Escape);
  });
  Click(Input(Entry().View(), "btnSubmit"));
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

}  // namespace
}  // namespace algo::terminal::desk::tests
