#include "chat/chat_commands.h"

#include <algorithm>
#include <utility>

#include "chat/chat_catalogue.h"

namespace fragsmith {
namespace {

int Append(Bot& bot, ChatTypeId type, std::string text) {
  const int line = bot.HighestChatLine(type) + 1;
  bot.SetChatLine(type, line, std::move(text));
  return line;
}

/// True between the "~" in front of a word and that word.
bool IsBehindMark(std::string_view text, std::size_t offset) {
  return offset > 0 && offset < text.size() && text[offset - 1] == '~' &&
         text[offset] != ' ' && (offset == 1 || text[offset - 2] == ' ');
}

}  // namespace

int NextFreeChatLine(const Bot& bot, ChatTypeId type) {
  const int highest = bot.HighestChatLine(type);
  const bool is_unused = highest == 0 && bot.ChatLine(type, 0).empty();
  return is_unused ? 0 : highest + 1;
}

int AddRandomChatLine(Bot& bot, ChatTypeId type, const RandomSource& random) {
  const int line = NextFreeChatLine(bot, type);
  bot.SetChatLine(type, line,
                  RandomGroupMember(ChatTypeAt(type).random_group, random));
  return line;
}

void AddExtraChats(Bot& bot, const RandomSource& random) {
  for (const ChatTypeId type : kAllChatTypes) {
    AddRandomChatLine(bot, type, random);
  }
}

int AddGroupMember(Bot& bot, ChatTypeId type, int selected_line, int group,
                   int number) {
  std::string member = GroupMember(group, std::to_string(number));
  if (selected_line >= 0 && bot.ChatLine(type, selected_line).empty()) {
    bot.SetChatLine(type, selected_line, std::move(member));
    return selected_line;
  }
  return Append(bot, type, std::move(member));
}

int AddEmptyChatLine(Bot& bot, ChatTypeId type) {
  return Append(bot, type, {});
}

void MoveChatLine(Bot& bot, ChatTypeId type, int line, int place) {
  std::string text = bot.ChatLine(type, line);
  const int step = line < place ? 1 : -1;
  for (; line != place; line += step) {
    bot.SetChatLine(type, line, bot.ChatLine(type, line + step));
  }
  bot.SetChatLine(type, place, std::move(text));
}

void DoubleChatLine(Bot& bot, ChatTypeId type, int line, int behind) {
  for (int last = Append(bot, type, {}); last > behind; --last) {
    bot.SetChatLine(type, last, bot.ChatLine(type, last - 1));
  }
  bot.SetChatLine(type, behind, bot.ChatLine(type, line));
}

LineText InsertVariable(const LineText& line, std::string_view variable) {
  if (line.cursor == 0) return {std::string(variable), 0};
  const std::string& text = line.text;
  std::size_t offset = std::min(line.cursor, text.size());
  if (IsBehindMark(text, offset)) --offset;
  LineText result = {text, offset};
  result.text.insert(offset, variable);
  return result;
}

}  // namespace fragsmith
