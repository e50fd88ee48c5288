#include "terminal/desk/panels/title_buttons.h"

#include <QHBoxLayout>
#include <QToolButton>

namespace algo::terminal::desk::panels {

TTitleButtons::TTitleButtons(QWidget& parent) : QWidget(&parent) {
  setObjectName("viewButtons");
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(2);
  hide();
}

void TTitleButtons::Show(const std::vector<TTitleButton>& buttons) {
  for (QToolButton* old : findChildren<QToolButton*>(Qt::FindDirectChildrenOnly)) {
    layout()->removeWidget(old);
    // Out of sight and reach at once, but deleted only after the click that may have led here.
    old->hide();
    old->setObjectName({});
    old->deleteLater();
  }
  for (const TTitleButton& button : buttons) Add(button);
  setVisible(!buttons.empty());
}

void TTitleButtons::Add(const TTitleButton& button) {
  auto* made = new QToolButton(this);
  const QString id = QString::number(button.id);
  made->setObjectName("viewButton" + id);
  made->setAutoRaise(true);
  made->setFocusPolicy(Qt::TabFocus);
  made->setToolTip(button.hint);
  made->setAccessibleName(button.hint.isEmpty() ? id : button.hint);
  if (button.icon.isNull()) {
    made->setText(made->accessibleName());
  } else {
    made->setIcon(button.icon);
  }
  layout()->addWidget(made);
  connect(made, &QToolButton::clicked, this, [this, clicked = button.id] { emit Clicked(clicked); });
}

}  // namespace algo::terminal::desk::panels
