#include "terminal/render/button_views.h"

#include <QCheckBox>
#include <QColor>
#include <QPushButton>
#include <cmath>

#include "terminal/render/qt_toolkit.h"

namespace algo::terminal::render {

namespace {

/// Shows the model's state; a press only requests a change.
template <class TQtButton>
class TModelDriven final : public TQtButton {
 public:
  using TQtButton::TQtButton;

 protected:
  void nextCheckState() override {}
};

template <class TQtButton>
QAbstractButton& MakeButton(forms::TControl& control, const TFrameInput& input, QWidget& parent) {
  auto* button = new TModelDriven<TQtButton>(&parent);
  QObject::connect(button, &QAbstractButton::clicked, button, [&control, &input] { input.Click(control); });
  return *button;
}

/// The slot of a button's colours that skins set.
constexpr std::int32_t FaceSlot = 7;

/// Black or white, whichever is easier to read on `face` (the eye weighs green most).
QColor TextOn(const QColor& face) {
  constexpr double MiddleLuminance = 0.179;  // where black and white have the same contrast (WCAG 2)
  const auto linear = [](double channel) {
    return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
  };
  const double luminance =
      0.2126 * linear(face.redF()) + 0.7152 * linear(face.greenF()) + 0.0722 * linear(face.blueF());
  return luminance > MiddleLuminance ? Qt::black : Qt::white;
}

void ShowCaption(QAbstractButton& button, const forms::TControl& control) {
  // An ampersand in a caption is an ampersand, not a key.
  const QString caption = ToQt(control.Caption()).replace(QLatin1Char('&'), QStringLiteral("&&"));
  if (button.text() != caption) button.setText(caption);
  if (control.Font() != forms::TFont{}) button.setFont(DesktopFont(control.Font()));
}

}  // namespace

TCheckView::TCheckView(forms::TCheckBox& control, const TFrameInput& input, QWidget& parent)
    : TControlView(control), FBox(MakeButton<QCheckBox>(control, input, parent)) {
  FBox.setCheckable(true);
}

void TCheckView::Show() {
  ShowCaption(FBox, Control());
  FBox.setChecked(static_cast<const forms::TCheckBox&>(Control()).Checked());
}

TButtonView::TButtonView(forms::TButton& control, const TFrameInput& input, QWidget& parent)
    : TControlView(control), FButton(MakeButton<QPushButton>(control, input, parent)) {
  FButton.setCheckable(dynamic_cast<const forms::TSpeedButton*>(&control) != nullptr);
  static_cast<QPushButton&>(FButton).setAutoDefault(false);
}

void TButtonView::Show() {
  const auto& control = static_cast<const forms::TButton&>(Control());
  const auto* speed = dynamic_cast<const forms::TSpeedButton*>(&control);
  const bool down = speed != nullptr && speed->Pressed();
  ShowCaption(FButton, control);
  FButton.setChecked(down);
  ShowColor(control, speed == nullptr || down);
}

void TButtonView::ShowColor(const forms::TButton& control, bool down) {
  const auto found = control.Colors().find(FaceSlot);
  QString style;
  if (found != control.Colors().end()) {
    const QColor face = QColor::fromRgb(found->second);
    // The chosen side is filled; the other one shows its colour without standing out.
    style = down ? QStringLiteral(
                       "QPushButton{background:%1;color:%2;border:2px solid %1;border-radius:4px;"
                       "padding:3px}QPushButton:focus{border-color:palette(highlight)}")
                       .arg(face.name(), TextOn(face).name())
                 : QStringLiteral(
                       "QPushButton{background:palette(button);color:palette(button-text);border:2px "
                       "solid %1;border-radius:4px;padding:3px}QPushButton:focus{border-color:"
                       "palette(highlight)}")
                       .arg(face.name());
  }
  if (FButton.styleSheet() != style) FButton.setStyleSheet(style);
}

}  // namespace algo::terminal::render
