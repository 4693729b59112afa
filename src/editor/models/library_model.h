#ifndef FRAGSMITH_EDITOR_MODELS_LIBRARY_MODEL_H_
#define FRAGSMITH_EDITOR_MODELS_LIBRARY_MODEL_H_

#include <QAbstractTableModel>
#include <QIcon>
#include <QString>
#include <functional>
#include <optional>
#include <vector>

#include "editor/toolkit/finding_counts.h"
#include "install/program/model_catalogue.h"

namespace fragsmith {

/// A bot that can be loaded, as the library shows it.
struct LibraryBot {
  QString name;
  QString fun_name;  ///< With its colour codes; the name where none is known.
  QString model;     ///< "Sarge/Default"; empty where it is not known.
  QString where;     ///< The package or folder.
  const SkinEntry* skin = nullptr;             ///< For the face; null for none.
  bool has_own_package = false;                ///< By the names of both.
  std::optional<FindingCounts> findings = {};  ///< Once it was checked.
};

/// The bots of the library, a row for each.
class LibraryModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum Column { kName, kFunName, kModel, kFindings, kWhere, kColumnCount };

  /// Of the first column: what a filter looks at.
  static constexpr int kWordsRole = Qt::UserRole;

  /// What rows are sorted by.
  static constexpr int kSortRole = Qt::UserRole + 1;

  /// Of the skin, which is null for a bot without one.
  using IconOf = std::function<QIcon(const SkinEntry*)>;

  LibraryModel(std::vector<LibraryBot> bots, IconOf icon_of,
               QObject* parent = nullptr);

  int rowCount(const QModelIndex& parent) const override;
  int columnCount(const QModelIndex& parent) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation,
                      int role) const override;

  void SetFindings(int row, const FindingCounts& findings);
  void Remove(int row);

  const LibraryBot& At(int row) const {
    return bots_.at(static_cast<std::size_t>(row));
  }

 private:
  static QVariant FindingsData(const LibraryBot& bot, int role);

  std::vector<LibraryBot> bots_;
  IconOf icon_of_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_MODELS_LIBRARY_MODEL_H_
