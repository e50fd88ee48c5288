#include "terminal/ui_driver/differences.h"

#include "forms/choices.h"
#include "terminal/render/button_views.h"
#include "terminal/render/qt_text.h"

namespace algo::terminal::ui_driver {

namespace {

QString Told(bool yes) { return yes ? QStringLiteral("yes") : QStringLiteral("no"); }

/// What the widget should show of the control's text or caption.
QString TextOf(const forms::TControl& control) {
  const bool hasCaption =
      control.Kind() == forms::TControlKind::Button || control.Kind() == forms::TControlKind::Check;
  if (hasCaption) return render::ToQt(control.Caption()).replace(QLatin1Char('&'), QStringLiteral("&&"));
  // A line edit has no line breaks and no NULs.
  return render::ToQt(control.Text());
}

class TComparison {
 public:
  explicit TComparison(const render::TControlView& view) : FView(view) {}

  void Compare(const char* what, const QString& shown, const QString& held) {
    if (shown == held) return;
    FDifferences << QStringLiteral("%1 shows %2 '%3' instead of '%4'")
                        .arg(render::ToQt(FView.Control().Name()), QLatin1String(what), shown, held);
  }

  const QStringList& Differences() const { return FDifferences; }

 private:
  const render::TControlView& FView;
  QStringList FDifferences;
};

QStringList DifferencesOf(const render::TControlView& view) {
  const forms::TControl& control = view.Control();
  TComparison comparison(view);
  comparison.Compare("text", view.ShownText(), TextOf(control));
  const bool showing = control.Showing();
  comparison.Compare("visible", Told(view.Input().isVisible()), Told(showing));
  const bool comboReadOnly = control.Kind() == forms::TControlKind::Combo && control.ReadOnly();
  const bool usable = control.Enabled() && control.Item()->Usable() && !comboReadOnly;
  comparison.Compare("enabled", Told(view.Input().isEnabled()), Told(usable));
  if (const auto* check = dynamic_cast<const forms::TCheckBox*>(&control)) {
    comparison.Compare("checked", Told(static_cast<const render::TCheckView&>(view).Checked()),
                       Told(check->Checked()));
  }
  if (const auto* speed = dynamic_cast<const forms::TSpeedButton*>(&control)) {
    comparison.Compare("pressed", Told(static_cast<const render::TButtonView&>(view).Pressed()),
                       Told(speed->Pressed()));
  }
  if (const auto* editor = dynamic_cast<const forms::TEditor*>(&control);
      editor != nullptr && !editor->SelectedText().empty()) {
    comparison.Compare("selected", view.SelectedText(), render::ToQt(editor->SelectedText()));
  }
  return comparison.Differences();
}

}  // namespace

QStringList DifferencesOf(const render::TFrameView& view) {
  QStringList differences;
  const auto frame = view.Frame();
  if (!frame) return differences;
  for (const auto& control : frame->Controls()) {
    const render::TControlView* shown = view.Find(*control);
    if (shown != nullptr) {
      differences += DifferencesOf(*shown);
    } else if (control->Showing()) {
      differences << QStringLiteral("%1 has no widget").arg(render::ToQt(control->Name()));
    }
  }
  const forms::TControl* focused = frame->Focused();
  if (focused != nullptr && view.isActiveWindow() && focused->CanFocus() &&
      !view.Find(*focused)->Input().hasFocus()) {
    differences << QStringLiteral("%1 does not have the focus").arg(render::ToQt(focused->Name()));
  }
  return differences;
}

}  // namespace algo::terminal::ui_driver
