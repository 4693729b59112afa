#include "cli/engine_options.h"

#include <cstdlib>
#include <vector>

#include "install/program/game_folder.h"
#include "support/files.h"
#include "support/no_prompts.h"
#include "trial/game_trial.h"

namespace fragsmith {
namespace fs = std::filesystem;
namespace {

fs::path FirstServer(const std::vector<fs::path>& folders) {
  for (const fs::path& engine : FindEngines(folders)) {
    if (IsDedicatedServer(engine)) return engine;
  }
  return {};
}

/// The server, and the data where the server is that of the game folder.
ChosenEngine FindServer(CommandContext& context) {
  // What is wrong with the settings is told where they are needed.
  NoPrompts silent;
  ProgramSettings settings;
  LoadSettings(context.folders.program, settings, silent);
  ChosenEngine found;
  if (!settings.Q3Baseq3.empty()) {
    const fs::path game = fs::absolute(PathFromBytes(settings.Q3Baseq3));
    found.engine = FirstServer({game});
    if (!found.engine.empty() && FolderToInstallInto(game)) found.data = game;
  }
  if (found.engine.empty()) {
    const char* const path = std::getenv("PATH");  // NOLINT(*-mt-unsafe)
    found.engine = FirstServer(EngineFolders(path == nullptr ? "" : path));
  }
  return found;
}

}  // namespace

void AddEngineOptions(CLI::App& command, EngineOptions& options) {
  command
      .add_option("--engine", options.engine,
                  "The dedicated server; else that of the game folder of the "
                  "settings or the first that is found")
      ->check(CLI::ExistingFile)
      ->type_name("PROGRAM");
  command
      .add_option("--data", options.data,
                  "The folder that holds the game folder; else the engine's "
                  "own")
      ->check(CLI::ExistingDirectory)
      ->type_name("DIR");
  command
      .add_option("--game", options.game,
                  "The game folder: baseq3, or baseoa where only that is there")
      ->type_name("NAME");
  command
      .add_option("--map", options.map,
                  "The map: q3dm1, or oa_dm1 for baseoa; for matches also "
                  "several, which take turns: q3dm1,q3dm17")
      ->type_name("NAME");
}

std::optional<ChosenEngine> ChooseEngine(const EngineOptions& options,
                                         CommandContext& context) {
  ChosenEngine chosen;
  if (options.engine.empty()) {
    chosen = FindServer(context);
  } else {
    chosen.engine = fs::absolute(PathFromBytes(options.engine));
  }
  if (chosen.engine.empty()) {
    context.err << "No dedicated server of the game was found; give one with "
                   "--engine.\n";
    return std::nullopt;
  }
  if (!options.data.empty()) {
    chosen.data = fs::absolute(PathFromBytes(options.data));
  }
  chosen.game = options.game.empty() ? DefaultGame(chosen.engine, chosen.data)
                                     : options.game;
  chosen.map = options.map.empty() ? DefaultMap(chosen.game) : options.map;
  return chosen;
}

}  // namespace fragsmith
