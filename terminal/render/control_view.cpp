#include "terminal/render/control_view.h"

#include "forms/layout.h"
#include "terminal/render/button_views.h"
#include "terminal/render/combo_view.h"
#include "terminal/render/date_view.h"
#include "terminal/render/qt_toolkit.h"
#include "terminal/render/spin_view.h"
#include "terminal/render/text_view.h"

namespace algo::terminal::render {

TControlView::~TControlView() = default;

void TControlView::Refresh() {
  QWidget& input = Input();
  Widget().setEnabled(FControl.Enabled() && (FControl.Item() == nullptr || FControl.Item()->Usable()));
  const QString hint = ToQt(FControl.Hint());
  if (input.toolTip() != hint) input.setToolTip(hint);
  Show();
}

std::unique_ptr<TControlView> MakeControlView(forms::TControl& control, const TFrameInput& input,
                                              const TEditorAssist& assist, QWidget& parent) {
  std::unique_ptr<TControlView> view;
  switch (control.Kind()) {
    case forms::TControlKind::Edit:
      view = std::make_unique<TTextView>(static_cast<forms::TTextEdit&>(control), input, assist, parent);
      break;
    case forms::TControlKind::Spin:
      view = std::make_unique<TSpinView>(static_cast<forms::TSpinEdit&>(control), input, parent);
      break;
    case forms::TControlKind::Date:
      view = std::make_unique<TDateView>(static_cast<forms::TDateEdit&>(control), input, parent);
      break;
    case forms::TControlKind::Combo:
      view = std::make_unique<TComboView>(static_cast<forms::TComboBox&>(control), input, parent);
      break;
    case forms::TControlKind::Check:
      view = std::make_unique<TCheckView>(static_cast<forms::TCheckBox&>(control), input, parent);
      break;
    case forms::TControlKind::Button:
      view = std::make_unique<TButtonView>(static_cast<forms::TButton&>(control), input, parent);
      break;
  }
  view->Widget().setObjectName(ToQt(control.Name()));
  // The frame decides what a click does, so a click does not move the focus by itself.
  view->Input().setFocusPolicy(Qt::TabFocus);
  return view;
}

}  // namespace algo::terminal::render
