#ifndef FRAGSMITH_EDITOR_MODELS_BOT_PLACES_MODEL_H_
#define FRAGSMITH_EDITOR_MODELS_BOT_PLACES_MODEL_H_

#include <QAbstractListModel>
#include <QSortFilterProxyModel>
#include <QString>
#include <QStringList>
#include <set>
#include <vector>

#include "model/bot.h"
#include "model/bot_place.h"

namespace fragsmith {

/// All places in a bot that can be gone to: identity fields, parameters by
/// their pages, chat types and their lines. The bot is copied: later edits
/// take no part.
class BotPlacesModel : public QAbstractListModel {
 public:
  explicit BotPlacesModel(const Bot& bot, QObject* parent = nullptr);

  const BotPlace& PlaceAt(const QModelIndex& index) const;

  /// Whether the words, in small letters, are all in the name, the text or
  /// the key in the game's files.
  bool HasWords(int row, const QStringList& words) const;

  int rowCount(const QModelIndex& parent) const override;
  QVariant data(const QModelIndex& index, int role) const override;

 private:
  struct Entry {
    QString text;    ///< As it is listed.
    QString sought;  ///< In what the words are looked for, in small letters.
    BotPlace place;
  };

  void CollectParameters();
  void CollectChats(const Bot& bot);
  const Entry& EntryAt(int row) const;

  std::vector<Entry> entries_;
};

/// The first places that have all words of a text, no more than help.
class WordsFilter : public QSortFilterProxyModel {
 public:
  explicit WordsFilter(BotPlacesModel& places, QObject* parent = nullptr);

  void SetText(const QString& text);

 protected:
  bool filterAcceptsRow(int row, const QModelIndex& parent) const override;

 private:
  const BotPlacesModel& places_;
  std::set<int> matches_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_MODELS_BOT_PLACES_MODEL_H_
