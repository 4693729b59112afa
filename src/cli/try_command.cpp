#include <chrono>
#include <cstddef>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "checks/game_trial.h"
#include "checks/trial_reader.h"
#include "cli/bot_source.h"
#include "cli/command.h"
#include "cli/terminal.h"
#include "session/save_bot.h"
#include "support/child_process.h"
#include "support/files.h"
#include "support/temporary_folder.h"

namespace fragsmith {
namespace fs = std::filesystem;
namespace {

struct TryOptions {
  BotSource source;
  std::string engine;  ///< Empty for the first server that is found.
  std::string data;
  std::string game;
  std::string map;
  std::vector<std::string> opponents;
  double skill = 4;
  int seconds = 30;
};

/// What a file has more than when it was last read, a piece at a time.
class GrowingFile {
 public:
  explicit GrowingFile(const fs::path& path) : file_(path, std::ios::binary) {}

  std::string_view ReadMore() {
    file_.clear();
    file_.read(piece_.data(), static_cast<std::streamsize>(piece_.size()));
    return {piece_.data(), static_cast<std::size_t>(file_.gcount())};
  }

 private:
  std::ifstream file_;
  std::vector<char> piece_ = std::vector<char>(65536);
};

void Print(const std::vector<TrialLine>& lines, CommandContext& context) {
  for (const TrialLine& line : lines) {
    context.out << Printable(line.text) << '\n';
    if (!line.sentence.empty()) context.out << "    " << line.sentence << '\n';
  }
  context.out.flush();
}

/// Lets the engine run until the verdict is there or the time is over.
Result<void> Play(const TrialSetup& setup, const std::string& bot_name,
                  TrialReader& reader, CommandContext& context) {
  using std::chrono::steady_clock;
  const fs::path output = setup.home / "output";
  Result<ChildProcess> engine = ChildProcess::Start(
      setup.engine, TrialArguments(setup, bot_name), output);
  if (!engine) return Failure(engine.error());
  const auto end = steady_clock::now() + std::chrono::seconds(setup.seconds);
  GrowingFile file(output);
  bool is_running = true;
  while (is_running && !reader.is_over() && steady_clock::now() < end) {
    engine->Wait(std::chrono::milliseconds(50));
    // What it printed before it went is read all the same.
    is_running = engine->IsRunning();
    for (std::string_view more = file.ReadMore(); !more.empty();
         more = file.ReadMore()) {
      Print(reader.Read(more), context);
      if (steady_clock::now() >= end) break;
    }
  }
  engine->End();
  if (reader.is_over()) return {};
  context.err << (is_running ? "The time is over. " : "The engine ended. ")
              << "What it printed last:\n";
  for (const std::string& line : reader.LastLines()) {
    context.err << "  " << Printable(line) << '\n';
  }
  return {};
}

/// The engine that is meant; nothing, told, when there is none.
std::optional<fs::path> ChooseEngine(const TryOptions& options,
                                     CommandContext& context) {
  if (!options.engine.empty()) {
    return fs::absolute(PathFromBytes(options.engine));
  }
  const char* const path = std::getenv("PATH");  // NOLINT(*-mt-unsafe)
  for (const fs::path& engine :
       FindEngines(EngineFolders(path == nullptr ? "" : path))) {
    if (IsDedicatedServer(engine)) return engine;
  }
  context.err << "No dedicated server of the game was found; give one with "
                 "--engine.\n";
  return std::nullopt;
}

ExitStatus RunTry(const TryOptions& options, CommandContext& context) {
  const std::optional<fs::path> engine = ChooseEngine(options, context);
  if (!engine) return kWrongUsage;
  const BotSourceOutcome outcome = ReadBotOrDocument(options.source, context);
  if (!outcome.bot) return outcome.refusal;
  const Bot& bot = outcome.bot->loaded.bot;

  TemporaryFolder temporary;
  const Result<fs::path> home = temporary.GetTempFolder();
  if (!home) return Fail(context, home.error());
  TrialSetup setup;
  setup.engine = *engine;
  if (!options.data.empty()) {
    setup.data = fs::absolute(PathFromBytes(options.data));
  }
  setup.home = *home;
  setup.game = options.game.empty() ? DefaultGame(setup.engine, setup.data)
                                    : options.game;
  setup.map = options.map.empty() ? DefaultMap(setup.game) : options.map;
  setup.skill = options.skill;
  setup.opponents = options.opponents;
  setup.is_dedicated = true;
  setup.seconds = options.seconds;
  Result<void> done =
      WriteTrialPackage(bot, *home, AuthorOf(LoadSettingsFor(context)));
  if (!done) return Fail(context, done.error());

  TrialReader reader(setup, bot.Name());
  done = Play(setup, bot.Name(), reader, context);
  if (!done) return Fail(context, done.error());
  context.out << Printable(VerdictText(reader.verdict(), bot.Name())) << '\n';
  return reader.verdict() == TrialVerdict::kEntered ? kDone : kFailed;
}

}  // namespace

void AddTryCommand(CLI::App& app, CommandContext& context) {
  CLI::App& command = AddCommand(
      app, "try",
      "Let a dedicated server of the game take the bot and print what it says "
      "of it; exit status 0 when the bot entered the game, 1 when not",
      context);
  auto options = std::make_shared<TryOptions>();
  AddBotSource(command, options->source);
  command
      .add_option("--engine", options->engine,
                  "The dedicated server; else the first that is found")
      ->check(CLI::ExistingFile)
      ->type_name("PROGRAM");
  command
      .add_option("--data", options->data,
                  "The folder that holds the game folder; else the engine's "
                  "own")
      ->check(CLI::ExistingDirectory)
      ->type_name("DIR");
  command
      .add_option("--game", options->game,
                  "The game folder: baseq3, or baseoa where only that is there")
      ->type_name("NAME");
  command
      .add_option("--map", options->map, "The map: q3dm1, or oa_dm1 for baseoa")
      ->type_name("NAME");
  command.add_option("--skill", options->skill, "1 to 5; 4 without it")
      ->check(CLI::Range(1.0, 5.0));
  constexpr int kMostSeconds = 600;
  command
      .add_option("--seconds", options->seconds,
                  "After so long the engine ends at the latest; 30 without it")
      ->check(CLI::Range(1, kMostSeconds));
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
