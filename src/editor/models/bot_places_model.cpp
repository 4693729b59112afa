#include "editor/models/bot_places_model.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>

#include "chat/chat_catalogue.h"
#include "chat/vocabulary.h"
#include "editor/toolkit/game_text_conversion.h"
#include "editor/toolkit/page_table.h"
#include "model/characteristic_catalogue.h"
#include "support/text.h"

namespace fragsmith {
namespace {

/// More are of no help in a list, and a bad file may have millions of lines.
constexpr std::size_t kMaxMatches = 200;
constexpr int kMaxLineLetters = 120;

}  // namespace

BotPlacesModel::BotPlacesModel(const Bot& bot, QObject* parent)
    : QAbstractListModel(parent) {
  CollectParameters();
  CollectChats(bot);
}

void BotPlacesModel::CollectParameters() {
  const auto add = [this](ParameterId parameter, const QString& where,
                          std::string_view key) {
    Entry entry;
    entry.text = QString::fromUtf8(ParameterTitle(parameter));
    if (!where.isEmpty()) entry.text += QStringLiteral(" - ") + where;
    entry.sought = (entry.text + u' ' + QString::fromUtf8(key)).toLower();
    entry.place = parameter;
    entries_.push_back(std::move(entry));
  };
  for (const ParameterId field :
       {kNameField, kFunNameField, kGenderField, kRailColorField, kModelField,
        kSkinField, kVersionMajorField, kVersionMinorField, kCommentField,
        kArenaLordField}) {
    add(field, {}, {});
  }
  for (const PageRow& page : kPages) {
    for (const FrameRow& frame : page.frames) {
      for (const ControlRow& control : frame.controls) {
        if (control.IsEmptyPlace()) continue;
        const std::string_view key = TrimBlanksAndTabs(
            kCatalogue.at(static_cast<std::size_t>(control.index)));
        if (!control.HasLevels()) {
          add(ParameterId(control.index), QString::fromUtf8(page.tab_caption),
              key);
          continue;
        }
        for (const Level level : kLevels) {
          add(ParameterId(level, control.index),
              QString::fromUtf8(page.tab_caption), key);
        }
      }
    }
  }
}

void BotPlacesModel::CollectChats(const Bot& bot) {
  for (const ChatTypeId type : kAllChatTypes) {
    const ChatType& row = ChatTypeAt(type);
    const QString caption = QString::fromUtf8(row.Caption);
    ChatPlace place = {.type = type, .line = std::nullopt};
    entries_.push_back({QStringLiteral("%1 - Chat texts").arg(caption),
                        (caption + u' ' + QString::fromUtf8(row.Key)).toLower(),
                        place});
    for (const std::string& line : bot.ChatLines(type)) {
      place.line = place.line ? place.line->Next() : ChatLineIndex();
      if (line.empty()) continue;
      const QString text =
          ToQString(line.substr(0, static_cast<std::size_t>(kMaxLineLetters)));
      entries_.push_back({QStringLiteral("%1: %2").arg(caption, text),
                          ToQString(line).toLower(), place});
    }
  }
}

const BotPlace& BotPlacesModel::PlaceAt(const QModelIndex& index) const {
  return EntryAt(index.row()).place;
}

bool BotPlacesModel::HasWords(int row, const QStringList& words) const {
  const QString& sought = EntryAt(row).sought;
  return std::all_of(
      words.begin(), words.end(),
      [&sought](const QString& word) { return sought.contains(word); });
}

const BotPlacesModel::Entry& BotPlacesModel::EntryAt(int row) const {
  return entries_.at(static_cast<std::size_t>(row));
}

int BotPlacesModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(entries_.size());
}

QVariant BotPlacesModel::data(const QModelIndex& index, int role) const {
  if (role != Qt::DisplayRole ||
      !checkIndex(index, CheckIndexOption::IndexIsValid)) {
    return {};
  }
  return EntryAt(index.row()).text;
}

WordsFilter::WordsFilter(BotPlacesModel& places, QObject* parent)
    : QSortFilterProxyModel(parent), places_(places) {
  SetText({});
  setSourceModel(&places);
}

void WordsFilter::SetText(const QString& text) {
  const QStringList words = text.toLower().split(u' ', Qt::SkipEmptyParts);
  matches_.clear();
  for (int row = 0; row < places_.rowCount({}) && matches_.size() < kMaxMatches;
       ++row) {
    if (places_.HasWords(row, words)) matches_.insert(row);
  }
  invalidateRowsFilter();
}

bool WordsFilter::filterAcceptsRow(int row,
                                   const QModelIndex& /*parent*/) const {
  return matches_.contains(row);
}

}  // namespace fragsmith
