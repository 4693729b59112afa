#include "botfiles/description_blocks.h"

#include <algorithm>
#include <cstddef>
#include <optional>

#include "botfiles/game_text.h"
#include "support/game_blank.h"
#include "support/text.h"

namespace fragsmith {
namespace {

/// Puts blocks together out of the lines of a file.
class BlockReader {
 public:
  void TakeLine(std::string_view code, std::size_t line) {
    while (true) {
      const std::string_view key = TakeToken(code);
      if (key.empty()) return;
      if (key == "{") {
        Open(line);
      } else if (key == "}") {
        if (!file_.blocks.empty()) file_.blocks.back().last_line = line;
        is_closed_ = true;
      } else {
        // Behind a "}" that came too early the bot goes on. But a brace with
        // the key right behind it was meant to begin another.
        if (file_.blocks.empty() || (is_closed_ && key.starts_with('{'))) {
          Open(line);
        }
        // The value stands on the line of its key, or is missing.
        const std::string_view value = TakeToken(code);
        DescriptionBlock& block = file_.blocks.back();
        block.last_line = line;
        if (++pairs_ > kMaxPairs) continue;
        block.pairs.push_back(
            {ToLower(key), std::string(WithoutQuotes(value)), line});
      }
    }
  }

  DescriptionBlocks& file() { return file_; }

 private:
  /// Real files have a handful; the bound is for hostile ones.
  static constexpr std::size_t kMaxPairs = 100'000;

  void Open(std::size_t line) {
    const bool is_empty =
        !file_.blocks.empty() && file_.blocks.back().pairs.empty();
    if (is_empty) file_.blocks.pop_back();
    file_.blocks.push_back({line, line, {}});
    is_closed_ = false;
  }

  /// Braces count only where they stand by themselves. What begins with curly
  /// quotes and the like begins behind them for the game, and ends in front of
  /// the next.
  static std::string_view TakeToken(std::string_view& code) {
    std::string_view token = FirstToken(code);
    if (!token.empty() && IsGameBlank(token.front())) {
      while (!code.empty() && IsGameBlank(code.front())) code.remove_prefix(1);
      token = FirstToken(code);
      if (!token.starts_with('"')) {
        token = token.substr(
            0, static_cast<std::size_t>(
                   std::ranges::find_if(token, IsGameBlank) - token.begin()));
      }
    }
    if (!token.empty()) {
      code.remove_prefix(
          static_cast<std::size_t>(token.data() + token.size() - code.data()));
    }
    return token;
  }

  DescriptionBlocks file_;
  std::size_t pairs_ = 0;
  bool is_closed_ = false;  ///< The last block is.
};

}  // namespace

std::string DescriptionBlock::Text(std::string_view key) const {
  std::string text;
  for (const DescriptionPair& pair : pairs) {
    if (pair.key == key) text = pair.text;
  }
  return text;
}

DescriptionBlocks ReadDescriptionBlocks(std::string_view bytes) {
  BlockReader reader;
  CommentStripper comments;
  LineReader lines(bytes);
  while (const std::optional<std::string_view> line = lines.Next()) {
    reader.TakeLine(comments.Strip(*line), lines.number());
    if (comments.had_words()) {
      reader.file().comment_lines.push_back(lines.number());
    }
  }
  return std::move(reader.file());
}

}  // namespace fragsmith
