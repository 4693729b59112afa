#ifndef FRAGSMITH_TESTS_CHECKS_BOT_CHECK_CASES_H_
#define FRAGSMITH_TESTS_CHECKS_BOT_CHECK_CASES_H_

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "game/game_data.h"
#include "model/bot.h"
#include "model/characteristic_catalogue.h"
#include "session/presets.h"
#include "tests/support/ids.h"
#include "tests/support/set_parameter.h"

namespace fragsmith {

inline constexpr ChatTypeId kLevelStart{2};
inline constexpr ChatTypeId kVictory{4};
inline constexpr ChatTypeId kDeathInsult{18};
inline constexpr ChatTypeId kKillSuicide{23};
inline constexpr ChatTypeId kKillInsult{24};
inline constexpr ChatTypeId kKillPraise{25};
inline constexpr ChatTypeId kRandomMisc{27};

/// A bot that no check has anything to say about.
inline Bot CleanBot() {
  Bot bot = CreateAverageBot([] { return 0.5; });
  bot.ClearChats();
  const auto set = [&bot](const IdNumber& id, Value value) {
    ASSERT_TRUE(bot.SetParameter(id, std::move(value)));
  };
  set(kNameField, "Rookie");
  for (const Level level : kLevels) {
    set(ParameterId(level, kReactionTimeIndex), 0.5);
    set(ParameterId(level, kViewMaxChangeIndex), 360.0);
  }
  for (const int index : kChatRange) {
    set(index, 0.0);
  }
  set(44, 10.0);  // The gauntlet is the last resort.
  return bot;
}

inline GameData SomeGame() {
  GameData game;
  game.known_bots = {{"grism", {"scripts/bots.txt", {}, "bots/grism_c.c"}}};
  game.bot_packages = {{"shadow", {"pak6.pk3"}}, {"early", {"aaa.pk3"}}};
  for (int number = 10; number < 87; ++number) {
    game.description_files.insert("aaaaaa" + std::to_string(number) + ".bot");
  }
  game.models = {"sarge", "biker"};
  game.skins = {"sarge/default", "biker/default"};
  game.words =
      WordLists::Parse("food = { \"soup\"; \"a very " + std::string(100, 'x') +
                       " cake\"; }\n"
                       "TAUNT = { \"Ha!\"; } HELLO = { 0, \" says\"; }");
  game.has_weapon_script = true;
  game.has_item_script = true;
  game.uses_owned_weights = true;
  return game;
}

using Edit = std::function<void(Bot&, GameData&)>;

inline Edit Set(const IdNumber& index, Value value) {
  return [index, value](Bot& bot, GameData&) {
    ASSERT_TRUE(bot.SetParameter(Id(index), value));
  };
}

inline Edit SetAll(IndexRange range, double value) {
  return [range, value](Bot& bot, GameData&) {
    for (int index = range.first; index <= range.last; ++index) {
      ASSERT_TRUE(bot.SetParameter(Id(index), value));
    }
  };
}

/// The line, and the chance that the type needs.
inline Edit Chat(ChatTypeId type, const std::string& text) {
  return [type, text](Bot& bot, GameData&) {
    bot.SetChatLine(type, ChatLineIndex(0), text);
    for (int index = 34; index <= 42; ++index) {
      if (index != 38) Set(bot, Id(index), 0.5);
    }
  };
}

inline Edit Both(const Edit& first, const Edit& second) {
  return [first, second](Bot& bot, GameData& game) {
    first(bot, game);
    second(bot, game);
  };
}

inline Edit OnlyChance(const IdNumber& index) {
  return [index](Bot& bot, GameData& game) {
    SetAll({32, 42}, 0)(bot, game);
    Set(index, 0.5)(bot, game);
  };
}

inline Edit InGame(const std::function<void(GameData&)>& change) {
  return [change](Bot&, GameData& game) { change(game); };
}

/// What brings a finding, and what nearly does.
struct BotCheckCase {
  std::string id;
  Edit brings;
  Edit nearly;
};

inline const std::string kLong(31, 'x');
inline const std::string kText252(252, 'x');

inline std::vector<BotCheckCase> BotCheckCases() {
  const Edit own_weight = Set(64, 5.0);
  return {
      {"name-unusable", Set(0, "Roo kie"), Set(0, "Roo.kie")},
      {"name-unusable", Set(0, ""), Set(0, "R")},
      {"name-numeric", Set(0, "47"), Set(0, "47a")},
      {"name-numeric", Set(0, "1.5"), Set(0, "1.5.")},
      {"name-too-long", Set(0, std::string(46, 'x')),
       Set(0, std::string(45, 'x'))},
      {"name-too-long-for-menus", Set(0, std::string(16, 'x')),
       Set(0, std::string(15, 'x'))},
      {"name-forbidden-character", Set(0, "Roo;kie"), Set(0, "Roo:kie")},
      {"name-forbidden-character", Set(0, "\"R\""), Set(0, "'R'")},
      {"name-accent", Set(0, "R\xF6kie"), Set(0, "R~kie")},
      {"name-taken", Set(0, "gRISM"), Set(0, "Grisms")},
      {"name-taken", Both(Set(0, "Xaero"), InGame([](GameData& game) {
                            game.known_bots.clear();
                          })),
       Set(0, "Xaero")},
      {"fun-name-forbidden-character", Set(2, "\"a;b c\""), Set(2, "\"a b\"")},
      {"fun-name-forbidden-character", Set(2, "a\\b"), Set(2, "a/b")},
      {"fun-name-forbidden-character", Set(2, "The \"Great\""),
       Set(2, "\"The Great\"")},
      {"fun-name-hides-bot", Set(2, "\"ab"), Set(2, "ab\"")},
      {"fun-name-hides-bot", Set(2, "/*ab"), Set(2, "ab/x")},
      {"fun-name-hides-bot", Set(2, std::string(900, 'x')),
       Set(2, std::string(850, 'x'))},
      {"fun-name-hides-bot", Set(2, std::string(980, 'x')),
       Set(2, std::string(36, 'x'))},
      {"description-too-large", Set(9, std::string(8100, 'x')),
       Set(9, std::string(7000, 'x'))},
      {"text-breaks-file", Set(36, "a\"b"), Set(36, "0.5")},
      {"text-breaks-file", Set(kGenderField, "ma\\le"),
       Set(kGenderField, "male")},
      {"text-breaks-file", Set(kGenderField, "male\\"),
       Set(kGenderField, "male\\n")},
      {"level-mix-gap", Both(Set(107, 1.5), Set(407, 2.0)),
       Both(Set(107, 2.0), Set(407, 1.5))},
      {"level-mix-gap", Both(Set(406, 1.0), Set(506, 300.0)),
       Both(Set(406, 2.0), Set(506, 300.0))},
      {"level-mix-gap", Set(403, 7.0), Set(403, 1.0)},
      {"level-mix-gap", Set(403, 7.0), Set(411, 7.0)},
      {"weight-not-a-number", Set(45, "much"), Set(45, "1")},
      {"no-weapon-at-start", Both(Set(44, 0.0), Set(46, 0.0)), Set(46, 0.0)},
      {"no-weapon-at-start", SetAll(kWeaponWeightRange, 0.0),
       Both(SetAll(kWeaponWeightRange, 0.0), Set(46, 1.0))},
      {"chat-quote", Chat(kDeathInsult, "say \"hi\" to me"),
       Chat(kDeathInsult, "say ', \", food, \"'")},
      {"chat-backslash", Chat(kDeathInsult, "\\o/"),
       Chat(kDeathInsult, "\\\\o/ \\n")},
      {"chat-backslash", Chat(kDeathInsult, "end\\"),
       Chat(kDeathInsult, "end\\\\")},
      {"chat-backslash", Chat(kDeathInsult, "a \\ c"),
       Chat(kDeathInsult, "a \\\\ c")},
      {"chat-backslash", Chat(kDeathInsult, "\\o/ \"ho\" to"),
       Chat(kDeathInsult, "'ho' to")},
      {"chat-control-character", Chat(kDeathInsult, "a\nb"),
       Chat(kDeathInsult, "a\x01\rb\t")},
      {"chat-too-long", Chat(kDeathInsult, kText252 + "{ATTACKER}"),
       Chat(kDeathInsult, kText252 + "xxx")},
      {"chat-too-long",
       Chat(kDeathInsult, std::string(250, 'x') + "{ATTACKER}"),
       Chat(kDeathInsult, std::string(249, 'x') + "{ATTACKER}")},
      {"chat-too-long", Chat(kDeathInsult, kText252 + "{FOOD}"),
       Chat(kDeathInsult, std::string(248, 'x') + "{FOOD}")},

      {"files-shadowed", Set(0, "Shadow"), Set(0, "Early")},
      {"too-many-bots", Set(0, std::string(17, 'x')),
       Set(0, std::string(16, 'x'))},
      {"model-not-installed", Set(5, "Visor"), Set(5, "Biker")},
      {"model-not-installed", Set(6, "Red"), Set(6, "default")},
      {"model-unreadable", Set(5, "Sar ge"), Set(5, "Sar-ge")},
      {"model-unreadable", Set(6, "a;b"), Set(6, "a.b")},
      {"model-unreadable", Set(5, ""), Set(6, "")},
      {"gender-unknown", Set(1, "Male"), Set(1, "female")},
      {"gender-unknown", Set(1, ""), Set(1, "it")},
      {"identity-not-read-back", Set(0, "typebot"), Set(0, "tyebot")},
      {"identity-not-read-back", Set(2, "Supermodel"), Set(2, "Superman")},
      {"identity-not-read-back", Set(2, "\"My ^1Color\""),
       Set(2, "\"My ^1Hue\"")},
      {"identity-not-read-back", Set(2, "007"), Set(2, "007x")},
      {"identity-not-read-back", Set(5, "x/y"), Set(5, "Gargoyle")},
      {"identity-not-read-back", Set(1, "ma le"), Set(1, "female")},
      {"identity-not-read-back", Set(3, "supermodel"), Set(3, "redcolor")},
      {"identity-not-read-back", Set(10, 2.0), Set(10, 1.0)},
      {"fun-name-too-long", Set(2, std::string(36, 'x')),
       Set(2, "\"" + std::string(33, 'x') + " x\"")},
      {"fun-name-black", Set(2, "^1a^0b"), Set(2, "^1a^2b")},
      {"fun-name-black", Set(2, "^xa"), Set(2, "^ya")},
      {"fun-name-black", Set(2, "^1^2"), Set(2, "^1^2a")},
      {"fun-name-empty", Set(2, "//x"), Set(2, "\"//x\"")},
      {"fun-name-empty", Set(2, "\t"), Set(2, "")},
      {"fun-name-empty", Set(2, "\"\""), Set(2, "\" \"")},
      {"fun-name-dots", Set(2, "\"100%\""), Set(2, "100")},
      {"fun-name-dots", Set(2, "\"caf\xE9\""), Set(2, "\"cafe\"")},
      {"fun-name-unquoted", Set(2, "caf\xE9s"), Set(2, "The New")},
      {"rail-colour-not-read", Set(3, 5.0), Set(3, "None")},
      {"arena-lord-not-read", Set(10, 1.0), Set(10, 0.0)},
      {"value-not-a-number", Set(36, "much"), Set(36, "0")},
      {"value-negative", Set(45, -10.0), Set(45, 0.0)},
      {"value-negative", Set(104, -0.5), Set(124, -0.5)},
      {"reaction-time-clamped", Set(107, 1.25), Set(107, 1.0)},
      {"view-change-clamped", Set(506, 239.0), Set(506, 240.0)},
      {"value-clamped", Set(103, 1.5), Set(103, 1.0)},
      {"value-clamped", Set(406, 1801.0), Set(406, 1800.0)},
      {"value-not-read", Set(412, 0.25), Set(412, 0.5)},
      {"value-not-read", Set(31, 300.0), Set(31, 200.0)},
      {"gauntlet-fighter", Set(44, 50.0), Set(44, 49.0)},
      {"no-item-wanted", SetAll(kItemWeightRange, 0),
       SetAll({55, kItemWeightRange.last}, 0)},
      {"chat-never-heard", Chat(kKillSuicide, "ha"), Chat(kKillPraise, "ha")},
      {"chat-never-heard", Chat(TypeAt(1), "bye"), Chat(TypeAt(0), "hi")},
      {"chat-cut-on-screen", Chat(kDeathInsult, std::string(131, 'x')),
       Chat(kDeathInsult, std::string(130, 'x'))},
      {"chat-cut-on-screen",
       Chat(kDeathInsult, std::string(96, 'x') + "{ATTACKER}"),
       Chat(kDeathInsult, std::string(95, 'x') + "{ATTACKER}")},
      {"chat-cut-on-screen", Chat(kDeathInsult, kLong + "{FOOD}"),
       Chat(kDeathInsult, "{FOOD}")},
      {"chat-characters-changed", Chat(kDeathInsult, "caf\xE9; 5 %"),
       Chat(kDeathInsult, "cafe, 5 / ^1~x")},
      {"chat-characters-changed", Chat(kDeathInsult, "a  b"),
       Chat(kDeathInsult, "a b")},
      {"chat-characters-changed", Chat(kDeathInsult, "a\x01z"),
       Chat(kDeathInsult, "a z")},
      {"chat-characters-changed", Chat(kDeathInsult, "a\x1Bz"),
       Chat(kDeathInsult, "a-z")},
      {"chat-characters-changed", Chat(kDeathInsult, "see //x /*y*/"),
       Chat(kDeathInsult, "see / x * y")},
      {"chat-list-missing", Chat(kDeathInsult, "my {CURSE}"),
       Chat(kDeathInsult, "my {FOOD}")},
      {"chat-list-missing", Chat(kDeathInsult, "{{TAUNT3}}"),
       Chat(kDeathInsult, "{{TAUNT0}}")},
      {"chat-variable-empty", Chat(kKillInsult, "my {WEAPONUSED}"),
       Chat(kDeathInsult, "my {WEAPONUSED}")},
      {"chat-variable-empty", Chat(kLevelStart, "on {LEVELTITLE}"),
       Chat(kVictory, "on {LEVELTITLE}")},
      {"chat-variable-empty", Chat(kVictory, "{LEVELWINNER} won"),
       Chat(kVictory, "{LEVELLOSER} lost")},
      {"chat-variable-empty", Chat(kRandomMisc, "a\", 6, \"b"),
       Chat(kRandomMisc, "a\", 5, \"b")},
      {"chat-variable-unknown", Chat(kRandomMisc, "{ATTACKER}!"),
       Chat(kDeathInsult, "{ATTACKER}!")},
      {"chat-variable-unknown", Chat(kRandomMisc, "so {{TAUNT0}}"),
       Chat(kRandomMisc, "so } {")},

      {"chat-without-chance", Both(Chat(TypeAt(0), "hi"), Set(35, 0.0)),
       Chat(TypeAt(0), "hi")},
      {"chat-without-chance",
       Both(Both(Set(32, 1.0), Chat(TypeAt(19), "a")), Chat(TypeAt(9), "a")),
       Both(Both(Set(32, 0.9), Chat(TypeAt(19), "a")), Chat(TypeAt(9), "a"))},
      {"chat-without-lines", Set(35, 0.1),
       Both(Chat(TypeAt(0), "a"), OnlyChance(35))},
      {"chat-enemy-suicide", Set(38, 0.1), Set(38, 0.0)},
      {"default-character-decides", Set(420, 0.0), Set(420, 0.1)},
      {"firing-speed-without-pauses", Set(130, 0.1), Set(130, 0.2)},
      {"weapon-not-fetched", Both(Set(49, 51.0), Set(60, 0.0)),
       Both(Set(49, 50.0), Set(60, 0.0))},
      {"owned-weights-not-used",
       InGame([](GameData& game) { game.uses_owned_weights = false; }),
       Both(InGame([](GameData& game) { game.uses_owned_weights = false; }),
            SetAll({64, 71}, 0))},
      {"weights-of-other-macros", InGame([](GameData& game) {
         game.weapon_macros = GameMacros{"fuzw.c", {{"SGW", ParameterId(45)}}};
       }),
       own_weight},
      {"weight-scripts-missing",
       InGame([](GameData& game) { game.has_item_script = false; }),
       own_weight},
  };
}

}  // namespace fragsmith

#endif  // FRAGSMITH_TESTS_CHECKS_BOT_CHECK_CASES_H_
