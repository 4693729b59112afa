// Plans for the lines of a chat type.

#include <algorithm>
#include <cstddef>
#include <map>
#include <utility>

#include "chat/chat_catalogue.h"
#include "chat/chat_line.h"
#include "game/chat_reader.h"
#include "inplace/attempt.h"
#include "inplace/chat_statement.h"
#include "inplace/line_steps.h"
#include "inplace/lines_there.h"
#include "support/code_page.h"
#include "support/localization.h"
#include "support/text.h"

namespace fragsmith {
namespace {

using Lines = std::vector<std::string>;

/// A line that the file gets.
struct NewLine {
  std::string text;       ///< As the editor has it.
  std::string statement;  ///< As it stands in the file.
  std::string words;      ///< As the game takes it.
};

/// A line that is there, and what becomes of it.
struct OldLine : LineThere {
  bool is_gone = false;
  std::optional<NewLine> replacement = {};
  std::vector<NewLine> before = {};
  std::vector<NewLine> behind = {};
};

class ChatPlan {
 public:
  ChatPlan(const PlanContext& context, ChatTypeId type)
      : context_(context),
        type_(type),
        key_(ChatTypeAt(type).Key),
        chat_(context.reading.chat),
        used_(UsedBlock(chat_, key_)) {
    for (LineThere& line : LinesThere(context.reading, type)) {
      old_.push_back({std::move(line)});
    }
  }

  Plan Make() {
    std::optional<Lines> wanted = WithoutFixedLines();
    if (!wanted || !Walk(*wanted)) return {.attempts = {}, .refusal = refusal_};
    NoteLostSpellings(*wanted);
    for (const OldLine& line : old_) SpliceIn(line);
    ExpectUsedBlock();
    if (fresh_.empty()) {
      if (splices_.empty()) {
        return {.attempts = {}, .refusal = {}, .is_needless = true};
      }
      AddAttempt(std::nullopt);
    } else if (!used_) {
      AsNewType();
    } else if (!AddFreshToBlock()) {
      return {.attempts = {}, .refusal = refusal_};
    }
    plan_.notes = std::move(notes_);
    return std::move(plan_);
  }

 private:
  bool Refuse(std::string reason) {
    refusal_ = std::move(reason);
    return false;
  }

  /// The wanted lines but for those that stay where they are; nothing where
  /// one of these is not wanted.
  std::optional<Lines> WithoutFixedLines() {
    const Lines& all = context_.after.ChatLines(type_);
    // Lines that both lists have in the same row are the same, whatever others
    // say so too.
    Lines texts;
    for (const OldLine& line : old_) texts.push_back(line.text);
    std::vector<bool> is_fixed(all.size());
    std::vector<bool> is_kept(all.size());
    std::vector<bool> is_found(old_.size());
    for (const LineStep& step : StepsBetween(texts, all)) {
      if (!step.old_line || !step.new_line) continue;
      if (texts[*step.old_line] != all[*step.new_line]) continue;
      is_found[*step.old_line] = true;
      is_kept[*step.new_line] = true;
      is_fixed[*step.new_line] = !old_[*step.old_line].in_game;
    }
    std::map<std::string_view, std::vector<std::size_t>> positions;
    for (const bool is_wanted_first : {false, true}) {
      for (std::size_t at = 0; at < all.size(); ++at) {
        if (!is_fixed[at] && is_kept[at] != is_wanted_first) {
          positions[all[at]].push_back(at);
        }
      }
    }
    for (std::size_t at = old_.size(); at-- > 0;) {
      if (old_[at].in_game || is_found[at]) continue;
      const auto found = positions.find(old_[at].text);
      if (found != positions.end() && !found->second.empty()) {
        is_fixed[found->second.back()] = true;
        found->second.pop_back();
      } else if (!old_[at].text.empty()) {
        Refuse(old_[at].why_fixed);
        return std::nullopt;
      }
    }
    Lines wanted;
    for (std::size_t at = 0; at < all.size(); ++at) {
      if (!is_fixed[at]) wanted.push_back(all[at]);
    }
    return wanted;
  }

  /// Notes at the old lines what becomes of them.
  bool Walk(const Lines& wanted) {
    std::vector<OldLine*> own;
    Lines texts;
    for (OldLine& line : old_) {
      if (!line.in_game) continue;
      own.push_back(&line);
      texts.push_back(line.text);
    }
    OldLine* last = nullptr;  // Behind which new lines go.
    for (const LineStep& step : StepsBetween(texts, wanted)) {
      OldLine* const old = step.old_line ? own[*step.old_line] : nullptr;
      if (old != nullptr) {
        last = old;
        old->is_gone = !step.new_line;
      }
      if (!step.new_line) continue;
      const std::string& text = wanted[*step.new_line];
      if (old != nullptr && old->text == text) continue;
      std::optional<NewLine> line = Written(text);
      if (!line) return false;
      if (old != nullptr) {
        old->replacement = std::move(line);
      } else if (last != nullptr) {
        last->behind.push_back(std::move(*line));
      } else if (!own.empty()) {
        own.front()->before.push_back(std::move(*line));
      } else {
        fresh_.push_back(std::move(*line));
      }
    }
    return true;
  }

  /// Tells of lines that go and that a later edit would write as a name where
  /// they are texts now, or the other way round.
  void NoteLostSpellings(const Lines& wanted) {
    for (const OldLine& line : old_) {
      if (!line.is_gone && !line.replacement) continue;
      if (std::ranges::find(wanted, line.text) != wanted.end()) continue;
      const std::string written(TextAt(context_.bytes, line.statement));
      const std::string later =
          StatementFor(type_, line.text, {}, context_.readers.lists()).text;
      if (written.starts_with('"') == later.starts_with('"')) continue;
      notes_.push_back(Localized(
          "The line \"%1\" goes, which was written as %2. Given again by a "
          "later edit it would be %3, which the game takes for something else.",
          {ShownText(line.text), ShownText(written), ShownText(later)}));
    }
  }

  /// The line as the file and the game would have it; nothing, with the
  /// reason, where the game would not read it.
  std::optional<NewLine> Written(const std::string& text) {
    ChatStatement statement =
        StatementFor(type_, text, context_.spellings, context_.readers.lists());
    NewLine line = {text, std::move(statement.text), {}};
    if (!statement.note.empty()) notes_.push_back(std::move(statement.note));
    const GameFile file = {
        "line", "line",
        "chat \"c\" {\ntype \"t\" {\n" + line.statement + "\n}}"};
    Complaints complaints;
    GameChat chat;
    if (!ReadGameChat(file, "c", context_.readers.game(), complaints, &chat) ||
        chat.types.size() != 1 || chat.types.front().lines.size() != 1) {
      Refuse(WhyUnreadable(text, complaints));
      return std::nullopt;
    }
    const auto& list = complaints.list();
    if (std::any_of(list.begin(), list.end(), [](const Complaint& complaint) {
          return complaint.id == "unknown-escape";
        })) {
      Refuse(Localized(
          "The game does not know what the backslash in \"%1\" is to mean, "
          "complains and cuts the text there. Take it out, or write two of "
          "them.",
          {ShownText(text)}));
      return std::nullopt;
    }
    line.words = std::move(chat.types.front().lines.front().words);
    return line;
  }

  static std::string WhyUnreadable(const std::string& text,
                                   const Complaints& complaints) {
    if (Contains(text, "\"")) {
      return Localized(
          "The game's files have no double quote within a text. Take it out.");
    }
    if (text.find('\0') != std::string::npos) {
      return Localized(
          "The game's files end at a sign with the number 0. Take it out.");
    }
    const std::optional<Complaint> fault = complaints.FirstError(0);
    return fault ? Localized("The game would not read the new line: %1",
                             {fault->text})
                 : Localized("The game would not read the new line.");
  }

  static Lines Statements(const std::vector<NewLine>& lines,
                          const std::string& indent) {
    Lines statements;
    for (const NewLine& line : lines) {
      statements.push_back(indent + line.statement);
    }
    return statements;
  }

  /// Lines of ours, by where they stand; new ones in front of old ones.
  void AddOurs(std::size_t offset, bool is_old, const std::string& text) {
    ours_.push_back({{offset, is_old}, text});
  }

  void SpliceIn(const OldLine& line) {
    if (!line.is_gone) {
      AddOurs(line.span.begin, true,
              line.replacement ? line.replacement->text : line.text);
    }
    if (line.is_gone) {
      splices_.push_back(Removal(context_.bytes, line.statement));
    } else if (line.replacement) {
      splices_.push_back({line.statement, line.replacement->statement});
    }
    const LineOfFile around = LineAround(context_.bytes, line.span.begin);
    const std::string indent(IndentOf(context_.bytes, around));
    const auto add = [&](const std::vector<NewLine>& lines, bool is_behind) {
      if (lines.empty()) return;
      const Lines statements = Statements(lines, indent);
      splices_.push_back(is_behind
                             ? LinesBehind(context_.bytes, around, statements)
                             : LinesBefore(context_.bytes, around, statements));
      for (const NewLine& one : lines) {
        AddOurs(splices_.back().span.begin, false, one.text);
      }
    };
    add(line.before, false);
    add(line.behind, true);
  }

  /// What the game has of the block that it uses.
  void ExpectUsedBlock() {
    if (!used_) return;
    const std::vector<GameChatLine>& lines = chat_.types[*used_].lines;
    std::vector<const OldLine*> by_game(lines.size());
    for (const OldLine& line : old_) {
      if (line.in_game) by_game[*line.in_game] = &line;
    }
    std::vector<std::string> words;
    for (const NewLine& line : fresh_) words.push_back(line.words);
    const auto add = [&words](const std::vector<NewLine>& more) {
      for (const NewLine& line : more) words.push_back(line.words);
    };
    for (std::size_t at = 0; at < lines.size(); ++at) {
      const OldLine* const line = by_game[at];
      if (line != nullptr) add(line->before);
      if (line == nullptr || (!line->is_gone && !line->replacement)) {
        words.push_back(lines[at].words);
      } else if (line->replacement) {
        words.push_back(line->replacement->words);
      }
      if (line != nullptr) add(line->behind);
    }
    expected_[ChatTypeFacts(chat_)[*used_]] = FactOfWords(words);
  }

  /// The first lines of a block that is there.
  bool AddFreshToBlock() {
    const GameChatType& block = chat_.types[*used_];
    if (block.open.empty()) {
      return Refuse(
          Localized("The game takes the lines of this type from a file that is "
                    "included here."));
    }
    if (!block.lines.empty()) {
      return Refuse(
          Localized("The lines of this type are not where they should be."));
    }
    const LineOfFile line = LineAround(context_.bytes, block.open.begin);
    const std::string indent(IndentOf(context_.bytes, line));
    if (line.text.Holds(block.close)) {
      return Refuse(
          Localized("The braces of this type stand in one line. Put each of "
                    "them into a line of its own first."));
    }
    AddAttempt(
        LinesBehind(context_.bytes, line, Statements(fresh_, indent + '\t')));
    return true;
  }

  /// A block for the type: behind that of the type before it, as our writer
  /// puts it, or behind them all.
  void AsNewType() {
    TextSpan before;
    TextSpan last;
    for (const GameChatType& known : chat_.types) {
      if (!known.close.empty()) last = known.close;
    }
    for (const ChatTypeId type : kAllChatTypes) {
      if (type == type_) break;
      for (const GameChatType& known : chat_.types) {
        if (known.name == ChatTypeAt(type).Key && !known.close.empty()) {
          before = known.close;
        }
      }
    }
    std::vector<std::string> words;
    for (const NewLine& line : fresh_) words.push_back(line.words);
    expected_[ChatTypeFact(key_)] = FactOfWords(words);
    for (const TextSpan span : {before, last}) {
      if (!span.empty()) AddNewBlock(span, {});
    }
    if (last.empty() && !chat_.open.empty()) AddNewBlock(chat_.open, "\t");
    if (plan_.attempts.empty() && plan_.refusal.empty()) {
      plan_.refusal = Localized("The file has no chat that the game reads.");
    }
  }

  void AddNewBlock(TextSpan behind, std::string_view more_indent) {
    const LineOfFile line = LineAround(context_.bytes, behind.begin);
    std::string indent(IndentOf(context_.bytes, line));
    indent += more_indent;
    Lines lines = {"", indent + "type \"" + key_ + '"', indent + '{'};
    for (std::string& statement : Statements(fresh_, indent + '\t')) {
      lines.push_back(std::move(statement));
    }
    lines.push_back(indent + '}');
    AddAttempt(LinesBehind(context_.bytes, line, lines));
  }

  /// With the lines for which there was no other beside which they go.
  void AddAttempt(std::optional<Splice> fresh) {
    Attempt attempt = {.splices = splices_,
                       .expected = expected_,
                       .free = {},
                       .free_kinds = {},
                       .moving = {},
                       .numbers = {}};
    auto ours = ours_;
    if (fresh) {
      for (const NewLine& line : fresh_) {
        ours.push_back({{fresh->span.begin, false}, line.text});
      }
      attempt.splices.push_back(std::move(*fresh));
    }
    std::stable_sort(ours.begin(), ours.end(),
                     [](const auto& left, const auto& right) {
                       return left.first < right.first;
                     });
    Lines texts;
    for (auto& [position, text] : ours) texts.push_back(std::move(text));
    attempt.expected[RuleFact(type_)] = FactOf(texts);
    if (!HasWantedOrder(texts)) {
      const auto unread = std::ranges::find_if(old_, [](const OldLine& line) {
        return !line.in_game && line.elsewhere.empty();
      });
      if (unread != old_.end()) {
        plan_.refusal = context_.reading.first_error.empty()
                            ? unread->why_fixed
                            : BrokenRefusal(context_.reading);
        return;
      }
      NoteOrder();
    }
    plan_.attempts.push_back(std::move(attempt));
  }

  bool HasWantedOrder(const Lines& texts) const {
    Lines wanted = context_.after.ChatLines(type_);
    std::erase(wanted, std::string());
    return texts == wanted;
  }

  /// Lines of several blocks stay in their own, and a load takes these one
  /// behind the other.
  void NoteOrder() {
    const std::string note = Localized(
        "The lines of this situation stand in several blocks of the file, and "
        "each stays in its own: they come back in another order than given.");
    if (std::ranges::find(notes_, note) == notes_.end()) notes_.push_back(note);
  }

  const PlanContext& context_;
  ChatTypeId type_;
  std::string key_;
  const GameChat& chat_;
  std::optional<std::size_t> used_;  ///< Of the game's types.
  std::vector<OldLine> old_;
  std::vector<NewLine> fresh_;  ///< Of a type without lines.
  std::string refusal_;
  Lines notes_;
  std::vector<Splice> splices_;
  std::vector<std::pair<std::pair<std::size_t, bool>, std::string>> ours_;
  ExpectedFacts expected_;
  Plan plan_;
};

}  // namespace

Plan PlanChat(const PlanContext& context, ChatTypeId type) {
  return ChatPlan(context, type).Make();
}

}  // namespace fragsmith
