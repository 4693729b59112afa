#include <cstdint>
#include <memory>
#include <optional>
#include <set>
#include <string>

#include "cli/command.h"
#include "game/bot_kinds.h"
#include "game/game_data.h"
#include "model/characteristic_catalogue.h"
#include "session/bot_document.h"
#include "session/presets.h"
#include "support/code_page.h"
#include "support/files.h"

namespace fragsmith {
namespace fs = std::filesystem;
namespace {

struct NewOptions {
  std::string preset = "zeros";
  std::string name;
  std::string game;
  std::optional<std::uint32_t> seed;
};

Bot MakePreset(const NewOptions& options, const RandomSource& random,
               CommandContext& context) {
  for (const BotKind kind : kBotKinds) {
    if (options.preset != TextOf(kind).key) continue;
    const std::uint32_t seed = options.seed.value_or(
        static_cast<std::uint32_t>(random() * kSeedCount));
    if (!options.seed && kind == BotKind::kSurprise) {
      context.err << "Drawn with --seed " << seed << ".\n";
    }
    const fs::path folder =
        PathFromBytes(options.game.empty() ? LoadSettingsFor(context).Q3Baseq3
                                           : options.game);
    WordLists words;
    if (!folder.empty()) {
      words = ReadGameData(GameFiles::Open(folder)).words;
    }
    return CreateBotOfKind(kind, seed, words.empty() ? nullptr : &words);
  }
  return options.preset == "average" ? CreateAverageBot(random)
                                     : CreateZeroBot();
}

std::set<std::string> Presets() {
  std::set<std::string> presets = {"zeros", "average"};
  for (const BotKind kind : kBotKinds) presets.emplace(TextOf(kind).key);
  return presets;
}

ExitStatus RunNew(const NewOptions& options, CommandContext& context) {
  const RandomSource random =
      options.seed ? SeededRandom(*options.seed) : UnpredictableRandom();
  Bot bot = MakePreset(options, random, context);
  if (!options.name.empty()) {
    const std::optional<std::string> name = GameTextFromUtf8(options.name);
    if (!name) {
      return Fail(context,
                  {.what = "The name \"" + options.name +
                           "\" has a character that the game's code page "
                           "lacks.",
                   .file = {},
                   .line = 0,
                   .advice = "Only characters of Windows-1252 can be used."});
    }
    bot.Put(kNameField, *name);
  }
  context.out << WriteBotDocument(bot);
  return kDone;
}

}  // namespace

void AddNewCommand(CLI::App& app, CommandContext& context) {
  CLI::App& command =
      AddCommand(app, "new", "Print a new bot as a JSON document", context);
  auto options = std::make_shared<NewOptions>();
  command.add_option("--preset", options->preset, "Values to begin with")
      ->check(CLI::IsMember(Presets()))
      ->capture_default_str();
  command.add_option("--name", options->name, "Name of the bot");
  command.add_option("--seed", options->seed,
                     "Draw the same chat lines, or the same surprise, each "
                     "time");
  command
      .add_option("--game", options->game,
                  "The game whose chat lines a bot of a kind may use, in place "
                  "of that of the settings")
      ->type_name("GAMEFOLDER");
  command.callback([options, &context] {
    context.run = [options, &context] { return RunNew(*options, context); };
  });
}

}  // namespace fragsmith
