#include "terminal/desk/window/message_log.h"

#include <QHeaderView>
#include <QTime>

#include "terminal/desk/panels/row_table.h"

namespace algo::terminal::desk::window {

namespace {

constexpr int MaxLines = 1000;

}  // namespace

TMessageLog::TMessageLog(const appearance::TTexts& texts)
    : panels::TPanel("messages", false), FTexts(texts), FLines(0, 2), FTable(*new QTableView) {
  FTable.setObjectName("messageTable");
  FTable.setModel(&FLines);
  FTable.setEditTriggers(QAbstractItemView::NoEditTriggers);
  panels::ShowRows(FTable);
  FTable.horizontalHeader()->setStretchLastSection(true);
  FTable.horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  FNote = new panels::TEmptyNote(FTable);
  setWidget(&FTable);
  Retranslate();
}

void TMessageLog::Add(const QString& text) {
  FLines.appendRow({new QStandardItem(QTime::currentTime().toString(u"HH:mm:ss")), new QStandardItem(text)});
  if (FLines.rowCount() > MaxLines) FLines.removeRow(0);
  FTable.scrollToBottom();
}

void TMessageLog::Retranslate() {
  SetCaption(FTexts.Desk("Messages"));
  Title().Retranslate(FTexts);
  FTable.setAccessibleName(FTexts.Desk("Messages"));
  FNote->setText(FTexts.Desk("No messages yet"));
  FLines.setHorizontalHeaderLabels({FTexts.Desk("Time"), FTexts.Desk("Message")});
}

}  // namespace algo::terminal::desk::window
