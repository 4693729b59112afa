#include <memory>
#include <utility>

#include "cli/bot_source.h"
#include "cli/command.h"
#include "session/bot_document.h"
#include "session/load_bot.h"

namespace fragsmith {
namespace {

struct LoadOptions {
  BotSource source;
  bool as_game = false;
};

ExitStatus RunLoad(const LoadOptions& options, CommandContext& context) {
  const BaseLists lists = LoadListsFor(context);
  BotSourceOutcome outcome =
      ReadBotSource(options.source, lists.models, lists.bots, context);
  if (!outcome.bot) return outcome.refusal;
  LoadedBot& loaded = outcome.bot->loaded;
  if (options.as_game) TakeValuesAsGame(loaded, lists.models);
  context.out << WriteBotDocument(loaded.bot);
  return kDone;
}

}  // namespace

void AddLoadCommand(CLI::App& app, CommandContext& context) {
  CLI::App& command = AddCommand(
      app, "load",
      "Print a bot as a JSON document; what was odd in its files goes to "
      "standard error",
      context);
  auto options = std::make_shared<LoadOptions>();
  AddBotSource(command, options->source);
  command.add_flag("--as-game", options->as_game,
                   "Take oddly written values as the game reads them");
  command.callback([options, &context] {
    context.run = [options, &context] { return RunLoad(*options, context); };
  });
}

}  // namespace fragsmith
