#include "editor/pages/chat_help.h"

#include <algorithm>
#include <array>
#include <span>
#include <string_view>

#include "chat/chat_catalogue.h"
#include "editor/pages/page_table.h"

namespace fragsmith {
namespace {

/// Stands for the parameter of types that are never heard.
constexpr int kNever = 0;

struct TypeHelp {
  std::string_view text;
  int chance;  ///< Parameter that gives the chance.
};

constexpr std::array<TypeHelp, kChatTypeCount> kTypeHelp = {{
    {"Spoken once, when the bot has just joined the game.", 35},
    {"Never heard: when the bot leaves, the game counts it as gone already.",
     kNever},
    {"Practically never spoken: only when a level begins anew without being "
     "loaded.",
     kNever},
    {"Spoken when a level ends and the bot is neither first nor last.", 34},
    {"Spoken when a level ends and the bot is first.", 34},
    {"Spoken when a level ends and the bot is last.", 34},
    {"Spoken when the bot is hit while it types a reply, but not by the host "
     "of a local game.",
     39},
    {"Spoken when the bot is hit in a fight and the enemy is out of sight, "
     "but not by the host of a local game. Seldom heard.",
     40},
    {"Spoken when the bot hits in a fight and the enemy is out of sight. "
     "Seldom heard.",
     41},
    {"Spoken after the bot was telefragged.", 37},
    {"Spoken after the bot fell to its death.", 37},
    {"Spoken after the bot died in lava.", 37},
    {"Spoken after the bot died in slime.", 37},
    {"Spoken after the bot drowned.", 37},
    {"Spoken after the bot died by its own weapon, was crushed or fell out of "
     "the map.",
     37},
    {"Spoken after every second death by the gauntlet; after the others the "
     "bot takes a text of \"Bot dies\".",
     37},
    {"Spoken after every second death by the railgun; after the others the "
     "bot takes a text of \"Bot dies\".",
     37},
    {"Spoken after every second death by the BFG10K; after the others the bot "
     "takes a text of \"Bot dies\".",
     37},
    {"Spoken after any other death by a player. \"Insult\" sets how often it "
     "is this text and not a positive one.",
     37},
    {"Spoken after any other death by a player. \"Insult\" sets how often it "
     "is a negative text and not this one.",
     37},
    {"Spoken a second after the bot killed with the railgun, when no other "
     "enemy is in sight.",
     36},
    {"Spoken a second after the bot killed with the gauntlet, when no other "
     "enemy is in sight.",
     36},
    {"Spoken a second after the bot telefragged somebody, when no other enemy "
     "is in sight.",
     36},
    {"Never spoken: the game does not ask for this type.", kNever},
    {"Spoken a second after any other kill, when no other enemy is in sight. "
     "\"Insult\" sets how often it is this text and not a positive one.",
     36},
    {"Spoken a second after any other kill, when no other enemy is in sight. "
     "\"Insult\" sets how often it is a negative text and not this one.",
     36},
    {"Spoken while the bot roams and sees no enemy. \"Misc\" sets how seldom "
     "it is this text.",
     42},
    {"Spoken while the bot roams and sees no enemy. \"Misc\" sets how often "
     "it is this text.",
     42},
}};

constexpr std::array<std::string_view, kChatPointers.size()> kPointerHelp = {
    "the name of some opponent",
    "the file name of the map, not its title",
    "the bot's own name",
    "the name of the player with the highest score",
    "the name of the player with the lowest score",
    "the name of the player who hit or killed the bot",
    "the name of the player whom the bot hit or killed",
    "the name of the weapon",
    "the name of the player whom the bot killed last; before its first kill "
    "it may be anybody's",
    "the name of some opponent",
    "the name of the player who killed the bot",
};

struct Exception {
  IndexRange types;
  int pointer;
  std::string_view text;
};

constexpr std::array<Exception, 5> kExceptions = {{
    {{2, 2}, 0, "nothing: the game leaves it empty here"},
    {{2, 2}, 1, "nothing: the game leaves it empty here"},
    {{4, 4}, 3, "the words \"[invalid var]\": here the bot itself is first"},
    {{5, 5}, 4, "the words \"[invalid var]\": here the bot itself is last"},
    {{20, 25}, 7, "nothing: the game leaves it empty after a kill"},
}};

/// The caption of a parameter of the page "Chat characteristics".
QString CharacteristicCaption(int index) {
  const std::span<const ControlRow> rows = page_table::kChatCharacteristics;
  const auto found = std::find_if(
      rows.begin(), rows.end(),
      [index](const ControlRow& row) { return row.index == index; });
  return found == rows.end() ? QString() : TableText(found->caption);
}

}  // namespace

QString ChatTypeHelp(int type) {
  const TypeHelp& help = kTypeHelp.at(static_cast<std::size_t>(type));
  QString text = TableText(help.text);
  if (help.chance == kNever) return text;
  return text +
         QStringLiteral(
             " \"%1\" on the page \"Chat "
             "characteristics\" sets the chance. In 25 seconds a bot speaks "
             "at most one line, and none in team games.")
             .arg(CharacteristicCaption(help.chance));
}

QString ChatPointerHelp(int type, int pointer) {
  const auto* const found = std::find_if(
      kExceptions.begin(), kExceptions.end(),
      [type, pointer](const Exception& exception) {
        return exception.types.Contains(type) && exception.pointer == pointer;
      });
  const std::string_view text =
      found == kExceptions.end()
          ? kPointerHelp.at(static_cast<std::size_t>(pointer))
          : found->text;
  return QStringLiteral("Inserts %1: in the game %2.")
      .arg(TableText(ChatPointerAt(pointer).Variable), TableText(text));
}

}  // namespace fragsmith
