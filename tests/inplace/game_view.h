#ifndef FRAGSMITH_TESTS_INPLACE_GAME_VIEW_H_
#define FRAGSMITH_TESTS_INPLACE_GAME_VIEW_H_

#include <map>
#include <string>
#include <utility>

#include "game/character_reader.h"
#include "game/chat_reader.h"
#include "game/stand_ins.h"
#include "game/weight_reader.h"
#include "session/load_bot.h"
#include "support/text.h"

namespace fragsmith {

/// All that the game has of a file, by names of the test's: it is the judge of
/// an edit, apart from what the edit itself compares.
using GameView = std::map<std::string, std::string>;

inline void ViewLevels(const GameFile& file, const IncludeLookup& game,
                       Complaints& complaints, GameView& view) {
  for (int level = 0; level <= 5; ++level) {
    const auto block = ReadCharacterBlock(file, level, game, complaints);
    if (!block) continue;
    const std::string name = "level " + std::to_string(level);
    view[name] = "there";
    for (const auto& [number, value] : block->values) {
      view[name + " " + std::to_string(number)] =
          value.kind == CharacterValue::Kind::kText
              ? value.text
              : std::to_string(value.number);
    }
  }
}

inline void ViewWeights(const GameFile& file, const IncludeLookup& game,
                        Complaints& complaints, GameView& view) {
  const WeightsRead read = ReadGameWeights(file, game, complaints);
  view["loaded"] = std::to_string(static_cast<int>(read.is_loaded));
  for (const GameWeight& weight : read.weights) {
    std::string& text = view["weight " + weight.name];
    for (const WeightReturn& way : weight.returns) {
      for (const WeightReturn::Case& one : way.cases) {
        text += std::to_string(one.inventory) + '<' +
                std::to_string(one.below.value_or(-1)) + ' ';
      }
      for (const double value : way.values) {
        text += '=' + std::to_string(value) + ' ';
      }
    }
  }
}

inline void ViewChats(const GameFile& file, const std::string& chat_name,
                      const IncludeLookup& game, Complaints& complaints,
                      GameView& view) {
  GameChat chat;
  const bool is_read = ReadGameChat(file, chat_name, game, complaints, &chat);
  view["loaded"] = std::to_string(static_cast<int>(is_read));
  for (const GameChatType& type : chat.types) {
    // A later block takes the place of an earlier one.
    std::string& text = view["chat " + ToLower(type.name)];
    text.clear();
    for (const GameChatLine& line : type.lines) text += line.words + '|';
  }
}

inline GameView ViewOf(BotFile kind, const std::string& bytes,
                       const IncludeLookup& game,
                       const std::string& chat_name = "rook") {
  const GameFile file = {"file", "bots/rook", bytes};
  Complaints complaints;
  GameView view;
  if (kind == BotFile::kCharacteristics) {
    ViewLevels(file, game, complaints, view);
  } else if (kind == BotFile::kChat) {
    ViewChats(file, chat_name, game, complaints, view);
  } else {
    ViewWeights(file, game, complaints, view);
  }
  for (const Complaint& complaint : complaints.list()) {
    if (complaint.severity == Severity::kError) {
      view["error " + std::string(complaint.id)] += '+';
    }
  }
  return view;
}

/// What differs: "name: old -> new".
inline std::map<std::string, std::pair<std::string, std::string>> Differences(
    const GameView& before, const GameView& after) {
  std::map<std::string, std::pair<std::string, std::string>> all;
  for (const auto& [name, text] : before) all[name].first = text;
  for (const auto& [name, text] : after) all[name].second = text;
  std::erase_if(all, [](const auto& one) {
    return one.second.first == one.second.second;
  });
  return all;
}

}  // namespace fragsmith

#endif  // FRAGSMITH_TESTS_INPLACE_GAME_VIEW_H_
