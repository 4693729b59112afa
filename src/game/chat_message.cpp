#include "game/chat_message.h"

#include <utility>

#include "game/limits.h"

namespace fragsmith {
namespace {

using Outcome = GameLexer::Outcome;

/// Variables have numbers of one digit; larger ones are as wrong as this.
constexpr double kMaxVariable = 1000;

/// The item that the token is; false for none.
bool TakeItem(GameToken token, ChatMessage& message) {
  ChatItem item;
  switch (token.kind) {
    case GameToken::Kind::kString:
      if (token.oddity == GameToken::Oddity::kUnknownEscape) {
        message.is_cut = true;
      }
      break;
    case GameToken::Kind::kName:
      item.kind = ChatItem::Kind::kWord;
      break;
    case GameToken::Kind::kNumber:
      if (!token.is_whole || token.number > kMaxVariable) return false;
      item.kind = ChatItem::Kind::kVariable;
      item.variable = static_cast<int>(token.number);
      break;
    default:
      return false;
  }
  item.text = std::move(token.text);
  message.items.push_back(std::move(item));
  return true;
}

}  // namespace

ChatMessage ReadChatMessage(std::string_view statement) {
  GameLexer lexer(statement);
  GameToken token;
  if (lexer.Next(token) != Outcome::kToken) {
    return {.items = {}, .is_broken = true};
  }
  ChatMessage message = ReadChatMessage(std::move(token), lexer);
  if (lexer.Next(token) != Outcome::kEnd) message.is_broken = true;
  return message;
}

ChatMessage ReadChatMessage(GameToken token, GameLexer& lexer) {
  ChatMessage message;
  while (TakeItem(std::move(token), message)) {
    GameToken sign;
    if (lexer.Next(sign) != Outcome::kToken) break;
    if (sign.Is(";")) return message;
    if (!sign.Is(",") || lexer.Next(token) != Outcome::kToken) break;
  }
  message.is_broken = true;
  return message;
}

ChatFit ChatRoom::Add(ChatItem::Kind kind, std::size_t size) {
  if (kind == ChatItem::Kind::kText) {
    length_ += size;
    return length_ > limits::kMaxEncodedBytes ? ChatFit::kTooLong
                                              : ChatFit::kFits;
  }
  // An escape, a letter, and an escape again.
  constexpr std::size_t kMarks = 3;
  const bool is_refused = length_ > limits::kMaxBeforeItem;
  length_ += size + kMarks;
  if (is_refused) return ChatFit::kTooLong;
  return length_ > limits::kMaxEncodedBytes ? ChatFit::kOverflows
                                            : ChatFit::kFits;
}

ChatSize SizeOf(const ChatMessage& message) {
  ChatSize size;
  ChatRoom room;
  for (const ChatItem& item : message.items) {
    const ChatFit fit = room.Add(item.kind, item.text.size());
    if (size.fit == ChatFit::kFits) size.fit = fit;
  }
  size.length = room.length();
  return size;
}

}  // namespace fragsmith
