#include "chat/chat_commands.h"

#include <algorithm>
#include <utility>

#include "chat/chat_catalogue.h"

namespace fragsmith {
namespace {

ChatLineIndex Append(Bot& bot, ChatTypeId type, std::string text) {
  const ChatLineIndex line = bot.EndOfChatLines(type);
  bot.SetChatLine(type, line, std::move(text));
  return line;
}

/// True between the "~" in front of a word and that word.
bool IsBehindMark(std::string_view text, std::size_t offset) {
  return offset > 0 && offset < text.size() && text[offset - 1] == '~' &&
         text[offset] != ' ' && (offset == 1 || text[offset - 2] == ' ');
}

}  // namespace

ChatLineIndex NextFreeChatLine(const Bot& bot, ChatTypeId type) {
  const std::vector<std::string>& lines = bot.ChatLines(type);
  const bool is_unused = lines.size() == 1 && lines.front().empty();
  return is_unused ? ChatLineIndex() : bot.EndOfChatLines(type);
}

ChatLineIndex AddRandomChatLine(Bot& bot, ChatTypeId type,
                                const RandomSource& random) {
  const ChatLineIndex line = NextFreeChatLine(bot, type);
  bot.SetChatLine(type, line,
                  RandomGroupMember(ChatTypeAt(type).random_group, random));
  return line;
}

void AddExtraChats(Bot& bot, const RandomSource& random) {
  for (const ChatTypeId type : kAllChatTypes) {
    AddRandomChatLine(bot, type, random);
  }
}

ChatLineIndex AddGroupMember(Bot& bot, ChatTypeId type,
                             std::optional<ChatLineIndex> selected_line,
                             int group, int number) {
  std::string member = GroupMember(group, std::to_string(number));
  if (selected_line && bot.ChatLine(type, *selected_line).empty()) {
    bot.SetChatLine(type, *selected_line, std::move(member));
    return *selected_line;
  }
  return Append(bot, type, std::move(member));
}

ChatLineIndex AddEmptyChatLine(Bot& bot, ChatTypeId type) {
  return Append(bot, type, {});
}

void MoveChatLine(Bot& bot, ChatTypeId type, ChatLineIndex line,
                  ChatLineIndex to) {
  std::string text = bot.ChatLine(type, line);
  bot.RemoveChatLine(type, line);
  bot.InsertChatLine(type, to, std::move(text));
}

void DoubleChatLine(Bot& bot, ChatTypeId type, ChatLineIndex line,
                    ChatLineIndex behind) {
  bot.InsertChatLine(type, behind, bot.ChatLine(type, line));
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
