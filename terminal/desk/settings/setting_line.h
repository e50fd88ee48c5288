#pragma once

// One setting on the settings page: its name, the widget in which it is changed, and what it is for.

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "terminal/desk/appearance/texts.h"
#include "terminal/desk/settings/settings_table.h"

class QGroupBox;
class QLabel;
class QWidget;

namespace algo::terminal::desk::settings {

class TSettingLine {
 public:
  virtual ~TSettingLine();

  const TSettingRow& Row() const { return FRow; }

  /// The text to be stored for what the widget shows.
  virtual std::string Value() const = 0;

  /// Shows the stored text, which from now on counts as unchanged.
  void Show(std::string_view text);

  /// Whether the widget shows something other than what was last shown or stored.
  bool IsChanged() const { return Value() != FStored; }

  /// What the widget shows is stored, and counts as unchanged from now on.
  void MarkStored() { FStored = Value(); }

  /// Shows name, explanation and choices in the language of the texts, with no effect on the value.
  void SetTexts(const appearance::TTexts& texts);

 protected:
  TSettingLine(const TSettingRow& row, QGroupBox& group);

  /// Adds the explanation below the widget, which takes its name from the setting.
  void AddExplanation(QWidget& widget);

  virtual void ShowText(std::string_view text) = 0;
  virtual void ShowName(const QString& name, const appearance::TTexts& texts) = 0;

  const TSettingRow& FRow;
  QGroupBox& FGroup;

 private:
  QWidget* FWidget = nullptr;
  QLabel* FExplanation = nullptr;
  std::string FStored;
};

/// Makes the line of the setting at the end of the group, which owns its widgets; a setting without `isYes`
/// gets a list, any other a check box. `changed` is called whenever the trader changes it.
std::unique_ptr<TSettingLine> MakeSettingLine(const TSettingRow& row, QGroupBox& group,
                                              std::function<void()> changed);

}  // namespace algo::terminal::desk::settings
