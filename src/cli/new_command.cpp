#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "cli/command.h"
#include "model/characteristic_catalogue.h"
#include "session/bot_document.h"
#include "session/presets.h"
#include "support/code_page.h"

namespace fragsmith {
namespace {

struct NewOptions {
  std::string preset = "zeros";
  std::string name;
  std::optional<std::uint32_t> seed;
};

ExitStatus RunNew(const NewOptions& options, CommandContext& context) {
  const RandomSource random =
      options.seed ? SeededRandom(*options.seed) : UnpredictableRandom();
  Bot bot =
      options.preset == "average" ? CreateAverageBot(random) : CreateZeroBot();
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
    (void)bot.SetParameter(kNameIndex, *name);
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
      ->check(CLI::IsMember({"zeros", "average"}))
      ->capture_default_str();
  command.add_option("--name", options->name, "Name of the bot");
  command.add_option("--seed", options->seed,
                     "Draw the same chat lines each time");
  command.callback([options, &context] {
    context.run = [options, &context] { return RunNew(*options, context); };
  });
}

}  // namespace fragsmith
