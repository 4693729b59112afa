#include "trial/match_words.h"

#include <iomanip>
#include <locale>
#include <sstream>

#include "trial/sequential_test.h"

namespace fragsmith {
namespace {

constexpr double kPercent = 100;

ComparisonWords WordsOf(const Comparison& comparison, const std::string& bot,
                        const std::string& other, std::size_t matches) {
  const std::string share = ShownShare(comparison.share) +
                            " of their points in " + MatchesText(matches) + ".";
  switch (comparison.difference) {
    case Difference::kBetter:
      return {bot + " is better than " + other + ": " + share};
    case Difference::kWorse:
      return {bot + " is worse than " + other + ": " + share};
    case Difference::kNone:
      break;
  }
  return {"No difference is shown between " + bot + " and " + other + ": " +
              bot + " took " + share,
          true};
}

ComparisonWords WordsOf(const SequentialTest& test, const std::string& bot,
                        const std::string& other, const Estimate& share) {
  const std::string after =
      " after " + MatchesText(static_cast<std::size_t>(test.matches())) + ": " +
      ShownShare(share) + " of their points.";
  switch (test.settled()) {
    case Settled::kAbove:
      return {bot + " is better than " + other + ", which was clear" + after};
    case Settled::kBelow:
      return {bot + " is worse than " + other + ", which was clear" + after};
    case Settled::kNear:
      return {bot + " and " + other + " differ by less than " +
              Fixed(SequentialTest::Question().margin * kPercent, 0) +
              " points in a hundred, which was clear" + after};
    case Settled::kNot:
      break;
  }
  return {
      "It is not clear whether " + bot + " and " + other + " differ" + after,
      true};
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
  std::string text = Fixed(estimate.value * scale, digits) + unit;
  if (estimate.interval) {
    text += " (" + Fixed(estimate.interval->low * scale, digits) + " to " +
            Fixed(estimate.interval->high * scale, digits) + ")";
  }
  return text;
}

std::string ShownShare(const Estimate& share) {
  return Shown(share, kPercent, 0, " %");
}

std::string MatchesText(std::size_t count) {
  return std::to_string(count) + (count == 1 ? " match" : " matches");
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
  const std::string strength =
      "strength " + Fixed(step.strength, kDigits) + ": ";
  if (step.matches.empty()) return strength + "no match yet";
  return strength + ShownShare(step.Share()) + " in " +
         MatchesText(step.matches.size());
}

std::string TuneInWords(const Tuner& tuner, double wished_share) {
  const std::string share = Fixed(wished_share * kPercent, 0) + " %";
  switch (tuner.state()) {
    case TuneState::kOpen:
      return "The matches did not suffice to settle it.";
    case TuneState::kFound:
      return "The bot takes " + share + ", within the margin.";
    case TuneState::kOutOfReach:
      return "Between the two ends, the bot does not come to " + share + ".";
    case TuneState::kTooFine:
      return "The bot does not come nearer to " + share +
             ": what it takes leaps where its values hardly differ.";
  }
  return {};
}

}  // namespace fragsmith
