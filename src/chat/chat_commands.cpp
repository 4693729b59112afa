#include "chat/chat_commands.h"

#include <algorithm>
#include <utility>

#include "chat/chat_catalogue.h"

namespace fragsmith {
namespace {

int Append(Bot& bot, int type, std::string text) {
  const int line = bot.HighestChatLine(type) + 1;
  bot.SetChatLine(type, line, std::move(text));
  return line;
}

}  // namespace

int NextFreeChatLine(const Bot& bot, int type) {
  const int highest = bot.HighestChatLine(type);
  const bool is_unused = highest == 0 && bot.ChatLine(type, 0).empty();
  return is_unused ? 0 : highest + 1;
}

int AddRandomChatLine(Bot& bot, int type, const RandomSource& random) {
  const int line = NextFreeChatLine(bot, type);
  bot.SetChatLine(type, line,
                  RandomGroupMember(ChatTypeAt(type).random_group, random));
  return line;
}

void AddExtraChats(Bot& bot, const RandomSource& random) {
  for (int type = 0; type < kChatTypeCount; ++type) {
    AddRandomChatLine(bot, type, random);
  }
}

int AddGroupMember(Bot& bot, int type, int selected_line, int group,
                   int number) {
  std::string member = GroupMember(group, std::to_string(number));
  if (selected_line >= 0 && bot.ChatLine(type, selected_line).empty()) {
    bot.SetChatLine(type, selected_line, std::move(member));
    return selected_line;
  }
  return Append(bot, type, std::move(member));
}

int AddEmptyChatLine(Bot& bot, int type) { return Append(bot, type, {}); }

std::string InsertVariable(std::string_view text, std::size_t cursor,
                           std::string_view variable) {
  if (cursor == 0) return std::string(variable);
  std::string result(text);
  result.insert(std::min(cursor, result.size()), variable);
  return result;
}

}  // namespace fragsmith
