#include "trial/match_evidence.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>
#include <variant>

#include "game/chat_type_facts.h"
#include "support/localization.h"

namespace fragsmith {
namespace {

constexpr std::string_view kGauntlet = "gauntlet";

/// Somebody who comes in where another one stands kills without a weapon, and
/// so does who pushes another one into what kills in the level.
bool IsByWeapon(std::string_view log_name) {
  return log_name != "telefrag" && !log_name.starts_with("MOD_");
}

struct Seen {
  BotSums sums;
  /// How often each of the bot's own lines was heard, by its number.
  std::vector<int> heard;
  std::size_t matches = 0;
};

std::string MatchesOf(const Seen& seen) { return std::to_string(seen.matches); }

std::optional<MatchEvidence> JudgeGauntletFighter(const Seen& seen) {
  int by_gauntlet = 0;
  int by_others = 0;
  for (const auto& [weapon, count] : seen.sums.kills) {
    if (!IsByWeapon(weapon)) continue;
    (weapon == kGauntlet ? by_gauntlet : by_others) += count;
  }
  if (by_others > 0) {
    return MatchEvidence{
        0, false,
        Localized("%1 of its %2 kills were with other weapons.",
                  {std::to_string(by_others),
                   std::to_string(by_others + by_gauntlet)})};
  }
  if (by_gauntlet == 0) return std::nullopt;
  return MatchEvidence{
      0, true,
      Localized(
          seen.matches == 1
              ? Localizable(
                    "All its kills were with the gauntlet, %1 in %2 match.")
              : Localizable(
                    "All its kills were with the gauntlet, %1 in %2 matches."),
          {std::to_string(by_gauntlet), MatchesOf(seen)})};
}

std::optional<MatchEvidence> JudgeWeaponless(const Seen& seen) {
  int kills = 0;
  for (const auto& [weapon, count] : seen.sums.kills) {
    if (IsByWeapon(weapon)) kills += count;
  }
  if (kills == 0) {
    return MatchEvidence{
        0, true,
        Localized(seen.matches == 1
                      ? Localizable("It killed nobody in %1 match.")
                      : Localizable("It killed nobody in %1 matches."),
                  {MatchesOf(seen)})};
  }
  // It may have found a weapon on its way.
  return std::nullopt;
}

/// The situations whose lines are not to be heard, by what the finding is
/// about.
std::vector<ChatTypeId> SilentTypes(const BotPlace& place) {
  if (const auto* const chat = std::get_if<ChatPlace>(&place)) {
    return {chat->type};
  }
  std::vector<ChatTypeId> types;
  if (const auto* const chance = std::get_if<ParameterId>(&place)) {
    types = TypesOfChance(*chance);
    std::erase_if(
        types, [](ChatTypeId type) { return !FactsOfChatType(type).is_heard; });
  }
  return types;
}

std::string HeardText(std::size_t lines, int heard, const Seen& seen) {
  // By how often, none, one or more; by the matches and by the lines, one or
  // more.
  constexpr std::array<std::array<std::array<std::string_view, 2>, 2>, 3>
      kTexts = {{
          {{{Localizable("The line was never heard in %1 match."),
             Localizable("The %2 lines were never heard in %1 match.")},
            {Localizable("The line was never heard in %1 matches."),
             Localizable("The %2 lines were never heard in %1 matches.")}}},
          {{{Localizable("The line was heard %3 time in %1 match."),
             Localizable("The %2 lines were heard %3 time in %1 match.")},
            {Localizable("The line was heard %3 time in %1 matches."),
             Localizable("The %2 lines were heard %3 time in %1 matches.")}}},
          {{{Localizable("The line was heard %3 times in %1 match."),
             Localizable("The %2 lines were heard %3 times in %1 match.")},
            {Localizable("The line was heard %3 times in %1 matches."),
             Localizable("The %2 lines were heard %3 times in %1 matches.")}}},
      }};
  const auto times = static_cast<std::size_t>(std::min(heard, 2));
  return Localized(
      kTexts.at(times).at(seen.matches == 1 ? 0 : 1).at(lines == 1 ? 0 : 1),
      {MatchesOf(seen), std::to_string(lines), std::to_string(heard)});
}

std::optional<MatchEvidence> JudgeSilence(const BotPlace& place,
                                          const Seen& seen,
                                          const SaidLines& said) {
  const std::vector<ChatTypeId> types = SilentTypes(place);
  const auto is_silent = [&types](const ChatPlace& one) {
    return std::find(types.begin(), types.end(), one.type) != types.end();
  };
  int heard = 0;
  std::size_t lines = 0;
  for (std::size_t line = 0; line < said.lines().size(); ++line) {
    const OwnLine& own = said.lines()[line];
    // One that stands in another situation as well may have come from there.
    if (!own.can_be_told ||
        !std::all_of(own.places.begin(), own.places.end(), is_silent)) {
      continue;
    }
    ++lines;
    heard += seen.heard[line];
  }
  if (lines == 0) return std::nullopt;
  return MatchEvidence{0, heard == 0, HeardText(lines, heard, seen)};
}

std::optional<MatchEvidence> Judge(const Finding& finding, const Seen& seen,
                                   const SaidLines& said) {
  if (finding.id == "gauntlet-fighter") return JudgeGauntletFighter(seen);
  if (finding.id == "no-weapon-at-start") return JudgeWeaponless(seen);
  if (finding.id == "chat-never-heard" || finding.id == "chat-without-chance") {
    return JudgeSilence(finding.place, seen, said);
  }
  return std::nullopt;
}

}  // namespace

std::vector<MatchEvidence> EvidenceOf(const std::vector<Finding>& findings,
                                      const MatchReport& report,
                                      SaidLines& said) {
  if (report.played.empty()) return {};
  Seen seen = {.sums = SumsOf(report, 0),
               .heard = std::vector<int>(said.lines().size()),
               .matches = report.played.size()};
  for (const auto& [text, count] : seen.sums.said) {
    if (const auto line = said.Find(text)) seen.heard[*line] += count;
  }
  std::vector<MatchEvidence> all;
  for (std::size_t number = 0; number < findings.size(); ++number) {
    auto evidence = Judge(findings[number], seen, said);
    if (!evidence) continue;
    evidence->finding = number;
    all.push_back(std::move(*evidence));
  }
  return all;
}

}  // namespace fragsmith
