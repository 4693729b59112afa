#include "botfiles/description_file.h"

#include <algorithm>
#include <map>
#include <optional>
#include <utility>

#include "botfiles/description_blocks.h"
#include "botfiles/game_text.h"
#include "botfiles/left_out.h"
#include "botfiles/value_format.h"
#include "model/characteristic_catalogue.h"
#include "model/file_names.h"
#include "support/code_page.h"
#include "support/localization.h"
#include "support/numbers.h"
#include "support/text.h"

namespace fragsmith {
namespace {

constexpr std::string_view kDefaultSkin = "default";

/// A text of a description file, as a number where it reads as one.
Value NumberOrText(std::string_view text) {
  const std::optional<double> number = NumberFromText(text);
  return number ? Value(*number) : Value(std::string(text));
}

struct ModelAndSkin {
  std::string model;
  std::string skin;
};

ModelAndSkin SplitModel(std::string_view text) {
  const std::size_t slash = text.find('/');
  if (slash == std::string_view::npos) {
    return {RemoveBlanks(text), std::string(kDefaultSkin)};
  }
  return {RemoveBlanks(text.substr(0, slash)),
          RemoveBlanks(text.substr(slash + 1))};
}

/// What follows the key in a line, the key being looked up in lower case.
std::optional<std::string_view> TextBehind(std::string_view line,
                                           std::string_view lower_line,
                                           std::string_view key) {
  const std::size_t offset = lower_line.find(key);
  if (offset == std::string_view::npos) return std::nullopt;
  return line.substr(offset + key.size());
}

std::string_view FieldName(ParameterId field) {
  switch (field.index()) {
    case kFunNameField.index():
      return "funname";
    case kRailColorField.index():
      return "color";
    case kModelField.index():
      return "model";
    case kSkinField.index():
      return "skin";
    default:
      return "arenaLord";
  }
}

constexpr ParameterId kReadFields[] = {
    kFunNameField, kRailColorField, kModelField, kSkinField, kArenaLordField};

/// One description on its way into a bot.
class DescriptionReader {
 public:
  DescriptionReader(const std::string& file, Bot& bot)
      : file_(file), left_out_(file), bot_(bot) {
    for (const ParameterId field : kReadFields) {
      plain_.insert_or_assign(field,
                              std::pair(bot.Parameter(field), std::size_t{0}));
    }
  }

  void TakeLine(std::string_view line, std::size_t number, std::size_t start) {
    line_ = number;
    line_span_ = {start, start + line.size()};
    if (report_.block.empty()) report_.block = line_span_;
    report_.block.end = line_span_.end;
    if (line == "{" || line == "}") return;
    const std::string without_tabs = RemoveTabs(line);
    const std::string lower = ToLower(without_tabs);
    const auto behind = [&](std::string_view key) {
      return TextBehind(without_tabs, lower, key);
    };
    if (const auto text = behind("funname")) {
      Store(kFunNameField, ToText(CleanValue(*text)));
    }
    if (const auto text = behind("color")) {
      Store(kRailColorField, NumberOrText(*text));
    }
    if (const auto text = behind("model")) TakeModel(without_tabs, *text);
    if (const auto text = behind("arenalord")) {
      // What is no number leaves the bot its old one.
      Store(kArenaLordField, std::string(*text));
    }
  }

  /// What the game reads.
  void TakePairs(const DescriptionBlock& block) {
    std::map<std::string, const DescriptionPair*> seen;
    NameList overwritten;
    std::size_t first_overwritten = 0;
    for (const DescriptionPair& pair : block.pairs) {
      const DescriptionPair*& earlier = seen[pair.key];
      if (earlier != nullptr && earlier->text != pair.text) {
        overwritten.Add(Localized("%1 \"%2\" (line %3)",
                                  {pair.key, ShownText(earlier->text),
                                   std::to_string(earlier->line)}));
        if (first_overwritten == 0) first_overwritten = earlier->line;
      }
      earlier = &pair;
      TakePair(pair);
    }
    if (!overwritten.empty()) {
      AddNote(first_overwritten,
              Localized("The file has several values where a bot has one. The "
                        "last one counts, and a save leaves out the others: "
                        "%1.",
                        {overwritten.Text()}));
    }
    const auto lacks = [&seen](const char* key) { return !seen.contains(key); };
    if (lacks("model") && !fed_by_.contains(kModelField)) {
      AddNote(block.first_line,
              Localized("There is no model, so the game takes its own (visor, "
                        "or sarge in OpenArena). A save writes \"%1\".",
                        {ShownText(bot_.Text(kModelField))}));
    }
    for (const char* const key : {"name", "aifile"}) {
      if (lacks(key)) {
        AddNote(block.first_line,
                Localized("There is no %1, without which the game cannot add "
                          "the bot. A save writes it.",
                          {key}));
      }
    }
  }

  void TakeComment(std::size_t line) { left_out_.AddComment(line); }

  void AddNote(std::size_t line, std::string text,
               NoteKind kind = NoteKind::kOther) {
    report_.notes.Add({file_, line, std::move(text), kind});
  }

  /// Compares what was read with what the game takes.
  DescriptionReport Finish() {
    report_.has_arena_lord = fed_by_.contains(kArenaLordField);
    for (const ParameterId field : kReadFields) Compare(field);
    if (ToNumber(bot_.Parameter(kArenaLordField)) != 0.0 &&
        ToNumber(bot_.Parameter(kArenaLordField)) != 1.0) {
      AddNote(fed_by_[kArenaLordField],
              Localized("arenaLord: %1 is neither 0 nor 1, and a save leaves "
                        "it out.",
                        {bot_.Text(kArenaLordField)}));
    }
    left_out_.Tell(report_.notes);
    return std::move(report_);
  }

 private:
  void Store(ParameterId field, Value value) {
    fed_by_[field] = line_;
    const Result<void> stored = bot_.SetParameter(field, std::move(value));
    if (!stored) {
      fed_by_.erase(field);
      refused_[field] = {line_, stored.error().what};
    } else {
      report_.spans.push_back({field, line_span_});
    }
  }

  void Compare(ParameterId field) {
    const auto fed = fed_by_.find(field);
    const auto& [plain, plain_line] = plain_.at(field);
    const Value& read = bot_.Parameter(field);
    const std::string_view what = FieldName(field);
    if (IsSameValue(read, plain)) {
      if (const auto refused = refused_.find(field);
          refused != refused_.end()) {
        const auto& [line, reason] = refused->second;
        AddNote(line,
                Localized("%1: %2 The bot keeps its value.", {what, reason}));
      }
      return;
    }
    AddNote(
        fed == fed_by_.end() ? plain_line : fed->second,
        Localized(R"(%1: read as "%2", but the game takes "%3".)",
                  {what, ShownText(ToText(read)), ShownText(ToText(plain))}),
        NoteKind::kOddValue);
    report_.plain_values.insert_or_assign(field, plain);
  }

  /// A path parts into model and skin at its slash. A line that has the key
  /// behind its only slash names a file, like "bots/supermodel_c.c".
  void TakeModel(std::string_view line, std::string_view behind) {
    if (!Contains(behind, "/") && Contains(line, "/")) return;
    ModelAndSkin names = SplitModel(behind);
    Store(kModelField, std::move(names.model));
    Store(kSkinField, std::move(names.skin));
  }

  void SetPlain(ParameterId field, Value value, std::size_t line) {
    plain_.insert_or_assign(field, std::pair(std::move(value), line));
  }

  void TakePair(const DescriptionPair& pair) {
    const auto& [key, text, line] = pair;
    const bool says_nothing = (key == "funname" && text.empty() &&
                               bot_.Text(kFunNameField).empty()) ||
                              (key == "color" && text == kNoRailColor) ||
                              (key == "arenalord" && text == "0");
    if (says_nothing) {
      AddNote(line, Localized("%1: \"%2\" is what a bot has without the line, "
                              "and a save leaves it out.",
                              {key, text}));
    }
    if (key == "funname") {
      SetPlain(kFunNameField, text, line);
    } else if (key == "color" || key == "color1") {
      // The game looks for "color1"; "color" is what we write.
      const bool is_read = key == "color1";
      if (is_read || !has_color1_) {
        SetPlain(kRailColorField, NumberOrText(text), line);
      }
      has_color1_ = has_color1_ || is_read;
      if (is_read) left_out_.AddName(key, line);
    } else if (key == "arenalord") {
      const std::optional<double> number = NumberFromText(text);
      const bool is_possible =
          number && Bot().SetParameter(kArenaLordField, *number);
      if (is_possible) SetPlain(kArenaLordField, *number, line);
    } else if (key == "model") {
      ModelAndSkin names = SplitModel(text);
      SetPlain(kModelField, std::move(names.model), line);
      SetPlain(kSkinField, std::move(names.skin), line);
    } else if (key == "name" || key == "aifile") {
      report_.names.push_back(
          {key, line, key == "name" ? kNameField : kCharacteristicFileField,
           text});
    } else {
      left_out_.AddName(pair.key, line);
    }
  }

  std::string file_;
  LeftOut left_out_;
  Bot& bot_;
  std::size_t line_ = 0;
  TextSpan line_span_;  ///< Of that line.
  DescriptionReport report_;
  bool has_color1_ = false;
  /// By field, with the line.
  std::map<ParameterId, std::pair<Value, std::size_t>> plain_;
  std::map<ParameterId, std::size_t> fed_by_;
  /// By field, with the line and the reason.
  std::map<ParameterId, std::pair<std::size_t, std::string>> refused_;
};

/// How well a block suits the bot: by its file, by its name, by what its files
/// are called.
int Match(const DescriptionBlock& block, const Bot& bot,
          std::string_view called) {
  const std::string named(called.empty() ? bot.Text(kChatNameField)
                                         : std::string(called));
  constexpr int kByFile = 4;
  constexpr int kByName = 2;
  int match = 0;
  const std::string file = block.Text("aifile");
  if (EqualIgnoringCase(file, CharacterPath(named))) match += kByFile;
  const std::string name = block.Text("name");
  if (EqualIgnoringCase(name, bot.Name())) match += kByName;
  if (EqualIgnoringCase(name, named)) ++match;
  return match;
}

void TellOthers(const DescriptionBlocks& file, const DescriptionBlock& own,
                DescriptionReader& reader) {
  NameList others;
  for (const DescriptionBlock& block : file.blocks) {
    if (&block == &own) continue;
    std::string name = block.Text("name");
    if (name.empty()) name = block.Text("{name");
    others.Add(Localized("\"%1\" (lines %2-%3)",
                         {ShownText(name), std::to_string(block.first_line),
                          std::to_string(block.last_line)}));
  }
  reader.AddNote(own.first_line,
                 Localized("The file describes several bots; this one is read "
                           "from here. A save leaves out the others: %1.",
                           {others.Text()}));
}

}  // namespace

std::string ModelFileName(std::string_view name) {
  const bool has_inner_capital =
      !name.empty() && std::any_of(name.begin() + 1, name.end(),
                                   [](char c) { return c >= 'A' && c <= 'Z'; });
  return has_inner_capital ? std::string(name) : ToLower(name);
}

std::string WriteDescriptionFile(const Bot& bot, const Author& author) {
  std::string text = HeaderComment(bot, author);
  const auto add_line = [&text](std::string_view line) {
    text += line;
    text += kLineEnd;
  };
  add_line("");
  add_line("{");
  add_line("name\t\t" + bot.Name());
  std::string model = ModelFileName(bot.Text(kModelField));
  const std::string skin = bot.Text(kSkinField);
  if (ToLower(skin) != kDefaultSkin) model += "/" + ModelFileName(skin);
  add_line("model\t\t" + model);
  const std::string fun_name = bot.FunName();
  if (!fun_name.empty()) add_line("funname\t" + fun_name);
  const std::string rail_color = bot.Text(kRailColorField);
  if (rail_color != kNoRailColor) add_line("color\t\t" + rail_color);
  add_line("aifile\tbots/" + bot.Text(kCharacteristicFileField));
  if (ToNumber(bot.Parameter(kArenaLordField)) == 1.0) {
    add_line("arenaLord\t" + bot.Text(kArenaLordField));
  }
  add_line("}");
  return text;
}

void ResetDescription(Bot& bot) {
  bot.Put(kFunNameField, std::string());
  bot.Put(kRailColorField, std::string(kNoRailColor));
}

DescriptionReport ReadDescriptionFile(std::string_view bytes,
                                      const std::string& file_name, Bot& bot,
                                      std::string_view called) {
  ResetDescription(bot);
  DescriptionReader reader(file_name, bot);
  const DescriptionBlocks file = ReadDescriptionBlocks(bytes);
  const std::size_t header_end = HeaderLineCount(bytes);
  for (const std::size_t line : file.comment_lines) {
    if (line > header_end) reader.TakeComment(line);
  }
  // The first of those that suit the bot best.
  const auto own = std::max_element(
      file.blocks.begin(), file.blocks.end(),
      [&](const DescriptionBlock& left, const DescriptionBlock& right) {
        return Match(left, bot, called) < Match(right, bot, called);
      });
  const bool is_one_of_many = file.blocks.size() > 1;
  if (is_one_of_many) TellOthers(file, *own, reader);
  LineReader lines(bytes);
  while (const std::optional<std::string_view> line = lines.Next()) {
    const std::size_t number = lines.number();
    if (!is_one_of_many ||
        (number >= own->first_line && number <= own->last_line)) {
      reader.TakeLine(*line, number,
                      static_cast<std::size_t>(line->data() - bytes.data()));
    }
  }
  if (own != file.blocks.end()) {
    reader.TakePairs(*own);
  } else {
    reader.AddNote(1,
                   Localized("The game finds no bot in this file, as nothing "
                             "stands between { and }. A save writes one."));
  }
  return reader.Finish();
}

}  // namespace fragsmith
