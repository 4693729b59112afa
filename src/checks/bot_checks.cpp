#include "checks/bot_checks.h"

#include <array>
#include <cstddef>
#include <utility>

#include "chat/chat_line.h"
#include "checks/characteristic_checks.h"
#include "checks/chat_checks.h"
#include "checks/chat_line_checks.h"
#include "checks/game_checks.h"
#include "checks/identity_checks.h"
#include "checks/parameter_words.h"
#include "checks/weight_checks.h"
#include "model/characteristic_catalogue.h"
#include "session/identity_checks.h"

namespace fragsmith {
namespace {

constexpr Severity kError = Severity::kError;
constexpr Severity kWarning = Severity::kWarning;
constexpr Severity kHint = Severity::kHint;

/// The reader of the files tells it with file and line.
constexpr bool kByFiles = true;

constexpr std::array kChecks = {
    Check{"name-unusable", kError, CheckUnusableName,
          "a name that no file can have"},
    Check{"name-numeric", kError, CheckNumericName, "a name that is a number",
          kByFiles},
    Check{"name-too-long", kError, CheckLongName, "a name that is too long",
          kByFiles},
    Check{"name-forbidden-character", kError, CheckNameCharacters,
          "a character that the game refuses in a name", kByFiles},
    Check{"name-accent", kError, CheckNameAccents,
          "a letter with an accent in the name", kByFiles},
    Check{"name-taken", kError, CheckNameIsTaken,
          "the name of one of the game's own bots"},
    Check{"fun-name-forbidden-character", kError, CheckFunNameCharacters,
          "a character that the game refuses in a fun name", kByFiles},
    Check{"description-too-large", kError, CheckDescriptionSize,
          "a description file that is too large", kByFiles},
    Check{"text-breaks-file", kError, CheckTextThatBreaksFile,
          "a text in the place of a value that breaks the file", kByFiles},
    Check{"level-mix-gap", kError, CheckLevelMix,
          "skills without a value between two levels", kByFiles},
    Check{"weight-not-a-number", kError, CheckTextForWeight,
          "a weight that is no number", kByFiles},
    Check{"no-weapon-at-start", kError, CheckWeaponAtStart,
          "no weapon that the bot may use at the start", kByFiles},
    Check{"chat-quote", kError, CheckLineQuotes,
          "a chat line that the game cannot read", kByFiles},
    Check{"chat-backslash", kError, CheckLineBackslashes,
          "a backslash in a chat line", kByFiles},
    Check{"chat-control-character", kError, CheckLineControls,
          "a control character in a chat line", kByFiles},
    Check{"chat-too-long", kError, CheckLineLength,
          "a chat line that is too long for the game", kByFiles},

    Check{"name-too-long-for-menus", kWarning, CheckNameForMenus,
          "a name that does not fit into the game's menus"},
    Check{"files-shadowed", kWarning, CheckFilesAreShadowed,
          "files that another package hides"},
    Check{"too-many-bots", kWarning, CheckDescriptionCount,
          "more bots than the game can list"},
    Check{"model-not-installed", kWarning, CheckModelIsInstalled,
          "a model or skin that the game does not have"},
    Check{"model-unreadable", kWarning, CheckModelText,
          "a model or skin that the game cannot read"},
    Check{"gender-unknown", kWarning, CheckGender,
          "a gender that the game does not know"},
    Check{"fun-name-too-long", kWarning, CheckFunNameLength,
          "a fun name that the game cuts"},
    Check{"fun-name-black", kWarning, CheckFunNameBlack,
          "black, or nothing but colours, in the fun name"},
    Check{"fun-name-empty", kWarning, CheckFunNameIsEmpty,
          "a fun name in which the game sees nothing", kByFiles},
    Check{"fun-name-dots", kWarning, CheckFunNameDots,
          "signs in the fun name that the game cannot show"},
    Check{"fun-name-unquoted", kWarning, CheckFunNameQuotes,
          "a fun name of several words without quotes", kByFiles},
    Check{"rail-colour-not-read", kWarning, CheckRailColor,
          "a rail colour, which the game does not read"},
    Check{"arena-lord-not-read", kWarning, CheckArenaLord,
          "an arena lord, which the game does not read"},
    Check{"value-not-a-number", kWarning, CheckTextForNumber,
          "a text in the place of a number", kByFiles},
    Check{"value-negative", kWarning, CheckNegativeValue, "a negative value",
          kByFiles},
    Check{"reaction-time-clamped", kWarning, CheckReactionTime,
          "a reaction time above 1 second"},
    Check{"view-change-clamped", kWarning, CheckViewChange,
          "a view change below 240 degrees per second"},
    Check{"value-clamped", kWarning, CheckValueBeyondRange,
          "a value above the game's range"},
    Check{"value-not-read", kWarning, CheckUnreadValue,
          "a value that the game never reads"},
    Check{"gauntlet-fighter", kWarning, CheckGauntletFighter,
          "weights by which the bot fights with the gauntlet alone"},
    Check{"no-item-wanted", kWarning, CheckNoItems,
          "item weights that are all 0"},
    Check{"chat-never-heard", kWarning, CheckTypeIsNeverHeard,
          "chat lines that nobody ever hears"},
    Check{"chat-cut-on-screen", kWarning, CheckLineOnScreen,
          "a chat line that the screen cuts"},
    Check{"chat-characters-changed", kWarning, CheckLineCharacters,
          "characters in a chat line that the game changes"},
    Check{"chat-list-missing", kWarning, CheckLineWords,
          "a word list that the game does not have"},
    Check{"chat-variable-empty", kWarning, CheckLineVariables,
          "a variable that the situation does not fill"},
    Check{"chat-variable-unknown", kWarning, CheckLineBraces,
          "a variable that the game does not know"},

    Check{"chat-without-chance", kHint, CheckLinesWithoutChance,
          "chat lines whose chance is 0"},
    Check{"chat-without-lines", kHint, CheckChanceWithoutLines,
          "a chance to speak without lines"},
    Check{"chat-enemy-suicide", kHint, CheckEnemySuicide,
          "a characteristic that only silences the bot"},
    Check{"default-character-decides", kHint, CheckDefaultCharacter,
          "a weapon's value that is left out"},
    Check{"firing-speed-without-pauses", kHint, CheckFireThrottle,
          "a low firing speed, which means no pauses"},
    Check{"weapon-not-fetched", kHint, CheckWeaponNotFetched,
          "a favourite weapon that the bot does not fetch"},
    Check{"owned-weights-not-used", kHint, CheckUnusedWeights,
          "weights that the installed game does not use"},
    Check{"weight-scripts-missing", kHint, CheckWeightScripts,
          "scripts that the installed game lacks"},
    Check{"game-not-checked", kHint, CheckGameIsKnown,
          "no game folder to compare with"},
};

CheckContext MakeContext(const Bot& bot, const GameData* game) {
  CheckContext context = {.bot = bot, .game = game, .lines = {}};
  for (int type = 0; type < kChatTypeCount; ++type) {
    const std::vector<std::string>& lines = bot.ChatLines(type);
    for (std::size_t line = 0; line < lines.size(); ++line) {
      if (lines[line].empty()) continue;  // Not written.
      context.lines.push_back(
          {.type = type,
           .line = static_cast<int>(line),
           .text = &lines[line],
           .message = ReadChatMessage(ChatLineToFile(type, lines[line]))});
    }
  }
  return context;
}

}  // namespace

std::span<const Check> BotChecks() { return kChecks; }

std::vector<Finding> CheckBot(const Bot& bot, const GameData* game) {
  // Saving puts quotes on.
  Bot as_saved = bot;
  (void)as_saved.SetParameter(kFunNameField, FunNameForFile(bot.FunName()));
  const CheckContext context = MakeContext(as_saved, game);
  FindingList findings;
  for (const Check& check : kChecks) {
    findings.Begin(check);
    check.function(context, findings);
  }
  return findings.Take();
}

std::string FileOfPlace(const Bot& bot, const FindingPlace& place) {
  if (!place.file.empty()) return place.file;
  int field = kDescriptionFileField;
  if (place.chat_type != FindingPlace::kNone) {
    field = kChatFileIndex;
  } else if (kWeaponWeightRange.Contains(place.parameter)) {
    field = kWeaponWeightsIndex;
  } else if (kItemWeightRange.Contains(place.parameter)) {
    field = kItemWeightsIndex;
  } else if (place.parameter > 100 || place.parameter == kGenderIndex ||
             kChatRange.Contains(place.parameter)) {
    field = kCharacteristicFileField;
  }
  return bot.Text(field);
}

std::string ChatPlaceText(const FindingPlace& place) {
  if (place.chat_type == FindingPlace::kNone ||
      place.chat_line == FindingPlace::kNone) {
    return {};
  }
  return QuotedChatType(place.chat_type) + ", line " +
         std::to_string(place.chat_line + 1);
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
