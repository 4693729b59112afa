#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "cli/bot_source.h"
#include "cli/command.h"
#include "cli/terminal.h"
#include "session/bot_difference.h"
#include "support/files.h"

namespace fragsmith {
namespace {

struct DiffOptions {
  BotSource left;
  BotSource right;
  bool as_game = false;
};

/// A name may stand behind the last ":" of a source that itself is no file or
/// folder.
BotSource WithNameApart(BotSource source) {
  std::error_code ignored;
  const std::size_t colon = source.source.rfind(':');
  if (colon == std::string::npos ||
      std::filesystem::exists(PathFromBytes(source.source), ignored)) {
    return source;
  }
  source.name = source.source.substr(colon + 1);
  source.source.resize(colon);
  return source;
}

std::optional<Bot> Read(const BotSource& given, bool as_game,
                        CommandContext& context) {
  BotSource source = WithNameApart(given);
  source.as_game = as_game;
  BotSourceOutcome outcome = ReadBotOrDocument(source, context);
  if (!outcome.bot) return std::nullopt;
  return std::move(outcome.bot->loaded.bot);
}

ExitStatus RunDiff(const DiffOptions& options, CommandContext& context) {
  // As other programs that compare, a bot that cannot be read is trouble (2):
  // 1 says that the bots differ.
  const std::optional<Bot> left = Read(options.left, options.as_game, context);
  if (!left) return kWrongUsage;
  const std::optional<Bot> right =
      Read(options.right, options.as_game, context);
  if (!right) return kWrongUsage;
  const std::vector<BotDifference> differences = CompareBots(*left, *right);
  for (const BotDifference& difference : differences) {
    context.out << difference.title << ": "
                << Printable(difference.is_in_left ? difference.left
                                                   : "(nothing)")
                << " -> "
                << Printable(difference.is_in_right ? difference.right
                                                    : "(nothing)")
                << '\n';
  }
  return differences.empty() ? kDone : kFailed;
}

}  // namespace

void AddDiffCommand(CLI::App& app, CommandContext& context) {
  CLI::App& command = AddCommand(
      app, "diff",
      "Print in what two bots differ, one difference a line; exit status 0 "
      "none, 1 some, 2 trouble",
      context);
  auto options = std::make_shared<DiffOptions>();
  const std::string what =
      "A folder of bot files, one *_c.c file, a package or a document "
      "(*.json); with :NAME where there is more than one bot";
  command.add_option("A", options->left.source, what)->required();
  command.add_option("B", options->right.source, what)->required();
  AddAsGame(command, options->as_game);
  command.callback([options, &context] {
    context.run = [options, &context] { return RunDiff(*options, context); };
  });
}

}  // namespace fragsmith
