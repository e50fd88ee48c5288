#pragma once

// Every message that the trader was shown, with the time of day, newest at the bottom.

#include <QStandardItemModel>
#include <QString>
#include <QTableView>

#include "terminal/desk/appearance/texts.h"
#include "terminal/desk/panels/empty_note.h"
#include "terminal/desk/panels/panel.h"

namespace algo::terminal::desk::window {

class TMessageLog final : public panels::TPanel {
  Q_OBJECT
 public:
  /// The texts outlive the log.
  explicit TMessageLog(const appearance::TTexts& texts);

  /// Adds a line; beyond what can be of use to anybody, the oldest one goes.
  void Add(const QString& text);

  void Retranslate();

 private:
  const appearance::TTexts& FTexts;
  QStandardItemModel FLines;
  QTableView& FTable;
  panels::TEmptyNote* FNote = nullptr;
};

}  // namespace algo::terminal::desk::window
