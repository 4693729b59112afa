#include "editor/models/library_model.h"

#include <QApplication>
#include <QRegularExpression>
#include <QStringList>
#include <limits>
#include <utility>

#include "chat/vocabulary.h"
#include "editor/toolkit/severity_icon.h"

namespace fragsmith {
namespace {

QString WithoutColors(QString fun_name) {
  static const QRegularExpression kCode(QStringLiteral("\\^[0-7]"));
  return fun_name.remove(kCode);
}

const QString& TextIn(int column, const LibraryBot& bot) {
  switch (column) {
    case LibraryModel::kName:
      return bot.name;
    case LibraryModel::kFunName:
      return bot.fun_name;
    case LibraryModel::kModel:
      return bot.model;
    default:
      return bot.where;
  }
}

}  // namespace

LibraryModel::LibraryModel(std::vector<LibraryBot> bots, IconOf icon_of,
                           QObject* parent)
    : QAbstractTableModel(parent),
      bots_(std::move(bots)),
      icon_of_(std::move(icon_of)) {}

int LibraryModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(bots_.size());
}

int LibraryModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : kColumnCount;
}

void LibraryModel::SetFindings(int row, const FindingCounts& findings) {
  bots_.at(static_cast<std::size_t>(row)).findings = findings;
  emit dataChanged(index(row, kFindings), index(row, kFindings));
}

void LibraryModel::Remove(int row) {
  beginRemoveRows({}, row, row);
  bots_.erase(bots_.begin() + row);
  endRemoveRows();
}

QVariant LibraryModel::FindingsData(const LibraryBot& bot, int role) {
  if (role == kSortRole) {
    // The gravest first; nothing is known of the last.
    return bot.findings ? -bot.findings->Gravity()
                        : std::numeric_limits<qlonglong>::max();
  }
  if (!bot.findings) {
    return role == Qt::AccessibleTextRole ? tr("Not looked at yet")
                                          : QVariant();
  }
  QStyle& style = *QApplication::style();
  switch (role) {
    case Qt::DisplayRole:
      return bot.findings->WorstText();
    case Qt::ToolTipRole:
    case Qt::AccessibleTextRole:
      return bot.findings->Text();
    case Qt::DecorationRole: {
      const std::optional<Severity> worst = bot.findings->Worst();
      if (!worst) return {};
      // The view's icons are faces.
      return SeverityIcon(*worst, style)
          .pixmap(style.pixelMetric(QStyle::PM_SmallIconSize));
    }
    default:
      return {};
  }
}

QVariant LibraryModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const LibraryBot& bot = At(index.row());
  if (role == kWordsRole) {
    return QStringList{bot.name, WithoutColors(bot.fun_name), bot.model,
                       bot.where}
        .join(u' ');
  }
  if (role == Qt::DecorationRole && index.column() == kName) {
    return icon_of_(bot.skin);
  }
  if (index.column() == kFindings) return FindingsData(bot, role);
  const QString& text = TextIn(index.column(), bot);
  switch (role) {
    case Qt::DisplayRole:
      return text;
    case Qt::ToolTipRole:
      return WithoutColors(text).toHtmlEscaped();
    case Qt::AccessibleTextRole:
    case kSortRole:
      return WithoutColors(text);
    default:
      return {};
  }
}

QVariant LibraryModel::headerData(int section, Qt::Orientation orientation,
                                  int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
  switch (section) {
    case kName:
      return tr("Bot");
    case kFunName:
      return QString::fromUtf8(ParameterName(kFunNameField));
    case kModel:
      return tr("Model and skin");
    case kFindings:
      return tr("What the game will do");
    case kWhere:
      return tr("Where");
    default:
      return {};
  }
}

}  // namespace fragsmith
