#ifndef FRAGSMITH_EDITOR_MODELS_FINDINGS_MODEL_H_
#define FRAGSMITH_EDITOR_MODELS_FINDINGS_MODEL_H_

#include <QAbstractListModel>
#include <QString>
#include <cstddef>
#include <map>
#include <set>
#include <string_view>
#include <tuple>
#include <vector>

#include "checks/finding.h"
#include "editor/models/keyed_model.h"

namespace fragsmith {

/// Findings as the rows of a list, in their order. Many of one kind, as their
/// id says it, stand in one row until they are unfolded. A finding made anew
/// is the same one where it is of the same kind and at the same place.
class FindingsModel : public KeyedModel<QAbstractListModel> {
  Q_OBJECT

 public:
  using KeyedModel::KeyedModel;

  /// What the button of a row says; empty where nothing can be mended.
  static constexpr int kMendTextRole = Qt::UserRole;

  void ShowFindings(const std::vector<Finding>& findings);

  /// All that is told is of files, which then goes without saying.
  void SetOfFilesAlone() { is_of_files_alone_ = true; }

  /// All of them, those out of sight too.
  const std::vector<Finding>& findings() const { return findings_; }

  /// The one of a row, of a folded row the first.
  const Finding& At(int row) const;
  /// Where a finding stands, if it is there still: alone or folded.
  QModelIndex Find(const Finding& finding) const;

  /// How many there are of a kind when they are so many that they can stand
  /// in one row; otherwise 0.
  std::size_t FoldableCount(std::string_view id) const;
  bool IsFolded(std::string_view id) const;
  void Fold(std::string_view id, bool is_folded);

  /// How a list folds and unfolds, for its help.
  static QString FoldingHelp();

  /// The row tells of several of a kind.
  bool IsRowFolded(int row) const;

  int rowCount(const QModelIndex& parent) const override;
  QVariant data(const QModelIndex& index, int role) const override;

 private:
  struct Row {
    Finding finding;
    /// How many of its kind are told by the row; 0 where it is not folded.
    std::size_t folded = 0;
    /// Which one it is of those of its kind at its place.
    int turn = 0;
  };
  using Key = std::tuple<std::string_view, bool, BotPlace, int>;

  static Key KeyOf(const Row& row);
  static bool Update(Row& row, const Row& wanted);
  void MakeRows();
  QString TextOf(const Finding& finding) const;
  QString FoldedText(const Finding& first, std::size_t count) const;

  bool is_of_files_alone_ = false;
  std::vector<Finding> findings_;
  std::map<std::string_view, std::size_t> counts_;
  std::set<std::string_view> unfolded_;
  std::vector<Row> rows_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_MODELS_FINDINGS_MODEL_H_
