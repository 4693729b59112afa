#include "trial/ladder.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <set>
#include <utility>

namespace fragsmith {
namespace {

constexpr double kScale = 400;

using Row = std::vector<double>;
using Matrix = std::vector<Row>;

/// By elimination; the matrix is symmetric and has only positive eigenvalues.
Matrix InverseOf(Matrix matrix) {
  const std::size_t size = matrix.size();
  Matrix inverse(size, Row(size, 0));
  for (std::size_t at = 0; at < size; ++at) inverse[at][at] = 1;
  for (std::size_t at = 0; at < size; ++at) {
    const double pivot = matrix[at][at];
    for (std::size_t column = 0; column < size; ++column) {
      matrix[at][column] /= pivot;
      inverse[at][column] /= pivot;
    }
    for (std::size_t row = 0; row < size; ++row) {
      const double factor = matrix[row][at];
      if (row == at || factor == 0) continue;
      for (std::size_t column = 0; column < size; ++column) {
        matrix[row][column] -= factor * matrix[at][column];
        inverse[row][column] -= factor * inverse[at][column];
      }
    }
  }
  return inverse;
}

/// Strengths as logarithms of odds, and how sure they are.
struct Fit {
  Row strengths;
  Matrix covariance;  ///< For points that scatter like tosses of a coin.
};

double ShareOf(const Fit& fit, const LadderGame& game) {
  return 1 /
         (1 + std::exp(fit.strengths[game.other] - fit.strengths[game.bot]));
}

/// One step of Newton's to the most likely strengths.
void Improve(Fit& fit, const std::vector<LadderGame>& games) {
  const std::size_t bots = fit.strengths.size();
  // The one thing that no game tells, the mean, is held fast.
  Matrix information(bots, Row(bots, 1.0 / static_cast<double>(bots)));
  Row slope(bots, 0);
  for (const LadderGame& game : games) {
    const double points = game.points + game.others_points;
    const double share = ShareOf(fit, game);
    const double weight = points * share * (1 - share);
    information[game.bot][game.bot] += weight;
    information[game.other][game.other] += weight;
    information[game.bot][game.other] -= weight;
    information[game.other][game.bot] -= weight;
    slope[game.bot] += game.points - points * share;
    slope[game.other] -= game.points - points * share;
  }
  // Where two groups never met, they are told nothing about each other.
  constexpr double kLittle = 1e-6;
  for (std::size_t bot = 0; bot < bots; ++bot) information[bot][bot] += kLittle;
  fit.covariance = InverseOf(std::move(information));
  for (std::size_t bot = 0; bot < bots; ++bot) {
    double step = 0;
    for (std::size_t other = 0; other < bots; ++other) {
      step += fit.covariance[bot][other] * slope[other];
    }
    // Far from the end, whole steps lead astray.
    fit.strengths[bot] += std::clamp(step, -1.0, 1.0);
  }
}

std::vector<LadderGame> WithHalfPoints(std::vector<LadderGame> games) {
  std::set<std::pair<std::size_t, std::size_t>> met;
  for (const LadderGame& game : games) {
    met.insert(std::minmax(game.bot, game.other));
  }
  for (const auto& [bot, other] : met) games.push_back({bot, other, 0.5, 0.5});
  return games;
}

/// How much more the matches scatter than tosses of a coin.
double ScatterOf(const Fit& fit, const std::vector<LadderGame>& games,
                 int degrees) {
  double scatter = 0;
  for (const LadderGame& game : games) {
    const double points = game.points + game.others_points;
    const double share = ShareOf(fit, game);
    const double off = game.points - points * share;
    if (points > 0) scatter += off * off / (points * share * (1 - share));
  }
  return std::max(scatter / degrees, 1.0);
}

}  // namespace

std::vector<Estimate> RatingsOf(std::size_t bots,
                                const std::vector<LadderGame>& games) {
  Fit fit;
  fit.strengths.assign(bots, 0);
  const std::vector<LadderGame> all = WithHalfPoints(games);
  constexpr int kSteps = 60;
  for (int step = 0; step < kSteps; ++step) Improve(fit, all);

  const double unit = kScale / std::log(10);
  const int degrees =
      static_cast<int>(games.size()) - static_cast<int>(bots) + 1;
  std::vector<Estimate> ratings;
  ratings.reserve(bots);
  for (std::size_t bot = 0; bot < bots; ++bot) {
    const double value = fit.strengths[bot] * unit;
    ratings.push_back({.value = value});
    if (degrees < 1) continue;
    // What was held fast is not known less surely for that.
    const double variance =
        std::max(fit.covariance[bot][bot] - 1.0 / static_cast<double>(bots),
                 0.0) *
        ScatterOf(fit, games, degrees);
    constexpr double kShown = 0.95;
    const double half =
        StudentDeviate(kShown, degrees) * std::sqrt(variance) * unit;
    ratings.back().interval = Interval{value - half, value + half};
  }
  return ratings;
}

std::vector<LadderBot> LadderOf(const std::vector<MatchReport>& reports) {
  std::vector<LadderBot> ladder;
  std::vector<MatchBot> bots;
  const auto index_of = [&](const MatchReport& report, std::size_t bot_index) {
    const MatchBot& bot = report.plan.bots[bot_index];
    const std::string& source = report.sources[bot_index];
    const auto found =
        std::find_if(ladder.begin(), ladder.end(), [&](const LadderBot& other) {
          return other.source == source && other.skill == bot.skill;
        });
    if (found != ladder.end()) {
      return static_cast<std::size_t>(found - ladder.begin());
    }
    ladder.push_back({.name = {}, .source = source, .skill = bot.skill});
    bots.push_back({.name = bot.name});
    return ladder.size() - 1;
  };
  std::vector<LadderGame> games;
  for (const MatchReport& report : reports) {
    const std::size_t bot = index_of(report, 0);
    const std::size_t other = index_of(report, 1);
    for (const MatchTally& match : TalliesOf(report)) {
      const int points = std::max(match.bots[0].score, 0);
      const int others_points = std::max(match.bots[1].score, 0);
      games.push_back({bot, other, static_cast<double>(points),
                       static_cast<double>(others_points)});
      ladder[bot].points += points;
      ladder[other].points += others_points;
      ++ladder[bot].matches;
      ++ladder[other].matches;
    }
  }
  const std::vector<std::string> names = ShownNames(bots);
  const std::vector<Estimate> ratings = RatingsOf(ladder.size(), games);
  for (std::size_t bot = 0; bot < ladder.size(); ++bot) {
    ladder[bot].name = names[bot];
    ladder[bot].rating = ratings[bot];
  }
  std::stable_sort(ladder.begin(), ladder.end(),
                   [](const LadderBot& left, const LadderBot& right) {
                     return left.rating.value > right.rating.value;
                   });
  return ladder;
}

}  // namespace fragsmith
