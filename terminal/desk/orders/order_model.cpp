#include "terminal/desk/orders/order_model.h"

#include <QColor>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QSize>

#include "plugin/host_contract/look_and_feel_service.h"
#include "terminal/desk/orders/order_columns.h"
#include "terminal/render/qt_text.h"
#include "text/number_text.h"

namespace algo::terminal::desk::orders {

namespace {

const TOrderColumn& ColumnAt(int column) { return OrderColumns()[static_cast<std::size_t>(column)]; }

QVariant AlignmentOf(const TOrderColumn& column) {
  return QVariant((column.isNumber ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
}

QString ShownText(const QVariant& value, int column) {
  if (value.isNull() || !ColumnAt(column).isNumber) return value.toString();
  if (column == ProgressColumn()) return render::ToQt(text::GroupedNumber(value.toDouble() * 100, 0)) + "%";
  constexpr std::int32_t Decimals = 4;
  return render::ToQt(text::GroupedNumber(value.toDouble(), Decimals));
}

}  // namespace

TOrderModel::TOrderModel(TMemoryHost& host, const appearance::TTexts& texts) : FHost(host), FTexts(texts) {
  for (const auto& order : FHost.Orders().All()) Insert(*order);
  FHost.Journal().Listeners().Add([this](const host::TCustomClientOrder& order) { OrderChanged(order); },
                                  this);
}

TOrderModel::~TOrderModel() { FHost.Journal().Listeners().Remove(this); }

const host::TCustomClientOrder* TOrderModel::OrderAt(const QModelIndex& index) const {
  return NodeAt(index).order;
}

void TOrderModel::Retranslate() {
  // Rows stay where they are, and so do selected and expanded ones.
  emit layoutAboutToBeChanged();
  emit layoutChanged();
  emit headerDataChanged(Qt::Horizontal, 0, columnCount({}) - 1);
}

QModelIndex TOrderModel::index(int row, int column, const QModelIndex& parent) const {
  if (!hasIndex(row, column, parent)) return {};
  return createIndex(row, column, NodeAt(parent).children[static_cast<std::size_t>(row)].get());
}

QModelIndex TOrderModel::parent(const QModelIndex& child) const {
  const TNode* parent = NodeAt(child).parent;
  return parent == nullptr || parent == &FRoot ? QModelIndex() : IndexOf(*parent, 0);
}

int TOrderModel::rowCount(const QModelIndex& parent) const {
  return parent.column() > 0 ? 0 : static_cast<int>(NodeAt(parent).children.size());
}

int TOrderModel::columnCount(const QModelIndex& /*parent*/) const {
  return static_cast<int>(OrderColumns().size());
}

// Room above and below a row's text, for the progress bar.
constexpr int RowMargin = 8;

QVariant TOrderModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const TNode& node = NodeAt(index);
  const TOrderColumn& column = ColumnAt(index.column());
  switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole:
      return ShownText(column.value(*node.order, FTexts), index.column());
    case Qt::TextAlignmentRole:
      return AlignmentOf(column);
    case Qt::SizeHintRole:
      return QSize(0, QFontMetrics(QGuiApplication::font()).height() + RowMargin);
    case Qt::ForegroundRole:
      return index.column() == SideColumn() ? QColor::fromRgb(SideColor(*node.order)) : QVariant();
    case ValueRole:
      // Numbers of orders are texts, of which "N10" would come before "N2".
      return index.column() == 0 ? QVariant(node.arrival) : column.value(*node.order, FTexts);
    default:
      return {};
  }
}

QVariant TOrderModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal) return {};
  if (role == Qt::TextAlignmentRole) return AlignmentOf(ColumnAt(section));
  return role == Qt::DisplayRole ? FTexts.Desk(ColumnAt(section).textKey) : QVariant();
}

QRgb TOrderModel::SideColor(const host::TCustomClientOrder& order) const {
  // The colours of the skin, in which the sides show in the forms as well.
  const auto& colors = FHost.Data().colors;
  const auto found = colors.find(order.side == host::SideSell ? host::SellColor : host::BuyColor);
  return found == colors.end() ? 0 : found->second;
}

void TOrderModel::OrderChanged(const host::TCustomClientOrder& order) {
  const auto found = FByKey.find(order.key);
  if (found == FByKey.end()) return Insert(order);
  const TNode& node = *found->second;
  emit dataChanged(IndexOf(node, 0), IndexOf(node, columnCount({}) - 1));
}

void TOrderModel::Insert(const host::TCustomClientOrder& order) {
  TNode& parent = ParentOf(order);
  auto node = std::make_unique<TNode>();
  node->order = &order;
  node->parent = &parent;
  node->row = static_cast<int>(parent.children.size());
  node->arrival = static_cast<int>(FByKey.size());
  beginInsertRows(&parent == &FRoot ? QModelIndex() : IndexOf(parent, 0), node->row, node->row);
  FByKey.emplace(order.key, node.get());
  FByNumber.emplace(order.orderNo, node.get());
  parent.children.push_back(std::move(node));
  endInsertRows();
}

TOrderModel::TNode& TOrderModel::ParentOf(const host::TCustomClientOrder& order) {
  const auto found = order.parentNo.empty() ? FByNumber.end() : FByNumber.find(order.parentNo);
  return found == FByNumber.end() ? FRoot : *found->second;
}

QModelIndex TOrderModel::IndexOf(const TNode& node, int column) const {
  return createIndex(node.row, column, const_cast<TNode*>(&node));
}

const TOrderModel::TNode& TOrderModel::NodeAt(const QModelIndex& index) const {
  return index.isValid() ? *static_cast<const TNode*>(index.internalPointer()) : FRoot;
}

}  // namespace algo::terminal::desk::orders
