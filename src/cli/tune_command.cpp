#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "chat/vocabulary.h"
#include "cli/bot_source.h"
#include "cli/command.h"
#include "cli/engine_options.h"
#include "cli/match_player.h"
#include "cli/match_source.h"
#include "cli/table.h"
#include "cli/terminal.h"
#include "model/level.h"
#include "session/bot_difference.h"
#include "session/bot_document.h"
#include "support/files.h"
#include "support/system/interruption.h"
#include "trial/match_words.h"
#include "trial/tune.h"

namespace fragsmith {
namespace {

constexpr double kPercent = 100;

struct TuneOptions {
  std::string bot;
  std::string opponent;
  EngineOptions engine;
  double share = 50;
  double margin = kTuneMargin;
  double skill = 4;
  int minutes = 5;
  int games = kMaxTuneMatches;
  int jobs = DefaultJobs();
  std::string output;
};

void PrintEnds(std::ostream& out) {
  std::vector<std::vector<std::string>> rows = {
      {"what is moved, at all levels", "weak", "strong"}};
  for (const StrengthEnds& ends : AllStrengthEnds()) {
    constexpr int kDigits = 2;
    rows.push_back({std::string(ParameterName({Level::k4, ends.index})),
                    Fixed(ends.weak, kDigits), Fixed(ends.strong, kDigits)});
  }
  PrintRows(rows, out);
  out << '\n';
}

/// Plays the matches of one strength.
MatchRunEnd PlayStep(const TuneOptions& options, const MatchServer& server,
                     const MatchPlan& plan, int games, Tuner& tuner,
                     CommandContext& context) {
  MatchPlayer player(games, context);
  player.match_at = [&plan](int number) { return MatchOf(plan, number); };
  player.take = [&tuner](int /*number*/, const PlayedMatch& played) {
    return tuner.Take(TallyOf(played));
  };
  return RunMatches({.server = server, .jobs = options.jobs}, player);
}

ExitStatus TellTuned(const TuneOptions& options, const Tuner& tuner,
                     const Bot& bot, CommandContext& context) {
  const TuneStep& last = tuner.steps().back();
  context.out << '\n'
              << TuneInWords(tuner, options.share / kPercent) << " It took "
              << ShownShare(last.Share()) << " at the last strength; "
              << tuner.MatchCount() << " matches were played.\n\n";
  const Bot tuned = WithStrength(bot, last.strength);
  for (const BotDifference& difference : CompareBots(bot, tuned)) {
    context.out << difference.title << ": " << Printable(difference.left)
                << " -> " << Printable(difference.right) << '\n';
  }
  // Once all this ends, so does an interrupted program.
  context.out << std::flush;
  if (!options.output.empty()) {
    const Result<void> saved =
        SaveFile(PathFromBytes(options.output), WriteBotDocument(tuned));
    if (!saved) return Fail(context, saved.error());
  }
  return tuner.state() == TuneState::kFound ? kDone : kWarned;
}

ExitStatus RunTune(const TuneOptions& options, CommandContext& context) {
  const std::optional<ChosenEngine> chosen =
      ChooseEngine(options.engine, context);
  if (!chosen) return kWrongUsage;
  const std::optional<BotSource> source = MatchSourceOf(options.bot);
  if (!source) {
    context.err << "The bot must have files or a document of its own.\n";
    return kWrongUsage;
  }
  const Interruption interruption;
  const BotSourceOutcome read = ReadBotOrDocument(*source, context);
  if (!read.bot) return read.refusal;
  const Bot& bot = read.bot->loaded.bot;
  MatchBotOutcome opponent = ReadMatchBot(options.opponent, context);
  if (!opponent.bot) return opponent.refusal;
  opponent.bot->skill = options.skill;
  const MatchServer server = {
      .engine = chosen->engine, .data = chosen->data, .game = chosen->game};

  PrintEnds(context.out);
  Tuner tuner(options.share / kPercent, options.margin / kPercent);
  int left = options.games;
  while (tuner.state() == TuneState::kOpen && left > 0) {
    MatchBotOutcome moved =
        MatchBotOfModel(WithStrength(bot, tuner.strength()), context);
    if (!moved.bot) return moved.refusal;
    moved.bot->skill = options.skill;
    const std::size_t step = tuner.steps().size() - 1;
    const MatchPlan plan = {.bots = {std::move(*moved.bot), *opponent.bot},
                            .maps = MapsIn(chosen->map),
                            .minutes = options.minutes};
    const MatchRunEnd end =
        PlayStep(options, server, plan, left, tuner, context);
    const TuneStep& played = tuner.steps()[step];
    if (played.matches.empty()) return kFailed;
    context.out << StepInWords(played) << '\n' << std::flush;
    left -= static_cast<int>(played.matches.size());
    if (end == MatchRunEnd::kFailed || end == MatchRunEnd::kBrokenOff) break;
  }
  return TellTuned(options, tuner, bot, context);
}

}  // namespace

void AddTuneCommand(CLI::App& app, CommandContext& context) {
  CLI::App& command = AddCommand(
      app, "tune",
      "Move the levels of a bot between a weak and a strong end until it takes "
      "the wished share of the points against an opponent, by matches on a "
      "dedicated server; exit status 0 when it does, 3 when no strength was "
      "found that does, 1 when no match was played",
      context);
  auto options = std::make_shared<TuneOptions>();
  command
      .add_option("BOT", options->bot,
                  "Files of a bot or a document, as for match")
      ->required();
  command
      .add_option("OPPONENT", options->opponent,
                  "The same, or a bot of the installed game")
      ->required();
  command
      .add_option("--share", options->share,
                  "The wished share in a hundred, 10 to 90; 50 without it")
      ->check(CLI::Range(double{kMinWishedShare}, double{kMaxWishedShare}));
  constexpr double kMinMargin = 2;
  constexpr double kMaxMargin = 9;
  command
      .add_option("--margin", options->margin,
                  "How near it is to be, in points in a hundred; 5 without it")
      ->check(CLI::Range(kMinMargin, kMaxMargin));
  command.add_option("--skill", options->skill, "Of both; 4 without it")
      ->check(CLI::Range(1.0, 5.0));
  AddMatchMinutes(command, options->minutes);
  constexpr int kMaxGames = 100'000;
  command
      .add_option("--games", options->games,
                  "How many matches at most; 1000 without it")
      ->check(CLI::Range(1, kMaxGames));
  AddMatchJobs(command, options->jobs);
  AddEngineOptions(command, options->engine);
  command
      .add_option("--output", options->output,
                  "Write the bot as it came out as a document")
      ->type_name("DOCUMENT");
  command.callback([options, &context] {
    context.run = [options, &context] { return RunTune(*options, context); };
  });
}

}  // namespace fragsmith
