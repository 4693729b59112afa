#include <algorithm>
#include <filesystem>
#include <iterator>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

#include "cli/command.h"
#include "cli/engine_options.h"
#include "cli/match_ladder.h"
#include "cli/match_player.h"
#include "cli/match_source.h"
#include "cli/match_table.h"
#include "cli/terminal.h"
#include "support/files.h"
#include "support/numbers.h"
#include "support/system/interruption.h"
#include "trial/ladder.h"
#include "trial/match_report.h"

namespace fragsmith {
namespace {

constexpr int kDefaultGames = 10;

struct MatchOptions {
  std::vector<std::string> bots;
  std::string ladder;
  std::vector<std::string> to_merge;
  EngineOptions engine;
  std::vector<double> skills = {4};
  int minutes = 5;
  int games = 0;  ///< 0 for what is usual.
  int first = 1;
  int jobs = DefaultJobs();
  bool until_sure = false;
  bool as_json = false;
  bool as_csv = false;
  bool with_events = false;
  bool prints_jobs = false;

  int Games() const {
    if (games > 0) return games;
    return until_sure ? kMaxUntilSure : kDefaultGames;
  }
  double SkillOf(std::size_t index) const {
    return skills[skills.size() == 1 ? 0 : index];
  }
};

std::vector<SequentialTest> TestsFor(std::size_t bots) {
  const std::vector<Pairing> pairings = PairingsOf(bots);
  SequentialTest::Question question;
  // All that is said is right at the rate, and not each single thing.
  question.false_difference /= static_cast<double>(pairings.size());
  std::vector<SequentialTest> tests;
  tests.reserve(pairings.size());
  for (const auto& [bot, other] : pairings) {
    tests.emplace_back(bot, other, question);
  }
  return tests;
}

/// Lets all bots of the report play against each other, two at a time.
MatchRunEnd PlayLadder(const MatchOptions& options, const MatchServer& server,
                       std::vector<MatchReport>& pairs,
                       CommandContext& context) {
  const int count = static_cast<int>(pairs.size());
  MatchPlayer player(options.Games() * count, context);
  player.match_at = [&](int number) { return LadderMatch(pairs, number); };
  player.take = [&](int number, PlayedMatch played) {
    pairs[static_cast<std::size_t>(number % count)].played.push_back(
        std::move(played));
    return true;
  };
  const MatchRunEnd end =
      RunMatches({.server = server, .jobs = options.jobs}, player);
  std::erase_if(pairs,
                [](const MatchReport& pair) { return pair.played.empty(); });
  return end;
}

MatchRunEnd Play(const MatchOptions& options, const MatchServer& server,
                 MatchReport& report, CommandContext& context) {
  MatchPlayer player(options.Games(), context);
  player.match_at = [&](int number) {
    return MatchOf(report.plan, options.first - 1 + number);
  };
  player.take = [&](int /*number*/, PlayedMatch played) {
    const MatchTally tally = TallyOf(played);
    report.played.push_back(std::move(played));
    for (SequentialTest& test : report.tests) test.Take(tally);
    return report.tests.empty() ||
           std::any_of(report.tests.begin(), report.tests.end(),
                       [](const SequentialTest& test) {
                         return test.settled() == Settled::kNot;
                       });
  };
  return RunMatches({.server = server, .jobs = options.jobs}, player);
}

void Print(const MatchReport& report, const MatchOptions& options,
           CommandContext& context) {
  if (options.as_json) {
    context.out << WriteMatchJson(report, options.with_events);
  } else if (options.as_csv) {
    context.out << WriteMatchCsv(report);
  } else {
    PrintMatchTable(report, context.out);
  }
}

void PrintAll(const std::vector<MatchReport>& pairs,
              const MatchOptions& options, CommandContext& context) {
  if (options.as_json) {
    context.out << WriteLadderJson(pairs);
  } else if (options.as_csv) {
    for (const MatchReport& pair : pairs) context.out << WriteMatchCsv(pair);
  } else {
    PrintLadder(pairs, context.out);
  }
}

/// An argument as a shell takes it.
std::string ForShell(const std::string& argument) {
  constexpr std::string_view kPlain =
      "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789"
      "@%+=:,./-_";
  if (!argument.empty() &&
      argument.find_first_not_of(kPlain) == std::string::npos) {
    return argument;
  }
  std::string quoted = "'";
  for (const char letter : argument) {
    if (letter == '\'') {
      quoted += "'\\''";
    } else {
      quoted += letter;
    }
  }
  return quoted + "'";
}

/// The command that plays the one match of the number, from 1 on.
std::string JobOf(const std::vector<std::string>& bots,
                  const MatchOptions& options, const ChosenEngine& chosen,
                  int number, const CommandContext& context) {
  std::vector<std::string> words = {"fragsmith-cli", "match"};
  std::copy(bots.begin(), bots.end(), std::back_inserter(words));
  std::string skills;
  for (const double skill : options.skills) {
    skills += (skills.empty() ? "" : ",") + PlainDecimal(skill, kFloatDigits);
  }
  const auto add = [&words](const char* option, const std::string& value) {
    if (value.empty()) return;
    words.emplace_back(option);
    words.push_back(value);
  };
  add("--skill", skills);
  add("--map", chosen.map);
  add("--minutes", std::to_string(options.minutes));
  add("--engine", options.engine.engine);
  add("--data", options.engine.data);
  add("--game", options.engine.game);
  add("--program-folder", context.given_folder);
  add("--games", "1");
  add("--first", std::to_string(number));
  std::string line;
  for (const std::string& word : words) line += ForShell(word) + " ";
  return line + "--json --events";
}

ExitStatus RunMerge(const MatchOptions& options, CommandContext& context) {
  std::vector<MatchReport> reports;
  std::set<std::filesystem::path> known;
  for (const std::string& file : options.to_merge) {
    std::error_code error;
    // A pattern and a name may well give the same file.
    if (!known
             .insert(
                 std::filesystem::weakly_canonical(PathFromBytes(file), error))
             .second) {
      context.err << file << ": given twice, counted once.\n";
      continue;
    }
    constexpr std::size_t kMaxBytes = std::size_t{256} << 20U;
    const Result<std::string> bytes = ReadFile(PathFromBytes(file), kMaxBytes);
    if (!bytes) return Fail(context, bytes.error());
    Notes notes;
    Result<std::vector<MatchReport>> read = ReadMatchJson(*bytes, file, notes);
    PrintNotes(context, notes);
    if (!read) return Fail(context, read.error());
    std::move(read->begin(), read->end(), std::back_inserter(reports));
  }
  reports = Merged(std::move(reports));
  const bool are_pairs = std::all_of(
      reports.begin(), reports.end(),
      [](const MatchReport& one) { return one.sources.size() == 2; });
  if (reports.size() > 1 && are_pairs) {
    PrintAll(reports, options, context);
    return kDone;
  }
  for (const MatchReport& report : reports) Print(report, options, context);
  return kDone;
}

void PrintJobs(const MatchOptions& options, const ChosenEngine& chosen,
               CommandContext& context) {
  for (int game = 0; game < options.Games(); ++game) {
    const int number = options.first + game;
    if (options.ladder.empty()) {
      context.out << JobOf(options.bots, options, chosen, number, context)
                  << '\n';
      continue;
    }
    for (const auto& [bot, other] : PairingsOf(options.bots.size())) {
      context.out << JobOf({options.bots[bot], options.bots[other]}, options,
                           chosen, number, context)
                  << '\n';
    }
  }
}

/// How the options do not fit together; empty when they do.
std::string Misfit(const MatchOptions& options) {
  if (options.as_json && options.as_csv) return "Give --json or --csv.";
  if (options.with_events && !options.as_json) {
    return "--events goes with --json.";
  }
  if (!options.to_merge.empty()) {
    const bool has_bots = !options.bots.empty() || !options.ladder.empty();
    return has_bots ? "Give bots or --merge." : "";
  }
  if (options.bots.size() < 2) return "Give two bots at least.";
  if (options.skills.size() != 1 &&
      options.skills.size() != options.bots.size()) {
    return "Give --skill one value for all bots, or one for each.";
  }
  if (!options.ladder.empty() && options.skills.size() != 1) {
    return "The bots of a ladder have one skill.";
  }
  if (options.until_sure && (options.prints_jobs || !options.ladder.empty())) {
    return "--until-sure goes with neither --print-jobs nor --ladder.";
  }
  return {};
}

ExitStatus RunMatch(MatchOptions options, CommandContext& context) {
  if (!options.ladder.empty()) {
    const std::vector<std::string> sources = MatchSourcesIn(options.ladder);
    options.bots.insert(options.bots.begin(), sources.begin(), sources.end());
  }
  if (const std::string misfit = Misfit(options); !misfit.empty()) {
    context.err << misfit << '\n';
    return kWrongUsage;
  }
  if (!options.to_merge.empty()) return RunMerge(options, context);
  const std::optional<ChosenEngine> chosen =
      ChooseEngine(options.engine, context);
  if (!chosen) return kWrongUsage;
  if (options.prints_jobs) {
    PrintJobs(options, *chosen, context);
    return kDone;
  }

  // However this ends, nothing of it stays: neither the engines nor their
  // files.
  const Interruption interruption;
  MatchReport report;
  report.sources = options.bots;
  report.plan.maps = MapsIn(chosen->map);
  report.plan.minutes = options.minutes;
  for (std::size_t index = 0; index < options.bots.size(); ++index) {
    MatchBotOutcome outcome = ReadMatchBot(options.bots[index], context);
    if (!outcome.bot) return outcome.refusal;
    outcome.bot->skill = options.SkillOf(index);
    report.plan.bots.push_back(std::move(*outcome.bot));
  }
  if (options.until_sure) report.tests = TestsFor(options.bots.size());
  const MatchServer server = {
      .engine = chosen->engine, .data = chosen->data, .game = chosen->game};
  MatchRunEnd end = MatchRunEnd::kFailed;
  if (options.ladder.empty()) {
    end = Play(options, server, report, context);
    if (report.played.empty()) return kFailed;
    Print(report, options, context);
  } else {
    std::vector<MatchReport> pairs = PairsOf(report);
    end = PlayLadder(options, server, pairs, context);
    if (pairs.empty()) return kFailed;
    PrintAll(pairs, options, context);
  }
  // Once this ends, so does an interrupted program.
  context.out << std::flush;
  return end == MatchRunEnd::kAllPlayed || end == MatchRunEnd::kAnswered
             ? kDone
             : kWarned;
}

}  // namespace

void AddMatchCommand(CLI::App& app, CommandContext& context) {
  CLI::App& command = AddCommand(
      app, "match",
      "Let bots play against each other on a dedicated server of the game, at "
      "some fifty times the speed of a real game, and print who is better and "
      "how sure that is; exit status 0 when all matches were played, 3 when "
      "some were, 1 when none was",
      context);
  auto options = std::make_shared<MatchOptions>();
  constexpr int kMaxBots = 16;
  command
      .add_option("BOT", options->bots,
                  "A folder of bot files, one of its files, a package, or "
                  "NAME@ before one of them where there is more than one bot; "
                  "a document; or the name of a bot of the installed game")
      ->expected(1, kMaxBots);
  command
      .add_option("--ladder", options->ladder,
                  "Let all bots of a folder, and those that are named, play "
                  "against each other, two at a time, and print ratings; "
                  "--games is then how often each two meet")
      ->check(CLI::ExistingDirectory)
      ->type_name("FOLDER");
  command
      .add_option("--skill", options->skills,
                  "1 to 5, one for all or one for each: 5,1; 4 without it")
      ->check(CLI::Range(1.0, 5.0))
      ->delimiter(',')
      ->allow_extra_args(false);
  AddMatchMinutes(command, options->minutes);
  constexpr int kMaxGames = 10'000;
  command
      .add_option("--games", options->games,
                  "How many matches; 10 without it, or, with --until-sure, " +
                      std::to_string(kMaxUntilSure) +
                      " at most. The bots come in by turns")
      ->check(CLI::Range(1, kMaxGames));
  command.add_flag("--until-sure", options->until_sure,
                   "Play until it is clear, by sequential tests, whether one "
                   "bot is better or they differ by less than 5 points in a "
                   "hundred");
  AddMatchJobs(command, options->jobs);
  AddEngineOptions(command, options->engine);
  command.add_flag("--json", options->as_json, "Print JSON");
  command.add_flag("--events", options->with_events,
                   "With --json: all events of the matches with their times");
  command.add_flag("--csv", options->as_csv,
                   "Print a line for each bot of each match");
  command.add_flag("--print-jobs", options->prints_jobs,
                   "Play nothing and print a command for each match, which "
                   "prints what --merge reads");
  command
      .add_option("--first", options->first,
                  "The number of the first match, which says on what map it is "
                  "and which bot comes in first; 1 without it")
      ->check(CLI::Range(1, kMaxGames));
  command
      .add_option("--merge", options->to_merge,
                  "Play nothing and tell of the matches in files that --json "
                  "--events has printed")
      ->type_name("FILE");
  command.callback([options, &context] {
    context.run = [options, &context] { return RunMatch(*options, context); };
  });
}

}  // namespace fragsmith
