#include "editor/models/findings_model.h"

#include <QApplication>
#include <algorithm>
#include <utility>

#include "checks/bot_checks.h"
#include "checks/file_checks.h"
#include "editor/toolkit/severity_icon.h"

namespace fragsmith {
namespace {

/// So many of one kind are told one by one.
constexpr std::size_t kMaxAlone = 2;

}  // namespace

QString FindingsModel::TextOf(const Finding& finding) const {
  const QString text = QString::fromUtf8(finding.text);
  const auto* const file = std::get_if<FilePlace>(&finding.place);
  const QString where = QString::fromUtf8(
      file != nullptr ? FilePlaceText(*file) : ChatPlaceText(finding.place));
  if (file != nullptr && !is_of_files_alone_) {
    return where.isEmpty() ? tr("In the files: %1").arg(text)
                           : tr("In the files, %1: %2").arg(where, text);
  }
  return where.isEmpty() ? text : where + QStringLiteral(": ") + text;
}

QString FindingsModel::FoldedText(const Finding& first,
                                  std::size_t count) const {
  return tr("%1 (And %2 more of this kind.)")
      .arg(TextOf(first), QString::number(count - 1));
}

void FindingsModel::ShowFindings(const std::vector<Finding>& findings) {
  findings_ = findings;
  counts_.clear();
  for (const Finding& finding : findings_) ++counts_[finding.id];
  MakeRows();
}

const Finding& FindingsModel::At(int row) const {
  return rows_.at(static_cast<std::size_t>(row)).finding;
}

QModelIndex FindingsModel::Find(const Finding& finding) const {
  const auto found =
      std::find_if(rows_.begin(), rows_.end(), [&finding](const Row& row) {
        return row.finding.id == finding.id &&
               (row.folded > 0 || row.finding.place == finding.place);
      });
  return found == rows_.end() ? QModelIndex()
                              : index(static_cast<int>(found - rows_.begin()));
}

std::size_t FindingsModel::FoldableCount(std::string_view id) const {
  const auto found = counts_.find(id);
  const std::size_t count = found == counts_.end() ? 0 : found->second;
  return count > kMaxAlone ? count : 0;
}

bool FindingsModel::IsFolded(std::string_view id) const {
  return FoldableCount(id) > 0 && !unfolded_.contains(id);
}

void FindingsModel::Fold(std::string_view id, bool is_folded) {
  if (is_folded) {
    unfolded_.erase(id);
  } else {
    unfolded_.insert(id);
  }
  MakeRows();
}

QString FindingsModel::FoldingHelp() {
  return tr(
      "The right arrow key or a double click unfolds what stands in one row, "
      "the left one folds it again.");
}

bool FindingsModel::IsRowFolded(int row) const {
  return rows_.at(static_cast<std::size_t>(row)).folded > 0;
}

int FindingsModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

QVariant FindingsModel::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
  const Row& row = rows_[static_cast<std::size_t>(index.row())];
  switch (role) {
    case Qt::DisplayRole:
      return row.folded > 0 ? FoldedText(row.finding, row.folded)
                            : TextOf(row.finding);
    case Qt::DecorationRole:
      return SeverityIcon(row.finding.severity, *QApplication::style());
    case kMendTextRole:
      if (row.finding.mends.empty()) return {};
      if (row.folded > 0) return tr("Mend all %1").arg(row.folded);
      return row.finding.mends.size() > 1
                 ? tr("Mend...")
                 : QString::fromUtf8(row.finding.mends.front().title);
    case Qt::ToolTipRole:
      return row.folded > 0 ? FoldingHelp() : QVariant();
    default:
      return {};
  }
}

FindingsModel::Key FindingsModel::KeyOf(const Row& row) {
  const bool is_folded = row.folded > 0;
  return {row.finding.id, is_folded, is_folded ? BotPlace() : row.finding.place,
          row.turn};
}

bool FindingsModel::Update(Row& row, const Row& wanted) {
  const bool is_other = row.folded != wanted.folded ||
                        row.finding.severity != wanted.finding.severity ||
                        row.finding.text != wanted.finding.text ||
                        row.finding.place != wanted.finding.place;
  row = wanted;
  return is_other;
}

void FindingsModel::MakeRows() {
  std::vector<Row> rows;
  std::set<std::string_view> told;
  std::map<std::pair<std::string_view, BotPlace>, int> turns;
  for (const Finding& finding : findings_) {
    if (!IsFolded(finding.id)) {
      rows.push_back(
          {.finding = finding, .turn = turns[{finding.id, finding.place}]++});
    } else if (told.insert(finding.id).second) {
      rows.push_back({.finding = finding, .folded = counts_[finding.id]});
    }
  }
  ChangeRows({}, rows_, std::move(rows), KeyOf, Update);
}

}  // namespace fragsmith
