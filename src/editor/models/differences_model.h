#ifndef FRAGSMITH_EDITOR_MODELS_DIFFERENCES_MODEL_H_
#define FRAGSMITH_EDITOR_MODELS_DIFFERENCES_MODEL_H_

#include <QAbstractItemModel>
#include <QSortFilterProxyModel>
#include <QString>
#include <cstddef>
#include <optional>
#include <vector>

#include "editor/models/difference_rows.h"
#include "editor/models/keyed_model.h"
#include "model/bot.h"
#include "session/bot_difference.h"

namespace fragsmith {

/// A bot beside another one as a tree: the identity, the pages and the chat
/// types with all that is in them, equal or not.
class DifferencesModel : public KeyedModel<QAbstractItemModel> {
  Q_OBJECT

 public:
  enum Column { kWhat = 0, kThisBot = 1, kOtherBot = 2, kColumnCount = 3 };
  /// True for a text that tells less than others: equal, or nothing there.
  static constexpr int kIsDimRole = Qt::UserRole;

  DifferencesModel(Bot other, QString other_title, QObject* parent = nullptr);

  /// Compares anew.
  void ShowBot(const Bot& bot);

  const Bot& other() const { return other_; }
  /// Of the bot, at the left, to the other one.
  const std::vector<BotDifference>& differences() const { return differences_; }

  /// The group that a row is or is in; kNoGroup for an invalid index.
  int GroupAt(const QModelIndex& index) const;
  bool IsGroup(const QModelIndex& index) const;
  bool IsEqual(const QModelIndex& index) const;
  /// The index of a row among the differences, if it is one by itself.
  std::optional<std::size_t> DifferenceAt(const QModelIndex& index) const;

  QModelIndex index(int row, int column,
                    const QModelIndex& parent) const override;
  QModelIndex parent(const QModelIndex& index) const override;
  int rowCount(const QModelIndex& parent) const override;
  int columnCount(const QModelIndex& parent) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation,
                      int role) const override;

 private:
  static const DifferenceRow* RowAt(const QModelIndex& index);
  const DifferenceRows& RowsIn(const DifferenceRow* parent) const;
  QModelIndex IndexOf(const DifferenceRow* row) const;
  void TakeOver(DifferenceRow* parent, DifferenceRows wanted);

  const Bot other_;
  const QString other_title_;
  std::vector<BotDifference> differences_;
  DifferenceRows rows_;
};

/// Leaves out what is equal, and groups with nothing else.
class DifferencesFilter : public QSortFilterProxyModel {
 public:
  explicit DifferencesFilter(DifferencesModel& model,
                             QObject* parent = nullptr);

  void SetOnlyDifferences(bool is_only);

 protected:
  bool filterAcceptsRow(int row, const QModelIndex& parent) const override;

 private:
  const DifferencesModel& model_;
  bool is_only_ = true;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_MODELS_DIFFERENCES_MODEL_H_
