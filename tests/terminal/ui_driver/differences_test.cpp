// Every way in which a widget can show something other than its control holds is found.

#include "terminal/ui_driver/differences.h"

#include <QAbstractButton>
#include <QLineEdit>
#include <QSignalBlocker>

#include "tests/terminal/render/rendered_form.h"

namespace algo::terminal::ui_driver {
namespace {

using TDifferences = render::TRenderedForm;

TEST_F(TDifferences, AViewThatShowsItsFrameHasNone) {
  frame->account.SetText("A-1001");
  frame->box.SetChecked(true);
  frame->button.SetCaption("Buy & Sell");
  frame->quantity.SetEnabled(false);
  frame->kind.SetVisible(false);
  EXPECT_EQ(DifferencesOf(*view), QStringList());
}

TEST_F(TDifferences, AnotherTextIsNamed) {
  frame->account.SetText("A-1001");
  auto& line = static_cast<QLineEdit&>(Input(frame->account));
  const QSignalBlocker silent(line);
  line.setText("A-1002");
  EXPECT_EQ(DifferencesOf(*view), QStringList("edtAccount shows text 'A-1002' instead of 'A-1001'"));
}

TEST_F(TDifferences, AWidgetThatIsHiddenOrDisabledByItselfIsNamed) {
  Input(frame->kind).hide();
  Input(frame->box).setEnabled(false);
  EXPECT_EQ(DifferencesOf(*view), (QStringList{"cmbKind shows visible 'no' instead of 'yes'",
                                               "cbBox shows enabled 'no' instead of 'yes'"}));
}

TEST_F(TDifferences, ABoxOrAButtonInAnotherStateIsNamed) {
  static_cast<QAbstractButton&>(Input(frame->box)).setChecked(true);
  static_cast<QAbstractButton&>(Input(frame->buy)).setChecked(true);
  EXPECT_EQ(DifferencesOf(*view), (QStringList{"cbBox shows checked 'yes' instead of 'no'",
                                               "btnBuy shows pressed 'yes' instead of 'no'"}));
}

TEST_F(TDifferences, AFocusThatIsElsewhereIsNamed) {
  GoTo(frame->account);
  // A focus that leaves the window is left where it was in the frame.
  Input(frame->account).clearFocus();
  ASSERT_TRUE(frame->account.Focused());
  EXPECT_EQ(DifferencesOf(*view), QStringList("edtAccount does not have the focus"));
}

TEST_F(TDifferences, AViewWithoutItsFrameHasNone) {
  frame.reset();
  EXPECT_EQ(DifferencesOf(*view), QStringList());
}

}  // namespace
}  // namespace algo::terminal::ui_driver
