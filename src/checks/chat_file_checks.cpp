#include "checks/chat_file_checks.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "chat/chat_catalogue.h"
#include "chat/chat_line.h"
#include "chat/vocabulary.h"
#include "checks/chat_line_checks.h"
#include "game/chat_message.h"
#include "game/chat_type_facts.h"
#include "game/file_faults.h"
#include "game/word_lists.h"
#include "support/code_page.h"
#include "support/text.h"

namespace fragsmith {
namespace {

/// How the keys of the editor's types and of their likes begin.
constexpr std::array<std::string_view, 6> kFamilies = {
    "game_", "level_", "hit_", "death_", "kill_", "random_"};

/// Types that the game asks for besides those that the editor has.
constexpr std::array<std::string_view, 4> kOtherTypes = {
    "death_teammate", "kill_teammate", "death_kamikaze", "kill_kamikaze"};

bool IsKnownType(const std::string& lower) {
  return std::any_of(kChatTypes.begin(), kChatTypes.end(),
                     [&](const ChatType& type) { return type.Key == lower; }) ||
         std::find(kOtherTypes.begin(), kOtherTypes.end(), lower) !=
             kOtherTypes.end();
}

/// The key with which the wrong one has most letters in common at its start.
std::string_view NearestType(std::string_view wrong) {
  std::string_view nearest;
  std::size_t most = 0;
  for (const ChatType& type : kChatTypes) {
    const auto end = std::mismatch(wrong.begin(), wrong.end(), type.Key.begin(),
                                   type.Key.end());
    const auto same = static_cast<std::size_t>(end.first - wrong.begin());
    if (same <= most) continue;
    most = same;
    nearest = type.Key;
  }
  return nearest;
}

/// Whether a text ends on one line and another begins on the next, with
/// nothing between them.
bool IsMerged(std::string_view statement) {
  for (std::size_t at = statement.find('\n'); at != std::string_view::npos;
       at = statement.find('\n', at + 1)) {
    const std::string_view before = TrimBlanksAndTabs(statement.substr(0, at));
    std::string_view behind = statement.substr(at);
    const std::size_t begin = behind.find_first_not_of(" \t\r\n");
    if (begin == std::string_view::npos) return false;
    if (before.substr(0, before.find_last_not_of('\r') + 1).ends_with('"') &&
        behind[begin] == '"') {
      return true;
    }
  }
  return false;
}

class ChatFileChecker {
 public:
  ChatFileChecker(const GameFile& file, const IncludeLookup& game,
                  Complaints& findings)
      : file_(file), game_(game), findings_(findings) {}

  /// Of types of one name the last counts.
  void TakeLast(const std::vector<GameChatType>& types) {
    for (const GameChatType& type : types) last_[ToLower(type.name)] = &type;
  }

  void Check(const GameChatType& type) {
    // Of an included file it is not known where it stands.
    if (type.open.empty()) return;
    const std::string lower = ToLower(type.name);
    TellTwice(lower, type);
    const bool is_meant = std::any_of(
        kFamilies.begin(), kFamilies.end(),
        [&](std::string_view family) { return lower.starts_with(family); });
    if (is_meant && !IsKnownType(lower)) {
      Warn("chat-type-unknown", type.open,
           "The game never asks for a type " + Quoted(type.name) +
               ", so nobody hears its lines. Perhaps \"" +
               std::string(NearestType(lower)) + "\" is meant.");
    }
    for (const GameChatLine& line : type.lines) Check(line);
  }

 private:
  int LineAt(TextSpan span) const {
    const std::string_view bytes = file_.bytes;
    const std::string_view above = bytes.substr(0, span.begin);
    return 1 + static_cast<int>(std::count(above.begin(), above.end(), '\n'));
  }

  void Warn(std::string_view id, TextSpan span, std::string text) {
    findings_.Add(id, Severity::kWarning, file_.name, LineAt(span),
                  std::move(text));
  }

  void TellTwice(const std::string& lower, const GameChatType& type) {
    const GameChatType& last = *last_.at(lower);
    if (&last == &type || type.lines.empty()) return;
    const std::string where =
        last.open.empty() ? "in a file that is included below"
                          : "in line " + std::to_string(LineAt(last.open));
    Warn("chat-type-twice", type.open,
         "The type " + Quoted(type.name) + " stands here and again " + where +
             ". The game takes the last one alone, so nobody hears the lines "
             "here. Put all lines into one block.");
  }

  void Check(const GameChatLine& line) {
    if (line.span.empty()) return;
    const std::string_view bytes = file_.bytes;
    const std::string_view statement =
        bytes.substr(line.span.begin, line.span.end - line.span.begin);
    if (IsMerged(statement)) {
      Warn("chat-lines-merged", line.span,
           "There is no ; between this text and the one on the next line, so "
           "the bot speaks both as one. Write a ; at the end of each line.");
    }
    const ChatMessage message = ReadChatMessage(statement);
    if (AdviceForLine(statement).empty()) TellLoneWord(line, message);
    for (const ChatItem& item : message.items) {
      if (const std::string_view advice = AdviceForLine(statement);
          item.kind == ChatItem::Kind::kWord && !advice.empty()) {
        Warn("chat-curly-quotes", line.span,
             "The game takes " + Quoted(item.text) +
                 " for the name of a word list." + std::string(advice));
      }
      if (item.kind == ChatItem::Kind::kVariable &&
          item.variable >= kFirstUnknownVariable) {
        Warn("chat-variable-out-of-range", line.span,
             "The game knows no variable " + std::to_string(item.variable) +
                 " and prints \"variable " + std::to_string(item.variable) +
                 " out of range\": the bot speaks what stands in front of it "
                 "and the rest of an earlier line. Take a number from 0 to "
                 "5.");
      }
      if (item.kind == ChatItem::Kind::kText &&
          !BracedPart(item.text).empty()) {
        Warn("chat-braces", line.span,
             "The game speaks what stands in braces as it is written: " +
                 Quoted(item.text) +
                 ". In the file a variable is a number outside the quotation "
                 "marks, such as \"well done, \", 0;");
      }
    }
  }

  /// A single bare word that neither the editor nor the game knows: the editor
  /// takes it for a text, so that nothing else tells of it.
  void TellLoneWord(const GameChatLine& line, const ChatMessage& message) {
    if (message.items.size() != 1 ||
        message.items.front().kind != ChatItem::Kind::kWord) {
      return;
    }
    const std::string& word = message.items.front().text;
    const bool is_text =
        ChatLineFromFile(kAllChatTypes.front(), word + ';').text == word;
    // A macro has become something else.
    if (!is_text || !line.words.ends_with(word + '\n')) return;
    if (!words_) {
      words_ = WordLists::Parse(game_("rnd.c").value_or(std::string()));
    }
    if (words_->empty() || words_->Find(word) != nullptr) return;
    Warn("chat-word-unknown", line.span,
         "Your game has no word list or ready-made line " + Quoted(word) +
             std::string(kRemainsSpoken) +
             "Take the name of one that it has, or put the text in quotation "
             "marks (\").");
  }

  const GameFile& file_;
  const IncludeLookup& game_;
  Complaints& findings_;
  std::optional<WordLists> words_;  ///< Once asked.
  std::map<std::string, const GameChatType*> last_;
};

}  // namespace

void CheckChatFile(const GameFile& file, const GameChat& chat,
                   const IncludeLookup& game, Complaints& findings) {
  ChatFileChecker checker(file, game, findings);
  checker.TakeLast(chat.types);
  for (const GameChatType& type : chat.types) checker.Check(type);
}

}  // namespace fragsmith
