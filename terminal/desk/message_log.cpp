#include "terminal/desk/message_log.h"

#include <QHeaderView>
#include <QTime>

namespace algo::terminal {

namespace {

constexpr int LinesKept = 1000;

}  // namespace

TMessageLog::TMessageLog(const TTexts& texts)
    : TPanel("messages", false), FTexts(texts), FLines(0, 2), FTable(*new QTableView) {
  FTable.setObjectName("messageTable");
  FTable.setModel(&FLines);
  FTable.setEditTriggers(QAbstractItemView::NoEditTriggers);
  FTable.setSelectionBehavior(QAbstractItemView::SelectRows);
  FTable.setAlternatingRowColors(true);
  FTable.setTabKeyNavigation(false);
  FTable.setShowGrid(false);
  FTable.verticalHeader()->hide();
  FTable.verticalHeader()->setDefaultSectionSize(FTable.fontMetrics().height() + 6);
  FTable.horizontalHeader()->setStretchLastSection(true);
  FTable.horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  FNote = new TEmptyNote(FTable);
  setWidget(&FTable);
  Retranslate();
}

void TMessageLog::Add(const QString& text) {
  FLines.appendRow({new QStandardItem(QTime::currentTime().toString(u"HH:mm:ss")), new QStandardItem(text)});
  if (FLines.rowCount() > LinesKept) FLines.removeRow(0);
  FTable.scrollToBottom();
}

void TMessageLog::Retranslate() {
  SetCaption(FTexts.Desk("Messages"));
  Title().Retranslate(FTexts);
  FTable.setAccessibleName(FTexts.Desk("Messages"));
  FNote->setText(FTexts.Desk("No messages yet"));
  FLines.setHorizontalHeaderLabels({FTexts.Desk("Time"), FTexts.Desk("Message")});
}

}  // namespace algo::terminal
