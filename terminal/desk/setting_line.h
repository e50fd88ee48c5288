#pragma once

// One setting on the settings page: its name, the widget in which it is changed, and what it is for.

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "terminal/desk/settings_table.h"
#include "terminal/desk/texts.h"

class QGroupBox;
class QLabel;
class QWidget;

namespace algo::terminal {

class TSettingLine {
 public:
  virtual ~TSettingLine();

  const TSettingRow& Row() const { return FRow; }

  /// The text to be stored for what the widget shows.
  virtual std::string Value() const = 0;

  /// Shows the stored text, which from now on counts as unchanged.
  void Show(std::string_view text);

  /// Whether the widget shows something else than what was shown or kept last.
  bool IsChanged() const { return Value() != FKept; }

  /// What the widget shows counts as unchanged from now on.
  void KeepValue() { FKept = Value(); }

  /// Shows name, explanation and choices in the language of the texts, with no effect on the value.
  void SetTexts(const TTexts& texts);

 protected:
  TSettingLine(const TSettingRow& row, QGroupBox& group);

  /// Puts the explanation under the widget, which takes its name from the setting.
  void Explain(QWidget& widget);

  virtual void ShowText(std::string_view text) = 0;
  virtual void ShowName(const QString& name, const TTexts& texts) = 0;

  const TSettingRow& FRow;
  QGroupBox& FGroup;

 private:
  QWidget* FWidget = nullptr;
  QLabel* FWhy = nullptr;
  std::string FKept;
};

/// Makes the line of the setting at the end of the group, which owns its widgets; a setting without `isYes`
/// gets a list, any other a check box. `changed` is called whenever the trader changes it.
std::unique_ptr<TSettingLine> MakeSettingLine(const TSettingRow& row, QGroupBox& group,
                                              std::function<void()> changed);

}  // namespace algo::terminal
