#pragma once

// The orders of the host as a tree for views: children below their parents. It follows the changes of orders.

#include <QAbstractItemModel>
#include <QRgb>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "terminal/desk/appearance/texts.h"
#include "terminal/host/memory_host.h"

namespace algo::terminal::desk::orders {

class TOrderModel final : public QAbstractItemModel {
  Q_OBJECT
 public:
  /// The value of a cell as a number or a text, by which rows are sorted.
  static constexpr int ValueRole = Qt::UserRole;

  /// Both outlive the model.
  TOrderModel(TMemoryHost& host, const appearance::TTexts& texts);
  ~TOrderModel() override;

  /// The order of the row; nullptr for an index of no row. It stays in the store for the life of the host.
  const host::TCustomClientOrder* OrderAt(const QModelIndex& index) const;

  /// Shows all texts anew after a change of language.
  void Retranslate();

  QModelIndex index(int row, int column, const QModelIndex& parent) const override;
  QModelIndex parent(const QModelIndex& child) const override;
  int rowCount(const QModelIndex& parent) const override;
  int columnCount(const QModelIndex& parent) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  struct TNode {
    const host::TCustomClientOrder* order = nullptr;
    TNode* parent = nullptr;
    int row = 0;
    int arrival = 0;  ///< the number of orders before it
    std::vector<std::unique_ptr<TNode>> children;
  };

  void OrderChanged(const host::TCustomClientOrder& order);
  void Insert(const host::TCustomClientOrder& order);
  TNode& ParentOf(const host::TCustomClientOrder& order);
  QRgb SideColor(const host::TCustomClientOrder& order) const;
  QModelIndex IndexOf(const TNode& node, int column) const;
  const TNode& NodeAt(const QModelIndex& index) const;

  TMemoryHost& FHost;
  const appearance::TTexts& FTexts;
  TNode FRoot;
  std::map<std::string, TNode*, std::less<>> FByKey;
  std::map<std::string, TNode*, std::less<>> FByNumber;
};

}  // namespace algo::terminal::desk::orders
