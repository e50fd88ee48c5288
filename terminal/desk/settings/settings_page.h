#pragma once

// The dialog in which the trader sees and changes the settings that the module reads. What is applied holds
// at once in the forms that are open.

#include <QDialog>
#include <memory>
#include <vector>

#include "terminal/desk/appearance/texts.h"
#include "terminal/host/memory_host.h"

class QDialogButtonBox;
class QGroupBox;

namespace algo::terminal::desk::settings {

class TSettingLine;

class TSettingsPage final : public QDialog {
  Q_OBJECT

 public:
  /// Shows the settings of the host, which outlives the page, in the language of the texts.
  TSettingsPage(TMemoryHost& host, const appearance::TTexts& texts, QWidget* parent = nullptr);
  ~TSettingsPage() override;

  /// Shows everything in another language, with no effect on what was changed and is not applied yet.
  void SetTexts(const appearance::TTexts& texts);

  /// Stores each setting that was changed and, if there was one, tells the open forms. When a setting cannot
  /// be stored, shows why by the host's message and answers false; that one and those after it remain to be
  /// applied.
  bool Apply();

  /// Applies, and closes the page if that went well.
  void accept() override;

 protected:
  /// Reads the settings anew: forms store some of them as well.
  void showEvent(QShowEvent* event) override;

 private:
  void Reload();
  void UpdateApplyButton();

  TMemoryHost& FHost;
  std::vector<std::unique_ptr<TSettingLine>> FLines;
  std::vector<QGroupBox*> FGroups;
  QDialogButtonBox* FButtons;
};

}  // namespace algo::terminal::desk::settings
