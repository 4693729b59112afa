#include "checks/fun_name_checks.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "botfiles/description_file.h"
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

/// What the window calls the box.
std::string Field() { return QuotedName(kFunNameField); }

std::string QuotesTitle() {
  return Localized("Put double quotes around %1", {Field()});
}

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

/// The description that is written, as the game reads it.
DescriptionSet DescriptionInGame(const Bot& bot) {
  Complaints untold;
  std::vector<DescriptionSet> sets = ReadGameDescription(
      {.name = {}, .bytes = WriteDescriptionFile(bot, {})}, untold);
  return sets.empty() ? DescriptionSet() : std::move(sets.front());
}

bool FindsCharacter(const Bot& bot) {
  const DescriptionSet set = DescriptionInGame(bot);
  return !set.is_open && !set.HidesCharacter() && !set.Text("aifile").empty();
}

bool FunNameHidesBot(const Bot& bot) {
  if (FindsCharacter(bot)) return false;
  Bot without = bot;
  without.Put(kFunNameField, std::string());
  return FindsCharacter(without);
}

}  // namespace

void CheckFunNameHidesBot(const CheckContext& context, FindingList& findings) {
  if (!FunNameHidesBot(context.bot)) return;
  const std::string inner = FunName(context.bot).inner;
  const bool is_long = inner.size() > limits::kMaxFunName;
  std::string plain = Without(inner, is_long ? "" : "\"*");
  plain.resize(std::min(plain.size(), limits::kMaxPlayerName));
  findings.Add(
      kFunNameField,
      Localized(
          is_long
              ? Localizable(
                    "%1 has %2 characters, which leave the game no room for "
                    "the path of the bot's files: the game does not add the "
                    "bot, or adds another one. Shorten it to %3 characters.")
              : Localizable("%1 swallows what stands behind it in the bot's "
                            "description, also the path of the bot's files: "
                            "the game does not add the bot, or adds another "
                            "one. Take the double quote or the \"/*\" out."),
          {Field(), std::to_string(inner.size()),
           std::to_string(limits::kMaxPlayerName)}),
      {FunNameTo(plain, Localized(is_long ? Localizable("Shorten %1")
                                          : Localizable("Take it out of %1"),
                                  {Field()}))});
}

void CheckFunNameCharacters(const CheckContext& context,
                            FindingList& findings) {
  const FunName name(context.bot);
  if (!IsThrownAway(name.inner) || FunNameHidesBot(context.bot)) return;
  const DescriptionSet read = DescriptionInGame(context.bot);
  const std::string_view shown = read.Text("funname");
  findings.Add(
      kFunNameField,
      Localized(
          shown.empty()
              ? Localizable("%1 has a semicolon, a backslash or a double quote "
                            "in it: the game throws it away and shows the bot "
                            "under its name. Take the character out.")
              : Localizable(
                    "%1 has a semicolon, a backslash or a double quote in it: "
                    "the game reads it as %2. Take the character out."),
          {Field(), Quoted(shown)}),
      {FunNameTo(Without(name.inner, kThrownAway),
                 Localized("Take it out of %1", {Field()}))});
}

void CheckFunNameLength(const CheckContext& context, FindingList& findings) {
  const FunName name(context.bot);
  if (name.inner.size() <= limits::kMaxPlayerName ||
      FunNameHidesBot(context.bot)) {
    return;
  }
  const bool is_lost = name.inner.size() > limits::kMaxFunName;
  const std::string most = std::to_string(limits::kMaxPlayerName);
  findings.Add(
      kFunNameField,
      Localized(
          is_lost
              ? Localizable(
                    "%1 has %2 characters, colour codes included; the game has "
                    "no room for so many and throws it away. Shorten it.")
              : Localizable("%1 has %2 characters, colour codes included; the "
                            "game shows the first %3 of them and cuts the "
                            "rest. Shorten it."),
          {Field(), std::to_string(name.inner.size()), most}),
      {FunNameTo(name.inner.substr(0, limits::kMaxPlayerName),
                 Localized("Cut %1 after %2 characters", {Field(), most}))});
}

void CheckFunNameBlack(const CheckContext& context, FindingList& findings) {
  const FunName name(context.bot);
  if (!name.inner.empty() && TrimBlanks(WithoutColors(name.inner)).empty() &&
      Contains(name.inner, "^")) {
    findings.Add(
        kFunNameField,
        Localized("%1 has colours but no letters: the game calls the bot "
                  "\"UnnamedPlayer\".",
                  {Field()}),
        {FunNameTo(
            {}, Localized("Empty %1, so that the bot is shown under its name",
                          {Field()}))});
    return;
  }
  for (std::size_t at = 0; at < name.inner.size(); ++at) {
    if (!IsBlackCode(name.inner, at)) continue;
    findings.Add(
        kFunNameField,
        Localized("%1 has the colour code \"%2\", which stands for black. The "
                  "game takes black out of names: the letters behind it keep "
                  "the colour before it. Choose another colour.",
                  {Field(), ShownText(name.inner.substr(at, 2))}),
        {FunNameTo(WithoutBlack(name.inner),
                   Localized("Take black out of %1", {Field()}))});
    return;
  }
}

void CheckFunNameIsEmpty(const CheckContext& context, FindingList& findings) {
  const FunName name(context.bot);
  const DescriptionSet read = DescriptionInGame(context.bot);
  if (read.Text("funname") != kNoDescriptionValue ||
      name.inner.size() > limits::kMaxFunName || FunNameHidesBot(context.bot)) {
    return;
  }
  const bool is_blank = TrimBlanksAndTabs(name.inner).empty();
  std::vector<Mend> mends = {FunNameTo({}, Localized("Empty %1", {Field()}))};
  if (name.inner.starts_with("//")) {
    mends.push_back(
        SetTo(kFunNameField, '"' + name.inner + '"', QuotesTitle()));
  }
  findings.Add(
      kFunNameField,
      Localized(
          is_blank
              ? Localizable("%1 is nothing but blanks. The game calls the bot "
                            "\"<NULL>\". Write a name there, or leave it empty "
                            "to show the bot under its own.")
              : Localizable(
                    "%1 begins with \"%2\", which the game takes for a "
                    "comment. The game calls the bot \"<NULL>\". Write a name "
                    "there, or leave it empty to show the bot under its own."),
          {Field(), name.inner.substr(0, 2)}),
      std::move(mends));
}

void CheckFunNameDots(const CheckContext& context, FindingList& findings) {
  const FunName name(context.bot);
  if (!HasAccents(name.inner) && !Contains(name.inner, "%")) return;
  findings.Add(kFunNameField,
               Localized("The game shows letters with accents, other special "
                         "signs and \"%\" in %1 as dots. Use plain letters.",
                         {Field()}),
               {FunNameTo(Without(InPlainLetters(name.inner), "%"),
                          Localized("Use plain letters in %1", {Field()}))});
}

void CheckFunNameQuotes(const CheckContext& context, FindingList& findings) {
  const FunName name(context.bot);
  if (name.is_quoted) return;
  const std::string_view read = UnquotedWord(name.inner);
  if (read.size() == name.inner.size() || read.empty()) return;
  findings.Add(
      kFunNameField,
      Localized("Without double quotes around it, the game reads %1 only up to "
                "\"%2\". Put double quotes around it.",
                {Field(), ShownText(read)}),
      {Safe(SetTo(kFunNameField, '"' + name.inner + '"', QuotesTitle()))});
}

}  // namespace fragsmith
