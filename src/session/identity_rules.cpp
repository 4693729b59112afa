#include "session/identity_rules.h"

#include "model/characteristic_catalogue.h"
#include "support/files.h"
#include "support/localization.h"
#include "support/numbers.h"
#include "support/text.h"

namespace fragsmith {
namespace {

Message Refusal(std::string title, std::string text) {
  return {std::move(title), std::move(text), MessageIcon::kExclamation};
}

bool IsEnclosedInQuotes(const std::string& text) {
  return text.size() >= 2 && text.front() == '"' && text.back() == '"';
}

}  // namespace

std::optional<Message> NameRefusal(const std::string& name) {
  if (name.empty()) {
    return Refusal("Selfawareness error!", "Bot must have a name!");
  }
  if (Contains(name, " ")) {
    return Refusal("Space error!",
                   "Bot name can't have any spaces. Use funname if you want to "
                   "use spaces.");
  }
  if (!IsFileName(name)) {
    std::string letters;
    for (const char letter : kForbiddenInFileNames) {
      if (!letters.empty()) letters += ' ';
      letters += letter;
    }
    return Refusal(Localized("Name error!"),
                   Localized("Bot name can't have any of these characters: %1",
                             {letters}));
  }
  return std::nullopt;
}

std::optional<Message> BoxRefusal(ParameterId field, const std::string& text) {
  if (field == kNameField) return NameRefusal(text);
  const bool is_version =
      field == kVersionMajorField || field == kVersionMinorField;
  if (is_version && !NumberFromText(text)) {
    return Refusal("Error!", "Value must be a number!");
  }
  return std::nullopt;
}

bool CheckBox(ParameterId field, const std::string& text, Bot& bot,
              Prompts& prompts) {
  if (const std::optional<Message> refusal = BoxRefusal(field, text)) {
    prompts.Show(*refusal);
    return false;
  }
  return bot
      .SetParameter(field, field == kFunNameField ? FunNameForFile(text) : text)
      .has_value();
}

std::optional<ParameterId> CheckAllIn(const IdentityTexts& texts, Bot& bot,
                                      Prompts& prompts) {
  for (const auto& [field, text] : texts) {
    if (CheckBox(field, text, bot, prompts)) continue;
    prompts.Show(
        Refusal("Error-or-or!", "Errors in bot! Correct before saving!"));
    return field;
  }
  return std::nullopt;
}

std::string FunNameForFile(const std::string& fun_name) {
  const bool needs_quotes =
      Contains(fun_name, " ") && !IsEnclosedInQuotes(fun_name);
  return needs_quotes ? '"' + fun_name + '"' : fun_name;
}

std::string FunNameForBox(const std::string& fun_name) {
  if (!IsEnclosedInQuotes(fun_name)) return fun_name;
  return fun_name.substr(1, fun_name.size() - 2);
}

IdentityTexts BoxTextsOf(const Bot& bot) {
  IdentityTexts texts;
  for (const ParameterId field : {kNameField, kFunNameField, kVersionMajorField,
                                  kVersionMinorField, kCommentField}) {
    texts.insert_or_assign(field, bot.Text(field));
  }
  texts.insert_or_assign(kFunNameField, FunNameForBox(bot.FunName()));
  return texts;
}

}  // namespace fragsmith
