#pragma once

// The dialog in which the trader looks at and changes the settings that the module reads. What it applies
// holds at once in the forms that are open.

#include <QDialog>
#include <memory>
#include <vector>

#include "terminal/desk/texts.h"
#include "terminal/host/memory_host.h"

class QDialogButtonBox;
class QGroupBox;

namespace algo::terminal {

class TSettingLine;

class TSettingsPage final : public QDialog {
  Q_OBJECT

 public:
  /// Shows the settings of the host, which outlives the page, in the language of the texts.
  TSettingsPage(TMemoryHost& host, const TTexts& texts, QWidget* parent = nullptr);
  ~TSettingsPage() override;

  /// Shows everything in another language, with no effect on what was changed and is not applied yet.
  void SetTexts(const TTexts& texts);

  /// Stores each setting that was changed and tells the open forms, if there was one. When a setting cannot
  /// be stored, tells why by the host's message and answers false; that one and those after it stay to be
  /// applied.
  bool Apply();

  /// Applies, and closes the page if that went well.
  void accept() override;

 protected:
  /// Shows the settings as they are by then: forms store some of them as well.
  void showEvent(QShowEvent* event) override;

 private:
  void Reload();
  void ShowWhetherChanged();

  TMemoryHost& FHost;
  std::vector<std::unique_ptr<TSettingLine>> FLines;
  std::vector<QGroupBox*> FGroups;
  QDialogButtonBox* FButtons;
};

}  // namespace algo::terminal
