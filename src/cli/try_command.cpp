#include <chrono>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "checks/bot_on_disk.h"
#include "checks/file_checks.h"
#include "cli/bot_source.h"
#include "cli/command.h"
#include "cli/engine_options.h"
#include "cli/terminal.h"
#include "session/save_bot.h"
#include "support/files.h"
#include "support/system/interruption.h"
#include "support/temporary_folder.h"
#include "trial/game_trial.h"
#include "trial/trial_reader.h"
#include "trial/trial_run.h"

namespace fragsmith {
namespace fs = std::filesystem;
namespace {

struct TryOptions {
  BotSource source;
  EngineOptions engine;
  std::vector<std::string> opponents;
  double skill = 4;
  int seconds = 30;
  bool as_saved = false;
};

/// What is tried, by the name that the game adds it by and the one that its
/// files are called by.
struct TriedBot {
  std::string name;
  std::string file_name;
};

/// The bot or how the program ends without one. The user was told.
struct TriedBotOutcome {
  std::optional<TriedBot> bot;
  ExitStatus refusal = kFailed;
};

void Print(const std::vector<TrialLine>& lines, CommandContext& context) {
  for (const TrialLine& line : lines) {
    context.out << Printable(line.text) << '\n';
    if (!line.sentence.empty()) context.out << "    " << line.sentence << '\n';
  }
  context.out.flush();
}

/// Lets the engine run until the verdict is there, the time is over or it
/// prints without end.
Result<void> Play(const TrialSetup& setup, const std::string& bot_name,
                  TrialReader& reader, CommandContext& context) {
  using std::chrono::steady_clock;
  Result<TrialRun> run = TrialRun::Start(setup, bot_name);
  if (!run) return Failure(run.error());
  const auto end = steady_clock::now() + std::chrono::seconds(setup.seconds);
  bool is_running = true;
  const auto may_go_on = [&] {
    return !Interruption::HasCome() && !run->IsEndless() &&
           steady_clock::now() < end;
  };
  while (is_running && !reader.is_over() && may_go_on()) {
    run->Wait(std::chrono::milliseconds(50));
    // What it printed before it went is read all the same.
    is_running = run->IsRunning();
    for (std::string_view more = run->ReadMore(); !more.empty();
         more = run->ReadMore()) {
      Print(reader.Read(more), context);
      if (!may_go_on()) break;
    }
  }
  const bool is_endless = run->IsEndless();
  run->End();
  if (reader.is_over() || Interruption::HasCome()) return {};
  std::string_view reason = is_running ? "Time is up." : "The engine ended.";
  if (is_endless) reason = "The engine prints without end.";
  context.err << reason << " What it printed last:\n";
  for (const std::string& line : reader.LastLines()) {
    context.err << "  " << Printable(line) << '\n';
  }
  return {};
}

/// Puts a document, or the bot as a save would write it, into the scratch
/// folder.
TriedBotOutcome PutAsSaved(const TryOptions& options, const fs::path& home,
                           CommandContext& context) {
  const BotSourceOutcome outcome = ReadBotOrDocument(options.source, context);
  if (!outcome.bot) return {.bot = {}, .refusal = outcome.refusal};
  const Bot& bot = outcome.bot->loaded.bot;
  const Result<void> done =
      WriteTrialPackage(bot, home, AuthorOf(LoadSettingsFor(context)));
  if (!done) return {.bot = {}, .refusal = Fail(context, done.error())};
  return {.bot = TriedBot{bot.Name(), bot.Name()}};
}

/// Puts the very files that were given into the scratch folder.
TriedBotOutcome PutAsGiven(const TryOptions& options, const fs::path& home,
                           CommandContext& context) {
  const BotLocationOutcome outcome = FindBot(options.source, context);
  if (!outcome.found) return {.bot = {}, .refusal = outcome.refusal};
  const GivenFiles given = FilesOf(*outcome.found);
  const Result<void> done = PutTrialFiles(given, home);
  if (!done) return {.bot = {}, .refusal = Fail(context, done.error())};
  const std::string& file_name = outcome.found->name;
  const std::string name = NameToAdd(
      ReadBot(given, file_name, true, outcome.found->listed_name).files);
  return {.bot = TriedBot{name.empty() ? file_name : name, file_name}};
}

ExitStatus RunTry(const TryOptions& options, CommandContext& context) {
  const std::optional<ChosenEngine> chosen =
      ChooseEngine(options.engine, context);
  if (!chosen) return kWrongUsage;

  // However this ends, nothing of it stays: neither the engine nor its files.
  const Interruption interruption;
  TemporaryFolder temporary;
  const Result<fs::path> home = temporary.GetTempFolder();
  if (!home) return Fail(context, home.error());
  const TriedBotOutcome outcome = options.as_saved || !IsOfFiles(options.source)
                                      ? PutAsSaved(options, *home, context)
                                      : PutAsGiven(options, *home, context);
  if (!outcome.bot) return outcome.refusal;
  const auto& [name, file_name] = *outcome.bot;
  TrialSetup setup;
  setup.engine = chosen->engine;
  setup.data = chosen->data;
  setup.home = *home;
  setup.game = chosen->game;
  setup.map = chosen->map;
  setup.skill = options.skill;
  setup.opponents = options.opponents;
  setup.is_dedicated = true;
  setup.seconds = options.seconds;
  Result<void> done = MakePathsPlain(setup);
  if (!done) return Fail(context, done.error());

  TrialReader reader(setup, name, file_name);
  done = Play(setup, name, reader, context);
  if (!done) return Fail(context, done.error());
  if (Interruption::HasCome()) return kFailed;
  context.out << Printable(VerdictText(reader.verdict(), name)) << '\n';
  switch (reader.verdict()) {
    case TrialVerdict::kEntered:
      return kDone;
    case TrialVerdict::kOthersFiles:
      return kWarned;
    case TrialVerdict::kUnknown:
    case TrialVerdict::kWithDefault:
    case TrialVerdict::kOtherBot:
    case TrialVerdict::kNotAdded:
      break;
  }
  return kFailed;
}

}  // namespace

void AddTryCommand(CLI::App& app, CommandContext& context) {
  CLI::App& command = AddCommand(
      app, "try",
      "Let a dedicated server of the game take the bot, its files as they "
      "are, and print what it says of it; exit status 0 when the bot entered "
      "the game, 3 when it did with files of another bot, 1 when not",
      context);
  auto options = std::make_shared<TryOptions>();
  options->source.is_for_game = true;
  AddBotSource(command, options->source);
  command.add_flag("--as-saved", options->as_saved,
                   "Try what a save would make of the files, in place of the "
                   "files");
  AddAsGame(command, options->source.as_game);
  AddEngineOptions(command, options->engine);
  command.add_option("--skill", options->skill, "1 to 5; 4 without it")
      ->check(CLI::Range(1.0, 5.0));
  constexpr int kMaxSeconds = 600;
  command
      .add_option("--seconds", options->seconds,
                  "After so long the engine ends at the latest; 30 without it")
      ->check(CLI::Range(1, kMaxSeconds));
  command
      .add_option("--opponent", options->opponents,
                  "Another bot to add; may be given again")
      ->type_name("NAME")
      ->allow_extra_args(false);
  command.callback([options, &context] {
    context.run = [options, &context] { return RunTry(*options, context); };
  });
}

}  // namespace fragsmith
