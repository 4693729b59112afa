#include "trial/match_figures.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace fragsmith {
namespace {

constexpr double kShown = 0.95;
constexpr double kSure = 0.99;

/// The points of one bot in a match, and those of all that count with it.
struct Points {
  double own = 0;
  double all = 0;
};

double PointsOf(const BotTally& bot) { return std::max(bot.score, 0); }

/// The integral of cos^power from 0 to the angle, by Simpson's rule.
double CosineIntegral(double angle, double power) {
  constexpr int kSteps = 512;
  double sum = 0;
  for (int step = 0; step <= kSteps; ++step) {
    const double cosine = std::cos(angle * step / kSteps);
    double weight = step % 2 == 0 ? 2 : 4;
    if (step == 0 || step == kSteps) weight = 1;
    sum += weight * std::pow(std::max(cosine, 0.0), power);
  }
  return sum * angle / kSteps / 3;
}

Estimate ShareOf(std::vector<Points> matches, double confidence) {
  // A match without points says nothing of who gets them.
  std::erase_if(matches, [](const Points& match) { return match.all <= 0; });
  Points total;
  for (const Points& match : matches) {
    total.own += match.own;
    total.all += match.all;
  }
  if (total.all <= 0) return {.value = 0.5};
  const double share = total.own / total.all;
  const int degrees = static_cast<int>(matches.size()) - 1;
  if (degrees < 1) return {.value = share};

  double scatter = 0;
  const double variance = share * (1 - share);
  if (variance > 0) {
    for (const Points& match : matches) {
      const double off = match.own - match.all * share;
      scatter += off * off / (match.all * variance);
    }
    scatter /= degrees;
  }
  const double trials = total.all / std::max(scatter, 1.0);
  const double deviate = StudentDeviate(confidence, degrees);
  const double square = deviate * deviate;
  const double middle = (share + square / (2 * trials)) / (1 + square / trials);
  const double half =
      deviate / (1 + square / trials) *
      std::sqrt(variance / trials + square / (4 * trials * trials));
  return {.value = share,
          .interval = Interval{std::max(middle - half, 0.0),
                               std::min(middle + half, 1.0)}};
}

Estimate RateOf(const std::vector<MatchTally>& matches,
                const std::vector<int>& counts) {
  double minutes = 0;
  double total = 0;
  for (std::size_t match = 0; match < matches.size(); ++match) {
    minutes += matches[match].minutes;
    total += counts[match];
  }
  if (minutes <= 0) return {};
  const double rate = total / minutes;
  const int degrees = static_cast<int>(matches.size()) - 1;
  if (degrees < 1) return {.value = rate};
  double squares = 0;
  for (std::size_t match = 0; match < matches.size(); ++match) {
    const double off = counts[match] - rate * matches[match].minutes;
    squares += off * off;
  }
  const double scatter =
      squares * static_cast<double>(matches.size()) / degrees;
  const double half = StudentDeviate(kShown, degrees) *
                      std::sqrt(std::max({scatter, total, 1.0})) / minutes;
  return {.value = rate,
          .interval = Interval{std::max(rate - half, 0.0), rate + half}};
}

}  // namespace

double StudentDeviate(double confidence, int degrees_of_freedom) {
  const double power = degrees_of_freedom - 1;
  const double whole = CosineIntegral(std::numbers::pi / 2, power);
  double low = 0;
  double high = std::numbers::pi / 2;
  constexpr int kHalvings = 50;
  for (int count = 0; count < kHalvings; ++count) {
    const double angle = (low + high) / 2;
    const bool is_below = CosineIntegral(angle, power) < confidence * whole;
    (is_below ? low : high) = angle;
  }
  return std::tan(low) * std::sqrt(degrees_of_freedom);
}

std::vector<BotFigures> FiguresOf(const std::vector<MatchTally>& matches) {
  std::vector<BotFigures> figures;
  const std::size_t bots = matches.empty() ? 0 : matches.front().bots.size();
  for (std::size_t bot = 0; bot < bots; ++bot) {
    std::vector<Points> points;
    std::vector<int> frags;
    std::vector<int> deaths;
    for (const MatchTally& match : matches) {
      Points of_match;
      of_match.own = PointsOf(match.bots[bot]);
      for (const BotTally& tally : match.bots) of_match.all += PointsOf(tally);
      points.push_back(of_match);
      frags.push_back(match.bots[bot].frags);
      deaths.push_back(match.bots[bot].deaths);
    }
    figures.push_back({.share = ShareOf(std::move(points), kShown),
                       .frags_a_minute = RateOf(matches, frags),
                       .deaths_a_minute = RateOf(matches, deaths)});
  }
  return figures;
}

Comparison Compare(const std::vector<MatchTally>& matches, std::size_t bot,
                   std::size_t other, int comparisons) {
  std::vector<Points> points;
  for (const MatchTally& match : matches) {
    const double own = PointsOf(match.bots[bot]);
    points.push_back({own, own + PointsOf(match.bots[other])});
  }
  const Estimate sure = ShareOf(points, 1 - (1 - kSure) / comparisons);
  Comparison comparison;
  comparison.share = ShareOf(std::move(points), kShown);
  if (sure.interval && sure.interval->low > 0.5) {
    comparison.difference = Difference::kBetter;
  } else if (sure.interval && sure.interval->high < 0.5) {
    comparison.difference = Difference::kWorse;
  }
  return comparison;
}

}  // namespace fragsmith
