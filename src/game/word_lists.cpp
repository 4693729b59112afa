#include "game/word_lists.h"

#include <algorithm>
#include <utility>

#include "chat/chat_catalogue.h"
#include "game/limits.h"

namespace fragsmith {
namespace {

// A hostile file of many short lines would take many times its size.
constexpr std::size_t kMaxLines = 50'000;

struct SampleList {
  std::string_view name;
  std::string_view words;  ///< Parted by "|".
};

// clang-format off
constexpr SampleList kSamples[] = {
    {"exclamation", "Wow|Ouch|Well, well"}, {"good", "great|neat|fine"},
    {"looser", "beginner|slowpoke"}, {"nerd", "bookworm|brain"},
    {"boyz", "folks|people"}, {"language", "Latin|Basic|Klingon"},
    {"weapon", "rocket launcher|railgun|shotgun"},
    {"ponder", "life|the weather|the next jump"},
    {"random_counselor", "the doctor|my coach"},
    {"family_member", "brother|grandmother|cousin"},
    {"friendname", "Marla|Otto"}, {"different", "odd|special"},
    {"fighter", "fighter|gladiator"}, {"femalebot", "Marla|Hanna"},
    {"androbot", "Otto|Emil"}, {"neuterbot", "Toaster|Cube"},
    {"botnames", "Marla|Otto|Cube"}, {"negative", "no|never|no way"},
    {"affirmative", "yes|sure|of course"},
    {"ramble", "and so on, and so on|but I was saying"},
    {"item", "quad damage|medkit|armor"}, {"place", "the kitchen|the Moon"},
    {"class", "Maths|History"}, {"liquid", "tea|soup|lemonade"},
    {"number", "two|seven|forty"}, {"profession", "plumber|pilot|baker"},
    {"one_liners", "That was close|I meant to do that"},
    {"adj", "green|shiny|slow"}, {"color", "red|blue|orange"},
    {"whenf", "tomorrow|next week"}, {"whenp", "yesterday|last week"},
    {"time", "noon|midnight"}, {"food", "pancakes|cheese|soup"},
    {"animal", "cat|badger|owl"}, {"weather", "rain|snow|sunshine"},
    {"month", "May|October"}, {"level_title", "The Old Yard|Deep Down"},
    {"curse", "darn|drat|oh dear"}, {"playtips", "Keep moving|Mind the lava"},
};
// clang-format on

GameWordList ListOf(std::string_view words) {
  GameWordList list;
  while (true) {
    const std::size_t bar = words.find('|');
    ChatItem item;
    item.text = std::string(words.substr(0, bar));
    list.lines.push_back({.items = {std::move(item)}});
    if (bar == std::string_view::npos) return list;
    words.remove_prefix(bar + 1);
  }
}

}  // namespace

WordLists WordLists::Parse(std::string_view bytes) {
  WordLists result;
  GameLexer lexer(bytes);
  GameToken token;
  const auto next = [&] {
    return lexer.Next(token) == GameLexer::Outcome::kToken;
  };
  std::size_t lines = 0;
  std::string name;
  while (lines < kMaxLines && next()) {
    if (token.kind == GameToken::Kind::kName) name = token.text;
    if (!token.Is("{")) continue;
    GameWordList list;
    for (; next() && !token.Is("}") && lines < kMaxLines; ++lines) {
      ChatMessage line = ReadChatMessage(token, lexer);
      if (!line.is_broken) list.lines.push_back(std::move(line));
    }
    ++lines;
    // Of two lists of a name the game finds the first.
    result.lists_.try_emplace(std::exchange(name, {}), std::move(list));
  }
  result.MeasureLongest();
  return result;
}

const WordLists& WordLists::Sample() {
  static const WordLists kSample = [] {
    WordLists sample;
    for (const SampleList& row : kSamples) {
      sample.lists_.try_emplace(std::string(row.name), ListOf(row.words));
    }
    for (const ChatGroup& group : kChatGroups) {
      for (int number = 0; number <= group.MaxNumber; ++number) {
        std::string name(group.Name);
        if (number > 0 || !group.Unnumbered) name += std::to_string(number);
        const std::string shown =
            "(a line of the game for: " + std::string(group.Caption) + ")";
        sample.lists_.try_emplace(std::move(name), ListOf(shown));
      }
    }
    sample.MeasureLongest();
    return sample;
  }();
  return kSample;
}

const GameWordList* WordLists::Find(std::string_view name) const {
  const auto found = lists_.find(name);
  return found == lists_.end() ? nullptr : &found->second;
}

void WordLists::MeasureLongest() {
  const auto length = [this](const ChatMessage& line) {
    std::size_t sum = 0;
    for (const ChatItem& item : line.items) {
      if (item.kind == ChatItem::Kind::kText) {
        sum += item.text.size();
      } else if (item.kind == ChatItem::Kind::kVariable) {
        sum += limits::kMaxPlayerName;
      } else if (const GameWordList* list = Find(item.text)) {
        sum += list->longest;
      }
    }
    return std::min(sum, limits::kMaxEncodedBytes + 1);
  };
  // Each round knows the lengths that one more expansion gives; lists that
  // draw on themselves grow to the limit.
  for (int round = 0; round < limits::kMaxExpansions; ++round) {
    bool has_grown = false;
    for (auto& [name, list] : lists_) {
      for (const ChatMessage& line : list.lines) {
        const std::size_t longest = length(line);
        has_grown = has_grown || longest > list.longest;
        list.longest = std::max(list.longest, longest);
      }
    }
    if (!has_grown) return;
  }
}

}  // namespace fragsmith
