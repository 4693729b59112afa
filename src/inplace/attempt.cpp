#include "inplace/attempt.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "botfiles/game_text.h"
#include "model/characteristic_catalogue.h"
#include "support/localization.h"
#include "support/text.h"

namespace fragsmith {
void ExpectOurs(ParameterId id, std::string fact, Attempt& attempt) {
  attempt.expected[RuleFact(id)] = fact;
  attempt.expected[PlainFact(id)] = std::move(fact);
}

bool IsBehindKey(std::string_view bytes, ParameterId id, TextSpan span) {
  const LineOfFile line = LineAround(bytes, span.begin);
  const std::string_view before = TrimBlanksAndTabs(
      bytes.substr(line.text.begin, span.begin - line.text.begin));
  return before.ends_with(BareKey(id.index()));
}

TextSpan TokenAt(std::string_view bytes, TextSpan span) {
  const std::string_view token = FirstToken(TextAt(bytes, span));
  const auto begin = static_cast<std::size_t>(token.data() - bytes.data());
  return {begin, begin + token.size()};
}

bool IsOneLine(std::string_view bytes, TextSpan span) {
  return !span.empty() &&
         TextAt(bytes, span).find_first_of("\r\n") == std::string_view::npos;
}

TextSpan LastSpan(const PlanContext& context, ParameterId id) {
  const std::optional<TextSpan> span = context.reading.report.SpanOf(id);
  return span ? TokenAt(context.bytes, *span) : TextSpan();
}

bool IsInCondition(std::string_view bytes, std::size_t offset) {
  const std::vector<TextSpan> comments = CommentsIn(bytes);
  LineReader lines(bytes.substr(0, offset));
  int depth = 0;
  while (const std::optional<std::string_view> line = lines.Next()) {
    std::string_view text = TrimBlanksAndTabs(*line);
    const auto begin = static_cast<std::size_t>(text.data() - bytes.data());
    if (!text.starts_with('#') ||
        std::ranges::any_of(comments, [begin](TextSpan comment) {
          return comment.begin <= begin && begin < comment.end;
        })) {
      continue;
    }
    text = TrimBlanksAndTabs(text.substr(1));
    if (text.starts_with("if")) ++depth;
    if (text.starts_with("endif")) --depth;
  }
  return depth > 0;
}

void AddPadded(const PlanContext& context, ParameterId id, Plan& plan) {
  const std::string_view key = BareKey(id.index());
  const std::string padding(PaddedKey(id.index()).substr(key.size()));
  std::vector<Attempt> padded;
  for (const Attempt& attempt : plan.attempts) {
    Attempt other = attempt;
    for (Splice& splice : other.splices) {
      const std::string_view before =
          context.bytes.substr(0, splice.span.begin);
      const std::size_t end = before.find_last_not_of(" \t") + 1;
      if (splice.span.empty() || end == before.size() ||
          !before.substr(0, end).ends_with(key)) {
        continue;
      }
      splice.span.begin = end;
      splice.text.insert(0, padding);
    }
    padded.push_back(std::move(other));
  }
  plan.attempts.insert(plan.attempts.end(), padded.begin(), padded.end());
}

std::string TwoPlacesRefusal(std::string_view bytes, TextSpan of_game,
                             TextSpan of_load) {
  const std::size_t game_line = LineNumberAt(bytes, of_game.begin);
  const std::size_t load_line = LineNumberAt(bytes, of_load.begin);
  if (game_line == load_line) return {};
  const LineOfFile line = LineAround(bytes, of_load.begin);
  if (TrimBlanksAndTabs(TextAt(bytes, line.text)).ends_with('\\')) {
    return Localized(
        "Line %1 goes on in the next one, and a load reads no further than the "
        "line. Join the lines first.",
        {std::to_string(load_line)});
  }
  return Localized(
      "The game takes the value from line %1 of the file, and a load takes "
      "that of line %2. Remove one of them first.",
      {std::to_string(game_line), std::to_string(load_line)});
}

std::string BrokenRefusal(const FileReading& reading) {
  return Localized("The game does not take this file as it is: %1",
                   {reading.first_error});
}

std::vector<Splice> Insertions(std::string_view bytes,
                               const Neighbours& neighbours,
                               std::string_view padded_key,
                               std::string_view value) {
  std::vector<Splice> splices;
  const auto add = [&](TextSpan span, bool is_behind) {
    if (splices.size() >= kMaxInsertions) return;
    const LineOfFile line = LineAround(bytes, span.begin);
    std::string indent(IndentOf(bytes, line));
    // Behind a lone "{" the block's lines stand one step further in.
    if (TextAt(bytes, span) == "{") indent += '\t';
    const std::string_view before =
        bytes.substr(line.text.begin, span.begin - line.text.begin);
    std::vector<std::string> texts;
    const std::string padded = indent + std::string(padded_key);
    if (!before.empty() && before.ends_with(' ') && !Contains(before, "\t")) {
      std::string text = padded.substr(0, padded.find_last_not_of('\t') + 1);
      text.resize(std::max(text.size() + 1, before.size()), ' ');
      texts.push_back(text + std::string(value));
    }
    texts.push_back(padded + std::string(value));
    for (const std::string& text : texts) {
      splices.push_back(is_behind ? LinesBehind(bytes, line, {text})
                                  : LinesBefore(bytes, line, {text}));
    }
  };
  for (const TextSpan span : neighbours.before) add(span, true);
  for (const TextSpan span : neighbours.behind) add(span, false);
  return splices;
}

}  // namespace fragsmith
