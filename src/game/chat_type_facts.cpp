#include "game/chat_type_facts.h"

#include <algorithm>
#include <array>
#include <iterator>

#include "game/number.h"
#include "model/characteristic_catalogue.h"
#include "support/localization.h"

namespace fragsmith {
namespace {

using enum ChatFill;
using Fills = std::array<ChatFill, kFilledVariables>;

constexpr ParameterId kMiscShare{33};
constexpr ParameterId kStartEnd{34};
constexpr ParameterId kEnterExit{35};
constexpr ParameterId kKill{36};
constexpr ParameterId kDeath{37};
constexpr ParameterId kHitTalking{39};
constexpr ParameterId kHitNoDeath{40};
constexpr ParameterId kHitNoKill{41};

constexpr Fills kEntry = {kOwnName, kOpponent, kInvalid, kInvalid, kMap};
constexpr Fills kOwnNameOnly = {kOwnName};
constexpr Fills kEnd = {kOwnName, kOpponent, kFirst, kLast, kMap};
constexpr Fills kVictory = {kOwnName, kOpponent, kInvalid, kLast, kMap};
constexpr Fills kDefeat = {kOwnName, kOpponent, kFirst, kInvalid, kMap};
constexpr Fills kHit = {kAttacker, kWeapon};
constexpr Fills kHits = {kEnemy, kWeapon};
constexpr Fills kAccident = {kOpponent};
constexpr Fills kTelefragged = {kKiller};
constexpr Fills kKilled = {kKiller, kWeapon};
constexpr Fills kKills = {kVictim};
constexpr Fills kNone = {};
constexpr Fills kRoaming = {kOpponent, kLastVictim, kInvalid,
                            kInvalid,  kMap,        kRandomWeapon};

// The rate of random lines is some 0.025 a second.
constexpr double kRandomFactor = 0.025;

constexpr std::array<ChatTypeFacts, kChatTypeCount> kFacts = {{
    {"", Localizable("Once, when the bot has just joined the game."),
     kEnterExit, 1, true, kEntry},
    {Localizable("Never"),
     Localizable("when the bot leaves, the game no longer counts it in."),
     kEnterExit, 1, false, kEntry},
    {Localizable("Practically never"),
     Localizable("only a level that begins again without being "
                 "loaded asks for it."),
     kStartEnd, 1, false, kOwnNameOnly},
    {"",
     Localizable("When a level ends and the bot is neither first nor last."),
     kStartEnd, 1, true, kEnd},
    {"", Localizable("When a level ends and the bot is first."), kStartEnd, 1,
     true, kVictory},
    {"", Localizable("When a level ends and the bot is last."), kStartEnd, 1,
     true, kDefeat},
    {Localizable("Seldom"),
     Localizable("when the bot is hit while it types an answer, but not by the "
                 "host of a local game."),
     kHitTalking, 0.5, true, kHit},
    {Localizable("Seldom"),
     Localizable(
         "when the bot is hit in a fight and lives, and its enemy is out "
         "of sight and not the host of a local game."),
     kHitNoDeath, 0.5, true, kHit},
    {Localizable("Seldom"),
     Localizable(
         "when the bot has hit its enemy, who lives and is out of sight."),
     kHitNoKill, 0.5, true, kHits},
    {"", Localizable("When somebody has telefragged the bot."), kDeath, 1, true,
     kTelefragged},
    {"", Localizable("When the bot has fallen to its death."), kDeath, 1, true,
     kAccident},
    {"", Localizable("When the bot has died in lava."), kDeath, 1, true,
     kAccident},
    {"", Localizable("When the bot has died in slime."), kDeath, 1, true,
     kAccident},
    {"", Localizable("When the bot has drowned."), kDeath, 1, true, kAccident},
    {"", Localizable("When the bot has killed itself or was crushed."), kDeath,
     1, true, kAccident},
    {"",
     Localizable(
         "Every second time when the bot was killed with the gauntlet."),
     kDeath, 1, true, kKilled},
    {"",
     Localizable("Every second time when the bot was killed with the railgun."),
     kDeath, 1, true, kKilled},
    {"",
     Localizable("Every second time when the bot was killed with the BFG10K."),
     kDeath, 1, true, kKilled},
    {"",
     Localizable(
         "After any other death; \"Insult\" is the share of this type against "
         "\"Bot dies (positive)\"."),
     kDeath, 1, true, kKilled},
    {"",
     Localizable("After any other death; \"Insult\" is the share of \"Bot dies "
                 "(negative)\" against this type."),
     kDeath, 1, true, kKilled},
    {Localizable("Seldom"),
     Localizable("a second after a kill with the railgun, when no enemy is in "
                 "sight."),
     kKill, 1, true, kKills},
    {Localizable("Seldom"),
     Localizable("a second after a kill with the gauntlet, when no enemy is in "
                 "sight."),
     kKill, 1, true, kKills},
    {Localizable("Seldom"),
     Localizable(
         "a second after the bot has telefragged somebody, when no enemy "
         "is in sight."),
     kKill, 1, true, kKills},
    {Localizable("Never"),
     Localizable("the game does not ask for lines of this type."), std::nullopt,
     0, false, kNone},
    {"",
     Localizable("A second after any other kill, when no enemy is in sight; "
                 "\"Insult\" is "
                 "the share of this type against \"Bot kills (positive)\"."),
     kKill, 1, true, kKills},
    {"",
     Localizable("A second after any other kill, when no enemy is in sight; "
                 "\"Insult\" is "
                 "the share of \"Bot kills (negative)\" against this type."),
     kKill, 1, true, kKills},
    {"",
     Localizable("Now and then while the bot roams and no enemy is in sight; "
                 "\"Misc\" is "
                 "the share of \"Random misc\" against this type."),
     kRandomChatRate, kRandomFactor, true, kRoaming},
    {"",
     Localizable("Now and then while the bot roams and no enemy is in sight; "
                 "\"Misc\" is "
                 "the share of this type against \"Random insult\"."),
     kRandomChatRate, kRandomFactor, true, kRoaming},
}};

}  // namespace

const ChatTypeFacts& FactsOfChatType(ChatTypeId type) {
  return kFacts.at(IndexOf(type));
}

std::string WhenText(const ChatTypeFacts& facts) {
  const std::string when = Localized(facts.when);
  return facts.rarity.empty() ? when : Localized(facts.rarity) + ": " + when;
}

ChatFill FillOf(ChatTypeId type, int variable) {
  const Fills& fills = FactsOfChatType(type).variables;
  const auto index = static_cast<std::size_t>(variable);
  return index < fills.size() ? fills.at(index) : kNothing;
}

std::string FillText(ChatFill fill) {
  switch (fill) {
    case kNothing:
      return Localized("nothing");
    case kInvalid:
      return Localized("the words \"[invalid var]\"");
    case kOwnName:
      return Localized("the bot's own name");
    case kOpponent:
      return Localized("the name of some opponent");
    case kFirst:
      return Localized("the name of the first in score");
    case kLast:
      return Localized("the name of the last in score");
    case kMap:
      return Localized("the file name of the map, not its title");
    case kAttacker:
      return Localized("the name of the attacker");
    case kEnemy:
      return Localized("the name of the enemy");
    case kKiller:
      return Localized("the name of the killer");
    case kVictim:
      return Localized("the name of the victim");
    case kLastVictim:
      return Localized(
          "the name of the bot's last victim, or of anybody before its first "
          "kill");
    case kWeapon:
      return Localized("the weapon that was used");
    case kRandomWeapon:
      return Localized("the name of some weapon");
  }
  return {};
}

bool IsDrawn(const Bot& bot, ChatTypeId type) {
  constexpr std::array kInsults = {ChatTypeId{18}, ChatTypeId{24}};
  constexpr std::array kPraises = {ChatTypeId{19}, ChatTypeId{25}};
  constexpr ChatTypeId kRandomInsult{26};
  constexpr ChatTypeId kRandomMisc{27};
  const double insults = NumberInGame(bot, kInsultShare);
  const double misc = NumberInGame(bot, kMiscShare);
  for (const ChatTypeId insult : kInsults) {
    if (type == insult) return insults > 0;
  }
  for (const ChatTypeId praise : kPraises) {
    if (type == praise) return insults < 1;
  }
  if (type == kRandomInsult) return misc < 1;
  if (type == kRandomMisc) return misc > 0;
  return FactsOfChatType(type).is_heard;
}

std::vector<ChatTypeId> TypesOfChance(ParameterId chance) {
  std::vector<ChatTypeId> types;
  std::copy_if(kAllChatTypes.begin(), kAllChatTypes.end(),
               std::back_inserter(types), [chance](ChatTypeId type) {
                 return FactsOfChatType(type).chance == chance;
               });
  return types;
}

}  // namespace fragsmith
