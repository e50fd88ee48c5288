#include "terminal/render/combo_view.h"

#include <QPointer>
#include <QSignalBlocker>
#include <QWheelEvent>

#include "forms/choices.h"

namespace algo::terminal::render {

namespace {

class TBox final : public QComboBox {
 public:
  using QComboBox::QComboBox;

 protected:
  void wheelEvent(QWheelEvent* event) override {
    // Scrolling past a list must not pick from it.
    if (hasFocus()) {
      QComboBox::wheelEvent(event);
    } else {
      event->ignore();
    }
  }
};

}  // namespace

TComboView::TComboView(forms::TComboBox& control, const TFrameInput& input, QWidget& parent)
    : TControlView(control), FBox(*new TBox(&parent)) {
  FBox.setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  FBox.setMinimumContentsLength(10);
  QObject::connect(&FBox, &QComboBox::activated, &FBox, [this, &control, &input](int index) {
    const QPointer<QComboBox> alive(&FBox);
    input.Pick(control, index);
    // A pick that was not taken must not stay visible.
    if (alive && input.Frame()) Refresh();
  });
}

void TComboView::Show() {
  const auto& control = static_cast<const forms::TComboBox&>(Control());
  const QSignalBlocker silent(FBox);
  ShowItems(control);
  if (FBox.currentIndex() != control.Index()) FBox.setCurrentIndex(control.Index());
  if (control.ReadOnly()) FBox.setEnabled(false);
}

void TComboView::ShowItems(const forms::TComboBox& control) {
  const auto& items = control.Items();
  bool same = FBox.count() == control.Count();
  for (int i = 0; same && i < FBox.count(); ++i) {
    same = FBox.itemText(i) == ToQt(items[static_cast<std::size_t>(i)]);
  }
  if (same) return;
  FBox.hidePopup();
  FBox.clear();
  for (const std::string& item : items) FBox.addItem(ToQt(item));
}

}  // namespace algo::terminal::render
