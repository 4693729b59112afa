#include "game/bot_kinds.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <span>

#include "chat/chat_commands.h"
#include "game/chat_type_facts.h"
#include "game/ready_lines.h"
#include "game/skill_mix.h"
#include "game/weapon_order.h"
#include "model/characteristic_catalogue.h"
#include "support/localization.h"
#include "support/random.h"

namespace fragsmith {
namespace {

/// What a characteristic is at the levels 1, 4 and 5.
struct SkillRow {
  int index;
  std::array<double, kLevels.size()> values;
};

/// What every kind has where it says nothing else. From the least to the most
/// that the game acts upon, but never so good that it cannot be beaten.
constexpr SkillRow kCommonSkills[] = {
    {2, {0.35, 0.6, 0.85}},   {3, {0.3, 0.65, 0.92}},  {4, {0.3, 0.6, 0.85}},
    {5, {0.3, 0.6, 0.9}},     {6, {240, 300, 360}},    {7, {0.9, 0.45, 0.15}},
    {8, {0.1, 0.15, 0.2}},    {9, {0.1, 0.2, 0.3}},    {10, {0.1, 0.5, 0.6}},
    {15, {0.05, 0.05, 0.05}}, {16, {0.3, 0.3, 0.3}},   {17, {0.3, 0.6, 0.85}},
    {18, {0.3, 0.6, 0.85}},   {19, {0.3, 0.6, 0.85}},  {20, {0.3, 0.6, 0.85}},
    {21, {0.25, 0.5, 0.75}},  {22, {0.3, 0.55, 0.8}},  {23, {0.3, 0.6, 0.8}},
    {24, {0.3, 0.6, 0.85}},   {25, {0.3, 0.6, 0.85}},  {26, {0.35, 0.7, 0.9}},
    {27, {0.3, 0.6, 0.85}},   {28, {0.35, 0.65, 0.9}}, {29, {0.3, 0.65, 0.9}},
    {30, {0.5, 0.9, 1}},
};

constexpr SkillRow kSniperSkills[] = {
    {8, {0.3, 0.4, 0.5}},  {9, {0.05, 0.05, 0.1}}, {15, {0.3, 0.35, 0.4}},
    {17, {0.5, 0.8, 1}},   {18, {0.35, 0.7, 0.9}}, {24, {0.45, 0.8, 0.96}},
    {2, {0.35, 0.5, 0.7}},
};

constexpr SkillRow kRusherSkills[] = {
    {2, {0.45, 0.75, 0.95}}, {8, {0.05, 0.05, 0.05}}, {9, {0.3, 0.5, 0.7}},
    {10, {0.5, 0.7, 0.9}},   {15, {0, 0, 0}},         {16, {0.6, 0.6, 0.6}},
    {19, {0.4, 0.7, 0.92}},  {20, {0.4, 0.7, 0.92}},  {22, {0.4, 0.7, 0.92}},
    {26, {0.45, 0.8, 0.95}},
};

constexpr SkillRow kCamperSkills[] = {
    {2, {0.3, 0.5, 0.75}},  {8, {0.4, 0.5, 0.6}},    {9, {0.05, 0.05, 0.1}},
    {10, {0.1, 0.3, 0.4}},  {15, {0.6, 0.75, 0.9}},  {17, {0.4, 0.7, 0.95}},
    {20, {0.35, 0.7, 0.9}}, {24, {0.4, 0.75, 0.92}},
};

/// Health, armor, then the items from the teleporter to the flag.
constexpr int kOtherItems = 11;

struct KindRow {
  BotKindText text;
  std::span<const SkillRow> skills;  ///< In the place of the common ones.
  /// Of fighting with each weapon, in the order of the catalogue: gauntlet,
  /// shotgun, machinegun, grenades, rockets, railgun, BFG, lightning, plasma,
  /// grapple. What reaches far may weigh less than what does not: beyond its
  /// reach a weapon is not drawn at all.
  std::array<double, 10> weapons;
  std::array<double, kOtherItems> items;
  double insults;
};

constexpr std::array<KindRow, 4> kKinds = {{
    {{"sniper", Localizable("Sniper"),
      Localizable("Keeps its distance, railgun first.")},
     kSniperSkills,
     {10, 150, 90, 60, 240, 400, 220, 200, 180, 5},
     {3, 3, 150, 100, 250, 80, 60, 350, 150, 120, 400},
     0.4},
    {{"rusher", Localizable("Rusher"),
      Localizable("Close and fast: lightning, shotgun, rockets.")},
     kRusherSkills,
     {30, 360, 90, 150, 320, 200, 240, 400, 260, 5},
     {2.5, 2, 140, 80, 450, 100, 350, 150, 250, 60, 450},
     0.7},
    {{"camper", Localizable("Camper"),
      Localizable("Waits where the good things are.")},
     kCamperSkills,
     {10, 220, 100, 160, 340, 380, 300, 200, 180, 5},
     {4, 3, 180, 190, 300, 150, 50, 300, 350, 50, 400},
     0.5},
    {{"all-rounder", Localizable("All-rounder"),
      Localizable("A bit of everything, the right weapon for each distance.")},
     {},
     {10, 330, 110, 140, 360, 280, 260, 400, 300, 5},
     {3, 2.5, 150, 120, 350, 100, 150, 200, 250, 100, 450},
     0.3},
}};

constexpr BotKindText kSurpriseText = {
    "surprise", Localizable("Surprise me"),
    Localizable("Drawn by lot, always playable.")};

constexpr int kFirstItem = kOwnedPickupRange.last + 1;
constexpr int kMachinegunPickup = 57;

double Hundredths(double value) { return std::round(value * 100) / 100; }

void PutSkills(std::span<const SkillRow> rows, Bot& bot) {
  for (const SkillRow& row : rows) {
    for (std::size_t at = 0; at < kLevels.size(); ++at) {
      bot.Put({kLevels.at(at), row.index}, row.values.at(at));
    }
  }
}

void PutItem(int index, double weight, Bot& bot) {
  bot.Put(ParameterId(index), weight);
}

/// What it likes to fight with it fetches, and a little of it again for the
/// ammunition. A machinegun it has from the start.
void FetchWhatItUses(Bot& bot) {
  for (const ParameterId usage : kWeaponsInGameOrder) {
    const std::optional<ParameterId> pickup = PickupOf(usage);
    if (!pickup) continue;
    constexpr double kLittle = 20;
    const double weight = pickup->index() == kMachinegunPickup
                              ? kLittle
                              : ToNumber(bot.Parameter(usage)).value_or(0);
    bot.Put(*pickup, weight);
    constexpr double kShareOfOwned = 0.2;
    const int owned =
        pickup->index() - kPickupRange.first + kOwnedPickupRange.first;
    PutItem(owned, std::round(weight * kShareOfOwned), bot);
  }
}

void PutChances(double insults, Bot& bot) {
  constexpr SkillRow kChances[] = {
      {33, {0.5}}, {34, {0.6}}, {35, {0.7}}, {36, {0.5}},
      {37, {0.4}}, {38, {0}},   {39, {0.3}}, {40, {0.3}},
      {41, {0.3}}, {42, {0.3}}, {43, {0.3}},
  };
  for (const SkillRow& row : kChances) PutItem(row.index, row.values[0], bot);
  bot.Put(kInsultShare, insults);
}

/// As an average bot has it.
void PutWhatIsNotRead(Bot& bot) {
  constexpr double kMiddle = 0.5;
  constexpr double kTypingSpeed = 200;
  for (const int index : kUnreadRange) {
    for (const Level level : kLevels) bot.Put({level, index}, kMiddle);
  }
  bot.Put(kChatCpm, kTypingSpeed);
}

Bot MakeKind(const KindRow& kind) {
  Bot bot;
  PutWhatIsNotRead(bot);
  PutSkills(kCommonSkills, bot);
  PutSkills(kind.skills, bot);
  for (std::size_t at = 0; at < kind.weapons.size(); ++at) {
    PutItem(kWeaponWeightRange.first + static_cast<int>(at),
            kind.weapons.at(at), bot);
  }
  FetchWhatItUses(bot);
  bot.Put(kHealthWeight, kind.items[0]);
  bot.Put(kArmorWeight, kind.items[1]);
  for (std::size_t at = 2; at < kind.items.size(); ++at) {
    PutItem(kFirstItem + static_cast<int>(at) - 2, kind.items.at(at), bot);
  }
  PutChances(kind.insults, bot);
  return bot;
}

double Between(ParameterId id, const Bot& one, const Bot& other, double share) {
  return std::lerp(ToNumber(one.Parameter(id)).value_or(0),
                   ToNumber(other.Parameter(id)).value_or(0), share);
}

/// Something between two kinds, each trait a little to the one or other side.
Bot MakeSurprise(const RandomSource& random) {
  const auto first = static_cast<std::size_t>(random() * kKinds.size());
  const auto further = static_cast<std::size_t>(random() * (kKinds.size() - 1));
  const Bot one = MakeKind(kKinds.at(first));
  const Bot other = MakeKind(kKinds.at((first + 1 + further) % kKinds.size()));
  constexpr double kLeastShare = 0.2;
  const double share = kLeastShare + (1 - 2 * kLeastShare) * random();
  Bot bot = one;
  for (const SkillRow& row : kCommonSkills) {
    constexpr double kMaxShift = 0.06;
    constexpr double kLeast = 0.02;
    const double shift = kMaxShift * (2 * random() - 1);
    for (const Level level : kLevels) {
      const ParameterId id(level, row.index);
      double value = Between(id, one, other, share);
      if (row.index != kViewMaxChangeIndex && row.index != kFireThrottleIndex) {
        value = std::clamp(value + shift, kLeast, 1.0);
      }
      bot.Put(id, Hundredths(value));
    }
  }
  constexpr double kMaxStretch = 0.25;
  const auto stretch = [&random](double value) {
    return value * (1 + kMaxStretch * (2 * random() - 1));
  };
  for (const int index : kWeaponWeightRange) {
    const ParameterId id(index);
    bot.Put(id, std::round(stretch(Between(id, one, other, share))));
  }
  FetchWhatItUses(bot);
  for (int index = kFirstItem; index <= kItemWeightRange.last; ++index) {
    const ParameterId id(index);
    bot.Put(id, std::round(stretch(Between(id, one, other, share))));
  }
  for (const ParameterId id : {kHealthWeight, kArmorWeight}) {
    bot.Put(id, Hundredths(stretch(Between(id, one, other, share))));
  }
  constexpr double kMinInsults = 0.1;
  constexpr double kMaxInsults = 0.9;
  bot.Put(kInsultShare,
          Hundredths(std::lerp(kMinInsults, kMaxInsults, random())));
  return bot;
}

void AddChats(const WordLists* words, const RandomSource& random, Bot& bot) {
  for (const ChatTypeId type : kAllChatTypes) {
    if (!FactsOfChatType(type).is_heard) continue;
    bot.SetChatLine(type, ChatLineIndex(0), std::string(PlainChatLine(type)));
    if (words == nullptr) continue;
    const std::vector<std::string> lines = ReadyMadeLines(type, *words);
    if (lines.empty()) continue;
    const auto line =
        static_cast<std::size_t>(random() * static_cast<double>(lines.size()));
    bot.SetChatLine(type, ChatLineIndex(1), lines.at(line));
  }
}

}  // namespace

const BotKindText& TextOf(BotKind kind) {
  return kind == BotKind::kSurprise
             ? kSurpriseText
             : kKinds.at(static_cast<std::size_t>(kind)).text;
}

Bot CreateBotOfKind(BotKind kind, std::uint32_t seed, const WordLists* words) {
  const RandomSource random = SeededRandom(seed);
  Bot bot = kind == BotKind::kSurprise
                ? MakeSurprise(random)
                : MakeKind(kKinds.at(static_cast<std::size_t>(kind)));
  AddChats(words, random, bot);
  return bot;
}

}  // namespace fragsmith
