#include "trial/match_evidence.h"

#include <algorithm>
#include <optional>
#include <variant>

#include "game/chat_type_facts.h"
#include "trial/match_words.h"

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
  std::string matches;  ///< "in 3 matches".
};

std::optional<MatchEvidence> JudgeGauntletFighter(const Seen& seen) {
  int by_gauntlet = 0;
  int by_others = 0;
  for (const auto& [weapon, count] : seen.sums.kills) {
    if (!IsByWeapon(weapon)) continue;
    (weapon == kGauntlet ? by_gauntlet : by_others) += count;
  }
  if (by_others > 0) {
    return MatchEvidence{0, false,
                         std::to_string(by_others) + " of its " +
                             std::to_string(by_others + by_gauntlet) +
                             " kills were with other weapons."};
  }
  if (by_gauntlet == 0) return std::nullopt;
  return MatchEvidence{0, true,
                       "All its kills were with the gauntlet, " +
                           std::to_string(by_gauntlet) + " " + seen.matches +
                           "."};
}

std::optional<MatchEvidence> JudgeWeaponless(const Seen& seen) {
  int kills = 0;
  for (const auto& [weapon, count] : seen.sums.kills) {
    if (IsByWeapon(weapon)) kills += count;
  }
  if (kills == 0) {
    return MatchEvidence{0, true, "It killed nobody " + seen.matches + "."};
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
  const std::string which =
      lines == 1 ? "The line was"
                 : "The " + std::to_string(lines) + " lines were";
  if (heard == 0) {
    return MatchEvidence{0, true, which + " never heard " + seen.matches + "."};
  }
  return MatchEvidence{0, false,
                       which + " heard " + std::to_string(heard) +
                           (heard == 1 ? " time " : " times ") + seen.matches +
                           "."};
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
               .matches = "in " + MatchesText(report.played.size())};
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
