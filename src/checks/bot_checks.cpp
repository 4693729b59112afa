#include "checks/bot_checks.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

#include "chat/chat_line.h"
#include "chat/vocabulary.h"
#include "checks/characteristic_checks.h"
#include "checks/chat_checks.h"
#include "checks/chat_line_checks.h"
#include "checks/fun_name_checks.h"
#include "checks/identity_checks.h"
#include "checks/installation_checks.h"
#include "checks/weight_checks.h"
#include "model/characteristic_catalogue.h"
#include "session/identity_rules.h"
#include "support/localization.h"

namespace fragsmith {
namespace {

constexpr Severity kError = Severity::kError;
constexpr Severity kWarning = Severity::kWarning;
constexpr Severity kHint = Severity::kHint;

/// The reader of the files tells it with file and line.
constexpr bool kByFiles = true;
constexpr bool kOfChats = true;

constexpr std::array kChecks = {
    Check{"name-unusable", kError, CheckUnusableName},
    Check{"name-numeric", kError, CheckNumericName, kByFiles},
    Check{"name-too-long", kError, CheckLongName, kByFiles},
    Check{"name-forbidden-character", kError, CheckNameCharacters, kByFiles},
    Check{"name-accent", kError, CheckNameAccents, kByFiles},
    Check{"name-taken", kError, CheckNameIsTaken, kByFiles},
    Check{"fun-name-hides-bot", kError, CheckFunNameHidesBot, kByFiles},
    Check{"description-too-large", kError, CheckDescriptionSize, kByFiles},
    Check{"text-breaks-file", kError, CheckTextThatBreaksFile, kByFiles},
    Check{"level-mix-gap", kError, CheckLevelMix, kByFiles},
    Check{"weight-not-a-number", kError, CheckTextForWeight, kByFiles},
    Check{"no-weapon-at-start", kError, CheckWeaponAtStart, kByFiles},
    Check{"chat-quote", kError, CheckLineQuotes, kByFiles, kOfChats},
    Check{"chat-backslash", kError, CheckLineBackslashes, kByFiles, kOfChats},
    Check{"chat-control-character", kError, CheckLineControls, kByFiles,
          kOfChats},
    Check{"chat-too-long", kError, CheckLineLength, kByFiles, kOfChats},

    Check{kNotReadBack, kWarning, CheckReadBack},
    Check{"name-too-long-for-menus", kWarning, CheckNameForMenus},
    Check{kFilesShadowed, kWarning, CheckFilesAreShadowed},
    Check{"too-many-bots", kWarning, CheckDescriptionCount},
    Check{"model-not-installed", kWarning, CheckModelIsInstalled},
    Check{"model-unreadable", kWarning, CheckModelText},
    Check{"gender-unknown", kWarning, CheckGender},
    Check{"fun-name-forbidden-character", kWarning, CheckFunNameCharacters,
          kByFiles},
    Check{"fun-name-too-long", kWarning, CheckFunNameLength},
    Check{"fun-name-black", kWarning, CheckFunNameBlack},
    Check{"fun-name-empty", kWarning, CheckFunNameIsEmpty, kByFiles},
    Check{"fun-name-dots", kWarning, CheckFunNameDots},
    Check{"fun-name-unquoted", kWarning, CheckFunNameQuotes, kByFiles},
    Check{"rail-colour-not-read", kWarning, CheckRailColor},
    Check{"value-not-a-number", kWarning, CheckTextForNumber, kByFiles},
    Check{"value-negative", kWarning, CheckNegativeValue, kByFiles},
    Check{"reaction-time-clamped", kWarning, CheckReactionTime},
    Check{"value-clamped", kWarning, CheckValueBeyondRange},
    Check{"gauntlet-fighter", kWarning, CheckGauntletFighter},
    Check{"no-item-wanted", kWarning, CheckNoItems},
    Check{"weights-of-other-macros", kWarning, CheckOtherMacros},
    Check{"chat-cut-on-screen", kWarning, CheckLineOnScreen, !kByFiles,
          kOfChats},
    Check{"chat-characters-changed", kWarning, CheckLineCharacters, !kByFiles,
          kOfChats},
    Check{"chat-list-missing", kWarning, CheckLineWords, !kByFiles, kOfChats},
    Check{"chat-variable-empty", kWarning, CheckLineVariables, !kByFiles,
          kOfChats},
    Check{"chat-variable-unknown", kWarning, CheckLineBraces, kByFiles,
          kOfChats},

    Check{"arena-lord-not-read", kHint, CheckArenaLord},
    Check{"view-change-clamped", kHint, CheckViewChange},
    Check{"value-not-read", kHint, CheckUnreadValue},
    Check{"chat-never-heard", kHint, CheckTypeIsNeverHeard, !kByFiles,
          kOfChats},
    Check{"chat-without-chance", kHint, CheckLinesWithoutChance, !kByFiles,
          kOfChats},
    Check{"chat-without-lines", kHint, CheckChanceWithoutLines, !kByFiles,
          kOfChats},
    Check{"chat-enemy-suicide", kHint, CheckEnemySuicide, !kByFiles, kOfChats},
    Check{"default-character-decides", kHint, CheckDefaultCharacter},
    Check{"firing-speed-without-pauses", kHint, CheckFireThrottle},
    Check{"weapon-not-fetched", kHint, CheckWeaponNotFetched},
    Check{"owned-weights-not-used", kHint, CheckUnusedWeights},
    Check{"weight-scripts-missing", kHint, CheckWeightScripts},
    Check{"game-not-checked", kHint, CheckGameIsKnown},
};

CheckContext MakeContext(const Bot& bot, const GameData* game) {
  CheckContext context = {.bot = bot, .game = game, .lines = {}};
  for (const ChatTypeId type : kAllChatTypes) {
    const std::vector<std::string>& lines = bot.ChatLines(type);
    for (std::size_t line = 0; line < lines.size(); ++line) {
      if (lines[line].empty()) continue;  // Not written.
      context.lines.push_back(
          {.type = type,
           .line = ChatLineIndex(line),
           .text = &lines[line],
           .message = ReadChatMessage(ChatLineToFile(type, lines[line]))});
    }
  }
  return context;
}

}  // namespace

std::span<const Check> BotChecks() { return kChecks; }

const Check* FindCheck(std::string_view id) {
  const std::span<const Check> checks = BotChecks();
  const auto found = std::ranges::find(checks, id, &Check::id);
  return found == checks.end() ? nullptr : &*found;
}

std::vector<Finding> CheckBot(const Bot& bot, const GameData* game) {
  // Saving puts quotes on.
  Bot as_saved = bot;
  as_saved.Put(kFunNameField, FunNameForFile(bot.FunName()));
  const CheckContext context = MakeContext(as_saved, game);
  FindingList findings;
  for (const Check& check : kChecks) {
    findings.Begin(check);
    check.function(context, findings);
  }
  std::vector<Finding> sorted = findings.Take();
  // What a check finds is not always as grave as its row says.
  std::stable_sort(sorted.begin(), sorted.end(),
                   [](const Finding& left, const Finding& right) {
                     return left.severity < right.severity;
                   });
  return sorted;
}

BotFile KindOfPlace(const BotPlace& place) {
  if (std::holds_alternative<ChatPlace>(place)) return BotFile::kChat;
  const auto* const parameter = std::get_if<ParameterId>(&place);
  if (parameter == nullptr) return BotFile::kDescription;
  if (kWeaponWeightRange.Contains(*parameter)) return BotFile::kWeaponWeights;
  if (kItemWeightRange.Contains(*parameter)) return BotFile::kItemWeights;
  const bool is_characteristic = parameter->level() ||
                                 *parameter == kGenderField ||
                                 kChatRange.Contains(*parameter);
  return is_characteristic ? BotFile::kCharacteristics : BotFile::kDescription;
}

std::string FileOfPlace(const Bot& bot, const BotPlace& place) {
  if (const auto* on_disk = std::get_if<FilePlace>(&place)) {
    return on_disk->file;
  }
  switch (KindOfPlace(place)) {
    case BotFile::kChat:
      return bot.Text(kChatFileField);
    case BotFile::kWeaponWeights:
      return bot.Text(kWeaponFileField);
    case BotFile::kItemWeights:
      return bot.Text(kItemFileField);
    case BotFile::kCharacteristics:
      return bot.Text(kCharacteristicFileField);
    case BotFile::kDescription:
      break;
  }
  return bot.Text(kDescriptionFileField);
}

std::string ChatPlaceText(const BotPlace& place) {
  const auto* const chat = std::get_if<ChatPlace>(&place);
  if (chat == nullptr || !chat->line) return {};
  return Localized("%1, line %2", {QuotedChatType(chat->type),
                                   std::to_string(chat->line->number())});
}

std::string_view SeverityWord(Severity severity) {
  switch (severity) {
    case Severity::kError:
      return "error";
    case Severity::kWarning:
      return "warning";
    case Severity::kHint:
      return "hint";
  }
  return {};
}

}  // namespace fragsmith
