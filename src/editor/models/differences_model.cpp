#include "editor/models/differences_model.h"

#include <QFont>
#include <algorithm>
#include <utility>

namespace fragsmith {

DifferencesModel::DifferencesModel(Bot other, QString other_title,
                                   QObject* parent)
    : KeyedModel(parent),
      other_(std::move(other)),
      other_title_(std::move(other_title)) {}

void DifferencesModel::ShowBot(const Bot& bot) {
  differences_ = CompareBots(bot, other_);
  TakeOver(nullptr, MakeDifferenceRows(bot, other_, differences_));
}

void DifferencesModel::TakeOver(DifferenceRow* parent, DifferenceRows wanted) {
  for (const auto& row : wanted) row->parent = parent;
  std::vector<std::pair<DifferenceRow*, DifferenceRows>> kept_groups;
  ChangeRows(
      IndexOf(parent), parent == nullptr ? rows_ : parent->children,
      std::move(wanted),
      [](const std::unique_ptr<DifferenceRow>& row) { return row->key; },
      [&kept_groups](std::unique_ptr<DifferenceRow>& row,
                     std::unique_ptr<DifferenceRow>& made) {
        if (row->is_group) {
          kept_groups.emplace_back(row.get(), std::move(made->children));
        }
        row->difference = made->difference;
        const bool is_other =
            row->is_equal != made->is_equal || row->cells != made->cells;
        row->is_equal = made->is_equal;
        row->cells = made->cells;
        return is_other;
      });
  for (auto& [group, rows] : kept_groups) TakeOver(group, std::move(rows));
}

int DifferencesModel::GroupAt(const QModelIndex& index) const {
  return index.isValid() ? RowAt(index)->key.group : kNoGroup;
}

bool DifferencesModel::IsGroup(const QModelIndex& index) const {
  return RowAt(index)->is_group;
}

bool DifferencesModel::IsEqual(const QModelIndex& index) const {
  return RowAt(index)->is_equal;
}

std::optional<std::size_t> DifferencesModel::DifferenceAt(
    const QModelIndex& index) const {
  return RowAt(index)->difference;
}

QModelIndex DifferencesModel::index(int row, int column,
                                    const QModelIndex& parent) const {
  if (!hasIndex(row, column, parent)) return {};
  return createIndex(
      row, column, RowsIn(RowAt(parent))[static_cast<std::size_t>(row)].get());
}

QModelIndex DifferencesModel::parent(const QModelIndex& index) const {
  return index.isValid() ? IndexOf(RowAt(index)->parent) : QModelIndex();
}

int DifferencesModel::rowCount(const QModelIndex& parent) const {
  return parent.column() > 0 ? 0
                             : static_cast<int>(RowsIn(RowAt(parent)).size());
}

int DifferencesModel::columnCount(const QModelIndex& /*parent*/) const {
  return kColumnCount;
}

QVariant DifferencesModel::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
  const DifferenceRow& row = *RowAt(index);
  const auto& cell = row.cells.at(static_cast<std::size_t>(index.column()));
  switch (role) {
    case Qt::DisplayRole:
      return cell.text;
    case Qt::FontRole: {
      if (!row.is_group) return {};
      QFont bold;
      bold.setBold(true);
      return bold;
    }
    case kIsDimRole:
      return !row.is_group && (!row.difference || cell.is_missing);
    default:
      return {};
  }
}

QVariant DifferencesModel::headerData(int section, Qt::Orientation orientation,
                                      int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
    return KeyedModel::headerData(section, orientation, role);
  }
  switch (section) {
    case kWhat:
      return tr("What");
    case kThisBot:
      return tr("This bot");
    default:
      return other_title_;
  }
}

const DifferenceRow* DifferencesModel::RowAt(const QModelIndex& index) {
  return static_cast<const DifferenceRow*>(index.constInternalPointer());
}

const DifferenceRows& DifferencesModel::RowsIn(
    const DifferenceRow* parent) const {
  return parent == nullptr ? rows_ : parent->children;
}

QModelIndex DifferencesModel::IndexOf(const DifferenceRow* row) const {
  if (row == nullptr) return {};
  const DifferenceRows& rows = RowsIn(row->parent);
  const auto found =
      std::find_if(rows.begin(), rows.end(),
                   [row](const std::unique_ptr<DifferenceRow>& one) {
                     return one.get() == row;
                   });
  return createIndex(static_cast<int>(found - rows.begin()), kWhat, row);
}

DifferencesFilter::DifferencesFilter(DifferencesModel& model, QObject* parent)
    : QSortFilterProxyModel(parent), model_(model) {
  setRecursiveFilteringEnabled(true);
  setSourceModel(&model);
}

void DifferencesFilter::SetOnlyDifferences(bool is_only) {
  is_only_ = is_only;
  invalidateRowsFilter();
}

bool DifferencesFilter::filterAcceptsRow(int row,
                                         const QModelIndex& parent) const {
  if (!is_only_) return true;
  const QModelIndex index = model_.index(row, DifferencesModel::kWhat, parent);
  return !model_.IsGroup(index) && !model_.IsEqual(index);
}

}  // namespace fragsmith
