#include "botfiles/description_file.h"

#include <algorithm>
#include <map>
#include <optional>
#include <utility>

#include "botfiles/game_text.h"
#include "botfiles/value_format.h"
#include "support/code_page.h"
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
  const std::size_t place = lower_line.find(key);
  if (place == std::string_view::npos) return std::nullopt;
  return line.substr(place + key.size());
}

std::string_view FieldName(int field) {
  switch (field) {
    case kFunNameField:
      return "funname";
    case kRailColorField:
      return "color";
    case kModelField:
      return "model";
    case kSkinField:
      return "skin";
    default:
      return "arenaLord";
  }
}

/// One description on its way into a bot.
class DescriptionReader {
 public:
  DescriptionReader(const std::string& file, Bot& bot)
      : file_(file), bot_(bot) {
    for (const int field : {kFunNameField, kRailColorField, kModelField,
                            kSkinField, kArenaLordField}) {
      plain_.emplace(field, bot.Parameter(field));
    }
  }

  void TakeLine(std::string_view line, std::size_t number) {
    line_ = number;
    TakePlainPairs(comments_.Strip(line));
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
    if (const auto text = behind("arenalord")) TakeArenaLord(*text);
  }

  /// Compares what was read with what the game takes.
  DescriptionReport Finish() {
    report_.has_arena_lord = fed_by_.contains(kArenaLordField);
    for (const auto& [field, line] : fed_by_) {
      const Value& read = bot_.Parameter(field);
      const Value& plain = plain_.at(field);
      if (IsSameValue(read, plain)) continue;
      report_.notes.Add({file_, line,
                         std::string(FieldName(field)) + ": read as \"" +
                             ShownText(ToText(read)) +
                             "\", but the game takes \"" +
                             ShownText(ToText(plain)) + "\"."});
      report_.plain_values.insert_or_assign(field, plain);
    }
    return std::move(report_);
  }

 private:
  void Store(int field, Value value) {
    (void)bot_.SetParameter(field, std::move(value));
    fed_by_[field] = line_;
  }

  /// A path parts into model and skin at its slash. A line that has the key
  /// behind its only slash names a file, like "bots/supermodel_c.c".
  void TakeModel(std::string_view line, std::string_view behind) {
    if (!Contains(behind, "/") && Contains(line, "/")) return;
    ModelAndSkin names = SplitModel(behind);
    Store(kModelField, std::move(names.model));
    Store(kSkinField, std::move(names.skin));
  }

  void TakeArenaLord(std::string_view text) {
    const Result<void> stored =
        bot_.SetParameter(kArenaLordField, std::string(text));
    if (stored) {
      fed_by_[kArenaLordField] = line_;
    } else {
      report_.notes.Add(
          {file_, line_,
           "arenaLord: " + stored.error().what + " The bot keeps its value."});
    }
  }

  /// The game reads pairs of a key and a value.
  void TakePlainPairs(std::string_view code) {
    while (true) {
      const std::string_view key = TakeToken(code);
      if (key.empty()) return;
      if (key == "{" || key == "}") continue;
      TakePlain(ToLower(key), PlainText(TakeToken(code)));
    }
  }

  static std::string_view TakeToken(std::string_view& code) {
    const std::string_view token = FirstToken(code);
    if (!token.empty()) {
      code.remove_prefix(
          static_cast<std::size_t>(token.data() + token.size() - code.data()));
    }
    return token;
  }

  static std::string PlainText(std::string_view token) {
    if (token.starts_with('"')) token.remove_prefix(1);
    if (token.ends_with('"')) token.remove_suffix(1);
    return std::string(token);
  }

  void TakePlain(std::string_view key, const std::string& text) {
    if (key == "funname") plain_[kFunNameField] = text;
    if (key == "color") plain_[kRailColorField] = NumberOrText(text);
    if (key == "arenalord" && NumberFromText(text)) {
      plain_[kArenaLordField] = *NumberFromText(text);
    }
    if (key == "model") {
      ModelAndSkin names = SplitModel(text);
      plain_[kModelField] = std::move(names.model);
      plain_[kSkinField] = std::move(names.skin);
    }
  }

  std::string file_;
  Bot& bot_;
  std::size_t line_ = 0;
  CommentStripper comments_;
  DescriptionReport report_;
  std::map<int, Value> plain_;
  std::map<int, std::size_t> fed_by_;
};

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
  (void)bot.SetParameter(kFunNameField, std::string());
  (void)bot.SetParameter(kRailColorField, std::string(kNoRailColor));
}

DescriptionReport ReadDescriptionFile(std::string_view bytes,
                                      const std::string& file_name, Bot& bot) {
  ResetDescription(bot);
  DescriptionReader reader(file_name, bot);
  LineReader lines(bytes);
  while (const std::optional<std::string_view> line = lines.Next()) {
    reader.TakeLine(*line, lines.number());
  }
  return reader.Finish();
}

}  // namespace fragsmith
