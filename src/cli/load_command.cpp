#include <memory>

#include "cli/bot_source.h"
#include "cli/command.h"
#include "session/bot_document.h"

namespace fragsmith {
namespace {

ExitStatus RunLoad(const BotSource& options, CommandContext& context) {
  const BaseLists lists = LoadListsFor(context);
  const BotSourceOutcome outcome =
      ReadBotSource(options, lists.models, lists.bots, context);
  if (!outcome.bot) return outcome.refusal;
  context.out << WriteBotDocument(outcome.bot->loaded.bot);
  return kDone;
}

}  // namespace

void AddLoadCommand(CLI::App& app, CommandContext& context) {
  CLI::App& command = AddCommand(
      app, "load",
      "Print a bot as a JSON document; what was odd in its files goes to "
      "standard error",
      context);
  auto options = std::make_shared<BotSource>();
  AddBotSource(command, *options);
  AddAsGame(command, options->as_game);
  command.callback([options, &context] {
    context.run = [options, &context] { return RunLoad(*options, context); };
  });
}

}  // namespace fragsmith
