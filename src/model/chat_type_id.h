#ifndef FRAGSMITH_MODEL_CHAT_TYPE_ID_H_
#define FRAGSMITH_MODEL_CHAT_TYPE_ID_H_

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

namespace fragsmith {

/// Number of situations in which a bot may speak.
inline constexpr std::size_t kChatTypeCount = 28;

/// A situation in which a bot may speak, by its index in the chat catalogue.
enum class ChatTypeId : std::uint8_t {};

constexpr std::size_t IndexOf(ChatTypeId type) {
  return static_cast<std::size_t>(type);
}

/// All of them in their order.
inline constexpr std::array<ChatTypeId, kChatTypeCount> kAllChatTypes = [] {
  std::array<ChatTypeId, kChatTypeCount> types = {};
  for (std::size_t index = 0; index < types.size(); ++index) {
    types.at(index) = static_cast<ChatTypeId>(index);
  }
  return types;
}();

/// The type of an index that comes from outside, such as a row of a list.
constexpr std::optional<ChatTypeId> ChatTypeOfIndex(int index) {
  if (index < 0 || index >= static_cast<int>(kChatTypeCount)) {
    return std::nullopt;
  }
  return kAllChatTypes.at(static_cast<std::size_t>(index));
}

}  // namespace fragsmith

#endif  // FRAGSMITH_MODEL_CHAT_TYPE_ID_H_
