#ifndef FRAGSMITH_CLI_ENGINE_OPTIONS_H_
#define FRAGSMITH_CLI_ENGINE_OPTIONS_H_

#include <filesystem>
#include <optional>
#include <string>

#include "cli/command.h"

namespace fragsmith {

/// The arguments by which a command is told of a server of the game.
struct EngineOptions {
  std::string engine;  ///< Empty for the first server that is found.
  std::string data;
  std::string game;
  std::string map;
};

struct ChosenEngine {
  std::filesystem::path engine;
  std::filesystem::path data;  ///< Empty for the place that the engine knows.
  std::string game;
  std::string map;
};

void AddEngineOptions(CLI::App& command, EngineOptions& options);

/// The server that is meant, with game and map; nothing, told, when there is
/// none.
std::optional<ChosenEngine> ChooseEngine(const EngineOptions& options,
                                         CommandContext& context);

}  // namespace fragsmith

#endif  // FRAGSMITH_CLI_ENGINE_OPTIONS_H_
