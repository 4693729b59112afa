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
#include "support/text.h"

namespace fragsmith {
namespace {

/// What the window calls the box.
std::string Field() { return QuotedName(kFunNameField); }

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
  const std::string why =
      is_long ? Field() + " has " + std::to_string(inner.size()) +
                    " characters, which leave the game no room for the path "
                    "of the bot's files"
              : Field() +
                    " swallows what stands behind it in the bot's "
                    "description, also the path of the bot's files";
  const std::string what =
      is_long ? "Shorten it to " + std::to_string(limits::kMaxPlayerName) +
                    " characters."
              : "Take the double quote or the \"/*\" out.";
  std::string plain = Without(inner, is_long ? "" : "\"*");
  plain.resize(std::min(plain.size(), limits::kMaxPlayerName));
  findings.Add(
      kFunNameField,
      why + ": the game does not add the bot, or adds another one. " + what,
      {FunNameTo(plain, (is_long ? "Shorten " : "Take it out of ") + Field())});
}

void CheckFunNameCharacters(const CheckContext& context,
                            FindingList& findings) {
  const FunName name(context.bot);
  if (!IsThrownAway(name.inner) || FunNameHidesBot(context.bot)) return;
  const DescriptionSet read = DescriptionInGame(context.bot);
  const std::string_view shown = read.Text("funname");
  findings.Add(
      kFunNameField,
      Field() +
          " has a semicolon, a backslash or a double quote "
          "in it: the game " +
          (shown.empty() ? "throws it away and shows the bot under its name"
                         : "reads it as " + Quoted(shown)) +
          ". Take the character out.",
      {FunNameTo(Without(name.inner, kThrownAway),
                 "Take it out of " + Field())});
}

void CheckFunNameLength(const CheckContext& context, FindingList& findings) {
  const FunName name(context.bot);
  if (name.inner.size() <= limits::kMaxPlayerName ||
      FunNameHidesBot(context.bot)) {
    return;
  }
  findings.Add(
      kFunNameField,
      Field() + " has " + std::to_string(name.inner.size()) +
          " characters, colour codes included; the game " +
          (name.inner.size() > limits::kMaxFunName
               ? "has no room for so many and throws it away. Shorten it."
               : "shows the first " + std::to_string(limits::kMaxPlayerName) +
                     " of them and cuts the rest. Shorten it."),
      {FunNameTo(name.inner.substr(0, limits::kMaxPlayerName),
                 "Cut " + Field() + " after " +
                     std::to_string(limits::kMaxPlayerName) + " characters")});
}

void CheckFunNameBlack(const CheckContext& context, FindingList& findings) {
  const FunName name(context.bot);
  if (!name.inner.empty() && TrimBlanks(WithoutColors(name.inner)).empty() &&
      Contains(name.inner, "^")) {
    findings.Add(
        kFunNameField,
        Field() +
            " has colours but no letters: the game calls the "
            "bot \"UnnamedPlayer\".",
        {FunNameTo({}, "Empty " + Field() +
                           ", so that the bot is shown under its name")});
    return;
  }
  for (std::size_t at = 0; at < name.inner.size(); ++at) {
    if (!IsBlackCode(name.inner, at)) continue;
    findings.Add(
        kFunNameField,
        Field() + " has the colour code \"" +
            ShownText(name.inner.substr(at, 2)) +
            "\", which stands for black. The game takes black out of "
            "names: the letters behind it keep the colour before it. Choose "
            "another colour.",
        {FunNameTo(WithoutBlack(name.inner), "Take black out of " + Field())});
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
  const std::string what =
      is_blank ? Field() + " is nothing but blanks"
               : Field() + " begins with \"" + name.inner.substr(0, 2) +
                     "\", which the game takes for a comment";
  std::vector<Mend> mends = {FunNameTo({}, "Empty " + Field())};
  if (name.inner.starts_with("//")) {
    mends.push_back(SetTo(kFunNameField, '"' + name.inner + '"',
                          "Put double quotes around " + Field()));
  }
  findings.Add(
      kFunNameField,
      what +
          ". The game calls the bot \"<NULL>\". Write a name there, or "
          "leave it empty to show the bot under its own.",
      std::move(mends));
}

void CheckFunNameDots(const CheckContext& context, FindingList& findings) {
  const FunName name(context.bot);
  if (!HasAccents(name.inner) && !Contains(name.inner, "%")) return;
  findings.Add(kFunNameField,
               "The game shows letters with accents, other special signs and "
               "\"%\" in " +
                   Field() + " as dots. Use plain letters.",
               {FunNameTo(Without(InPlainLetters(name.inner), "%"),
                          "Use plain letters in " + Field())});
}

void CheckFunNameQuotes(const CheckContext& context, FindingList& findings) {
  const FunName name(context.bot);
  if (name.is_quoted) return;
  const std::string_view read = UnquotedWord(name.inner);
  if (read.size() == name.inner.size() || read.empty()) return;
  findings.Add(kFunNameField,
               "Without double quotes around it, the game reads " + Field() +
                   " only up to \"" + ShownText(read) +
                   "\". Put double quotes around it.",
               {Safe(SetTo(kFunNameField, '"' + name.inner + '"',
                           "Put double quotes around " + Field()))});
}

}  // namespace fragsmith
