#include "editor/models/library_model.h"

#include <QRegularExpression>
#include <QStringList>
#include <array>
#include <utility>

namespace fragsmith {
namespace {

QString WithoutColors(QString fun_name) {
  static const QRegularExpression kCode(QStringLiteral("\\^[0-7]"));
  return fun_name.remove(kCode);
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
  const std::array texts = {&bot.name, &bot.fun_name, &bot.model, &bot.where};
  const QString& text = *texts.at(static_cast<std::size_t>(index.column()));
  switch (role) {
    case Qt::DisplayRole:
      return text;
    case Qt::ToolTipRole:
      return WithoutColors(text).toHtmlEscaped();
    case Qt::AccessibleTextRole:
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
      return tr("Fun name");
    case kModel:
      return tr("Model and skin");
    case kWhere:
      return tr("Where");
    default:
      return {};
  }
}

}  // namespace fragsmith
