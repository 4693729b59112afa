#include "checks/identity_checks.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

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
#include "support/localization.h"
#include "support/text.h"

namespace fragsmith {
namespace {

std::vector<Mend> RenameTo(const std::string& name) {
  if (NameRefusal(name)) return {};
  return {SetTo(kNameField, name,
                Localized("Call the bot %1", {Utf8FromGameText(name)}))};
}

std::string ShownName(const Bot& bot) { return Quoted(bot.Name()); }

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

/// Tells what a field with this text makes of the bot by saving and loading;
/// nothing when all is as it was.
std::optional<std::string> ChangeText(const Bot& bot, const Bot& read,
                                      ParameterId changed) {
  const std::string text = Quoted(bot.Text(changed));
  for (const ParameterId field : kTextFields) {
    if (IsSameText(field, bot, read)) continue;
    return Localized(
        "%1 %2 does not survive saving and loading, because of the way in "
        "which the files are read: %3 then is %4. Choose another.",
        {ParameterName(changed), text, ParameterName(field),
         Quoted(read.Text(field))});
  }
  for (const ChatTypeId type : kAllChatTypes) {
    if (bot.ChatLines(type) == read.ChatLines(type)) continue;
    return Localized(
        "%1 %2 does not survive saving and loading, because of the way in "
        "which the files are read: there then are chat lines that nobody "
        "wrote. Choose another.",
        {ParameterName(changed), text});
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
    std::optional<std::string> change =
        ChangeText(bot, ReadBack(bot, field), field);
    if (change) findings.Add(field, *std::move(change));
  }
}

void CheckUnusableName(const CheckContext& context, FindingList& findings) {
  const std::string name = context.bot.Name();
  if (IsThrownAway(name)) return;  // Told of by another check.
  const std::optional<Message> refusal = NameRefusal(name);
  if (!refusal) return;
  findings.Add(
      kNameField,
      refusal->text + " " + Localized("A bot of this name cannot be saved."),
      RenameTo(RemoveBlanks(name)));
}

void CheckNumericName(const CheckContext& context, FindingList& findings) {
  const std::string name = context.bot.Name();
  if (!ToNumber(name)) return;
  findings.Add(kNameField,
               Localized("The name %1 is a number, and the game wants text "
                         "there: it does not find the bot's chats and does not "
                         "add the bot. Put a letter into the name.",
                         {ShownName(context.bot)}),
               RenameTo("Bot" + Without(name, "+-.")));
}

void CheckLongName(const CheckContext& context, FindingList& findings) {
  const std::string name = context.bot.Name();
  if (name.size() <= limits::kMaxName) return;
  findings.Add(
      kNameField,
      Localized(
          "The name has %1 characters. The game has room for %2 in the names "
          "of the bot's files and does not add a bot with more. Shorten it.",
          {std::to_string(name.size()), std::to_string(limits::kMaxName)}),
      RenameTo(name.substr(0, limits::kMaxNameInSkirmish)));
}

std::string NameForMenusText(std::string_view name) {
  if (name.size() <= limits::kMaxNameInSkirmish) return {};
  const bool is_beyond_both = name.size() > limits::kMaxNameInBotMenu;
  return Localized(
      is_beyond_both
          ? Localizable(
                "The name has %1 characters, which is more than the menu of a "
                "skirmish and the menu \"add bots\" can hold: there the bot "
                "cannot be picked. The console's addbot command works. Up to "
                "%2 characters fit everywhere.")
          : Localizable("The name has %1 characters, which is more than the "
                        "menu of a skirmish can hold: there the bot cannot be "
                        "picked. The console's addbot command works. Up to %2 "
                        "characters fit everywhere."),
      {std::to_string(name.size()),
       std::to_string(limits::kMaxNameInSkirmish)});
}

void CheckNameForMenus(const CheckContext& context, FindingList& findings) {
  const std::string name = context.bot.Name();
  std::string text = NameForMenusText(name);
  if (text.empty() || name.size() > limits::kMaxName) return;
  findings.Add(kNameField, std::move(text),
               RenameTo(name.substr(0, limits::kMaxNameInSkirmish)));
}

void CheckNameCharacters(const CheckContext& context, FindingList& findings) {
  const std::string name = context.bot.Name();
  if (!IsThrownAway(name)) return;
  findings.Add(kNameField,
               Localized("The name %1 has a semicolon, a backslash or a double "
                         "quote. The game throws such a name away and does not "
                         "know the bot. Take the character out.",
                         {ShownName(context.bot)}),
               RenameTo(Without(name, kThrownAway)));
}

void CheckNameAccents(const CheckContext& context, FindingList& findings) {
  const std::string name = context.bot.Name();
  if (!HasAccents(name) || IsThrownAway(name)) return;
  findings.Add(kNameField,
               Localized("The game reads the name %1 only up to its first "
                         "letter with an accent, looks for files of that "
                         "shorter name and does not find them: it does not add "
                         "the bot. Use the letters A to Z without accents.",
                         {ShownName(context.bot)}),
               RenameTo(InPlainLetters(name)));
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
        Safe(SetTo(kGenderField, "male", Localized("Set the gender to male"))));
  }
  if (lower == 'f') {
    mends.push_back(Safe(
        SetTo(kGenderField, "female", Localized("Set the gender to female"))));
  }
  findings.Add(
      kGenderField,
      Localized("The game takes the gender \"%1\" as \"it\". It knows male and "
                "female in small letters only: write one of them, or it.",
                {ShownText(gender)}),
      std::move(mends));
}

void CheckModelText(const CheckContext& context, FindingList& findings) {
  for (const ParameterId field : {kModelField, kSkinField}) {
    const std::string text = context.bot.Text(field);
    const std::string_view name = ParameterName(field);
    if (IsThrownAway(text)) {
      findings.Add(field,
                   Localized("%1 \"%2\" has a semicolon, a backslash or a "
                             "double quote: the game throws the line away and "
                             "shows the bot as another model. Take it out.",
                             {name, ShownText(text)}));
    } else if (UnquotedWord(text).size() < text.size()) {
      findings.Add(
          field,
          Localized(
              "%1 \"%2\" has a blank or a letter with an accent, and the game "
              "reads no further than that. Use plain letters without blanks.",
              {name, ShownText(text)}));
    } else if (text.empty() && field == kModelField) {
      findings.Add(field,
                   Localized("The bot has no model: the game shows it as one "
                             "of its own choice. Choose a model."));
    }
  }
}

void CheckRailColor(const CheckContext& context, FindingList& findings) {
  if (context.bot.Text(kRailColorField) == kNoRailColor) return;
  findings.Add(
      kRailColorField,
      Localized("The game does not read %1: it looks for the key \"color1\", "
                "and the file has \"color\". The bot's rail trail stays red.",
                {QuotedName(kRailColorField)}),
      {SetTo(kRailColorField, std::string(kNoRailColor),
             Localized("Set %1 to None", {QuotedName(kRailColorField)}))});
}

void CheckArenaLord(const CheckContext& context, FindingList& findings) {
  if (ToNumber(context.bot.Parameter(kArenaLordField)) == 0.0) return;
  findings.Add(
      kArenaLordField,
      Localized("No known version of the game reads %1. It does no harm.",
                {QuotedName(kArenaLordField)}),
      {SetTo(kArenaLordField, 0.0,
             Localized("Set %1 to no", {QuotedName(kArenaLordField)}))});
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
