#include "trial/match_words.h"

#include <iomanip>
#include <locale>
#include <sstream>
#include <string_view>

#include "support/localization.h"
#include "trial/sequential_test.h"

namespace fragsmith {
namespace {

constexpr double kPercent = 100;

/// The values are both bots, the share of the first and the matches.
std::string_view SentenceFor(Difference difference, bool is_one_match) {
  switch (difference) {
    case Difference::kBetter:
      return is_one_match
                 ? Localizable(
                       "%1 is better than %2: %3 of their points in %4 match.")
                 : Localizable(
                       "%1 is better than %2: %3 of their points in %4 "
                       "matches.");
    case Difference::kWorse:
      return is_one_match
                 ? Localizable(
                       "%1 is worse than %2: %3 of their points in %4 match.")
                 : Localizable(
                       "%1 is worse than %2: %3 of their points in %4 "
                       "matches.");
    case Difference::kNone:
      break;
  }
  return is_one_match ? Localizable(
                            "No difference is shown between %1 and %2: %1 took "
                            "%3 of their points in %4 match.")
                      : Localizable(
                            "No difference is shown between %1 and %2: %1 took "
                            "%3 of their points in %4 matches.");
}

/// The same with the margin as the fifth value. One match settles nothing.
std::string_view SentenceFor(Settled settled, bool is_one_match) {
  switch (settled) {
    case Settled::kAbove:
      return Localizable(
          "%1 is better than %2, which was clear after %4 matches: %3 of their "
          "points.");
    case Settled::kBelow:
      return Localizable(
          "%1 is worse than %2, which was clear after %4 matches: %3 of their "
          "points.");
    case Settled::kNear:
      return Localizable(
          "%1 and %2 differ by less than %5 points in a hundred, which was "
          "clear after %4 matches: %3 of their points.");
    case Settled::kNot:
      break;
  }
  return is_one_match ? Localizable(
                            "It is not clear whether %1 and %2 differ after %4 "
                            "match: %3 of their points.")
                      : Localizable(
                            "It is not clear whether %1 and %2 differ after %4 "
                            "matches: %3 of their points.");
}

ComparisonWords WordsOf(const Comparison& comparison, const std::string& bot,
                        const std::string& other, std::size_t matches) {
  return {Localized(SentenceFor(comparison.difference, matches == 1),
                    {bot, other, ShownShare(comparison.share),
                     std::to_string(matches)}),
          comparison.difference == Difference::kNone};
}

ComparisonWords WordsOf(const SequentialTest& test, const std::string& bot,
                        const std::string& other, const Estimate& share) {
  const double margin = SequentialTest::Question().margin * kPercent;
  return {Localized(SentenceFor(test.settled(), test.matches() == 1),
                    {bot, other, ShownShare(share),
                     std::to_string(test.matches()), Fixed(margin, 0)}),
          test.settled() == Settled::kNot};
}

}  // namespace

std::string Fixed(double number, int digits) {
  std::ostringstream text;
  text.imbue(std::locale::classic());
  text << std::fixed << std::setprecision(digits) << number;
  return text.str();
}

std::string Shown(const Estimate& estimate, double scale, int digits,
                  const std::string& unit) {
  std::string value = Fixed(estimate.value * scale, digits) + unit;
  if (!estimate.interval) return value;
  return Localized("%1 (%2 to %3)",
                   {value, Fixed(estimate.interval->low * scale, digits),
                    Fixed(estimate.interval->high * scale, digits)});
}

std::string ShownShare(const Estimate& share) {
  return Shown(share, kPercent, 0, " %");
}

std::string MatchesText(std::size_t count) {
  return Localized(
      count == 1 ? Localizable("%1 match") : Localizable("%1 matches"),
      {std::to_string(count)});
}

ComparisonWords CompareInWords(const MatchReport& report, std::size_t pairing,
                               const std::vector<std::string>& names) {
  const std::vector<Pairing> pairings = PairingsOf(names.size());
  const auto& [bot, other] = pairings.at(pairing);
  const Comparison comparison =
      Compare(TalliesOf(report), bot, other, static_cast<int>(pairings.size()));
  if (report.tests.empty()) {
    return WordsOf(comparison, names.at(bot), names.at(other),
                   report.played.size());
  }
  return WordsOf(report.tests.at(pairing), names.at(bot), names.at(other),
                 comparison.share);
}

std::string StepInWords(const TuneStep& step) {
  constexpr int kDigits = 3;
  const std::string strength = Fixed(step.strength, kDigits);
  const std::size_t matches = step.matches.size();
  if (matches == 0) return Localized("strength %1: no match yet", {strength});
  return Localized(
      matches == 1 ? Localizable("strength %1: %2 in %3 match")
                   : Localizable("strength %1: %2 in %3 matches"),
      {strength, ShownShare(step.Share()), std::to_string(matches)});
}

std::string TuneInWords(const Tuner& tuner, double wished_share) {
  const std::string share = Fixed(wished_share * kPercent, 0) + " %";
  switch (tuner.state()) {
    case TuneState::kOpen:
      return Localized("The matches did not suffice to settle it.");
    case TuneState::kFound:
      return Localized("The bot takes %1, within the margin.", {share});
    case TuneState::kOutOfReach:
      return Localized("Between the two ends, the bot does not come to %1.",
                       {share});
    case TuneState::kTooFine:
      return Localized(
          "The bot does not come nearer to %1: what it takes leaps where its "
          "values hardly differ.",
          {share});
  }
  return {};
}

}  // namespace fragsmith
