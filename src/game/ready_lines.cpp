#include "game/ready_lines.h"

#include <algorithm>
#include <array>

#include "chat/chat_line.h"
#include "game/chat_message.h"
#include "game/limits.h"
#include "game/spoken_line.h"

namespace fragsmith {
namespace {

// In the order of the types. Variables are those that the situation fills.
constexpr std::array<std::string_view, kChatTypeCount> kPlainLines = {
    "Hello, {RANDOMOPP}.",
    "See you all.",
    "Here we go.",
    "Good match. Well played, {LEVELWINNER}.",
    "That one is mine. Next time, {LEVELLOSER}.",
    "I want another try, {LEVELWINNER}.",
    "Let me finish my sentence, {ATTACKER}!",
    "That was a scratch, {ATTACKER}.",
    "Stand still, {TARGET}!",
    "That place was mine, {ATTACKER}.",
    "Who put the floor there?",
    "Hot. Too hot.",
    "What do they put into this stuff?",
    "I should have learned to swim.",
    "That was not the plan.",
    "You came close, {ATTACKER}. Too close.",
    "One shot, {ATTACKER}? Not bad.",
    "Big gun, {ATTACKER}.",
    "Pure luck, {ATTACKER}.",
    "Nice one, {ATTACKER}.",
    "I saw you first, {TARGET}.",
    "Did that hurt, {TARGET}?",
    "You stood in my way, {TARGET}.",
    "Careful there.",
    "Too slow, {TARGET}.",
    "Good fight, {TARGET}.",
    "Are you hiding, {RANDOMOPP2}?",
    "Quiet here.",
};

bool CanSpeak(ChatTypeId type, const ChatMessage& message,
              const WordLists& words) {
  return std::all_of(message.items.begin(), message.items.end(),
                     [&words](const ChatItem& item) {
                       return item.kind != ChatItem::Kind::kWord ||
                              words.Find(item.text) != nullptr;
                     }) &&
         LongestSpoken(type, message, words) <= limits::kSafeSpokenBytes;
}

}  // namespace

std::vector<std::string> ReadyMadeLines(ChatTypeId type,
                                        const WordLists& words) {
  std::vector<std::string> lines;
  const int group = ChatTypeAt(type).random_group;
  for (const int number : MemberNumbers(group)) {
    std::string line = GroupMember(group, std::to_string(number));
    if (CanSpeak(type, ReadChatMessage(ChatLineToFile(type, line)), words)) {
      lines.push_back(std::move(line));
    }
  }
  return lines;
}

std::string_view PlainChatLine(ChatTypeId type) {
  return kPlainLines.at(IndexOf(type));
}

std::string OtherChatLine(const Bot& bot, ChatTypeId type,
                          const WordLists& words) {
  const std::vector<std::string>& has = bot.ChatLines(type);
  for (std::string& line : ReadyMadeLines(type, words)) {
    if (std::ranges::find(has, line) == has.end()) return std::move(line);
  }
  return std::string(PlainChatLine(type));
}

}  // namespace fragsmith
