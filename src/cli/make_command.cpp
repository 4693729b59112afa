#include <filesystem>
#include <memory>
#include <string>
#include <system_error>

#include "cli/bot_source.h"
#include "cli/command.h"
#include "session/save_bot.h"
#include "support/files.h"

namespace fragsmith {
namespace {

struct MakeOptions {
  std::string document;
  std::string folder;
  SaveOptions save;
};

ExitStatus RunMake(const MakeOptions& options, CommandContext& context) {
  Result<BotDocument> document = ReadDocument(options.document, context.in);
  if (!document) return Fail(context, document.error());
  ProgramSettings settings = LoadSettingsFor(context);
  if (CheckAllIn(document->texts, document->bot, context.prompts)) {
    return kFailed;
  }
  const std::filesystem::path folder = PathFromBytes(options.folder);
  std::error_code reason;
  std::filesystem::create_directories(folder, reason);
  if (!IsFolder(folder)) {
    return Fail(context, {.what = "There is no such folder, and it cannot be "
                                  "made.",
                          .file = options.folder,
                          .line = 0,
                          .advice = "Choose another folder."});
  }
  const SavedBot saved = SaveBot(document->bot, folder, options.save,
                                 AuthorOf(settings), context.prompts);
  for (const std::filesystem::path& path : saved.written) {
    context.out << BytesFromPath(path) << '\n';
  }
  if (saved.counts_package) {
    ++settings.Bots;
    const Result<void> done = SaveSettings(context.folders.program, settings);
    if (!done) return Fail(context, done.error());
  }
  if (!saved.error) return kDone;
  // What went wrong with a package was in its box.
  return saved.counts_package ? kFailed : Fail(context, *saved.error);
}

}  // namespace

void AddMakeCommand(CLI::App& app, CommandContext& context) {
  CLI::App& command =
      AddCommand(app, "make",
                 "Write the file set of a bot from a JSON document and print "
                 "the path of each file",
                 context);
  auto options = std::make_shared<MakeOptions>();
  command
      .add_option("FILE", options->document,
                  "The document, or - for standard input")
      ->required();
  command.add_option("--into", options->folder, "Folder to write to")
      ->type_name("DIR")
      ->required();
  command.add_flag("--layout", options->save.uses_layout,
                   "Write into botfiles/bots and scripts below the folder");
  command.add_flag("--pk3", options->save.makes_package,
                   "Pack the files into bot-NAME.pk3 in the folder, too");
  command.callback([options, &context] {
    context.run = [options, &context] { return RunMake(*options, context); };
  });
}

}  // namespace fragsmith
