#include "inplace/lines_there.h"

#include <algorithm>
#include <set>
#include <utility>

#include "chat/chat_catalogue.h"
#include "chat/vocabulary.h"
#include "inplace/attempt.h"
#include "support/code_page.h"
#include "support/localization.h"
#include "support/text.h"

namespace fragsmith {
namespace {

/// A statement of the game and where it stands.
struct Statement {
  TextSpan span;
  std::size_t type = 0;
  std::size_t line = 0;
};

/// The statements of the game, by where they begin.
std::vector<Statement> StatementsOf(const GameChat& chat) {
  std::vector<Statement> statements;
  for (std::size_t type = 0; type < chat.types.size(); ++type) {
    const std::vector<GameChatLine>& lines = chat.types[type].lines;
    for (std::size_t line = 0; line < lines.size(); ++line) {
      if (lines[line].span.empty()) continue;
      statements.push_back({lines[line].span, type, line});
    }
  }
  std::sort(statements.begin(), statements.end(),
            [](const Statement& left, const Statement& right) {
              return left.span.begin < right.span.begin;
            });
  return statements;
}

std::string WhyElsewhere(const LineThere& line, std::string_view key) {
  if (!EqualIgnoringCase(line.elsewhere, key)) {
    return Localized(
        "The line \"%1\" stands in the block of the type \"%2\", and that is "
        "what the game takes it for: it has to stay in the list.",
        {ShownText(line.text), ShownText(line.elsewhere)});
  }
  return Localized(
      "The line \"%1\" stands in a block that the game does not use, as "
      "another one of this type follows: it has to stay in the list.",
      {ShownText(line.text)});
}

}  // namespace

std::vector<LineThere> LinesThere(const FileReading& reading, ChatTypeId type) {
  const std::string_view key = ChatTypeAt(type).Key;
  const std::optional<std::size_t> used = UsedBlock(reading.chat, key);
  const std::vector<Statement> statements = StatementsOf(reading.chat);
  const std::vector<std::string>& texts = reading.bot.ChatLines(type);
  std::vector<LineThere> lines;
  for (const ReadReport::ChatLineAt& at : reading.report.chat_lines) {
    if (at.type != type || lines.size() >= texts.size()) continue;
    LineThere& line = lines.emplace_back();
    line.text = texts[lines.size() - 1];
    line.span = at.span;
    const auto first =
        std::lower_bound(statements.begin(), statements.end(), at.span.begin,
                         [](const Statement& statement, std::size_t begin) {
                           return statement.span.begin < begin;
                         });
    const auto last = std::find_if_not(first, statements.end(),
                                       [&line](const Statement& statement) {
                                         return line.span.Holds(statement.span);
                                       });
    if (first == last) {
      const bool is_behind_fault =
          first == statements.end() && !reading.first_error.empty();
      line.why_fixed =
          is_behind_fault
              ? BrokenRefusal(reading)
              : Localized(
                    "The game does not read the line as one of this type.");
    } else if (std::distance(first, last) > 1) {
      line.why_fixed =
          Localized("Several lines of the game stand in one line of the file.");
    } else if (first->type != used) {
      line.elsewhere = reading.chat.types[first->type].name;
      line.why_fixed = WhyElsewhere(line, key);
    } else {
      line.in_game = first->line;
      line.statement = first->span;
    }
  }
  return lines;
}

/// The last block of a type is the one that the game uses.
std::optional<std::size_t> UsedBlock(const GameChat& chat,
                                     std::string_view key) {
  for (std::size_t type = chat.types.size(); type-- > 0;) {
    if (EqualIgnoringCase(chat.types[type].name, key)) return type;
  }
  return std::nullopt;
}

std::vector<LineThere> AddLinesElsewhere(const FileReading& reading,
                                         ChatTypeId type, Bot& after) {
  std::vector<std::string> wanted = after.ChatLines(type);
  std::vector<LineThere> left_out;
  // As an edit takes the last ones of those that are alike for these.
  for (LineThere& line : LinesThere(reading, type)) {
    if (line.elsewhere.empty() || line.text.empty()) continue;
    const auto found = std::ranges::find(wanted, line.text);
    if (found != wanted.end()) {
      wanted.erase(found);
      continue;
    }
    after.SetChatLine(type, after.EndOfChatLines(type), line.text);
    left_out.push_back(std::move(line));
  }
  return left_out;
}

}  // namespace fragsmith
