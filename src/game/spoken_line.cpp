#include "game/spoken_line.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "chat/chat_line.h"
#include "game/limits.h"
#include "game/plain_letters.h"
#include "support/game_blank.h"
#include "support/text.h"

namespace fragsmith {
namespace {

using Kind = ChatItem::Kind;

constexpr std::string_view kInvalidText = "[invalid var]";

const ChatMessage& Draw(const GameWordList& list, const RandomSource& random) {
  const auto count = static_cast<double>(list.lines.size());
  const auto index = static_cast<std::size_t>(random() * count);
  return list.lines[std::min(index, list.lines.size() - 1)];
}

/// Replaces the lists of a message by one line each. The game does so ten
/// times, since lines may draw on other lists.
class Expander {
 public:
  Expander(const WordLists& lists, const RandomSource& random,
           SpokenLine& result)
      : lists_(lists), random_(random), result_(result) {}

  ChatMessage Expand(ChatMessage message) {
    for (int round = 0; round < limits::kMaxExpansions && HasWord(message);
         ++round) {
      message = ExpandOnce(message);
      // The game holds no more than that.
      if (SizeOf(message).length > limits::kMaxEncodedBytes) break;
    }
    return message;
  }

 private:
  static bool HasWord(const ChatMessage& message) {
    return std::any_of(
        message.items.begin(), message.items.end(),
        [](const ChatItem& item) { return item.kind == Kind::kWord; });
  }

  ChatMessage ExpandOnce(const ChatMessage& message) {
    ChatMessage expanded;
    for (const ChatItem& item : message.items) {
      if (item.kind != Kind::kWord) {
        expanded.items.push_back(item);
        continue;
      }
      const GameWordList* const list = lists_.Find(item.text);
      if (list == nullptr) {
        result_.unknown_lists.push_back(item.text);
        // What follows is garbled: the remains of an earlier line.
        return expanded;
      }
      if (list->lines.empty()) continue;
      const ChatMessage& drawn = Draw(*list, random_);
      expanded.items.insert(expanded.items.end(), drawn.items.begin(),
                            drawn.items.end());
    }
    return expanded;
  }

  const WordLists& lists_;
  const RandomSource& random_;
  SpokenLine& result_;
};

std::string RemoveTildes(std::string_view text) {
  std::string kept;
  for (std::size_t at = 0; at < text.size(); ++at) {
    // The one behind a removed one is passed over.
    if (text[at] == '~' && ++at >= text.size()) break;
    kept += text[at];
  }
  return kept;
}

}  // namespace

std::string_view SampleNames::Of(ChatFill fill) const {
  switch (fill) {
    case ChatFill::kNothing:
      return {};
    case ChatFill::kInvalid:
      return kInvalidText;
    case ChatFill::kOwnName:
      return own_name;
    case ChatFill::kMap:
      return map;
    case ChatFill::kWeapon:
      return weapon;
    case ChatFill::kRandomWeapon:
      return other_weapon;
    case ChatFill::kLast:
    case ChatFill::kLastVictim:
      return other_opponent;
    default:
      return opponent;
  }
}

// A spoken line is a command, which the game takes apart into words and texts
// in quotes and puts together again with one blank between them.
std::string AsOnScreen(std::string_view text) {
  const std::string without_tildes = RemoveTildes(text);
  text = without_tildes;
  const auto begins = [&text](std::size_t at, std::string_view sign) {
    return text.substr(at).starts_with(sign);
  };
  std::vector<std::string_view> parts;
  std::size_t at = 0;
  while (at < text.size()) {
    if (IsGameBlank(text[at])) {
      ++at;
    } else if (begins(at, "//")) {
      break;
    } else if (begins(at, "/*")) {
      const std::size_t end = text.find("*/", at + 2);
      if (end == std::string_view::npos) break;
      at = end + 2;
    } else if (text[at] == '"') {
      const std::size_t end = std::min(text.find('"', at + 1), text.size());
      parts.push_back(text.substr(at + 1, end - at - 1));
      at = end + 1;
    } else {
      const std::size_t begin = at;
      while (at < text.size() && !IsGameBlank(text[at]) && text[at] != '"' &&
             !begins(at, "//") && !begins(at, "/*")) {
        ++at;
      }
      parts.push_back(text.substr(begin, at - begin));
    }
  }
  std::string shown;
  for (const std::string_view& part : parts) {
    if (&part != &parts.front()) shown += ' ';
    for (const char letter : part) {
      const bool is_dot = letter == '%' || IsAccented(letter);
      shown += letter == ';' ? ' ' : is_dot ? '.' : letter;
    }
  }
  return shown;
}

std::size_t LongestSpoken(ChatTypeId type, const ChatMessage& message,
                          const WordLists& lists) {
  std::size_t length = 0;
  for (const ChatItem& item : message.items) {
    if (item.kind == Kind::kText) {
      length += item.text.size();
    } else if (item.kind == Kind::kWord) {
      const GameWordList* const list = lists.Find(item.text);
      if (list != nullptr) length += list->longest;
    } else {
      switch (FillOf(type, item.variable)) {
        case ChatFill::kNothing:
          break;
        case ChatFill::kInvalid:
          length += kInvalidText.size();
          break;
        case ChatFill::kWeapon:
        case ChatFill::kRandomWeapon:
          length += limits::kMaxWeaponName;
          break;
        default:
          length += limits::kMaxPlayerName;
      }
    }
  }
  return length;
}

SpokenLine SpeakLine(ChatTypeId type, std::string_view line,
                     const SampleNames& names, const WordLists& lists,
                     const RandomSource& random) {
  SpokenLine result;
  const ChatMessage message = ReadChatMessage(ChatLineToFile(type, line));
  result.encoded_length = SizeOf(message).length;
  result.is_broken =
      message.is_broken || result.encoded_length > limits::kMaxEncodedBytes;
  result.longest_length = LongestSpoken(type, message, lists);
  if (result.is_broken) return result;
  std::string text;
  for (const ChatItem& item :
       Expander(lists, random, result).Expand(message).items) {
    if (item.kind == Kind::kText) text += item.text;
    if (item.kind == Kind::kVariable) {
      text += names.Of(FillOf(type, item.variable));
    }
  }
  result.text = AsOnScreen(text);
  result.spoken_length = result.text.size();
  result.text.resize(std::min(result.text.size(), limits::kMaxSpokenBytes));
  return result;
}

std::string SimpleName(std::string_view name) {
  std::string simple;
  bool is_clan = false;
  for (std::size_t at = 0; at < name.size(); ++at) {
    const char letter = ToLower(name[at]);
    if (letter == '^') {
      ++at;
    } else if (letter == '[' && name.find(']', at) != std::string_view::npos) {
      is_clan = true;
    } else if (letter == ']') {
      is_clan = false;
    } else if (!is_clan &&
               ((letter >= 'a' && letter <= 'z') ||
                (letter >= '0' && letter <= '9') || letter == '_')) {
      simple += letter;
    }
  }
  if (simple.starts_with("mr")) simple.erase(0, 2);
  return simple;
}

}  // namespace fragsmith
