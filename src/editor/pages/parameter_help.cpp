#include "editor/pages/parameter_help.h"

#include <algorithm>
#include <array>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

#include "game/skill_mix.h"
#include "support/localization.h"

namespace fragsmith {
namespace {

/// What a parameter of the pages does in the game.
struct ParameterHelp {
  /// Sentences, UTF-8. "{1}" stands for the first of the parameter's
  /// thresholds.
  std::string_view text;
  /// From where to where, with the unit of the value if it has one.
  std::string_view range = Localizable("From 0 to %1 in steps of %2.");
};

struct HelpRow {
  IndexRange indices = {};
  ParameterHelp help;
};

constexpr ParameterHelp kAimSkillHelp = {Localizable(
    "How clever the aim is with this weapon, in place of the general "
    "aim skill. Above {1} the bot leads its target in a straight "
    "line, above {4} along its real path; above {2} it shoots where "
    "the enemy will come out, above {3} at the floor for splash. "
    "Below {5} the accuracy falls to 70 % when the enemy turns back.")};

constexpr ParameterHelp kWeaponWeightHelp = {Localizable(
    "Of the weapons that the bot carries, with ammunition, it draws "
    "the one with the largest weight. Only order and proportion "
    "count. 0 is never drawn.")};

// Numbers are those of the game's own code: there a value is forced into its
// range at each use, and some act as a switch.
constexpr std::array kHelp = {
    HelpRow{
        {2, 2},
        {Localizable(
            "How the bot moves in a fight. Below {1} it stands still; up to "
            "{3} it only moves towards the enemy or away; above {3} it "
            "circles; above {4} it also changes its rhythm at random. Above "
            "{2} it keeps aiming while it retreats or fetches items.")}},
    HelpRow{{3, 3},
            {Localizable(
                "How clever the aim is with gauntlet, machinegun, shotgun, "
                "lightning gun and railgun; the other weapons have their own "
                "values on the page \"Weapon skills\". Below {1} the accuracy "
                "falls to 70 % when the enemy turns back; above {2} the bot "
                "waits half its reaction time before it aims at all.")}},
    HelpRow{
        {4, 4},
        {Localizable(
            "How steadily the bot aims with the gauntlet and the grapple. "
            "Every other weapon has a value of its own on the page \"Weapon "
            "skills\", and this one does nothing for it.")}},
    HelpRow{{kViewFactorIndex, kViewFactorIndex},
            {Localizable(
                "How quickly the view turns to the enemy; the higher, the less "
                "it overshoots. The game takes less than {lowest} as "
                "{lowest}, and "
                "always 0.05 while there is no enemy.")}},
    HelpRow{
        {6, 6},
        {Localizable(
             "The fastest that the bot turns while it has an enemy; without "
             "one it is always 360. The game takes everything below {1} as "
             "{1}, so only higher values make a difference. The skills 2 and "
             "3 turn like level 1, those between 4 and 5 like level 4."),
         Localizable("From 0 to %1 degrees per second in steps of %2.")}},
    HelpRow{
        {7, 7},
        {Localizable(
             "How long the bot waits before it may shoot after it has seen an "
             "enemy or come out of a teleporter. The game takes everything "
             "above {1} as {1}. Beware of a level with a fraction next to a "
             "higher one without (1.5 and 2): the skills between them then "
             "have no reaction time at all."),
         Localizable("From 0 to %1 seconds in steps of %2.")}},
    HelpRow{{8, 8},
            {Localizable(
                "In a fight, the chance to crouch at each decision (some ten a "
                "second), for 5 seconds times the value. While camping or "
                "escorting, the chance per second, for 5 to 20 seconds.")}},
    HelpRow{{9, 9},
            {Localizable(
                "In a fight, the chance to jump at each decision, but at most "
                "once a second. Jumping is tried before crouching: with 1 the "
                "bot never crouches in a fight.")}},
    HelpRow{
        {10, 10},
        {Localizable(
            "A switch: below {1} the bot never jumps by rocket, from {1} on "
            "it does to get about, with 3 rockets, no Quad damage and health "
            "90 (or 60 with 40 armor), unless the server forbids it.")}},
    HelpRow{{11, 11},
            {Localizable(
                "The server's setting bot_grapple decides for all bots.")}},
    HelpRow{{12, 12},
            {Localizable(
                "Whether the bot fights or retreats follows from its health, "
                "armor, weapon and ammunition.")}},
    HelpRow{{13, 14}, {Localizable("It has no effect on how the bot plays.")}},
    HelpRow{
        {15, 15},
        {Localizable(
            "Whether and how long the bot camps, on maps with camp spots. It "
            "needs good health and 10 rounds for rocket launcher, railgun or "
            "BFG10K, and no team order. Below {1} it never camps. It is "
            "tried every half second with this chance, so that even low "
            "values camp soon. The bot stays 120 to 300 seconds, above {2} "
            "for good.")}},
    HelpRow{
        {16, 16},
        {Localizable(
            "A switch: below {1} the bot spares players who are typing, from "
            "{1} on it shoots at them.")}},
    HelpRow{{17, 17},
            {Localizable(
                "How far the bot notices enemies: 0 is 900 map units, 0.5 is "
                "2900 and 1 is 4900. A player is 56 units tall.")}},
    HelpRow{{18, 25},
            {Localizable(
                "How steadily the bot aims with this weapon. At 0 it misses by "
                "up to 20 map units to the side and 10 in height, at 1 by none "
                "but the weapon's own spread. Below {1} it also errs in "
                "direction at random; above {2} the view snaps to the enemy "
                "when the server has bot_challenge on.")}},
    HelpRow{{26, 27}, kAimSkillHelp},
    HelpRow{
        {28, 28},
        {Localizable(
            "How clever the aim is with this weapon, in place of the general "
            "aim skill. Above {1} the bot leads its target in a straight "
            "line, above {3} along its real path; above {2} it shoots at "
            "the floor for splash. Below {4} the accuracy falls to 70 % when "
            "the enemy turns back.")}},
    HelpRow{{29, 29}, kAimSkillHelp},
    HelpRow{
        {30, 30},
        {Localizable(
            "The rhythm of fire. {2} never pauses, and neither do values up to "
            "{1}. From 0.3 to 0.9 the bot fires some 60 to 70 % of the time, "
            "with pauses that grow longer with the value.")}},
    HelpRow{
        {31, 31},
        {Localizable("Typing always takes the bot 2 seconds."),
         Localizable("From 0 to %1 characters per minute in steps of %2.")}},
    HelpRow{{32, 32},
            {Localizable(
                "The share of insults in what the bot says when it kills or "
                "dies: 0 takes only the positive texts, 1 only the negative "
                "ones.")}},
    HelpRow{{33, 33},
            {Localizable(
                "The share of \"Random misc\" in what the bot says at random; "
                "the rest is \"Random insult\".")}},
    HelpRow{{34, 34},
            {Localizable(
                "The chance to speak when a level ends. The game practically "
                "never asks for a line at its start.")}},
    HelpRow{{35, 35},
            {Localizable(
                "The chance to speak on joining the game. What the bot says on "
                "leaving is never heard.")}},
    HelpRow{{36, 36},
            {Localizable(
                "The chance to speak after a kill, when no other enemy is in "
                "sight.")}},
    HelpRow{{37, 37},
            {Localizable("The chance to speak after the bot has died.")}},
    HelpRow{{38, 38},
            {Localizable(
                "Best left at 0: none of the chat texts belongs to it, and in "
                "newer versions of the game a higher value only keeps the bot "
                "silent for 25 seconds.")}},
    HelpRow{
        {39, 39},
        {Localizable(
            "Half of it is the chance to speak when the bot is hit while it "
            "types a reply.")}},
    HelpRow{{40, 40},
            {Localizable(
                "Half of it is the chance to speak when the bot was hit in a "
                "fight and the enemy is out of sight.")}},
    HelpRow{{41, 41},
            {Localizable(
                "Half of it is the chance to speak when the bot has hit in a "
                "fight and the enemy is out of sight.")}},
    HelpRow{
        {kRandomChatRate.index(), kRandomChatRate.index()},
        {Localizable(
            "How often the bot speaks while it roams: 1 is about one line in "
            "40 seconds.")}},
    HelpRow{
        {43, 43},
        {Localizable(
            "How often the bot answers others: with one bot in the game the "
            "chance is 0.75 times the value, with five 0.25 times.")}},
    HelpRow{
        {44, 44},
        {Localizable(
            "Of the weapons that the bot carries, with ammunition, it draws "
            "the one with the largest weight; of equal ones the gauntlet "
            "first. Only order and proportion count. 0 is never drawn, and "
            "every bot starts with gauntlet and machinegun: keep one of the "
            "two above 0.")}},
    HelpRow{{45, 45}, kWeaponWeightHelp},
    HelpRow{
        {46, 46},
        {Localizable(
            "Of the weapons that the bot carries, with ammunition, it draws "
            "the one with the largest weight. Only order and proportion "
            "count. 0 is never drawn, and every bot starts with gauntlet and "
            "machinegun: keep one of the two above 0.")}},
    HelpRow{{47, 52}, kWeaponWeightHelp},
    HelpRow{
        {53, 53},
        {Localizable(
            "The grappling hook as a weapon; few maps have it. Of the "
            "weapons that the bot carries it draws the one with the largest "
            "weight.")}},
    HelpRow{{54, 54},
            {Localizable(
                "How much the bot wants health, the more so the more it lacks. "
                "OpenArena's bots have 2 to 5.")}},
    HelpRow{{55, 55},
            {Localizable(
                "How much the bot wants armor, the more so the more it lacks. "
                "OpenArena's bots have 1 to 3.")}},
    HelpRow{kPickupRange,
            {Localizable(
                "How much the bot wants this weapon while it does not have it. "
                "The weight is divided by the time to get there, and the best "
                "result becomes the bot's goal. 0 is never a goal.")}},
    HelpRow{
        kOwnedPickupRange,
        {Localizable(
            "How much the bot wants this weapon although it has it already. "
            "Some game data, such as OpenArena's, do not use this weight.")}},
    HelpRow{
        {72, 79},
        {Localizable(
            "How much the bot wants this item. The weight is divided by the "
            "time to get there, and the best result becomes the bot's goal. "
            "0 is never a goal.")}},
    HelpRow{{80, 80},
            {Localizable(
                "How much the bot wants flags that lie about, in team games. "
                "Stealing and guarding flags does not depend on it.")}},
};

/// From the first parameter to the last, each once.
constexpr bool HelpsWithEach() {
  int next = kPerLevelRange.first;
  for (const HelpRow& row : kHelp) {
    if (row.indices.first != next) return false;
    next = row.indices.last + 1;
  }
  return next == kItemWeightRange.last + 1;
}
static_assert(HelpsWithEach());

const ParameterHelp& HelpFor(int index) {
  const auto* const found = std::find_if(
      kHelp.begin(), kHelp.end(),
      [index](const HelpRow& row) { return row.indices.Contains(index); });
  if (found == kHelp.end()) throw std::out_of_range("no such parameter");
  return found->help;
}

/// "From 0 to 5 seconds in steps of 0.25."
QString RangeText(const ControlRow& control, std::string_view range) {
  const std::optional<ValueScale> scale = control.HasLevels()
                                              ? ThreeSliderScale(control.max)
                                              : OneSliderScale(control.max);
  if (!scale) return {};
  const std::string top = control.IsRescaled() ? Localized("400, 600 or 1000")
                                               : std::to_string(control.max);
  return u' ' + QString::fromStdString(Localized(
                    range, {top, QString::number(scale->step).toStdString()}));
}

}  // namespace

QString PlainHelp(const ControlRow& control) {
  const ParameterHelp& help = HelpFor(control.index);
  auto text = QString::fromStdString(Localized(help.text));
  int number = 0;
  for (const Threshold& threshold : ThresholdsOf(control.Id())) {
    text.replace(QStringLiteral("{%1}").arg(++number),
                 QString::number(threshold.value));
  }
  text.replace(QStringLiteral("{lowest}"),
               QString::number(UsedRangeOf(control.Id()).lowest));
  if (!IsReadByGame(control.Id())) {
    text.prepend(
        QString::fromStdString(Localized("The game never reads this value.")) +
        u' ');
  }
  if (kChanceRange.Contains(control.index) &&
      control.index != kEnemySuicideChance.index()) {
    text += u' ' + QString::fromStdString(Localized(
                       "Without chat texts for it, a value above 0 only makes "
                       "the bot pause and fall silent."));
  }
  if (control.is_optional) {
    text += u' ' + QString::fromStdString(Localized(
                       "\"No\" leaves it out of the file: then the game's "
                       "default character decides."));
  }
  return text + RangeText(control, help.range);
}

}  // namespace fragsmith
