#include "trial/said_lines.h"

#include <algorithm>
#include <iterator>
#include <string_view>

#include "chat/chat_line.h"
#include "game/chat_message.h"
#include "game/spoken_line.h"
#include "support/text.h"

namespace fragsmith {
namespace {

using Kind = ChatItem::Kind;

/// Stands in a text for what the game puts in. It is in no text of a game.
constexpr char kAny = '\x1f';

bool IsOfWord(char letter) {
  return (letter >= '0' && letter <= '9') || letter == '\'' ||
         (ToLower(letter) >= 'a' && ToLower(letter) <= 'z');
}

/// The words of a text, without its colours and signs. A word that what the
/// game puts in touches is a part of that.
std::vector<std::string> WordsOf(std::string_view text) {
  std::vector<std::string> words;
  std::string word;
  bool is_any = false;
  const auto end_word = [&] {
    // Two in a row are as good as one.
    const bool again = is_any && !words.empty() && words.back().empty();
    if ((is_any && !again) || (!is_any && !word.empty())) {
      words.push_back(is_any ? std::string() : word);
    }
    word.clear();
    is_any = false;
  };
  for (std::size_t at = 0; at < text.size(); ++at) {
    const char letter = text[at];
    if (letter == kAny) {
      is_any = true;
    } else if (IsOfWord(letter)) {
      word += ToLower(letter);
    } else if (letter == '^') {
      ++at;
    } else if (letter != '~') {
      end_word();
    }
  }
  end_word();
  return words;
}

std::vector<std::string> WordsOf(const ChatMessage& message) {
  std::string text;
  for (const ChatItem& item : message.items) {
    text += item.kind == Kind::kText ? item.text : std::string(1, kAny);
  }
  return WordsOf(text);
}

int LettersOf(const std::vector<std::string>& words) {
  std::size_t letters = 0;
  for (const std::string& word : words) letters += word.size();
  return static_cast<int>(letters);
}

/// How well the said words go with those of a line: the letters of the words
/// that are there in their order, less something for each that is too many or
/// missing.
int Likeness(const std::vector<std::string>& line,
             const std::vector<std::string>& said) {
  constexpr int kOdd = 1;
  // By how many of the said words are used up, for the words of the line so
  // far.
  std::vector<int> best(said.size() + 1);
  for (std::size_t used = 0; used <= said.size(); ++used) {
    best[used] = -kOdd * static_cast<int>(used);
  }
  for (const std::string& word : line) {
    std::vector<int> next(best.size());
    for (std::size_t used = 0; used < next.size(); ++used) {
      const bool is_any = word.empty();
      int likeness = best[used] - (is_any ? 0 : kOdd);
      if (used > 0) {
        likeness = std::max(likeness, next[used - 1] - (is_any ? 0 : kOdd));
        const bool is_same = word == said[used - 1];
        const int gain = is_same ? static_cast<int>(word.size()) : -kOdd;
        likeness = std::max(likeness, best[used - 1] + (is_any ? 0 : gain));
      }
      next[used] = likeness;
    }
    best = std::move(next);
  }
  return best.back();
}

}  // namespace

SaidLines::SaidLines(const Bot& bot, const WordLists& words) {
  for (const ChatTypeId type : kAllChatTypes) {
    const std::vector<std::string>& texts = bot.ChatLines(type);
    for (std::size_t line = 0; line < texts.size(); ++line) {
      if (texts[line].empty()) continue;
      const ChatPlace place{.type = type, .line = ChatLineIndex(line)};
      const auto same = std::find_if(
          lines_.begin(), lines_.end(),
          [&](const OwnLine& own) { return own.text == texts[line]; });
      if (same != lines_.end()) {
        same->places.push_back(place);
        continue;
      }
      lines_.push_back({.text = texts[line], .places = {place}});
      Add(lines_.size() - 1, type, words);
    }
  }
}

void SaidLines::Add(std::size_t line, ChatTypeId type, const WordLists& words) {
  const ChatMessage message =
      ReadChatMessage(ChatLineToFile(type, lines_[line].text));
  const bool is_list =
      message.items.size() == 1 && message.items.front().kind == Kind::kWord;
  const GameWordList* const list =
      is_list ? words.Find(message.items.front().text) : nullptr;
  if (list != nullptr) {
    for (const ChatMessage& drawn : list->lines) {
      patterns_.push_back({.line = line, .words = WordsOf(drawn)});
    }
  } else {
    patterns_.push_back({.line = line, .words = WordsOf(message)});
  }
  lines_[line].can_be_told = std::any_of(
      patterns_.begin(), patterns_.end(), [line](const Pattern& pattern) {
        return pattern.line == line && LettersOf(pattern.words) > 0;
      });
}

std::optional<std::size_t> SaidLines::Find(const std::string& said) {
  const auto known = found_.find(said);
  if (known != found_.end()) return known->second;
  const Words words = WordsOf(said);
  std::optional<std::size_t> found;
  int most = 0;
  for (const Pattern& pattern : patterns_) {
    const int likeness = Likeness(pattern.words, words);
    // Some of its words may be others, but not nearly all.
    constexpr int kPart = 3;
    if (likeness <= most || kPart * likeness < LettersOf(pattern.words)) {
      continue;
    }
    most = likeness;
    found = pattern.line;
  }
  return found_[said] = found;
}

}  // namespace fragsmith
