#include "checks/identity_checks.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string>

#include "botfiles/characteristic_file.h"
#include "botfiles/description_file.h"
#include "chat/chat_file.h"
#include "chat/vocabulary.h"
#include "game/description_reader.h"
#include "game/limits.h"
#include "game/plain_letters.h"
#include "model/characteristic_catalogue.h"
#include "session/identity_rules.h"
#include "support/code_page.h"
#include "support/text.h"

namespace fragsmith {
namespace {

std::string Without(std::string text, std::string_view letters) {
  std::erase_if(text, [letters](char letter) {
    return Contains(letters, {&letter, 1});
  });
  return text;
}

std::vector<Mend> RenameTo(const std::string& name) {
  if (NameRefusal(name)) return {};
  return {SetTo(kNameField, name, "Call the bot " + Utf8FromGameText(name))};
}

std::string ShownName(const Bot& bot) { return Quoted(bot.Name()); }

/// The fun name as the bot holds it, quotes included, and what is in them.
struct FunName {
  explicit FunName(const Bot& bot)
      : inner(FunNameForBox(bot.FunName())),
        is_quoted(inner.size() < bot.FunName().size()) {}

  std::string inner;
  bool is_quoted;
};

/// Quotes stand around a fun name where the game needs them.
Mend FunNameTo(const std::string& inner, std::string title) {
  const bool needs_quotes = UnquotedWord(inner).size() < inner.size();
  return Safe(SetTo(kFunNameField, needs_quotes ? '"' + inner + '"' : inner,
                    std::move(title)));
}

bool IsColorCode(std::string_view text, std::size_t at) {
  return text[at] == '^' && at + 1 < text.size() && text[at + 1] != '^';
}

std::string WithoutColors(std::string_view text) {
  std::string plain;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (IsColorCode(text, at)) {
      ++at;
    } else {
      plain += text[at];
    }
  }
  return plain;
}

/// The game counts letters and digits alike, modulo 8, and takes out black.
bool IsBlackCode(std::string_view text, std::size_t at) {
  return IsColorCode(text, at) && Contains("08HPXhpx", text.substr(at + 1, 1));
}

std::string WithoutBlack(std::string_view text) {
  std::string kept;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (IsBlackCode(text, at)) {
      ++at;
    } else {
      kept += text[at];
    }
  }
  return kept;
}

constexpr ParameterId kTextFields[] = {
    kNameField,  kGenderField, kFunNameField,  kRailColorField,
    kModelField, kSkinField,   kArenaLordField};

/// What a load makes of the files that a save writes. Fields beside the name
/// stand in one file alone.
Bot ReadBack(const Bot& bot, ParameterId field) {
  Bot read;
  // The bot is wanted alone, not the notes on the way.
  if (field == kNameField || field == kGenderField) {
    (void)ReadCharacteristicFile(WriteCharacteristicFile(bot, {}), {},
                                 ReadIdentity::kYes, read);
  } else {
    (void)ReadDescriptionFile(WriteDescriptionFile(bot, {}), {}, read);
  }
  if (field == kNameField) {
    (void)ReadChatFile(WriteChatFile(bot, {}), {}, read);
    (void)ReadDescriptionFile(WriteDescriptionFile(bot, {}), {}, read);
  }
  return read;
}

/// The case of a model or skin follows from the list of models.
bool IsSameText(ParameterId field, const Bot& bot, const Bot& read) {
  if (field == kModelField || field == kSkinField) {
    return EqualIgnoringCase(bot.Text(field), read.Text(field));
  }
  return FunNameForBox(bot.Text(field)) == FunNameForBox(read.Text(field));
}

/// What comes out otherwise; nothing when all is as it was.
std::optional<std::string> ChangeOf(const Bot& bot, const Bot& read) {
  for (const ParameterId field : kTextFields) {
    if (IsSameText(field, bot, read)) continue;
    return std::string(ParameterName(field)) + " then is " +
           Quoted(read.Text(field));
  }
  for (const ChatTypeId type : kAllChatTypes) {
    if (bot.ChatLines(type) != read.ChatLines(type)) {
      return "there then are chat lines that nobody wrote";
    }
  }
  return std::nullopt;
}

}  // namespace

void CheckReadBack(const CheckContext& context, FindingList& findings) {
  for (const ParameterId field : kTextFields) {
    const std::string text = context.bot.Text(field);
    // Told of by other checks.
    if (IsThrownAway(FunNameForBox(text))) continue;
    if (field == kNameField && NameRefusal(text)) continue;
    Bot bot;
    if (bot.Text(field) == text) continue;
    bot.Put(field, context.bot.Parameter(field));
    const std::optional<std::string> change =
        ChangeOf(bot, ReadBack(bot, field));
    if (!change) continue;
    findings.Add(field, std::string(ParameterName(field)) + " " + Quoted(text) +
                            " does not survive saving and loading, because of "
                            "the way in which the files are read: " +
                            *change + ". Choose another.");
  }
}

void CheckUnusableName(const CheckContext& context, FindingList& findings) {
  const std::string name = context.bot.Name();
  if (IsThrownAway(name)) return;  // Told of by another check.
  const std::optional<Message> refusal = NameRefusal(name);
  if (!refusal) return;
  findings.Add(kNameField,
               refusal->text + " A bot of this name cannot be saved.",
               RenameTo(RemoveBlanks(name)));
}

void CheckNumericName(const CheckContext& context, FindingList& findings) {
  const std::string name = context.bot.Name();
  if (!ToNumber(name)) return;
  findings.Add(kNameField,
               "The name " + ShownName(context.bot) +
                   " is a number, and the game wants text there: it does not "
                   "find the bot's chats and does not add the bot. Put a "
                   "letter into the name.",
               RenameTo("Bot" + Without(name, "+-.")));
}

void CheckLongName(const CheckContext& context, FindingList& findings) {
  const std::string name = context.bot.Name();
  if (name.size() <= limits::kMaxName) return;
  findings.Add(kNameField,
               "The name has " + std::to_string(name.size()) +
                   " characters. The game has room for " +
                   std::to_string(limits::kMaxName) +
                   " in the names of "
                   "the bot's files and does not add a bot with more. "
                   "Shorten it.",
               RenameTo(name.substr(0, limits::kMaxNameInSkirmish)));
}

void CheckNameForMenus(const CheckContext& context, FindingList& findings) {
  const std::string name = context.bot.Name();
  if (name.size() <= limits::kMaxNameInSkirmish ||
      name.size() > limits::kMaxName)
    return;
  std::string menus = "the menu of a skirmish";
  if (name.size() > limits::kMaxNameInBotMenu) {
    menus += " and the menu \"add bots\"";
  }
  findings.Add(kNameField,
               "The name has " + std::to_string(name.size()) +
                   " characters, which is more than " + menus +
                   " can hold: there the bot cannot be picked. The console's "
                   "addbot command works. Up to " +
                   std::to_string(limits::kMaxNameInSkirmish) +
                   " characters fit everywhere.",
               RenameTo(name.substr(0, limits::kMaxNameInSkirmish)));
}

void CheckNameCharacters(const CheckContext& context, FindingList& findings) {
  const std::string name = context.bot.Name();
  if (!IsThrownAway(name)) return;
  findings.Add(kNameField,
               "The name " + ShownName(context.bot) +
                   " has a semicolon, a backslash or a double quote. The game "
                   "throws such a name away and does not know the bot. Take "
                   "the character out.",
               RenameTo(Without(name, kThrownAway)));
}

void CheckNameAccents(const CheckContext& context, FindingList& findings) {
  const std::string name = context.bot.Name();
  if (!HasAccents(name) || IsThrownAway(name)) return;
  findings.Add(kNameField,
               "The game reads the name " + ShownName(context.bot) +
                   " only up to its first letter with an accent, looks for "
                   "files of that shorter name and does not find them: it "
                   "does not add the bot. Use the letters A to Z without "
                   "accents.",
               RenameTo(InPlainLetters(name)));
}

void CheckFunNameCharacters(const CheckContext& context,
                            FindingList& findings) {
  const FunName name(context.bot);
  if (!IsThrownAway(name.inner)) return;
  findings.Add(kFunNameField,
               "The fun name has a semicolon, a backslash or a double quote "
               "in it. The game throws such a line away, and with a double "
               "quote what follows may be misread, too. Take the character "
               "out.",
               {FunNameTo(Without(name.inner, kThrownAway),
                          "Take it out of the fun name")});
}

void CheckFunNameLength(const CheckContext& context, FindingList& findings) {
  const FunName name(context.bot);
  if (name.inner.size() <= limits::kMaxPlayerName) return;
  findings.Add(
      kFunNameField,
      "The fun name has " + std::to_string(name.inner.size()) +
          " characters, colour codes included; the game shows the "
          "first " +
          std::to_string(limits::kMaxPlayerName) +
          " of them and cuts the rest.",
      {FunNameTo(name.inner.substr(0, limits::kMaxPlayerName),
                 "Cut the fun name after " +
                     std::to_string(limits::kMaxPlayerName) + " characters")});
}

void CheckFunNameBlack(const CheckContext& context, FindingList& findings) {
  const FunName name(context.bot);
  if (!name.inner.empty() && TrimBlanks(WithoutColors(name.inner)).empty() &&
      Contains(name.inner, "^")) {
    findings.Add(kFunNameField,
                 "The fun name has colours but no letters: the game calls the "
                 "bot \"UnnamedPlayer\".",
                 {FunNameTo({},
                            "Empty the fun name, so that the bot is shown "
                            "under its name")});
    return;
  }
  for (std::size_t at = 0; at < name.inner.size(); ++at) {
    if (!IsBlackCode(name.inner, at)) continue;
    findings.Add(kFunNameField,
                 "The fun name has the colour code \"" +
                     ShownText(name.inner.substr(at, 2)) +
                     "\", which stands for black. The game takes black out of "
                     "names: the letters behind it keep the colour before it.",
                 {FunNameTo(WithoutBlack(name.inner),
                            "Take black out of the fun name")});
    return;
  }
}

void CheckFunNameIsEmpty(const CheckContext& context, FindingList& findings) {
  const FunName name(context.bot);
  if (name.is_quoted || name.inner.empty()) return;
  const bool is_blank = TrimBlanksAndTabs(name.inner).empty();
  const bool is_comment =
      name.inner.starts_with("//") || name.inner.starts_with("/*");
  if (!is_blank && !is_comment) return;
  const std::string what =
      is_blank ? "The fun name is nothing but blanks"
               : "The fun name begins with \"" + name.inner.substr(0, 2) +
                     "\", which the game takes for a comment";
  std::vector<Mend> mends = {FunNameTo({}, "Empty the fun name")};
  if (name.inner.starts_with("//")) {
    mends.push_back(SetTo(kFunNameField, '"' + name.inner + '"',
                          "Put double quotes around the fun name"));
  }
  findings.Add(kFunNameField, what + ". The game calls the bot \"<NULL>\".",
               std::move(mends));
}

void CheckFunNameDots(const CheckContext& context, FindingList& findings) {
  const FunName name(context.bot);
  if (!HasAccents(name.inner) && !Contains(name.inner, "%")) return;
  findings.Add(kFunNameField,
               "The game shows letters with accents, other special signs and "
               "\"%\" in the fun name as dots.",
               {FunNameTo(Without(InPlainLetters(name.inner), "%"),
                          "Use plain letters in the fun name")});
}

void CheckFunNameQuotes(const CheckContext& context, FindingList& findings) {
  const FunName name(context.bot);
  if (name.is_quoted) return;
  const std::string_view read = UnquotedWord(name.inner);
  if (read.size() == name.inner.size() || read.empty()) return;
  findings.Add(kFunNameField,
               "Without double quotes around it, the game reads the fun name "
               "only up to \"" +
                   ShownText(read) + "\".",
               {Safe(SetTo(kFunNameField, '"' + name.inner + '"',
                           "Put double quotes around the fun name"))});
}

void CheckGender(const CheckContext& context, FindingList& findings) {
  const std::string gender = context.bot.Text(kGenderField);
  const char first = gender.empty() ? ' ' : gender.front();
  // Whatever begins otherwise is "it", but those two are meant so.
  if (!ToNumber(gender) && Contains("mfin", {&first, 1})) return;
  const char lower = ToLower(first);
  std::vector<Mend> mends;
  if (lower == 'm') {
    mends.push_back(
        Safe(SetTo(kGenderField, "male", "Set the gender to male")));
  }
  if (lower == 'f') {
    mends.push_back(
        Safe(SetTo(kGenderField, "female", "Set the gender to female")));
  }
  findings.Add(kGenderField,
               "The game takes the gender \"" + ShownText(gender) +
                   "\" as \"it\". It knows male and female in small letters "
                   "only.",
               std::move(mends));
}

void CheckModelText(const CheckContext& context, FindingList& findings) {
  for (const ParameterId field : {kModelField, kSkinField}) {
    const std::string text = context.bot.Text(field);
    const std::string name(ParameterName(field));
    if (IsThrownAway(text)) {
      findings.Add(field, name + " \"" + ShownText(text) +
                              "\" has a semicolon, a backslash or a double "
                              "quote: the game throws the line away and shows "
                              "the bot as another model.");
    } else if (UnquotedWord(text).size() < text.size()) {
      findings.Add(field, name + " \"" + ShownText(text) +
                              "\" has a blank or a letter with an accent, and "
                              "the game reads no further than that. Use plain "
                              "letters without blanks.");
    } else if (text.empty() && field == kModelField) {
      findings.Add(field,
                   "The bot has no model: the game shows it as one of its "
                   "own choice. Choose a model.");
    }
  }
}

void CheckRailColor(const CheckContext& context, FindingList& findings) {
  if (context.bot.Text(kRailColorField) == kNoRailColor) return;
  findings.Add(kRailColorField,
               "The game does not read the rail colour: it looks for the key "
               "\"color1\", and the file has \"color\". The bot's rail trail "
               "stays red.",
               {SetTo(kRailColorField, std::string(kNoRailColor),
                      "Set the rail colour to None")});
}

void CheckArenaLord(const CheckContext& context, FindingList& findings) {
  if (ToNumber(context.bot.Parameter(kArenaLordField)) == 0.0) return;
  findings.Add(kArenaLordField,
               "No known version of the game reads \"Arena lord\". It does no "
               "harm.",
               {SetTo(kArenaLordField, 0.0, "Set \"Arena lord\" to no")});
}

void CheckDescriptionSize(const CheckContext& context, FindingList& findings) {
  Complaints told;
  // What it complains of is wanted alone.
  (void)ReadGameDescription({.name = {},
                             .game_path = {},
                             .bytes = WriteDescriptionFile(context.bot, {})},
                            told);
  for (const Complaint& one : told.list()) {
    if (one.id == "description-too-large")
      findings.Add(kCommentField, one.text);
  }
}

}  // namespace fragsmith
