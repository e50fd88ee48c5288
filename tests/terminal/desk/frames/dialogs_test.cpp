// Modal dialogs of the module.

#include "plugin/host_contract/view_functions.h"
#include "tests/terminal/desk/desk_fixture.h"

namespace algo::terminal::desk::tests {
namespace {

struct TDialogsTest : TDeskTest {};

TEST_F(TDialogsTest, EscapeInTheConfirmationSendsNothing) {
  Open();
  FillEntry(Entry().View());
  WhenModal([&](QWidget& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
  Click(Input(Entry().View(), "btnSubmit"));
  EXPECT_TRUE(Orders().empty());
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(TDialogsTest, EnterInADialogPressesNoButtonByItself) {
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

TEST_F(TDialogsTest, ClosingTheProgramDismissesADialogFirst) {
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

TEST_F(TDialogsTest, DialogsNest) {
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

}  // namespace
}  // namespace algo::terminal::desk::tests
