#ifndef FRAGSMITH_MODEL_CHAT_LINE_INDEX_H_
#define FRAGSMITH_MODEL_CHAT_LINE_INDEX_H_

#include <compare>
#include <cstddef>

namespace fragsmith {

/// Names a line of a chat type, counted from 0: neither the line of a file,
/// which counts from 1, nor the row of a list, which may be none.
class ChatLineIndex {
 public:
  constexpr ChatLineIndex() = default;
  constexpr explicit ChatLineIndex(std::size_t index) : index_(index) {}

  constexpr std::size_t index() const { return index_; }
  /// As users count it.
  constexpr std::size_t number() const { return index_ + 1; }

  constexpr ChatLineIndex Next() const { return ChatLineIndex(index_ + 1); }

  // NOLINTNEXTLINE(modernize-use-nullptr): taken for a comparison with 0.
  constexpr auto operator<=>(const ChatLineIndex&) const = default;

 private:
  std::size_t index_ = 0;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_MODEL_CHAT_LINE_INDEX_H_
