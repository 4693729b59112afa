#include "trial/game_trial.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <system_error>
#include <utility>

#include "session/save_bot.h"
#include "support/files.h"
#include "support/localization.h"
#include "support/no_prompts.h"
#include "support/numbers.h"
#include "support/prompts.h"
#include "support/text.h"

namespace fragsmith {
namespace fs = std::filesystem;
namespace {

#ifdef _WIN32
constexpr char kPathSeparator = ';';
constexpr std::string_view kProgramEnding = ".exe";
#else
constexpr char kPathSeparator = ':';
constexpr std::string_view kProgramEnding;
#endif

constexpr std::string_view kRetailGame = "baseq3";
constexpr std::string_view kFreeGame = "baseoa";

/// The rest of the commands would run into the last one.
constexpr std::size_t kMaxCommands = 32;

/// The engine makes one text of all arguments in which "+" begins a command,
/// ";" ends one and "//" a line, but not in quotes. It quotes what has a blank
/// by itself.
std::string ForEngine(std::string text) {
  constexpr std::string_view kPlain =
      "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789._-/\\:";
  std::erase(text, '"');
  if (text.find(' ') != std::string::npos) return text;
  if (!text.empty() && !Contains(text, "//") &&
      text.find_first_not_of(kPlain) == std::string::npos) {
    return text;
  }
  return '"' + text + '"';
}

class Arguments {
 public:
  void Add(std::string_view command, const std::vector<std::string>& values) {
    ++commands_;
    texts_.push_back("+" + std::string(command));
    for (const std::string& value : values) texts_.push_back(ForEngine(value));
  }
  void Set(const std::string& name, const std::string& value) {
    Add("set", {name, value});
  }
  /// How many commands still fit.
  std::size_t room() const { return kMaxCommands - commands_; }
  std::vector<std::string> Take() { return std::move(texts_); }

 private:
  std::vector<std::string> texts_;
  std::size_t commands_ = 0;
};

bool IsNamedLike(const fs::path& engine, std::string_view part) {
  return Contains(ToLower(BytesFromPath(engine.filename())), part);
}

/// Another game than the one that the engine was made for.
void SetGame(const TrialSetup& setup, Arguments& arguments) {
  if (setup.game == kRetailGame || setup.game.empty()) return;
  arguments.Set("com_basegame", setup.game);
  arguments.Set("com_standalone", "1");
  if (!IsNamedLike(setup.engine, "quake3e")) return;
  arguments.Set("fs_basegame", setup.game);
  // Where the game's code is a library, as Debian has it.
  arguments.Set("vm_game", "0");
}

/// Where the engine finds the game and ours, and writes what it does.
Arguments PlaceArguments(const TrialSetup& setup) {
  Arguments arguments;
  if (!setup.data.empty()) {
    arguments.Set("fs_basepath", BytesFromPath(setup.data));
  }
  arguments.Set("fs_homepath", BytesFromPath(setup.home));
  SetGame(setup, arguments);
  arguments.Set("fs_game", std::string(kTrialFolder));
  return arguments;
}

}  // namespace

Result<void> MakePathsPlain(TrialSetup& setup) {
  const auto has_quote = [](const fs::path& path) {
    return Contains(BytesFromPath(path), "\"");
  };
  setup.home = setup.home.lexically_normal();
  setup.data = setup.data.lexically_normal();
  if (has_quote(setup.home)) {
    return Failure(
        {.what = Localized("No engine can be told of a path with a \" in it."),
         .file = Utf8FromPath(setup.home),
         .line = 0,
         .advice = Localized("Name another temporary folder.")});
  }
  if (!has_quote(setup.data)) return {};
  const fs::path link = setup.home / "data";
  std::error_code reason;
  fs::create_directory_symlink(setup.data, link, reason);
  if (reason) {
    return Failure(
        {.what = Localized("The link to the data cannot be made: %1.",
                           {reason.message()}),
         .file = Utf8FromPath(link),
         .line = 0,
         .advice = Localized("Name a folder without a \".")});
  }
  setup.data = link;
  return {};
}

std::vector<std::string> TrialArguments(const TrialSetup& setup,
                                        const std::string& bot_name) {
  Arguments arguments = PlaceArguments(setup);
  arguments.Set("net_enabled", "1");
  arguments.Set("net_ip", "127.0.0.1");
  arguments.Set("sv_pure", "0");
  arguments.Set("sv_maxclients", "16");
  arguments.Set("bot_reloadcharacters", "1");
  if (setup.is_dedicated) {
    arguments.Set("dedicated", "1");
  } else {
    arguments.Set("cl_motd", "0");
    arguments.Set("r_fullscreen", "0");
  }
  // All settings come first, then the map, then the bots.
  const std::string skill = PlainDecimal(setup.skill, kFloatDigits);
  arguments.Add(setup.is_dedicated ? "map" : "devmap", {setup.map});
  arguments.Add("addbot", {bot_name, skill});
  const bool ends_itself = setup.is_dedicated && setup.seconds > 0;
  const std::size_t kept = ends_itself ? 2 : 0;
  for (const std::string& opponent : setup.opponents) {
    if (arguments.room() <= kept) break;
    arguments.Add("addbot", {opponent, skill});
  }
  if (ends_itself) {
    constexpr int kFramesInSecond = 20;
    arguments.Add("wait", {std::to_string(setup.seconds * kFramesInSecond)});
    arguments.Add("quit", {});
  }
  return arguments.Take();
}

std::vector<std::string> MatchArguments(const TrialSetup& setup,
                                        const std::string& commands) {
  Arguments arguments = PlaceArguments(setup);
  arguments.Set("net_enabled", "0");
  arguments.Set("dedicated", "1");
  arguments.Set("sv_pure", "0");
  arguments.Set("sv_maxclients", "16");
  arguments.Set("com_hunkMegs", "256");
  arguments.Add("exec", {commands});
  return arguments.Take();
}

Result<void> WriteTrialPackage(const Bot& bot, const fs::path& home,
                               const Author& author) {
  const fs::path folder = home / kTrialFolder;
  std::error_code reason;
  fs::create_directories(folder, reason);
  NoPrompts prompts;
  SavedBot saved =
      SaveBot(bot, folder, {.makes_package = true}, author, prompts);
  if (saved.error) return Failure(*saved.error);
  saved.written.pop_back();
  // Loose files would win over the package in one engine and not in others.
  for (const fs::path& file : saved.written) fs::remove(file, reason);
  return {};
}

Result<void> PutTrialFiles(const GivenFiles& given, const fs::path& home) {
  return given.CopyInto(home / kTrialFolder);
}

std::vector<fs::path> EngineFolders(std::string_view path) {
  std::vector<fs::path> folders;
  while (!path.empty()) {
    const std::size_t end = std::min(path.find(kPathSeparator), path.size());
    if (end > 0) folders.push_back(PathFromBytes(path.substr(0, end)));
    path.remove_prefix(std::min(end + 1, path.size()));
  }
#ifndef _WIN32
  for (const char* const folder :
       {"/usr/games", "/usr/local/games", "/usr/lib/ioquake3"}) {
    folders.emplace_back(folder);
  }
#endif
  return folders;
}

std::vector<fs::path> FindEngines(const std::vector<fs::path>& folders) {
  // Those that systems put before an engine, with the way to its data, come
  // before the engines themselves.
  constexpr std::array<std::string_view, 10> kNames = {
      "quake3",    "ioquake3",      "quake3e",
      "openarena", "quake3-server", "openarena-server",
      "ioq3ded",   "quake3e.ded",   "q3ded",
      "oa_ded"};
  // As their makers call them, by the kind of the computer.
  constexpr std::array<std::string_view, 3> kKinds = {"", ".x86_64", ".x64"};
  std::vector<fs::path> engines;
  for (const std::string_view name : kNames) {
    for (const fs::path& folder : folders) {
      for (const std::string_view kind : kKinds) {
        fs::path engine = folder / (std::string(name) + std::string(kind) +
                                    std::string(kProgramEnding));
        if (IsFile(engine) && std::find(engines.begin(), engines.end(),
                                        engine) == engines.end()) {
          engines.push_back(std::move(engine));
        }
      }
    }
  }
  return engines;
}

bool IsDedicatedServer(const fs::path& engine) {
  return IsNamedLike(engine, "ded") || IsNamedLike(engine, "server");
}

fs::path DataFolder(const fs::path& engine, const fs::path& game_folder,
                    const fs::path& root) {
  if (game_folder != root / "usr/share/games/openarena") return game_folder;
  const fs::path modules =
      root / (IsDedicatedServer(engine) ? "usr/lib/openarena-server"
                                        : "usr/lib/openarena");
  return IsFolder(modules / kFreeGame) ? modules : game_folder;
}

std::string DefaultGame(const fs::path& engine, const fs::path& data) {
  const bool has_free_game = !data.empty() && IsFolder(data / kFreeGame) &&
                             !IsFolder(data / kRetailGame);
  const bool is_free_engine =
      data.empty() &&
      (IsNamedLike(engine, "openarena") || IsNamedLike(engine, "oa_ded"));
  return std::string(has_free_game || is_free_engine ? kFreeGame : kRetailGame);
}

std::string DefaultMap(std::string_view game) {
  return game == kFreeGame ? "oa_dm1" : "q3dm1";
}

}  // namespace fragsmith
