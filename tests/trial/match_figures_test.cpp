#include "trial/match_figures.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>

#include "support/random.h"
#include "trial/ladder.h"
#include "trial/sequential_test.h"

namespace fragsmith {
namespace {

MatchTally Scores(int left, int right) {
  return {.minutes = 5,
          .bots = {{.score = left, .frags = left, .deaths = right},
                   {.score = right, .frags = right, .deaths = left}}};
}

TEST(StudentDeviate, IsThatOfTheTables) {
  EXPECT_NEAR(StudentDeviate(0.95, 1), 12.706, 0.001);
  EXPECT_NEAR(StudentDeviate(0.95, 9), 2.262, 0.001);
  EXPECT_NEAR(StudentDeviate(0.99, 4), 4.604, 0.001);
  EXPECT_NEAR(StudentDeviate(0.95, 10000), 1.960, 0.001);
}

TEST(MatchFigures, AreThoseOfKnownNumbers) {
  // 60 of 100 points in ten matches that scatter less than coins do: Wilson's
  // interval for 100 trials, with 2.262 in place of 1.960.
  const std::vector<BotFigures> even =
      FiguresOf(std::vector<MatchTally>(10, Scores(6, 4)));
  ASSERT_EQ(even.size(), 2U);
  EXPECT_DOUBLE_EQ(even[0].share.value, 0.6);
  ASSERT_TRUE(even[0].share.interval);
  EXPECT_NEAR(even[0].share.interval->low, 0.4868, 0.001);
  EXPECT_NEAR(even[0].share.interval->high, 0.7035, 0.001);
  // A count of 60 in 50 minutes, no surer than one by chance.
  EXPECT_DOUBLE_EQ(even[0].frags_a_minute.value, 1.2);
  ASSERT_TRUE(even[0].frags_a_minute.interval);
  EXPECT_NEAR(even[0].frags_a_minute.interval->low, 0.8496, 0.001);
  EXPECT_DOUBLE_EQ(even[0].deaths_a_minute.value, 0.8);

  // The same points, won and lost in turn, say far less.
  std::vector<MatchTally> swinging;
  for (int match = 0; match < 10; ++match) {
    swinging.push_back(match % 2 == 0 ? Scores(10, 0) : Scores(2, 8));
  }
  const std::vector<BotFigures> wide = FiguresOf(swinging);
  EXPECT_DOUBLE_EQ(wide[0].share.value, 0.6);
  EXPECT_LT(wide[0].share.interval->low, 0.35);
  EXPECT_LT(wide[0].frags_a_minute.interval->low, 0.6);
}

TEST(MatchFigures, SayNothingWhereNothingIsKnown) {
  EXPECT_TRUE(FiguresOf({}).empty());
  const std::vector<BotFigures> one = FiguresOf({Scores(40, 0)});
  EXPECT_DOUBLE_EQ(one[0].share.value, 1);
  EXPECT_FALSE(one[0].share.interval);
  EXPECT_FALSE(one[0].frags_a_minute.interval);
  EXPECT_EQ(Compare({Scores(40, 0)}, 0, 1).difference, Difference::kNone);
  // Below zero is no share of anything.
  const std::vector<BotFigures> none = FiguresOf({Scores(-3, 0), Scores(0, 0)});
  EXPECT_DOUBLE_EQ(none[0].share.value, 0.5);
  EXPECT_FALSE(none[0].share.interval);
}

TEST(MatchComparison, TellsAClearDifferenceAndSidesApart) {
  const std::vector<MatchTally> clear = {Scores(20, 3), Scores(18, 5),
                                         Scores(22, 2), Scores(17, 6),
                                         Scores(19, 4)};
  EXPECT_EQ(Compare(clear, 0, 1).difference, Difference::kBetter);
  EXPECT_EQ(Compare(clear, 1, 0).difference, Difference::kWorse);
  EXPECT_NEAR(Compare(clear, 1, 0).share.value, 20.0 / 116, 1e-9);
  // The same points with one match upside down are no longer sure.
  std::vector<MatchTally> doubtful = clear;
  std::swap(doubtful[1].bots[0], doubtful[1].bots[1]);
  EXPECT_EQ(Compare(doubtful, 0, 1).difference, Difference::kNone);
}

constexpr int kFrags = 20;

/// A match in which who leads goes on to lead.
MatchTally SwingingMatch(double share, const RandomSource& random) {
  const double luck = share + 0.4 * (random() - 0.5);
  int left = 0;
  for (int frag = 0; frag < kFrags; ++frag) left += random() < luck ? 1 : 0;
  return Scores(left, kFrags - left);
}

/// In how many of so many runs two equal bots, whose matches swing more than
/// chance alone, are told apart, and how many intervals miss the middle.
struct Mistakes {
  int differences = 0;
  int misses = 0;
};

Mistakes OfEqualBots(int runs, int matches) {
  const RandomSource random = SeededRandom(7);
  Mistakes mistakes;
  for (int run = 0; run < runs; ++run) {
    std::vector<MatchTally> tallies;
    for (int match = 0; match < matches; ++match) {
      tallies.push_back(SwingingMatch(0.5, random));
    }
    const Comparison comparison = Compare(tallies, 0, 1);
    mistakes.differences += comparison.difference != Difference::kNone ? 1 : 0;
    const Interval interval =
        comparison.share.interval.value_or(Interval{0, 1});
    mistakes.misses += interval.low > 0.5 || interval.high < 0.5 ? 1 : 0;
  }
  return mistakes;
}

TEST(MatchComparison, DoesNotCallNoiseADifference) {
  constexpr int kRuns = 500;
  for (const int matches : {2, 4, 10, 40}) {
    const Mistakes mistakes = OfEqualBots(kRuns, matches);
    EXPECT_LE(mistakes.differences, kRuns / 50) << matches;
    EXPECT_LE(mistakes.misses, kRuns * 7 / 100) << matches;
  }
}

/// What came of so many tests of bots with the share, and how many matches they
/// took.
struct TestRuns {
  std::map<Settled, int> settled;
  int matches = 0;
};

TestRuns RunTests(int runs, double share) {
  const RandomSource random = SeededRandom(11);
  TestRuns outcome;
  for (int run = 0; run < runs; ++run) {
    SequentialTest test(0, 1, {});
    while (test.settled() == Settled::kNot && test.matches() < 1000) {
      test.Take(SwingingMatch(share, random));
    }
    ++outcome.settled[test.settled()];
    outcome.matches += test.matches();
  }
  return outcome;
}

TEST(SequentialTest, KeepsItsErrorRates) {
  constexpr int kRuns = 1000;
  TestRuns equal = RunTests(kRuns, 0.5);
  EXPECT_LE(equal.settled[Settled::kAbove] + equal.settled[Settled::kBelow],
            kRuns * 15 / 1000);
  EXPECT_EQ(equal.settled[Settled::kNot], 0);
  TestRuns apart = RunTests(kRuns, 0.45);
  EXPECT_GE(apart.settled[Settled::kBelow], kRuns * 95 / 100);
  EXPECT_EQ(apart.settled[Settled::kAbove], 0);
  // What is clear takes few.
  TestRuns clear = RunTests(kRuns, 0.75);
  EXPECT_EQ(clear.settled[Settled::kAbove], kRuns);
  EXPECT_LT(clear.matches, kRuns * 25);
}

TEST(SequentialTest, NeedsMatchesWithPoints) {
  SequentialTest test(0, 1, {});
  for (int match = 0; match < 100; ++match) test.Take(Scores(0, -2));
  EXPECT_EQ(test.settled(), Settled::kNot);
  EXPECT_EQ(test.matches(), 100);
  for (int match = 0; match < 7; ++match) test.Take(Scores(20, 0));
  EXPECT_EQ(test.settled(), Settled::kNot) << "too few";
  test.Take(Scores(20, 0));
  EXPECT_EQ(test.settled(), Settled::kAbove);
  for (int match = 0; match < 50; ++match) test.Take(Scores(0, 20));
  EXPECT_EQ(test.settled(), Settled::kAbove);
  EXPECT_EQ(test.matches(), 108);
}

TEST(Ladder, FindsTheRatingsThatMadeThePoints) {
  // 1/11 of the points are 400 less.
  const std::vector<LadderGame> games(40, {0, 1, 1000, 100});
  const std::vector<Estimate> two = RatingsOf(2, games);
  EXPECT_NEAR(two[0].value, 200, 0.1);
  EXPECT_NEAR(two[1].value, -200, 0.1);
  ASSERT_TRUE(two[0].interval);
  // Half of 400 / ln 10 x 2.023 / sqrt(44000 / 11 x 10 / 11).
  EXPECT_NEAR(two[0].interval->high - 200, 2.914, 0.05);
  // One that never scores is weak, but no wonder; one match tells no interval.
  const std::vector<Estimate> never = RatingsOf(2, {{0, 1, 30, 0}});
  EXPECT_LT(never[1].value, -200);
  EXPECT_GT(never[1].value, -1000);
  EXPECT_FALSE(never[0].interval);
}

TEST(Ladder, HasTheTruthInItsIntervals) {
  const std::vector<double> truth = {150, 20, -60, -110};
  const RandomSource random = SeededRandom(3);
  constexpr int kRuns = 200;
  int misses = 0;
  for (int run = 0; run < kRuns; ++run) {
    std::vector<LadderGame> games;
    for (int round = 0; round < 4; ++round) {
      for (std::size_t bot = 0; bot < truth.size(); ++bot) {
        for (std::size_t other = bot + 1; other < truth.size(); ++other) {
          const double share =
              1 / (1 + std::pow(10, (truth[other] - truth[bot]) / 400));
          const MatchTally match = SwingingMatch(share, random);
          games.push_back({bot, other, static_cast<double>(match.bots[0].score),
                           static_cast<double>(match.bots[1].score)});
        }
      }
    }
    const std::vector<Estimate> ratings = RatingsOf(truth.size(), games);
    for (std::size_t bot = 0; bot < truth.size(); ++bot) {
      const Interval interval = ratings[bot].interval.value_or(Interval());
      if (truth[bot] < interval.low || truth[bot] > interval.high) ++misses;
    }
  }
  EXPECT_LE(misses, kRuns * 4 * 8 / 100);
  EXPECT_GE(misses, kRuns * 4 * 2 / 100);
}

}  // namespace
}  // namespace fragsmith
