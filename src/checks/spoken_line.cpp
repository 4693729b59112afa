#include "checks/spoken_line.h"

#include <algorithm>
#include <utility>

#include "chat/chat_line.h"
#include "checks/plain_letters.h"
#include "support/text.h"

namespace fragsmith {
namespace {

using Kind = ChatItem::Kind;

constexpr std::string_view kInvalidText = "[invalid var]";
/// The longest name of a weapon.
constexpr std::size_t kLongestWeapon = 16;

const ChatMessage& Draw(const GameWordList& list, const RandomSource& random) {
  const auto count = static_cast<double>(list.lines.size());
  const auto place = static_cast<std::size_t>(random() * count);
  return list.lines[std::min(place, list.lines.size() - 1)];
}

/// Replaces the lists of a message by one line each. The game does so ten
/// times, since lines may draw on other lists.
class Expander {
 public:
  Expander(const WordLists& lists, const RandomSource& random,
           SpokenLine& result)
      : lists_(lists), random_(random), result_(result) {}

  ChatMessage Expand(ChatMessage message) {
    constexpr int kMostRounds = 10;
    for (int round = 0; round < kMostRounds && HasWord(message); ++round) {
      message = ExpandOnce(message);
      // The game holds no more than that.
      if (EncodedLength(message) > kMostEncodedBytes) break;
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

std::string AsOnScreen(std::string_view text) {
  const std::string without_tildes = RemoveTildes(text);
  text = without_tildes;
  std::string shown;
  bool has_gap = false;
  const auto add = [&](char letter) {
    if (std::exchange(has_gap, false) && !shown.empty()) shown += ' ';
    shown += letter;
  };
  for (std::size_t at = 0; at < text.size(); ++at) {
    const char letter = text[at];
    const std::string_view pair = text.substr(at, 2);
    if (pair == "//") break;
    if (pair == "/*") {
      const std::size_t end = text.find("*/", at + 2);
      if (end == std::string_view::npos) break;
      at = end + 1;
      has_gap = true;
    } else if (letter == '"') {
      continue;
    } else if (IsAccented(letter) || letter == ';' ||
               static_cast<unsigned char>(letter) <= ' ') {
      has_gap = true;
    } else {
      add(letter == '%' ? '.' : letter);
    }
  }
  return shown;
}

std::size_t LongestSpoken(int type, const ChatMessage& message,
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
          length += kLongestWeapon;
          break;
        default:
          length += kLongestPlayerName;
      }
    }
  }
  return length;
}

SpokenLine SpeakLine(int type, std::string_view line, const SampleNames& names,
                     const WordLists& lists, const RandomSource& random) {
  SpokenLine result;
  const ChatMessage message = ReadChatMessage(ChatLineToFile(type, line));
  result.encoded_length = EncodedLength(message);
  result.is_broken =
      message.is_broken || result.encoded_length > kMostEncodedBytes;
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
  result.text.resize(std::min(result.text.size(), kMostSpokenBytes));
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
