#include "chat/chat_file.h"

#include <array>
#include <cstddef>
#include <optional>
#include <utility>

#include "chat/chat_catalogue.h"
#include "chat/chat_line.h"
#include "support/text.h"

namespace fragsmith {
namespace {

constexpr int kLevelEndType = 3;

/// The chat type that a line names; nothing for an unknown one. level_end
/// also begins the keys of two other types.
std::optional<int> TypeIn(std::string_view line) {
  for (int type = 0; type < kChatTypeCount; ++type) {
    if (type == kLevelEndType && Contains(line, "level_end_")) continue;
    if (Contains(line, ChatTypeAt(type).Key)) return type;
  }
  return std::nullopt;
}

bool IsPassedOver(std::string_view line) {
  return line.empty() || line.starts_with("//") || line.starts_with("#i") ||
         line.starts_with('}') || line.starts_with('{');
}

/// True for a line that begins a block although the one before is open.
bool IsTypeLine(std::string_view line) {
  constexpr std::string_view kWord = "type";
  if (!line.starts_with(kWord)) return false;
  line = TrimBlanks(line.substr(kWord.size()));
  return line.starts_with('"') && Contains(line.substr(1), "\"");
}

/// One chat file on its way into a bot.
class ChatReader {
 public:
  ChatReader(std::string file, Bot& bot) : file_(std::move(file)), bot_(bot) {}

  void TakeLine(std::string_view line, std::size_t number) {
    number_ = number;
    if (is_in_block_) {
      TakeBlockLine(line);
    } else if (!IsPassedOver(line) && Contains(line, "type")) {
      OpenBlock(line);
    }
  }

  Notes Finish() {
    if (is_in_block_) {
      AddNote("The file ends before the \"}\" of its last block.");
    }
    return std::move(notes_);
  }

 private:
  void AddNote(std::string text) {
    notes_.Add({file_, number_, std::move(text)});
  }

  void OpenBlock(std::string_view line) {
    is_in_block_ = true;
    if (const std::optional<int> type = TypeIn(line)) {
      type_ = *type;
      if (NextLine() > 0) {
        AddNote("The type " + std::string(ChatTypeAt(type_).Key) +
                " was there before; the game uses the last block alone.");
      }
    } else {
      AddNote("The line names no known chat type; what follows goes to " +
              std::string(ChatTypeAt(type_).Key) + ".");
    }
  }

  void TakeBlockLine(std::string_view line) {
    std::string_view text = TrimBlanksAndTabs(line);
    std::string without_tabs;
    if (Contains(text, "\t")) {
      without_tabs = RemoveTabs(text);
      text = without_tabs;
    }
    if (text.starts_with('}')) {
      is_in_block_ = false;
    } else if (IsTypeLine(text)) {
      AddNote("The block before has no \"}\".");
      OpenBlock(text);
    } else if (!text.empty() && !text.starts_with('{') &&
               !text.starts_with("//")) {
      Store(text);
    }
  }

  void Store(std::string_view text) {
    EditorLine line = ChatLineFromFile(type_, text);
    for (std::string& oddity : line.oddities) AddNote(std::move(oddity));
    bot_.SetChatLine(type_, NextLine()++, std::move(line.text));
  }

  int& NextLine() { return next_lines_.at(static_cast<std::size_t>(type_)); }

  std::string file_;
  Bot& bot_;
  Notes notes_;
  std::size_t number_ = 0;
  bool is_in_block_ = false;
  int type_ = 0;
  std::array<int, kChatTypeCount> next_lines_{};
};

}  // namespace

std::string WriteChatFile(const Bot& bot, const Author& author) {
  std::string text = HeaderComment(bot, author);
  const auto add_line = [&text](std::string_view line) {
    text += line;
    text += kLineEnd;
  };
  add_line("");
  add_line("");
  // Always quoted, also a name of digits: the game accepts no other.
  add_line("chat \"" + bot.Name() + "\"");
  add_line("{");
  add_line("\t#include \"teamplay.h\"");
  for (int type = 0; type < kChatTypeCount; ++type) {
    add_line("");
    add_line("\ttype \"" + std::string(ChatTypeAt(type).Key) + "\"");
    add_line("\t{");
    for (const std::string& line : bot.ChatLines(type)) {
      if (!line.empty()) add_line("\t\t" + ChatLineToFile(type, line));
    }
    add_line("\t}");
  }
  add_line("}");
  return text;
}

Notes ReadChatFile(std::string_view bytes, const std::string& file_name,
                   Bot& bot) {
  ChatReader reader(file_name, bot);
  LineReader lines(bytes);
  while (const std::optional<std::string_view> line = lines.Next()) {
    reader.TakeLine(*line, lines.number());
  }
  return reader.Finish();
}

}  // namespace fragsmith
