#pragma once

// Everything that the terminal told the trader, with the time of day, newest at the bottom.

#include <QStandardItemModel>
#include <QString>
#include <QTableView>

#include "terminal/desk/empty_note.h"
#include "terminal/desk/panel.h"
#include "terminal/desk/texts.h"

namespace algo::terminal {

class TMessageLog final : public TPanel {
  Q_OBJECT
 public:
  /// The texts outlive the log.
  explicit TMessageLog(const TTexts& texts);

  /// Adds a line; the oldest goes when there are more than can be of use to anybody.
  void Add(const QString& text);

  void Retranslate();

 private:
  const TTexts& FTexts;
  QStandardItemModel FLines;
  QTableView& FTable;
  TEmptyNote* FNote = nullptr;
};

}  // namespace algo::terminal
