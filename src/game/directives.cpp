// What GameSource makes of lines with # and of $.

#include <algorithm>
#include <array>
#include <utility>

#include "chat/vocabulary.h"
#include "game/advice.h"
#include "game/game_path.h"
#include "game/limits.h"
#include "game/preprocessor.h"
#include "model/file_names.h"
#include "support/code_page.h"
#include "support/localization.h"
#include "support/text.h"

namespace fragsmith {
namespace {

/// An #include counts as so many tokens, however small its file: the game's
/// own files have a handful of them.
constexpr std::size_t kWorkOfInclude = 5'000;

/// A file of the game that was most likely meant by one that is not there;
/// empty where there is none.
std::string_view MeantFile(std::string_view path, const GameFile& file) {
  constexpr std::array<std::string_view, 5> kFiles = {
      "chars.h", "inv.h", "teamplay.h", "fw_weap.c", "fw_items.c"};
  const std::string_view nearest = NearestWord(path, kFiles);
  if (!nearest.empty()) return nearest;
  const bool has_weights = Contains(file.bytes, "#define") &&
                           !Contains(file.bytes, "fw_weap.c") &&
                           !Contains(file.bytes, "fw_items.c");
  if (has_weights && file.game_path.ends_with(kWeaponWeightEnd))
    return "fw_weap.c";
  if (has_weights && file.game_path.ends_with(kItemWeightEnd))
    return "fw_items.c";
  return {};
}

}  // namespace

bool GameSource::Directive() {
  GameToken token;
  const bool has_word = ReadRaw(token);
  if (!has_word || token.lines_crossed > 0) {
    if (has_word) Unread(std::move(token));
    Complain("lone-hash", Here(),
             Localized("A # stands here without a command behind it, and the "
                       "game stops at it. Delete it, or put the text it "
                       "belongs to in quotation marks."));
    return false;
  }
  // The game looks for these even where it passes over everything else.
  if (token.Is("if")) return If(false);
  if (token.Is("ifdef")) return IfDefined(true);
  if (token.Is("ifndef")) return IfDefined(false);
  if (token.Is("elif")) return If(true);
  if (token.Is("else")) return Else();
  if (token.Is("endif")) return EndIf();
  const bool is_skipped = skipped_ > 0;
  if (token.Is("include")) return is_skipped || Include();
  if (token.Is("define")) return is_skipped || Define();
  if (token.Is("undef")) return is_skipped || Undefine();
  if (token.Is("pragma")) {
    Warn("pragma", token,
         Localized("The game does nothing with #pragma. Remove the line."));
    while (ReadRestOfLine(token)) {
    }
    return true;
  }
  if (token.Is("eval") || token.Is("evalfloat")) {
    if (is_skipped) return true;
    Calculation result;
    const bool is_float = token.Is("evalfloat");
    if (!Evaluate(Extent::kLine, is_float, result)) return false;
    PutNumber(result, is_float, token);
    return true;
  }
  if (is_skipped && (token.Is("error") || token.Is("line"))) return true;
  constexpr std::array<std::string_view, 10> kCommands = {
      "define", "include", "undef", "ifdef", "ifndef",
      "endif",  "else",    "elif",  "eval",  "evalfloat"};
  const std::string_view nearest = NearestWord(token.text, kCommands);
  Complain("unknown-command", token,
           Localized("The game knows no command %1 and stops at it.",
                     {"#" + ShownText(token.text)}) +
               " " +
               (nearest.empty()
                    ? Localized("A # may only begin a command such as #include "
                                "or #define; a comment begins with //.")
                    : Localized("Write %1.", {"#" + std::string(nearest)})));
  return false;
}

bool GameSource::Dollar() {
  GameToken token;
  const GameToken here = Here();
  const bool has_word = ReadRaw(token);
  if (!has_word || token.lines_crossed > 0 ||
      !(token.Is("evalint") || token.Is("evalfloat"))) {
    // The game reads it again when it forgets the error.
    if (has_word) Unread(std::move(token));
    Complain(
        "lone-dollar", here,
        Localized("A $ stands here that belongs to no $evalint or $evalfloat, "
                  "and the game stumbles over it. Delete it."));
    return false;
  }
  if (skipped_ > 0) return true;
  Calculation result;
  const bool is_float = token.Is("evalfloat");
  if (!Evaluate(Extent::kBrackets, is_float, result)) return false;
  PutNumber(result, is_float, token);
  return true;
}

bool GameSource::Include() {
  GameToken token;
  std::string path;
  const bool has_name = ReadRaw(token) && token.lines_crossed == 0;
  if (has_name && token.kind == GameToken::Kind::kString) {
    path = token.text;
  } else if (has_name && token.Is("<")) {
    GameToken part;
    while (ReadRestOfLine(part) && !part.Is(">")) path += part.text;
  } else {
    Complain(
        "include-without-name", Here(),
        Localized("The name of the file to include must stand behind #include, "
                  "on the same line and in double quotation marks (\")."));
    return false;
  }
  path = NormalGamePath(path);
  const bool is_open =
      std::any_of(scripts_.begin(), scripts_.end(), [&](const Script& script) {
        return EqualIgnoringCase(script.path, path);
      });
  if (is_open) {
    Warn("includes-itself", token,
         Localized("This file includes itself, and the game passes over that "
                   "line. Remove it."));
    return true;
  }
  // No name at all is the folder botfiles, and passes for an empty file.
  // One that is missing has cost a look-up as well.
  work_ += kWorkOfInclude;
  std::optional<std::string> bytes = path.empty() ? "" : game_(path);
  if (!bytes && ComplainOfJoinedName(token)) return false;
  if (!bytes && !findings_.is_game_known()) {
    Report("not-looked-at", Severity::kHint, token,
           Localized("The file \"%1\" is the game's. It was not looked at, as "
                     "no game folder is set.",
                     {InBotFiles(ShownText(path))}),
           path);
    is_uncertain_ = true;
    return true;
  }
  if (!bytes) {
    const std::string beside = InBots(path);
    const std::string above = path.substr(path.rfind('/') + 1);
    const std::string_view of_game = MeantFile(path, file_);
    std::string advice = Localized("Correct the name, or remove the line.");
    if (EqualIgnoringCase(of_game, path)) {
      advice = Localized(
          "It is one of the game's own, which the game folder does not have: "
          "perhaps that is another folder, or packages of the game are "
          "missing.");
    } else if (!of_game.empty()) {
      advice = Localized("Write %1.", {Quoted(of_game)});
    }
    for (const std::string& meant : {beside, above}) {
      if (meant == path) continue;
      work_ += kWorkOfInclude;
      if (game_(meant)) advice = Localized("Write %1.", {Quoted(meant)});
    }
    Complain("include-missing", token,
             Localized("There is no file botfiles/%1 to include. The game "
                       "looks in botfiles, not beside this file.",
                       {ShownText(path)}) +
                 " " + advice);
    return false;
  }
  work_ += bytes->size() / 16;
  Script& script = scripts_.emplace_back();
  script.path = path;
  script.bytes = std::move(*bytes);
  script.lexer.emplace(script.bytes);
  script.file = static_cast<int>(file_names_.size());
  include_lines_.push_back(
      token.file == 0 ? token.line
                      : include_lines_[static_cast<std::size_t>(token.file)]);
  file_names_.push_back(InBotFiles(ShownText(path)));
  return true;
}

/// A text below the line is joined to the name.
bool GameSource::ComplainOfJoinedName(GameToken name) {
  if (name.file != 0) return false;
  std::string_view text = file_.bytes;
  text = text.substr(name.span.begin, name.span.end - name.span.begin);
  const auto lines = std::count(text.begin(), text.end(), '\n');
  if (lines == 0) return false;
  name.line -= static_cast<int>(lines);
  Complain(
      "include-joined", name,
      Localized(
          "Behind the name of the file to include a text follows, in a line "
          "below, and the game makes one name of both: %1. Move the #include "
          "to where no text follows, in a chat file out of the chat type.",
          {Quoted(name.text)}));
  return true;
}

bool GameSource::Define() {
  Macro macro;
  const bool has_word = ReadRestOfLine(macro.name);
  if (has_word && macro.name.kind == GameToken::Kind::kNumber) {
    Complain(
        "define-without-name", macro.name,
        Localized("The name behind #define begins with a digit, and the game "
                  "takes it for the number %1. Begin the name with a letter.",
                  {Quoted(macro.name.text)}));
    return false;
  }
  if (!has_word || macro.name.kind != GameToken::Kind::kName) {
    Complain("define-without-name", Here(),
             Localized("A name must stand behind #define, on the same line and "
                       "without quotation marks."));
    return false;
  }
  const auto known = macros_.find(macro.name.text);
  if (known != macros_.end()) {
    // Game files that are included twice are nobody's fault.
    if (macro.name.file == 0) {
      Warn("defined-twice", macro.name,
           Localized("%1 is defined a second time; the game takes the last "
                     "value. Remove one of the lines.",
                     {macro.name.text}));
    }
    macros_.erase(known);
  }
  GameToken token;
  bool has_token = ReadRestOfLine(token);
  if (has_token && token.Is("(") && !token.blank_before) {
    if (!DefineParameters(macro)) {
      Complain(
          "define-brackets", macro.name,
          Localized("The game does not understand what stands in the brackets "
                    "behind %1: names with commas between them belong there.",
                    {macro.name.text}));
      return false;
    }
    has_token = ReadRestOfLine(token);
  }
  for (; has_token; has_token = ReadRestOfLine(token)) {
    if (token.Is(macro.name.text)) {
      Warn("defined-by-itself", token,
           Localized("%1 is defined by itself; the game leaves that out of its "
                     "value. Write its value in its place.",
                     {macro.name.text}));
    } else {
      // The end of an included file is no end of its last line.
      if (macro.name.file != 0 && token.file == 0) {
        Complain(
            "include-with-more", token,
            Localized("The game takes %1 behind the name of the included file "
                      "for a part of that file's last line. Remove it.",
                      {Quoted(token.text)}));
      }
      ReportOddity(token);
      macro.body.push_back(token);
    }
  }
  if (!macro.body.empty() &&
      (macro.body.front().Is("##") || macro.body.back().Is("##"))) {
    Complain("misplaced-merge", macro.name,
             Localized("A ## must stand between two words. Remove it."));
    return false;
  }
  if (macro.parameters.size() > limits::kMaxParameters) {
    Warn("macro-parameters", macro.name, TooManyParameters(macro));
  }
  macros_[macro.name.text] = std::move(macro);
  return true;
}

bool GameSource::DefineParameters(Macro& macro) {
  GameToken token;
  if (!ReadRestOfLine(token)) return false;
  if (token.Is(")")) return true;
  while (true) {
    const bool is_new =
        macro.parameters.try_emplace(token.text, macro.parameters.size())
            .second;
    if (token.kind != GameToken::Kind::kName || !is_new) return false;
    if (!ReadRestOfLine(token)) return false;
    if (token.Is(")")) return true;
    if (!token.Is(",") || !ReadRestOfLine(token)) return false;
  }
}

bool GameSource::Undefine() {
  GameToken token;
  if (!ReadRestOfLine(token) || token.kind != GameToken::Kind::kName) {
    Complain("undef-without-name", Here(),
             Localized("A name must stand behind #undef, on the same line."));
    return false;
  }
  macros_.erase(token.text);
  return true;
}

bool GameSource::IfDefined(bool wanted) {
  GameToken token;
  if (!ReadRestOfLine(token) || token.kind != GameToken::Kind::kName) {
    Complain(
        "condition-without-name", Here(),
        Localized(
            "A name must stand behind #ifdef and #ifndef, on the same line."));
    return false;
  }
  OpenCondition(macros_.contains(token.text) != wanted, token);
  return true;
}

bool GameSource::If(bool is_elif) {
  if (is_elif) {
    if (conditions_.empty() || conditions_.back().script != &scripts_.back() ||
        conditions_.back().is_else) {
      Complain("condition-without-if", Here(),
               Localized("There is no #if for this %1. Remove it.", {"#elif"}));
      return false;
    }
    CloseCondition();
  }
  const GameToken begin = Here();
  Calculation result;
  if (skipped_ == 0 && !Evaluate(Extent::kLine, false, result)) return false;
  OpenCondition(result.value == 0, begin);
  return true;
}

bool GameSource::Else() {
  if (conditions_.empty() || conditions_.back().script != &scripts_.back() ||
      conditions_.back().is_else) {
    Complain("condition-without-if", Here(),
             Localized("There is no #if for this %1. Remove it.", {"#else"}));
    return false;
  }
  Condition& condition = conditions_.back();
  condition.is_else = true;
  if (condition.is_skipped) {
    skipped_from_ = condition.begin;
    is_skipped_to_end_ = false;
  }
  condition.is_skipped = !condition.is_skipped;
  skipped_ += condition.is_skipped ? 1 : -1;
  return true;
}

bool GameSource::EndIf() {
  if (conditions_.empty() || conditions_.back().script != &scripts_.back()) {
    Complain("condition-without-if", Here(),
             Localized("There is no #if for this %1. Remove it.", {"#endif"}));
    return false;
  }
  CloseCondition();
  return true;
}

}  // namespace fragsmith
